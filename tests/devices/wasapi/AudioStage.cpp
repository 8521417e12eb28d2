// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/AudioStage.h"

#include "tests/devices/wasapi/SystemAudio.h"

namespace TestSupport {

namespace {

template <typename Listener>
void tellAll(const std::vector<Listener*>& listeners, const std::function<void(Listener&)>& tell)
{
    for (Listener* listener : listeners) {
        tell(*listener);
        listener->Release();
    }
}

template <typename Listener>
std::vector<Listener*> held(const std::vector<Listener*>& listeners)
{
    for (Listener* listener : listeners) {
        listener->AddRef();
    }
    return listeners;
}

} // namespace

HRESULT AudioStage::activate(Platform::SoundKind kind, const QString& name, REFIID id,
                             void** object)
{
    Platform::ComPointer<IMMDeviceEnumerator> enumerator;
    const HRESULT error = SystemAudio::createEnumerator(enumerator);
    if (FAILED(error)) {
        return error;
    }
    const EDataFlow flow = kind == Platform::SoundKind::Speaker ? eRender : eCapture;
    const auto device = SystemAudio::find(*enumerator.get(), flow, name);
    return device ? device->Activate(id, CLSCTX_ALL, nullptr, object)
                  : HRESULT_FROM_WIN32(ERROR_NOT_FOUND);
}

void AudioStage::tell(const std::function<void(IMMNotificationClient&)>& function)
{
    std::unique_lock lock(mutex);
    const std::vector<IMMNotificationClient*> present = held(listeners);
    lock.unlock();
    tellAll(present, function);
}

void AudioStage::setVolume(const QString& id, const Platform::VolumeState& volume)
{
    std::unique_lock lock(mutex);
    Staged* staged = find(id);
    staged->volume = volume;
    const std::vector<IAudioEndpointVolumeCallback*> present = held(staged->listeners);
    lock.unlock();
    AUDIO_VOLUME_NOTIFICATION_DATA data = {};
    data.fMasterVolume = static_cast<float>(volume.percent / 100.0);
    data.bMuted = volume.isMuted;
    tellAll<IAudioEndpointVolumeCallback>(present, [&data](auto& one) { one.OnNotify(&data); });
}

} // namespace TestSupport
