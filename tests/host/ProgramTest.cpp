// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/host/ProgramTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTest>

namespace TestSupport {

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void ProgramTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
}

QString ProgramTest::quickEnd() const
{
    QFile scenario(file("quick-end.json"));
    if (scenario.open(QIODevice::WriteOnly)) {
        scenario.write("{ \"base\": \"all-well\", \"timeline\": "
                       "[ { \"atMs\": 1000, \"event\": \"kickOut\" } ] }");
    }
    return scenario.fileName();
}

std::unique_ptr<QProcess> ProgramTest::started(const QStringList& arguments,
                                               const QString& wrapper) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home->path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home->path());
    environment.remove(QStringLiteral("XDG_DATA_HOME"));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), file("xdg"));
    environment.remove(QStringLiteral("ENVCHECK_SERVER"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process->setProcessEnvironment(environment);
    const QString program = QStringLiteral(ENVCHECK_PROGRAM);
    if (wrapper.isEmpty()) {
        process->start(program, arguments);
    } else {
        process->start(QStringLiteral("bash"),
                       QStringList{QStringLiteral("-c"), wrapper, program} + arguments);
    }
    return process;
}

ProgramTest::Run ProgramTest::finished(QProcess& process)
{
    Run result;
    if (!process.waitForFinished(TimeoutMs)) {
        process.kill();
        process.waitForFinished();
        result.error = QStringLiteral("it didn't end");
        return result;
    }
    result.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.error = QString::fromUtf8(process.readAllStandardError());
    return result;
}

// The results file tells that the network was measured while the dialog was open.
ProgramTest::Run ProgramTest::checked(const QStringList& arguments, int signal,
                                      const QString& wrapper) const
{
    QStringList all = arguments;
    QString results = file("results-of-check.json");
    const int given = static_cast<int>(all.indexOf(QStringLiteral("--results")));
    if (given >= 0) {
        results = all.at(given + 1);
    } else {
        all << QStringLiteral("--results") << results;
    }
    QFile::remove(results);
    const std::unique_ptr<QProcess> process = started(all, wrapper);
    const auto isMeasured = [&results] {
        QFile content(results);
        return content.open(QIODevice::ReadOnly) && content.readAll().contains("delay");
    };
    const bool isOver = QTest::qWaitFor(
        [&] { return isMeasured() || process->state() == QProcess::NotRunning; }, TimeoutMs);
    if (!isOver) {
        qWarning("The check never measured the network");
    }
    if (process->state() == QProcess::Running) { // else the id is 0, which means every program here
        ::kill(static_cast<pid_t>(process->processId()), signal);
    }
    return finished(*process);
}

QJsonObject ProgramTest::jsonOf(const QString& path)
{
    QFile content(path);
    return content.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(content.readAll()).object()
                                             : QJsonObject();
}

QStringList ProgramTest::linesOf(const QString& path)
{
    QFile content(path);
    return content.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(content.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
               : QStringList();
}

void ProgramTest::configure(const char* path, const QByteArray& content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(file(path)).absolutePath()));
    QFile configuration(file(path));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write(content);
}

void ProgramTest::addSignals()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

} // namespace TestSupport
