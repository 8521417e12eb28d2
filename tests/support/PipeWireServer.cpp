// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PipeWireServer.h"

#include "tests/support/TestProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtTest>
#include <csignal>

namespace TestSupport {

namespace {

constexpr int StartTimeoutMs = 10000;

const QString Bus = QStringLiteral("dbus-daemon");
const QString Server = QStringLiteral("pipewire");
const QString Manager = QStringLiteral("wireplumber");

// Hides the machine's own devices.
const char ManagerConfiguration[] = "alsa_monitor.enabled = false\n"
                                    "v4l2_monitor.enabled = false\n"
                                    "libcamera_monitor.enabled = false\n";

const QString ManagerScripts = QStringLiteral("/usr/share/wireplumber/scripts/");
const char NoCamera[] = "no node available";

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QFileInfo(path).dir().mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(StartTimeoutMs);
    return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

PipeWireServer::PipeWireServer(const Habits& habits)
    : m_habits(habits),
      m_runtime(m_folder.filePath(QStringLiteral("run"))),
      m_before(QProcessEnvironment::systemEnvironment())
{
    QDir().mkpath(m_runtime);
    QFile::setPermissions(m_runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    setEnvironment();
}

PipeWireServer::~PipeWireServer()
{
    stop();
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString& name : names) {
        if (m_before.contains(name)) {
            qputenv(name.toUtf8().constData(), m_before.value(name).toUtf8());
        } else {
            qunsetenv(name.toUtf8().constData());
        }
    }
}

bool PipeWireServer::start()
{
    m_problem.clear();
    if (!writeConfiguration()) {
        m_problem = QStringLiteral("can't write to ") + folder();
        return false;
    }
    const QString bus = m_runtime + QStringLiteral("/bus");
    return startProgram(Bus, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                              QStringLiteral("--nopidfile"),
                              QStringLiteral("--address=unix:path=") + bus}) &&
           waitFor(Bus, [bus] { return QFileInfo::exists(bus); }) && startProgram(Server) &&
           waitFor(Server, [this] { return isSocketThere(); }) && startProgram(Manager) &&
           waitFor(Manager, [] {
               return outputOf(QStringLiteral("wpctl"), {QStringLiteral("status")})
                   .contains("WirePlumber [export]");
           });
}

void PipeWireServer::stop()
{
    while (!m_programs.empty()) {
        m_programs.back().process->end();
        m_programs.pop_back();
    }
    // The socket of a killed server would look like a running one.
    const QStringList remains =
        QDir(m_runtime).entryList(QDir::System | QDir::Files | QDir::Hidden);
    for (const QString& name : remains) {
        QFile::remove(QDir(m_runtime).filePath(name));
    }
}

void PipeWireServer::kill()
{
    signal(Server, SIGKILL);
    stop();
}

void PipeWireServer::freeze()
{
    signal(Server, SIGSTOP);
}

void PipeWireServer::thaw()
{
    signal(Server, SIGCONT);
}

void PipeWireServer::freezeManager()
{
    signal(Manager, SIGSTOP);
}

void PipeWireServer::thawManager()
{
    signal(Manager, SIGCONT);
}

bool PipeWireServer::cutConnections(bool withStream)
{
    QSet<int> all;
    QSet<int> streaming;
    const QJsonArray objects =
        QJsonDocument::fromJson(outputOf(QStringLiteral("pw-dump"), {})).array();
    for (const QJsonValue& object : objects) {
        const QJsonObject properties =
            object[QStringLiteral("info")][QStringLiteral("props")].toObject();
        const QString type = object[QStringLiteral("type")].toString();
        if (type.endsWith(QLatin1String(":Client")) &&
            properties.value(QStringLiteral("pipewire.sec.pid")).toInt() ==
                QCoreApplication::applicationPid()) {
            all.insert(object[QStringLiteral("id")].toInt());
        } else if (type.endsWith(QLatin1String(":Node"))) {
            streaming.insert(properties.value(QStringLiteral("client.id")).toInt());
        }
    }
    const QSet<int> cut = withStream ? all & streaming : all - streaming;
    for (const int id : cut) {
        outputOf(QStringLiteral("pw-cli"), {QStringLiteral("destroy"), QString::number(id)});
    }
    return !cut.isEmpty();
}

bool PipeWireServer::isSocketThere() const
{
    return QFileInfo::exists(m_runtime + QStringLiteral("/pipewire-0"));
}

void PipeWireServer::setEnvironment()
{
    const auto set = [](const char* name, const QString& value) { qputenv(name, value.toUtf8()); };
    set("XDG_RUNTIME_DIR", m_runtime);
    set("PIPEWIRE_RUNTIME_DIR", m_runtime);
    set("XDG_CONFIG_HOME", m_folder.filePath(QStringLiteral("config")));
    set("XDG_STATE_HOME", m_folder.filePath(QStringLiteral("state")));
    set("DBUS_SESSION_BUS_ADDRESS", QStringLiteral("unix:path=%1/bus").arg(m_runtime));
    set("PULSE_SERVER", QStringLiteral("unix:%1/pulse/native").arg(m_runtime)); // nobody is there
    qunsetenv("PIPEWIRE_REMOTE");
}

bool PipeWireServer::writeConfiguration()
{
    return writeFile(
               m_folder.filePath(QStringLiteral("config/wireplumber/main.lua.d/51-no-devices.lua")),
               ManagerConfiguration) &&
           writeManagerScript();
}

// The usual script with another message. A user's script goes before that of the system.
bool PipeWireServer::writeManagerScript()
{
    if (m_habits.noCamera.isEmpty()) {
        return true;
    }
    QFile usual(ManagerScripts + QStringLiteral("policy-node.lua"));
    QByteArray script = usual.open(QIODevice::ReadOnly) ? usual.readAll() : QByteArray();
    return script.contains(NoCamera) &&
           writeFile(
               m_folder.filePath(QStringLiteral("config/wireplumber/scripts/policy-node.lua")),
               script.replace(NoCamera, m_habits.noCamera));
}

bool PipeWireServer::startProgram(const QString& name, const QStringList& arguments)
{
    auto process = std::make_unique<TestProcess>();
    if (!m_habits.language.isEmpty()) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), m_habits.language);
        process->setProcessEnvironment(environment);
    }
    process->start(name, arguments);
    if (!process->waitForStarted(StartTimeoutMs)) {
        m_problem = QStringLiteral("can't start %1: %2").arg(name, process->errorString());
        return false;
    }
    m_programs.push_back({name, std::move(process)});
    return true;
}

bool PipeWireServer::waitFor(const QString& what, const std::function<bool()>& isReady)
{
    if (QTest::qWaitFor(isReady, StartTimeoutMs)) {
        return true;
    }
    m_problem = QStringLiteral("%1 isn't ready: %2")
                    .arg(what, QString::fromUtf8(m_programs.back().process->readAll()));
    return false;
}

void PipeWireServer::signal(const QString& name, int number) const
{
    for (const Program& program : m_programs) {
        if (program.name == name) {
            program.process->sendSignal(number);
        }
    }
}

} // namespace TestSupport
