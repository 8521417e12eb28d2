// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportWords.h"

#include "platform/backend/ResultKeys.h"

namespace ReportWords {

namespace ResultKeys = Platform::ResultKeys;

template <>
const std::vector<Word<CheckKind>>& table()
{
    static const std::vector<Word<CheckKind>> words = {
        {CheckKind::Network, ResultKeys::Network.data(), "ID_CheckResultPage_System"},
        {CheckKind::Camera, ResultKeys::Camera.data(), "ID_Camera_Check"},
        {CheckKind::Speaker, ResultKeys::Speaker.data(), "ID_CheckResultPage_Headphone"},
        {CheckKind::Microphone, ResultKeys::Microphone.data(), "ID_Microphone_Check"},
        {CheckKind::Loop, ResultKeys::Loop.data(), "ID_Host_Check_Loop"},
    };
    return words;
}

template <>
const std::vector<Word<RunEnd>>& table()
{
    static const std::vector<Word<RunEnd>> words = {
        {RunEnd::Passed, "passed", "ID_Host_Outcome_Passed"},
        {RunEnd::Failed, "failed", "ID_Host_Outcome_Failed"},
        {RunEnd::LeftEarly, "leftEarly", "ID_Host_Outcome_LeftEarly"},
        {RunEnd::PutOut, "putOut", "ID_Host_Outcome_PutOut"},
        {RunEnd::Works, "works", "ID_Host_Outcome_Works"},
        {RunEnd::Faulty, "faulty", "ID_Host_Outcome_Faulty"},
        {RunEnd::Unavailable, "unavailable", "ID_Host_Outcome_Unavailable"},
        {RunEnd::BrokenOff, "brokenOff", "ID_Host_Outcome_BrokenOff"},
    };
    return words;
}

template <>
const std::vector<Word<Verdict>>& table()
{
    static const std::vector<Word<Verdict>> words = {
        {Verdict::Passed, "passed", "ID_CheckResultPage_Normal"},
        {Verdict::Failed, "failed", "ID_CheckResultPage_Abnormal"},
        {Verdict::NotTested, "notTested", "ID_CameraPage_NotDetected"},
        {Verdict::Works, "works", "ID_Host_Verdict_Works"},
        {Verdict::Faulty, "faulty", "ID_Host_Verdict_Faulty"},
        {Verdict::Unmeasured, "unmeasured", "ID_Host_Verdict_Unmeasured"},
        {Verdict::Heard, "heard", "ID_Host_Verdict_Heard"},
        {Verdict::NotHeard, "notHeard", "ID_Host_Verdict_NotHeard"},
        {Verdict::NotTried, "notTried", "ID_Host_Verdict_NotTried"},
    };
    return words;
}

template <>
const std::vector<Word<Answer>>& table()
{
    static const std::vector<Word<Answer>> words = {
        {Answer::Yes, "yes", "ID_Host_Yes"},
        {Answer::No, "no", "ID_Host_No"},
        {Answer::None, "none", "ID_Host_NoAnswer"},
    };
    return words;
}

// Shown for the speaker only: it says whether the right sound was picked.
template <>
const std::vector<Word<SeenState>>& table()
{
    static const std::vector<Word<SeenState>> words = {
        {SeenState::Works, "works", "ID_Host_Yes"},
        {SeenState::Fails, "fails", "ID_Host_No"},
        {SeenState::Unknown, "unknown", "ID_Host_NoAnswer"},
    };
    return words;
}

template <>
const std::vector<Word<FigureStatus>>& table()
{
    static const std::vector<Word<FigureStatus>> words = {
        {FigureStatus::Measured, "measured", nullptr},
        {FigureStatus::NotMeasured, "notMeasured", "ID_Host_NotMeasured"},
        {FigureStatus::Failed, "failed", "ID_Host_MeasuringFailed"},
    };
    return words;
}

template <>
const std::vector<Word<FigureName>>& table()
{
    static const std::vector<Word<FigureName>> words = {
        {FigureName::Delay, "delayMs", "ID_Host_Figure_Delay"},
        {FigureName::Delay5, "delay5Ms", "ID_Host_Figure_Delay5"},
        {FigureName::Delay95, "delay95Ms", "ID_Host_Figure_Delay95"},
        {FigureName::Jitter, "jitterMs", "ID_Host_Figure_Jitter"},
        {FigureName::Loss, "lossPercent", "ID_Host_Figure_Loss"},
        {FigureName::Sent, "sent", "ID_Host_Figure_Sent"},
        {FigureName::Answered, "answered", "ID_Host_Figure_Answered"},
        {FigureName::Rate, "rate", "ID_Host_Figure_Rate"},
        {FigureName::Width, "width", "ID_Host_Figure_Width"},
        {FigureName::Height, "height", "ID_Host_Figure_Height"},
        {FigureName::FirstPicture, "firstPictureMs", "ID_Host_Figure_FirstPicture"},
        {FigureName::Pictures, "pictures", "ID_Host_Figure_Pictures"},
        {FigureName::BlackShare, "blackShare", "ID_Host_Figure_Black"},
        {FigureName::FrozenShare, "frozenShare", "ID_Host_Figure_Frozen"},
        {FigureName::Brightness, "brightness", "ID_Host_Figure_Brightness"},
        {FigureName::Program, "program", "ID_Host_Figure_Program"},
        {FigureName::Modes, "modes", "ID_Host_Figure_Modes"},
        {FigureName::VolumeBefore, "volumeBefore", "ID_Host_Figure_VolumeBefore"},
        {FigureName::VolumeAfter, "volumeAfter", "ID_Host_Figure_VolumeAfter"},
        {FigureName::MutedBefore, "mutedBefore", "ID_Host_Figure_MutedBefore"},
        {FigureName::MutedAfter, "mutedAfter", "ID_Host_Figure_MutedAfter"},
        {FigureName::MovedByUser, "movedByUser", "ID_Host_Figure_MovedByUser"},
        {FigureName::DefaultBefore, "defaultBefore", "ID_Host_Figure_DefaultBefore"},
        {FigureName::DefaultAfter, "defaultAfter", "ID_Host_Figure_DefaultAfter"},
        {FigureName::SoundPlayed, "soundPlayed", "ID_Host_Figure_SoundPlayed"},
        {FigureName::SoundHeard, "soundHeard", "ID_Host_Figure_SoundHeard"},
        {FigureName::Seconds, "seconds", "ID_Host_Figure_Seconds"},
        {FigureName::Peak, "peakDb", "ID_Host_Figure_Peak"},
        {FigureName::NoiseFloor, "noiseFloorDb", "ID_Host_Figure_NoiseFloor"},
        {FigureName::ClippedShare, "clippedShare", "ID_Host_Figure_Clipped"},
        {FigureName::HumShare, "humShare", "ID_Host_Figure_HumShare"},
        {FigureName::HumFrequency, "humHz", "ID_Host_Figure_HumFrequency"},
        {FigureName::Bandwidth, "bandwidthHz", "ID_Host_Figure_Bandwidth"},
        {FigureName::LoopSpeaker, "loopSpeaker", "ID_CheckResultPage_Headphone"},
        {FigureName::LoopMicrophone, "loopMicrophone", "ID_Microphone_Check"},
        {FigureName::LoopDelay, "loopDelayMs", "ID_Host_Figure_LoopDelay"},
        {FigureName::LoopLevel, "loopLevelDb", "ID_Host_Figure_LoopLevel"},
    };
    return words;
}

template <>
const std::vector<Word<Reason>>& table()
{
    static const std::vector<Word<Reason>> words = {
        {Reason::StepNotOpened, "stepNotOpened", "ID_Host_Reason_StepNotOpened"},
        {Reason::NotRecorded, "notRecorded", "ID_Host_Reason_NotRecorded"},
        {Reason::Scripted, "scripted", "ID_Host_Reason_Scripted"},
        {Reason::Absent, "absent", "ID_Host_Reason_Absent"},
        {Reason::Off, "off", "ID_Host_Reason_Off"},
        {Reason::Silent, "silent", "ID_Host_Reason_Silent"},
        {Reason::Denied, "denied", "ID_Host_Reason_Denied"},
        {Reason::Busy, "busy", "ID_Host_Reason_Busy"},
        {Reason::Hung, "hung", "ID_Host_Reason_Hung"},
        {Reason::Failed, "failed", "ID_Host_Reason_Failed"},
        {Reason::Unreadable, "unreadable", "ID_Host_Reason_Unreadable"},
        {Reason::NoAnswer, "noAnswer", "ID_Host_Reason_NoAnswer"},
        {Reason::NoSuchHost, "noSuchHost", "ID_Host_Reason_NoSuchHost"},
        {Reason::Refused, "refused", "ID_Host_Reason_Refused"},
        {Reason::NoRoute, "noRoute", "ID_Host_Reason_NoRoute"},
        {Reason::NoServer, "noServer", "ID_Host_Reason_NoServer"},
        {Reason::ServerLost, "serverLost", "ID_Host_Reason_ServerLost"},
        {Reason::ServerSilent, "serverSilent", "ID_Host_Reason_ServerSilent"},
        {Reason::Muted, "muted", "ID_Host_Reason_Muted"},
        {Reason::VolumeZero, "volumeZero", "ID_Host_Reason_VolumeZero"},
        {Reason::NotOffered, "notOffered", "ID_Host_Reason_NotOffered"},
        {Reason::NotBuilt, "notBuilt", "ID_Host_Reason_NotBuilt"},
    };
    return words;
}

template <>
const std::vector<Word<Cause>>& table()
{
    static const std::vector<Word<Cause>> words = {
        {Cause::NoServer, "noServer", "ID_Host_Remedy_NoServer"},
        {Cause::NoAnswer, "noAnswer", "ID_Host_Remedy_NoAnswer"},
        {Cause::NoSuchHost, "noSuchHost", "ID_Host_Remedy_NoSuchHost"},
        {Cause::Slow, "slow", "ID_Host_Remedy_Slow"},
        {Cause::Lossy, "lossy", "ID_Host_Remedy_Lossy"},
        {Cause::LeftTooSoon, "leftTooSoon", "ID_Host_Remedy_LeftTooSoon"},
        {Cause::Absent, "absent", "ID_Host_Remedy_Absent"},
        {Cause::Off, "off", "ID_Host_Remedy_Off"},
        {Cause::Starting, "starting", "ID_Host_Remedy_Starting"},
        {Cause::Busy, "busy", "ID_Host_Remedy_Busy"},
        {Cause::Denied, "denied", "ID_Host_Remedy_Denied"},
        {Cause::Hung, "hung", "ID_Host_Remedy_Hung"},
        {Cause::Stalled, "stalled", "ID_Host_Remedy_Stalled"},
        {Cause::Black, "black", "ID_Host_Remedy_Black"},
        {Cause::Frozen, "frozen", "ID_Host_Remedy_Frozen"},
        {Cause::Unplugged, "unplugged", "ID_Host_Remedy_Unplugged"},
        {Cause::ServerLost, "serverLost", "ID_Host_Remedy_ServerLost"},
        {Cause::ServerSilent, "serverSilent", "ID_Host_Remedy_ServerSilent"},
        {Cause::NotBuilt, "notBuilt", "ID_Host_Remedy_NotBuilt"},
        {Cause::Failed, "failed", "ID_Host_Remedy_Failed"},
        {Cause::Unreadable, "unreadable", "ID_Host_Remedy_Unreadable"},
        {Cause::Silent, "silent", "ID_Host_Remedy_Silent"},
        {Cause::Muted, "muted", "ID_Host_Remedy_Muted"},
        {Cause::VolumeZero, "volumeZero", "ID_Host_Remedy_VolumeZero"},
        {Cause::WrongSound, "wrongSound", "ID_Host_Remedy_WrongSound"},
        {Cause::NotSeen, "notSeen", "ID_Host_Remedy_NotSeen"},
        {Cause::NotHeard, "notHeard", "ID_Host_Remedy_NotHeard"},
        {Cause::SelfNotHeard, "selfNotHeard", "ID_Host_Remedy_SelfNotHeard"},
        {Cause::Clipping, "clipping", "ID_Host_Remedy_Clipping"},
        {Cause::Hum, "hum", "ID_Host_Remedy_Hum"},
        {Cause::LoopNotHeard, "loopNotHeard", "ID_Host_Remedy_LoopNotHeard"},
    };
    return words;
}

template <>
const std::vector<Word<Contradiction>>& table()
{
    using Flag = Contradiction;
    static const std::vector<Word<Flag>> words = {
        {Flag::YesWithoutPictures, "yesWithoutPictures", "ID_Host_Flag_YesWithoutPictures"},
        {Flag::YesToBlackPicture, "yesToBlackPicture", "ID_Host_Flag_YesToBlackPicture"},
        {Flag::YesToFrozenPicture, "yesToFrozenPicture", "ID_Host_Flag_YesToFrozenPicture"},
        {Flag::NoToGoodPicture, "noToGoodPicture", "ID_Host_Flag_NoToGoodPicture"},
        {Flag::YesToWrongSound, "yesToWrongSound", "ID_Host_Flag_YesToWrongSound"},
        {Flag::YesToMutedSpeaker, "yesToMutedSpeaker", "ID_Host_Flag_YesToMutedSpeaker"},
        {Flag::NoToRightSound, "noToRightSound", "ID_Host_Flag_NoToRightSound"},
        {Flag::YesToSilence, "yesToSilence", "ID_Host_Flag_YesToSilence"},
        {Flag::NoToGoodSound, "noToGoodSound", "ID_Host_Flag_NoToGoodSound"},
    };
    return words;
}

template <>
const std::vector<Word<ChangeSubject>>& table()
{
    static const std::vector<Word<ChangeSubject>> words = {
        {ChangeSubject::System, "system", "ID_Host_Report_System"},
        {ChangeSubject::Network, ResultKeys::Network.data(), "ID_CheckResultPage_System"},
        {ChangeSubject::Camera, ResultKeys::Camera.data(), "ID_Camera_Check"},
        {ChangeSubject::Speaker, ResultKeys::Speaker.data(), "ID_CheckResultPage_Headphone"},
        {ChangeSubject::Microphone, ResultKeys::Microphone.data(), "ID_Microphone_Check"},
    };
    return words;
}

template <>
const std::vector<Word<ChangedThing>>& table()
{
    static const std::vector<Word<ChangedThing>> words = {
        {ChangedThing::Verdict, "verdict", "ID_Host_Report_Result"},
        {ChangedThing::Device, "device", "ID_Host_Report_Device"},
        {ChangedThing::Grade, "grade", "ID_Host_Grade"},
        {ChangedThing::Delay, "delayMs", "ID_Host_Figure_Delay"},
        {ChangedThing::OperatingSystem, "operatingSystem", "ID_NetworkPage_OS"},
        {ChangedThing::Server, "server", "ID_NewLogin_Server"},
    };
    return words;
}

template <>
const std::vector<Word<NetworkGrade::Level>>& table()
{
    using Level = NetworkGrade::Level;
    static const std::vector<Word<Level>> words = {
        {Level::Good, "good", "ID_Host_Grade_Good"},
        {Level::Fair, "fair", "ID_Host_Grade_Fair"},
        {Level::Poor, "poor", "ID_Host_Grade_Poor"},
    };
    return words;
}

template <>
const std::vector<Word<NetworkGrade::Figure>>& table()
{
    using Figure = NetworkGrade::Figure;
    static const std::vector<Word<Figure>> words = {
        {Figure::OneWayDelay, "oneWayDelayMs", "ID_Host_Figure_OneWayDelay"},
        {Figure::Loss, "lossPercent", "ID_Host_Figure_Loss"},
        {Figure::Jitter, "jitterMs", "ID_Host_Figure_Jitter"},
    };
    return words;
}

template <>
const std::vector<Word<Options::Platform>>& table()
{
    static const std::vector<Word<Options::Platform>> words = {
        {Options::Platform::Devices, "devices", nullptr},
        {Options::Platform::Scripted, "scripted", "ID_Host_Report_Scripted"},
    };
    return words;
}

template <>
const std::vector<Word<Options::Redaction>>& table()
{
    static const std::vector<Word<Options::Redaction>> words = {
        {Options::Redaction::None, "none", nullptr},
        {Options::Redaction::Personal, "personal", "ID_Host_Redacted_Personal"},
        {Options::Redaction::Hash, "hash", "ID_Host_Redacted_Hash"},
    };
    return words;
}

} // namespace ReportWords
