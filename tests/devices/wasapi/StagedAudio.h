// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundDevices.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <thread>

#include <windows.h>
// Must follow windows.h.
#include <mmdeviceapi.h>

namespace TestSupport {

struct AudioStage;

// Stands for Windows' audio endpoints in this process: whoever asks COM for a device enumerator
// gets one that has what the test staged, and that tells of changes as Windows does. It shows what
// the engine makes of our reading of Windows, not Windows. Any thread may use it.
class StagedAudio
{
public:
    // Told on a thread of the program, which waits for it.
    using VolumeSet =
        std::function<void(Platform::SoundKind kind, const QString& id,
                           const Platform::VolumeState& before, const Platform::VolumeState& now)>;

    // Without volumeSet there are no streams; with it, those of the system's endpoints that have
    // the same names. It is called if the program sets a volume.
    explicit StagedAudio(VolumeSet volumeSet = {});
    ~StagedAudio(); // what hangs goes on
    StagedAudio(const StagedAudio&) = delete;
    StagedAudio& operator=(const StagedAudio&) = delete;

    // A new endpoint, or one that was unplugged.
    void plug(Platform::SoundKind kind, const QString& id, const QString& name);
    void unplug(const QString& id);
    void setDefault(Platform::SoundKind kind, ERole role, const QString& id);
    // As another program does.
    void setVolume(const QString& id, const Platform::VolumeState& volume);
    void takeVolumeAway(const QString& id); // the endpoint has none, from the next plugging on
    Platform::VolumeState volumeOf(const QString& id) const;
    QStringList present() const;                       // ids
    QString defaultId(Platform::SoundKind kind) const; // not that of calls

    // S_OK ends it. An enumerator that was refused once has no endpoints any more.
    void refuseEnumerator(HRESULT error);
    void refuseStreams(HRESULT error);
    void setHanging(bool hangs); // every call
    int hangingCalls() const;
    int lists() const;     // how often it was asked for one
    int objects() const;   // that nobody has released
    int listeners() const; // notices that are registered

private:
    std::shared_ptr<AudioStage> m_stage;
    HANDLE m_end; // an event
    std::thread m_registrar;
};

} // namespace TestSupport
