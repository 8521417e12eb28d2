// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/external-engine/QuestionBox.h"
#include "tests/support/CloseVeto.h"
#include "wizard/CheckPage.h"
#include "wizard/ContentPage.h"

#include <CoreEngine/CoreEngine.h>
#include <LumUtility/LumSettings.h>
#include <LumUtility/LumUtils.h>
#include <LumWidgets/LumMessageBox.h>

#include <QPointer>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QtTest>

using Platform::ScriptedEngine;
using Kind = QuestionBox::Kind;

namespace {

std::function<void()> s_duringTitle;
std::function<void()> s_duringSetting;
int s_settingsWritten = 0;

} // namespace

// An engine with other manners than the bundled one: these take the place of its functions.
QMessageBox::StandardButton LumMessageBox::question(QWidget* parent, const QString& /*title*/,
                                                    const QString& /*text*/,
                                                    QMessageBox::StandardButtons /*buttons*/,
                                                    QMessageBox::StandardButton /*defaultButton*/)
{
    return QuestionBox::instance().ask(parent);
}

QString LumUtils::getMessageBoxTitle(QMessageBox::Icon /*icon*/)
{
    if (s_duringTitle) {
        s_duringTitle();
    }
    return QStringLiteral("title");
}

void LumSettings::setSetting(const QString& /*key*/, const QVariant& /*value*/)
{
    ++s_settingsWritten;
    if (s_duringSetting) {
        s_duringSetting();
    }
}

class tst_ContentPageForeignQuestion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void frameIsGoneWhileItAsks_data();
    void frameIsGoneWhileItAsks();
    void eventBeforeTheQuestion();
    void eventWithTheAnswer_data();
    void eventWithTheAnswer();
    void eventAfterRefusal_data();
    void eventAfterRefusal();
    void secondEventWhileItAsks();
    void otherWindowsStay();
    void vetoOutlastsTheQuestion();
    void hostThatAsksFromTheCloseEvent();
    void eventFromWithinACall_data();
    void eventFromWithinACall();

private:
    void breakDown() { Q_EMIT LumEngine::CoreEngine::instance()->signalBasicBreakdown(); }
    // Closes the frame, or asks for a host whether it may be closed.
    bool leave(bool asksFirst) { return asksFirst ? m_frame->canClose() : m_frame->close(); }
    bool isNothingTold() const
    {
        return s_settingsWritten == 0 && m_engine->reports().posts().empty();
    }

    ScriptedEngine* m_engine = nullptr;
    QuestionBox& m_question = QuestionBox::instance();
    std::unique_ptr<QWidget> m_window;
    QPointer<ContentPage> m_frame;
    QPointer<QWidget> m_shownPage;
    int m_goneCount = 0; // closeDialog() with the frame hidden, its page left and nothing told
};

void tst_ContentPageForeignQuestion::init()
{
    m_engine = &ScriptedEngine::install();
    s_duringTitle = {};
    s_duringSetting = {};
    s_settingsWritten = 0;
    m_goneCount = 0;
    m_window = std::make_unique<QWidget>();
    m_frame = new ContentPage;
    (new QVBoxLayout(m_window.get()))->addWidget(m_frame);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_shownPage = m_frame->findChild<QStackedWidget*>("stackedWidget")->currentWidget();
    connect(m_frame, &ContentPage::closeDialog, this, [this] {
        const bool isGone = m_frame->isHidden() && m_shownPage->isHidden() && isNothingTold();
        m_goneCount += isGone ? 1 : 0;
    });
}

void tst_ContentPageForeignQuestion::cleanup()
{
    m_window.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    Platform::EngineRegistry::uninstall();
}

void tst_ContentPageForeignQuestion::frameIsGoneWhileItAsks_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("isClosedToo");
    QTest::addColumn<bool>("asksFirst");
    QTest::addColumn<int>("answer");
    const QVector<std::tuple<const char*, Kind, bool>> kinds = {
        {"dialog below the frame", Kind::DialogBelowFrame, true},
        {"dialog below the window", Kind::DialogBelowWindow, true},
        {"dialog alone", Kind::DialogAlone, false},
        {"window below the frame", Kind::WindowBelowFrame, true},
        {"window alone", Kind::WindowAlone, false},
        {"nothing shown", Kind::NothingShown, false},
    };
    for (const auto& [name, kind, isClosedToo] : kinds) {
        QTest::addRow("%s, Yes", name) << kind << isClosedToo << false << int(QMessageBox::Yes);
        QTest::addRow("%s, No", name) << kind << isClosedToo << false << int(QMessageBox::No);
        QTest::addRow("%s, host asks, Yes", name)
            << kind << isClosedToo << true << int(QMessageBox::Yes);
        QTest::addRow("%s, host asks, No", name)
            << kind << isClosedToo << true << int(QMessageBox::No);
    }
}

void tst_ContentPageForeignQuestion::frameIsGoneWhileItAsks()
{
    QFETCH(Kind, kind);
    QFETCH(bool, isClosedToo);
    QFETCH(bool, asksFirst);
    QFETCH(int, answer);
    m_question.reset(kind, QMessageBox::StandardButton(answer));
    bool isAliveWhileAsked = false;
    bool isBoxShown = true;
    m_question.whileOpen = [&] {
        breakDown();
        isBoxShown = m_question.isShown();
        if (!isClosedToo) {
            // Later, so that the question's loop would delete what it may.
            QTimer::singleShot(0, this, [&] {
                isAliveWhileAsked = m_frame;
                Q_EMIT m_question.answered();
            });
        }
    };
    QVERIFY(leave(asksFirst));
    QCOMPARE(m_question.asked, 1);
    QCOMPARE(m_goneCount, 1);
    const bool isWithoutWindow = kind == Kind::NothingShown;
    QCOMPARE(isAliveWhileAsked, !isClosedToo);
    QCOMPARE(isBoxShown, !isClosedToo && !isWithoutWindow);
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::eventBeforeTheQuestion()
{
    m_question.reset(Kind::DialogAlone, QMessageBox::No);
    breakDown();
    QCOMPARE(m_goneCount, 1);
    QVERIFY(m_frame->canClose());
    QVERIFY(m_frame->close());
    QCOMPARE(m_question.asked, 0);
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::eventWithTheAnswer_data()
{
    QTest::addColumn<bool>("asksFirst");
    QTest::newRow("closing") << false;
    QTest::newRow("host asks") << true;
}

void tst_ContentPageForeignQuestion::eventWithTheAnswer()
{
    QFETCH(bool, asksFirst);
    m_question.reset(Kind::AtOnce, QMessageBox::Yes);
    m_question.beforeAnswer = [this] { breakDown(); };
    QVERIFY(leave(asksFirst));
    QCOMPARE(m_goneCount, 1);
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::eventAfterRefusal_data()
{
    eventWithTheAnswer_data();
}

void tst_ContentPageForeignQuestion::eventAfterRefusal()
{
    QFETCH(bool, asksFirst);
    m_question.reset(Kind::AtOnce, QMessageBox::No);
    QVERIFY(!leave(asksFirst));
    QVERIFY(m_frame->isVisible());
    breakDown();
    QCOMPARE(m_goneCount, 1);
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::secondEventWhileItAsks()
{
    m_question.reset(Kind::NothingShown, QMessageBox::Yes);
    m_question.whileOpen = [this] {
        breakDown();
        breakDown();
        Q_EMIT m_question.answered();
    };
    QVERIFY(m_frame->close());
    QCOMPARE(m_goneCount, 2);
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::otherWindowsStay()
{
    QWidget tool(m_window.get(), Qt::Tool);
    tool.show();
    m_question.reset(Kind::DialogBelowWindow, QMessageBox::Yes);
    m_question.whileOpen = [this] { breakDown(); };
    QVERIFY(m_frame->close());
    QVERIFY(tool.isVisible());
    QTRY_VERIFY(!m_frame);
}

void tst_ContentPageForeignQuestion::vetoOutlastsTheQuestion()
{
    CloseVeto veto;
    m_frame->installEventFilter(&veto);
    m_question.reset(Kind::NothingShown, QMessageBox::Yes);
    m_question.whileOpen = [this] {
        breakDown();
        Q_EMIT m_question.answered();
    };
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    QVERIFY(m_frame->canClose());
    QCOMPARE(closeDialog.count(), 1);
    QCoreApplication::processEvents();
    QVERIFY(m_frame->isVisible());
    QVERIFY(m_frame->testAttribute(Qt::WA_DeleteOnClose));
    m_frame->removeEventFilter(&veto);
    breakDown();
    QCOMPARE(closeDialog.count(), 2);
    QVERIFY(m_frame->isHidden());
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::hostThatAsksFromTheCloseEvent()
{
    // A host that keeps the frame all the same doesn't keep a frame that is hidden already.
    class AskingHost : public QObject
    {
    public:
        bool isAllowed = false;

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() != QEvent::Close) {
                return false;
            }
            isAllowed = static_cast<ContentPage*>(watched)->canClose();
            event->ignore();
            return true;
        }
    } host;
    m_frame->installEventFilter(&host);
    m_question.reset(Kind::NothingShown, QMessageBox::No);
    m_question.whileOpen = [this] {
        breakDown();
        Q_EMIT m_question.answered();
    };
    QVERIFY(!m_frame->close());
    QVERIFY(host.isAllowed);
    QCOMPARE(m_goneCount, 1);
    QTRY_VERIFY(!m_frame);
    QVERIFY(isNothingTold());
}

void tst_ContentPageForeignQuestion::eventFromWithinACall_data()
{
    QTest::addColumn<bool>("isAnswered");
    QTest::newRow("before the box") << false;
    QTest::newRow("while the setting is written") << true;
}

void tst_ContentPageForeignQuestion::eventFromWithinACall()
{
    QFETCH(bool, isAnswered);
    m_question.reset(Kind::AtOnce, QMessageBox::Yes);
    s_duringTitle = s_duringSetting = [this] { breakDown(); };
    QSignalSpy closeDialog(m_frame, &ContentPage::closeDialog);
    if (isAnswered) {
        const QList<CheckPage*> pages = m_frame->findChildren<CheckPage*>();
        for (CheckPage* page : pages) {
            page->finishCheck(true);
        }
    }
    QVERIFY(m_frame->close());
    QCOMPARE(closeDialog.count(), 1);
    QCOMPARE(m_question.asked, 0);
    QVERIFY(m_engine->reports().posts().empty());
    QTRY_VERIFY(!m_frame);
}

QTEST_MAIN(tst_ContentPageForeignQuestion)
#include "tst_ContentPageForeignQuestion.moc"
