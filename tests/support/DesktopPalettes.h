// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPalette>

// Palettes that desktops give to programs.
namespace TestSupport {

inline QPalette desktopPalette(const QString& name)
{
    const auto of = [](const QColor& text, const QColor& ground, const QColor& button,
                       const QColor& chosen) {
        QPalette palette(button, ground);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(role, text);
        }
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Highlight, chosen);
        return palette;
    };
    if (name == QLatin1String("dark")) {
        return of(QColor(0xEEEEEC), QColor(0x353535), QColor(0x2D2D2D), QColor(0x15539E));
    }
    if (name == QLatin1String("high contrast, black")) {
        return of(Qt::white, Qt::black, Qt::black, Qt::yellow);
    }
    if (name == QLatin1String("high contrast, white")) {
        return of(Qt::black, Qt::white, Qt::white, Qt::black);
    }
    return of(Qt::black, QColor(0xEFEFEF), QColor(0xEFEFEF), QColor(0x308CC6));
}

inline QStringList desktopPalettes()
{
    return {QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("high contrast, black"),
            QStringLiteral("high contrast, white")};
}

// The program's palette, and its own one back at the end.
class DesktopPalette
{
public:
    explicit DesktopPalette(const QString& name) { QApplication::setPalette(desktopPalette(name)); }
    ~DesktopPalette() { QApplication::setPalette(m_before); }
    Q_DISABLE_COPY(DesktopPalette)

private:
    const QPalette m_before = QApplication::palette();
};

} // namespace TestSupport
