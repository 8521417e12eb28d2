// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <memory>

namespace Platform {

// Memory for pictures that is used again once nobody holds the picture any more, on whatever
// thread that happens. Thread-safe; the pictures may outlive the pool.
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
