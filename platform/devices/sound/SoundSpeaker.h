// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DefaultDevice.h"
#include "platform/backend/Mailbox.h"
#include "platform/backend/SpeakerBackend.h"
#include "platform/devices/sound/DeviceVolume.h"
#include "platform/devices/sound/SoundDevices.h"

#include <QObject>
#include <memory>

namespace Platform {

class SoundService;
class ReportSink;

// The speakers of the sound server. A choice is valid in this program only; the default of the
// server stays as it is. Every change reports the device, its volume and its mute.
class SoundSpeaker final : public SpeakerBackend
{
public:
    SoundSpeaker(std::shared_ptr<SoundService> server, Listener& listener, ReportSink& report);
    ~SoundSpeaker() override;

    QString currentId() const override { return m_id; }
    QString currentName() const override;
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    DeviceState stateOf(const QString& id) const override;
    int volume() const override { return m_volume.percent(); }
    int volumeOf(const QString& id) const override;
    void setVolume(int percent) override;

private:
    const SoundDevice* device() const;
    void update();
    void recordMeasurement() const;

    std::shared_ptr<SoundService> m_server;
    Listener& m_listener;
    ReportSink& m_report;
    SoundServerState m_serverState = SoundServerState::Starting;
    DeviceList m_list;
    QString m_id;
    bool m_works = false;
    DeviceVolume m_volume;
    DefaultDevice m_default;
    QObject m_context; // ends the signal connection
    Mailbox m_mailbox;
};

} // namespace Platform
