// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/flow/ContentPageTest.h"
#include "tests/support/CloseVeto.h"
#include "tests/support/QuestionAnswerer.h"

#include <CoreEngine/CoreEngine.h>

#include <QSignalSpy>
#include <QtTest>

using TestSupport::ContentPageTest;

// The end of the session by the engine, at any moment.
class tst_ContentPageEnd : public ContentPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void engineEndsTheSession_data();
    void engineEndsTheSession();
    void breakdownWinsOverTheQuestion_data();
    void breakdownWinsOverTheQuestion();
    void breakdownWinsOverCanClose();
    void breakdownWhileTheQuestionIsLogged();
    void breakdownTwiceInARow();
    void breakdownWhileClosing();
    void breakdownAfterAVeto();
    void frameDestroyedDuringTheQuestion();

private:
    void endSession(bool isKickout);
    void watchTheOrder(bool& wasClosedFirst);
};

void tst_ContentPageEnd::endSession(bool isKickout)
{
    isKickout ? m_engine->facts().kickOut() : m_engine->facts().breakDown();
}

// Frame, page and question are gone before the dialog is told to close.
void tst_ContentPageEnd::watchTheOrder(bool& wasClosedFirst)
{
    const QPointer<QWidget> shown = stack("stackedWidget")->currentWidget();
    connect(m_frame, &ContentPage::closeDialog, m_frame,
            [&wasClosedFirst, shown, frame = m_frame.data()] {
                wasClosedFirst =
                    frame->isHidden() && shown->isHidden() && !QApplication::activeModalWidget();
            });
}

void tst_ContentPageEnd::engineEndsTheSession_data()
{
    QTest::addColumn<bool>("isKickout");
    QTest::newRow("breakdown") << false;
    QTest::newRow("kick-out") << true;
}

void tst_ContentPageEnd::engineEndsTheSession()
{
    QFETCH(bool, isKickout);
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    bool wasClosedFirst = false;
    watchTheOrder(wasClosedFirst);
    QuestionAnswerer question(QMessageBox::No);
    endSession(isKickout);
    QTRY_COMPARE(closeDialog.count(), 1);
    QVERIFY(wasClosedFirst);
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(question.count(), 0);
    QCOMPARE(postedCodes(), QVector<int>());
    QVERIFY(!isSettingWritten());
}

void tst_ContentPageEnd::breakdownWinsOverTheQuestion_data()
{
    engineEndsTheSession_data();
}

void tst_ContentPageEnd::breakdownWinsOverTheQuestion()
{
    QFETCH(bool, isKickout);
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    bool wasClosedFirst = false;
    watchTheOrder(wasClosedFirst);
    QuestionAnswerer question([this, isKickout](QMessageBox*) { endSession(isKickout); });
    m_frame->close();
    QCOMPARE(question.count(), 1);
    QVERIFY(wasClosedFirst);
    QCOMPARE(closeDialog.count(), 1);
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(postedCodes(), QVector<int>());
    QVERIFY(!isSettingWritten());
}

void tst_ContentPageEnd::breakdownWinsOverCanClose()
{
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    QuestionAnswerer question([this](QMessageBox*) { m_engine->facts().breakDown(); });
    QVERIFY(m_frame->canClose());
    QCOMPARE(question.count(), 1);
    QCOMPARE(closeDialog.count(), 1);
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(postedCodes(), QVector<int>());
}

// The host's log may be what tells the engine to end.
void tst_ContentPageEnd::breakdownWhileTheQuestionIsLogged()
{
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    static Platform::ScriptedEngine* engine = nullptr;
    engine = m_engine;
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            if (text.contains(QStringLiteral("NotFinishedIfLeave"))) {
                engine->facts().breakDown();
            }
        });
    QuestionAnswerer question([](QMessageBox*) {});
    m_frame->close();
    qInstallMessageHandler(previous);
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(question.count(), 0);
    QCOMPARE(closeDialog.count(), 1);
    QCOMPARE(postedCodes(), QVector<int>());
}

void tst_ContentPageEnd::breakdownTwiceInARow()
{
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    QuestionAnswerer question([this](QMessageBox*) {
        m_engine->facts().breakDown();
        m_engine->facts().kickOut();
    });
    m_frame->close();
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(closeDialog.count(), 2);
    QCOMPARE(postedCodes(), QVector<int>());
}

void tst_ContentPageEnd::breakdownWhileClosing()
{
    answerAll(true);
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    m_frame->close();
    Q_EMIT LumEngine::CoreEngine::instance()->signalBasicBreakdown();
    QCOMPARE(closeDialog.count(), 1);
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(postedCodes(), QVector<int>({3}));
}

void tst_ContentPageEnd::breakdownAfterAVeto()
{
    CloseVeto veto;
    m_frame->installEventFilter(&veto);
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    QuestionAnswerer question(QMessageBox::No);
    m_engine->facts().breakDown();
    QTRY_COMPARE(closeDialog.count(), 1);
    QVERIFY(m_frame->isVisible());

    m_frame->removeEventFilter(&veto);
    m_engine->facts().kickOut();
    QTRY_COMPARE(closeDialog.count(), 2);
    QVERIFY(destroyed.count() == 1 || destroyed.wait());
    QCOMPARE(question.count(), 0);
    QCOMPARE(postedCodes(), QVector<int>());
}

void tst_ContentPageEnd::frameDestroyedDuringTheQuestion()
{
    QuestionAnswerer question([this](QMessageBox*) { delete m_frame; });
    m_frame->close();
    QVERIFY(!m_frame);
    QCOMPARE(question.count(), 1);
    QCOMPARE(postedCodes(), QVector<int>());
}

QTEST_MAIN(tst_ContentPageEnd)
#include "tst_ContentPageEnd.moc"
