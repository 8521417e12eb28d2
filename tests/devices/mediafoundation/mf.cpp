// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// The DLL mf.dll for tests: the list of cameras that StagedCameras or a file has.
#include "tests/devices/mediafoundation/StagedActivate.h"
#include "tests/devices/windowscameras/CameraStage.h"
#include "tests/devices/windowscameras/StagedFile.h"

using namespace TestSupport;

namespace {

HRESULT list(const std::shared_ptr<CameraStage>& stage, IMFActivate*** entries, UINT32& count)
{
    stage->pass(stage->listHangs);
    const std::scoped_lock lock(stage->mutex);
    ++stage->lists;
    if (FAILED(stage->listError)) {
        return stage->listError;
    }
    *entries =
        static_cast<IMFActivate**>(CoTaskMemAlloc((stage->all.size() + 1) * sizeof(IMFActivate*)));
    for (const std::shared_ptr<StagedCamera>& camera : stage->all) {
        if (camera->isPresent && camera->system == StagedSystem::MediaFoundation) {
            (*entries)[count++] = new StagedActivate(stage, camera);
        }
    }
    return S_OK;
}

} // namespace

extern "C" __declspec(dllexport) HRESULT WINAPI
    MFEnumDeviceSources(IMFAttributes* /*wanted*/, IMFActivate*** entries, UINT32* count)
{
    *entries = nullptr;
    *count = 0;
    StagedFile::stageIfNamed();
    const std::shared_ptr<CameraStage> stage = CameraStage::current();
    return stage ? list(stage, entries, *count) : S_OK;
}
