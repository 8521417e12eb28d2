// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/DesktopPalettes.h"

#include <QFont>
#include <qpa/qplatformtheme.h>
#include <qpa/qplatformthemeplugin.h>

namespace {

constexpr int LargePoints = 20;

// A desktop that gives dark colours and large letters to every program, as KDE and GNOME can.
class DarkTheme : public QPlatformTheme
{
public:
    DarkTheme() { m_font.setPointSize(LargePoints); }

    const QPalette* palette(Palette type) const override
    {
        return type == SystemPalette ? &m_palette : nullptr;
    }
    const QFont* font(Font /*type*/) const override { return &m_font; }

private:
    const QPalette m_palette = TestSupport::desktopPalette(QStringLiteral("dark"));
    QFont m_font{QStringLiteral("Sans Serif")};
};

} // namespace

class DarkThemePlugin : public QPlatformThemePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QPlatformThemeFactoryInterface_iid FILE "dark-theme.json")

public:
    QPlatformTheme* create(const QString& /*key*/, const QStringList& /*parameters*/) override
    {
        return new DarkTheme;
    }
};

#include "DarkTheme.moc"
