// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/mediafoundation/StagedActivate.h"

#include "tests/devices/windowscameras/CameraStage.h"

namespace TestSupport {

namespace {

// Of a camera that was unplugged after it was listed; MinGW's headers have no name for it.
constexpr auto DeviceInvalidated = static_cast<HRESULT>(0xC00D3EA2); // MF_E_VIDEO_RECORDING_…

LPCWSTR wide(const QString& text)
{
    return reinterpret_cast<LPCWSTR>(text.utf16());
}

} // namespace

StagedActivate::StagedActivate(std::shared_ptr<CameraStage> stage,
                               std::shared_ptr<StagedCamera> camera)
    : AttributeStore(stage), m_stage(std::move(stage)), m_camera(std::move(camera))
{
    SetGUID(MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE, MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_GUID);
    if (!m_camera->name.isNull()) {
        SetString(MF_DEVSOURCE_ATTRIBUTE_FRIENDLY_NAME, wide(m_camera->name));
    }
    if (m_camera->hasLink) {
        SetString(MF_DEVSOURCE_ATTRIBUTE_SOURCE_TYPE_VIDCAP_SYMBOLIC_LINK, wide(m_camera->link));
    }
}

HRESULT StagedActivate::ActivateObject(REFIID id, void** object)
{
    *object = nullptr;
    const HRESULT refusal = error();
    if (FAILED(refusal)) {
        return refusal;
    }
    if (!m_source) {
        *m_source.put() = new StagedSource(m_stage, m_camera);
    }
    return m_source->QueryInterface(id, object);
}

HRESULT StagedActivate::ShutdownObject()
{
    if (m_source) {
        m_source->Shutdown();
        m_source.reset();
    }
    return S_OK;
}

HRESULT StagedActivate::DetachObject()
{
    m_source.reset();
    return S_OK;
}

HRESULT StagedActivate::error()
{
    {
        const std::scoped_lock lock(m_stage->mutex);
        ++m_stage->activations[m_camera->link];
    }
    m_stage->pass(m_camera->hangsInActivation);
    const std::scoped_lock lock(m_stage->mutex);
    return m_camera->isPresent ? m_camera->activationError : DeviceInvalidated;
}

} // namespace TestSupport
