// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/AcousticLoop.h"
#include "platform/backend/Mailbox.h"
#include "platform/devices/sound/SoundDevices.h"

#include <QObject>
#include <QTimer>

namespace Platform {

class SoundCapture;
class SoundPlayback;
class SoundService;
class SweepRecording;

// A sweep on one speaker and a recording of one microphone of the sound server. The sweep begins
// with the first samples of the microphone. Whatever happens to devices and server, it ends in
// time.
class SoundAcousticLoop final : public AcousticLoop
{
public:
    static constexpr int LongestMs = 6000;
    static constexpr int EchoMs = 1000;  // how long the sound may take on its way
    static constexpr int SettleMs = 300; // until the server tells why a stream broke

    SoundAcousticLoop(std::shared_ptr<SoundService> server, QString speakerId,
                      QString microphoneId);
    ~SoundAcousticLoop() override;

    std::optional<LoopOutcome> outcome() const override { return m_outcome; }

private:
    void update();
    QString obstacle() const; // in the report's words; empty if there is none
    void record();
    void deliveryChanged(bool delivers);
    void play();
    void playbackEnded(std::optional<DeviceState> failure);
    void streamBroke(DeviceState reason);
    void search();
    void finish(const LoopOutcome& outcome);
    void fail(const QString& reason);
    void closeStreams();

    std::shared_ptr<SoundService> m_server;
    QString m_speakerId;
    QString m_microphoneId;
    std::shared_ptr<SweepRecording> m_recording;
    std::unique_ptr<SoundCapture> m_capture;   // null until it is opened
    std::unique_ptr<SoundPlayback> m_playback; // likewise
    bool m_delivers = false;
    std::optional<LoopOutcome> m_outcome;
    QTimer m_deadline;
    QTimer m_breakage; // runs since a stream broke
    DeviceState m_breakageReason = DeviceState::Failed;
    QTimer m_echo;     // runs since the sweep was played
    QObject m_context; // ends the signal connections
    Mailbox m_mailbox;
};

} // namespace Platform
