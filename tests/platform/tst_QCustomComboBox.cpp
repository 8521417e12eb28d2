// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/QCustomComboBox.h>
#include <LumWidgets/QCustomComboBoxItem.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QtTest>

class tst_QCustomComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasALineEdit();
    void clickOnTheLineEditOpensThePopup();
    void clickWithoutBeingEnabled();
    void popupHasItsOwnWidth();
    void itemsAreCutInTheMiddle();
};

void tst_QCustomComboBox::hasALineEdit()
{
    QCustomComboBox combo(nullptr, true);
    QVERIFY(combo.isEditable());
    QVERIFY(combo.lineEdit());
    QVERIFY(!combo.completer());
    combo.addItem("one");
    combo.lineEdit()->setText("other");
    QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    QCOMPARE(combo.count(), 1);
}

void tst_QCustomComboBox::clickOnTheLineEditOpensThePopup()
{
    QCustomComboBox combo(nullptr);
    combo.addItems({"one", "two"});
    combo.setEnableClickLineEdit(true);
    combo.show();
    QTest::mouseClick(combo.lineEdit(), Qt::LeftButton);
    QVERIFY(combo.view()->isVisible());
    combo.hidePopup();
    QTest::mouseClick(combo.lineEdit(), Qt::RightButton);
    QVERIFY(!combo.view()->isVisible());
}

void tst_QCustomComboBox::clickWithoutBeingEnabled()
{
    QCustomComboBox combo(nullptr);
    combo.addItems({"one", "two"});
    combo.show();
    QTest::mouseClick(combo.lineEdit(), Qt::LeftButton);
    QVERIFY(!combo.view()->isVisible());
}

void tst_QCustomComboBox::popupHasItsOwnWidth()
{
    QCustomComboBox combo(nullptr);
    combo.addItem("one");
    combo.setFixedWidth(100);
    combo.setPopupWidth(306);
    combo.show();
    combo.showPopup();
    QCOMPARE(combo.view()->width(), 306);
}

void tst_QCustomComboBox::itemsAreCutInTheMiddle()
{
    struct Item : QCustomComboBoxItem
    {
        using QCustomComboBoxItem::initStyleOption;
        using QCustomComboBoxItem::QCustomComboBoxItem;
    };
    QCustomComboBox combo(nullptr);
    combo.addItem("<b>one</b>");
    const Item item(&combo);
    QStyleOptionViewItem option;
    item.initStyleOption(&option, combo.model()->index(0, 0));
    QCOMPARE(option.textElideMode, Qt::ElideMiddle);
    QCOMPARE(option.text, QString("<b>one</b>"));
    QCOMPARE(item.sizeHint(option, combo.model()->index(0, 0)).height(), 30);
}

QTEST_MAIN(tst_QCustomComboBox)
#include "tst_QCustomComboBox.moc"
