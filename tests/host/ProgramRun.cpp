// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/host/ProgramRun.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <csignal>

namespace {

constexpr int StartTimeoutMs = 20000;

qint64 nowMs()
{
    return QDateTime::currentMSecsSinceEpoch();
}

// Signals that the process handles itself, one bit for each.
quint64 caughtSignals(qint64 process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    static const QRegularExpression caught(QStringLiteral("SigCgt:\\s*([0-9a-f]+)"));
    return caught.match(QString::fromLatin1(status.readAll())).captured(1).toULongLong(nullptr, 16);
}

} // namespace

ProgramRun::ProgramRun(const QString& home)
    : m_home(home), m_environment(QProcessEnvironment::systemEnvironment())
{
    m_environment.remove(QStringLiteral("XDG_DATA_HOME"));
    setVariable("HOME", home);
    setVariable("XDG_RUNTIME_DIR", home);
    setVariable("LC_ALL", QStringLiteral("C.UTF-8"));
}

ProgramRun::~ProgramRun()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void ProgramRun::setVariable(const char* name, const QString& value)
{
    m_environment.insert(QLatin1String(name), value);
}

void ProgramRun::setFault(const char* name, const QString& value)
{
    setVariable(name, value);
    addPreload(QStringLiteral(ENVCHECK_FAULTS));
}

void ProgramRun::addPreload(const QString& library)
{
    if (!m_preloads.contains(library)) {
        m_preloads << library;
    }
    setVariable("LD_PRELOAD", m_preloads.join(QLatin1Char(':')));
    // The sanitizer wants to be the first library.
    setVariable("ASAN_OPTIONS", QStringLiteral("verify_asan_link_order=0"));
}

void ProgramRun::setWrapper(const QString& script)
{
    m_wrapper = script;
}

void ProgramRun::start(const QStringList& arguments)
{
    m_process.setProcessEnvironment(m_environment);
    m_startedAtMs = nowMs();
    const QString program = QStringLiteral(ENVCHECK_PROGRAM);
    if (m_wrapper.isEmpty()) {
        m_process.start(program, arguments);
    } else {
        m_process.start(QStringLiteral("bash"),
                        QStringList{QStringLiteral("-c"), m_wrapper, program} + arguments);
    }
}

bool ProgramRun::catchesSignals()
{
    constexpr quint64 Terminate = quint64(1) << (SIGTERM - 1);
    return m_process.waitForStarted(StartTimeoutMs) &&
           QTest::qWaitFor(
               [this] { return (caughtSignals(m_process.processId()) & Terminate) != 0; },
               StartTimeoutMs);
}

bool ProgramRun::hasPrinted(const QByteArray& text)
{
    return QTest::qWaitFor(
        [this, &text] {
            m_printed += m_process.readAllStandardOutput();
            return m_printed.contains(text);
        },
        StartTimeoutMs);
}

void ProgramRun::signal(int number)
{
    m_startedAtMs = nowMs();
    // Zero would be everybody in the group of the test.
    const auto process = static_cast<pid_t>(m_process.processId());
    if (process > 0) {
        ::kill(process, number);
    }
}

ProgramRun::Result ProgramRun::finish(int timeoutMs)
{
    Result result;
    const bool hasEnded =
        m_process.waitForFinished(timeoutMs) || m_process.state() == QProcess::NotRunning;
    result.ms = nowMs() - m_startedAtMs;
    if (!hasEnded) {
        m_process.kill();
        m_process.waitForFinished();
        result.error = QStringLiteral("it didn't end");
        return result;
    }
    const bool isCrash = m_process.exitStatus() != QProcess::NormalExit;
    const int number = m_process.exitCode(); // of the signal after a crash
    result.code = isCrash ? -1 : number;
    result.isEndedBySignal =
        isCrash && (number == SIGINT || number == SIGTERM || number == SIGHUP || number == SIGKILL);
    result.out = QString::fromUtf8(m_printed + m_process.readAllStandardOutput());
    result.error = QString::fromUtf8(m_process.readAllStandardError());
    return result;
}
