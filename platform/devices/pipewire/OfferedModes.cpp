// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/OfferedModes.h"

#include "platform/devices/camera/CameraModes.h"
#include "platform/devices/pipewire/StreamFormat.h"

#include <limits>
#include <spa/param/video/format-utils.h>
#include <spa/pod/iter.h>

namespace Platform {

namespace {

// The values of a property: single ones, or a range from the first to the last.
template <typename Value>
struct Choice
{
    std::vector<Value> values;
    bool isRange = false;
    Value step{};
};

// A choice begins with its default.
template <typename Value>
Choice<Value> choiceOf(const spa_pod* format, uint32_t key, uint32_t type)
{
    const spa_pod_prop* const property = spa_pod_find_prop(format, nullptr, key);
    if (!property) {
        return {};
    }
    uint32_t count = 0;
    uint32_t kind = SPA_CHOICE_None;
    const spa_pod* const pod = spa_pod_get_values(&property->value, &count, &kind);
    if (pod->type != type || pod->size != sizeof(Value) || count == 0) {
        return {};
    }
    const auto* const values = static_cast<const Value*>(SPA_POD_BODY_CONST(pod));
    if ((kind == SPA_CHOICE_Range || kind == SPA_CHOICE_Step) && count >= 3) {
        const bool hasStep = kind == SPA_CHOICE_Step && count >= 4;
        return {{values[1], values[2]}, true, hasStep ? values[3] : Value{}};
    }
    const uint32_t first = kind == SPA_CHOICE_Enum && count > 1 ? 1 : 0;
    return {{values + first, values + count}, false, {}};
}

QSize sizeOf(const spa_rectangle& size)
{
    constexpr uint32_t Most = std::numeric_limits<int>::max();
    return {static_cast<int>(std::min(size.width, Most)),
            static_cast<int>(std::min(size.height, Most))};
}

FrameRate rateOf(const spa_fraction& rate)
{
    return {rate.num, rate.denom};
}

std::vector<PixelFormat> pixelFormatsOf(const spa_pod* format, uint32_t mediaSubtype)
{
    if (mediaSubtype == SPA_MEDIA_SUBTYPE_mjpg) {
        return {PixelFormat::Mjpg};
    }
    std::vector<PixelFormat> result;
    if (mediaSubtype == SPA_MEDIA_SUBTYPE_raw) {
        for (const uint32_t id :
             choiceOf<uint32_t>(format, SPA_FORMAT_VIDEO_format, SPA_TYPE_Id).values) {
            result.push_back(pixelFormatOf(id));
        }
    }
    return result;
}

// Single rates or sizes are an offer each.
void addRates(CameraModes::Offer offer, const Choice<spa_fraction>& rates, CameraModes& modes)
{
    if (rates.isRange) {
        offer.lowest = rateOf(rates.values.front());
        offer.highest = rateOf(rates.values.back());
        modes.add(offer);
        return;
    }
    for (const spa_fraction& rate : rates.values) {
        offer.lowest = rateOf(rate);
        offer.highest = offer.lowest;
        modes.add(offer);
        if (modes.isFull()) {
            return;
        }
    }
    if (rates.values.empty()) {
        modes.add(offer);
    }
}

} // namespace

void OfferedModes::read(const spa_pod* format, CameraModes& modes)
{
    uint32_t mediaType = 0;
    uint32_t mediaSubtype = 0;
    if (!format || spa_format_parse(format, &mediaType, &mediaSubtype) < 0) {
        return;
    }
    const auto sizes = choiceOf<spa_rectangle>(format, SPA_FORMAT_VIDEO_size, SPA_TYPE_Rectangle);
    const auto rates =
        choiceOf<spa_fraction>(format, SPA_FORMAT_VIDEO_framerate, SPA_TYPE_Fraction);
    for (const PixelFormat pixelFormat : pixelFormatsOf(format, mediaSubtype)) {
        CameraModes::Offer offer;
        offer.pixelFormat = pixelFormat;
        if (sizes.isRange) {
            offer.smallest = sizeOf(sizes.values.front());
            offer.largest = sizeOf(sizes.values.back());
            offer.step = sizeOf(sizes.step);
            addRates(offer, rates, modes);
            continue;
        }
        for (const spa_rectangle& size : sizes.values) {
            offer.smallest = sizeOf(size);
            offer.largest = offer.smallest;
            addRates(offer, rates, modes);
            if (modes.isFull()) {
                return;
            }
        }
    }
}

} // namespace Platform
