// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/LumSpeaker.h>

#include <CommEngine/NoneDevice.h>
#include <CommEngine/SoundServerText.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/SpeakerSession.h"

namespace {

QString shownName(const QString& name)
{
    return LumSpeaker::isNoneDeviceText(name) ? name + QStringLiteral(" (2)") : name;
}

} // namespace

class LumSpeaker::Bridge final : public Platform::SpeakerBackend::Listener
{
public:
    explicit Bridge(LumSpeaker& speaker)
        : m_speaker(speaker), m_backend(Platform::EngineRegistry::engine().createSpeaker(*this))
    {
    }

    Platform::SpeakerBackend& backend() const { return *m_backend; }

    void speakerListChanged() override { Q_EMIT m_speaker.deviceListChanged(); }
    void currentSpeakerChanged(const QString& id) override
    {
        Q_EMIT m_speaker.currentDeviceChanged(NoneDevice::toFacade(id), m_speaker.isWorking());
    }
    void speakerVolumeChanged(int percent) override { Q_EMIT m_speaker.volumeChanged(percent); }
    void speakerWorkStateChanged(bool works) override { Q_EMIT m_speaker.workStateChanged(works); }

private:
    LumSpeaker& m_speaker;
    std::unique_ptr<Platform::SpeakerBackend> m_backend;
    Platform::SpeakerSession m_session; // ends first, and its sounds with it
};

LumSpeaker::LumSpeaker(QObject* parent) : QObject(parent), m_bridge(std::make_unique<Bridge>(*this))
{
}

LumSpeaker::~LumSpeaker() = default;

std::vector<std::pair<QString, QString>> LumSpeaker::getDeviceList(bool /*withVirtual*/)
{
    std::vector<std::pair<QString, QString>> result;
    for (const Platform::DeviceInfo& device : Platform::EngineRegistry::engine().speakers()) {
        result.emplace_back(device.id, shownName(device.name));
    }
    return result;
}

QString LumSpeaker::getNoneDeviceText(bool listIsEmpty)
{
    if (!listIsEmpty) {
        return qtTrId("ID_Engine_NoSpeakerSelected");
    }
    return SoundServerText::orElse("ID_Engine_NoSpeaker");
}

bool LumSpeaker::isNoneDeviceText(const QString& name)
{
    return name == qtTrId("ID_Engine_NoSpeaker") || name == qtTrId("ID_Engine_NoSpeakerSelected") ||
           SoundServerText::isOne(name);
}

QString LumSpeaker::getCurrentDevice() const
{
    return NoneDevice::toFacade(m_bridge->backend().currentId());
}

void LumSpeaker::setCurrentDevice(const QString& id)
{
    m_bridge->backend().setCurrent(NoneDevice::toBackend(id));
}

QString LumSpeaker::getDeviceName() const
{
    return shownName(m_bridge->backend().currentName());
}

int LumSpeaker::getVolume() const
{
    return m_bridge->backend().volume();
}

void LumSpeaker::setVolume(int percent)
{
    m_bridge->backend().setVolume(percent);
}

bool LumSpeaker::isWorking() const
{
    return Platform::isUsable(m_bridge->backend().state());
}
