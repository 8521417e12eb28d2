// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QSize>
#include <chrono>

class QImage;

namespace Platform {

// What a camera delivered between its start and its stop, as figures for the run's report.
class FrameStatistics
{
public:
    using Clock = std::chrono::steady_clock;

    // What is kept of one picture; taken from a grid of its pixels.
    struct Sample
    {
        QSize size;
        double brightness = 0.0; // 0 to 1
        quint64 print = 0;       // equal for equal pictures
    };

    static Sample sampleOf(const QImage& picture);

    void start(Clock::time_point now);
    void add(const Sample& sample, const QSize& sourceSize, Clock::time_point now);
    int pictures() const { return m_pictures; }
    // "pictures"; once there are some also "rate", "width", "height", "firstPictureMs",
    // "blackShare", "frozenShare", "brightness".
    QJsonObject figures() const;

private:
    Clock::time_point m_start;
    Clock::time_point m_first;
    Clock::time_point m_last;
    QSize m_size;
    quint64 m_lastPrint = 0;
    int m_pictures = 0;
    int m_black = 0;
    int m_frozen = 0;
    double m_brightness = 0.0;
};

} // namespace Platform
