// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/mediafoundation/MediaFoundation.h"
#include "platform/devices/windows/ComCallback.h"
#include "platform/devices/windowscameras/SampleBox.h"

#include <memory>

namespace Platform {

// Windows calls it on threads of its own when a sample has come, maybe still after the camera was
// closed; so it owns the box that it uses.
class SampleReceiver final : public ComCallback<IMFSourceReaderCallback>
{
public:
    explicit SampleReceiver(std::shared_ptr<SampleBox> box) : m_box(std::move(box)) {}

    HRESULT STDMETHODCALLTYPE OnReadSample(HRESULT error, DWORD stream, DWORD flags, LONGLONG time,
                                           IMFSample* sample) override;
    HRESULT STDMETHODCALLTYPE OnFlush(DWORD stream) override;
    HRESULT STDMETHODCALLTYPE OnEvent(DWORD stream, IMFMediaEvent* event) override;

private:
    ~SampleReceiver() override = default; // by Release()

    const std::shared_ptr<SampleBox> m_box;
};

} // namespace Platform
