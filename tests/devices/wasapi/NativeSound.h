// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/NativeProgram.h"
#include "tests/support/Signals.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace TestSupport {

// The sound server that Wine's devices belong to: PulseAudio, at the place where this test runs. It
// has the speakers "speaker_a" and "speaker_b", and the microphone "microphone_a", which records
// what is played on "voice". Wine knows the devices that are there when the test first asks.
class NativeSoundServer
{
public:
    ~NativeSoundServer();

    bool start(); // waits until it answers
    void kill();  // like a crash
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

    // For unplug().
    QByteArray speakerB() const { return m_speakerB; }
    QByteArray microphoneA() const { return m_microphoneA; }

private:
    static QByteArray control(const QStringList& arguments);

    NativeProgram m_server;
    QByteArray m_speakerB;
    QByteArray m_microphoneA;
};

// Records a source of the server, such as "speaker_a.monitor", from its construction on.
class NativeRecording
{
public:
    // pieceMs: how late it is told at most. Short pieces cost Wine time.
    explicit NativeRecording(const QString& device, int channels = 2, int pieceMs = 20);

    bool waitForStart();
    std::vector<float> samples(int channel = 0); // so far
    double seconds();

private:
    QByteArray& data();

    NativeProgram m_program;
    int m_channels;
    QByteArray m_data;
};

// Plays on a device, from its construction on.
class NativeSource
{
public:
    NativeSource(const QString& device, const std::vector<float>& samples);

    bool waitForEnd(); // until all of it was played

private:
    int m_lengthMs;
    NativeProgram m_program;
};

} // namespace TestSupport
