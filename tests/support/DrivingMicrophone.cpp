// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/DrivingMicrophone.h"

#include "tests/support/SoundRecording.h"

#include <cstring>
#include <pipewire/pipewire.h>
#include <spa/param/audio/format-utils.h>

namespace TestSupport {

DrivingMicrophone::DrivingMicrophone(const QByteArray& name)
{
    pw_init(nullptr, nullptr);
    m_loop = pw_thread_loop_new("microphone", nullptr);
    connect(name);
    pw_thread_loop_start(m_loop);
}

DrivingMicrophone::~DrivingMicrophone()
{
    pw_thread_loop_stop(m_loop);
    if (m_stream != nullptr) {
        pw_stream_destroy(m_stream);
    }
    pw_thread_loop_destroy(m_loop);
    pw_deinit();
}

void DrivingMicrophone::connect(const QByteArray& name)
{
    static constexpr pw_stream_events NoEvents = {};
    pw_properties* const properties = pw_properties_new(
        PW_KEY_MEDIA_CLASS, "Audio/Source", PW_KEY_NODE_NAME, name.constData(),
        PW_KEY_NODE_DESCRIPTION, name.constData(), PW_KEY_NODE_DRIVER, "true", nullptr);
    pw_properties_setf(properties, PW_KEY_NODE_FORCE_QUANTUM, "%zu", PieceSize);
    m_stream = pw_stream_new_simple(pw_thread_loop_get_loop(m_loop), name.constData(), properties,
                                    &NoEvents, nullptr);
    if (m_stream == nullptr) {
        return;
    }
    uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    spa_audio_info_raw info{};
    info.format = SPA_AUDIO_FORMAT_F32;
    info.rate = SoundRecording::Rate;
    info.channels = 1;
    info.position[0] = SPA_AUDIO_CHANNEL_MONO;
    const spa_pod* parameters[] = {
        spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &info)};
    pw_stream_connect(
        m_stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_DRIVER | PW_STREAM_FLAG_MAP_BUFFERS),
        parameters, 1);
}

void DrivingMicrophone::hear(const float* piece)
{
    pw_thread_loop_lock(m_loop);
    // What nobody listens to is lost.
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

} // namespace TestSupport
