// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundServer.h"

#include "tests/support/PulseClient.h"
#include "tests/support/RealTimePriority.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTest>
#include <csignal>

namespace TestSupport {

namespace {

constexpr int StartTimeoutMs = 10000;

void waitFor(QProcess& process)
{
    QEventLoop loop;
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    if (process.state() != QProcess::NotRunning) {
        loop.exec();
    }
}

} // namespace

void SoundServer::addTestRows()
{
    QTest::addColumn<Kind>("server");
    QTest::newRow("PulseAudio") << Kind::PulseAudio;
    QTest::newRow("PipeWire") << Kind::PipeWire;
}

std::unique_ptr<SoundServer> SoundServer::startForTest()
{
    QFETCH_GLOBAL(Kind, server);
    auto result = std::make_unique<SoundServer>(server);
    return result->start() ? std::move(result) : nullptr;
}

SoundServer::SoundServer(Kind kind) : m_kind(kind)
{
    const QString root = m_folder.path();
    for (const char* folder : {"pulse", "config", "state", "cache"}) {
        QDir(root).mkpath(QString::fromLatin1(folder));
    }
    QFile client(root + QStringLiteral("/client.conf"));
    if (client.open(QIODevice::WriteOnly)) {
        client.write("autospawn = no\n");
    }
    const QByteArray path = QFile::encodeName(root);
    setEnvironment("XDG_RUNTIME_DIR", path);
    setEnvironment("XDG_CONFIG_HOME", path + "/config");
    setEnvironment("XDG_STATE_HOME", path + "/state");
    setEnvironment("XDG_CACHE_HOME", path + "/cache");
    setEnvironment("PIPEWIRE_RUNTIME_DIR", path);
    setEnvironment("PULSE_RUNTIME_PATH", path + "/pulse");
    setEnvironment("PULSE_STATE_PATH", path + "/state");
    setEnvironment("PULSE_COOKIE", path + "/cookie");
    setEnvironment("PULSE_CLIENTCONFIG", path + "/client.conf");
    setEnvironment("PULSE_SERVER", "unix:" + path + "/pulse/native");
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path + "/bus");
}

SoundServer::~SoundServer()
{
    kill();
    for (auto entry = m_formerEnvironment.cbegin(); entry != m_formerEnvironment.cend(); ++entry) {
        if (entry.value().isNull()) {
            qunsetenv(entry.key().constData());
        } else {
            qputenv(entry.key().constData(), entry.value());
        }
    }
}

bool SoundServer::start()
{
    const QString root = m_folder.path();
    bool isLaunched = false;
    if (m_kind == Kind::PulseAudio) {
        isLaunched =
            launch(QStringLiteral("pulseaudio"),
                   {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                    QStringLiteral("--use-pid-file=no"), QStringLiteral("--exit-idle-time=-1"),
                    QStringLiteral("--realtime=no"), QStringLiteral("--high-priority=no"),
                    QStringLiteral("--log-target=stderr"),
                    QStringLiteral("--load=module-native-protocol-unix socket=%1/pulse/native "
                                   "auth-anonymous=1 auth-cookie-enabled=0")
                        .arg(root)});
    } else {
        isLaunched =
            launch(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--nopidfile"),
                    QStringLiteral("--address=unix:path=%1/bus").arg(root)}) &&
            QTest::qWaitFor([&root] { return QFile::exists(root + "/bus"); }, StartTimeoutMs) &&
            launch(QStringLiteral("pipewire"), {}) &&
            QTest::qWaitFor([&root] { return QFile::exists(root + "/pipewire-0"); },
                            StartTimeoutMs) &&
            launch(QStringLiteral("wireplumber"), {}) &&
            launch(QStringLiteral("pipewire-pulse"), {});
    }
    if (!isLaunched || !waitForAnswer()) {
        qWarning("The sound server didn't start");
        return false;
    }
    for (const std::unique_ptr<QProcess>& process : m_processes) {
        giveRealTimePriority(process->processId());
    }
    m_speakerA = plugSpeaker(QStringLiteral("speaker_a"), QStringLiteral("Test Speaker A"));
    m_speakerB = plugSpeaker(QStringLiteral("speaker_b"), QStringLiteral("Test Speaker B"));
    const QByteArray voice = plugSpeaker(QStringLiteral("voice"), QStringLiteral("Voice"));
    m_microphoneA =
        plugMicrophone(QStringLiteral("microphone_a"), QStringLiteral("Test Microphone A"));
    return !m_speakerA.isEmpty() && !m_speakerB.isEmpty() && !voice.isEmpty() &&
           !m_microphoneA.isEmpty() && makeDefault(QStringLiteral("sink"), "speaker_a") &&
           makeDefault(QStringLiteral("source"), "microphone_a");
}

void SoundServer::kill()
{
    signalAll(SIGKILL);
    for (const std::unique_ptr<QProcess>& process : m_processes) {
        waitFor(*process);
    }
    m_processes.clear();
    for (const char* left : {"/bus", "/pipewire-0", "/pipewire-0.lock", "/pulse/native"}) {
        QFile::remove(m_folder.path() + QString::fromLatin1(left));
    }
}

void SoundServer::freeze()
{
    signalAll(SIGSTOP);
}

void SoundServer::thaw()
{
    signalAll(SIGCONT);
}

QByteArray SoundServer::control(const QStringList& arguments)
{
    QProcess client;
    client.start(QStringLiteral("pactl"), arguments);
    waitFor(client);
    return client.exitStatus() == QProcess::NormalExit && client.exitCode() == 0
               ? client.readAllStandardOutput().trimmed()
               : QByteArray();
}

QByteArray SoundServer::plugSpeaker(const QString& name, const QString& description, int channels,
                                    int rate)
{
    // Without norewinds this module works in blocks of two seconds.
    return control(
        {QStringLiteral("load-module"), QStringLiteral("module-null-sink"),
         QStringLiteral("norewinds=1"), QStringLiteral("sink_name=%1").arg(name),
         QStringLiteral("rate=%1").arg(rate), QStringLiteral("channels=%1").arg(channels),
         QStringLiteral("sink_properties='device.description=\"%1\"'").arg(description)});
}

QByteArray SoundServer::plugMicrophone(const QString& name, const QString& description,
                                       const QString& hears)
{
    return control(
        {QStringLiteral("load-module"), QStringLiteral("module-remap-source"),
         QStringLiteral("source_name=%1").arg(name), QStringLiteral("master=%1.monitor").arg(hears),
         QStringLiteral("source_properties='device.description=\"%1\"'").arg(description)});
}

void SoundServer::unplug(const QByteArray& module)
{
    control({QStringLiteral("unload-module"), QString::fromLatin1(module)});
}

bool SoundServer::cutConnection(const QByteArray& streamName)
{
    const QByteArray streams = control({QStringLiteral("list"), QStringLiteral("sink-inputs")}) +
                               '\n' +
                               control({QStringLiteral("list"), QStringLiteral("source-outputs")});
    QByteArray client;
    for (const QByteArray& line : streams.split('\n')) {
        const QByteArray text = line.trimmed();
        if (text.startsWith("Client: ")) {
            client = text.mid(8);
        } else if (text == "media.name = \"" + streamName + '"') {
            PulseClient killer;
            return killer.connect() && killer.killClient(client.toUInt());
        }
    }
    return false;
}

QStringList SoundServer::state()
{
    QStringList result;
    for (const char* kind : {"sinks", "sources"}) {
        const QList<QByteArray> lines =
            control({QStringLiteral("list"), QLatin1String(kind)}).split('\n');
        for (const QByteArray& line : lines) {
            const QString text = QString::fromUtf8(line.trimmed());
            if (text.startsWith(QLatin1String("Name: "))) {
                result.append(text.mid(6) + QLatin1Char('\t'));
            } else if (text.startsWith(QLatin1String("Mute: ")) ||
                       text.startsWith(QLatin1String("Volume: ")) ||
                       text.startsWith(QLatin1String("balance "))) {
                result.last() += text + QLatin1Char(' ');
            }
        }
    }
    for (const char* query : {"get-default-sink", "get-default-source"}) {
        result.append(QString::fromUtf8(control({QLatin1String(query)})));
    }
    return result;
}

bool SoundServer::launch(const QString& program, const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(m_folder.filePath(program + QStringLiteral(".log")),
                                  QIODevice::Append);
    process->start(program, arguments);
    const bool hasStarted = process->waitForStarted(StartTimeoutMs);
    if (!hasStarted) {
        qWarning("%s can't be started; is it installed?", qUtf8Printable(program));
    }
    m_processes.push_back(std::move(process));
    return hasStarted;
}

bool SoundServer::waitForAnswer()
{
    return QTest::qWaitFor([this] { return !control({QStringLiteral("info")}).isEmpty(); },
                           StartTimeoutMs);
}

// PipeWire accepts the command at once, and its session manager executes it later.
bool SoundServer::makeDefault(const QString& kind, const QByteArray& device)
{
    control({QStringLiteral("set-default-") + kind, QString::fromLatin1(device)});
    return QTest::qWaitFor(
        [&] { return control({QStringLiteral("get-default-") + kind}) == device; }, StartTimeoutMs);
}

void SoundServer::signalAll(int number)
{
    for (const std::unique_ptr<QProcess>& process : m_processes) {
        if (process->state() == QProcess::Running) {
            ::kill(static_cast<pid_t>(process->processId()), number);
        }
    }
}

void SoundServer::setEnvironment(const char* name, const QByteArray& value)
{
    m_formerEnvironment.insert(name,
                               qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray());
    qputenv(name, value);
}

} // namespace TestSupport
