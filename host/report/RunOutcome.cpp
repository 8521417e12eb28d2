// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RunOutcome.h"

#include "host/Console.h"
#include "host/TextTable.h"
#include "host/report/Figures.h"
#include "platform/backend/NetworkLimits.h"
#include "platform/backend/ResultCodes.h"
#include "platform/backend/ResultKeys.h"

#include <CommEngine/LumSpeaker.h>

#include <QJsonArray>
#include <algorithm>

namespace {

using Platform::AnswerCode;
using Platform::ReportCode;
using Platform::StateCode;
namespace NetworkLimits = Platform::NetworkLimits;
namespace ResultKeys = Platform::ResultKeys;

// The user has left the network step if another step recorded anything.
bool wasNetworkLeft(const QJsonObject& results, const QJsonObject& measurements)
{
    const auto hasResults = [&results](CheckKind check) {
        return results.contains(ReportWords::of(check));
    };
    // The camera's figures are recorded when its step is left.
    return hasResults(CheckKind::Camera) || hasResults(CheckKind::Speaker) ||
           hasResults(CheckKind::Microphone) ||
           measurements.contains(ReportWords::of(CheckKind::Camera));
}

// What stands beside the verdict: the texts of the step, or why it has no delay.
QString networkText(const QJsonObject& texts, const QJsonObject& measurements)
{
    const QString state = measurements.value(ResultKeys::State).toString();
    if (state == ReportWords::of(Reason::NoServer)) {
        return qtTrId(ReportWords::textId(FigureStatus::NotMeasured))
            .arg(qtTrId(ReportWords::textId(Reason::NoServer)));
    }
    const int delayMs =
        measurements.value(ReportWords::of(FigureName::Delay)).toInt(NetworkLimits::NotMeasured);
    if (delayMs == NetworkLimits::NotMeasured) {
        return qtTrId(ReportWords::textId(FigureStatus::Failed))
            .arg(qtTrId(ReportWords::textId(Figures::whyNoDelay(measurements))));
    }
    return texts.value(ResultKeys::Delay).toString() + QLatin1String(", ") +
           texts.value(ResultKeys::Loss).toString();
}

// The measurements are those at the time of the texts, which the page writes each time it judges
// the figures. So they give the verdict that it shows. If it was left before the first figures, it
// shows "failed".
CheckOutcome networkOutcome(const QJsonObject& texts, const QJsonObject& measurements, bool wasLeft)
{
    CheckOutcome check;
    const QString delay = texts.value(ResultKeys::Delay).toString();
    if (!delay.isEmpty()) {
        const QJsonValue delayMs = measurements.value(ReportWords::of(FigureName::Delay));
        const QJsonValue lossPercent = measurements.value(ReportWords::of(FigureName::Loss));
        const bool isGood = delayMs.isDouble() && lossPercent.isDouble() &&
                            NetworkLimits::arePassed(delayMs.toInt(), lossPercent.toInt());
        check.verdict = isGood ? Verdict::Passed : Verdict::Failed;
        check.device = networkText(texts, measurements);
    } else if (wasLeft) {
        check.verdict = Verdict::Failed;
    }
    return check;
}

CheckOutcome deviceOutcome(CheckKind kind, const QJsonObject& values)
{
    CheckOutcome check{kind, Verdict::NotTested, values.value(ResultKeys::Device).toString()};
    const auto answer = static_cast<AnswerCode>(values.value(ResultKeys::UserState).toInt());
    const auto state = static_cast<StateCode>(values.value(ResultKeys::DeviceState).toInt());
    if (answer != AnswerCode::None) {
        const bool isGood = answer == AnswerCode::Yes && state == StateCode::Works;
        check.verdict = isGood ? Verdict::Passed : Verdict::Failed;
    }
    return check;
}

// The state of a speaker only says that the right sound was picked. If the speaker disappeared
// after that, only its name shows it.
CheckOutcome speakerOutcome(const QJsonObject& values)
{
    CheckOutcome check = deviceOutcome(CheckKind::Speaker, values);
    if (check.verdict == Verdict::Passed && LumSpeaker::isNoneDeviceText(check.device)) {
        check.verdict = Verdict::Failed;
    }
    return check;
}

template <typename Value>
QString textOf(Value value)
{
    return qtTrId(ReportWords::textId(value));
}

} // namespace

RunOutcome RunOutcome::fromDocument(const QJsonObject& document, bool wasPutOut)
{
    const QJsonObject results = document.value(ResultKeys::Results).toObject();
    const auto values = [&results](CheckKind check) {
        return results.value(ReportWords::of(check)).toObject();
    };
    RunOutcome outcome;
    const QJsonObject measurements = document.value(ResultKeys::Measurements).toObject();
    outcome.checks = {
        networkOutcome(values(CheckKind::Network),
                       measurements.value(ReportWords::of(CheckKind::Network)).toObject(),
                       wasNetworkLeft(results, measurements)),
        deviceOutcome(CheckKind::Camera, values(CheckKind::Camera)),
        speakerOutcome(values(CheckKind::Speaker)),
        deviceOutcome(CheckKind::Microphone, values(CheckKind::Microphone)),
    };
    const QJsonArray codes = document.value(ResultKeys::Codes).toArray();
    if (wasPutOut) {
        outcome.exitCode = ExitCode::PutOut;
    } else if (!codes.contains(static_cast<int>(ReportCode::AllAnswered))) {
        outcome.exitCode = ExitCode::LeftEarly;
    } else {
        const bool areAllPassed =
            std::all_of(outcome.checks.begin(), outcome.checks.end(),
                        [](const CheckOutcome& c) { return c.verdict == Verdict::Passed; });
        outcome.exitCode = areAllPassed ? ExitCode::AllPassed : ExitCode::SomeFailed;
    }
    return outcome;
}

RunOutcome RunOutcome::withDevicesOf(const Report& report) const
{
    RunOutcome result = *this;
    for (CheckOutcome& outcome : result.checks) {
        const ReportCheck* check = report.check(outcome.check);
        if (check && check->kind != CheckKind::Network) { // the network shows its figures there
            outcome.device = check->device;
        }
    }
    return result;
}

QString RunOutcome::toText() const
{
    TextTable table;
    for (const CheckOutcome& check : checks) {
        table.addRow(
            {textOf(check.check), textOf(check.verdict), Console::plainLine(check.device)});
    }
    return table.toText();
}
