// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/camera/JpegSample.h"

#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>

namespace TestSupport {

QByteArray JpegSample::bytes() const
{
    jpeg_error_mgr errors{};
    jpeg_compress_struct jpeg{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = static_cast<unsigned>(Size.width());
    jpeg.image_height = static_cast<unsigned>(Size.height());
    jpeg.input_components = 3;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    if (isGray()) {
        jpeg_set_colorspace(&jpeg, JCS_GRAYSCALE);
    }
    for (int i = 0; i < jpeg.num_components; ++i) {
        jpeg.comp_info[i].h_samp_factor = i == 0 ? luma.horizontal : chroma.horizontal;
        jpeg.comp_info[i].v_samp_factor = i == 0 ? luma.vertical : chroma.vertical;
    }
    jpeg_start_compress(&jpeg, TRUE);
    QByteArray row;
    for (int x = 0; x < Size.width(); ++x) {
        const QRgb color = x < Size.width() / 2 ? Dark : Bright;
        for (const int part : {qRed(color), qGreen(color), qBlue(color)}) {
            row.append(static_cast<char>(part));
        }
    }
    auto* pixels = reinterpret_cast<JSAMPROW>(row.data());
    while (jpeg.next_scanline < jpeg.image_height) {
        jpeg_write_scanlines(&jpeg, &pixels, 1);
    }
    jpeg_finish_compress(&jpeg);
    QByteArray result(reinterpret_cast<char*>(memory), static_cast<int>(size));
    jpeg_destroy_compress(&jpeg);
    std::free(memory);
    return result;
}

} // namespace TestSupport
