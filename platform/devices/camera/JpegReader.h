// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <cstddef>
#include <memory>
#include <vector>

namespace Platform {

// Reads JPEGs of every sampling: cameras and encoders make more of them than libyuv reads. One
// thread at a time.
class JpegReader
{
public:
    JpegReader();
    ~JpegReader();
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;

    // The size that the JPEG says; empty if it can't be read. The data must stay until decode().
    QSize open(const uchar* data, std::size_t size);
    // Rows of blue, green, red and an unused byte. The JPEG is halved while it decodes as often as
    // it stays at least as large as wanted. Returns the size; empty if the JPEG can't be read.
    QSize decode(const QSize& wanted, std::vector<uchar>& pixels);

    QString problem() const; // why the last JPEG couldn't be read

private:
    struct Decoder;

    std::unique_ptr<Decoder> m_decoder;
};

} // namespace Platform
