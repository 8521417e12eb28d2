// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DefaultDevice.h"
#include "platform/backend/Mailbox.h"
#include "platform/backend/MicrophoneBackend.h"
#include "platform/devices/sound/DeviceVolume.h"
#include "platform/devices/sound/SoundDevices.h"
#include "platform/devices/sound/StreamRetry.h"

#include <QObject>
#include <memory>
#include <optional>

namespace Platform {

class MicrophoneAnalysis;
class SoundCapture;
class SoundService;
class ReportSink;

// The microphones of the sound server, and listening to oneself on the current speaker. Closing it
// reports what was measured.
class SoundMicrophone final : public MicrophoneBackend
{
public:
    SoundMicrophone(std::shared_ptr<SoundService> server, Listener& listener, ReportSink& report);
    ~SoundMicrophone() override;

    DeviceList devices() const override { return m_list; }
    QString currentId() const override { return m_id; }
    QString currentName() const override;
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    DeviceState stateOf(const QString& id) const override;
    bool hasHeardSound() const override { return m_hasHeardSound; }

    void open() override;
    void close() override;
    void setListening(bool on) override;

    bool isVolumeAdjustable() const override { return m_isAdjustable; }
    int volume() const override { return m_volume.percent(); }
    int volumeOf(const QString& id) const override;
    void setVolume(int percent) override;

private:
    const SoundDevice* device() const;
    void update();
    void updateInfo(const SoundDevice* current, bool isOther);
    void updateCapture();
    void updateListening();
    void updateWorkState();
    void startCapture();
    void endCapture();
    void recordMeasurement() const;

    std::shared_ptr<SoundService> m_server;
    Listener& m_listener;
    ReportSink& m_report;
    SoundServerState m_serverState = SoundServerState::Starting;
    DeviceList m_list;
    std::optional<QString> m_chosenId; // an empty id: the user chose none
    QString m_id;
    QString m_name; // of the current device; kept while it is absent
    bool m_isPresent = false;
    bool m_isMuted = false;
    bool m_isAdjustable = false;
    DeviceVolume m_volume;
    DefaultDevice m_default;

    bool m_isOpen = false;
    bool m_isListening = false;
    std::unique_ptr<SoundCapture> m_capture;
    std::shared_ptr<MicrophoneAnalysis> m_analysis;
    bool m_isCapturing = false;
    int m_opening = 0; // drops the messages of earlier openings
    bool m_hasStalled = false;
    bool m_hasHeardSound = false;
    bool m_wasUsable = false;     // when the listener was called last
    bool m_hadHeardSound = false; // likewise
    QString m_listeningOn;
    StreamRetry m_retry;
    QObject m_context; // ends the signal connections
    Mailbox m_mailbox;
};

} // namespace Platform
