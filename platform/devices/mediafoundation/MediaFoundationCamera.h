// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/mediafoundation/MediaSession.h"
#include "platform/devices/windows/ComPointer.h"
#include "platform/devices/windowscameras/WindowsCamera.h"

#include <QString>
#include <vector>

namespace Platform {

// A camera of Media Foundation: a source reader that delivers samples as the camera sends them. It
// has to be asked for each one.
class MediaFoundationCamera final : public WindowsCamera
{
public:
    MediaFoundationCamera(const MediaFoundation& functions, const QString& link,
                          std::shared_ptr<SampleBox> box);
    ~MediaFoundationCamera() override;

    HRESULT open() override;
    const CameraModes& modes() const override { return m_modes; }
    HRESULT start(const CameraMode& mode) override;
    HRESULT take(DWORD flags) override; // of MF_SOURCE_READER_FLAG; asks for the next sample
    HRESULT check() override { return S_OK; }
    const MediaFormat& format() const override { return m_format; }

private:
    struct Offer
    {
        CameraMode mode;
        ComPointer<IMFMediaType> type;
    };

    HRESULT activate();
    HRESULT createReader();
    void listOffers();
    HRESULT request(); // one sample more, now or when there is one
    HRESULT readFormat();

    const MediaFoundation m_functions;
    const QString m_link;
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
