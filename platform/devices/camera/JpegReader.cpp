// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/JpegReader.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>

namespace Platform {

namespace {

constexpr int SmallestScale = 8; // one eighth

// libjpeg's own one waits for more data, which never come.
void skipInput(j_decompress_ptr jpeg, long count)
{
    const auto wanted = static_cast<std::size_t>(std::max(count, 0L));
    const std::size_t skipped = std::min(wanted, jpeg->src->bytes_in_buffer);
    jpeg->src->next_input_byte += skipped;
    jpeg->src->bytes_in_buffer -= skipped;
}

} // namespace

// What libjpeg's functions are given. It leaves them by a jump if a JPEG is broken.
struct JpegReader::Decoder
{
    jpeg_decompress_struct jpeg{};
    jpeg_error_mgr errors{};
    std::jmp_buf end{};
    char problem[JMSG_LENGTH_MAX] = {};

    static Decoder& of(j_common_ptr jpeg) { return *static_cast<Decoder*>(jpeg->client_data); }

    // True if the call didn't fail. No object that is created meanwhile may need its destructor.
    template <typename Call>
    bool attempt(Call call)
    {
        if (setjmp(end) != 0) { // NOLINT(cert-err52-cpp): libjpeg's way
            jpeg_abort_decompress(&jpeg);
            return false;
        }
        return call();
    }
};

JpegReader::JpegReader() : m_decoder(std::make_unique<Decoder>())
{
    Decoder& decoder = *m_decoder;
    decoder.jpeg.err = jpeg_std_error(&decoder.errors);
    decoder.errors.error_exit = [](j_common_ptr jpeg) {
        Decoder& failing = Decoder::of(jpeg);
        failing.errors.format_message(jpeg, failing.problem);
        std::longjmp(failing.end, 1); // NOLINT(cert-err52-cpp)
    };
    decoder.errors.output_message = [](j_common_ptr) {}; // small damages are shown as they are
    jpeg_create_decompress(&decoder.jpeg);
    decoder.jpeg.client_data = &decoder;
}

JpegReader::~JpegReader()
{
    jpeg_destroy_decompress(&m_decoder->jpeg);
}

QSize JpegReader::open(const uchar* data, std::size_t size)
{
    Decoder& decoder = *m_decoder;
    jpeg_decompress_struct& jpeg = decoder.jpeg;
    decoder.problem[0] = '\0';
    jpeg_abort_decompress(&jpeg);
    const bool isGood = decoder.attempt([&] {
        jpeg_mem_src(&jpeg, data, static_cast<unsigned long>(size));
        // At the end of the data, libjpeg would go on with gray.
        jpeg.src->fill_input_buffer = [](j_decompress_ptr) -> boolean { return FALSE; };
        jpeg.src->skip_input_data = &skipInput;
        return jpeg_read_header(&jpeg, TRUE) == JPEG_HEADER_OK;
    });
    if (!isGood || jpeg.progressive_mode != 0) { // those need memory for all of it
        return {};
    }
    return {static_cast<int>(jpeg.image_width), static_cast<int>(jpeg.image_height)};
}

QSize JpegReader::decode(const QSize& wanted, std::vector<uchar>& pixels)
{
    Decoder& decoder = *m_decoder;
    jpeg_decompress_struct& jpeg = decoder.jpeg;
    const auto sizeAt = [&jpeg](int scale) {
        return QSize(static_cast<int>(jpeg.image_width) / scale,
                     static_cast<int>(jpeg.image_height) / scale);
    };
    int scale = 1;
    while (scale < SmallestScale && sizeAt(2 * scale).width() >= wanted.width() &&
           sizeAt(2 * scale).height() >= wanted.height()) {
        scale *= 2;
    }
    const bool hasStarted = decoder.attempt([&] {
        jpeg.out_color_space = JCS_EXT_BGRX;
        jpeg.scale_num = 1;
        jpeg.scale_denom = static_cast<unsigned>(scale);
        return jpeg_start_decompress(&jpeg) != FALSE;
    });
    if (!hasStarted) {
        return {};
    }
    const std::size_t rowBytes = std::size_t{4} * jpeg.output_width;
    pixels.resize(rowBytes * jpeg.output_height);
    const bool isGood = decoder.attempt([&] {
        while (jpeg.output_scanline < jpeg.output_height) {
            JSAMPROW row = pixels.data() + rowBytes * jpeg.output_scanline;
            if (jpeg_read_scanlines(&jpeg, &row, 1) == 0) {
                return false;
            }
        }
        return true;
    });
    return isGood ? QSize(static_cast<int>(jpeg.output_width), static_cast<int>(jpeg.output_height))
                  : QSize();
}

QString JpegReader::problem() const
{
    return m_decoder->problem[0] == '\0' ? QStringLiteral("it is cut off, or progressive")
                                         : QString::fromLatin1(m_decoder->problem);
}

} // namespace Platform
