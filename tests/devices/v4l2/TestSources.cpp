// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/v4l2/TestSources.h"

#include <atomic>

namespace TestSupport {

namespace {

std::atomic_int alive = 0;

} // namespace

GstElement* makeElement(const QByteArray& description)
{
    GstElement* const result =
        gst_parse_bin_from_description(description.constData(), TRUE, nullptr);
    ++alive;
    g_object_weak_ref(
        G_OBJECT(result), [](gpointer, GObject*) { --alive; }, nullptr);
    return result;
}

GstElement* makeFailingElement(GstResourceError code, const QByteArray& details)
{
    struct Reason
    {
        GstResourceError code;
        QByteArray details;
    };
    GstElement* const result = makeElement(Bars);
    GstPad* const pad = gst_element_get_static_pad(result, "src");
    gst_pad_add_probe(
        pad, GST_PAD_PROBE_TYPE_BUFFER,
        [](GstPad* at, GstPadProbeInfo*, gpointer data) {
            const auto* reason = static_cast<const Reason*>(data);
            GstElement* const element = gst_pad_get_parent_element(at);
            gst_element_message_full(element, GST_MESSAGE_ERROR, GST_RESOURCE_ERROR, reason->code,
                                     nullptr, g_strdup(reason->details.constData()), __FILE__,
                                     Q_FUNC_INFO, __LINE__);
            gst_object_unref(element);
            return GST_PAD_PROBE_DROP;
        },
        new Reason{code, details}, [](gpointer data) { delete static_cast<Reason*>(data); });
    gst_object_unref(pad);
    return result;
}

GstElement* makeElementWithBrokenStart(int brokenFrames)
{
    GstElement* const result = makeElement(Bars + " ! jpegenc");
    GstPad* const pad = gst_element_get_static_pad(result, "src");
    gst_pad_add_probe(
        pad, GST_PAD_PROBE_TYPE_BUFFER,
        [](GstPad*, GstPadProbeInfo* info, gpointer data) {
            constexpr gssize BytesLeft = 10;
            auto* broken = static_cast<int*>(data);
            if (*broken == 0) {
                return GST_PAD_PROBE_REMOVE;
            }
            --*broken;
            GstBuffer* const buffer = gst_buffer_make_writable(GST_PAD_PROBE_INFO_BUFFER(info));
            gst_buffer_resize(buffer, 0, BytesLeft);
            info->data = buffer;
            return GST_PAD_PROBE_OK;
        },
        new int(brokenFrames), [](gpointer data) { delete static_cast<int*>(data); });
    gst_object_unref(pad);
    return result;
}

int sourcesAlive()
{
    return alive;
}

} // namespace TestSupport
