// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/Dictionary.h"
#include "tests/support/PageTools.h"
#include "wizard/WelcomePage.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

namespace {

const QString Sentence =
    "&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;To ensure good service, we will test your "
    "system.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;";
const QString StartStyle = R"(QPushButton
{
  border-radius: 24px;
  background-color: rgb( 48, 186, 120 );
  min-width: 261px;
  min-height: 51px;
  max-width: 261px;
  max-height: 51px;
  font-size: 20px;
  color: rgb( 255, 255, 255 );
}

QPushButton:hover
{
  background-color: rgb( 25, 166, 98 );
})";

} // namespace

class tst_WelcomePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts();
    void sentenceIsTranslatedByItsSource();
    void look();
    void spacers();
    void startButtonAnnouncesEachClick();
    void returnStarts();
    void skipButtonIsNeverVisible();
    void backgroundFollowsTheSize_data();
    void backgroundFollowsTheSize();
    void metaObject();
};

void tst_WelcomePage::texts()
{
    const WelcomePage page;
    QCOMPARE(page.findChild<QLabel*>("wellcomeTest1")->text(), QString("ID_Skip"));
    QCOMPARE(page.findChild<QLabel*>("wellcomeText2")->text(), Sentence);
    QCOMPARE(page.findChild<QPushButton*>("pb_start_check")->text(),
             QString("ID_WelcomePage_StartTest"));
    QCOMPARE(page.findChild<QToolButton*>("tb_skip")->text(), QString("Skip"));
}

void tst_WelcomePage::sentenceIsTranslatedByItsSource()
{
    const Dictionary dictionary(
        {{"WelcomePage/" + Sentence, "We will look at your system."}, {"ID_Skip", "Pass over"}});
    const WelcomePage page;
    QCOMPARE(page.findChild<QLabel*>("wellcomeText2")->text(),
             QString("We will look at your system."));
    QCOMPARE(page.findChild<QLabel*>("wellcomeTest1")->text(), QString("Pass over"));
    QCOMPARE(page.findChild<QToolButton*>("tb_skip")->text(), QString("Skip"));
}

void tst_WelcomePage::look()
{
    const WelcomePage page;
    QCOMPARE(page.size(), QSize(856, 616));
    QCOMPARE(page.styleSheet(), QString("QFrame{border: 0px;}"));
    for (const char* name : {"wellcomeTest1", "wellcomeText2"}) {
        const auto* label = page.findChild<QLabel*>(name);
        QCOMPARE(label->maximumWidth(), 820);
        QCOMPARE(label->styleSheet(), QString("  font-size: 20px;\n  color: #fff;\n"));
    }
    auto* start = page.findChild<QPushButton*>("pb_start_check");
    QCOMPARE(start->styleSheet(), StartStyle);
    QVERIFY(start->isDefault());
    QVERIFY(page.findChild<QLayout*>("startButtonLayout")->indexOf(start) >= 0);
    auto* skip = page.findChild<QToolButton*>("tb_skip");
    QVERIFY(page.findChild<QHBoxLayout*>("horizontalLayout")->indexOf(skip) >= 0);
}

void tst_WelcomePage::spacers()
{
    const WelcomePage page;
    auto* layout = page.findChild<QVBoxLayout*>("verticalLayout");
    QCOMPARE(page.layout(), layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QVector<int> heights;
    for (int i = 0; i < layout->count(); ++i) {
        if (const QSpacerItem* spacer = layout->itemAt(i)->spacerItem()) {
            QCOMPARE(spacer->sizeHint().width(), 20);
            QCOMPARE(spacer->expandingDirections(), Qt::Vertical);
            heights.append(spacer->sizeHint().height());
        }
    }
    QCOMPARE(heights, QVector<int>({216, 130, 90}));
    const QSpacerItem* beside =
        page.findChild<QHBoxLayout*>("horizontalLayout")->itemAt(0)->spacerItem();
    QCOMPARE(beside->sizeHint(), QSize(40, 20));
    QCOMPARE(beside->expandingDirections(), Qt::Horizontal);
}

void tst_WelcomePage::startButtonAnnouncesEachClick()
{
    WelcomePage page;
    QSignalSpy started(&page, &WelcomePage::startCheck);
    auto* start = page.findChild<QPushButton*>("pb_start_check");
    QTest::mouseClick(start, Qt::LeftButton);
    QCOMPARE(started.count(), 1);
    QTest::mouseClick(start, Qt::LeftButton);
    QCOMPARE(started.count(), 2);
}

void tst_WelcomePage::returnStarts()
{
    QDialog dialog;
    auto* page = new WelcomePage(&dialog);
    QSignalSpy started(page, &WelcomePage::startCheck);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(started.count(), 1);
}

void tst_WelcomePage::skipButtonIsNeverVisible()
{
    WelcomePage page;
    auto* skip = page.findChild<QToolButton*>("tb_skip");
    QVERIFY(skip->isHidden());
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QVERIFY(!skip->isVisible());
    page.hide();
    page.show();
    QVERIFY(!skip->isVisible());
}

void tst_WelcomePage::backgroundFollowsTheSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("form") << QSize(856, 616);
    QTest::newRow("wide") << QSize(1600, 700);
    QTest::newRow("high") << QSize(900, 1200);
}

void tst_WelcomePage::backgroundFollowsTheSize()
{
    QFETCH(QSize, size);
    WelcomePage page;
    const QList<QWidget*> widgets = page.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        widget->hide(); // only the background is left
    }
    page.resize(size);
    QImage wanted(size, QImage::Format_RGB32);
    wanted.fill(Qt::white);
    QPainter(&wanted).drawImage(wanted.rect(), QImage(":/Kestrel/Images/back.png"));
    QImage painted(size, QImage::Format_RGB32);
    painted.fill(Qt::white);
    page.render(&painted, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(painted, wanted);
}

void tst_WelcomePage::metaObject()
{
    QCOMPARE(ownMethods(WelcomePage::staticMetaObject), QList<QByteArray>({"startCheck()"}));
}

QTEST_MAIN(tst_WelcomePage)
#include "tst_WelcomePage.moc"
