// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundRecording.h"

#include <QObject>
#ifndef Q_OS_WIN
#include <QProcess>
#include <QTemporaryDir>
#endif
#include <QTest>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>

namespace TestSupport {

namespace {

constexpr int StartTimeoutMs = 5000;
constexpr int EndTimeoutMs = 30000;
#ifdef Q_OS_WIN
constexpr int PlayingMs = 200; // Wine keeps the machine busy, and a sound mustn't tear
#else
constexpr int PlayingMs = 20;
#endif

QStringList rawFormat(const QString& device, int channels, int latencyMs)
{
    return {QStringLiteral("--server=") + qEnvironmentVariable("PULSE_SERVER"),
            QStringLiteral("--raw"),
            QStringLiteral("--device=%1").arg(device),
            QStringLiteral("--format=float32le"),
            QStringLiteral("--rate=%1").arg(SoundRecording::Rate),
            QStringLiteral("--channels=%1").arg(channels),
            QStringLiteral("--latency-msec=%1").arg(latencyMs)};
}

QByteArray rawBytes(const std::vector<float>& samples)
{
    return {reinterpret_cast<const char*>(samples.data()),
            static_cast<int>(samples.size() * sizeof(float))};
}

std::vector<float> decoded(const QStringList& input)
{
    SoundTool decoder;
    decoder.start(QStringLiteral("ffmpeg"),
                  QStringList{QStringLiteral("-v"), QStringLiteral("error")} + input +
                      QStringList{QStringLiteral("-f"), QStringLiteral("f32le"),
                                  QStringLiteral("-ac"), QStringLiteral("1"), QStringLiteral("-ar"),
                                  QString::number(SoundRecording::Rate), QStringLiteral("-")});
    decoder.waitForEnd(EndTimeoutMs);
    const QByteArray data = decoder.output().readAll();
    if (data.isEmpty()) {
        qWarning("%s can't be decoded", qUtf8Printable(input.join(QLatin1Char(' '))));
    }
    std::vector<float> result(static_cast<std::size_t>(data.size()) / sizeof(float));
    std::memcpy(result.data(), data.constData(), result.size() * sizeof(float));
    return result;
}

} // namespace

SoundRecording::SoundRecording(const QString& device, const QString& channelMap, int pieceMs)
    : m_channels(channelMap.isEmpty() ? 2 : channelMap.count(QLatin1Char(',')) + 1)
{
    QStringList arguments = rawFormat(device, m_channels, pieceMs);
    // Otherwise a recording of the default device moves when PipeWire's default changes.
    arguments += QStringLiteral("--property=node.dont-reconnect=true");
    if (!channelMap.isEmpty()) {
        arguments += QStringLiteral("--channel-map=%1").arg(channelMap);
        arguments += QStringLiteral("--no-remix");
    }
    m_recorder.start(QStringLiteral("parec"), arguments);
    QObject::connect(&m_recorder.output(), &QIODevice::readyRead, &m_recorder.output(),
                     [this] { take(); });
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
    m_recorder.kill();
}

// Data may arrive late but never early, so the earliest estimate is the best one.
void SoundRecording::take()
{
    const std::chrono::duration<double> before(seconds());
    m_start = std::min(m_start,
                       std::chrono::steady_clock::now() -
                           std::chrono::duration_cast<std::chrono::steady_clock::duration>(before));
    m_data += m_recorder.output().readAll();
}

SoundSource::SoundSource(const QString& device, const std::vector<float>& samples)
    : m_lengthMs(static_cast<int>(samples.size() * 1000 / SoundRecording::Rate))
{
    m_player.start(QStringLiteral("pacat"), rawFormat(device, 1, PlayingMs), rawBytes(samples));
}

bool SoundSource::waitForEnd()
{
    return m_player.waitForEnd(m_lengthMs + EndTimeoutMs);
}

std::vector<float> soundFile(const QString& path)
{
#ifdef Q_OS_WIN
    // As the system below knows it: Wine shows its files on drive Z.
    const bool isOnZ = path.startsWith(QLatin1String("Z:"), Qt::CaseInsensitive);
    return decoded({QStringLiteral("-i"), isOnZ ? path.mid(2) : path});
#else
    return decoded({QStringLiteral("-i"), path});
#endif
}

#ifdef Q_OS_WIN
// The helper's programs share no folder with this one, so the decoder speaks itself.
std::vector<float> speech(const QString& text)
{
    return decoded({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                    QStringLiteral("flite=text='%1'").arg(text)});
}
#else
std::vector<float> speech(const QString& text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("speech.wav"));
    QProcess::execute(QStringLiteral("espeak-ng"), {QStringLiteral("-w"), path, text});
    return soundFile(path);
}
#endif

} // namespace TestSupport
