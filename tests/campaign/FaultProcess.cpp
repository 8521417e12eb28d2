// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/FaultProcess.h"

#include "tests/campaign/Fault.h"
#include "tests/support/TestProcess.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>

namespace {

constexpr int PollMs = 200;
constexpr int HangMs = 120000; // without a repetition that ends
constexpr int ShownFailures = 5;
const char* const SanitizerMarks[] = {"ERROR: AddressSanitizer", "ERROR: LeakSanitizer",
                                      "runtime error: ", "WARNING: ThreadSanitizer"};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void addFailure(FaultResult& result, const QString& failure)
{
    if (result.failures.size() < ShownFailures && !result.failures.contains(failure)) {
        result.failures << failure;
    }
}

// True if it ended by itself.
bool waitFor(TestSupport::TestProcess& process, const QString& lines)
{
    QElapsedTimer sinceLine;
    sinceLine.start();
    qint64 size = 0;
    while (!process.waitForFinished(PollMs) && process.state() != QProcess::NotRunning) {
        const qint64 newSize = QFile(lines).size();
        if (std::exchange(size, newSize) != newSize) {
            sinceLine.restart();
        }
        if (sinceLine.hasExpired(HangMs)) {
            process.sendSignal(SIGKILL);
            process.waitForFinished();
            return false;
        }
    }
    return true;
}

void addLine(FaultResult& result, const QJsonObject& line)
{
    result.injections += line.value(QLatin1String("injections")).toInt();
    result.signalCount += line.value(QLatin1String("signals")).toInt();
    result.longestGapMs =
        std::max(result.longestGapMs, qint64(line.value(QLatin1String("gapMs")).toDouble(-1)));
    const QJsonArray failures = line.value(QLatin1String("failures")).toArray();
    for (const QJsonValue& failure : failures) {
        addFailure(result, QStringLiteral("repetition %1: %2")
                               .arg(QString::number(line.value(QLatin1String("number")).toInt()),
                                    failure.toString()));
    }
}

} // namespace

FaultResult FaultProcess::run(const Fault& fault, quint32 seed, int repetitions)
{
    QTemporaryDir folder;
    const QString lines = folder.filePath(QStringLiteral("lines"));
    const QString output = folder.filePath(QStringLiteral("output"));
    TestSupport::TestProcess process;
    process.setStandardOutputFile(output);
    QElapsedTimer clock;
    clock.start();
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--inject"), QLatin1String(fault.name), QStringLiteral("--seed"),
                   QString::number(seed), QStringLiteral("--repetitions"),
                   QString::number(repetitions), QStringLiteral("--lines"), lines});
    const bool hasEnded = waitFor(process, lines);
    FaultResult result;
    result.ms = clock.elapsed();
    int count = 0;
    for (const QByteArray& line : contentOf(lines).trimmed().split('\n')) {
        ++count;
        addLine(result, QJsonDocument::fromJson(line).object());
    }
    const QByteArray printed = contentOf(output);
    if (!hasEnded) {
        addFailure(result, QStringLiteral("hang in repetition %1").arg(count));
    } else if (process.exitStatus() == QProcess::CrashExit || count < repetitions) {
        addFailure(result, QStringLiteral("crash in repetition %1").arg(count));
    } else if (process.exitCode() == LongGapsCode) {
        addFailure(result, QStringLiteral("more than 1 of 100 gaps is longer than 16.7 ms"));
    } else if (process.exitCode() != 0) {
        addFailure(result, QStringLiteral("exit code %1").arg(process.exitCode()));
    }
    for (const char* mark : SanitizerMarks) {
        if (printed.contains(mark)) {
            addFailure(result, QLatin1String(mark));
        }
    }
    if (!result.failures.isEmpty()) {
        fprintf(stderr, "%s\n", printed.right(4000).constData());
    }
    return result;
}
