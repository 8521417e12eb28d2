// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>

namespace Platform {

// When a stream that broke is opened again, if its device is still there. GUI thread only.
class StreamRetry
{
public:
    // Calls retry from the event loop, once for each failure.
    StreamRetry(std::chrono::milliseconds delay, const std::function<void()>& retry);

    void streamBroke(DeviceState reason);
    // The device works, or is another one. A retry that waits still comes.
    void forgetFailure() { m_failure.reset(); }
    void cancel(); // the stream isn't wanted any more

    std::optional<DeviceState> failure() const { return m_failure; }
    bool isWaiting() const { return m_timer.isActive(); }

private:
    std::optional<DeviceState> m_failure;
    QTimer m_timer;
};

} // namespace Platform
