// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/RateSeries.h"

#include <QJsonObject>
#include <QSize>
#include <chrono>

class QImage;

namespace Platform {

// What a camera sent between start and stop, as figures for the report.
class FrameStatistics
{
public:
    using Clock = std::chrono::steady_clock;

    // What we keep of one frame; from a grid of its pixels.
    struct Sample
    {
        QSize size;
        double brightness = 0.0; // 0 to 1
        bool isBlack = false;    // covered or in the dark
        quint64 hash = 0;        // to tell whether two frames are equal
    };

    static Sample sampleOf(const QImage& frame);

    void start(Clock::time_point now);
    void add(const Sample& sample, const QSize& sourceSize, Clock::time_point now);
    int frames() const { return m_frames; }
    // In the words of the report: "pictures"; if there are any also "rate", "width", "height",
    // "firstPictureMs", "blackShare", "frozenShare", "brightness", and after a second
    // "rateOverTime".
    QJsonObject figures() const;

private:
    Clock::time_point m_start;
    Clock::time_point m_first;
    Clock::time_point m_last;
    QSize m_size;
    quint64 m_lastHash = 0;
    int m_frames = 0;
    int m_black = 0;
    int m_frozen = 0;
    double m_brightness = 0.0;
    RateSeries m_rate;
};

} // namespace Platform
