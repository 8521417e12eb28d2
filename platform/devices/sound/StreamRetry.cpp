// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/StreamRetry.h"

namespace Platform {

StreamRetry::StreamRetry(std::chrono::milliseconds delay, const std::function<void()>& retry)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, retry);
}

void StreamRetry::streamBroke(DeviceState reason)
{
    m_failure = reason;
    m_timer.start();
}

void StreamRetry::cancel()
{
    m_failure.reset();
    m_timer.stop();
}

} // namespace Platform
