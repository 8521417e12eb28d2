// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/StallTimeout.h"
#include "platform/devices/camera/FrameStatistics.h"

#include <QImage>
#include <QJsonObject>
#include <QString>
#include <functional>
#include <mutex>
#include <optional>

namespace Platform {

// Where the camera thread leaves the newest frame and the GUI thread finds it. Holds one frame: a
// new one replaces it. Frames of an earlier opening (generation) are refused. Thread-safe; nobody
// waits longer than it takes to swap a pointer.
class FrameSlot
{
public:
    using Clock = StallTimeout::Clock;

    explicit FrameSlot(std::function<Clock::time_point()> now = &Clock::now);

    // GUI thread
    int open();   // the generation whose frames are taken from now on
    void close(); // takes no frames and has none
    QImage newest() const;
    bool delivers() const;
    bool hasStalled() const;     // this stream sent frames, and sends none any more
    bool isBlack() const;        // all frames have been black for some time
    QJsonObject figures() const; // of the generation
    void notificationArrived();  // the next frame may notify again
    // Interruptions keep the frame: the next stream goes on with this generation.
    void setHeld(bool isHeld);

    // camera thread
    void setModes(int generation, const QString& text); // for the figures
    void setRate(int generation, double framesPerSecond);
    void expectFrames(int generation); // the stream runs: silence counts from now on
    void interrupt(int generation);    // drops the frame, because the stream ended
    // Whether the GUI thread must be notified; false while a notification is on its way.
    bool put(int generation, const QImage& frame, const QSize& sourceSize);
    bool isSilent() const; // frames are expected, and for the stall timeout none came

private:
    void forgetFrames();
    bool takes(int generation) const { return m_isOpen && generation == m_generation; }

    const std::function<Clock::time_point()> m_now;
    mutable std::mutex m_mutex;
    QImage m_frame;
    StallTimeout m_timeout;
    std::optional<Clock::time_point> m_expectedSince;
    std::optional<Clock::time_point> m_blackSince;
    bool m_isBlack = false;
    FrameStatistics m_statistics;
    QString m_modes;
    int m_generation = 0;
    bool m_isOpen = false;
    bool m_isHeld = false;
    bool m_isNotificationUnderWay = false;
};

} // namespace Platform
