// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QMetaEnum>
#include <QStringList>
#include <optional>

namespace Platform {

// Enumerations in JSON documents. The word of an enumerator is its name with a lower-case first
// letter: NotMeasured is "notMeasured". The enumeration must be declared by Q_ENUM or Q_ENUM_NS.
namespace EnumWords {

CLASSROOMBACKEND_EXPORT QString wordOf(const QMetaEnum& enumeration, int value);
CLASSROOMBACKEND_EXPORT QStringList allOf(const QMetaEnum& enumeration); // in their order
CLASSROOMBACKEND_EXPORT std::optional<int> valueOf(const QMetaEnum& enumeration,
                                                   const QString& word);

template <typename Enum>
QString word(Enum value)
{
    return wordOf(QMetaEnum::fromType<Enum>(), static_cast<int>(value));
}

template <typename Enum>
QStringList all()
{
    return allOf(QMetaEnum::fromType<Enum>());
}

// Nothing if no enumerator has this word.
template <typename Enum>
std::optional<Enum> value(const QString& word)
{
    const std::optional<int> found = valueOf(QMetaEnum::fromType<Enum>(), word);
    return found ? std::optional<Enum>(static_cast<Enum>(*found)) : std::nullopt;
}

} // namespace EnumWords
} // namespace Platform
