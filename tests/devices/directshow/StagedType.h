// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/MediaType.h"
#include "platform/devices/windows/ComCallback.h"
#include "tests/devices/windowscameras/CameraStage.h"

namespace TestSupport {

// The modes of a staged camera as DirectShow describes them.
namespace StagedType {

Platform::MediaType of(const StagedMode& mode);
// The camera's mode of this type, at the type's rate; false if it has none.
bool find(const StagedCamera& camera, const AM_MEDIA_TYPE& type, StagedMode& mode);
LONGLONG intervalOf(int numerator, int denominator); // in units of 100 ns
int maxBytes(const StagedMode& mode);                // of a frame

} // namespace StagedType

// All modes of a camera.
class StagedTypeList final : public Platform::ComCallback<IEnumMediaTypes>
{
public:
    explicit StagedTypeList(std::shared_ptr<StagedCamera> camera, std::size_t next = 0);

    HRESULT STDMETHODCALLTYPE Next(ULONG count, AM_MEDIA_TYPE** types, ULONG* fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumMediaTypes** copy) override;

private:
    const std::shared_ptr<StagedCamera> m_camera;
    std::size_t m_next;
};

} // namespace TestSupport
