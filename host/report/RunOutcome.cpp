// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RunOutcome.h"

#include "host/Console.h"
#include "host/NetworkLimits.h"

#include <QJsonArray>
#include <QTextStream>
#include <algorithm>

namespace {

constexpr int AnsweredYes = 1;
constexpr int AnsweredNothing = 0;
constexpr int DeviceWorks = 1;
constexpr int ReportAllAnswered = 3;

int leadingNumber(const QString& text, int fallback)
{
    int digits = 0;
    while (digits < text.size() && text.at(digits).isDigit()) {
        ++digits;
    }
    return digits > 0 ? text.leftRef(digits).toInt() : fallback;
}

CheckOutcome networkOutcome(const QJsonObject& values)
{
    CheckOutcome check{QStringLiteral("network"), qtTrId("ID_CheckResultPage_System"),
                       CheckOutcome::Verdict::NotTested, QString()};
    const QString delay = values.value(QLatin1String("delay")).toString();
    const QString loss = values.value(QLatin1String("loss")).toString();
    if (!delay.isEmpty()) {
        const bool isGood = NetworkLimits::arePassed(
            leadingNumber(delay, -1), leadingNumber(loss, NetworkLimits::WorstLossPercent + 1));
        check.verdict = isGood ? CheckOutcome::Verdict::Passed : CheckOutcome::Verdict::Failed;
        check.device = delay + QLatin1String(", ") + loss;
    }
    return check;
}

CheckOutcome deviceOutcome(const QString& key, const QString& name, const QJsonObject& values)
{
    CheckOutcome check{key, name, CheckOutcome::Verdict::NotTested,
                       values.value(QLatin1String("device")).toString()};
    const int answer = values.value(QLatin1String("userState")).toInt(AnsweredNothing);
    if (answer != AnsweredNothing) {
        const bool isGood = answer == AnsweredYes &&
                            values.value(QLatin1String("deviceState")).toInt() == DeviceWorks;
        check.verdict = isGood ? CheckOutcome::Verdict::Passed : CheckOutcome::Verdict::Failed;
    }
    return check;
}

QString verdictText(CheckOutcome::Verdict verdict)
{
    switch (verdict) {
    case CheckOutcome::Verdict::Passed:
        return qtTrId("ID_CheckResultPage_Normal");
    case CheckOutcome::Verdict::Failed:
        return qtTrId("ID_CheckResultPage_Abnormal");
    case CheckOutcome::Verdict::NotTested:
        break;
    }
    return qtTrId("ID_CameraPage_NotDetected");
}

} // namespace

RunOutcome RunOutcome::fromDocument(const QJsonObject& document, bool wasPutOut)
{
    const QJsonObject results = document.value(QLatin1String("results")).toObject();
    const auto values = [&results](const char* check) {
        return results.value(QLatin1String(check)).toObject();
    };
    RunOutcome outcome;
    outcome.checks = {
        networkOutcome(values("network")),
        deviceOutcome(QStringLiteral("camera"), qtTrId("ID_Camera_Check"), values("camera")),
        deviceOutcome(QStringLiteral("speaker"), qtTrId("ID_CheckResultPage_Headphone"),
                      values("speaker")),
        deviceOutcome(QStringLiteral("microphone"), qtTrId("ID_Microphone_Check"),
                      values("microphone")),
    };
    const QJsonArray codes = document.value(QLatin1String("codes")).toArray();
    if (wasPutOut) {
        outcome.exitCode = ExitCode::PutOut;
    } else if (!codes.contains(ReportAllAnswered)) {
        outcome.exitCode = ExitCode::LeftEarly;
    } else {
        const bool areAllPassed =
            std::all_of(outcome.checks.begin(), outcome.checks.end(), [](const CheckOutcome& c) {
                return c.verdict == CheckOutcome::Verdict::Passed;
            });
        outcome.exitCode = areAllPassed ? ExitCode::AllPassed : ExitCode::SomeFailed;
    }
    return outcome;
}

QString RunOutcome::toText() const
{
    constexpr int Gap = 2;
    int nameWidth = 0;
    int verdictWidth = 0;
    for (const CheckOutcome& check : checks) {
        nameWidth = std::max(nameWidth, Console::columns(check.name) + Gap);
        verdictWidth = std::max(verdictWidth, Console::columns(verdictText(check.verdict)) + Gap);
    }
    QString text;
    QTextStream stream(&text);
    for (const CheckOutcome& check : checks) {
        stream << Console::padded(check.name, nameWidth)
               << Console::padded(verdictText(check.verdict), verdictWidth)
               << Console::plainLine(check.device) << '\n';
    }
    stream.flush();
    return text;
}
