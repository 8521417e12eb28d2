// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EnumWords.h"

namespace Platform {

namespace {

QString toWord(const char* key)
{
    QString word = QString::fromLatin1(key);
    if (!word.isEmpty()) {
        word[0] = word.at(0).toLower();
    }
    return word;
}

} // namespace

QString EnumWords::wordOf(const QMetaEnum& enumeration, int value)
{
    return toWord(enumeration.valueToKey(value));
}

QStringList EnumWords::allOf(const QMetaEnum& enumeration)
{
    QStringList words;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        words.append(toWord(enumeration.key(i)));
    }
    return words;
}

std::optional<int> EnumWords::valueOf(const QMetaEnum& enumeration, const QString& word)
{
    const int index = allOf(enumeration).indexOf(word);
    return index < 0 ? std::nullopt : std::optional<int>(enumeration.value(index));
}

} // namespace Platform
