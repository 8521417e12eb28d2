// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/DriftingMicrophone.h"

#include "tests/support/SoundRecording.h"

#include <QFile>
#include <algorithm>
#include <cmath>
#include <fcntl.h>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr double LeadSeconds = 1.0;
constexpr double BurstSeconds = 0.002;
constexpr double BurstHz = 4000.0;
constexpr double BurstDecibels = -8.0;
constexpr double ToneDecibels = -26.0;
constexpr std::size_t PieceSize = 240; // samples; as much is written whole or not at all

} // namespace

DriftingMicrophone::DriftingMicrophone(SoundServer& server, const QString& name, double speed)
    : m_samplesPerSecond(SoundRecording::Rate * speed)
{
    const QString path = m_folder.filePath(name);
    server.control({QStringLiteral("load-module"), QStringLiteral("module-pipe-source"),
                    QStringLiteral("source_name=%1").arg(name), QStringLiteral("file=%1").arg(path),
                    QStringLiteral("format=float32le"),
                    QStringLiteral("rate=%1").arg(SoundRecording::Rate),
                    QStringLiteral("channels=1")});
    // Open for reading too, it breaks for nobody when the server ends.
    m_fifo = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
}

DriftingMicrophone::~DriftingMicrophone()
{
    m_isOver = true;
    if (m_thread.joinable()) {
        m_thread.join();
    }
    if (m_fifo >= 0) {
        ::close(m_fifo);
    }
}

void DriftingMicrophone::hear(int bursts)
{
    const double seconds = LeadSeconds + (bursts + 1) * BurstSpacingSeconds;
    m_sound = tone(seconds, ToneHz, ToneDecibels);
    const std::vector<float> burst = tone(BurstSeconds, BurstHz, BurstDecibels);
    for (int i = 0; i < bursts; ++i) {
        const double at = LeadSeconds + i * BurstSpacingSeconds;
        m_bursts.push_back(static_cast<std::size_t>(at * SoundRecording::Rate));
        std::copy(burst.begin(), burst.end(),
                  m_sound.begin() + static_cast<std::ptrdiff_t>(m_bursts.back()));
    }
    m_start = Clock::now();
    m_thread = std::thread([this] { run(); });
}

std::vector<DriftingMicrophone::Clock::time_point> DriftingMicrophone::burstTimes() const
{
    std::vector<Clock::time_point> result;
    for (const std::size_t sample : m_bursts) {
        result.push_back(timeOf(sample));
    }
    return result;
}

// As a device does, it hands over what it has heard in a while.
void DriftingMicrophone::run()
{
    for (std::size_t at = 0; at < m_sound.size() && !m_isOver; at += PieceSize) {
        const std::size_t count = std::min(PieceSize, m_sound.size() - at);
        std::this_thread::sleep_until(timeOf(at + count));
        // What the server doesn't take in time is lost.
        [[maybe_unused]] const ssize_t written =
            ::write(m_fifo, m_sound.data() + at, count * sizeof(float));
    }
    m_hasHeardAll = true;
}

DriftingMicrophone::Clock::time_point DriftingMicrophone::timeOf(std::size_t sample) const
{
    return m_start + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(
                         static_cast<double>(sample) / m_samplesPerSecond));
}

} // namespace TestSupport
