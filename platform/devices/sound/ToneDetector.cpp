// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/ToneDetector.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

constexpr double Pi = 3.14159265358979323846;

} // namespace

ToneDetector::ToneDetector(double frequency, double rate)
    : m_frequency(frequency), m_coefficient(2.0 * std::cos(2.0 * Pi * frequency / rate))
{
}

void ToneDetector::add(double sample)
{
    const double next = sample + m_coefficient * m_last - m_lastButOne;
    m_lastButOne = m_last;
    m_last = next;
    m_count += 1.0;
}

double ToneDetector::takePower()
{
    const double square =
        m_last * m_last + m_lastButOne * m_lastButOne - m_coefficient * m_last * m_lastButOne;
    const double power = m_count > 0.0 ? 2.0 * square / (m_count * m_count) : 0.0;
    m_last = 0.0;
    m_lastButOne = 0.0;
    m_count = 0.0;
    return std::max(power, 0.0);
}

} // namespace Platform
