// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/SoundSystem.h"

namespace Platform {

namespace {

class AbsentMicrophone final : public MicrophoneBackend
{
public:
    DeviceList devices() const override { return {}; }
    QString currentId() const override { return {}; }
    QString currentName() const override { return {}; }
    void setCurrent(const QString&) override {}
    DeviceState state() const override { return DeviceState::Absent; }
    bool hasHeardSound() const override { return false; }
    void open() override {}
    void close() override {}
    void setListening(bool) override {}
    bool isVolumeAdjustable() const override { return false; }
    int volume() const override { return 0; }
    void setVolume(int) override {}
};

class AbsentSpeaker final : public SpeakerBackend
{
public:
    QString currentId() const override { return {}; }
    QString currentName() const override { return {}; }
    void setCurrent(const QString&) override {}
    DeviceState state() const override { return DeviceState::Absent; }
    int volume() const override { return 0; }
    void setVolume(int) override {}
};

class AbsentSoundSystem final : public SoundSystem
{
public:
    std::unique_ptr<MicrophoneBackend> createMicrophone(MicrophoneBackend::Listener&) override
    {
        return std::make_unique<AbsentMicrophone>();
    }
    std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener&) override
    {
        return std::make_unique<AbsentSpeaker>();
    }
    std::unique_ptr<PlayerBackend> createPlayer(const QString&, float,
                                                PlayerBackend::Listener&) override
    {
        return nullptr;
    }
    DeviceList speakers() const override { return {}; }
};

} // namespace

std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig&, ReportSink&)
{
    return std::make_unique<AbsentSoundSystem>();
}

} // namespace Platform
