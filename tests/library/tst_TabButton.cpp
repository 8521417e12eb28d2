// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PageTools.h"
#include "widgets/TabButton.h"

#include <LumUtility/LumColor.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

class tst_TabButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void look();
    void textGoesToTheLabel();
    void colourFollowsTheCheck();
    void uncheckableStaysGrey();
};

void tst_TabButton::look()
{
    TabButton button(nullptr);
    auto* layout = qobject_cast<QHBoxLayout*>(button.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 20);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    auto* label = qobject_cast<QLabel*>(layout->itemAt(0)->widget());
    QVERIFY(label);
    QCOMPARE(label->parentWidget(), &button);
    QCOMPARE(label->styleSheet(),
             QString("QLabel {font-size: 12px ;  color: #333; min-width: 80px;}"));
    QCOMPARE(ownMethods(TabButton::staticMetaObject), QList<QByteArray>());
}

void tst_TabButton::textGoesToTheLabel()
{
    TabButton button(nullptr);
    button.setText("Camera");
    QCOMPARE(button.findChild<QLabel*>()->text(), QString("Camera"));
    QCOMPARE(button.text(), QString());
}

void tst_TabButton::colourFollowsTheCheck()
{
    TabButton button(nullptr);
    button.setCheckable(true);
    auto* label = button.findChild<QLabel*>();
    button.click();
    QCOMPARE(label->styleSheet(),
             "QLabel {font-size: 12px ;  color: " + LumColor::Green.name() + "; min-width: 80px;}");
    button.click();
    QCOMPARE(label->styleSheet(),
             "QLabel {font-size: 12px ;  color: " + LumColor::Red.name() + "; min-width: 80px;}");
}

void tst_TabButton::uncheckableStaysGrey()
{
    TabButton button(nullptr);
    button.click();
    QVERIFY(button.findChild<QLabel*>()->styleSheet().contains("#333"));
}

QTEST_MAIN(tst_TabButton)
#include "tst_TabButton.moc"
