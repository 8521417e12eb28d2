// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/flow/ContentPageTest.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

using Platform::ScriptedEngine;
using TestSupport::ContentPageTest;

namespace {

const QColor Green("#009265");
const QColor Red("#FF4A27");
const QColor Plain(35, 35, 35, 204);
const QString CurrentStyle = "QLabel{background:#F0F0F0;border-radius:4px;padding-left:10px;}";
const QString OtherStyle = "QLabel{background:#FFFFFF;border-radius:4px;padding-left:10px;}";
const char* const LabelNames[] = {"label_SystemCheck", "label_CameraCheck", "label_SoundCheck",
                                  "label_MicCheck"};

// Notes when the labels change their colour, and when results reach the engine, in one order.
class OrderOfMarks : public QObject
{
public:
    OrderOfMarks(ScriptedEngine& engine, const QVector<ClickColorLabel*>& labels) : m_engine(engine)
    {
        m_engine.clearCalls();
        for (ClickColorLabel* label : labels) {
            label->installEventFilter(this);
        }
    }

    // Without what is plain again before a step is shown.
    QStringList notes()
    {
        takeResults();
        return m_notes;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* label = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::PaletteChange &&
            label->palette().color(QPalette::WindowText) == Red) {
            takeResults();
            m_notes << "mark " + label->objectName();
        }
        return false;
    }

private:
    void takeResults()
    {
        const QStringList results = m_engine.commands().filter("report.result(");
        for (const QString& result : results) {
            m_notes << result.section('(', 1).section('=', 0, 0);
        }
        m_engine.clearCalls();
    }

    ScriptedEngine& m_engine;
    QStringList m_notes;
};

} // namespace

// The form, the steps and the result.
class tst_ContentPage : public ContentPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void initialState();
    void formIsLaidOutAsGiven();
    void metaObjectHasOneSignal();
    void completeMovesThroughTheSteps();
    void completeClicksTheNextLabel();
    void passedStepsTurnGreen();
    void jumpingToTheCameraMarksOneStep();
    void resultsAndMarksComeInOrder_data();
    void resultsAndMarksComeInOrder();
    void unknownLabelOnlyResets();
    void jumpingToTheMicrophoneMarksRedAndRecords();
    void goingBackRecordsNothing();
    void returningReplacesTheMark();
    void microphoneCompleteShowsTheResult();
    void resultListsThePagesInOrder();
    void redetectKeepsTheAnswers();
    void redetectAfterOneFailure();
    void okClosesTheFrame();
};

void tst_ContentPage::initialState()
{
    QCOMPARE(m_frame->objectName(), QString("selfcheckContentPage"));
    QCOMPARE(m_frame->styleSheet(),
             QString("QWidget#selfcheckContentPage{border-bottom-left-radius: 6px; "
                     "border-bottom-right-radius: 6px;}"));
    QVERIFY(m_frame->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(m_frame->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(m_frame->font().pixelSize(), 12);
    QCOMPARE(stack("checkArea")->currentWidget()->objectName(), QString("checkPage"));
    QCOMPARE(shownPage(), QString("networkPage"));
    QCOMPARE(label("label_SystemCheck")->styleSheet(),
             QString("QLabel{background:#F0F0F0; color: rgba(35, 35, 35, 0.8); "
                     "border-radius:4px;padding-left:10px;}"));
    for (const char* name : {"label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
        QCOMPARE(label(name)->styleSheet(),
                 QString("QLabel{background:#FFFFFF; color: rgba(35, 35, 35, 0.8); "
                         "border-radius:4px;padding-left:10px;}"));
    }
    QCOMPARE(label("label_SystemCheck")->text(), QString("ID_CheckResultPage_System"));
    QCOMPARE(label("label_CameraCheck")->text(), QString("ID_Camera_Check"));
    QCOMPARE(label("label_SoundCheck")->text(), QString("ID_CheckResultPage_Headphone"));
    QCOMPARE(label("label_MicCheck")->text(), QString("ID_Microphone_Check"));
}

void tst_ContentPage::formIsLaidOutAsGiven()
{
    QCOMPARE(m_frame->minimumSize(), QSize(620, 420));
    QCOMPARE(m_frame->maximumSize(), QSize(620, 420));
    QCOMPARE(stack("checkArea")->geometry(), QRect(0, 20, 620, 408));
    QCOMPARE(stack("checkArea")->font().family(), QString::fromUtf8("微软雅黑"));
    QCOMPARE(stack("checkArea")->font().pointSize(), 12);
    QCOMPARE(stack("stackedWidget")->geometry(), QRect(141, 5, 480, 400));
    auto* divider = m_frame->findChild<QFrame*>("frameleft");
    QCOMPARE(divider->geometry(), QRect(139, 5, 1, 408));
    QCOMPARE(divider->styleSheet(), QString("QFrame#frameleft{\n\tbackground: #F7F7F7;\n}"));
    int y = 5;
    for (const char* name : LabelNames) {
        QCOMPARE(label(name)->geometry(), QRect(20, y, 86, 28));
        y += 38;
    }
    QStringList pages;
    for (int i = 0; i < stack("stackedWidget")->count(); ++i) {
        pages << stack("stackedWidget")->widget(i)->objectName();
    }
    QCOMPARE(pages, QStringList({"networkPage", "cameraPage", "headsetPage", "microphonePage"}));
    QCOMPARE(m_frame->findChild<QWidget*>("resultPage")->styleSheet(),
             QString("QWidget#resultPage\n{\n\tbackground-color: white;\n}"));
}

void tst_ContentPage::metaObjectHasOneSignal()
{
    const QMetaObject& meta = ContentPage::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("closeDialog()"));
}

void tst_ContentPage::completeMovesThroughTheSteps()
{
    for (int i = 0; i < 3; ++i) {
        finishPage(PageNames[i], true);
        QCOMPARE(shownPage(), QString(PageNames[i + 1]));
        QCOMPARE(label(LabelNames[i + 1])->styleSheet(), CurrentStyle);
        QCOMPARE(textColor(LabelNames[i]), page(PageNames[i])->isPassed() ? Green : Red);
        for (int j = i + 2; j < 4; ++j) {
            QCOMPARE(label(LabelNames[j])->styleSheet(), OtherStyle);
            QCOMPARE(textColor(LabelNames[j]), Plain);
        }
    }
}

void tst_ContentPage::completeClicksTheNextLabel()
{
    for (int i = 0; i < 3; ++i) {
        QSignalSpy clicked(label(LabelNames[i + 1]), &ClickColorLabel::clicked);
        Q_EMIT page(PageNames[i])->complete();
        QCOMPARE(clicked.count(), 1);
    }
}

void tst_ContentPage::passedStepsTurnGreen()
{
    m_engine->network().setFigures({0, 20, 1, 10, 10});
    m_engine->cameras().plug({"c", "Some Camera"}, Platform::DeviceState::Working);
    QTRY_VERIFY(page("networkPage")->isPassed());
    finishPage("networkPage", true);
    QCOMPARE(textColor("label_SystemCheck"), Green);
    finishPage("cameraPage", true);
    QVERIFY(page("cameraPage")->isPassed());
    QCOMPARE(textColor("label_CameraCheck"), Green);
    finishPage("headsetPage", true);
    QVERIFY(!page("headsetPage")->isPassed());
    for (const char* name : {"label_SystemCheck", "label_CameraCheck"}) {
        QCOMPARE(textColor(name), Green);
    }
    QCOMPARE(textColor("label_SoundCheck"), Red);
}

void tst_ContentPage::jumpingToTheCameraMarksOneStep()
{
    m_engine->clearCalls();
    QTest::mouseClick(label("label_CameraCheck"), Qt::LeftButton);
    QCOMPARE(shownPage(), QString("cameraPage"));
    QCOMPARE(textColor("label_SystemCheck"), Red);
    for (const char* name : {"label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
        QCOMPARE(textColor(name), Plain);
    }
    QVERIFY(m_engine->commands().filter("report.").isEmpty());
}

void tst_ContentPage::resultsAndMarksComeInOrder_data()
{
    const QStringList camera{"camera.userState", "camera.deviceState", "camera.device"};
    const QStringList speaker{"speaker.userState", "speaker.deviceState", "speaker.device"};
    const QStringList microphone{"microphone.userState", "microphone.deviceState",
                                 "microphone.device"};
    const QString systemMark = "mark label_SystemCheck";
    const QString cameraMark = "mark label_CameraCheck";
    QTest::addColumn<QString>("way");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("to the speaker")
        << "label_SoundCheck" << QStringList({systemMark, cameraMark}) + camera;
    QTest::newRow("to the microphone")
        << "label_MicCheck"
        << QStringList(systemMark) + camera + QStringList(cameraMark) + speaker +
               QStringList("mark label_SoundCheck");
    QTest::newRow("to the result") << "" << microphone + QStringList("mark label_MicCheck");
}

void tst_ContentPage::resultsAndMarksComeInOrder()
{
    QFETCH(QString, way);
    QFETCH(QStringList, expected);
    OrderOfMarks order(*m_engine, labels());
    if (way.isEmpty()) {
        m_frame->showResult();
    } else {
        m_frame->selectStep(m_frame->findChild<QWidget*>(way));
    }
    QCOMPARE(order.notes(), expected);
}

void tst_ContentPage::unknownLabelOnlyResets()
{
    m_frame->selectStep(label("label_MicCheck"));
    m_engine->clearCalls();
    QWidget other;
    m_frame->selectStep(&other);
    QCOMPARE(shownPage(), QString("microphonePage"));
    for (const char* name : LabelNames) {
        QCOMPARE(label(name)->styleSheet(), OtherStyle);
        QCOMPARE(textColor(name), Plain);
    }
    QVERIFY(m_engine->commands().filter("report.").isEmpty());
}

void tst_ContentPage::jumpingToTheMicrophoneMarksRedAndRecords()
{
    m_engine->clearCalls();
    QTest::mouseClick(label("label_MicCheck"), Qt::LeftButton);
    QCOMPARE(shownPage(), QString("microphonePage"));
    for (const char* name : {"label_SystemCheck", "label_CameraCheck", "label_SoundCheck"}) {
        QCOMPARE(textColor(name), Red);
        QCOMPARE(label(name)->styleSheet(), OtherStyle);
    }
    QCOMPARE(textColor("label_MicCheck"), Plain);
    QCOMPARE(label("label_MicCheck")->styleSheet(), CurrentStyle);
    QStringList answers = m_engine->commands().filter("userState");
    QCOMPARE(answers, QStringList({"report.result(camera.userState=0)",
                                   "report.result(speaker.userState=0)"}));
}

void tst_ContentPage::goingBackRecordsNothing()
{
    m_frame->selectStep(label("label_MicCheck"));
    m_engine->clearCalls();
    QTest::mouseClick(label("label_SystemCheck"), Qt::LeftButton);
    QCOMPARE(shownPage(), QString("networkPage"));
    QVERIFY(m_engine->commands().filter("report.").isEmpty());
    for (const char* name : LabelNames) {
        QCOMPARE(textColor(name), Plain);
    }
}

void tst_ContentPage::returningReplacesTheMark()
{
    m_frame->selectStep(label("label_SoundCheck"));
    QCOMPARE(textColor("label_CameraCheck"), Red);
    m_frame->selectStep(label("label_CameraCheck"));
    QCOMPARE(textColor("label_CameraCheck"), Plain);
    QCOMPARE(textColor("label_SystemCheck"), Red);
}

void tst_ContentPage::microphoneCompleteShowsTheResult()
{
    m_frame->selectStep(label("label_MicCheck"));
    m_engine->clearCalls();
    finishPage("microphonePage", false);
    QCOMPARE(stack("checkArea")->currentWidget()->objectName(), QString("resultPage"));
    QCOMPARE(textColor("label_MicCheck"), Red);
    QCOMPARE(m_engine->commands().filter("userState"),
             QStringList({"report.result(microphone.userState=2)"}));
}

void tst_ContentPage::resultListsThePagesInOrder()
{
    answerAll(false);
    auto* table = m_frame->findChild<QTableWidget*>("tableWidget");
    QTRY_VERIFY(table->cellWidget(3, 1));
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(qobject_cast<QLabel*>(table->cellWidget(row, 1))->text(),
                 page(PageNames[row])->problemText());
    }
    QSet<QString> texts;
    for (const char* name : PageNames) {
        texts.insert(page(name)->problemText());
    }
    QCOMPARE(texts.size(), 4);
}

void tst_ContentPage::redetectKeepsTheAnswers()
{
    answerAll(true);
    auto* redetect = m_frame->findChild<QPushButton*>("redetectButton");
    QTRY_VERIFY(redetect->isVisible());
    QTest::mouseClick(redetect, Qt::LeftButton);
    QCOMPARE(stack("checkArea")->currentWidget()->objectName(), QString("checkPage"));
    QCOMPARE(shownPage(), QString("microphonePage"));
    for (const char* name : PageNames) {
        QVERIFY(page(name)->isTested());
    }
    QCOMPARE(textColor("label_MicCheck"), Red);
    // The second pass moves through the same connections.
    answerAll(false);
    QCOMPARE(stack("checkArea")->currentWidget()->objectName(), QString("resultPage"));
}

void tst_ContentPage::redetectAfterOneFailure()
{
    answerAll(true);
    QTRY_VERIFY(m_frame->findChild<QPushButton*>("redetectButton")->isVisible());
    QVERIFY(!m_frame->findChild<QPushButton*>("okButton")->isVisible());
}

void tst_ContentPage::okClosesTheFrame()
{
    answerAll(true);
    QSignalSpy destroyed(m_frame, &QObject::destroyed);
    // OK is hidden while a check failed; its slot is what closes.
    QVERIFY(QMetaObject::invokeMethod(page("resultPage"), "on_okButton_clicked"));
    QVERIFY(!m_frame->isVisible());
    QVERIFY(destroyed.wait());
    QCOMPARE(postedCodes(), QVector<int>({3}));
}

QTEST_MAIN(tst_ContentPage)
#include "tst_ContentPage.moc"
