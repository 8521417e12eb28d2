// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundServer.h"

#include "tests/support/PulseClient.h"
#include "tests/support/RealTimePriority.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <vector>

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

struct SoundServer::System
{
    bool launch(const QString& program, const QStringList& arguments);
    void signalAll(int number);
    void setEnvironment(const char* name, const QByteArray& value);

    QTemporaryDir folder;
    std::vector<std::unique_ptr<QProcess>> processes;
    QMap<QByteArray, QByteArray> formerEnvironment;
};

bool SoundServer::System::launch(const QString& program, const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(folder.filePath(program + QStringLiteral(".log")),
                                  QIODevice::Append);
    process->start(program, arguments);
    const bool hasStarted = process->waitForStarted(StartTimeoutMs);
    if (!hasStarted) {
        qWarning("%s can't be started; is it installed?", qUtf8Printable(program));
    }
    processes.push_back(std::move(process));
    return hasStarted;
}

void SoundServer::System::signalAll(int number)
{
    for (const std::unique_ptr<QProcess>& process : processes) {
        if (process->state() == QProcess::Running) {
            ::kill(static_cast<pid_t>(process->processId()), number);
        }
    }
}

void SoundServer::System::setEnvironment(const char* name, const QByteArray& value)
{
    formerEnvironment.insert(name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray());
    qputenv(name, value);
}

void SoundServer::addTestRows()
{
    QTest::addColumn<Kind>("server");
    QTest::newRow("PulseAudio") << Kind::PulseAudio;
    QTest::newRow("PipeWire") << Kind::PipeWire;
}

SoundServer::SoundServer(Kind kind) : m_kind(kind), m_system(std::make_unique<System>())
{
    const QString root = m_system->folder.path();
    for (const char* folder : {"pulse", "config", "state", "cache"}) {
        QDir(root).mkpath(QString::fromLatin1(folder));
    }
    QFile client(root + QStringLiteral("/client.conf"));
    if (client.open(QIODevice::WriteOnly)) {
        client.write("autospawn = no\n");
    }
    const QByteArray path = QFile::encodeName(root);
    m_system->setEnvironment("XDG_RUNTIME_DIR", path);
    m_system->setEnvironment("XDG_CONFIG_HOME", path + "/config");
    m_system->setEnvironment("XDG_STATE_HOME", path + "/state");
    m_system->setEnvironment("XDG_CACHE_HOME", path + "/cache");
    m_system->setEnvironment("PIPEWIRE_RUNTIME_DIR", path);
    m_system->setEnvironment("PULSE_RUNTIME_PATH", path + "/pulse");
    m_system->setEnvironment("PULSE_STATE_PATH", path + "/state");
    m_system->setEnvironment("PULSE_COOKIE", path + "/cookie");
    m_system->setEnvironment("PULSE_CLIENTCONFIG", path + "/client.conf");
    m_system->setEnvironment("PULSE_SERVER", "unix:" + path + "/pulse/native");
    m_system->setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path + "/bus");
}

SoundServer::~SoundServer()
{
    kill();
    for (auto entry = m_system->formerEnvironment.cbegin();
         entry != m_system->formerEnvironment.cend(); ++entry) {
        if (entry.value().isNull()) {
            qunsetenv(entry.key().constData());
        } else {
            qputenv(entry.key().constData(), entry.value());
        }
    }
}

bool SoundServer::launch()
{
    const QString root = m_system->folder.path();
    bool isLaunched = false;
    if (m_kind == Kind::PulseAudio) {
        isLaunched = m_system->launch(
            QStringLiteral("pulseaudio"),
            {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
             QStringLiteral("--use-pid-file=no"), QStringLiteral("--exit-idle-time=-1"),
             QStringLiteral("--realtime=no"), QStringLiteral("--high-priority=no"),
             QStringLiteral("--log-target=stderr"),
             QStringLiteral("--load=module-native-protocol-unix socket=%1/pulse/native "
                            "auth-anonymous=1 auth-cookie-enabled=0")
                 .arg(root)});
    } else {
        isLaunched =
            m_system->launch(QStringLiteral("dbus-daemon"),
                             {QStringLiteral("--session"), QStringLiteral("--nofork"),
                              QStringLiteral("--nopidfile"),
                              QStringLiteral("--address=unix:path=%1/bus").arg(root)}) &&
            QTest::qWaitFor([&root] { return QFile::exists(root + "/bus"); }, StartTimeoutMs) &&
            m_system->launch(QStringLiteral("pipewire"), {}) &&
            QTest::qWaitFor([&root] { return QFile::exists(root + "/pipewire-0"); },
                            StartTimeoutMs) &&
            m_system->launch(QStringLiteral("wireplumber"), {}) &&
            m_system->launch(QStringLiteral("pipewire-pulse"), {});
    }
    const bool answers =
        isLaunched &&
        QTest::qWaitFor([this] { return !control({QStringLiteral("info")}).isEmpty(); },
                        StartTimeoutMs);
    for (const std::unique_ptr<QProcess>& process : m_system->processes) {
        giveRealTimePriority(process->processId());
    }
    return answers;
}

// The program looks for itself.
void SoundServer::publish()
{
}

void SoundServer::kill()
{
    m_system->signalAll(SIGKILL);
    for (const std::unique_ptr<QProcess>& process : m_system->processes) {
        waitFor(*process);
    }
    m_system->processes.clear();
    for (const char* left : {"/bus", "/pipewire-0", "/pipewire-0.lock", "/pulse/native"}) {
        QFile::remove(m_system->folder.path() + QString::fromLatin1(left));
    }
}

void SoundServer::freeze()
{
    m_system->signalAll(SIGSTOP);
}

void SoundServer::thaw()
{
    m_system->signalAll(SIGCONT);
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

int SoundServer::streams(const char* list, const char* name)
{
    return control({QStringLiteral("list"), QLatin1String(list)}).count(name);
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

} // namespace TestSupport
