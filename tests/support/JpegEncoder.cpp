// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/JpegEncoder.h"

#include <QImage>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>

namespace TestSupport {

namespace {

void describe(jpeg_compress_struct& jpeg, const QImage& image, int quality,
              const JpegSampling& sampling)
{
    jpeg.image_width = static_cast<unsigned>(image.width());
    jpeg.image_height = static_cast<unsigned>(image.height());
    jpeg.input_components = 3;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, quality, TRUE);
    if (sampling.isGray()) {
        jpeg_set_colorspace(&jpeg, JCS_GRAYSCALE);
    }
    for (int i = 0; i < jpeg.num_components; ++i) {
        const JpegFactors& factors = i == 0 ? sampling.luma : sampling.chroma;
        jpeg.comp_info[i].h_samp_factor = factors.horizontal;
        jpeg.comp_info[i].v_samp_factor = factors.vertical;
    }
}

} // namespace

QByteArray encodeJpeg(const QImage& image, int quality, const JpegSampling& sampling)
{
    QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    jpeg_error_mgr errors{};
    jpeg_compress_struct jpeg{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    describe(jpeg, rgb, quality, sampling);
    jpeg_start_compress(&jpeg, TRUE);
    while (jpeg.next_scanline < jpeg.image_height) {
        JSAMPROW row = rgb.scanLine(static_cast<int>(jpeg.next_scanline));
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    QByteArray result(reinterpret_cast<char*>(memory), static_cast<int>(size));
    jpeg_destroy_compress(&jpeg);
    std::free(memory);
    return result;
}

} // namespace TestSupport
