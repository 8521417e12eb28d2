// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/ProcessResources.h"
#include "tests/support/QuestionAnswerer.h"

#include <CoreEngine/CoreEngine.h>
#include <LumWidgets/LumCustomNormalDialog.h>

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QToolButton>
#include <QtTest>

using Platform::ScriptedEngine;

namespace {

// Runs the script in the dialog once that is open. A script that fails leaves no dialog open.
class DialogRun
{
public:
    using Script = std::function<void(LumCustomNormalDialog*)>;

    explicit DialogRun(Script script) : m_script(std::move(script))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            auto* dialog = qobject_cast<LumCustomNormalDialog*>(QApplication::activeModalWidget());
            if (dialog && dialog->isVisible()) {
                m_timer.stop();
                const QPointer<LumCustomNormalDialog> guard(dialog);
                m_script(dialog);
                if (guard && QTest::currentTestFailed()) {
                    guard->done(QDialog::Rejected);
                }
            }
        });
        m_timer.start(0);
    }

    bool wasRun() const { return !m_timer.isActive(); }

private:
    Script m_script;
    QTimer m_timer;
};

QWidget* frameOf(const LumCustomNormalDialog* dialog)
{
    return dialog->findChild<QWidget*>("selfcheckContentPage");
}

} // namespace

class tst_EnvCheckAgent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void releaseWithoutInstance();
    void instanceIsTheSameUntilReleased();
    void metaObjectHasTwoSignals();
    void showKestrelAsksForTheMainWindow();
    void openingTellsWhatIsMissing();
    void dialogWithoutParent();
    void dialogAboveItsParent();
    void dialogIsTheParentsChild();
    void lastWindowIsTheParent();
    void closingEmitsNothing();
    void everyCallStartsAfresh();
    void userClosesThroughTheFrame_data();
    void userClosesThroughTheFrame();
    void frameClosingEndsTheDialog();
    void releaseInsideTheDialog();
    void secondCallInsideTheDialog();
    void ownerDeletedInsideTheDialog();
    void ownerDeletedDuringTheQuestion();
    void applicationQuitsDuringTheQuestion();
    void breakdownDuringTheQuestionEndsTheDialog();
    void breakdownBeforeTheDialogRuns_data();
    void breakdownBeforeTheDialogRuns();
    void hundredOpeningsLeaveNothingBehind();

private:
    void kickOut() { m_engine->facts().kickOut(); }

    ScriptedEngine* m_engine = nullptr;
};

// The texts are missing in all of these tests.
void tst_EnvCheckAgent::initTestCase()
{
    QLoggingCategory::setFilterRules("envcheck.warning=false");
}

void tst_EnvCheckAgent::init()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    m_engine = &ScriptedEngine::install();
}

void tst_EnvCheckAgent::cleanup()
{
    EnvCheckAgent::release();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_engine->livingSessions(), 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
    Platform::EngineRegistry::uninstall();
}

void tst_EnvCheckAgent::releaseWithoutInstance()
{
    EnvCheckAgent::release();
    const QPointer<EnvCheckAgent> agent = EnvCheckAgent::instance();
    QVERIFY(agent);
    EnvCheckAgent::release();
    QVERIFY(!agent);
    EnvCheckAgent::release();
    QVERIFY(EnvCheckAgent::instance());
}

void tst_EnvCheckAgent::instanceIsTheSameUntilReleased()
{
    const QPointer<EnvCheckAgent> agent = EnvCheckAgent::instance();
    QCOMPARE(EnvCheckAgent::instance(), agent.data());
    QVERIFY(!agent->parent());
    EnvCheckAgent::release();
    QVERIFY(!agent);
    QVERIFY(EnvCheckAgent::instance());
}

void tst_EnvCheckAgent::metaObjectHasTwoSignals()
{
    const QMetaObject& meta = EnvCheckAgent::staticMetaObject;
    QCOMPARE(meta.className(), "EnvCheckAgent");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("signalHideLoginDialog()"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("signalShowMainWindow()"));
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_EnvCheckAgent::showKestrelAsksForTheMainWindow()
{
    QSignalSpy show(EnvCheckAgent::instance(), &EnvCheckAgent::signalShowMainWindow);
    QSignalSpy hide(EnvCheckAgent::instance(), &EnvCheckAgent::signalHideLoginDialog);
    EnvCheckAgent::instance()->showKestrel();
    QCOMPARE(show.count(), 1);
    EnvCheckAgent::instance()->showKestrel();
    QCOMPARE(show.count(), 2);
    QCOMPARE(hide.count(), 0);
}

void tst_EnvCheckAgent::openingTellsWhatIsMissing()
{
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^The check opens without .*: texts"));
    DialogRun run([this](LumCustomNormalDialog*) { kickOut(); });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(run.wasRun());
    initTestCase();
}

void tst_EnvCheckAgent::dialogWithoutParent()
{
    DialogRun run([this](LumCustomNormalDialog* dialog) {
        QCOMPARE(dialog->windowTitle(), QString("ID_Kestrel_SystemTesting"));
        QVERIFY(dialog->isModal());
        QVERIFY(!dialog->parent());
        QVERIFY(!dialog->windowHandle()->transientParent());
        QVERIFY(frameOf(dialog)->isVisible());
        kickOut();
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(run.wasRun());
}

void tst_EnvCheckAgent::dialogAboveItsParent()
{
    QWidget parent;
    parent.setGeometry(100, 50, 700, 500);
    parent.show();
    DialogRun run([this, &parent](LumCustomNormalDialog* dialog) {
        QCOMPARE(dialog->frameGeometry().center(), parent.frameGeometry().center());
        QCOMPARE(dialog->windowHandle()->transientParent(), parent.windowHandle());
        kickOut();
    });
    EnvCheckAgent::instance()->showEnvCheck(&parent);
    QVERIFY(run.wasRun());
    QVERIFY(parent.isVisible());
}

void tst_EnvCheckAgent::dialogIsTheParentsChild()
{
    QWidget parent;
    parent.setStyleSheet("QLabel#titleLabel{margin-left:37px;}");
    parent.show();
    const QMargins margins(37, 0, 0, 0);
    DialogRun run([&](LumCustomNormalDialog* dialog) {
        QCOMPARE(dialog->parentWidget(), &parent);
        QVERIFY(dialog->isWindow());
        auto* title = dialog->findChild<QLabel*>("titleLabel");
        QCOMPARE(title->contentsRect(), title->rect().marginsRemoved(margins));
        kickOut();
    });
    EnvCheckAgent::instance()->showEnvCheck(&parent);
    QVERIFY(run.wasRun());
    QVERIFY(parent.children().isEmpty());
}

void tst_EnvCheckAgent::lastWindowIsTheParent()
{
    QWidget parent;
    parent.show();
    QSignalSpy lastWindowClosed(qApp, &QGuiApplication::lastWindowClosed);
    DialogRun run([&](LumCustomNormalDialog*) {
        parent.close();
        QCOMPARE(lastWindowClosed.count(), 1);
        kickOut();
    });
    // Only an application that runs tells of its last window.
    QTimer::singleShot(0, &parent, [&parent] {
        EnvCheckAgent::instance()->showEnvCheck(&parent);
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    QVERIFY(run.wasRun());
}

void tst_EnvCheckAgent::closingEmitsNothing()
{
    QSignalSpy show(EnvCheckAgent::instance(), &EnvCheckAgent::signalShowMainWindow);
    QSignalSpy hide(EnvCheckAgent::instance(), &EnvCheckAgent::signalHideLoginDialog);
    QuestionAnswerer question(QMessageBox::Yes);
    DialogRun run([](LumCustomNormalDialog* dialog) { dialog->close(); });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QCOMPARE(question.count(), 1);
    QCOMPARE(show.count(), 0);
    QCOMPARE(hide.count(), 0);
}

void tst_EnvCheckAgent::everyCallStartsAfresh()
{
    for (int i = 0; i < 2; ++i) {
        DialogRun run([this](LumCustomNormalDialog* dialog) {
            auto* pages = dialog->findChild<QStackedWidget*>("stackedWidget");
            QCOMPARE(pages->currentWidget()->objectName(), QString("networkPage"));
            pages->setCurrentIndex(2);
            kickOut();
        });
        EnvCheckAgent::instance()->showEnvCheck(nullptr);
        QVERIFY(run.wasRun());
    }
}

void tst_EnvCheckAgent::userClosesThroughTheFrame_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("title bar") << "title bar";
    QTest::newRow("Escape") << "Escape";
    QTest::newRow("window manager") << "window manager";
}

void tst_EnvCheckAgent::userClosesThroughTheFrame()
{
    QFETCH(QString, way);
    const auto closeByUser = [way](LumCustomNormalDialog* dialog) {
        if (way == "title bar") {
            QTest::mouseClick(dialog->findChild<QToolButton*>("closeButton"), Qt::LeftButton);
        } else if (way == "Escape") {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            dialog->close(); // what Alt+F4 comes to
        }
    };
    DialogRun run([&closeByUser](LumCustomNormalDialog* dialog) {
        {
            QuestionAnswerer question(QMessageBox::No);
            closeByUser(dialog);
            QCOMPARE(question.count(), 1);
            QVERIFY(dialog->isVisible());
        }
        QuestionAnswerer question(QMessageBox::Yes);
        closeByUser(dialog);
        QCOMPARE(question.count(), 1);
        QVERIFY(!dialog->isVisible());
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(run.wasRun());
    QCOMPARE(m_engine->reports().posts().size(), 1);
    QCOMPARE(m_engine->reports().posts().first().code, 7);
}

void tst_EnvCheckAgent::frameClosingEndsTheDialog()
{
    QuestionAnswerer question(QMessageBox::Yes);
    DialogRun run([](LumCustomNormalDialog* dialog) { frameOf(dialog)->close(); });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QCOMPARE(question.count(), 1);
    QVERIFY(run.wasRun());
}

void tst_EnvCheckAgent::releaseInsideTheDialog()
{
    DialogRun run([this](LumCustomNormalDialog*) {
        EnvCheckAgent::release();
        kickOut();
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(run.wasRun());
}

void tst_EnvCheckAgent::secondCallInsideTheDialog()
{
    bool wasInnerRun = false;
    DialogRun outer([&](LumCustomNormalDialog* first) {
        DialogRun inner([&](LumCustomNormalDialog* second) {
            QVERIFY(second != first);
            QuestionAnswerer question(QMessageBox::Yes);
            second->close();
        });
        EnvCheckAgent::instance()->showEnvCheck(first);
        wasInnerRun = inner.wasRun();
        QVERIFY(first->isVisible());
        kickOut();
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(wasInnerRun);
}

void tst_EnvCheckAgent::ownerDeletedInsideTheDialog()
{
    auto* owner = new QWidget;
    owner->show();
    DialogRun run([owner](LumCustomNormalDialog* dialog) {
        const Qt::WindowFlags flags = dialog->windowFlags();
        const QPointer<LumCustomNormalDialog> guard(dialog);
        delete owner;
        QVERIFY(guard);
        QVERIFY(!dialog->parent());
        QCOMPARE(dialog->windowFlags(), flags);
        QVERIFY(dialog->isHidden());
    });
    EnvCheckAgent::instance()->showEnvCheck(owner);
    QVERIFY(run.wasRun());
}

void tst_EnvCheckAgent::ownerDeletedDuringTheQuestion()
{
    auto* owner = new QWidget;
    owner->show();
    QuestionAnswerer question([owner](QMessageBox*) { delete owner; });
    DialogRun run([](LumCustomNormalDialog* dialog) { dialog->close(); });
    EnvCheckAgent::instance()->showEnvCheck(owner);
    QCOMPARE(question.count(), 1);
    QVERIFY(m_engine->reports().posts().isEmpty());
}

void tst_EnvCheckAgent::applicationQuitsDuringTheQuestion()
{
    QuestionAnswerer question([](QMessageBox*) { QCoreApplication::quit(); });
    DialogRun run([](LumCustomNormalDialog* dialog) { dialog->close(); });
    // As a host does, from its own event loop.
    QTimer::singleShot(0, [] { EnvCheckAgent::instance()->showEnvCheck(nullptr); });
    QCoreApplication::exec();
    QCOMPARE(question.count(), 1);
    QVERIFY(m_engine->reports().posts().isEmpty());
}

void tst_EnvCheckAgent::breakdownDuringTheQuestionEndsTheDialog()
{
    QuestionAnswerer question([this](QMessageBox*) { m_engine->facts().breakDown(); });
    DialogRun run([](LumCustomNormalDialog* dialog) { dialog->close(); });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QCOMPARE(question.count(), 1);
    QVERIFY(m_engine->reports().posts().isEmpty());
}

void tst_EnvCheckAgent::breakdownBeforeTheDialogRuns_data()
{
    QTest::addColumn<QEvent::Type>("moment");
    QTest::newRow("title set") << QEvent::WindowTitleChange;
    QTest::newRow("shown") << QEvent::Show;
}

void tst_EnvCheckAgent::breakdownBeforeTheDialogRuns()
{
    // The engine may end the session from within a call, at every step of the opening.
    class EarlyBreakdown : public QObject
    {
    public:
        explicit EarlyBreakdown(QEvent::Type moment) : m_moment(moment)
        {
            qApp->installEventFilter(this);
        }

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == m_moment && qobject_cast<LumCustomNormalDialog*>(watched)) {
                Q_EMIT LumEngine::CoreEngine::instance()->signalBasicBreakdown();
            }
            return false;
        }

    private:
        QEvent::Type m_moment;
    };
    QFETCH(QEvent::Type, moment);
    // From an event loop, as there a deletion may be kept until the dialog has ended.
    bool hasEnded = false;
    QTimer::singleShot(0, this, [&] {
        const EarlyBreakdown breakdown(moment);
        EnvCheckAgent::instance()->showEnvCheck(nullptr);
        hasEnded = true;
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    QVERIFY(hasEnded);
    QVERIFY(m_engine->reports().posts().isEmpty());
}

void tst_EnvCheckAgent::hundredOpeningsLeaveNothingBehind()
{
    const auto openOnce = [this] {
        DialogRun run([this](LumCustomNormalDialog*) { kickOut(); });
        EnvCheckAgent::instance()->showEnvCheck(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    openOnce();
    const int widgets = QApplication::allWidgets().size();
    const int files = ProcessResources::openHandles();
    QVERIFY(files > 0);
    const int threads = ProcessResources::threads();
    for (int i = 0; i < 100; ++i) {
        openOnce();
    }
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QTRY_COMPARE(ProcessResources::openHandles(), files);
    QTRY_COMPARE(ProcessResources::threads(), threads);
    QCOMPARE(m_engine->livingSessions(), 0);
}

QTEST_MAIN(tst_EnvCheckAgent)
#include "tst_EnvCheckAgent.moc"
