// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

namespace Platform {

// When a stream that broke is opened again, if its device is still there. GUI thread only.
class StreamRetry
{
public:
    // Calls retry from the event loop, once for each failure.
    StreamRetry(std::chrono::milliseconds delay, const std::function<void()>& retry);

    void streamBroke();
    // The device works, or is another one. A retry that waits still comes.
    void forgetFailure() { m_hasFailed = false; }
    void cancel(); // the stream isn't wanted any more

    bool hasFailed() const { return m_hasFailed; }
    bool isWaiting() const { return m_timer.isActive(); }

private:
    bool m_hasFailed = false;
    QTimer m_timer;
};

} // namespace Platform
