// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/DriftingMicrophone.h"

#include "tests/support/RealTimePriority.h"
#include "tests/support/SoundRecording.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <pipewire/pipewire.h>
#include <spa/param/audio/format-utils.h>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr double LeadSeconds = 1.0;
constexpr double BurstSeconds = 0.002;
constexpr double BurstHz = 4000.0;
constexpr double BurstDecibels = -8.0;
constexpr double ToneDecibels = -26.0;

// PulseAudio's module reads the sound from a FIFO.
class PulseAudioFeed final : public DriftingMicrophone::Feed
{
public:
    PulseAudioFeed(SoundServer& server, const QString& name)
    {
        const QString path = m_folder.filePath(name);
        server.control({QStringLiteral("load-module"), QStringLiteral("module-pipe-source"),
                        QStringLiteral("source_name=%1").arg(name),
                        QStringLiteral("file=%1").arg(path), QStringLiteral("format=float32le"),
                        QStringLiteral("rate=%1").arg(SoundRecording::Rate),
                        QStringLiteral("channels=1")});
        // Open for reading too: otherwise writing fails when the server ends.
        m_fifo = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    }

    ~PulseAudioFeed() override
    {
        if (m_fifo >= 0) {
            ::close(m_fifo);
        }
    }

    PulseAudioFeed(const PulseAudioFeed&) = delete;
    PulseAudioFeed& operator=(const PulseAudioFeed&) = delete;

    bool isPlugged() const override { return m_fifo >= 0; }

    void write(const float* piece) override
    {
        // A piece is written whole or not at all. If the server doesn't read in time, it is lost.
        [[maybe_unused]] const ssize_t written = ::write(m_fifo, piece, PieceSize * sizeof(float));
    }

private:
    QTemporaryDir m_folder;
    int m_fifo = -1;
};

// A stream of PipeWire that drives the graph: each piece starts one cycle of all who record it.
class PipeWireFeed final : public DriftingMicrophone::Feed
{
public:
    explicit PipeWireFeed(const QByteArray& name)
    {
        pw_init(nullptr, nullptr);
        m_loop = pw_thread_loop_new("microphone", nullptr);
        connect(name);
        pw_thread_loop_start(m_loop);
    }

    ~PipeWireFeed() override
    {
        pw_thread_loop_stop(m_loop);
        if (m_stream) {
            pw_stream_destroy(m_stream);
        }
        pw_thread_loop_destroy(m_loop);
        pw_deinit();
    }

    PipeWireFeed(const PipeWireFeed&) = delete;
    PipeWireFeed& operator=(const PipeWireFeed&) = delete;

    bool isPlugged() const override { return m_stream; }

    void write(const float* piece) override
    {
        pw_thread_loop_lock(m_loop);
        // If nobody records, the piece is lost.
        if (pw_stream_is_driving(m_stream)) {
            if (pw_buffer* const buffer = pw_stream_dequeue_buffer(m_stream)) {
                spa_data& block = buffer->buffer->datas[0];
                constexpr std::size_t Size = PieceSize * sizeof(float);
                std::memcpy(block.data, piece, Size);
                block.chunk->offset = 0;
                block.chunk->stride = sizeof(float);
                block.chunk->size = Size;
                pw_stream_queue_buffer(m_stream, buffer);
            }
            pw_stream_trigger_process(m_stream);
        }
        pw_thread_loop_unlock(m_loop);
    }

private:
    void connect(const QByteArray& name)
    {
        static constexpr pw_stream_events NoEvents = {};
        pw_properties* const properties = pw_properties_new(
            PW_KEY_MEDIA_CLASS, "Audio/Source", PW_KEY_NODE_NAME, name.constData(),
            PW_KEY_NODE_DESCRIPTION, name.constData(), PW_KEY_NODE_DRIVER, "true", nullptr);
        pw_properties_setf(properties, PW_KEY_NODE_FORCE_QUANTUM, "%zu", PieceSize);
        m_stream = pw_stream_new_simple(pw_thread_loop_get_loop(m_loop), name.constData(),
                                        properties, &NoEvents, nullptr);
        if (!m_stream) {
            return;
        }
        std::array<std::uint8_t, 1024> memory{};
        spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory.data(), memory.size());
        spa_audio_info_raw info{};
        info.format = SPA_AUDIO_FORMAT_F32;
        info.rate = SoundRecording::Rate;
        info.channels = 1;
        info.position[0] = SPA_AUDIO_CHANNEL_MONO;
        const spa_pod* parameter =
            spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &info);
        pw_stream_connect(
            m_stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
            static_cast<pw_stream_flags>(PW_STREAM_FLAG_DRIVER | PW_STREAM_FLAG_MAP_BUFFERS),
            &parameter, 1);
    }

    pw_thread_loop* m_loop;
    pw_stream* m_stream = nullptr;
};

} // namespace

DriftingMicrophone::DriftingMicrophone(SoundServer& server, const QString& name, double speed)
    : m_samplesPerSecond(SoundRecording::Rate * speed)
{
    if (server.kind() == SoundServer::Kind::PulseAudio) {
        m_feed = std::make_unique<PulseAudioFeed>(server, name);
    } else {
        m_feed = std::make_unique<PipeWireFeed>(name.toUtf8());
    }
}

DriftingMicrophone::~DriftingMicrophone()
{
    m_isStopping = true;
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

bool DriftingMicrophone::isPlugged() const
{
    return m_feed->isPlugged();
}

void DriftingMicrophone::record(int bursts)
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

// Like a real device, it delivers a piece when the last sample of it was recorded.
void DriftingMicrophone::run()
{
    giveThisThreadRealTimePriority();
    constexpr std::size_t Size = Feed::PieceSize;
    for (std::size_t at = 0; at + Size <= m_sound.size() && !m_isStopping; at += Size) {
        std::this_thread::sleep_until(timeOf(at + Size));
        m_feed->write(m_sound.data() + at);
    }
    m_hasRecordedAll = true;
}

DriftingMicrophone::Clock::time_point DriftingMicrophone::timeOf(std::size_t sample) const
{
    return m_start + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(
                         static_cast<double>(sample) / m_samplesPerSecond));
}

} // namespace TestSupport
