// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <memory>

namespace Platform {

// Memory for frames. It is used again as soon as nobody holds the frame any more, whichever thread
// let go of it. Thread-safe; the frames may outlive the pool.
class FramePool
{
public:
    FramePool();
    ~FramePool();
    FramePool(const FramePool&) = delete;
    FramePool& operator=(const FramePool&) = delete;

    QImage take(const QSize& size); // QImage::Format_RGB32, content undefined

private:
    struct Shelf;

    std::shared_ptr<Shelf> m_shelf;
};

} // namespace Platform
