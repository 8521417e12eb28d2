// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "tests/flow/ContentPageTest.h"
#include "tests/support/QuestionAnswerer.h"

#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

using TestSupport::ContentPageTest;

// The rule of closing: the question, and what is posted and kept.
class tst_ContentPageClosing : public ContentPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void closingUnansweredAsks();
    void refusingKeepsTheDialog();
    void leavingTheQuestionUnansweredKeepsTheDialog();
    void confirmingReportsLeftEarly();
    void closingAnsweredWritesTheSetting_data();
    void closingAnsweredWritesTheSetting();
    void threeAnswersAreNotEnough_data();
    void threeAnswersAreNotEnough();
    void closingHidesTheShownPage();
    void closingOnTheResultHidesNoPage();
    void questionIsLogged();
    void canCloseFollowsTheSameRule();
    void canCloseWritesTheSettingToo();
};

void tst_ContentPageClosing::closingUnansweredAsks()
{
    QuestionAnswerer question(QMessageBox::No);
    QVERIFY(!m_frame->close());
    QCOMPARE(question.count(), 1);
    QCOMPARE(question.text(), QString("ID_ContentPage_NotFinishedIfLeave"));
    QCOMPARE(question.title(), QString("ID_MessageBox_Question"));
    QCOMPARE(question.buttons(), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(question.defaultButton(), QMessageBox::Yes);
    QCOMPARE(question.parent(), m_frame.data());
}

void tst_ContentPageClosing::refusingKeepsTheDialog()
{
    m_frame->selectStep(label("label_CameraCheck"));
    QuestionAnswerer question(QMessageBox::No);
    m_frame->close();
    QVERIFY(m_frame);
    QVERIFY(m_frame->isVisible());
    QCOMPARE(shownPage(), QString("cameraPage"));
    QVERIFY(stack("stackedWidget")->currentWidget()->isVisible());
    QVERIFY(!isSettingWritten());
    QCOMPARE(postedCodes(), QVector<int>());
}

void tst_ContentPageClosing::leavingTheQuestionUnansweredKeepsTheDialog()
{
    QuestionAnswerer question([](QMessageBox* box) { box->reject(); });
    QVERIFY(!m_frame->close());
    QCOMPARE(question.count(), 1);
    QVERIFY(m_frame->isVisible());
    QCOMPARE(postedCodes(), QVector<int>());
}

void tst_ContentPageClosing::confirmingReportsLeftEarly()
{
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    QuestionAnswerer question(QMessageBox::Yes);
    QVERIFY(m_frame->close());
    QCOMPARE(postedCodes(), QVector<int>({7}));
    QCOMPARE(m_engine->reports().posts().first().managerName, QString("ContentPage::closeEvent"));
    QVERIFY(!isSettingWritten());
    QVERIFY(destroyed.wait());
}

void tst_ContentPageClosing::closingAnsweredWritesTheSetting_data()
{
    QTest::addColumn<bool>("answer");
    QTest::newRow("all yes") << true;
    QTest::newRow("all no") << false;
}

void tst_ContentPageClosing::closingAnsweredWritesTheSetting()
{
    QFETCH(bool, answer);
    answerAll(answer);
    QuestionAnswerer question(QMessageBox::No);
    QVERIFY(m_frame->close());
    QCOMPARE(question.count(), 0);
    QCOMPARE(postedCodes(), QVector<int>({3}));
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
    const QSettings file(m_engine->settingsFolder() + "/settings.ini", QSettings::IniFormat);
    QCOMPARE(file.value("ShowSystemCheck").toString(), QString("false"));
}

void tst_ContentPageClosing::threeAnswersAreNotEnough_data()
{
    QTest::addColumn<QString>("unanswered");
    for (const char* name : PageNames) {
        QTest::newRow(name) << name;
    }
}

void tst_ContentPageClosing::threeAnswersAreNotEnough()
{
    QFETCH(QString, unanswered);
    answerAll(true);
    m_frame->findChild<CheckPage*>(unanswered)->reset();
    QuestionAnswerer question(QMessageBox::Yes);
    m_frame->close();
    QCOMPARE(question.count(), 1);
    QCOMPARE(postedCodes(), QVector<int>({7}));
    QVERIFY(!isSettingWritten());
}

void tst_ContentPageClosing::closingHidesTheShownPage()
{
    m_frame->selectStep(label("label_CameraCheck"));
    const QPointer<QWidget> shown = stack("stackedWidget")->currentWidget();
    m_engine->clearCalls();
    QuestionAnswerer question(QMessageBox::Yes);
    m_frame->close();
    QVERIFY(shown->isHidden());
    const QStringList commands = m_engine->commands();
    const int posted = commands.indexOf("report.post(ContentPage::closeEvent,7)");
    QVERIFY(posted >= 0);
    QVERIFY(posted < commands.indexOf("camera.stop()"));
}

void tst_ContentPageClosing::closingOnTheResultHidesNoPage()
{
    answerAll(true);
    const QPointer<QWidget> microphonePage = page("microphonePage");
    m_frame->close();
    QVERIFY(microphonePage);
    QVERIFY(!microphonePage->isHidden());
}

void tst_ContentPageClosing::questionIsLogged()
{
    static QStringList lines;
    lines.clear();
    static QtMessageHandler previous = nullptr;
    previous = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (type == QtInfoMsg) {
                lines << text;
            } else {
                previous(type, context, text);
            }
        });
    int linesBefore = -1;
    QuestionAnswerer question([&linesBefore](QMessageBox* box) {
        linesBefore = lines.size();
        box->button(QMessageBox::No)->click();
    });
    m_frame->close();
    qInstallMessageHandler(previous);
    QCOMPARE(linesBefore, 1);
    QVERIFY(lines.at(0).contains("ID_MessageBox_Question"));
    QVERIFY(lines.at(0).contains("ID_ContentPage_NotFinishedIfLeave"));
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(1).contains("QMessageBox::No"));
}

void tst_ContentPageClosing::canCloseFollowsTheSameRule()
{
    {
        QuestionAnswerer question(QMessageBox::No);
        QVERIFY(!m_frame->canClose());
        QCOMPARE(question.count(), 1);
        QCOMPARE(postedCodes(), QVector<int>());
    }
    QuestionAnswerer question(QMessageBox::Yes);
    QVERIFY(m_frame->canClose());
    QCOMPARE(m_engine->reports().posts().first().managerName, QString("isCanCloseFunc"));
    QCOMPARE(postedCodes(), QVector<int>({7}));
    QVERIFY(m_frame->isVisible());
    QVERIFY(stack("stackedWidget")->currentWidget()->isHidden());
}

void tst_ContentPageClosing::canCloseWritesTheSettingToo()
{
    answerAll(true);
    QuestionAnswerer question(QMessageBox::No);
    QVERIFY(m_frame->canClose());
    QCOMPARE(question.count(), 0);
    QVERIFY(isSettingWritten());
    QCOMPARE(postedCodes(), QVector<int>({3}));
}

QTEST_MAIN(tst_ContentPageClosing)
#include "tst_ContentPageClosing.moc"
