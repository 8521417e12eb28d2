// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windowscameras/CameraSample.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

#include <windows.h>

namespace Platform {

// Where Windows leaves the newest sample of a camera, and the camera's thread waits for it.
// Thread-safe.
class SampleBox
{
public:
    struct Delivery
    {
        HRESULT error = S_OK;
        DWORD flags = 0;                        // their meaning is the camera's
        std::unique_ptr<CameraSample> sample{}; // null if Windows only tells something
    };

    void put(Delivery delivery);
    void stop();
    bool isStopped() const;
    // None if nothing came in time, or after stop().
    std::optional<Delivery> await(std::chrono::milliseconds limit);

    void noteFlushed(); // Windows has done all that was asked for
    bool awaitFlush(std::chrono::milliseconds limit);

    void end(); // by the camera's thread, which uses nothing of the camera any more
    bool awaitEnd(std::chrono::milliseconds limit);

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Delivery> m_delivery; // guarded by m_mutex, as are the next ones
    bool m_isStopped = false;
    bool m_isFlushed = false;
    bool m_isEnded = false;
};

} // namespace Platform
