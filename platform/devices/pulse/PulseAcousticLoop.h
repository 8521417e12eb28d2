// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/AcousticLoop.h"
#include "platform/backend/Mailbox.h"
#include "platform/devices/pulse/PulseDevices.h"

#include <QObject>
#include <QTimer>

namespace Platform {

class PulseCapture;
class PulsePlayback;
class PulseServer;
class SweepRecording;

// A sweep on one speaker and a recording of one microphone of the sound server. The sweep begins
// with the first samples of the microphone. Whatever happens to devices and server, it ends in
// time.
class PulseAcousticLoop final : public AcousticLoop
{
public:
    static constexpr int LongestMs = 6000;
    static constexpr int EchoMs = 1000;  // how long the sound may take on its way
    static constexpr int SettleMs = 300; // until the server tells why a stream broke

    PulseAcousticLoop(std::shared_ptr<PulseServer> server, QString speakerId, QString microphoneId);
    ~PulseAcousticLoop() override;

    std::optional<LoopOutcome> outcome() const override { return m_outcome; }

private:
    void update();
    QString obstacle() const; // in the report's words; empty if there is none
    void record();
    void deliveryChanged(bool delivers);
    void play();
    void playbackEnded(bool isGood);
    void search();
    void finish(const LoopOutcome& outcome);
    void fail(const QString& reason);
    void closeStreams();

    std::shared_ptr<PulseServer> m_server;
    QString m_speakerId;
    QString m_microphoneId;
    std::shared_ptr<SweepRecording> m_recording;
    std::shared_ptr<PulseCapture> m_capture;   // null until it is opened
    std::shared_ptr<PulsePlayback> m_playback; // likewise
    bool m_delivers = false;
    std::optional<LoopOutcome> m_outcome;
    QTimer m_deadline;
    QTimer m_breakage; // runs since a stream broke
    QTimer m_echo;     // runs since the sweep was played
    QObject m_context; // ends the signal connections
    Mailbox m_mailbox;
};

} // namespace Platform
