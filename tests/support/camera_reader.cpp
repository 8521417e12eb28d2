// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <pipewire/pipewire.h>
#include <spa/param/video/format-utils.h>

// Another program that has a camera of the PipeWire server for itself, until it is killed:
// camera_reader CAMERA NAME. Prints the states of its stream.
namespace {

void onStateChanged(void*, pw_stream_state, pw_stream_state state, const char*)
{
    std::printf("%s\n", pw_stream_state_as_string(state));
    std::fflush(stdout);
}

void onProcess(void* data)
{
    auto* const stream = *static_cast<pw_stream**>(data);
    if (pw_buffer* const buffer = pw_stream_dequeue_buffer(stream)) {
        pw_stream_queue_buffer(stream, buffer);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fputs("usage: camera_reader CAMERA NAME\n", stderr);
        return 2;
    }
    pw_init(nullptr, nullptr);
    pw_main_loop* const mainLoop = pw_main_loop_new(nullptr);
    pw_stream_events events{};
    events.version = PW_VERSION_STREAM_EVENTS;
    events.state_changed = onStateChanged;
    events.process = onProcess;
    pw_stream* stream = nullptr;
    stream = pw_stream_new_simple(
        pw_main_loop_get_loop(mainLoop), "reader",
        pw_properties_new(PW_KEY_MEDIA_TYPE, "Video", PW_KEY_MEDIA_CATEGORY, "Capture",
                          PW_KEY_MEDIA_ROLE, "Camera", PW_KEY_TARGET_OBJECT, argv[1],
                          PW_KEY_NODE_EXCLUSIVE, "true", PW_KEY_APP_NAME, argv[2], nullptr),
        &events, &stream);
    uint8_t memory[256];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    const spa_pod* format = static_cast<const spa_pod*>(
        spa_pod_builder_add_object(&builder, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat,
                                   SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
                                   SPA_FORMAT_mediaSubtype, SPA_POD_Id(SPA_MEDIA_SUBTYPE_raw)));
    pw_stream_connect(
        stream, PW_DIRECTION_INPUT, PW_ID_ANY,
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS),
        &format, 1);
    pw_main_loop_run(mainLoop);
    return 0;
}
