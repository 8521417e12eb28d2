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
    result.isDone = line.value(FaultProcess::DoneKey).toBool();
    const QString place =
        result.isDone
            ? QStringLiteral("all repetitions")
            : QStringLiteral("repetition %1").arg(line.value(QLatin1String("number")).toInt());
    const QJsonArray failures = line.value(QLatin1String("failures")).toArray();
    for (const QJsonValue& failure : failures) {
        addFailure(result, place + QStringLiteral(": ") + failure.toString());
    }
}

QStringList arguments(const std::vector<const Fault*>& faults, quint32 seed, int repetitions,
                      const QString& lines)
{
    QStringList result{QStringLiteral("--seed"),        QString::number(seed),
                       QStringLiteral("--repetitions"), QString::number(repetitions),
                       QStringLiteral("--lines"),       lines};
    for (const Fault* fault : faults) {
        result << QStringLiteral("--inject") << QLatin1String(fault->name);
    }
    return result;
}

std::vector<FaultResult> resultsIn(const QByteArray& lines, const std::vector<const Fault*>& faults)
{
    std::vector<FaultResult> results(faults.size());
    for (const QByteArray& text : lines.trimmed().split('\n')) {
        const QJsonObject line = QJsonDocument::fromJson(text).object();
        const QString name = line.value(FaultProcess::FaultKey).toString();
        for (std::size_t i = 0; i < faults.size(); ++i) {
            if (name == QLatin1String(faults[i]->name)) {
                addLine(results[i], line);
            }
        }
    }
    return results;
}

// How the process ended is put down to the fault that it was at.
void judgeEnd(FaultResult& result, bool hasEnded, const QProcess& process,
              const QByteArray& printed)
{
    if (!hasEnded) {
        addFailure(result, QStringLiteral("hang"));
    } else if (process.exitStatus() == QProcess::CrashExit || !result.isDone) {
        addFailure(result, QStringLiteral("crash"));
    } else if (process.exitCode() != 0) {
        addFailure(result, QStringLiteral("exit code %1").arg(process.exitCode()));
    }
    for (const char* mark : SanitizerMarks) {
        if (printed.contains(mark)) {
            addFailure(result, QLatin1String(mark));
        }
    }
}

} // namespace

int FaultProcess::repetitionsOf(const Fault& fault, int repetitions)
{
    if (repetitions > 0) {
        return repetitions;
    }
#ifdef __SANITIZE_ADDRESS__
    return repetitions == Quick ? 1 : fault.full; // it looks for reports, and not for gaps
#else
    return repetitions == Quick ? fault.quick : fault.full;
#endif
}

std::vector<FaultResult> FaultProcess::run(const std::vector<const Fault*>& faults, quint32 seed,
                                           int repetitions)
{
    QTemporaryDir folder;
    const QString lines = folder.filePath(QStringLiteral("lines"));
    const QString output = folder.filePath(QStringLiteral("output"));
    TestSupport::TestProcess process;
    process.setStandardOutputFile(output);
    process.start(QCoreApplication::applicationFilePath(),
                  arguments(faults, seed, repetitions, lines));
    const bool hasEnded = waitFor(process, lines);
    std::vector<FaultResult> results = resultsIn(contentOf(lines), faults);
    auto last = std::find_if(results.begin(), results.end(),
                             [](const FaultResult& result) { return !result.isDone; });
    last = last == results.end() ? results.end() - 1 : last;
    const QByteArray printed = contentOf(output);
    judgeEnd(*last, hasEnded, process, printed);
    if (!last->failures.isEmpty()) {
        fprintf(stderr, "%s\n", printed.right(4000).constData());
    }
    const auto ended = last + 1 - results.begin();
    if (last + 1 != results.end()) {
        const std::vector<FaultResult> others =
            run(std::vector<const Fault*>(faults.begin() + ended, faults.end()), seed, repetitions);
        std::copy(others.begin(), others.end(), last + 1);
    }
    return results;
}
