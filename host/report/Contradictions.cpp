// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Contradictions.h"

#include "host/report/Report.h"

namespace {

using Flags = std::vector<Contradiction>;

QJsonValue valueOf(const ReportCheck& check, FigureName name)
{
    const Measurement* found = check.measurement(name);
    return found && found->status == Measurement::Status::Measured ? found->value : QJsonValue();
}

bool isMostly(const ReportCheck& check, FigureName name)
{
    return valueOf(check, name).toDouble() > Contradictions::BadPictureShare;
}

Flags ofCamera(const ReportCheck& check)
{
    const bool isBlack = isMostly(check, FigureName::BlackShare);
    const bool isFrozen = isMostly(check, FigureName::FrozenShare);
    const bool works = check.deviceState == SeenState::Works;
    Flags words;
    if (check.answer == Answer::Yes && !works) {
        words.push_back(Contradiction::YesWithoutPictures);
    }
    if (check.answer == Answer::Yes && isBlack) {
        words.push_back(Contradiction::YesToBlackPicture);
    }
    if (check.answer == Answer::Yes && isFrozen && !isBlack) {
        words.push_back(Contradiction::YesToFrozenPicture);
    }
    if (check.answer == Answer::No && works && !isBlack && !isFrozen) {
        words.push_back(Contradiction::NoToGoodPicture);
    }
    return words;
}

Flags ofSpeaker(const ReportCheck& check)
{
    const bool isMuted = valueOf(check, FigureName::MutedAfter).toBool() ||
                         valueOf(check, FigureName::VolumeAfter).toDouble(1) <= 0;
    const bool isRightSound = check.deviceState == SeenState::Works;
    Flags words;
    if (check.answer == Answer::Yes && !isRightSound) {
        words.push_back(Contradiction::YesToWrongSound);
    }
    if (check.answer == Answer::Yes && isMuted) {
        words.push_back(Contradiction::YesToMutedSpeaker);
    }
    if (check.answer == Answer::No && isRightSound) {
        words.push_back(Contradiction::NoToRightSound);
    }
    return words;
}

Flags ofMicrophone(const ReportCheck& check)
{
    const bool works = check.deviceState == SeenState::Works;
    const bool wasSilent = !valueOf(check, FigureName::SoundHeard).toBool(works);
    if (check.answer == Answer::Yes && (!works || wasSilent)) {
        return {Contradiction::YesToSilence};
    }
    if (check.answer == Answer::No && works && !wasSilent) {
        return {Contradiction::NoToGoodSound};
    }
    return {};
}

} // namespace

Flags Contradictions::of(const ReportCheck& check)
{
    switch (check.kind) {
    case CheckKind::Network:
    case CheckKind::Loop:
        break;
    case CheckKind::Camera:
        return ofCamera(check);
    case CheckKind::Speaker:
        return ofSpeaker(check);
    case CheckKind::Microphone:
        return ofMicrophone(check);
    }
    return {};
}
