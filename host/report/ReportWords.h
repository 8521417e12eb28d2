// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Options.h"
#include "host/report/NetworkGrade.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <optional>
#include <vector>

// The last one isn't a step of the dialog: a sweep from the speaker to the microphone.
enum class CheckKind { Network, Camera, Speaker, Microphone, Loop };
// The last four are of a run without a person.
enum class RunEnd { Passed, Failed, LeftEarly, PutOut, Works, Faulty, Unavailable, BrokenOff };
// From Works on, they are verdicts of an unattended check, which asks no person; the last three are
// those of the acoustic loop.
enum class Verdict {
    Passed,
    Failed,
    NotTested,
    Works,
    Faulty,
    Unmeasured,
    Heard,
    NotHeard,
    NotTried
};
enum class Answer { Yes, No, None };
enum class SeenState { Works, Fails, Unknown };
enum class FigureStatus { Measured, NotMeasured, Failed };

enum class FigureName {
    Delay,
    Delay5,
    Delay95,
    Jitter,
    Loss,
    Sent,
    Answered,
    Rate,
    Width,
    Height,
    FirstPicture,
    Pictures,
    BlackShare,
    FrozenShare,
    Brightness,
    Program,
    Modes,
    VolumeBefore,
    VolumeAfter,
    MutedBefore,
    MutedAfter,
    MovedByUser,
    DefaultBefore,
    DefaultAfter,
    SoundPlayed,
    SoundHeard,
    Seconds,
    Peak,
    NoiseFloor,
    ClippedShare,
    HumShare,
    HumFrequency,
    Bandwidth,
    LoopSpeaker,
    LoopMicrophone,
    LoopDelay,
    LoopLevel,
};

// Why there is no figure. An engine may also use its own words.
enum class Reason {
    StepNotOpened,
    NotRecorded,
    Scripted,
    Absent,
    Off,
    Silent,
    Denied,
    Busy,
    Hung,
    Failed,
    Unreadable,
    NoAnswer,
    NoSuchHost,
    Refused, // by the server's machine
    NoRoute,
    NoServer, // none is configured
    ServerLost,
    ServerSilent,
    Muted,
    VolumeZero,
    NotOffered, // the engine can't
    NotBuilt,   // the engine can't use such devices on this system
};

// What a user can do something about. Engines record those of devices under the same words.
enum class Cause {
    NoServer,
    NoAnswer,
    NoSuchHost,
    Slow,
    Lossy,
    LeftTooSoon, // the step of the network, before its first figures
    Absent,
    Off,
    Starting,
    Busy,
    Denied,
    Hung,
    Stalled,
    Black,
    Frozen,
    Unplugged,
    ServerLost,   // of pictures or sound on this machine
    ServerSilent, // likewise: it doesn't answer
    NotBuilt,     // the engine can't use such devices on this system
    Failed,
    Unreadable, // the camera works, but sends no format that can be shown
    Silent,
    Muted,
    VolumeZero,
    WrongSound,
    NotSeen, // the answer was no, although the device seemed to work
    NotHeard,
    SelfNotHeard,
    Clipping,
    Hum,
    LoopNotHeard,
};

constexpr bool isStep(CheckKind kind)
{
    return kind != CheckKind::Loop;
}

constexpr bool isGood(Verdict verdict)
{
    return verdict == Verdict::Passed || verdict == Verdict::Works || verdict == Verdict::Heard;
}

constexpr bool isBad(Verdict verdict)
{
    return verdict == Verdict::Failed || verdict == Verdict::Faulty || verdict == Verdict::NotHeard;
}

// Whether a person answered.
constexpr bool isAttended(Verdict verdict)
{
    return verdict == Verdict::Passed || verdict == Verdict::Failed ||
           verdict == Verdict::NotTested;
}

// Answers and measurements that can't both be true.
enum class Contradiction {
    YesWithoutPictures,
    YesToBlackPicture,
    YesToFrozenPicture,
    NoToGoodPicture,
    YesToWrongSound,
    YesToMutedSpeaker,
    NoToRightSound,
    YesToSilence,
    NoToGoodSound,
};

// What changed between two runs.
enum class ChangeSubject { System, Network, Camera, Speaker, Microphone };
enum class ChangedThing { Verdict, Device, Grade, Delay, OperatingSystem, Server };

// The words of the report format, and the texts that people read instead. Each enumeration has one
// table, and its words stand nowhere else.
namespace ReportWords {

template <typename Value>
struct Word
{
    Value value;
    const char* word;
    const char* textId; // null if it is never shown
};

template <typename Value>
const std::vector<Word<Value>>& table();

template <>
const std::vector<Word<CheckKind>>& table();
template <>
const std::vector<Word<RunEnd>>& table();
template <>
const std::vector<Word<Verdict>>& table();
template <>
const std::vector<Word<Answer>>& table();
template <>
const std::vector<Word<SeenState>>& table();
template <>
const std::vector<Word<FigureStatus>>& table();
template <>
const std::vector<Word<FigureName>>& table();
template <>
const std::vector<Word<Reason>>& table();
template <>
const std::vector<Word<Cause>>& table(); // the texts say what to do
template <>
const std::vector<Word<Contradiction>>& table();
template <>
const std::vector<Word<ChangeSubject>>& table();
template <>
const std::vector<Word<ChangedThing>>& table();
template <>
const std::vector<Word<NetworkGrade::Level>>& table();
template <>
const std::vector<Word<NetworkGrade::Figure>>& table();
template <>
const std::vector<Word<Options::Platform>>& table();
template <>
const std::vector<Word<Options::Redaction>>& table();

template <typename Value>
const Word<Value>& entryOf(Value value)
{
    const std::vector<Word<Value>>& words = table<Value>();
    const auto found = std::find_if(words.begin(), words.end(), [value](const Word<Value>& each) {
        return each.value == value;
    });
    Q_ASSERT(found != words.end());
    return *found;
}

template <typename Value>
QString of(Value value)
{
    return QString::fromLatin1(entryOf(value).word);
}

template <typename Value>
const char* textId(Value value)
{
    return entryOf(value).textId;
}

// Nothing if the enumeration has no such word.
template <typename Value>
std::optional<Value> find(const QString& word)
{
    for (const Word<Value>& each : table<Value>()) {
        if (word == QLatin1String(each.word)) {
            return each.value;
        }
    }
    return std::nullopt;
}

template <typename Value>
const QStringList& all()
{
    static const QStringList words = [] {
        QStringList list;
        for (const Word<Value>& each : table<Value>()) {
            list << QString::fromLatin1(each.word);
        }
        return list;
    }();
    return words;
}

} // namespace ReportWords
