// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/NativeProgram.h"
#include "tests/support/Signals.h"

#include <QByteArray>
#include <QString>

namespace TestSupport {

// The sound server that Wine's devices belong to: PulseAudio, at the place where this test runs. It
// has the speakers "speaker_a" and "speaker_b", and the microphone "microphone_a", which records
// what is played on "voice". Wine knows the devices that are there when the test first asks.
class NativeSoundServer
{
public:
    ~NativeSoundServer();

    bool start();  // waits until it answers and has them
    bool launch(); // the same without devices
    void kill();   // like a crash
    bool freeze() { return m_server.order("freeze", "done"); }
    bool thaw() { return m_server.order("thaw", "done"); }

    // Plugs in a device. Returns the argument for unplug(), empty on failure.
    QByteArray plugSpeaker(const QString& name, const QString& description);
    QByteArray plugMicrophone(const QString& name, const QString& description);
    void unplug(const QByteArray& module);
    // Plays a tone on a speaker, until unplug().
    QByteArray startTone(const QString& speaker);
    // Speaker, voice and microphone once more, "bus_speaker", "bus_voice" and "bus_microphone", on
    // one clock: the channels of "bus.monitor" are, in pairs, what the speaker plays and the voice.
    bool plugBus();
    // The server itself plays the bus' microphone on its speaker, until unplug().
    QByteArray loopBusBack(int latencyMs);

    // Runs the command-line client of the server. The event loop goes on meanwhile.
    static QByteArray control(const QStringList& arguments);
    // The same on any thread, which waits for it.
    static void order(const QStringList& arguments);

    // For unplug().
    QByteArray speakerB() const { return m_speakerB; }
    QByteArray microphoneA() const { return m_microphoneA; }

private:
    NativeProgram m_server;
    QByteArray m_speakerB;
    QByteArray m_microphoneA;
};

} // namespace TestSupport
