// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/SoundNames.h"

#include <QMap>

const char* SoundNames::textId(const QString& baseName)
{
    static const QMap<QString, const char*> ids{
        {"Piano", "ID_HeadsetPage_Piano"},     {"Seagull", "ID_HeadsetPage_Seagull"},
        {"Thunder", "ID_HeadsetPage_Thunder"}, {"Doorbell", "ID_HeadsetPage_Doorbell"},
        {"Shutter", "ID_HeadsetPage_Shutter"}, {"Bubble", "ID_HeadsetPage_Bubble"},
        {"Typing", "ID_HeadsetPage_Typing"},   {"Saxophone", "ID_HeadsetPage_Saxophone"}};
    return ids.value(baseName, nullptr);
}
