// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundRecording.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>

namespace TestSupport {

namespace {

constexpr int StartTimeoutMs = 5000;
constexpr int EndTimeoutMs = 30000;

QStringList rawFormat(const QString& device, int channels)
{
    return {QStringLiteral("--raw"),
            QStringLiteral("--device=%1").arg(device),
            QStringLiteral("--format=float32le"),
            QStringLiteral("--rate=%1").arg(SoundRecording::Rate),
            QStringLiteral("--channels=%1").arg(channels),
            QStringLiteral("--latency-msec=20")};
}

} // namespace

SoundRecording::SoundRecording(const QString& device, const QString& channelMap)
    : m_channels(channelMap.isEmpty() ? 2 : channelMap.count(QLatin1Char(',')) + 1)
{
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process,
                     [this] { take(); });
    QStringList arguments = rawFormat(device, m_channels);
    // Otherwise a recording of the default device moves when PipeWire's default changes.
    arguments += QStringLiteral("--property=node.dont-reconnect=true");
    if (!channelMap.isEmpty()) {
        arguments += QStringLiteral("--channel-map=%1").arg(channelMap);
        arguments += QStringLiteral("--no-remix");
    }
    m_process.start(QStringLiteral("parec"), arguments);
}

SoundRecording::~SoundRecording()
{
    stop();
}

bool SoundRecording::waitForStart()
{
    return QTest::qWaitFor([this] { return !m_data.isEmpty(); }, StartTimeoutMs);
}

std::vector<float> SoundRecording::samples(int channel) const
{
    const std::size_t frameSize = static_cast<std::size_t>(m_channels) * sizeof(float);
    const std::size_t frames = static_cast<std::size_t>(m_data.size()) / frameSize;
    std::vector<float> result(frames);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        std::memcpy(&result[frame],
                    m_data.constData() + frame * frameSize +
                        static_cast<std::size_t>(channel) * sizeof(float),
                    sizeof(float));
    }
    return result;
}

std::vector<float> SoundRecording::samples() const
{
    std::vector<float> result = samples(0);
    for (int channel = 1; channel < m_channels; ++channel) {
        const std::vector<float> other = samples(channel);
        std::transform(result.begin(), result.end(), other.begin(), result.begin(),
                       std::plus<float>());
    }
    for (float& sample : result) {
        sample /= static_cast<float>(m_channels);
    }
    return result;
}

float SoundRecording::peak(std::size_t from) const
{
    const std::vector<float> all = samples();
    float result = 0.0F;
    for (std::size_t i = from; i < all.size(); ++i) {
        result = std::max(result, std::abs(all[i]));
    }
    return result;
}

double SoundRecording::seconds() const
{
    const int frameSize = m_channels * static_cast<int>(sizeof(float));
    return static_cast<double>(m_data.size() / frameSize) / Rate;
}

void SoundRecording::forget()
{
    m_start = std::chrono::steady_clock::time_point::max();
    // The last frame may have arrived only in part; the rest of it is still to come.
    m_data = m_data.right(m_data.size() % (m_channels * static_cast<int>(sizeof(float))));
}

void SoundRecording::stop()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

// Data may arrive late but never early, so the earliest estimate is the best one.
void SoundRecording::take()
{
    const std::chrono::duration<double> before(seconds());
    m_start = std::min(m_start,
                       std::chrono::steady_clock::now() -
                           std::chrono::duration_cast<std::chrono::steady_clock::duration>(before));
    m_data += m_process.readAllStandardOutput();
}

SoundSource::SoundSource(const QString& device, const std::vector<float>& samples)
    : m_lengthMs(static_cast<int>(samples.size() * 1000 / SoundRecording::Rate))
{
    m_process.start(QStringLiteral("pacat"), rawFormat(device, 1));
    m_process.write(reinterpret_cast<const char*>(samples.data()),
                    static_cast<qint64>(samples.size() * sizeof(float)));
    m_process.closeWriteChannel();
}

SoundSource::~SoundSource()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool SoundSource::waitForEnd()
{
    return QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; },
                           m_lengthMs + EndTimeoutMs);
}

std::vector<float> soundFile(const QString& path)
{
    QProcess decoder;
    decoder.start(QStringLiteral("ffmpeg"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path,
                   QStringLiteral("-f"), QStringLiteral("f32le"), QStringLiteral("-ac"),
                   QStringLiteral("1"), QStringLiteral("-ar"),
                   QString::number(SoundRecording::Rate), QStringLiteral("-")});
    decoder.waitForFinished(EndTimeoutMs);
    const QByteArray data = decoder.readAllStandardOutput();
    if (data.isEmpty()) {
        qWarning("%s can't be read: %s", qUtf8Printable(path),
                 decoder.readAllStandardError().constData());
    }
    std::vector<float> result(static_cast<std::size_t>(data.size()) / sizeof(float));
    std::memcpy(result.data(), data.constData(), result.size() * sizeof(float));
    return result;
}

std::vector<float> speech(const QString& text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("speech.wav"));
    QProcess::execute(QStringLiteral("espeak-ng"), {QStringLiteral("-w"), path, text});
    return soundFile(path);
}

} // namespace TestSupport
