// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayKind.h"

namespace {

const char* const KindVariable = "QT_QPA_PLATFORM";

QString valueOf(const char* variable)
{
    return qEnvironmentVariable(variable);
}

// Without its folder, libwayland prints a line of its own and gives up.
bool mayUseWayland()
{
    const QString display = valueOf("WAYLAND_DISPLAY");
    const bool hasFolder =
        display.startsWith(QLatin1Char('/')) || !valueOf("XDG_RUNTIME_DIR").isEmpty();
    return !display.isEmpty() && hasFolder;
}

} // namespace

QStringList DisplayKind::displays()
{
    QStringList names{valueOf("DISPLAY"), valueOf("WAYLAND_DISPLAY"), valueOf(KindVariable)};
    names.removeAll(QString());
    return names;
}

// In Qt's own order, which prefers X11 on GNOME.
bool DisplayKind::choose()
{
    if (!valueOf(KindVariable).isEmpty()) {
        return true;
    }
    QStringList kinds;
    if (!valueOf("DISPLAY").isEmpty()) {
        kinds.append(QStringLiteral("xcb"));
    }
    if (mayUseWayland()) {
        const bool isGnome = valueOf("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME"));
        const bool isFirst = valueOf("XDG_SESSION_TYPE") == QLatin1String("wayland") && !isGnome;
        kinds.insert(isFirst ? 0 : kinds.size(), QStringLiteral("wayland"));
    }
    if (!kinds.isEmpty()) {
        qputenv(KindVariable, kinds.join(QLatin1Char(';')).toLatin1());
    }
    return !kinds.isEmpty();
}
