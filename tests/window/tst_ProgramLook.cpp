// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ProgramLook.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QtTest>

namespace {

int brightnessOf(QPalette::ColorRole role)
{
    return QApplication::palette().color(role).lightness();
}

} // namespace

// On a desktop whose theme brings dark colours and large letters; ENVIRONMENT of the test names it.
class tst_ProgramLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesNothingOfTheTheme();
};

void tst_ProgramLook::takesNothingOfTheTheme()
{
    const int dark = 100;
    const int light = 200;
    QVERIFY2(brightnessOf(QPalette::Window) < dark, "the theme wasn't loaded");
    QVERIFY(QApplication::font().pointSize() > 0);

    ProgramLook::use();
    QCOMPARE(QApplication::style()->objectName(), QStringLiteral("fusion"));
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        QVERIFY(brightnessOf(role) > light);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QVERIFY(brightnessOf(role) < dark);
    }
    QCOMPARE(QApplication::font().pixelSize(), 12);
}

QTEST_MAIN(tst_ProgramLook)
#include "tst_ProgramLook.moc"
