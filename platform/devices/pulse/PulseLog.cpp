// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseLog.h"

#include "platform/backend/Log.h"

#include <array>
#include <pulse/sample.h>

namespace Platform {

namespace {

QByteArray textOf(const pa_sample_spec& format)
{
    std::array<char, PA_SAMPLE_SPEC_SNPRINT_MAX> text{};
    pa_sample_spec_snprint(text.data(), text.size(), &format);
    return text.data();
}

} // namespace

void PulseLog::formatOf(pa_stream& stream, SoundKind kind)
{
    const bool isSpeaker = kind == SoundKind::Speaker;
    const pa_buffer_attr* buffer = pa_stream_get_buffer_attr(&stream);
    if (buffer) {
        qCInfo(Log::devices, "A %s is opened with %s, in pieces of %u bytes",
               isSpeaker ? "speaker" : "microphone",
               textOf(*pa_stream_get_sample_spec(&stream)).constData(),
               isSpeaker ? buffer->tlength : buffer->fragsize);
    }
}

void PulseLog::server(const pa_server_info& info, QByteArray& lastTime)
{
    const QByteArray text =
        QByteArray(info.server_name) + ' ' + info.server_version + ", " + textOf(info.sample_spec);
    if (text != lastTime) {
        lastTime = text;
        qCInfo(Log::devices, "The sound server is %s", text.constData());
    }
}

} // namespace Platform
