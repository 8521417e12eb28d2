// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraModes.h"
#include "platform/devices/mediafoundation/MediaFormat.h"
#include "platform/devices/mediafoundation/MediaSession.h"
#include "platform/devices/mediafoundation/SampleBox.h"

#include <QString>
#include <vector>

namespace Platform {

// An opened camera: a source reader that delivers samples, as the camera sends them, into a box.
// Each call may hang, the destructor too. On one thread with COM.
class MediaFoundationCamera
{
public:
    MediaFoundationCamera(const MediaFoundation& functions, std::shared_ptr<SampleBox> box);
    ~MediaFoundationCamera();
    MediaFoundationCamera(const MediaFoundationCamera&) = delete;
    MediaFoundationCamera& operator=(const MediaFoundationCamera&) = delete;

    HRESULT open(const QString& link); // finds out what it offers
    const CameraModes& modes() const { return m_modes; }
    HRESULT choose(const CameraMode& mode); // one that it offers
    HRESULT request();                      // one sample more, now or when there is one
    HRESULT readFormat();                   // after Windows told that it changed
    const MediaFormat& format() const { return m_format; }

private:
    struct Offer
    {
        CameraMode mode;
        ComPointer<IMFMediaType> type;
    };

    HRESULT activate(const QString& link);
    HRESULT createReader();
    void listOffers();

    const MediaFoundation m_functions;
    const std::shared_ptr<SampleBox> m_box;
    std::shared_ptr<MediaSession> m_session; // outlives what follows
    ComPointer<IMFActivate> m_activate;
    ComPointer<IMFMediaSource> m_source;
    ComPointer<IMFSourceReader> m_reader;
    std::vector<Offer> m_offers; // that can be shown
    CameraModes m_modes;
    MediaFormat m_format; // that it sends
};

} // namespace Platform
