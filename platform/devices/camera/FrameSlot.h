// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/StallTimeout.h"
#include "platform/devices/camera/FrameStatistics.h"

#include <QImage>
#include <QJsonObject>
#include <mutex>

namespace Platform {

// Where the camera thread leaves the newest picture and the GUI thread finds it. Holds one picture;
// the newest wins. Pictures of an earlier opening (generation) are refused. Thread-safe; nobody
// waits longer than it takes to swap a pointer.
class FrameSlot
{
public:
    using Clock = StallTimeout::Clock;

    // GUI thread
    int open();   // the generation whose pictures are taken from now on
    void close(); // takes none and has none
    QImage newest() const;
    bool delivers() const;
    QJsonObject figures() const; // of the generation
    void notificationArrived();  // the next picture is worth another one

    // camera thread
    void setRate(int generation, double framesPerSecond);
    void interrupt(int generation); // no picture is left to show until the next one
    // Whether the GUI thread must be told; false while a notification is under way.
    bool put(int generation, const QImage& picture, const QSize& sourceSize);
    bool isSilent(Clock::time_point since) const; // neither a picture nor time for one

private:
    mutable std::mutex m_mutex;
    QImage m_picture;
    StallTimeout m_rule;
    FrameStatistics m_statistics;
    int m_generation = 0;
    bool m_isOpen = false;
    bool m_isNotificationUnderWay = false;
};

} // namespace Platform
