// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/GStreamerView.h"

#include <QPainter>

class GStreamerView::Canvas final : public QWidget
{
public:
    Canvas()
    {
        resize(View::Size);
        show();
    }

    void setFrame(const QImage& frame)
    {
        m_frame = frame;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!m_frame.isNull()) {
            QPainter(this).drawImage(rect(), m_frame);
            tellPainted(m_frame, false);
        }
    }

private:
    QImage m_frame;
};

std::unique_ptr<View> GStreamerView::make(const QString& kind, const QString& node, bool isJpeg)
{
    const QByteArray source = "pipewiresrc target-object=" + node.toUtf8() +
                              (isJpeg ? " ! image/jpeg ! " : " ! video/x-raw ! ");
    const QByteArray scaled = source + (isJpeg ? "jpegdec ! " : "") +
                              "videoscale ! video/x-raw,width=306,height=172 ! videoconvert ! ";
    const QByteArray appsink = "appsink name=sink sync=false max-buffers=1 drop=true";
    if (kind == QLatin1String("appsink")) {
        return std::make_unique<GStreamerView>(source + appsink, false);
    }
    if (kind == QLatin1String("widget")) {
        return std::make_unique<GStreamerView>(scaled + "video/x-raw,format=BGRx ! " + appsink,
                                               true);
    }
    if (kind == QLatin1String("fakesink")) {
        return std::make_unique<GStreamerView>(source + "fakesink sync=false", false);
    }
    if (kind == QLatin1String("ximagesink")) {
        return std::make_unique<GStreamerView>(scaled + "ximagesink sync=false", false);
    }
    return nullptr;
}

GStreamerView::GStreamerView(const QByteArray& pipeline, bool isPainted) : m_description(pipeline)
{
    gst_init(nullptr, nullptr);
    if (isPainted) {
        m_canvas = std::make_unique<Canvas>();
    }
    tellReady();
}

GStreamerView::~GStreamerView()
{
    stop();
}

void GStreamerView::go()
{
    m_pipeline = gst_parse_launch(m_description.constData(), nullptr);
    if (GstElement* const sink = gst_bin_get_by_name(GST_BIN(m_pipeline), "sink")) {
        GstAppSinkCallbacks callbacks{};
        callbacks.new_sample = &GStreamerView::onSample;
        gst_app_sink_set_callbacks(GST_APP_SINK(sink), &callbacks, this, nullptr);
        gst_object_unref(sink);
    }
    gst_element_set_state(m_pipeline, GST_STATE_PLAYING);
}

void GStreamerView::stop()
{
    if (m_pipeline) {
        gst_element_set_state(m_pipeline, GST_STATE_NULL);
        gst_object_unref(m_pipeline);
        m_pipeline = nullptr;
    }
}

GstFlowReturn GStreamerView::onSample(GstAppSink* sink, gpointer self)
{
    Canvas* const canvas = static_cast<GStreamerView*>(self)->m_canvas.get();
    GstSample* const sample = gst_app_sink_pull_sample(sink);
    if (!sample) {
        return GST_FLOW_EOS;
    }
    if (!canvas) {
        tellArrived();
    } else {
        GstBuffer* const buffer = gst_sample_get_buffer(sample);
        GstMapInfo map{};
        if (gst_buffer_map(buffer, &map, GST_MAP_READ) != FALSE) {
            const QImage frame =
                QImage(map.data, View::Size.width(), View::Size.height(), QImage::Format_RGB32)
                    .copy();
            gst_buffer_unmap(buffer, &map);
            QMetaObject::invokeMethod(
                canvas, [canvas, frame] { canvas->setFrame(frame); }, Qt::QueuedConnection);
        }
    }
    gst_sample_unref(sample);
    return GST_FLOW_OK;
}
