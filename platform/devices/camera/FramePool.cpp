// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FramePool.h"

#include <mutex>
#include <vector>

namespace Platform {

namespace {

// One is shown, one waits, one is filled.
constexpr std::size_t MaxSpares = 3;

} // namespace

struct FramePool::Shelf
{
    using Memory = std::vector<uchar>;
    // What a frame gives back when it is destroyed.
    struct Loan
    {
        std::shared_ptr<Shelf> shelf;
        Memory memory;
    };

    static void giveBack(void* loan)
    {
        const std::unique_ptr<Loan> owned(static_cast<Loan*>(loan));
        const std::scoped_lock lock(owned->shelf->mutex);
        if (owned->shelf->spares.size() < MaxSpares) {
            owned->shelf->spares.push_back(std::move(owned->memory));
        }
    }

    std::mutex mutex;
    std::vector<Memory> spares;
};

FramePool::FramePool() : m_shelf(std::make_shared<Shelf>())
{
}

FramePool::~FramePool() = default;

QImage FramePool::take(const QSize& size)
{
    auto loan = std::make_unique<Shelf::Loan>();
    loan->shelf = m_shelf;
    {
        const std::scoped_lock lock(m_shelf->mutex);
        if (!m_shelf->spares.empty()) {
            loan->memory = std::move(m_shelf->spares.back());
            m_shelf->spares.pop_back();
        }
    }
    const int stride = size.width() * 4;
    loan->memory.resize(static_cast<std::size_t>(stride) * static_cast<std::size_t>(size.height()));
    uchar* const bits = loan->memory.data();
    return {bits,          size.width(),         size.height(),
            stride,        QImage::Format_RGB32, Shelf::giveBack,
            loan.release()};
}

} // namespace Platform
