// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/V4l2Stream.h"

#include "platform/devices/camera/DeviceFileUser.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/v4l2/CapsModes.h"

#include <cerrno>
#include <gst/app/gstappsink.h>
#include <gst/video/video.h>
#include <initializer_list>
#include <mutex>
#include <optional>

namespace Platform {

namespace {

const QString NoFormat = QStringLiteral("The camera offers no format that can be shown");
constexpr GstClockTime PollPeriod = 50 * GST_MSECOND;
constexpr QSize UsualPreview(306, 172); // until the preview says its size
constexpr const char* ReadableCaps =
    "video/x-raw, format=(string){ YUY2, UYVY, NV12, I420, RGB, BGR, RGBx, BGRx, xRGB, xBGR }; "
    "image/jpeg";

template <typename Object>
struct Unref
{
    void operator()(Object* object) const { gst_object_unref(object); }
};
using Element = std::unique_ptr<GstElement, Unref<GstElement>>;
using Bus = std::unique_ptr<GstBus, Unref<GstBus>>;

struct UnrefCaps
{
    void operator()(GstCaps* caps) const { gst_caps_unref(caps); }
};
using Caps = std::unique_ptr<GstCaps, UnrefCaps>;

YuvColor colorOf(const GstVideoColorimetry& colorimetry)
{
    const bool isFull = colorimetry.range == GST_VIDEO_COLOR_RANGE_0_255;
    if (colorimetry.matrix == GST_VIDEO_COLOR_MATRIX_BT709) {
        return isFull ? YuvColor::Bt709Full : YuvColor::Bt709;
    }
    return isFull ? YuvColor::Bt601Full : YuvColor::Bt601;
}

// GStreamer quotes the system's error text, which may be in any language.
bool says(const QString& text, std::initializer_list<int> reasons)
{
    return std::any_of(reasons.begin(), reasons.end(), [&text](int reason) {
        return text.contains(QString::fromUtf8(g_strerror(reason)));
    });
}

DeviceState stateOf(const GError& error, const QString& text)
{
    const auto is = [&error](GstResourceError code) {
        return g_error_matches(&error, GST_RESOURCE_ERROR, code) != 0;
    };
    if (is(GST_RESOURCE_ERROR_BUSY) || says(text, {EBUSY})) {
        return DeviceState::Busy;
    }
    if (is(GST_RESOURCE_ERROR_NOT_AUTHORIZED) || says(text, {EACCES, EPERM})) {
        return DeviceState::Denied;
    }
    return DeviceState::Failed;
}

bool isGStreamerReady()
{
    static std::once_flag once;
    static bool isReady = false;
    std::call_once(once, [] {
        isReady = gst_init_check(nullptr, nullptr, nullptr) != 0;
        g_thread_pool_set_max_unused_threads(
            0); // unused threads would outlive their streams for 15 s
    });
    return isReady;
}

Element kept(GstElement* element)
{
    return Element(element ? GST_ELEMENT(gst_object_ref_sink(element)) : nullptr);
}

Element makeSink()
{
    Element sink = kept(gst_element_factory_make("appsink", nullptr));
    if (sink) {
        GstCaps* const caps = gst_caps_from_string(ReadableCaps);
        g_object_set(sink.get(), "caps", caps, "max-buffers", 1U, "drop", TRUE, "sync", FALSE,
                     nullptr);
        gst_caps_unref(caps);
    }
    return sink;
}

// What of the camera's formats can be shown. A driver's formats are known only once it is open.
Caps offeredTo(GstElement* sink)
{
    GstPad* const pad = gst_element_get_static_pad(sink, "sink");
    const Caps readable(gst_caps_from_string(ReadableCaps));
    Caps result(gst_pad_peer_query_caps(pad, readable.get()));
    gst_object_unref(pad);
    return result;
}

bool canAgree(GstElement* sink)
{
    return gst_caps_is_empty(offeredTo(sink).get()) == 0;
}

void limitTo(GstElement* sink, const CameraMode& mode)
{
    const Caps caps(CapsModes::capsOf(mode));
    g_object_set(sink, "caps", caps.get(), nullptr);
}

FrameView::Plane planeOf(const GstVideoFrame& frame, guint index)
{
    // Without meta data on the planes, all planes are in the first mapping.
    const GstMapInfo& map = frame.map[frame.meta ? index : 0];
    const auto* const data = static_cast<const uchar*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, index));
    return {data, static_cast<std::size_t>(map.data + map.size - data),
            GST_VIDEO_FRAME_PLANE_STRIDE(&frame, index)};
}

} // namespace

V4l2Stream::V4l2Stream(const V4l2Parts& parts, const QString& path, int generation,
                       std::shared_ptr<FrameSlot> slot, std::shared_ptr<CameraFeed::Listener> feed,
                       Mailbox::Sender sender, Listener& listener)
    : m_parts(parts),
      m_path(path),
      m_generation(generation),
      m_slot(std::move(slot)),
      m_feed(std::move(feed)),
      m_sender(std::move(sender)),
      m_listener(listener),
      m_outputSize(QSize())
{
    setObjectName(QStringLiteral("v4l2 stream"));
}

V4l2Stream::~V4l2Stream() = default;

void V4l2Stream::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
}

void V4l2Stream::run()
{
    if (isGStreamerReady()) {
        tell([](Listener& listener) { listener.streamOpens(); });
        open();
    } else {
        fail(QStringLiteral("GStreamer can't be initialized"));
    }
}

void V4l2Stream::open()
{
    const Element source = kept(m_parts.makeSource(m_path));
    const Element sink = makeSink();
    if (!source || !sink) {
        fail(QStringLiteral("GStreamer has no v4l2src or no appsink: install "
                            "gstreamer1.0-plugins-good and -base"));
        return;
    }
    const Element pipeline = kept(gst_pipeline_new(nullptr));
    gst_bin_add_many(GST_BIN(pipeline.get()), source.get(), sink.get(), nullptr);
    if (gst_element_link(source.get(), sink.get()) == 0) {
        fail(NoFormat, DeviceState::Unreadable);
        return;
    }
    play(pipeline.get(), sink.get());
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
}

void V4l2Stream::fail(const QString& text, DeviceState state)
{
    const QString program = state == DeviceState::Busy ? DeviceFileUser::nameOf(m_path) : QString();
    tell(
        [text, state, program](Listener& listener) { listener.streamEnded(state, text, program); });
}

template <typename Function>
void V4l2Stream::tell(Function function)
{
    m_sender.post([function, listener = &m_listener] { function(*listener); });
}

std::optional<V4l2Stream::Failure> V4l2Stream::failureOn(GstBus* bus)
{
    GstMessage* const message =
        gst_bus_pop_filtered(bus, static_cast<GstMessageType>(GST_MESSAGE_ERROR | GST_MESSAGE_EOS));
    if (!message) {
        return std::nullopt;
    }
    Failure result{DeviceState::Failed, QStringLiteral("The camera sends no more frames")};
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR) {
        GError* error = nullptr;
        gchar* details = nullptr;
        gst_message_parse_error(message, &error, &details);
        result.text = QString::fromUtf8(error->message) + QLatin1Char(' ') +
                      QString::fromUtf8(details).simplified();
        result.state = stateOf(*error, result.text);
        g_error_free(error);
        g_free(details);
    }
    gst_message_unref(message);
    return result;
}

// Opens the driver, asks what it offers, and starts it with the best mode for the preview.
std::optional<V4l2Stream::Failure> V4l2Stream::startPipeline(GstElement* pipeline, GstElement* sink,
                                                             GstBus* bus)
{
    const auto reach = [&](GstState state) {
        return isInterruptionRequested() ||
               gst_element_set_state(pipeline, state) != GST_STATE_CHANGE_FAILURE;
    };
    bool isReached = reach(GST_STATE_READY);
    if (isReached) {
        m_modes = CapsModes::modesOf(offeredTo(sink).get());
        m_slot->setModes(m_generation, m_modes.text());
        m_mode = bestMode();
        if (m_mode) {
            limitTo(sink, *m_mode);
        }
        isReached = reach(GST_STATE_PLAYING);
    }
    if (isReached) {
        return std::nullopt;
    }
    return failureOn(bus).value_or(
        Failure{DeviceState::Failed, QStringLiteral("The camera doesn't start")});
}

// Not every driver keeps what it offers.
void V4l2Stream::startWithAnyMode(GstElement* pipeline, GstElement* sink)
{
    m_modes = CameraModes();
    m_mode.reset();
    gst_element_set_state(pipeline, GST_STATE_READY);
    const Caps caps(gst_caps_from_string(ReadableCaps));
    g_object_set(sink, "caps", caps.get(), nullptr);
    gst_element_set_state(pipeline, GST_STATE_PLAYING);
}

std::optional<CameraMode> V4l2Stream::bestMode() const
{
    const QSize preview = m_outputSize;
    return m_modes.forPreview(preview.isEmpty() ? UsualPreview : preview);
}

void V4l2Stream::play(GstElement* pipeline, GstElement* sink)
{
    const Bus bus(gst_element_get_bus(pipeline));
    if (isInterruptionRequested()) {
        return;
    }
    if (const std::optional<Failure> failure = startPipeline(pipeline, sink, bus.get())) {
        fail(failure->text, failure->state);
        return;
    }
    tell([](Listener& listener) { listener.streamRuns(); });
    while (!isInterruptionRequested()) {
        if (bestMode() != m_mode) { // the preview is on a sharper screen now
            gst_element_set_state(pipeline, GST_STATE_READY);
            m_mode = bestMode();
            limitTo(sink, *m_mode);
            gst_element_set_state(pipeline, GST_STATE_PLAYING);
        }
        GstSample* const sample = gst_app_sink_try_pull_sample(GST_APP_SINK(sink), PollPeriod);
        if (sample) {
            deliver(sample);
            gst_sample_unref(sample);
        }
        if (const std::optional<Failure> failure = failureOn(bus.get())) {
            if (failure->state == DeviceState::Failed && m_mode && !m_hasFrame) {
                startWithAnyMode(pipeline, sink);
                continue;
            }
            const bool isUnreadable = failure->state == DeviceState::Failed && !canAgree(sink);
            fail(isUnreadable ? NoFormat : failure->text,
                 isUnreadable ? DeviceState::Unreadable : failure->state);
            return;
        }
    }
}

void V4l2Stream::deliver(GstSample* sample)
{
    GstCaps* const caps = gst_sample_get_caps(sample);
    GstBuffer* const buffer = gst_sample_get_buffer(sample);
    if (!caps || !buffer) {
        return;
    }
    GstVideoInfo info;
    gst_video_info_init(&info);
    if (gst_video_info_from_caps(&info, caps) == 0) {
        return;
    }
    FrameFormat format{PixelFormat::Mjpg, colorOf(info.colorimetry),
                       QSize(GST_VIDEO_INFO_WIDTH(&info), GST_VIDEO_INFO_HEIGHT(&info))};
    FrameView view;
    QImage image;
    if (GST_VIDEO_INFO_FORMAT(&info) == GST_VIDEO_FORMAT_ENCODED) {
        GstMapInfo map;
        if (gst_buffer_map(buffer, &map, GST_MAP_READ) != 0) {
            view.planeCount = 1;
            view.planes[0] = {map.data, map.size, 0};
            image = m_converter.convert(format, view, {}, m_outputSize);
            gst_buffer_unmap(buffer, &map);
        }
    } else {
        GstVideoFrame frame;
        if (gst_video_frame_map(&frame, &info, buffer, GST_MAP_READ) != 0) {
            format.pixelFormat =
                CapsModes::pixelFormatOf(gst_video_format_to_string(GST_VIDEO_INFO_FORMAT(&info)));
            view.planeCount = static_cast<int>(GST_VIDEO_FRAME_N_PLANES(&frame));
            for (guint i = 0; i < GST_VIDEO_FRAME_N_PLANES(&frame) && i < view.planes.size(); ++i) {
                view.planes[i] = planeOf(frame, i);
            }
            image = m_converter.convert(format, view, {}, m_outputSize);
            gst_video_frame_unmap(&frame);
        }
    }
    if (image.isNull() && m_converter.hasGivenUp()) {
        tell([problem = m_converter.problem()](Listener& listener) {
            listener.framesUnreadable(problem);
        });
    }
    if (image.isNull() || isInterruptionRequested()) {
        return;
    }
    if (!m_hasFrame) {
        m_hasFrame = true;
        const int rate = GST_VIDEO_INFO_FPS_N(&info);
        m_slot->setRate(m_generation, double(rate) / std::max(GST_VIDEO_INFO_FPS_D(&info), 1));
        tell([](Listener& listener) { listener.firstFrameArrived(); });
    }
    if (m_slot->put(m_generation, image, format.size)) {
        m_feed->frameArrived();
    }
}

} // namespace Platform
