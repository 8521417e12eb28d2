// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <vector>

namespace TestSupport {

// A real sound server of one's own, in a folder of its own, with two playback devices ("speaker_a",
// the default, and "speaker_b") and a microphone ("microphone_a") that hears what is played on
// "voice". The environment of the process points to it while it exists.
class SoundServer
{
public:
    enum class Kind { PulseAudio, PipeWire };

    // For initTestCase_data(): every test runs with both kinds; startForTest() starts the one that
    // it is the turn of, and gives null where it doesn't.
    static void addTestRows();
    static std::unique_ptr<SoundServer> startForTest();

    explicit SoundServer(Kind kind);
    ~SoundServer();

    Kind kind() const { return m_kind; }
    bool start(); // waits until it answers; false with a warning where it doesn't
    void kill();  // at once, as in a crash; start() brings it back
    void freeze();
    void thaw();

    // The command-line client of the server, with the event loop running meanwhile.
    QByteArray control(const QStringList& arguments);
    // Plugs in a device and gives what unplug() takes; an empty one where it failed.
    QByteArray plugSpeaker(const QString& name, const QString& description, int channels = 2,
                           int rate = 48000);
    QByteArray plugMicrophone(const QString& name, const QString& description,
                              const QString& hears = QStringLiteral("voice"));
    void unplug(const QByteArray& module);
    // Ends the connection that a stream of that name came over; false where there is none.
    bool cutConnection(const QByteArray& streamName);
    // Volumes and mutes, a line for each device that begins with its name, and the defaults.
    QStringList state();

    // Their modules.
    QByteArray speakerA() const { return m_speakerA; }
    QByteArray speakerB() const { return m_speakerB; }
    QByteArray microphoneA() const { return m_microphoneA; }

private:
    bool launch(const QString& program, const QStringList& arguments);
    bool waitForAnswer();
    bool makeDefault(const QString& kind, const QByteArray& device);
    void signalAll(int number);
    void setEnvironment(const char* name, const QByteArray& value);

    Kind m_kind;
    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    QMap<QByteArray, QByteArray> m_formerEnvironment;
    QByteArray m_speakerA;
    QByteArray m_speakerB;
    QByteArray m_microphoneA;
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::SoundServer::Kind)
