// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Figures.h"

#include <QMap>
#include <algorithm>

namespace {

using Figures::Figure;
using Figures::Unit;

const std::vector<Figure> NetworkFigures = {
    {"delayMs", "ID_Host_Figure_Delay", Unit::Ms},
    {"delay5Ms", "ID_Host_Figure_Delay5", Unit::Ms},
    {"delay95Ms", "ID_Host_Figure_Delay95", Unit::Ms},
    {"jitterMs", "ID_Host_Figure_Jitter", Unit::Ms},
    {"lossPercent", "ID_Host_Figure_Loss", Unit::Percent},
    {"sent", "ID_Host_Figure_Sent", Unit::None},
    {"answered", "ID_Host_Figure_Answered", Unit::None},
};

const std::vector<Figure> CameraFigures = {
    {"rate", "ID_Host_Figure_Rate", Unit::PerSecond},
    {"width", "ID_Host_Figure_Width", Unit::Pixels},
    {"height", "ID_Host_Figure_Height", Unit::Pixels},
    {"firstPictureMs", "ID_Host_Figure_FirstPicture", Unit::Ms},
    {"pictures", "ID_Host_Figure_Pictures", Unit::None},
    {"blackShare", "ID_Host_Figure_Black", Unit::Share},
    {"frozenShare", "ID_Host_Figure_Frozen", Unit::Share},
    {"brightness", "ID_Host_Figure_Brightness", Unit::Share},
};

const std::vector<Figure> SpeakerFigures = {
    {"volumeBefore", "ID_Host_Figure_VolumeBefore", Unit::Percent},
    {"volumeAfter", "ID_Host_Figure_VolumeAfter", Unit::Percent},
    {"mutedBefore", "ID_Host_Figure_MutedBefore", Unit::None},
    {"mutedAfter", "ID_Host_Figure_MutedAfter", Unit::None},
    {"movedByUser", "ID_Host_Figure_MovedByUser", Unit::None},
    {"defaultBefore", "ID_Host_Figure_DefaultBefore", Unit::None},
    {"defaultAfter", "ID_Host_Figure_DefaultAfter", Unit::None},
    {"soundPlayed", "ID_Host_Figure_SoundPlayed", Unit::None},
};

const std::vector<Figure> MicrophoneFigures = {
    {"soundHeard", "ID_Host_Figure_SoundHeard", Unit::None},
    {"seconds", "ID_Host_Figure_Seconds", Unit::Seconds},
    {"peakDb", "ID_Host_Figure_Peak", Unit::Decibels},
    {"noiseFloorDb", "ID_Host_Figure_NoiseFloor", Unit::Decibels},
    {"clippedShare", "ID_Host_Figure_Clipped", Unit::Share},
    {"humShare", "ID_Host_Figure_HumShare", Unit::Share},
    {"humHz", "ID_Host_Figure_HumFrequency", Unit::Hertz},
    {"bandwidthHz", "ID_Host_Figure_Bandwidth", Unit::Hertz},
    {"volumeBefore", "ID_Host_Figure_VolumeBefore", Unit::Percent},
    {"volumeAfter", "ID_Host_Figure_VolumeAfter", Unit::Percent},
    {"mutedBefore", "ID_Host_Figure_MutedBefore", Unit::None},
    {"mutedAfter", "ID_Host_Figure_MutedAfter", Unit::None},
    {"movedByUser", "ID_Host_Figure_MovedByUser", Unit::None},
    {"defaultBefore", "ID_Host_Figure_DefaultBefore", Unit::None},
    {"defaultAfter", "ID_Host_Figure_DefaultAfter", Unit::None},
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

const std::vector<Figure>& Figures::of(const QString& check)
{
    static const std::vector<Figure> none;
    static const QMap<QString, const std::vector<Figure>*> lists = {
        {QStringLiteral("network"), &NetworkFigures},
        {QStringLiteral("camera"), &CameraFigures},
        {QStringLiteral("speaker"), &SpeakerFigures},
        {QStringLiteral("microphone"), &MicrophoneFigures}};
    const auto found = lists.find(check);
    return found == lists.end() ? none : **found;
}

const Figure* Figures::find(const QString& check, const QString& key)
{
    const std::vector<Figure>& list = of(check);
    const auto found = std::find_if(list.begin(), list.end(), [&key](const Figure& figure) {
        return key == QLatin1String(figure.key);
    });
    return found == list.end() ? nullptr : &*found;
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
