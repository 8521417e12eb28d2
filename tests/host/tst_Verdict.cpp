// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "DialogRun.h"
#include "host/Languages.h"
#include "tests/support/QuestionAnswerer.h"

#include <QDialog>
#include <QJsonArray>
#include <QLabel>
#include <QtTest>

namespace {

using Step = DialogRun::Step;
using Steps = DialogRun::Steps;

QString id(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

Q_DECLARE_METATYPE(Steps)

// The real dialog, driven by clicks, and what terminal, report and exit code then say of it. They
// have to say what the dialog showed last.
class tst_Verdict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void isTheDialogs_data();
    void isTheDialogs();
    void figuresAreThoseOfTheVerdict();
    void withoutServerNothingIsMeasured();
    void failuresSayWhatToDo();
    void speakerThatWentAwayIsNamed();
    void muteAfterTheAnswerIsNoContradiction();

private:
    static void compareWithDialog(const DialogRun& run, const QStringList& verdicts);

    Languages m_languages;
};

namespace {

Step clicking(const char* name)
{
    return [name](DialogRun& run) { run.click(name); };
}

// Closes as the frame's cross does, and says yes if the dialog asks.
void closeDialog(DialogRun& run)
{
    const QuestionAnswerer answerer(QMessageBox::Yes);
    run.view().dialog()->close();
}

// Where the server goes on without it.
void unplugSpeaker(DialogRun& run)
{
    run.engine().scriptedSpeakers().unplug(id("speaker-1"));
    run.engine().scriptedSpeakers().choose({});
}

void unplugCamera(DialogRun& run)
{
    run.engine().cameras().unplug(id("camera-1"));
}

void stopPictures(DialogRun& run)
{
    run.engine().cameras().setState(id("camera-1"), Platform::DeviceState::Silent);
}

const Step PassNetwork = [](DialogRun& run) { run.passNetwork(); };
const Step PassCamera = [](DialogRun& run) { run.passCamera(); };
const Step PassSpeaker = [](DialogRun& run) { run.passSpeaker(); };
const Step PassMicrophone = [](DialogRun& run) { run.passMicrophone(); };
const Step GetBad = [](DialogRun& run) { run.measure(912, 84); };
const Step Ok = clicking("okButton");
const Step Redetect = clicking("redetectButton");
const Step ToSystem = clicking("label_SystemCheck");
const Step ToCamera = clicking("label_CameraCheck");
const Step ToSpeaker = clicking("label_SoundCheck");
const Step ToMicrophone = clicking("label_MicCheck");
const Step Close = closeDialog;
const Step MeasureNothing = [](DialogRun& run) { run.engine().network().setSeries({}); };

const Steps AtSpeaker = {PassNetwork, PassCamera};
const Steps AtMicrophone = AtSpeaker + Steps{PassSpeaker};
const Steps BackAtSpeaker = AtMicrophone + Steps{ToSpeaker};
const QString AllPassed = id("passed passed passed passed");

void addNetworkRows()
{
    QTest::newRow("all passed") << AtMicrophone + Steps{PassMicrophone, Ok} << AllPassed << 0;
    QTest::newRow("delay gets bad after its step")
        << Steps{PassNetwork, GetBad, PassCamera, PassSpeaker, PassMicrophone, Ok} << AllPassed
        << 0;
    QTest::newRow("delay gets bad in its step")
        << Steps{GetBad, clicking("Btn_Next"), PassCamera, PassSpeaker, PassMicrophone, Close}
        << id("failed passed passed passed") << 1;
    QTest::newRow("delay gets bad in a second visit")
        << AtMicrophone + Steps{ToSystem, GetBad, ToMicrophone, PassMicrophone, Close}
        << id("failed passed passed passed") << 1;
    QTest::newRow("left before the first figures")
        << Steps{MeasureNothing, clicking("Btn_Next"), PassCamera,
                 PassSpeaker,    PassMicrophone,       Close}
        << id("failed passed passed passed") << 1;
    QTest::newRow("camera opened before the first figures, then closed")
        << Steps{MeasureNothing, clicking("Btn_Next"), Close}
        << id("failed notTested notTested notTested") << 2;
    QTest::newRow("closed before the first figures")
        << Steps{MeasureNothing, Close} << id("notTested notTested notTested notTested") << 2;
}

void addSpeakerRows()
{
    QTest::newRow("speaker unplugged after its answer, and seen")
        << BackAtSpeaker + Steps{unplugSpeaker, ToMicrophone, PassMicrophone, Close}
        << id("passed passed failed passed") << 1;
    QTest::newRow("speaker unplugged after its result")
        << AtMicrophone + Steps{unplugSpeaker, PassMicrophone, Ok} << AllPassed << 0;
    QTest::newRow("speaker unplugged before its answer")
        << AtSpeaker + Steps{[](DialogRun& run) { run.playAndPick(); }, unplugSpeaker,
                             clicking("Btn_CantListen"), PassMicrophone, Close}
        << id("passed passed failed passed") << 1;
    QTest::newRow("speaker unplugged while it stays chosen")
        << BackAtSpeaker + Steps{[](DialogRun& run) {
                                     run.engine().scriptedSpeakers().unplug(id("speaker-1"));
                                 },
                                 ToMicrophone, PassMicrophone, Ok}
        << AllPassed << 0;
    QTest::newRow("speaker unplugged, and nobody looked again")
        << BackAtSpeaker + Steps{unplugSpeaker, ToSystem, Close}
        << id("passed passed passed notTested") << 2;
    QTest::newRow("speaker unplugged during a second look at the table")
        << AtMicrophone + Steps{GetBad,         ToSystem,       GetBad,    ToMicrophone,
                                PassMicrophone, Redetect,       ToSpeaker, unplugSpeaker,
                                ToMicrophone,   PassMicrophone, Close}
        << id("failed passed failed passed") << 1;
    QTest::newRow("speaker with the name of none")
        << Steps{[](DialogRun& run) {
                     run.engine().scriptedSpeakers().rename(id("speaker-1"),
                                                            qtTrId("ID_Engine_NoSpeaker"));
                 },
                 PassNetwork,
                 PassCamera,
                 PassSpeaker,
                 PassMicrophone,
                 Ok}
        << AllPassed << 0;
}

void addCameraRows()
{
    QTest::newRow("camera unplugged after its answer, and seen")
        << AtSpeaker + Steps{ToCamera, unplugCamera, ToSpeaker, PassSpeaker, PassMicrophone, Close}
        << id("passed failed passed passed") << 1;
    QTest::newRow("camera unplugged after its result")
        << AtSpeaker + Steps{unplugCamera, PassSpeaker, PassMicrophone, Ok} << AllPassed << 0;
    QTest::newRow("pictures stop after the answer, and seen")
        << AtSpeaker + Steps{ToCamera, stopPictures, ToSpeaker, PassSpeaker, PassMicrophone, Close}
        << id("passed failed passed passed") << 1;
    QTest::newRow("camera unplugged, and nobody looked again")
        << AtSpeaker + Steps{ToCamera, unplugCamera, ToSystem, Close}
        << id("passed passed notTested notTested") << 2;
    QTest::newRow("camera answered again")
        << AtMicrophone + Steps{ToCamera, clicking("Btn_Cant"), ToMicrophone, PassMicrophone, Close}
        << id("passed failed passed passed") << 1;
}

void addRedetectedRows()
{
    QTest::newRow("microphone unplugged after its answer, and seen")
        << AtMicrophone +
               Steps{ToSystem,
                     GetBad,
                     ToMicrophone,
                     PassMicrophone,
                     Redetect,
                     [](DialogRun& run) { run.engine().microphones().unplug(id("microphone-1")); },
                     clicking("Btn_Mic_No"),
                     Close}
        << id("failed passed passed failed") << 1;
    QTest::newRow("redetected, and a camera refused before the end")
        << AtMicrophone + Steps{ToSystem, GetBad,   ToMicrophone,         PassMicrophone,
                                Redetect, ToCamera, clicking("Btn_Cant"), Close}
        << id("failed failed passed passed") << 1;
    QTest::newRow("redetected, and the network is well again")
        << AtMicrophone + Steps{ToSystem,
                                GetBad,
                                ToMicrophone,
                                PassMicrophone,
                                Redetect,
                                ToSystem,
                                [](DialogRun& run) { run.measure(20, 0); },
                                Close}
        << AllPassed << 0;
}

void addEarlyRows()
{
    QTest::newRow("jumped to the microphone, then closed")
        << Steps{[](DialogRun& run) { run.measure(20, 0); }, ToMicrophone, Close}
        << id("passed notTested notTested notTested") << 2;
    QTest::newRow("jumped to the microphone, answered")
        << Steps{[](DialogRun& run) { run.measure(20, 0); }, ToMicrophone, PassMicrophone, Close}
        << id("passed notTested notTested passed") << 2;
    QTest::newRow("put out at the speaker")
        << AtSpeaker + Steps{[](DialogRun& run) {
               run.engine().facts().kickOut();
               QTRY_VERIFY(!run.view().dialog() || !run.view().dialog()->isVisible());
           }}
        << id("passed passed notTested notTested") << 3;
    QTest::newRow("put out at the table")
        << AtMicrophone +
               Steps{PassMicrophone,
                     [](DialogRun& run) {
                         run.engine().facts().breakDown();
                         QTRY_VERIFY(!run.view().dialog() || !run.view().dialog()->isVisible());
                     }}
        << AllPassed << 3;
}

} // namespace

void tst_Verdict::initTestCase()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCOMPARE(m_languages.use(id("en")), QString());
}

void tst_Verdict::compareWithDialog(const DialogRun& run, const QStringList& verdicts)
{
    const QMap<QString, QString> texts = {{id("passed"), qtTrId("ID_CheckResultPage_Normal")},
                                          {id("failed"), qtTrId("ID_CheckResultPage_Abnormal")},
                                          {id("notTested"), qtTrId("ID_CameraPage_NotDetected")}};
    for (int i = 0; i < 4; ++i) {
        const QString key = id(DialogRun::CheckKeys[i]);
        const QString verdict = verdicts.at(i);
        const QString shown = run.shown().value(key, id("notTested"));
        const bool isSame = shown == verdict || (shown == id("red") && verdict != id("passed"));
        QVERIFY2(isSame, qPrintable(key + id(": the dialog shows ") + shown));
        QCOMPARE(run.check(DialogRun::CheckKeys[i]).value(id("verdict")).toString(), verdict);
        QVERIFY2(run.terminal().at(i).contains(id("  ") + texts.value(verdict)),
                 qPrintable(run.terminal().at(i)));
    }
}

void tst_Verdict::isTheDialogs_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QString>("verdicts"); // of network, camera, speaker and microphone
    QTest::addColumn<int>("code");
    addNetworkRows();
    addSpeakerRows();
    addCameraRows();
    addRedetectedRows();
    addEarlyRows();
}

void tst_Verdict::isTheDialogs()
{
    QFETCH(Steps, steps);
    QFETCH(QString, verdicts);
    DialogRun run;
    run.run(steps);
    if (QTest::currentTestFailed()) {
        return;
    }
    compareWithDialog(run, verdicts.split(QLatin1Char(' ')));
    QTEST(run.code(), "code");
}

void tst_Verdict::figuresAreThoseOfTheVerdict()
{
    DialogRun run;
    run.run({PassNetwork, GetBad, PassCamera, PassSpeaker, PassMicrophone, Ok});
    const QJsonObject network = run.check("network");
    QCOMPARE(network.value(id("verdict")).toString(), id("passed"));
    QCOMPARE(DialogRun::figure(network, "measurements", "delayMs"), id("37"));
    QCOMPARE(DialogRun::figure(network, "measurements", "lossPercent"), id("1"));
    QCOMPARE(DialogRun::figure(network, "later", "delayMs"), id("912"));
    QCOMPARE(DialogRun::figure(network, "later", "lossPercent"), id("84"));
    QCOMPARE(run.report().value(id("networkGrade"))[id("level")].toString(), id("good"));
    QVERIFY2(run.terminal().first().endsWith(id("37ms, 1%")), qPrintable(run.terminal().first()));
    QVERIFY(!run.check("camera").contains(id("later")));
}

// The verdict is what the dialog shows, and nobody takes the figures for a result.
void tst_Verdict::withoutServerNothingIsMeasured()
{
    DialogRun run;
    run.run(Steps{[](DialogRun& each) {
                      Platform::NetworkFigures figures{0, 1, 0, 50, 50};
                      figures.problem = Platform::NetworkProblem::NoServer;
                      each.engine().network().setFigures(figures);
                  },
                  [](DialogRun& each) {
                      QTRY_COMPARE(each.view().find<QLabel>("label_ND")->text(), id("1ms"));
                  },
                  clicking("Btn_Next"), PassCamera, PassSpeaker, PassMicrophone, Ok});
    QVERIFY(!QTest::currentTestFailed());
    compareWithDialog(run, AllPassed.split(QLatin1Char(' ')));
    QCOMPARE(run.code(), 0);
    QVERIFY2(run.terminal().at(0).endsWith(id("not measured: no server")),
             qPrintable(run.terminal().at(0)));
    QCOMPARE(run.terminal().at(4), id("What to do:"));
    QVERIFY(run.terminal().at(5).contains(qtTrId("ID_Host_Remedy_NoServer")));
    const QJsonObject network = run.check("network");
    QCOMPARE(network.value(id("causes")).toArray(), QJsonArray{id("noServer")});
    const QJsonArray figures = network.value(id("measurements")).toArray();
    QCOMPARE(figures.size(), 7);
    for (const QJsonValue& figure : figures) {
        QCOMPARE(figure[id("status")].toString(), id("notMeasured"));
        QCOMPARE(figure[id("reason")].toString(), id("noServer"));
    }
    QVERIFY(!run.report().contains(id("networkGrade")));
}

void tst_Verdict::failuresSayWhatToDo()
{
    DialogRun run;
    run.run(Steps{GetBad, clicking("Btn_Next"), clicking("Btn_Cant"), unplugSpeaker,
                  clicking("Btn_CantListen"), PassMicrophone, Close});
    QVERIFY(!QTest::currentTestFailed());
    QCOMPARE(run.code(), 1);
    const auto causes = [&run](const char* check) {
        QStringList words;
        for (const QJsonValue& word : run.check(check).value(id("causes")).toArray()) {
            words << word.toString();
        }
        return words.join(QLatin1Char(' '));
    };
    QCOMPARE(causes("network"), id("slow lossy"));
    QCOMPARE(causes("camera"), id("notSeen"));
    QCOMPARE(causes("speaker"), id("absent"));
    QCOMPARE(causes("microphone"), QString());
    const QString terminal = run.terminal().join(QLatin1Char('\n'));
    for (const char* text : {"ID_Host_Remedy_Slow", "ID_Host_Remedy_Lossy",
                             "ID_Host_Remedy_NotSeen", "ID_Host_Remedy_Absent"}) {
        QCOMPARE(terminal.count(qtTrId(text)), 1);
    }
}

void tst_Verdict::speakerThatWentAwayIsNamed()
{
    DialogRun run;
    run.run(BackAtSpeaker + Steps{unplugSpeaker, ToMicrophone, PassMicrophone, Close});
    QCOMPARE(run.shown().value(id("speaker")), id("failed"));
    QCOMPARE(run.terminal().at(2), id("Speaker  Failed  No speaker found"));
    const QJsonObject speaker = run.check("speaker");
    QCOMPARE(speaker.value(id("verdict")).toString(), id("failed"));
    QCOMPARE(speaker.value(id("answer")).toString(), id("yes"));
    QCOMPARE(speaker.value(id("deviceState")).toString(), id("works"));
    QCOMPARE(speaker.value(id("device")).toString(), id("No speaker found"));
    QCOMPARE(run.report().value(id("outcome")).toString(), id("failed"));
    QCOMPARE(run.code(), 1);
}

void tst_Verdict::muteAfterTheAnswerIsNoContradiction()
{
    DialogRun run;
    run.run({PassNetwork, PassCamera, PassSpeaker,
             [](DialogRun& step) { step.engine().scriptedSpeakers().moveVolumeFromOutside(0); },
             PassMicrophone, Ok});
    const QJsonObject speaker = run.check("speaker");
    QCOMPARE(DialogRun::figure(speaker, "measurements", "volumeAfter"), id("60"));
    QCOMPARE(DialogRun::figure(speaker, "later", "volumeAfter"), id("0"));
    QCOMPARE(speaker.value(id("contradictions")).toArray(), QJsonArray());
}

QTEST_MAIN(tst_Verdict)
#include "tst_Verdict.moc"
