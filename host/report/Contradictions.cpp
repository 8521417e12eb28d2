// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Contradictions.h"

#include "host/report/Report.h"

namespace {

const QLatin1String Yes("yes");
const QLatin1String No("no");

QJsonValue valueOf(const ReportCheck& check, const char* key)
{
    const Measurement* found = check.measurement(QLatin1String(key));
    return found && found->status == Measurement::Status::Measured ? found->value : QJsonValue();
}

bool isMostly(const ReportCheck& check, const char* key)
{
    return valueOf(check, key).toDouble() > Contradictions::BadPictureShare;
}

QStringList ofCamera(const ReportCheck& check)
{
    const bool isBlack = isMostly(check, "blackShare");
    const bool isFrozen = isMostly(check, "frozenShare");
    const bool works = check.deviceState == QLatin1String("works");
    QStringList words;
    if (check.answer == Yes && !works) {
        words << QStringLiteral("yesWithoutPictures");
    }
    if (check.answer == Yes && isBlack) {
        words << QStringLiteral("yesToBlackPicture");
    }
    if (check.answer == Yes && isFrozen && !isBlack) {
        words << QStringLiteral("yesToFrozenPicture");
    }
    if (check.answer == No && works && !isBlack && !isFrozen) {
        words << QStringLiteral("noToGoodPicture");
    }
    return words;
}

QStringList ofSpeaker(const ReportCheck& check)
{
    const bool isMuted =
        valueOf(check, "mutedAfter").toBool() || valueOf(check, "volumeAfter").toDouble(1) <= 0;
    const bool isRightSound = check.deviceState == QLatin1String("works");
    QStringList words;
    if (check.answer == Yes && !isRightSound) {
        words << QStringLiteral("yesToWrongSound");
    }
    if (check.answer == Yes && isMuted) {
        words << QStringLiteral("yesToMutedSpeaker");
    }
    if (check.answer == No && isRightSound) {
        words << QStringLiteral("noToRightSound");
    }
    return words;
}

QStringList ofMicrophone(const ReportCheck& check)
{
    const bool works = check.deviceState == QLatin1String("works");
    const bool wasSilent = !valueOf(check, "soundHeard").toBool(works);
    if (check.answer == Yes && (!works || wasSilent)) {
        return {QStringLiteral("yesToSilence")};
    }
    if (check.answer == No && works && !wasSilent) {
        return {QStringLiteral("noToGoodSound")};
    }
    return {};
}

} // namespace

QStringList Contradictions::of(const ReportCheck& check)
{
    if (check.key == QLatin1String("camera")) {
        return ofCamera(check);
    }
    if (check.key == QLatin1String("speaker")) {
        return ofSpeaker(check);
    }
    if (check.key == QLatin1String("microphone")) {
        return ofMicrophone(check);
    }
    return {};
}
