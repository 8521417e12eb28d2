// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraModes.h"

#include <QStringList>
#include <algorithm>
#include <limits>
#include <tuple>

namespace Platform {

namespace {

constexpr FrameRate UsualRate{30, 1}; // what a preview needs to look fluent
constexpr double EnoughRate = 29.0;   // 29.97 is 30, too
constexpr double MaxRate = 1000.0;    // a camera with a higher one doesn't mean it
constexpr int MaxModesInText = 40;

bool isSame(const FrameRate& a, const FrameRate& b)
{
    return a.numerator == b.numerator && a.denominator == b.denominator;
}

bool isSame(const CameraModes::Offer& a, const CameraModes::Offer& b)
{
    return a.pixelFormat == b.pixelFormat && a.smallest == b.smallest && a.largest == b.largest &&
           a.step == b.step && isSame(a.lowest, b.lowest) && isSame(a.highest, b.highest);
}

bool isRate(const FrameRate& rate)
{
    constexpr qint64 Most = std::numeric_limits<quint32>::max();
    return rate.numerator >= 0 && rate.numerator <= Most && rate.denominator > 0 &&
           rate.denominator <= Most && rate.value() <= MaxRate;
}

bool isOffer(const CameraModes::Offer& offer)
{
    return offer.pixelFormat != PixelFormat::None && !offer.smallest.isEmpty() &&
           offer.smallest.width() <= offer.largest.width() &&
           offer.smallest.height() <= offer.largest.height() &&
           offer.smallest.width() <= MaxFrameEdge && offer.smallest.height() <= MaxFrameEdge &&
           isRate(offer.lowest) && isRate(offer.highest) &&
           offer.lowest.value() <= offer.highest.value();
}

// The first value from the smallest in steps that is as large as wanted, or the last one.
int edgeIn(int smallest, int largest, int step, int wanted)
{
    const int last = smallest + (largest - smallest) / step * step;
    if (wanted <= smallest) {
        return smallest;
    }
    return wanted >= last ? last : smallest + (wanted - smallest + step - 1) / step * step;
}

QSize sizeIn(const CameraModes::Offer& offer, const QSize& wanted)
{
    return {
        edgeIn(offer.smallest.width(), offer.largest.width(), offer.step.width(), wanted.width()),
        edgeIn(offer.smallest.height(), offer.largest.height(), offer.step.height(),
               wanted.height())};
}

// 30 or, if it isn't among them, the nearest.
FrameRate rateIn(const CameraModes::Offer& offer)
{
    if (offer.highest.value() <= UsualRate.value()) {
        return offer.highest;
    }
    return offer.lowest.value() >= UsualRate.value() ? offer.lowest : UsualRate;
}

// A frame keeps its aspect: in one direction it must be as large as the preview.
bool fills(const QSize& size, const QSize& preview)
{
    return size.width() >= preview.width() || size.height() >= preview.height();
}

// What is less is better.
auto rankOf(const CameraMode& mode, const QSize& preview)
{
    const bool isFilling = fills(mode.size, preview);
    const double rate = mode.rate.numerator == 0 ? UsualRate.value() : mode.rate.value();
    const double missingRate = rate >= EnoughRate ? 0.0 : UsualRate.value() - rate;
    const int area = mode.size.width() * mode.size.height();
    const int isCompressed = mode.pixelFormat == PixelFormat::Mjpg ? 1 : 0;
    // Of modes that don't fill it, the size counts for more than the format.
    return std::make_tuple(isFilling ? 0 : 1, missingRate, isFilling ? isCompressed : -area,
                           isFilling ? area : isCompressed, rate,
                           static_cast<int>(mode.pixelFormat));
}

QString nameOf(PixelFormat format)
{
    switch (format) {
    case PixelFormat::None:
        break;
    case PixelFormat::Yuy2:
        return QStringLiteral("YUY2");
    case PixelFormat::Uyvy:
        return QStringLiteral("UYVY");
    case PixelFormat::Nv12:
        return QStringLiteral("NV12");
    case PixelFormat::I420:
        return QStringLiteral("I420");
    case PixelFormat::Mjpg:
        return QStringLiteral("MJPG");
    case PixelFormat::Bgrx:
    case PixelFormat::Rgbx:
    case PixelFormat::Xrgb:
    case PixelFormat::Xbgr:
    case PixelFormat::Rgb:
    case PixelFormat::Bgr:
        return QStringLiteral("RGB");
    }
    return {};
}

QString nameOf(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString textOf(const CameraModes::Offer& offer)
{
    QString result = nameOf(offer.pixelFormat) + QLatin1Char(' ');
    if (offer.smallest != offer.largest) {
        result += nameOf(offer.smallest) + QLatin1Char('-');
    }
    result += nameOf(offer.largest);
    if (offer.highest.numerator > 0) {
        result += QStringLiteral(" %1/s").arg(
            QString::number(qRound(offer.highest.value() * 100.0) / 100.0));
    }
    return result;
}

} // namespace

bool operator==(const CameraMode& a, const CameraMode& b)
{
    return a.pixelFormat == b.pixelFormat && a.size == b.size && isSame(a.rate, b.rate);
}

bool operator!=(const CameraMode& a, const CameraMode& b)
{
    return !(a == b);
}

void CameraModes::add(const Offer& offer)
{
    Offer bounded = offer;
    bounded.step = offer.step.expandedTo(QSize(1, 1));
    if (offer.smallest != offer.largest) {
        bounded.largest = offer.largest.boundedTo(QSize(MaxFrameEdge, MaxFrameEdge));
    }
    if (offer.lowest.value() < MaxRate && offer.highest.value() > MaxRate) {
        bounded.highest = {static_cast<qint64>(MaxRate), 1}; // some say that any rate will do
    }
    const auto isKnown = [&bounded](const Offer& other) { return isSame(bounded, other); };
    if (!isFull() && isOffer(bounded) && std::none_of(m_offers.begin(), m_offers.end(), isKnown)) {
        m_offers.push_back(bounded);
    }
}

std::optional<CameraMode> CameraModes::forPreview(const QSize& pixels) const
{
    std::optional<CameraMode> best;
    for (const Offer& offer : m_offers) {
        const CameraMode mode{offer.pixelFormat, sizeIn(offer, pixels), rateIn(offer)};
        if (!best || rankOf(mode, pixels) < rankOf(*best, pixels)) {
            best = mode;
        }
    }
    return best;
}

QString CameraModes::text() const
{
    std::vector<Offer> offers = m_offers;
    std::stable_sort(offers.begin(), offers.end(), [](const Offer& a, const Offer& b) {
        const auto rank = [](const Offer& offer) {
            return std::make_tuple(-offer.largest.width() * offer.largest.height(),
                                   static_cast<int>(offer.pixelFormat), -offer.highest.value());
        };
        return rank(a) < rank(b);
    });
    QStringList texts;
    const Offer* last = nullptr;
    for (const Offer& offer : offers) {
        // Of several rates of a size, the highest tells enough.
        const bool isLower = last && last->pixelFormat == offer.pixelFormat &&
                             last->smallest == offer.smallest && last->largest == offer.largest;
        last = &offer;
        if (!isLower && texts.size() < MaxModesInText) {
            texts << textOf(offer);
        }
    }
    texts.removeDuplicates();
    return texts.join(QLatin1String(", "));
}

} // namespace Platform
