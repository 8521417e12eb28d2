// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/mediafoundation/AttributeStore.h"
#include "tests/devices/mediafoundation/StagedSource.h"

namespace TestSupport {

// An entry of the list of cameras: opens its camera once, until that is shut down.
class StagedActivate final : public AttributeStore<IMFActivate>
{
public:
    // The stage is locked.
    StagedActivate(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera);

    HRESULT STDMETHODCALLTYPE ActivateObject(REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE ShutdownObject() override;
    HRESULT STDMETHODCALLTYPE DetachObject() override;

private:
    HRESULT error();

    std::shared_ptr<CameraStage> m_stage;
    std::shared_ptr<StagedCamera> m_camera;
    Platform::ComPointer<StagedSource> m_source;
};

} // namespace TestSupport
