// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundDevices.h"

#include <QString>
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include <windows.h>
// Must follow windows.h.
#include <audioclient.h>
#include <endpointvolume.h>
#include <mmdeviceapi.h>

namespace TestSupport {

// What StagedAudio has, and who listens.
struct AudioStage
{
    struct Staged
    {
        Platform::SoundKind kind;
        QString id;
        QString name;
        Platform::VolumeState volume{100.0, false};
        bool isPresent = true;
        bool hasVolume = true;
        std::vector<IAudioEndpointVolumeCallback*> listeners{};
    };

    void pass() // where a hanging call hangs
    {
        std::unique_lock lock(mutex);
        ++hanging;
        goesOn.wait(lock, [this] { return !hangs; });
        --hanging;
    }
    Staged* find(const QString& id)
    {
        const auto found =
            std::find_if(all.begin(), all.end(), [&id](const Staged& one) { return one.id == id; });
        return found == all.end() ? nullptr : &*found;
    }
    // Opens the system's endpoint of that name for a stream.
    static HRESULT activate(Platform::SoundKind kind, const QString& name, REFIID id,
                            void** object);
    void tell(const std::function<void(IMMNotificationClient&)>& function);
    void setVolume(const QString& id, const Platform::VolumeState& volume);

    std::mutex mutex;
    std::condition_variable goesOn;
    bool hangs = false; // guarded by mutex, as are the next ones
    int hanging = 0;    // calls that do
    HRESULT enumeratorError = S_OK;
    HRESULT streamError = AUDCLNT_E_ENDPOINT_CREATE_FAILED;
    bool hasSystemStreams = false;
    std::vector<Staged> all;
    std::map<std::pair<Platform::SoundKind, ERole>, QString> defaults;
    std::vector<IMMNotificationClient*> listeners;
    // By the program. Not guarded: it is there from the beginning.
    std::function<void(Platform::SoundKind kind, const QString& id,
                       const Platform::VolumeState& before, const Platform::VolumeState& now)>
        volumeSet;
    std::atomic<int> lists{0};
    std::atomic<int> objects{0};
};

template <typename Listener>
HRESULT removeFrom(std::vector<Listener*>& listeners, Listener* listener)
{
    const auto found = std::find(listeners.begin(), listeners.end(), listener);
    if (found == listeners.end()) {
        return E_INVALIDARG;
    }
    listeners.erase(found);
    listener->Release();
    return S_OK;
}

} // namespace TestSupport
