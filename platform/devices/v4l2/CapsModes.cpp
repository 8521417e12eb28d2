// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/CapsModes.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace Platform {

namespace {

using Offer = CameraModes::Offer;

constexpr const char* RawMedia = "video/x-raw";
constexpr const char* JpegMedia = "image/jpeg";

struct NamedFormat
{
    const char* name;
    PixelFormat pixelFormat;
};

constexpr NamedFormat NamedFormats[] = {
    {"YUY2", PixelFormat::Yuy2}, {"UYVY", PixelFormat::Uyvy}, {"NV12", PixelFormat::Nv12},
    {"I420", PixelFormat::I420}, {"RGB", PixelFormat::Rgb},   {"BGR", PixelFormat::Bgr},
    {"RGBx", PixelFormat::Rgbx}, {"BGRx", PixelFormat::Bgrx}, {"xRGB", PixelFormat::Xrgb},
    {"xBGR", PixelFormat::Xbgr},
};

// A single value, or each one of a list.
template <typename Function>
void forEach(const GValue* value, Function function)
{
    if (!value) {
        return;
    }
    if (!GST_VALUE_HOLDS_LIST(value)) {
        function(value);
        return;
    }
    const guint count =
        std::min<guint>(gst_value_list_get_size(value), static_cast<guint>(CameraModes::MaxOffers));
    for (guint i = 0; i < count; ++i) {
        function(gst_value_list_get_value(value, i));
    }
}

struct Edge
{
    int smallest = 0;
    int largest = 0;
    int step = 1;
};

std::vector<Edge> edgesOf(const GstStructure* structure, const char* field)
{
    std::vector<Edge> result;
    forEach(gst_structure_get_value(structure, field), [&result](const GValue* value) {
        if (G_VALUE_HOLDS_INT(value)) {
            result.push_back({g_value_get_int(value), g_value_get_int(value), 1});
        } else if (GST_VALUE_HOLDS_INT_RANGE(value)) {
            result.push_back({gst_value_get_int_range_min(value),
                              gst_value_get_int_range_max(value),
                              gst_value_get_int_range_step(value)});
        }
    });
    return result;
}

FrameRate rateOf(const GValue* fraction)
{
    return {gst_value_get_fraction_numerator(fraction),
            gst_value_get_fraction_denominator(fraction)};
}

std::vector<PixelFormat> pixelFormatsOf(const GstStructure* structure)
{
    if (gst_structure_has_name(structure, JpegMedia) != 0) {
        return {PixelFormat::Mjpg};
    }
    std::vector<PixelFormat> result;
    if (gst_structure_has_name(structure, RawMedia) != 0) {
        forEach(gst_structure_get_value(structure, "format"), [&result](const GValue* value) {
            if (G_VALUE_HOLDS_STRING(value)) {
                result.push_back(CapsModes::pixelFormatOf(g_value_get_string(value)));
            }
        });
    }
    return result;
}

void addRates(const GValue* rates, Offer offer, CameraModes& modes)
{
    forEach(rates, [&](const GValue* value) {
        if (GST_VALUE_HOLDS_FRACTION(value)) {
            offer.lowest = rateOf(value);
            offer.highest = offer.lowest;
            modes.add(offer);
        } else if (GST_VALUE_HOLDS_FRACTION_RANGE(value)) {
            offer.lowest = rateOf(gst_value_get_fraction_range_min(value));
            offer.highest = rateOf(gst_value_get_fraction_range_max(value));
            modes.add(offer);
        }
    });
    if (!rates) {
        modes.add(offer);
    }
}

void addModes(const GstStructure* structure, CameraModes& modes)
{
    const std::vector<Edge> widths = edgesOf(structure, "width");
    const std::vector<Edge> heights = edgesOf(structure, "height");
    const GValue* const rates = gst_structure_get_value(structure, "framerate");
    for (const PixelFormat pixelFormat : pixelFormatsOf(structure)) {
        for (const Edge& width : widths) {
            for (const Edge& height : heights) {
                Offer offer;
                offer.pixelFormat = pixelFormat;
                offer.smallest = {width.smallest, height.smallest};
                offer.largest = {width.largest, height.largest};
                offer.step = {width.step, height.step};
                if (modes.isFull()) {
                    return;
                }
                addRates(rates, offer, modes);
            }
        }
    }
}

} // namespace

PixelFormat CapsModes::pixelFormatOf(const char* format)
{
    const auto* const it = std::find_if(
        std::begin(NamedFormats), std::end(NamedFormats),
        [format](const NamedFormat& known) { return format && strcmp(known.name, format) == 0; });
    return it == std::end(NamedFormats) ? PixelFormat::None : it->pixelFormat;
}

CameraModes CapsModes::modesOf(const GstCaps* caps)
{
    CameraModes result;
    const guint count = gst_caps_get_size(caps);
    for (guint i = 0; i < count && !result.isFull(); ++i) {
        addModes(gst_caps_get_structure(caps, i), result);
    }
    return result;
}

GstCaps* CapsModes::capsOf(const CameraMode& mode)
{
    GstCaps* const result = gst_caps_new_simple(
        mode.pixelFormat == PixelFormat::Mjpg ? JpegMedia : RawMedia, "width", G_TYPE_INT,
        mode.size.width(), "height", G_TYPE_INT, mode.size.height(), nullptr);
    if (mode.rate.numerator > 0) {
        gst_caps_set_simple(result, "framerate", GST_TYPE_FRACTION,
                            static_cast<int>(mode.rate.numerator),
                            static_cast<int>(mode.rate.denominator), nullptr);
    }
    for (const NamedFormat& format : NamedFormats) {
        if (format.pixelFormat == mode.pixelFormat) {
            gst_caps_set_simple(result, "format", G_TYPE_STRING, format.name, nullptr);
        }
    }
    return result;
}

} // namespace Platform
