// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DeviceInfo.h"

#include "platform/backend/EnumWords.h"

#include <QHash>
#include <QSet>

namespace Platform {

namespace {

constexpr int MaxNameLength = 200;

bool isPrintable(QChar c)
{
    return c.category() != QChar::Other_Control && c != QChar::LineSeparator &&
           c != QChar::ParagraphSeparator;
}

} // namespace

QString nameIn(const DeviceList& devices, const QString& id)
{
    const DeviceInfo* device = findDevice(devices, id);
    return device ? device->name : QString();
}

bool isUsable(DeviceState state)
{
    switch (state) {
    case DeviceState::Absent:
    case DeviceState::Off:
    case DeviceState::Denied:
    case DeviceState::Failed:
    case DeviceState::Unreadable:
        return false;
    case DeviceState::Busy:
    case DeviceState::Hung:
    case DeviceState::Silent:
    case DeviceState::Ready:
    case DeviceState::Working:
        return true;
    }
    return false;
}

QString toString(DeviceState state)
{
    return EnumWords::word(state);
}

QString printableName(const QString& name)
{
    if (name.isEmpty()) {
        return {};
    }
    // Nearly every name is printable, and is then returned without a copy of its text.
    QString result = name.left(MaxNameLength + 1);
    for (int i = 0; i < result.size(); ++i) {
        if (!isPrintable(result.at(i))) {
            result[i] = QChar(' ');
        }
    }
    if (result.size() > MaxNameLength) {
        result.truncate(MaxNameLength - 1);
        if (result.at(result.size() - 1).isHighSurrogate()) {
            result.chop(1);
        }
        result += QChar(0x2026);
    }
    return result.trimmed();
}

DeviceList withDistinctNames(DeviceList devices)
{
    QSet<QString> taken;
    QHash<QString, int> lastNumbers; // so that a thousand equal names take no million tries
    for (DeviceInfo& device : devices) {
        const QString plain = printableName(device.name);
        QString name = plain;
        int number = lastNumbers.value(plain, 1);
        while (taken.contains(name)) {
            name = QStringLiteral("%1 (%2)").arg(plain, QString::number(++number));
        }
        lastNumbers[plain] = number;
        taken.insert(name);
        device.name = name;
    }
    return devices;
}

} // namespace Platform
