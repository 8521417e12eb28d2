// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Figures.h"

#include "platform/backend/ResultKeys.h"

#include <algorithm>
#include <iterator>

namespace {

using Figures::Figure;
using Figures::Unit;

const std::vector<Figure> NetworkFigures = {
    {FigureName::Delay, Unit::Ms},      {FigureName::Delay5, Unit::Ms},
    {FigureName::Delay95, Unit::Ms},    {FigureName::Jitter, Unit::Ms},
    {FigureName::Loss, Unit::Percent},  {FigureName::Sent, Unit::None},
    {FigureName::Answered, Unit::None},
};

const std::vector<Figure> CameraFigures = {
    {FigureName::Rate, Unit::PerSecond},    {FigureName::Width, Unit::Pixels},
    {FigureName::Height, Unit::Pixels},     {FigureName::FirstPicture, Unit::Ms},
    {FigureName::Pictures, Unit::None},     {FigureName::BlackShare, Unit::Share},
    {FigureName::FrozenShare, Unit::Share}, {FigureName::Brightness, Unit::Share},
    {FigureName::Modes, Unit::None},
};

const std::vector<Figure> SpeakerFigures = {
    {FigureName::VolumeBefore, Unit::Percent}, {FigureName::VolumeAfter, Unit::Percent},
    {FigureName::MutedBefore, Unit::None},     {FigureName::MutedAfter, Unit::None},
    {FigureName::MovedByUser, Unit::None},     {FigureName::DefaultBefore, Unit::None},
    {FigureName::DefaultAfter, Unit::None},    {FigureName::SoundPlayed, Unit::None},
};

const std::vector<Figure> MicrophoneFigures = {
    {FigureName::SoundHeard, Unit::None},      {FigureName::Seconds, Unit::Seconds},
    {FigureName::Peak, Unit::Decibels},        {FigureName::NoiseFloor, Unit::Decibels},
    {FigureName::ClippedShare, Unit::Share},   {FigureName::HumShare, Unit::Share},
    {FigureName::HumFrequency, Unit::Hertz},   {FigureName::Bandwidth, Unit::Hertz},
    {FigureName::VolumeBefore, Unit::Percent}, {FigureName::VolumeAfter, Unit::Percent},
    {FigureName::MutedBefore, Unit::None},     {FigureName::MutedAfter, Unit::None},
    {FigureName::MovedByUser, Unit::None},     {FigureName::DefaultBefore, Unit::None},
    {FigureName::DefaultAfter, Unit::None},
};

const std::vector<Figure> LoopFigures = {
    {FigureName::LoopSpeaker, Unit::None},
    {FigureName::LoopMicrophone, Unit::None},
    {FigureName::LoopDelay, Unit::Ms},
    {FigureName::LoopLevel, Unit::Decibels},
};

QString number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (decimals > 0) {
        while (text.endsWith(QLatin1Char('0'))) {
            text.chop(1);
        }
        if (text.endsWith(QLatin1Char('.'))) {
            text.chop(1);
        }
    }
    return text;
}

} // namespace

const std::vector<Figure>& Figures::of(CheckKind check)
{
    switch (check) {
    case CheckKind::Network:
        break;
    case CheckKind::Camera:
        return CameraFigures;
    case CheckKind::Speaker:
        return SpeakerFigures;
    case CheckKind::Microphone:
        return MicrophoneFigures;
    case CheckKind::Loop:
        return LoopFigures;
    }
    return NetworkFigures;
}

const Figure* Figures::find(CheckKind check, const QString& key)
{
    const std::optional<FigureName> name = ReportWords::find<FigureName>(key);
    const std::vector<Figure>& list = of(check);
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&name](const Figure& figure) { return name == figure.name; });
    return found == list.end() ? nullptr : &*found;
}

Reason Figures::whyNoDelay(const QJsonObject& figures)
{
    const QString state = figures.value(Platform::ResultKeys::State).toString();
    const Reason known[] = {Reason::NoSuchHost, Reason::Refused, Reason::NoRoute};
    const auto* const found =
        std::find_if(std::begin(known), std::end(known),
                     [&state](Reason reason) { return state == ReportWords::of(reason); });
    return found == std::end(known) ? Reason::NoAnswer : *found;
}

QString Figures::toText(double value, Unit unit)
{
    constexpr double Hundred = 100.0;
    switch (unit) {
    case Unit::None:
        return number(value, 2);
    case Unit::Ms:
        return number(value, 1) + QStringLiteral(" ms");
    case Unit::Percent:
        return number(value, 1) + QStringLiteral(" %");
    case Unit::Share:
        return number(value * Hundred, 1) + QStringLiteral(" %");
    case Unit::Pixels:
        return number(value, 0) + QStringLiteral(" px");
    case Unit::PerSecond:
        return number(value, 1) + QStringLiteral("/s");
    case Unit::Hertz:
        return number(value, 0) + QStringLiteral(" Hz");
    case Unit::Decibels:
        return number(value, 1) + QStringLiteral(" dB");
    case Unit::Seconds:
        return number(value, 1) + QStringLiteral(" s");
    }
    return {};
}
