// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameStatistics.h"

#include <QImage>

namespace Platform {

namespace {

constexpr int GridStep = 4;
constexpr double BlackBrightness = 0.06; // a covered lens: some noise of the sensor is left
// FNV-1a, 64 bits
constexpr quint64 HashBasis = 14695981039346656037U;
constexpr quint64 HashPrime = 1099511628211U;

double rounded(double value)
{
    return qRound(value * 1000.0) / 1000.0;
}

double milliseconds(FrameStatistics::Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

} // namespace

FrameStatistics::Sample FrameStatistics::sampleOf(const QImage& frame)
{
    Sample result;
    result.size = frame.size();
    result.hash = HashBasis;
    qint64 sum = 0;
    qint64 count = 0;
    for (int y = 0; y < frame.height(); y += GridStep) {
        const auto* line = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
        for (int x = 0; x < frame.width(); x += GridStep) {
            sum += qGray(line[x]);
            ++count;
            result.hash = (result.hash ^ (line[x] & RGB_MASK)) * HashPrime;
        }
    }
    if (count > 0) {
        result.brightness = double(sum) / double(count) / 255.0;
        result.isBlack = result.brightness < BlackBrightness;
    }
    return result;
}

void FrameStatistics::start(Clock::time_point now)
{
    *this = FrameStatistics();
    m_start = now;
}

void FrameStatistics::add(const Sample& sample, const QSize& sourceSize, Clock::time_point now)
{
    if (m_frames == 0) {
        m_first = now;
    } else if (sample.hash == m_lastHash) {
        ++m_frozen;
    }
    ++m_frames;
    m_rate.add(milliseconds(now - m_start) / 1000.0);
    m_last = now;
    m_lastHash = sample.hash;
    m_size = sourceSize;
    m_brightness += sample.brightness;
    if (sample.isBlack) {
        ++m_black;
    }
}

QJsonObject FrameStatistics::figures() const
{
    QJsonObject result{{QStringLiteral("pictures"), m_frames}};
    if (m_frames == 0) {
        return result;
    }
    const double span = milliseconds(m_last - m_first);
    result.insert(QStringLiteral("rate"),
                  span > 0.0 ? rounded((m_frames - 1) * 1000.0 / span) : 0.0);
    result.insert(QStringLiteral("width"), m_size.width());
    result.insert(QStringLiteral("height"), m_size.height());
    result.insert(QStringLiteral("firstPictureMs"), qRound(milliseconds(m_first - m_start)));
    result.insert(QStringLiteral("blackShare"), rounded(double(m_black) / m_frames));
    result.insert(QStringLiteral("frozenShare"),
                  m_frames > 1 ? rounded(double(m_frozen) / (m_frames - 1)) : 0.0);
    result.insert(QStringLiteral("brightness"), rounded(m_brightness / m_frames));
    if (!m_rate.series().isEmpty()) {
        result.insert(QLatin1String(SeriesKeys::Rate), m_rate.series().toJson());
    }
    return result;
}

} // namespace Platform
