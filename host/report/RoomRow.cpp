// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RoomRow.h"

#include "host/Console.h"

#include <algorithm>
#include <numeric>

namespace {

QString factOf(const Report& report, const char* key)
{
    return Console::plainLine(report.facts.value(QLatin1String(key)).toString());
}

std::optional<double> figureOf(const Report& report, FigureName name)
{
    const ReportCheck* network = report.check(CheckKind::Network);
    const Measurement* figure = network ? network->measurement(name) : nullptr;
    const bool isMeasured = figure && figure->status == FigureStatus::Measured;
    return isMeasured && figure->value.isDouble() ? std::optional<double>(figure->value.toDouble())
                                                  : std::nullopt;
}

QJsonValue jsonOf(std::optional<double> number)
{
    return number ? QJsonValue(*number) : QJsonValue();
}

// Of several devices the first that doesn't work.
RoomRow::Check checkOf(const Report& report, CheckKind kind)
{
    const ReportCheck* check = report.check(kind);
    if (!check) {
        return {kind, Verdict::NotTested, {}, {}};
    }
    const auto bad =
        std::find_if(report.checks.begin(), report.checks.end(), [kind](const ReportCheck& other) {
            return other.kind == kind && isBad(other.verdict);
        });
    check = bad == report.checks.end() ? check : &*bad;
    return {kind, check->verdict, Console::plainLine(check->device), check->causes};
}

} // namespace

RoomRow RoomRow::of(const Report& report, const QString& name)
{
    RoomRow row;
    row.id = Console::plainLine(report.id);
    row.programVersion = Console::plainLine(report.programVersion);
    row.finished = report.finished;
    row.computer = factOf(report, "computer");
    if (row.computer.isEmpty()) {
        row.computer = Console::plainLine(name);
    }
    row.account = factOf(report, "account");
    row.operatingSystem = factOf(report, "operatingSystem");
    row.server = factOf(report, "server");
    row.platform = report.platform;
    row.redaction = report.redaction;
    row.outcome = report.outcome;
    for (const auto& check : ReportWords::table<CheckKind>()) {
        if (isStep(check.value) || report.check(check.value)) {
            row.checks.push_back(checkOf(report, check.value));
        }
    }
    row.delayMs = figureOf(report, FigureName::Delay);
    row.jitterMs = figureOf(report, FigureName::Jitter);
    row.lossPercent = figureOf(report, FigureName::Loss);
    row.grade = report.grade;
    row.contradictions = std::accumulate(
        report.checks.begin(), report.checks.end(), 0, [](int sum, const ReportCheck& check) {
            return sum + static_cast<int>(check.contradictions.size());
        });
    return row;
}

QString RoomRow::causes() const
{
    QStringList words;
    for (const Check& check : checks) {
        for (const Cause cause : check.causes) {
            words << ReportWords::of(check.kind) + QLatin1Char(':') + ReportWords::of(cause);
        }
    }
    return words.join(QLatin1Char(' '));
}

QString RoomRow::loopWord() const
{
    const auto loop = std::find_if(checks.begin(), checks.end(), [](const Check& check) {
        return check.kind == CheckKind::Loop;
    });
    return loop == checks.end() ? QString() : ReportWords::of(loop->verdict);
}

// A failed check outweighs everything that wasn't tested, that outweighs the contradictions, and
// those outweigh the grade.
int RoomRow::badness() const
{
    constexpr int Failed = 1000;
    constexpr int NotTested = 100;
    constexpr int Contradiction = 10;
    constexpr int MostContradictions = 9;
    int sum = grade ? static_cast<int>(*grade) : 0;
    sum += Contradiction * std::min(contradictions, MostContradictions);
    for (const Check& check : checks) {
        sum += isBad(check.verdict) ? Failed : isGood(check.verdict) ? 0 : NotTested;
    }
    return sum;
}

std::vector<RoomRow::Field> RoomRow::fields() const
{
    const auto verdict = [this](std::size_t i) { return ReportWords::of(checks[i].verdict); };
    return {{"id", id},
            {"finished", finished.toUTC().toString(Qt::ISODateWithMs)},
            {"computer", computer},
            {"account", account},
            {"outcome", ReportWords::of(outcome)},
            {"network", verdict(0)},
            {"camera", verdict(1)},
            {"speaker", verdict(2)},
            {"microphone", verdict(3)},
            {"camera_device", checks[1].device},
            {"speaker_device", checks[2].device},
            {"microphone_device", checks[3].device},
            {"delay_ms", jsonOf(delayMs)},
            {"jitter_ms", jsonOf(jitterMs)},
            {"loss_percent", jsonOf(lossPercent)},
            {"grade", grade ? QJsonValue(ReportWords::of(*grade)) : QJsonValue()},
            {"causes", causes()},
            {"contradictions", contradictions},
            {"server", server},
            {"operating_system", operatingSystem},
            {"program_version", programVersion},
            {"platform", ReportWords::of(platform)},
            {"redaction", ReportWords::of(redaction)},
            {"loop", loopWord()}};
}
