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
    void popupOpensAtTheEndOfTheClick();
    void noChoiceIsSaid();
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

void tst_QCustomComboBox::popupOpensAtTheEndOfTheClick()
{
    QCustomComboBox combo(nullptr);
    combo.addItems({"one", "two"});
    combo.setEnableClickLineEdit(true);
    combo.show();
    QTest::mousePress(combo.lineEdit(), Qt::LeftButton);
    QVERIFY(!combo.view()->isVisible());
    QTest::mouseRelease(combo.lineEdit(), Qt::LeftButton);
    QVERIFY(combo.view()->isVisible());
    combo.hidePopup();
    QTest::mousePress(combo.lineEdit(), Qt::LeftButton);
    QTest::mouseRelease(combo.lineEdit(), Qt::LeftButton, {}, QPoint(-50, -50));
    QVERIFY(!combo.view()->isVisible());
}

// As when the chosen device is unplugged.
void tst_QCustomComboBox::noChoiceIsSaid()
{
    QCustomComboBox combo(nullptr);
    combo.setStyleSheet("QComboBox{background:white;color:black;border:none;}");
    combo.setEnableClickLineEdit(true);
    combo.lineEdit()->setReadOnly(true);
    combo.lineEdit()->setStyleSheet("background-color: transparent; border: none;");
    combo.setFixedSize(300, 30);
    combo.show();
    const auto isTextShown = [&combo] {
        const QImage picture = combo.grab().toImage();
        for (int x = 5; x < picture.width() / 2; ++x) {
            for (int y = 5; y < picture.height() - 5; ++y) {
                if (qGray(picture.pixel(x, y)) < 100) {
                    return true;
                }
            }
        }
        return false;
    };
    combo.lineEdit()->setCursor(Qt::ArrowCursor);
    QVERIFY(!isTextShown()); // nothing is listed
    combo.addItems({"one", "two"});
    combo.setCurrentIndex(-1);
    QVERIFY(isTextShown());
    QCOMPARE(combo.currentText(), QString());
    QCOMPARE(combo.lineEdit()->accessibleDescription(), QString("ID_Engine_NotConnected"));
    combo.setCurrentIndex(1);
    QCOMPARE(combo.lineEdit()->accessibleDescription(), QString());
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
