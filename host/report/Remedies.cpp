// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Remedies.h"

#include "host/Console.h"
#include "host/report/Contradictions.h"
#include "platform/backend/NetworkLimits.h"
#include "platform/backend/ResultKeys.h"

#include <CommEngine/LumSpeaker.h>
#include <algorithm>
#include <limits>

namespace {

namespace NetworkLimits = Platform::NetworkLimits;
namespace ResultKeys = Platform::ResultKeys;

using Causes = std::vector<Cause>;

const QString Colon = QStringLiteral(": ");

// What the engine says of the device, if it is a trouble.
std::optional<Cause> engineCause(CheckKind kind, const QJsonObject& figures)
{
    for (const QLatin1String key : {ResultKeys::Cause, ResultKeys::State}) {
        const auto cause = ReportWords::find<Cause>(figures.value(key).toString());
        if (cause) {
            // Of a camera, "silent" means that it sends no frames.
            return cause == Cause::Silent && kind == CheckKind::Camera ? Cause::Stalled : cause;
        }
    }
    return std::nullopt;
}

double numberOf(const QJsonObject& figures, FigureName name, double fallback)
{
    return figures.value(ReportWords::of(name)).toDouble(fallback);
}

// An engine may record any number.
int wholeNumberOf(const QJsonObject& figures, FigureName name)
{
    constexpr double Least = std::numeric_limits<int>::min();
    constexpr double Most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(numberOf(figures, name, 0), Least, Most));
}

Causes ofNetwork(const ReportCheck& check, const QJsonObject& figures)
{
    const std::optional<Cause> problem = engineCause(check.kind, figures);
    if (problem) {
        const bool isTold = problem == Cause::NoServer || check.verdict == Verdict::Failed;
        return isTold ? Causes{*problem} : Causes();
    }
    if (check.verdict != Verdict::Failed) {
        return {};
    }
    if (!figures.contains(ReportWords::of(FigureName::Delay))) {
        return {Cause::LeftTooSoon};
    }
    const int delayMs = wholeNumberOf(figures, FigureName::Delay);
    const int lossPercent = wholeNumberOf(figures, FigureName::Loss);
    if (delayMs == NetworkLimits::NotMeasured) {
        return {Cause::NoAnswer};
    }
    Causes causes;
    if (!NetworkLimits::isDelayGood(delayMs)) {
        causes.push_back(Cause::Slow);
    }
    if (!NetworkLimits::isLossGood(lossPercent)) {
        causes.push_back(Cause::Lossy);
    }
    return causes;
}

// What the figures alone tell.
Causes measured(const ReportCheck& check, const QJsonObject& figures)
{
    Causes causes;
    if (check.kind == CheckKind::Camera) {
        if (numberOf(figures, FigureName::BlackShare, 0) > Contradictions::BadPictureShare) {
            causes.push_back(Cause::Black);
        } else if (numberOf(figures, FigureName::FrozenShare, 0) >
                   Contradictions::BadPictureShare) {
            causes.push_back(Cause::Frozen);
        }
        return causes;
    }
    if (figures.value(ReportWords::of(FigureName::MutedAfter)).toBool()) {
        causes.push_back(Cause::Muted);
    } else if (numberOf(figures, FigureName::VolumeAfter, 1) <= 0) {
        causes.push_back(Cause::VolumeZero);
    }
    return causes;
}

// If neither the engine nor a figure explains the failure.
Cause fallback(const ReportCheck& check)
{
    const bool works = check.deviceState == SeenState::Works;
    switch (check.kind) {
    case CheckKind::Camera:
        return works ? Cause::NotSeen : Cause::Stalled;
    case CheckKind::Speaker:
        return check.answer == Answer::No ? Cause::NotHeard : Cause::WrongSound;
    case CheckKind::Microphone:
        return works ? Cause::SelfNotHeard : Cause::Silent;
    case CheckKind::Network:
    case CheckKind::Loop:
        break;
    }
    return Cause::Failed;
}

Causes ofDevice(const ReportCheck& check, const QJsonObject& figures)
{
    if (check.verdict != Verdict::Failed) {
        return {};
    }
    const std::optional<Cause> told = engineCause(check.kind, figures);
    if (check.kind == CheckKind::Speaker && LumSpeaker::isNoneDeviceText(check.device)) {
        const bool isOfTheSystem =
            told == Cause::ServerLost || told == Cause::ServerSilent || told == Cause::NotBuilt;
        return {isOfTheSystem ? *told : Cause::Absent};
    }
    Causes causes;
    if (told) {
        causes.push_back(*told);
    }
    for (const Cause cause : measured(check, figures)) {
        if (cause != told) {
            causes.push_back(cause);
        }
    }
    if (causes.empty()) {
        causes.push_back(fallback(check));
    }
    return causes;
}

// What prevents the loop is told of the device itself, if it is known there.
bool isToldOfDevice(const Report& report, const ReportCheck& check, Cause cause)
{
    return check.kind == CheckKind::Loop && std::any_of(report.checks.begin(), report.checks.end(),
                                                        [cause](const ReportCheck& other) {
                                                            return other.kind != CheckKind::Loop &&
                                                                   other.has(cause);
                                                        });
}

} // namespace

Causes Remedies::causesOf(const ReportCheck& check, const QJsonObject& figures)
{
    return check.kind == CheckKind::Network ? ofNetwork(check, figures) : ofDevice(check, figures);
}

QString Remedies::deviceAmong(const Report& report, const ReportCheck& check)
{
    const auto count =
        std::count_if(report.checks.begin(), report.checks.end(),
                      [&check](const ReportCheck& other) { return other.kind == check.kind; });
    return count > 1 ? check.device : QString();
}

std::vector<Remedies::Remedy> Remedies::of(const Report& report)
{
    std::vector<Remedy> remedies;
    for (const ReportCheck& check : report.checks) {
        for (const Cause cause : check.causes) {
            if (isToldOfDevice(report, check, cause)) {
                continue;
            }
            remedies.push_back({check.kind, cause, deviceAmong(report, check)});
        }
    }
    return remedies;
}

QString Remedies::toText(const Report& report)
{
    QString text;
    for (const Remedy& remedy : of(report)) {
        const QString device =
            remedy.device.isEmpty() ? QString() : Console::plainLine(remedy.device) + Colon;
        text += QStringLiteral("  ") + qtTrId(ReportWords::textId(remedy.check)) + Colon + device +
                qtTrId(ReportWords::textId(remedy.cause)) + QLatin1Char('\n');
    }
    return text.isEmpty() ? text : qtTrId("ID_Host_Remedy") + QStringLiteral(":\n") + text;
}
