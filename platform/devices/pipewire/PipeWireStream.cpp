// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireStream.h"

#include "platform/devices/pipewire/StreamFormat.h"

#include <algorithm>
#include <spa/param/video/format-utils.h>
#include <sys/mman.h>

namespace Platform {

namespace {

constexpr spa_rectangle SmallestSize{1, 1};
constexpr spa_rectangle LargestSize{8192, 8192};
constexpr spa_fraction UsualRate{30, 1};
constexpr spa_fraction LowestRate{0, 1};
constexpr spa_fraction HighestRate{240, 1};
constexpr int BufferCount = 4;
constexpr int FewestBuffers = 2;
constexpr int MostBuffers = 16;

void addFormats(spa_pod_builder& builder)
{
    spa_pod_builder_prop(&builder, SPA_FORMAT_VIDEO_format, 0);
    spa_pod_frame choice{};
    spa_pod_builder_push_choice(&builder, &choice, SPA_CHOICE_Enum, 0);
    const std::vector<uint32_t>& formats = readableFormats();
    spa_pod_builder_id(&builder, formats.front()); // the default comes first
    for (const uint32_t format : formats) {
        spa_pod_builder_id(&builder, format);
    }
    spa_pod_builder_pop(&builder, &choice);
}

const spa_pod* offer(spa_pod_builder& builder, uint32_t mediaSubtype, const spa_rectangle& wished)
{
    spa_pod_frame frame{};
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat);
    spa_pod_builder_add(&builder, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
                        SPA_FORMAT_mediaSubtype, SPA_POD_Id(mediaSubtype), 0);
    if (mediaSubtype == SPA_MEDIA_SUBTYPE_raw) {
        addFormats(builder);
    }
    spa_pod_builder_add(&builder, SPA_FORMAT_VIDEO_size,
                        SPA_POD_CHOICE_RANGE_Rectangle(&wished, &SmallestSize, &LargestSize),
                        SPA_FORMAT_VIDEO_framerate,
                        SPA_POD_CHOICE_RANGE_Fraction(&UsualRate, &LowestRate, &HighestRate), 0);
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
    const spa_fraction& agreed = rate.num > 0 ? rate : highest; // 0: a varying rate
    return agreed.denom > 0 ? double(agreed.num) / agreed.denom : 0.0;
}

QSize sizeOf(const spa_rectangle& size)
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
    if (transform == nullptr || transform->transform > SPA_META_TRANSFORMATION_Flipped270) {
        return {};
    }
    return {static_cast<int>(transform->transform % 4),
            transform->transform >= SPA_META_TRANSFORMATION_Flipped};
}

bool isCorrupted(const spa_buffer& buffer)
{
    const auto* const header = static_cast<const spa_meta_header*>(
        spa_buffer_find_meta_data(&buffer, SPA_META_Header, sizeof(spa_meta_header)));
    return header != nullptr && (header->flags & SPA_META_HEADER_FLAG_CORRUPTED) != 0;
}

// What may be read of a block, whatever its sender claims.
FrameView::Plane planeOf(const spa_data& block)
{
    if (block.data == nullptr || block.chunk == nullptr || block.chunk->stride < 0 ||
        (block.chunk->flags & SPA_CHUNK_FLAG_CORRUPTED) != 0) {
        return {};
    }
    const uint32_t offset = std::min(block.chunk->offset, block.maxsize);
    const uint32_t size = std::min(block.chunk->size, block.maxsize - offset);
    return {static_cast<const uchar*>(block.data) + offset, size, block.chunk->stride};
}

// A kernel driver's buffers aren't mapped by the stream.
void mapDriverBuffers(pw_buffer* buffer)
{
    for (uint32_t i = 0; i < buffer->buffer->n_datas; ++i) {
        spa_data& block = buffer->buffer->datas[i];
        if (block.type == SPA_DATA_DmaBuf && block.data == nullptr) {
            void* const memory =
                mmap(nullptr, block.maxsize, PROT_READ, MAP_SHARED, static_cast<int>(block.fd),
                     static_cast<off_t>(block.mapoffset));
            block.data = memory == MAP_FAILED ? nullptr : memory;
        }
    }
}

void unmapDriverBuffers(pw_buffer* buffer)
{
    for (uint32_t i = 0; i < buffer->buffer->n_datas; ++i) {
        spa_data& block = buffer->buffer->datas[i];
        if (block.type == SPA_DATA_DmaBuf && block.data != nullptr) {
            munmap(block.data, block.maxsize);
            block.data = nullptr;
        }
    }
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
        if (id == SPA_PARAM_Format && parameter != nullptr) {
            static_cast<PipeWireStream*>(data)->onFormatChanged(parameter);
        }
    };
    events.add_buffer = [](void*, pw_buffer* buffer) { mapDriverBuffers(buffer); };
    events.remove_buffer = [](void*, pw_buffer* buffer) { unmapDriverBuffers(buffer); };
    events.process = [](void* data) { static_cast<PipeWireStream*>(data)->onProcess(); };
    return events;
}();

PipeWireStream::PipeWireStream(pw_context* context, const QString& serial, const QSize& wishedSize,
                               Listener& listener)
    : m_listener(listener), m_core(pw_context_connect(context, nullptr, 0))
{
    if (m_core == nullptr) {
        return;
    }
    pw_properties* const properties =
        pw_properties_new(PW_KEY_MEDIA_TYPE, "Video", PW_KEY_MEDIA_CATEGORY, "Capture",
                          PW_KEY_MEDIA_ROLE, "Camera", PW_KEY_TARGET_OBJECT,
                          serial.toUtf8().constData(), PW_KEY_NODE_DONT_RECONNECT, "true", nullptr);
    m_stream = pw_stream_new(m_core, "camera check", properties);
    if (m_stream != nullptr) {
        pw_stream_add_listener(m_stream, &m_hook, &Events, this);
        connectTo(wishedSize);
    }
}

PipeWireStream::~PipeWireStream()
{
    if (m_stream != nullptr) {
        pw_stream_disconnect(m_stream); // takes the buffers back while we still listen
        spa_hook_remove(&m_hook);
        pw_stream_destroy(m_stream);
    }
    if (m_core != nullptr) {
        pw_core_disconnect(m_core); // before the loop reads on
    }
}

quint32 PipeWireStream::nodeId() const
{
    return m_stream == nullptr ? PW_ID_ANY : pw_stream_get_node_id(m_stream);
}

void PipeWireStream::connectTo(const QSize& wishedSize)
{
    uint8_t memory[2048];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(memory, sizeof memory);
    const spa_rectangle wished{static_cast<uint32_t>(wishedSize.width()),
                               static_cast<uint32_t>(wishedSize.height())};
    const spa_pod* offers[] = {offer(builder, SPA_MEDIA_SUBTYPE_raw, wished),
                               offer(builder, SPA_MEDIA_SUBTYPE_mjpg, wished)};
    pw_stream_connect(
        m_stream, PW_DIRECTION_INPUT, PW_ID_ANY,
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS),
        offers, std::size(offers));
}

void PipeWireStream::onStateChanged(pw_stream_state state, const char* error)
{
    switch (state) {
    case PW_STREAM_STATE_STREAMING:
        m_listener.streamRuns();
        break;
    case PW_STREAM_STATE_ERROR:
        m_listener.streamEnded(QString::fromUtf8(error));
        break;
    case PW_STREAM_STATE_UNCONNECTED:
        if (m_wasConnecting) {
            m_listener.streamEnded(QString::fromUtf8(error));
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
    m_format = PixelFormat();
    spa_video_info info{};
    if (spa_format_parse(format, &info.media_type, &info.media_subtype) < 0) {
        return;
    }
    if (info.media_subtype == SPA_MEDIA_SUBTYPE_mjpg) {
        spa_format_video_mjpg_parse(format, &info.info.mjpg);
        m_format.layout = PixelLayout::Mjpg;
        m_format.size = sizeOf(info.info.mjpg.size);
        m_listener.rateAgreed(rateOf(info.info.mjpg.framerate, info.info.mjpg.max_framerate));
    } else if (info.media_subtype == SPA_MEDIA_SUBTYPE_raw) {
        spa_format_video_raw_parse(format, &info.info.raw);
        m_format.layout = layoutOf(info.info.raw.format);
        m_format.color = colorOf(info.info.raw);
        m_format.size = sizeOf(info.info.raw.size);
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
    const spa_pod* wishes[] = {buffers, meta(SPA_META_Header, sizeof(spa_meta_header)),
                               meta(SPA_META_VideoTransform, sizeof(spa_meta_videotransform))};
    pw_stream_update_params(m_stream, wishes, std::size(wishes));
}

// Older pictures go back unseen.
void PipeWireStream::onProcess()
{
    pw_buffer* newest = nullptr;
    while (pw_buffer* const buffer = pw_stream_dequeue_buffer(m_stream)) {
        if (newest != nullptr) {
            pw_stream_queue_buffer(m_stream, newest);
        }
        newest = buffer;
    }
    if (newest != nullptr) {
        deliver(*newest->buffer);
        pw_stream_queue_buffer(m_stream, newest);
    }
}

void PipeWireStream::deliver(const spa_buffer& buffer)
{
    if (m_format.layout == PixelLayout::None || isCorrupted(buffer)) {
        return;
    }
    FrameView view;
    view.planeCount = static_cast<int>(std::min<std::size_t>(buffer.n_datas, view.planes.size()));
    for (std::size_t i = 0; i < static_cast<std::size_t>(view.planeCount); ++i) {
        view.planes[i] = planeOf(buffer.datas[i]);
    }
    if (view.planeCount > 0 && view.planes[0].size > 0) {
        m_listener.frameReceived(m_format, view, orientationOf(buffer));
    }
}

} // namespace Platform
