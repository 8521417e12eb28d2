// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/LumMicrophone.h>

#include <CommEngine/NoneDevice.h>
#include <CommEngine/SoundServerText.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float MaxSystemVolumePercent = 1000.0F;

} // namespace

class LumMicrophone::Bridge final : public Platform::MicrophoneBackend::Listener
{
public:
    explicit Bridge(LumMicrophone& microphone)
        : m_microphone(microphone),
          m_backend(Platform::EngineRegistry::engine().createMicrophone(*this))
    {
    }

    Platform::MicrophoneBackend& backend() const { return *m_backend; }

    void microphoneListChanged() override { Q_EMIT m_microphone.deviceListChanged(); }
    void currentMicrophoneChanged(const QString& id) override
    {
        Q_EMIT m_microphone.currentMicChanged(
            NoneDevice::toFacade(id), static_cast<bool>(m_microphone), m_microphone.workWell());
    }
    // A server may report NaN.
    void levelMeasured(double level) override
    {
        Q_EMIT m_microphone.intensity(std::isnan(level) ? 0.0 : std::clamp(level, 0.0, 1.0));
    }
    void microphoneVolumeChanged(int percent) override
    {
        Q_EMIT m_microphone.volumeChanged(percent);
    }
    void microphoneInfoChanged() override { Q_EMIT m_microphone.infoChanged(); }
    void microphoneWorkStateChanged(const QString& id, bool works) override
    {
        Q_EMIT m_microphone.workStateChanged(NoneDevice::toFacade(id), works);
    }
    void systemVolumeChanged(float percent) override
    {
        Q_EMIT m_microphone.systemMicrophoneVolume(
            std::isnan(percent) ? 0.0F : std::clamp(percent, 0.0F, MaxSystemVolumePercent));
    }

private:
    LumMicrophone& m_microphone;
    std::unique_ptr<Platform::MicrophoneBackend> m_backend;
};

LumMicrophone::LumMicrophone(Channel /*channel*/, bool /*isShared*/, QObject* parent)
    : QObject(parent), m_bridge(std::make_unique<Bridge>(*this))
{
}

LumMicrophone::~LumMicrophone() = default;

void LumMicrophone::openMicrophone()
{
    m_bridge->backend().open();
}

void LumMicrophone::closeMicrophone()
{
    m_bridge->backend().close();
}

void LumMicrophone::enableListenSelf(bool on)
{
    m_bridge->backend().setListening(on);
}

LumMicrophone::operator bool() const
{
    return Platform::isUsable(m_bridge->backend().state());
}

bool LumMicrophone::workWell() const
{
    return m_bridge->backend().hasHeardSound();
}

std::map<QString, _LumAudioInDevInfo> LumMicrophone::getDeviceList() const
{
    std::map<QString, _LumAudioInDevInfo> result;
    for (const Platform::DeviceInfo& device : m_bridge->backend().devices()) {
        result.emplace(device.id, _LumAudioInDevInfo{device.name});
    }
    return result;
}

QString LumMicrophone::getNoneDeviceText() const
{
    return SoundServerText::orElse("ID_Engine_NoMicrophone");
}

QString LumMicrophone::getCurrentDevice() const
{
    return NoneDevice::toFacade(m_bridge->backend().currentId());
}

QString LumMicrophone::getCurrentDeviceName() const
{
    return m_bridge->backend().currentName();
}

void LumMicrophone::setCurrentDevice(const QString& id, bool /*isByUser*/, bool /*isTemporary*/)
{
    m_bridge->backend().setCurrent(NoneDevice::toBackend(id));
}

bool LumMicrophone::supportAdjustVolume() const
{
    return m_bridge->backend().isVolumeAdjustable();
}

int LumMicrophone::getVolume() const
{
    return m_bridge->backend().volume();
}

void LumMicrophone::setVolume(int percent)
{
    m_bridge->backend().setVolume(percent);
}
