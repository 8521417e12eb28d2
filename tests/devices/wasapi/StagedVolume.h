// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/ComObject.h"
#include "tests/devices/wasapi/AudioStage.h"

#include <memory>

namespace TestSupport {

// Volume and mute of a staged endpoint. Only what the engine calls does anything.
class StagedVolume final : public ComObject<IAudioEndpointVolume>
{
public:
    StagedVolume(std::shared_ptr<AudioStage> stage, Platform::SoundKind kind, QString id)
        : ComObject(stage), m_stage(std::move(stage)), m_kind(kind), m_id(std::move(id))
    {
    }

    HRESULT STDMETHODCALLTYPE
    RegisterControlChangeNotify(IAudioEndpointVolumeCallback* one) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        one->AddRef();
        m_stage->find(m_id)->listeners.push_back(one);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE
    UnregisterControlChangeNotify(IAudioEndpointVolumeCallback* one) override
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        return removeFrom(m_stage->find(m_id)->listeners, one);
    }
    HRESULT STDMETHODCALLTYPE SetMasterVolumeLevelScalar(FLOAT level, LPCGUID) override
    {
        return change([level](Platform::VolumeState& volume) {
            volume.percent = 100.0 * static_cast<double>(level);
        });
    }
    HRESULT STDMETHODCALLTYPE GetMasterVolumeLevelScalar(FLOAT* level) override
    {
        Platform::VolumeState volume;
        const HRESULT error = get(volume);
        *level = static_cast<float>(volume.percent / 100.0);
        return error;
    }
    HRESULT STDMETHODCALLTYPE SetMute(WINBOOL isMuted, LPCGUID) override
    {
        return change(
            [isMuted](Platform::VolumeState& volume) { volume.isMuted = isMuted != FALSE; });
    }
    HRESULT STDMETHODCALLTYPE GetMute(WINBOOL* isMuted) override
    {
        Platform::VolumeState volume;
        const HRESULT error = get(volume);
        *isMuted = volume.isMuted ? TRUE : FALSE;
        return error;
    }

    HRESULT STDMETHODCALLTYPE GetChannelCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMasterVolumeLevel(FLOAT, LPCGUID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMasterVolumeLevel(FLOAT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetChannelVolumeLevel(UINT, FLOAT, LPCGUID) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetChannelVolumeLevelScalar(UINT, FLOAT, LPCGUID) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetChannelVolumeLevel(UINT, FLOAT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetChannelVolumeLevelScalar(UINT, FLOAT*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetVolumeStepInfo(UINT*, UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE VolumeStepUp(LPCGUID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE VolumeStepDown(LPCGUID) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryHardwareSupport(DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetVolumeRange(FLOAT*, FLOAT*, FLOAT*) override { return E_NOTIMPL; }

private:
    HRESULT get(Platform::VolumeState& volume)
    {
        m_stage->pass();
        const std::scoped_lock lock(m_stage->mutex);
        const AudioStage::Staged* staged = m_stage->find(m_id);
        volume = staged->volume;
        return staged->isPresent ? S_OK : AUDCLNT_E_DEVICE_INVALIDATED;
    }
    HRESULT change(const std::function<void(Platform::VolumeState&)>& function)
    {
        Platform::VolumeState volume;
        const HRESULT error = get(volume);
        if (SUCCEEDED(error)) {
            const Platform::VolumeState before = volume;
            function(volume);
            m_stage->setVolume(m_id, volume);
            if (m_stage->volumeSet) {
                m_stage->volumeSet(m_kind, m_id, before, volume);
            }
        }
        return error;
    }

    std::shared_ptr<AudioStage> m_stage;
    Platform::SoundKind m_kind;
    QString m_id;
};

} // namespace TestSupport
