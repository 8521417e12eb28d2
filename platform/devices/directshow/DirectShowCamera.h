// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/FrameSink.h"
#include "platform/devices/directshow/MediaType.h"
#include "platform/devices/windows/ComPointer.h"
#include "platform/devices/windowscameras/WindowsCamera.h"

#include <QString>
#include <vector>

// Must follow windows.h.
#include <control.h>

namespace Platform {

// A camera of DirectShow: a graph of its filter and of one that takes the frames. The filter is
// foreign code in this process, and sends frames on a thread of its own.
class DirectShowCamera final : public WindowsCamera
{
public:
    // The entry in DirectShow's list.
    DirectShowCamera(const QString& entry, std::shared_ptr<SampleBox> box);
    ~DirectShowCamera() override;

    HRESULT open() override;
    const CameraModes& modes() const override { return m_modes; }
    HRESULT start(const CameraMode& mode) override;
    HRESULT take(DWORD /*flags*/) override { return S_OK; }
    HRESULT check() override; // what the filter told the graph
    const MediaFormat& format() const override { return m_sink->format(); }

private:
    struct Offer
    {
        CameraModes::Offer modes;
        MediaType type;
    };

    HRESULT createGraph();
    HRESULT findPin();
    void listOffers();
    bool listCapabilities();
    void listTypes();
    void add(MediaType type, const CameraModes::Offer& modes);
    const Offer* offerFor(const CameraMode& mode) const;
    HRESULT connect(const Offer& offer, const FrameRate& rate);
    HRESULT connect(const MediaType& type);

    const QString m_entry;
    const std::shared_ptr<SampleBox> m_box;
    ComPointer<IBaseFilter> m_source;
    ComPointer<IGraphBuilder> m_graph;
    ComPointer<IPin> m_pin;               // of the source
    ComPointer<IAMStreamConfig> m_config; // null if it can't be asked for a mode
    ComPointer<FrameSink> m_sink;
    ComPointer<IMediaControl> m_control;
    ComPointer<IMediaEvent> m_events;
    std::vector<Offer> m_offers; // that can be shown
    CameraModes m_modes;
};

} // namespace Platform
