// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireStream.h"

#include "platform/devices/pipewire/DriverBuffer.h"
#include "platform/devices/pipewire/StreamFormat.h"

#include <algorithm>
#include <spa/param/video/format-utils.h>

namespace Platform {

namespace {

constexpr spa_rectangle UsualSize{640, 480};
constexpr spa_rectangle SmallestSize{1, 1};
constexpr spa_rectangle LargestSize{8192, 8192};
constexpr spa_fraction UsualRate{30, 1};
constexpr spa_fraction LowestRate{0, 1};
constexpr spa_fraction HighestRate{240, 1};
constexpr int BufferCount = 4;
constexpr int FewestBuffers = 2;
constexpr int MostBuffers = 16;

void addFormats(spa_pod_builder& builder, const std::vector<uint32_t>& formats)
{
    spa_pod_builder_prop(&builder, SPA_FORMAT_VIDEO_format, 0);
    spa_pod_frame choice{};
    spa_pod_builder_push_choice(&builder, &choice, SPA_CHOICE_Enum, 0);
    spa_pod_builder_id(&builder, formats.front()); // a choice starts with its default
    for (const uint32_t format : formats) {
        spa_pod_builder_id(&builder, format);
    }
    spa_pod_builder_pop(&builder, &choice);
}

void beginOffer(spa_pod_builder& builder, spa_pod_frame& frame, uint32_t mediaSubtype)
{
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat);
    spa_pod_builder_add(&builder, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
                        SPA_FORMAT_mediaSubtype, SPA_POD_Id(mediaSubtype), 0);
}

const spa_pod* offerOfAll(spa_pod_builder& builder, uint32_t mediaSubtype)
{
    spa_pod_frame frame{};
    beginOffer(builder, frame, mediaSubtype);
    if (mediaSubtype == SPA_MEDIA_SUBTYPE_raw) {
        addFormats(builder, readableFormats());
    }
    spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_size,
                        SPA_POD_CHOICE_RANGE_Rectangle(&UsualSize, &SmallestSize, &LargestSize),
                        SPA_FORMAT_VIDEO_framerate,
                        SPA_POD_CHOICE_RANGE_Fraction(&UsualRate, &LowestRate, &HighestRate), 0);
    return static_cast<const spa_pod*>(spa_pod_builder_pop(&builder, &frame));
}

const spa_pod* offerOf(spa_pod_builder& builder, const CameraMode& mode)
{
    const bool isRaw = mode.pixelFormat != PixelFormat::Mjpg;
    const spa_rectangle size{static_cast<uint32_t>(mode.size.width()),
                             static_cast<uint32_t>(mode.size.height())};
    const spa_fraction rate{static_cast<uint32_t>(mode.rate.numerator),
                            static_cast<uint32_t>(mode.rate.denominator)};
    spa_pod_frame frame{};
    beginOffer(builder, frame,
               isRaw ? uint32_t{SPA_MEDIA_SUBTYPE_raw} : uint32_t{SPA_MEDIA_SUBTYPE_mjpg});
    if (isRaw) {
        addFormats(builder, formatsOf(mode.pixelFormat));
    }
    spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_size, SPA_POD_Rectangle(&size), 0);
    if (rate.num > 0) {
        spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_framerate, SPA_POD_Fraction(&rate), 0);
    } else {
        spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_framerate,
                            SPA_POD_CHOICE_RANGE_Fraction(&UsualRate, &LowestRate, &HighestRate),
                            0);
    }
    return static_cast<const spa_pod*>(spa_pod_builder_pop(&builder, &frame));
}

YuvColor colorOf(const spa_video_info_raw& info)
{
    const bool isFull = info.color_range == SPA_VIDEO_COLOR_RANGE_0_255;
    if (info.color_matrix == SPA_VIDEO_COLOR_MATRIX_BT709) {
        return isFull ? YuvColor::Bt709Full : YuvColor::Bt709;
    }
    return isFull ? YuvColor::Bt601Full : YuvColor::Bt601;
}

double rateOf(const spa_fraction& rate, const spa_fraction& highest)
{
    const spa_fraction& agreed = rate.num > 0 ? rate : highest; // 0: the rate varies
    return agreed.denom > 0 ? double(agreed.num) / agreed.denom : 0.0;
}

QSize frameSizeOf(const spa_rectangle& size)
{
    const uint32_t limit = LargestSize.width;
    return {static_cast<int>(std::min(size.width, limit)),
            static_cast<int>(std::min(size.height, limit))};
}

FrameOrientation orientationOf(const spa_buffer& buffer)
{
    const auto* const transform =
        static_cast<const spa_meta_videotransform*>(spa_buffer_find_meta_data(
            &buffer, SPA_META_VideoTransform, sizeof(spa_meta_videotransform)));
    if (!transform || transform->transform > SPA_META_TRANSFORMATION_Flipped270) {
        return {};
    }
    return {static_cast<int>(transform->transform % 4),
            transform->transform >= SPA_META_TRANSFORMATION_Flipped};
}

bool isCorrupted(const spa_buffer& buffer)
{
    const auto* const header = static_cast<const spa_meta_header*>(
        spa_buffer_find_meta_data(&buffer, SPA_META_Header, sizeof(spa_meta_header)));
    return header && (header->flags & SPA_META_HEADER_FLAG_CORRUPTED) != 0;
}

// Never more than the block holds: the sender may claim too much.
FrameView::Plane planeOf(const spa_data& block)
{
    if (!block.data || !block.chunk || (block.chunk->flags & SPA_CHUNK_FLAG_CORRUPTED) != 0) {
        return {};
    }
    const uint32_t offset = std::min(block.chunk->offset, block.maxsize);
    const uint32_t size = std::min(block.chunk->size, block.maxsize - offset);
    return {static_cast<const uchar*>(block.data) + offset, size, block.chunk->stride};
}

} // namespace

const pw_stream_events PipeWireStream::Events = [] {
    pw_stream_events events{};
    events.version = PW_VERSION_STREAM_EVENTS;
    events.state_changed = [](void* data, pw_stream_state, pw_stream_state state,
                              const char* error) {
        static_cast<PipeWireStream*>(data)->onStateChanged(state, error);
    };
    events.param_changed = [](void* data, uint32_t id, const spa_pod* parameter) {
        if (id == SPA_PARAM_Format && parameter) {
            static_cast<PipeWireStream*>(data)->onFormatChanged(parameter);
        }
    };
    events.add_buffer = [](void*, pw_buffer* buffer) { DriverBuffer::map(*buffer); };
    events.remove_buffer = [](void*, pw_buffer* buffer) { DriverBuffer::unmap(*buffer); };
    events.process = [](void* data) { static_cast<PipeWireStream*>(data)->onProcess(); };
    return events;
}();

const pw_core_events PipeWireStream::CoreEvents = [] {
    pw_core_events events{};
    events.version = PW_VERSION_CORE_EVENTS;
    events.error = [](void* data, uint32_t, int, int result, const char*) {
        static_cast<PipeWireStream*>(data)->onServerError(result);
    };
    return events;
}();

PipeWireStream::PipeWireStream(pw_context* context, const QString& serial,
                               const std::optional<CameraMode>& preferred, Listener& listener)
    : m_listener(listener),
      m_core(pw_context_connect(context, nullptr, 0)),
      m_errorTimer(pw_context_get_main_loop(context), [this] { m_listener.streamEnded(m_error); })
{
    if (!m_core) {
        return;
    }
    pw_core_add_listener(m_core, &m_coreHook, &CoreEvents, this);
    pw_properties* const properties =
        pw_properties_new(PW_KEY_MEDIA_TYPE, "Video", PW_KEY_MEDIA_CATEGORY, "Capture",
                          PW_KEY_MEDIA_ROLE, "Camera", PW_KEY_TARGET_OBJECT,
                          serial.toUtf8().constData(), PW_KEY_NODE_DONT_RECONNECT, "true", nullptr);
    m_stream = pw_stream_new(m_core, "camera check", properties);
    if (m_stream) {
        pw_stream_add_listener(m_stream, &m_hook, &Events, this);
        connectTo(preferred);
    }
}

PipeWireStream::~PipeWireStream()
{
    if (m_stream) {
        pw_stream_disconnect(m_stream); // calls remove_buffer, so we must still listen
        spa_hook_remove(&m_hook);
        pw_stream_destroy(m_stream);
    }
    if (m_core) {
        spa_hook_remove(&m_coreHook);
        pw_core_disconnect(m_core); // now, so that the loop reads no late answers
    }
}

quint32 PipeWireStream::nodeId() const
{
    return m_stream ? pw_stream_get_node_id(m_stream) : PW_ID_ANY;
}

// The server takes the first offer that the camera can keep.
void PipeWireStream::connectTo(const std::optional<CameraMode>& preferred)
{
    uint8_t memory[4096];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    std::vector<const spa_pod*> offers;
    if (preferred) {
        offers.push_back(offerOf(builder, *preferred));
    }
    offers.push_back(offerOfAll(builder, SPA_MEDIA_SUBTYPE_raw));
    offers.push_back(offerOfAll(builder, SPA_MEDIA_SUBTYPE_mjpg));
    pw_stream_connect(
        m_stream, PW_DIRECTION_INPUT, PW_ID_ANY,
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS),
        offers.data(), static_cast<uint32_t>(offers.size()));
}

void PipeWireStream::onServerError(int result)
{
    if (m_errorTimer.isActive()) {
        m_error.number = -result;
    }
}

void PipeWireStream::onStateChanged(pw_stream_state state, const char* error)
{
    switch (state) {
    case PW_STREAM_STATE_STREAMING:
        m_listener.streamRuns();
        break;
    case PW_STREAM_STATE_ERROR:
        m_error = ServerError(error);
        m_errorTimer.startOnce({}); // the number comes in the next event
        break;
    case PW_STREAM_STATE_UNCONNECTED:
        if (m_wasConnecting) {
            m_listener.streamEnded(ServerError(error));
        }
        break;
    case PW_STREAM_STATE_CONNECTING:
    case PW_STREAM_STATE_PAUSED:
        m_wasConnecting = true;
        break;
    }
}

void PipeWireStream::onFormatChanged(const spa_pod* format)
{
    m_format = FrameFormat();
    spa_video_info info{};
    if (spa_format_parse(format, &info.media_type, &info.media_subtype) < 0) {
        return;
    }
    if (info.media_subtype == SPA_MEDIA_SUBTYPE_mjpg) {
        spa_format_video_mjpg_parse(format, &info.info.mjpg);
        m_format.pixelFormat = PixelFormat::Mjpg;
        m_format.size = frameSizeOf(info.info.mjpg.size);
        m_listener.rateAgreed(rateOf(info.info.mjpg.framerate, info.info.mjpg.max_framerate));
    } else if (info.media_subtype == SPA_MEDIA_SUBTYPE_raw) {
        spa_format_video_raw_parse(format, &info.info.raw);
        m_format.pixelFormat = pixelFormatOf(info.info.raw.format);
        m_format.color = colorOf(info.info.raw);
        m_format.size = frameSizeOf(info.info.raw.size);
        m_listener.rateAgreed(rateOf(info.info.raw.framerate, info.info.raw.max_framerate));
    }
    uint8_t memory[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    constexpr int Kinds = (1 << SPA_DATA_MemFd) | (1 << SPA_DATA_MemPtr) | (1 << SPA_DATA_DmaBuf);
    const auto meta = [&builder](uint32_t type, std::size_t size) {
        return static_cast<const spa_pod*>(spa_pod_builder_add_object(
            &builder, SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta, SPA_PARAM_META_type,
            SPA_POD_Id(type), SPA_PARAM_META_size, SPA_POD_Int(static_cast<int>(size))));
    };
    const auto* const buffers = static_cast<const spa_pod*>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers, SPA_PARAM_BUFFERS_buffers,
        SPA_POD_CHOICE_RANGE_Int(BufferCount, FewestBuffers, MostBuffers),
        SPA_PARAM_BUFFERS_dataType, SPA_POD_CHOICE_FLAGS_Int(Kinds)));
    const spa_pod* parameters[] = {buffers, meta(SPA_META_Header, sizeof(spa_meta_header)),
                                   meta(SPA_META_VideoTransform, sizeof(spa_meta_videotransform))};
    pw_stream_update_params(m_stream, parameters, std::size(parameters));
}

// Takes the newest frame and gives older ones back.
void PipeWireStream::onProcess()
{
    pw_buffer* newest = nullptr;
    while (pw_buffer* const buffer = pw_stream_dequeue_buffer(m_stream)) {
        if (newest) {
            pw_stream_queue_buffer(m_stream, newest);
        }
        newest = buffer;
    }
    if (newest) {
        deliver(*newest->buffer);
        pw_stream_queue_buffer(m_stream, newest);
    }
}

void PipeWireStream::deliver(const spa_buffer& buffer)
{
    if (m_format.pixelFormat == PixelFormat::None || isCorrupted(buffer)) {
        return;
    }
    FrameView view;
    view.planeCount = static_cast<int>(std::min<std::size_t>(buffer.n_datas, view.planes.size()));
    for (std::size_t i = 0; i < static_cast<std::size_t>(view.planeCount); ++i) {
        view.planes[i] = planeOf(buffer.datas[i]);
    }
    // Without data, the memory can't be mapped: whoever converts the frame must know.
    if (view.planeCount > 0 && (view.planes[0].size > 0 || !buffer.datas[0].data)) {
        const DriverBuffer::Reading reading(buffer);
        m_listener.frameReceived(m_format, view, orientationOf(buffer));
    }
}

} // namespace Platform
