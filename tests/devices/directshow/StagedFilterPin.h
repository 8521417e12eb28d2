// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/FilterPin.h"
#include "tests/devices/windowscameras/CameraStage.h"

// Must follow windows.h.
#include <strmif.h>

namespace TestSupport {

// The output of a staged filter: offers the modes of its camera, and sends frames in the chosen
// one.
class StagedFilterPin final : public Platform::FilterPin,
                              public IAMStreamConfig,
                              public IKsPropertySet
{
public:
    StagedFilterPin(IBaseFilter& filter, std::shared_ptr<CameraStage> stage,
                    std::shared_ptr<StagedCamera> camera);

    StagedMode mode() const; // that is chosen
    void commit(bool isOn);  // the memory of the frames
    void deliver(const QByteArray& frame);
    void endStream();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return FilterPin::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return FilterPin::Release(); }

    HRESULT STDMETHODCALLTYPE Connect(IPin* to, const AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE Disconnect() override;
    HRESULT STDMETHODCALLTYPE QueryAccept(const AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE EnumMediaTypes(IEnumMediaTypes** types) override;

    HRESULT STDMETHODCALLTYPE SetFormat(AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE GetFormat(AM_MEDIA_TYPE** type) override;
    HRESULT STDMETHODCALLTYPE GetNumberOfCapabilities(int* count, int* bytes) override;
    HRESULT STDMETHODCALLTYPE GetStreamCaps(int number, AM_MEDIA_TYPE** type, BYTE* caps) override;

    HRESULT STDMETHODCALLTYPE Set(REFGUID set, DWORD id, LPVOID instance, DWORD instanceBytes,
                                  LPVOID data, DWORD bytes) override;
    HRESULT STDMETHODCALLTYPE Get(REFGUID set, DWORD id, LPVOID instance, DWORD instanceBytes,
                                  LPVOID data, DWORD bytes, DWORD* returned) override;
    HRESULT STDMETHODCALLTYPE QuerySupported(REFGUID set, DWORD id, DWORD* support) override;

protected:
    IUnknown* otherInterface(REFIID id) override;

private:
    const std::shared_ptr<CameraStage> m_stage;
    const std::shared_ptr<StagedCamera> m_camera;
    StagedMode m_mode;
    Platform::ComPointer<IPin> m_to;
    Platform::ComPointer<IMemInputPin> m_input;
    Platform::ComPointer<IMemAllocator> m_allocator;
};

} // namespace TestSupport
