// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RunOutcome.h"

#include "host/Console.h"
#include "host/TextTable.h"
#include "platform/backend/NetworkLimits.h"
#include "platform/backend/ResultCodes.h"
#include "platform/backend/ResultKeys.h"

#include <CommEngine/LumSpeaker.h>

#include <QJsonArray>
#include <algorithm>
#include <optional>

namespace {

using Platform::AnswerCode;
using Platform::ReportCode;
using Platform::StateCode;
namespace NetworkLimits = Platform::NetworkLimits;
namespace ResultKeys = Platform::ResultKeys;

const QLatin1String DelayUnit("ms");
const QLatin1String LossUnit("%");

// The number before the unit; nothing if there is none, as in "N/A".
std::optional<int> numberIn(const QString& text, QLatin1String unit)
{
    bool isNumber = false;
    const int number = text.endsWith(unit) ? text.chopped(unit.size()).toInt(&isNumber) : 0;
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

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

// The page writes both texts each time it judges the figures, so the last texts give the verdict
// that it shows. If it was left before the first figures, it shows "failed".
CheckOutcome networkOutcome(const QJsonObject& values, bool wasLeft)
{
    CheckOutcome check;
    const QString delay = values.value(ResultKeys::Delay).toString();
    const QString loss = values.value(ResultKeys::Loss).toString();
    if (!delay.isEmpty()) {
        const std::optional<int> delayMs = numberIn(delay, DelayUnit);
        const std::optional<int> lossPercent = numberIn(loss, LossUnit);
        const bool isGood =
            delayMs && lossPercent && NetworkLimits::arePassed(*delayMs, *lossPercent);
        check.verdict = isGood ? Verdict::Passed : Verdict::Failed;
        check.device = delay + QLatin1String(", ") + loss;
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
        networkOutcome(values(CheckKind::Network), wasNetworkLeft(results, measurements)),
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

QString RunOutcome::toText() const
{
    TextTable table;
    for (const CheckOutcome& check : checks) {
        table.addRow(
            {textOf(check.check), textOf(check.verdict), Console::plainLine(check.device)});
    }
    return table.toText();
}
