// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/VirtualCamera.h"

#include <cerrno>
#include <cstdio>
#include <spa/param/video/format-utils.h>
#include <sys/mman.h>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr int64_t TiledModifier = 0x0100000000000001; // the X tiling of a graphics card
const char PropertySize[] = "size ";
const char PropertyColor[] = "color ";
const char PropertyError[] = "error ";

uint32_t spaFormat(CameraPattern::PixelFormat format)
{
    switch (format) {
    case CameraPattern::Yuy2:
        return SPA_VIDEO_FORMAT_YUY2;
    case CameraPattern::Uyvy:
        return SPA_VIDEO_FORMAT_UYVY;
    case CameraPattern::Nv12:
        return SPA_VIDEO_FORMAT_NV12;
    case CameraPattern::I420:
        return SPA_VIDEO_FORMAT_I420;
    case CameraPattern::Rgb:
        return SPA_VIDEO_FORMAT_RGB;
    case CameraPattern::Bgr:
        return SPA_VIDEO_FORMAT_BGR;
    case CameraPattern::Rgbx:
        return SPA_VIDEO_FORMAT_RGBx;
    case CameraPattern::Bgrx:
        return SPA_VIDEO_FORMAT_BGRx;
    case CameraPattern::Xrgb:
        return SPA_VIDEO_FORMAT_xRGB;
    case CameraPattern::Xbgr:
        return SPA_VIDEO_FORMAT_xBGR;
    case CameraPattern::Gray8:
        return SPA_VIDEO_FORMAT_GRAY8;
    case CameraPattern::Mjpg:
        return SPA_VIDEO_FORMAT_ENCODED;
    }
    return SPA_VIDEO_FORMAT_UNKNOWN;
}

VirtualCamera* self(void* data)
{
    return static_cast<VirtualCamera*>(data);
}

long long nanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

// Shared memory that is passed as a driver's buffer, which the reader must map by itself.
void makeDriverBuffer(spa_buffer& buffer, int bytes)
{
    spa_data& block = buffer.datas[0];
    const int file = memfd_create("virtual camera", MFD_CLOEXEC);
    if (file < 0 || ftruncate(file, bytes) != 0) {
        return;
    }
    block.type = SPA_DATA_DmaBuf;
    block.flags = SPA_DATA_FLAG_READWRITE;
    block.fd = file;
    block.mapoffset = 0;
    block.maxsize = static_cast<uint32_t>(bytes);
    block.data = mmap(nullptr, block.maxsize, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
}

void freeDriverBuffer(spa_buffer& buffer)
{
    spa_data& block = buffer.datas[0];
    munmap(block.data, block.maxsize);
    close(static_cast<int>(block.fd));
}

} // namespace

const pw_stream_events VirtualCamera::Events = [] {
    pw_stream_events events{};
    events.version = PW_VERSION_STREAM_EVENTS;
    events.state_changed = [](void* data, pw_stream_state, pw_stream_state state, const char*) {
        self(data)->onStateChanged(state);
    };
    events.param_changed = [](void* data, uint32_t id, const spa_pod* parameter) {
        if (id == SPA_PARAM_Format && parameter) {
            self(data)->onFormatChanged(parameter);
        }
    };
    events.add_buffer = [](void* data, pw_buffer* buffer) {
        if (self(data)->m_options.isDriverMemory) {
            makeDriverBuffer(*buffer->buffer, self(data)->m_pattern.maxBytes());
        }
    };
    events.remove_buffer = [](void* data, pw_buffer* buffer) {
        if (self(data)->m_options.isDriverMemory) {
            freeDriverBuffer(*buffer->buffer);
        }
    };
    events.process = [](void* data) { self(data)->onProcess(); };
    return events;
}();

VirtualCamera::VirtualCamera(const Options& options, const CameraPattern& pattern)
    : m_options(options), m_pattern(pattern)
{
    pw_init(nullptr, nullptr);
    m_mainLoop = pw_main_loop_new(nullptr);
}

VirtualCamera::~VirtualCamera()
{
    if (m_stream) {
        pw_stream_destroy(m_stream);
    }
    m_device.reset();
    pw_main_loop_destroy(m_mainLoop);
    pw_deinit();
}

int VirtualCamera::run()
{
    pw_loop* const loop = pw_main_loop_get_loop(m_mainLoop);
    const auto quit = [](void* data, int) { pw_main_loop_quit(self(data)->m_mainLoop); };
    pw_loop_add_signal(loop, SIGTERM, quit, this);
    pw_loop_add_signal(loop, SIGINT, quit, this);
    pw_loop_add_io(
        loop, STDIN_FILENO, SPA_IO_IN | SPA_IO_HUP | SPA_IO_ERR, false,
        [](void* data, int, uint32_t) { self(data)->onInput(); }, this);
    m_timer = pw_loop_add_timer(
        loop,
        [](void* data, uint64_t) {
            if (!self(data)->m_options.isStalled) {
                pw_stream_trigger_process(self(data)->m_stream);
            }
        },
        this);
    if (!connect()) {
        std::fputs("virtual_camera: can't connect to the server\n", stderr);
        return 1;
    }
    pw_main_loop_run(m_mainLoop);
    return m_exitCode;
}

bool VirtualCamera::connect()
{
    pw_properties* const properties = pw_properties_new(
        PW_KEY_MEDIA_CLASS, "Video/Source", PW_KEY_NODE_NAME, m_options.name.toUtf8().constData(),
        PW_KEY_NODE_DESCRIPTION, m_options.description.toUtf8().constData(), nullptr);
    if (!m_options.role.isEmpty()) {
        pw_properties_set(properties, PW_KEY_MEDIA_ROLE, m_options.role.toUtf8().constData());
    }
    if (!m_options.busPath.isEmpty()) {
        m_device = std::make_unique<VirtualDevice>(pw_main_loop_get_loop(m_mainLoop),
                                                   m_options.busPath, m_options.capabilities);
        if (!m_device->waitUntilKnown()) {
            pw_properties_free(properties);
            return false;
        }
        pw_properties_setf(properties, PW_KEY_DEVICE_ID, "%u", m_device->id());
    }
    m_stream = pw_stream_new_simple(pw_main_loop_get_loop(m_mainLoop), "virtual camera", properties,
                                    &Events, this);
    if (!m_stream) {
        return false;
    }
    uint8_t memory[16384];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    std::vector<const spa_pod*> parameters;
    for (const Options::Mode& mode : m_options.modes) {
        m_pattern.setFormat(mode.pixelFormat, mode.size);
        m_options.rate = mode.rate;
        parameters.push_back(format(builder, SPA_PARAM_EnumFormat));
    }
    if (parameters.empty()) {
        parameters.push_back(format(builder, SPA_PARAM_EnumFormat));
    }
    const int flags =
        PW_STREAM_FLAG_DRIVER |
        (m_options.isDriverMemory ? PW_STREAM_FLAG_ALLOC_BUFFERS : PW_STREAM_FLAG_MAP_BUFFERS);
    return pw_stream_connect(m_stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
                             static_cast<pw_stream_flags>(flags), parameters.data(),
                             static_cast<uint32_t>(parameters.size())) >= 0;
}

const spa_pod* VirtualCamera::format(spa_pod_builder& builder, uint32_t parameter) const
{
    const bool isRaw = m_pattern.pixelFormat() != CameraPattern::Mjpg && !m_options.isUnreadable;
    const auto encoding = static_cast<uint32_t>(m_options.isUnreadable ? SPA_MEDIA_SUBTYPE_h264
                                                                       : SPA_MEDIA_SUBTYPE_mjpg);
    const spa_rectangle size{static_cast<uint32_t>(m_pattern.size().width()),
                             static_cast<uint32_t>(m_pattern.size().height())};
    const spa_fraction rate{static_cast<uint32_t>(m_options.rate), 1};
    spa_pod_frame frame{};
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_Format, parameter);
    spa_pod_builder_add(&builder, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
                        SPA_FORMAT_mediaSubtype,
                        SPA_POD_Id(isRaw ? uint32_t{SPA_MEDIA_SUBTYPE_raw} : encoding), 0);
    if (isRaw) {
        spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_format,
                            SPA_POD_Id(spaFormat(m_pattern.pixelFormat())), 0);
    }
    if (m_options.isForGraphics) {
        spa_pod_builder_prop(&builder, SPA_FORMAT_VIDEO_modifier, SPA_POD_PROP_FLAG_MANDATORY);
        spa_pod_builder_long(&builder, TiledModifier);
    }
    spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_size, SPA_POD_Rectangle(&size),
                        SPA_FORMAT_VIDEO_framerate, SPA_POD_Fraction(&rate), 0);
    return static_cast<const spa_pod*>(spa_pod_builder_pop(&builder, &frame));
}

void VirtualCamera::onInput()
{
    char bytes[512];
    const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0) {
        pw_main_loop_quit(m_mainLoop);
        return;
    }
    m_input.append(bytes, static_cast<int>(count));
    for (int end = m_input.indexOf('\n'); end >= 0; end = m_input.indexOf('\n')) {
        obey(m_input.left(end));
        m_input.remove(0, end + 1);
    }
}

void VirtualCamera::obey(const QByteArray& line)
{
    const auto argument = [&line](const char* command) {
        return line.startsWith(command) ? line.mid(qstrlen(command)) : QByteArray();
    };
    if (line == "stall" || line == "resume") {
        m_options.isStalled = line == "stall";
    } else if (line == "frozen" || line == "live") {
        m_isFrozen = line == "frozen";
    } else if (line == "black") {
        m_pattern.setBlack();
    } else if (line == "quit") {
        pw_main_loop_quit(m_mainLoop);
    } else if (!argument(PropertyColor).isEmpty()) {
        m_pattern.setColor(QColor(QString::fromLatin1('#' + argument(PropertyColor))));
    } else if (!argument(PropertySize).isEmpty()) {
        const QList<QByteArray> edges = argument(PropertySize).split('x');
        resize(QSize(edges.value(0).toInt(), edges.value(1).toInt()));
    } else if (!argument(PropertyError).isEmpty()) {
        pw_stream_set_error(m_stream, -argument(PropertyError).toInt(), "as told");
    } else {
        std::fprintf(stderr, "virtual_camera: unknown command '%s'\n", line.constData());
        m_exitCode = 2;
        pw_main_loop_quit(m_mainLoop);
    }
}

void VirtualCamera::onStateChanged(pw_stream_state state)
{
    const bool isStreaming = state == PW_STREAM_STATE_STREAMING;
    timespec first{0, isStreaming ? 1 : 0};
    timespec period{0, isStreaming ? 1000000000L / m_options.rate : 0};
    pw_loop_update_timer(pw_main_loop_get_loop(m_mainLoop), m_timer, &first, &period, false);
    std::printf("%s\n", pw_stream_state_as_string(state));
    std::fflush(stdout);
}

// What the reader chose.
void VirtualCamera::adopt(const spa_pod* format)
{
    spa_video_info info{};
    spa_format_parse(format, &info.media_type, &info.media_subtype);
    const bool isJpeg = info.media_subtype == SPA_MEDIA_SUBTYPE_mjpg;
    if (isJpeg) {
        spa_format_video_mjpg_parse(format, &info.info.mjpg);
    } else {
        spa_format_video_raw_parse(format, &info.info.raw);
    }
    const spa_rectangle size = isJpeg ? info.info.mjpg.size : info.info.raw.size;
    const spa_fraction rate = isJpeg ? info.info.mjpg.framerate : info.info.raw.framerate;
    for (const Options::Mode& mode : m_options.modes) {
        const bool isFormat = isJpeg ? mode.pixelFormat == CameraPattern::Mjpg
                                     : spaFormat(mode.pixelFormat) == info.info.raw.format;
        if (isFormat && mode.size == QSize(int(size.width), int(size.height)) &&
            uint32_t(mode.rate) * rate.denom == rate.num) {
            m_pattern.setFormat(mode.pixelFormat, mode.size);
            m_options.rate = mode.rate;
        }
    }
    std::printf("size %ux%u rate %u %s\n", size.width, size.height, rate.num,
                isJpeg ? "jpeg" : "raw");
    std::fflush(stdout);
}

void VirtualCamera::onFormatChanged(const spa_pod* format)
{
    if (!m_options.modes.empty()) {
        adopt(format);
    }
    uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    const int usualKind = m_options.isDriverMemory ? SPA_DATA_DmaBuf : SPA_DATA_MemFd;
    const int kind = 1 << (m_options.isRefusing ? SPA_DATA_MemId : usualKind);
    const auto meta = [&builder](uint32_t type, std::size_t size) {
        return static_cast<const spa_pod*>(spa_pod_builder_add_object(
            &builder, SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta, SPA_PARAM_META_type,
            SPA_POD_Id(type), SPA_PARAM_META_size, SPA_POD_Int(static_cast<int>(size))));
    };
    const auto* const buffers = static_cast<const spa_pod*>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers, SPA_PARAM_BUFFERS_buffers,
        SPA_POD_CHOICE_RANGE_Int(4, 2, 16), SPA_PARAM_BUFFERS_blocks, SPA_POD_Int(1),
        SPA_PARAM_BUFFERS_size, SPA_POD_Int(m_pattern.maxBytes()), SPA_PARAM_BUFFERS_stride,
        SPA_POD_Int(m_pattern.stride()), SPA_PARAM_BUFFERS_dataType,
        SPA_POD_CHOICE_FLAGS_Int(kind)));
    const spa_pod* parameters[] = {buffers, meta(SPA_META_Header, sizeof(spa_meta_header)),
                                   meta(SPA_META_VideoTransform, sizeof(spa_meta_videotransform))};
    pw_stream_update_params(m_stream, parameters, std::size(parameters));
}

void VirtualCamera::onProcess()
{
    pw_buffer* const buffer = pw_stream_dequeue_buffer(m_stream);
    if (!buffer) {
        return;
    }
    spa_data& block = buffer->buffer->datas[0];
    const QByteArray frame = m_pattern.frame(m_number);
    const auto bytes = static_cast<uint32_t>(frame.size());
    if (block.data && bytes <= block.maxsize) {
        const long long now = nanoseconds();
        memcpy(block.data, frame.constData(), bytes);
        if (m_options.isBroken) {
            memset(block.data, 'x', bytes);
        }
        block.chunk->offset = 0;
        block.chunk->size = bytes;
        block.chunk->stride = m_pattern.stride();
        if (auto* const header = static_cast<spa_meta_header*>(spa_buffer_find_meta_data(
                buffer->buffer, SPA_META_Header, sizeof(spa_meta_header)))) {
            header->pts = now;
            header->flags = 0;
            header->seq = static_cast<uint64_t>(m_number);
            header->dts_offset = 0;
        }
        if (auto* const transform = static_cast<spa_meta_videotransform*>(spa_buffer_find_meta_data(
                buffer->buffer, SPA_META_VideoTransform, sizeof(spa_meta_videotransform)))) {
            transform->transform = m_options.transform;
        }
        if (m_options.isLogged) {
            std::printf("frame %d %lld\n", m_number, now);
            std::fflush(stdout);
        }
    }
    m_number += m_isFrozen ? 0 : 1;
    pw_stream_queue_buffer(m_stream, buffer);
}

void VirtualCamera::resize(const QSize& size)
{
    m_pattern.setSize(size);
    uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    const spa_pod* parameters[] = {format(builder, SPA_PARAM_EnumFormat)};
    pw_stream_update_params(m_stream, parameters, 1);
}

} // namespace TestSupport
