// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/View.h"

#include <QWidget>
#include <gst/app/gstappsink.h>
#include <memory>

// A plain pipeline from the camera into a sink. With the sink "widget" each frame is scaled and
// converted on the way, passed to a widget and painted there.
class GStreamerView final : public View
{
public:
    static std::unique_ptr<View> make(const QString& kind, const QString& node,
                                      bool isJpeg); // null: no such

    explicit GStreamerView(const QByteArray& pipeline, bool isPainted);
    ~GStreamerView() override;

    void go() override;
    void stop() override;

private:
    class Canvas;

    static GstFlowReturn onSample(GstAppSink* sink, gpointer self);

    QByteArray m_description;
    std::unique_ptr<Canvas> m_canvas;
    GstElement* m_pipeline = nullptr;
};
