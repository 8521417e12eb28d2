// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/TrialVerdict.h"

#include "host/report/Contradictions.h"
#include "host/report/Remedies.h"
#include "host/report/Report.h"
#include "platform/backend/NetworkLimits.h"
#include "platform/backend/ResultKeys.h"

namespace {

namespace ResultKeys = Platform::ResultKeys;
using Causes = std::vector<Cause>;

double numberOf(const QJsonObject& figures, FigureName name, double fallback)
{
    return figures.value(ReportWords::of(name)).toDouble(fallback);
}

Causes ofNetwork(const QJsonObject& figures)
{
    if (figures.isEmpty()) {
        return {Cause::NoAnswer};
    }
    const bool isGood = Platform::NetworkLimits::arePassed(
        figures.value(ReportWords::of(FigureName::Delay))
            .toInt(Platform::NetworkLimits::NotMeasured),
        figures.value(ReportWords::of(FigureName::Loss)).toInt());
    ReportCheck check;
    check.verdict = isGood ? Verdict::Passed : Verdict::Failed;
    return Remedies::causesOf(check, figures);
}

// What the engine says of a device that it can't use.
Causes engineCause(const QJsonObject& figures)
{
    for (const QLatin1String key : {ResultKeys::Cause, ResultKeys::State}) {
        const auto cause = ReportWords::find<Cause>(figures.value(key).toString());
        if (cause && cause != Cause::Silent) { // nobody speaks into a microphone here
            return {*cause};
        }
    }
    return {};
}

Causes ofCamera(const QJsonObject& figures)
{
    const Causes told = engineCause(figures);
    if (!told.empty()) {
        return told;
    }
    if (numberOf(figures, FigureName::Pictures, 0) <= 0) {
        return {Cause::Stalled};
    }
    if (numberOf(figures, FigureName::BlackShare, 0) > Contradictions::BadPictureShare) {
        return {Cause::Black};
    }
    const bool isFrozen =
        numberOf(figures, FigureName::FrozenShare, 0) > Contradictions::BadPictureShare;
    return isFrozen ? Causes{Cause::Frozen} : Causes();
}

// Of speakers and microphones.
Causes ofVolume(const QJsonObject& figures)
{
    if (figures.value(ReportWords::of(FigureName::MutedAfter)).toBool()) {
        return {Cause::Muted};
    }
    const bool isZero = numberOf(figures, FigureName::VolumeAfter, 1) <= 0;
    return isZero ? Causes{Cause::VolumeZero} : Causes();
}

Causes ofSpeaker(const QJsonObject& figures)
{
    if (figures.isEmpty()) {
        return {Cause::Hung};
    }
    const Causes told = engineCause(figures);
    return told.empty() ? ofVolume(figures) : told;
}

Causes ofMicrophone(const QJsonObject& figures)
{
    if (figures.isEmpty()) {
        return {Cause::Hung};
    }
    for (const Causes& found : {engineCause(figures), ofVolume(figures)}) {
        if (!found.empty()) {
            return found;
        }
    }
    if (numberOf(figures, FigureName::Peak, 2 * TrialVerdict::SilentPeakDb) <=
        TrialVerdict::SilentPeakDb) {
        return {Cause::Silent};
    }
    Causes causes;
    if (numberOf(figures, FigureName::ClippedShare, 0) > TrialVerdict::ClippedShare) {
        causes.push_back(Cause::Clipping);
    }
    if (numberOf(figures, FigureName::HumShare, 0) >= TrialVerdict::HumShare &&
        numberOf(figures, FigureName::NoiseFloor, 2 * TrialVerdict::HumFloorDb) >=
            TrialVerdict::HumFloorDb) {
        causes.push_back(Cause::Hum);
    }
    return causes;
}

Causes causesOf(CheckKind kind, const QJsonObject& figures)
{
    switch (kind) {
    case CheckKind::Network:
    case CheckKind::Loop: // has verdicts of its own
        break;
    case CheckKind::Camera:
        return ofCamera(figures);
    case CheckKind::Speaker:
        return ofSpeaker(figures);
    case CheckKind::Microphone:
        return ofMicrophone(figures);
    }
    return ofNetwork(figures);
}

TrialVerdict ofLoop(const QJsonObject& figures)
{
    const Verdict verdict = ReportWords::find<Verdict>(figures.value(ResultKeys::State).toString())
                                .value_or(Verdict::NotTried);
    if (verdict == Verdict::NotHeard) {
        return {verdict, {Cause::LoopNotHeard}};
    }
    const auto cause = ReportWords::find<Cause>(figures.value(ResultKeys::Cause).toString());
    return {verdict, cause ? Causes{*cause} : Causes()};
}

} // namespace

TrialVerdict TrialVerdict::of(CheckKind kind, const QJsonObject& figures, bool hasEnded)
{
    if (!hasEnded) {
        return {};
    }
    if (kind == CheckKind::Loop) {
        return ofLoop(figures);
    }
    const Causes causes = causesOf(kind, figures);
    const bool hasNoServer = causes == Causes{Cause::NoServer};
    return {hasNoServer      ? Verdict::Unmeasured
            : causes.empty() ? Verdict::Works
                             : Verdict::Faulty,
            causes};
}
