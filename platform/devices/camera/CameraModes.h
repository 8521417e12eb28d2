// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/FrameFormat.h"

#include <QString>
#include <optional>
#include <vector>

namespace Platform {

// Frames a second, as a fraction. 0/1: unknown, or it varies.
struct FrameRate
{
    qint64 numerator = 0;
    qint64 denominator = 1;

    double value() const { return double(numerator) / double(denominator); }
};

// What a camera can be asked to send.
struct CameraMode
{
    PixelFormat pixelFormat = PixelFormat::None;
    QSize size;
    FrameRate rate;
};

bool operator==(const CameraMode& a, const CameraMode& b);
bool operator!=(const CameraMode& a, const CameraMode& b);

// The modes that a camera offers, as far as they can be shown. Foreign numbers: what can't be is
// left out, and so is what comes after MaxOffers.
class CameraModes
{
public:
    static constexpr std::size_t MaxOffers = 4096;

    // Sizes from the smallest to the largest in steps, and rates from the lowest to the highest. A
    // single mode has equal ends.
    struct Offer
    {
        PixelFormat pixelFormat = PixelFormat::None;
        QSize smallest;
        QSize largest;
        QSize step{1, 1};
        FrameRate lowest;
        FrameRate highest;
    };

    void add(const Offer& offer);
    bool isFull() const { return m_offers.size() >= MaxOffers; }
    bool isEmpty() const { return m_offers.empty(); }

    // The smallest mode that fills a preview of so many pixels at 30 frames a second, and raw
    // rather than compressed. If none is so fast, the fastest; if none is so large, the largest.
    std::optional<CameraMode> forPreview(const QSize& pixels) const;
    // For the report, the largest first: "MJPG 1920x1080 30/s, YUY2 640x480 30/s".
    QString text() const;

private:
    std::vector<Offer> m_offers;
};

} // namespace Platform
