// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <memory>

namespace TestSupport {

class StagedAudio;

// A real sound server for one test, in its own folder. It has the speakers "speaker_a" (the
// default) and "speaker_b", and the microphone "microphone_a", which records what is played on
// "voice". While it exists, the environment of the process points to it. Under Wine it is a server
// of the system below, whose devices are shown as endpoints of Windows with the same ids.
class SoundServer
{
public:
    enum class Kind { PulseAudio, PipeWire }; // Wine plays on PulseAudio alone

    // For initTestCase_data(): each test runs with each kind of server that the system has.
    static void addTestRows();
    // Starts the kind of the current row; null if it doesn't start.
    static std::unique_ptr<SoundServer> startForTest();

    explicit SoundServer(Kind kind);
    ~SoundServer();

    Kind kind() const { return m_kind; }
    bool start(); // waits until it answers; false with a warning if it doesn't
    void kill();  // like a crash; start() starts it again
    void freeze();
    void thaw();

    // Runs the command-line client of the server. The event loop goes on meanwhile.
    QByteArray control(const QStringList& arguments);
    // Plugs in a device. Returns the argument for unplug(), empty on failure.
    QByteArray plugSpeaker(const QString& name, const QString& description, int channels = 2,
                           int rate = 48000);
    QByteArray plugMicrophone(const QString& name, const QString& description,
                              const QString& hears = QStringLiteral("voice"));
    void unplug(const QByteArray& module);
    // How many streams of this name the tested program has. Wine gives them names of its own, so
    // there all of the program's count. list: "sink-inputs" or "source-outputs".
    int streams(const char* list, const char* name);
#ifdef Q_OS_WIN
    StagedAudio& endpoints();
#else
    // Ends the connection of the stream with this name; false if there is none.
    bool cutConnection(const QByteArray& streamName);
#endif
    // Volume and mute of each device, in one line that begins with its name; then the defaults.
    QStringList state();

    // For unplug().
    QByteArray speakerA() const
    {
        return m_speakerA;
    }
    QByteArray speakerB() const
    {
        return m_speakerB;
    }
    QByteArray microphoneA() const
    {
        return m_microphoneA;
    }

private:
    struct System; // with its functions, in one source file for each system

    bool launch();  // without devices
    void publish(); // shows the program all that the server has
    bool makeDefault(const QString& kind, const QByteArray& device);

    Kind m_kind;
    std::unique_ptr<System> m_system;
    QByteArray m_speakerA;
    QByteArray m_speakerB;
    QByteArray m_microphoneA;
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::SoundServer::Kind)
