// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/NetworkCommand.h"

#include "host/Configuration.h"
#include "host/Console.h"
#include "host/Folders.h"
#include "host/InstalledEngine.h"
#include "host/Options.h"
#include "host/report/NetworkGrade.h"
#include "host/report/ReportWords.h"
#include "platform/backend/Engine.h"
#include "platform/backend/Log.h"
#include "platform/backend/NetworkLimits.h"
#include "platform/backend/ResultKeys.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

// A probe reports figures every second, even if the server doesn't answer.
constexpr int FirstFigureMs = 5000;

// Prints what a probe measures: a terminal gets one line that changes, a file a line per figure.
class FigurePrinter final : public Platform::NetworkProbe::Listener
{
public:
    FigurePrinter(Platform::Engine& engine, const Options& options)
        : m_isJson(options.isJson),
          m_count(options.count),
          m_probe(engine.createNetworkProbe(*this))
    {
    }

    virtual ~FigurePrinter() = default;

    void networkFiguresChanged() override
    {
        m_last = m_probe->figures();
        ++m_printed;
        const bool isLast = m_count > 0 && m_printed >= m_count;
        if (m_isJson) {
            Console::print(jsonLine() + QLatin1Char('\n'));
        } else if (Console::isTerminal()) {
            Console::print(QStringLiteral("\r\033[K") + line() +
                           (isLast ? QStringLiteral("\n") : QString()));
        } else {
            Console::print(line() + QLatin1Char('\n'));
        }
        if (isLast) {
            QCoreApplication::quit();
        }
    }

    bool hasServer() const { return m_last.problem != Platform::NetworkProblem::NoServer; }
    bool hasPrinted() const { return m_printed > 0; }
    bool hasPassed() const
    {
        return m_printed > 0 &&
               Platform::NetworkLimits::arePassed(m_last.delayMs, m_last.lossPercent);
    }

private:
    const char* noFigureId() const
    {
        switch (m_last.problem) {
        case Platform::NetworkProblem::NoSuchHost:
            return "ID_Host_Network_NoSuchServer";
        case Platform::NetworkProblem::Refused:
            return "ID_Host_Network_Refused";
        case Platform::NetworkProblem::NoRoute:
            return "ID_Host_Network_NoRoute";
        case Platform::NetworkProblem::NoServer:
        case Platform::NetworkProblem::None:
            break;
        }
        return "ID_Host_Network_NoAnswer";
    }

    // Without an answer, nothing is known until the first request is overdue: it counts as lost
    // then.
    bool isLossKnown() const { return m_last.answered > 0 || m_last.lossPercent > 0; }

    QString line() const
    {
        if (m_last.delayMs < 0) {
            return qtTrId(noFigureId())
                .arg(isLossKnown() ? QString::number(m_last.lossPercent) : QStringLiteral("–"))
                .arg(m_last.sent)
                .arg(m_last.answered);
        }
        return qtTrId("ID_Host_Network_Figures")
            .arg(m_last.delayMs)
            .arg(m_last.jitterMs)
            .arg(m_last.lossPercent)
            .arg(m_last.sent)
            .arg(m_last.answered)
            .arg(hasServer()
                     ? qtTrId(ReportWords::textId(NetworkGrade::of(m_last).level))
                     : qtTrId("ID_Host_NotMeasured").arg(qtTrId("ID_Host_Reason_NoServer")));
    }

    // null stands for what isn't known.
    void removeUnknown(QJsonObject& object) const
    {
        if (m_last.delayMs < 0) {
            for (const FigureName name :
                 {FigureName::Delay, FigureName::Delay5, FigureName::Delay95, FigureName::Jitter}) {
                object.insert(ReportWords::of(name), QJsonValue());
            }
        }
        if (!isLossKnown()) {
            object.insert(ReportWords::of(FigureName::Loss), QJsonValue());
        }
    }

    // The words are those of the report.
    QString jsonLine() const
    {
        using Platform::NetworkProblem;
        const Verdict verdict = !hasServer()  ? Verdict::NotTested
                                : hasPassed() ? Verdict::Passed
                                              : Verdict::Failed;
        QJsonObject object = Platform::toJson(m_last);
        object.remove(Platform::ResultKeys::State);
        removeUnknown(object);
        object.insert(QStringLiteral("verdict"), ReportWords::of(verdict));
        object.insert(Platform::ResultKeys::Cause,
                      verdict == Verdict::Passed ? QJsonValue() : QJsonValue(cause()));
        return Console::plainJson(QJsonDocument(object), QJsonDocument::Compact);
    }

    // Of figures that don't pass.
    QString cause() const
    {
        if (m_last.problem != Platform::NetworkProblem::None) {
            return Platform::wordOf(m_last.problem);
        }
        if (m_last.delayMs < 0) {
            return ReportWords::of(Reason::NoAnswer);
        }
        const bool isSlow = !Platform::NetworkLimits::arePassed(m_last.delayMs, 0);
        return ReportWords::of(isSlow ? Cause::Slow : Cause::Lossy);
    }

    const bool m_isJson;
    const int m_count;
    int m_printed = 0;
    Platform::NetworkFigures m_last;
    std::unique_ptr<Platform::NetworkProbe> m_probe;
};

} // namespace

ExitCode NetworkCommand::run(const Options& options)
{
    InstalledEngine installed(options, Folders::data());
    if (!installed.error().isEmpty()) {
        Console::printError(installed.error());
        return installed.errorCode();
    }
    if (!installed.prepare()) {
        return ExitCode::SomeFailed;
    }
    const Platform::SystemFacts& facts = installed.engine().systemFacts();
    if (!options.isJson) {
        Console::print(qtTrId("ID_Host_Network_Ends")
                           .arg(Console::plainLine(facts.serverName()),
                                Console::plainLine(facts.clientAddress())) +
                       QLatin1Char('\n'));
    }
    const FigurePrinter printer(installed.engine(), options);
    bool isUnmeasured = false;
    const QObject context; // the timer may outlive what it looks at
    QTimer::singleShot(FirstFigureMs, &context, [&printer, &isUnmeasured] {
        isUnmeasured = !printer.hasPrinted();
        if (isUnmeasured) {
            QCoreApplication::quit();
        }
    });
    QCoreApplication::exec();
    if (isUnmeasured) {
        // A fault of the system as rare as this has no text in every language.
        qCWarning(Platform::Log::network, "Nothing is measured: the system may refuse more "
                                          "threads. End other programs, or raise the limit");
        return ExitCode::Unavailable;
    }
    if (options.count == 0 && !options.isJson && Console::isTerminal()) {
        Console::print(QStringLiteral("\n"));
    }
    if (!printer.hasServer()) {
        Console::printError(qtTrId("ID_Host_Network_NameServer")
                                .arg(QLatin1String(Configuration::ServerVariable),
                                     Configuration::usualFiles().constFirst()));
        return ExitCode::Unavailable;
    }
    return printer.hasPassed() ? ExitCode::AllPassed : ExitCode::SomeFailed;
}
