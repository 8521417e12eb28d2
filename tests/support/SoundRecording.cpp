// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundRecording.h"

#include "platform/devices/sound/SoundMath.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <numeric>

namespace TestSupport {

namespace {

constexpr int StartTimeoutMs = 5000;
constexpr int EndTimeoutMs = 30000;
// A quarter of the rate is enough to tell sounds apart, and tolerates half a sample of delay.
constexpr std::size_t Decimation = 4;
constexpr std::ptrdiff_t SearchedDelay = SoundRecording::Rate / Decimation / 30;
constexpr float OnsetThreshold = 0.01F;
// A short stretch of a sound gives its delay nearly to the sample, for a fraction of the work.
// There are several stretches, because the delay changes at each tear.
constexpr std::ptrdiff_t Stretches = 4;
constexpr std::ptrdiff_t StretchLength = SoundRecording::Rate / Decimation / 4;
constexpr std::ptrdiff_t DelayError = 2;

std::vector<float> decimated(const std::vector<float>& samples)
{
    std::vector<float> result(samples.size() / Decimation);
    for (std::size_t i = 0; i < result.size(); ++i) {
        for (std::size_t k = 0; k < Decimation; ++k) {
            result[i] += samples[Decimation * i + k] / static_cast<float>(Decimation);
        }
    }
    return result;
}

// The energy of all samples before each sample; at the end, of all samples.
std::vector<double> runningEnergy(const std::vector<float>& samples)
{
    std::vector<double> result(samples.size() + 1);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto sample = static_cast<double>(samples[i]);
        result[i + 1] = result[i] + sample * sample;
    }
    return result;
}

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

std::vector<float> silence(double seconds)
{
    return std::vector<float>(static_cast<std::size_t>(seconds * SoundRecording::Rate));
}

std::vector<float> tone(double seconds, double frequency, double decibels)
{
    std::vector<float> result = silence(seconds);
    const double amplitude = Platform::amplitudeOfDecibels(decibels);
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] = static_cast<float>(
            amplitude * std::sin(2.0 * Platform::Pi * frequency * static_cast<double>(i) /
                                 static_cast<double>(SoundRecording::Rate)));
    }
    return result;
}

double rms(const std::vector<float>& samples, std::size_t from, std::size_t count)
{
    double sum = 0.0;
    const std::size_t end = std::min(samples.size(), from + count);
    for (std::size_t i = from; i < end; ++i) {
        sum += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
    }
    return end > from ? std::sqrt(sum / static_cast<double>(end - from)) : 0.0;
}

double correlation(const std::vector<float>& recording, const std::vector<float>& sound)
{
    const std::vector<float> hay = decimated(recording);
    const std::vector<float> needle = decimated(sound);
    const std::vector<double> hayEnergy = runningEnergy(hay);
    const std::vector<double> needleEnergy = runningEnergy(needle);
    const auto hayEnd = static_cast<std::ptrdiff_t>(hay.size());
    const auto needleEnd = static_cast<std::ptrdiff_t>(needle.size());
    const auto between = [](const std::vector<double>& energy, std::ptrdiff_t from,
                            std::ptrdiff_t to) {
        return energy[static_cast<std::size_t>(to)] - energy[static_cast<std::size_t>(from)];
    };
    const auto alike = [&](std::ptrdiff_t delay, std::ptrdiff_t from, std::ptrdiff_t to) {
        // Before and after the recording there is silence.
        const std::ptrdiff_t begin = std::clamp(-delay, from, to);
        const std::ptrdiff_t end = std::clamp(hayEnd - delay, begin, to);
        if (begin == end) {
            return 0.0;
        }
        const double product = std::inner_product(needle.begin() + begin, needle.begin() + end,
                                                  hay.begin() + (begin + delay), 0.0);
        const double energies = std::sqrt(between(needleEnergy, from, to) *
                                          between(hayEnergy, begin + delay, end + delay));
        return energies > 0.0 ? product / energies : 0.0;
    };
    const auto onset = static_cast<std::ptrdiff_t>(firstAbove(needle, OnsetThreshold));
    const auto offset = static_cast<std::ptrdiff_t>(firstAbove(hay, OnsetThreshold)) - onset;
    double best = 0.0;
    for (std::ptrdiff_t stretch = 0; stretch < Stretches; ++stretch) {
        const std::ptrdiff_t from = onset + stretch * (needleEnd - onset) / Stretches;
        const std::ptrdiff_t to = std::min(from + StretchLength, needleEnd);
        std::ptrdiff_t likeliest = offset;
        double likeness = 0.0;
        for (std::ptrdiff_t delay = offset - SearchedDelay; delay <= offset + SearchedDelay;
             ++delay) {
            const double value = alike(delay, from, to);
            if (value > likeness) {
                likeness = value;
                likeliest = delay;
            }
        }
        for (std::ptrdiff_t delay = likeliest - DelayError; delay <= likeliest + DelayError;
             ++delay) {
            best = std::max(best, alike(delay, 0, needleEnd));
        }
    }
    return best;
}

double loudnessCorrelation(const std::vector<float>& recording, const std::vector<float>& sound)
{
    constexpr std::size_t Moment = SoundRecording::Rate / 50;
    const auto loudness = [](const std::vector<float>& samples) {
        std::vector<double> result;
        for (std::size_t from = 0; from + Moment <= samples.size(); from += Moment) {
            result.push_back(rms(samples, from, Moment));
        }
        return result;
    };
    const std::vector<double> hay = loudness(recording);
    const std::vector<double> needle = loudness(sound);
    double best = 0.0;
    for (std::size_t from = 0; from + needle.size() <= hay.size(); ++from) {
        const auto first = hay.begin() + static_cast<std::ptrdiff_t>(from);
        const auto last = first + static_cast<std::ptrdiff_t>(needle.size());
        const double product = std::inner_product(first, last, needle.begin(), 0.0);
        const double energies =
            std::sqrt(std::inner_product(first, last, first, 0.0) *
                      std::inner_product(needle.begin(), needle.end(), needle.begin(), 0.0));
        best = std::max(best, energies > 0.0 ? product / energies : 0.0);
    }
    return best;
}

std::size_t firstAbove(const std::vector<float>& samples, float threshold, std::size_t from)
{
    for (std::size_t i = from; i < samples.size(); ++i) {
        if (std::abs(samples[i]) > threshold) {
            return i;
        }
    }
    return samples.size();
}

} // namespace TestSupport
