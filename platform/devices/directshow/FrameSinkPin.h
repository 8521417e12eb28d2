// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/FilterPin.h"
#include "platform/devices/windowscameras/MediaFormat.h"
#include "platform/devices/windowscameras/SampleBox.h"

#include <chrono>
#include <memory>

namespace Platform {

// Takes each frame that can be shown, and keeps the connection's format: what comes in another one
// ends the stream. Frames come on a thread of the camera.
class FrameSinkPin final : public FilterPin, public IMemInputPin
{
public:
    FrameSinkPin(IBaseFilter& filter, std::shared_ptr<SampleBox> box);

    const MediaFormat& format() const { return m_format; } // of the connection

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return FilterPin::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return FilterPin::Release(); }

    HRESULT STDMETHODCALLTYPE ReceiveConnection(IPin* from, const AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE QueryAccept(const AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE EndOfStream() override;

    HRESULT STDMETHODCALLTYPE GetAllocator(IMemAllocator** allocator) override;
    HRESULT STDMETHODCALLTYPE NotifyAllocator(IMemAllocator* allocator, BOOL isReadOnly) override;
    HRESULT STDMETHODCALLTYPE GetAllocatorRequirements(ALLOCATOR_PROPERTIES* wanted) override;
    HRESULT STDMETHODCALLTYPE Receive(IMediaSample* sample) override;
    HRESULT STDMETHODCALLTYPE ReceiveMultiple(IMediaSample** samples, long count,
                                              long* processed) override;
    HRESULT STDMETHODCALLTYPE ReceiveCanBlock() override { return S_OK; } // for a moment

protected:
    IUnknown* otherInterface(REFIID id) override;

private:
    const std::shared_ptr<SampleBox> m_box;
    MediaFormat m_format;
    std::chrono::steady_clock::time_point m_nextFrame; // comes then at the earliest
};

} // namespace Platform
