// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/NetworkCommand.h"

#include "host/Console.h"
#include "host/Folders.h"
#include "host/InstalledEngine.h"
#include "host/Languages.h"
#include "host/Options.h"
#include "host/report/NetworkGrade.h"
#include "host/report/ReportWords.h"
#include "platform/backend/Engine.h"
#include "platform/backend/NetworkLimits.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

// A probe tells its figures every second, also if nobody answers.
constexpr int FirstFigureMs = 5000;

// Prints what a probe measures: a terminal gets one line that changes, a file a line per figure.
class FigurePrinter final : public Platform::NetworkProbe::Listener
{
public:
    FigurePrinter(Platform::Engine& engine, int count)
        : m_count(count), m_probe(engine.createNetworkProbe(*this))
    {
    }

    virtual ~FigurePrinter() = default;

    void networkFiguresChanged() override
    {
        m_last = m_probe->figures();
        ++m_printed;
        const bool isLast = m_count > 0 && m_printed >= m_count;
        if (Console::isTerminal()) {
            Console::print(QStringLiteral("\r\033[K") + line() +
                           (isLast ? QStringLiteral("\n") : QString()));
        } else {
            Console::print(line() + QLatin1Char('\n'));
        }
        if (isLast) {
            QCoreApplication::quit();
        }
    }

    bool hasPrinted() const { return m_printed > 0; }
    bool hasPassed() const
    {
        return m_printed > 0 &&
               Platform::NetworkLimits::arePassed(m_last.delayMs, m_last.lossPercent);
    }

private:
    QString line() const
    {
        if (m_last.delayMs < 0) {
            return QStringLiteral("no answer, loss %1 %, sent %2, answered %3")
                .arg(m_last.lossPercent)
                .arg(m_last.sent)
                .arg(m_last.answered);
        }
        return QStringLiteral("delay %1 ms, jitter %2 ms, loss %3 %, sent %4, answered %5: %6")
            .arg(m_last.delayMs)
            .arg(m_last.jitterMs)
            .arg(m_last.lossPercent)
            .arg(m_last.sent)
            .arg(m_last.answered)
            .arg(ReportWords::of(NetworkGrade::of(m_last).level));
    }

    const int m_count;
    int m_printed = 0;
    Platform::NetworkFigures m_last;
    std::unique_ptr<Platform::NetworkProbe> m_probe;
};

} // namespace

ExitCode NetworkCommand::run(const Options& options)
{
    // The name of the built-in responder is a text.
    Languages languages;
    const QString problem = languages.use(QStringLiteral("en"));
    if (!problem.isEmpty()) {
        Console::printError(problem);
        return ExitCode::Unavailable;
    }
    InstalledEngine installed(options, Folders::data());
    if (!installed.error().isEmpty()) {
        Console::printError(installed.error());
        return installed.errorCode();
    }
    if (!installed.prepare()) {
        return ExitCode::SomeFailed;
    }
    const Platform::SystemFacts& facts = installed.engine().systemFacts();
    Console::print(QStringLiteral("server %1, this machine %2\n")
                       .arg(Console::plainLine(facts.serverName()),
                            Console::plainLine(facts.clientAddress())));
    const FigurePrinter printer(installed.engine(), options.count);
    bool isUnmeasured = false;
    QTimer::singleShot(FirstFigureMs, QCoreApplication::instance(), [&printer, &isUnmeasured] {
        isUnmeasured = !printer.hasPrinted();
        if (isUnmeasured) {
            QCoreApplication::quit();
        }
    });
    QCoreApplication::exec();
    if (isUnmeasured) {
        Console::printError(QStringLiteral("nothing is measured: the system may refuse more "
                                           "threads; end other programs, or raise the limit"));
        return ExitCode::Unavailable;
    }
    if (options.count == 0 && Console::isTerminal()) {
        Console::print(QStringLiteral("\n"));
    }
    return printer.hasPassed() ? ExitCode::AllPassed : ExitCode::SomeFailed;
}
