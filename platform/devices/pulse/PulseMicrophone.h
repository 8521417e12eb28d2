// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/backend/MicrophoneBackend.h"
#include "platform/devices/pulse/DeviceVolume.h"
#include "platform/devices/pulse/PulseDevices.h"

#include <QObject>
#include <memory>
#include <optional>

namespace Platform {

class PulseSession;
class ReportSink;

// The microphones of the sound server, and listening to oneself on the session's speaker.
class PulseMicrophone final : public MicrophoneBackend
{
public:
    PulseMicrophone(std::shared_ptr<PulseSession> session, Listener& listener, ReportSink& report);
    ~PulseMicrophone() override;

    DeviceList devices() const override { return m_list; }
    QString currentId() const override { return m_id; }
    QString currentName() const override;
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    bool hasHeardSound() const override { return m_hasHeardSound; }

    void open() override;
    void close() override;
    void setListening(bool on) override;

    bool isVolumeAdjustable() const override;
    int volume() const override { return m_volume.percent(); }
    void setVolume(int percent) override;

private:
    const PulseDevice* device() const;
    void update();

    std::shared_ptr<PulseSession> m_session;
    Listener& m_listener;
    ReportSink& m_report;
    DeviceList m_list;
    std::optional<QString> m_chosenId; // an empty one chose none
    QString m_id;
    QString m_name;
    bool m_isPresent = false;
    bool m_isMuted = false;
    bool m_isAdjustable = false;
    bool m_hasHeardSound = false;
    DeviceVolume m_volume;
    QObject m_context; // of the connection to the session
    Mailbox m_mailbox;
};

} // namespace Platform
