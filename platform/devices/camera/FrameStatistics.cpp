// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameStatistics.h"

#include <QImage>

namespace Platform {

namespace {

constexpr int GridStep = 4;
constexpr double BlackBrightness = 0.06; // a lens behind its cover, with the sensor's noise
// FNV-1a, 64 bits
constexpr quint64 PrintBasis = 14695981039346656037U;
constexpr quint64 PrintPrime = 1099511628211U;

double rounded(double value)
{
    return qRound(value * 1000.0) / 1000.0;
}

double milliseconds(FrameStatistics::Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

} // namespace

FrameStatistics::Sample FrameStatistics::sampleOf(const QImage& picture)
{
    Sample result;
    result.size = picture.size();
    result.print = PrintBasis;
    qint64 sum = 0;
    qint64 count = 0;
    for (int y = 0; y < picture.height(); y += GridStep) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); x += GridStep) {
            sum += qGray(line[x]);
            ++count;
            result.print = (result.print ^ (line[x] & RGB_MASK)) * PrintPrime;
        }
    }
    if (count > 0) {
        result.brightness = double(sum) / double(count) / 255.0;
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
    if (m_pictures == 0) {
        m_first = now;
    } else if (sample.print == m_lastPrint) {
        ++m_frozen;
    }
    ++m_pictures;
    m_last = now;
    m_lastPrint = sample.print;
    m_size = sourceSize;
    m_brightness += sample.brightness;
    if (sample.brightness < BlackBrightness) {
        ++m_black;
    }
}

QJsonObject FrameStatistics::figures() const
{
    QJsonObject result{{QStringLiteral("pictures"), m_pictures}};
    if (m_pictures == 0) {
        return result;
    }
    const double span = milliseconds(m_last - m_first);
    result.insert(QStringLiteral("rate"),
                  span > 0.0 ? rounded((m_pictures - 1) * 1000.0 / span) : 0.0);
    result.insert(QStringLiteral("width"), m_size.width());
    result.insert(QStringLiteral("height"), m_size.height());
    result.insert(QStringLiteral("firstPictureMs"), qRound(milliseconds(m_first - m_start)));
    result.insert(QStringLiteral("blackShare"), rounded(double(m_black) / m_pictures));
    result.insert(QStringLiteral("frozenShare"),
                  m_pictures > 1 ? rounded(double(m_frozen) / (m_pictures - 1)) : 0.0);
    result.insert(QStringLiteral("brightness"), rounded(m_brightness / m_pictures));
    return result;
}

} // namespace Platform
