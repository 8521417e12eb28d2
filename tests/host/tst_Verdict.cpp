// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/CheckCommand.h"
#include "host/Languages.h"
#include "host/SoundNames.h"
#include "host/tour/DialogView.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/QuestionAnswerer.h"

#include <QDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

using Platform::ScriptedEngine;

class tst_Verdict;

namespace {

using Step = std::function<void(tst_Verdict&)>;
using Steps = QVector<Step>;

constexpr int LongMs = 10000;
const char* const CheckKeys[] = {"network", "camera", "speaker", "microphone"};
const char* const LabelNames[] = {"label_SystemCheck", "label_CameraCheck", "label_SoundCheck",
                                  "label_MicCheck"};
const QColor Green("#009265");
const QColor Red("#FF4A27");

// One device of each kind, which needs no time to work.
const char* const Scenario = R"({
    "base": "all-well",
    "cameras": [ { "id": "camera-1", "name": "Front camera", "state": "working" } ],
    "microphones": [ { "id": "microphone-1", "name": "Headset microphone", "state": "working" } ],
    "speakers": [ { "id": "speaker-1", "name": "Headset", "volume": 60 } ],
    "network": [ { "delayMs": 37, "lossPercent": 1, "jitterMs": 2 } ]
})";

QString id(const char* name)
{
    return QString::fromLatin1(name);
}

// What is printed while this lives goes into a file instead.
class CapturedOutput
{
public:
    explicit CapturedOutput(const QString& path) : m_path(path)
    {
        std::fflush(stdout);
        m_terminal = dup(STDOUT_FILENO);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            dup2(file.handle(), STDOUT_FILENO);
        }
    }

    ~CapturedOutput() { text(); }
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    QString text()
    {
        if (m_terminal >= 0) {
            std::fflush(stdout);
            dup2(m_terminal, STDOUT_FILENO);
            close(m_terminal);
            m_terminal = -1;
        }
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QString m_path;
    int m_terminal = -1;
};

} // namespace

Q_DECLARE_METATYPE(Steps)

// The real dialog, driven by clicks, and what terminal, report and exit code then say of it. They
// have to say what the dialog showed last.
class tst_Verdict : public QObject
{
    Q_OBJECT

public:
    ScriptedEngine& engine() const
    {
        return dynamic_cast<ScriptedEngine&>(Platform::EngineRegistry::engine());
    }
    DialogView& view() const { return *m_view; }
    void click(const char* name) const;
    void passNetwork();
    void passCamera();
    void playAndPick();
    void passSpeaker();
    void passMicrophone();
    void measure(int delayMs, int lossPercent);

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void isTheDialogs_data();
    void isTheDialogs();
    void figuresAreThoseOfTheVerdict();
    void muteAfterTheAnswerIsNoContradiction();

private:
    void run(const Steps& steps);
    void visit(const Steps& steps);
    void look();
    void lookAtTable(const QTableWidget& table);
    void lookAtLabels();
    QJsonObject check(const char* key) const;
    static QString figure(const QJsonObject& check, const char* list, const char* key);
    void compareWithDialog(const QStringList& verdicts) const;

    Languages m_languages;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DialogView> m_view;
    QMap<QString, QString> m_shown; // the verdict that the dialog showed last, by check
    int m_code = -1;
    QStringList m_terminal;
    QJsonObject m_report;
};

namespace {

Step clicking(const char* name)
{
    return [name](tst_Verdict& test) { test.click(name); };
}

// Closes as the frame's cross does, and says yes if the dialog asks.
void closeDialog(tst_Verdict& test)
{
    const QuestionAnswerer answerer(QMessageBox::Yes);
    test.view().dialog()->close();
}

// Where the server goes on without it.
void unplugSpeaker(tst_Verdict& test)
{
    test.engine().scriptedSpeakers().unplug(id("speaker-1"));
    test.engine().scriptedSpeakers().choose({});
}

void unplugCamera(tst_Verdict& test)
{
    test.engine().cameras().unplug(id("camera-1"));
}

void stopPictures(tst_Verdict& test)
{
    test.engine().cameras().setState(id("camera-1"), Platform::DeviceState::Silent);
}

const Step PassNetwork = [](tst_Verdict& test) { test.passNetwork(); };
const Step PassCamera = [](tst_Verdict& test) { test.passCamera(); };
const Step PassSpeaker = [](tst_Verdict& test) { test.passSpeaker(); };
const Step PassMicrophone = [](tst_Verdict& test) { test.passMicrophone(); };
const Step GetBad = [](tst_Verdict& test) { test.measure(912, 84); };
const Step Ok = clicking("okButton");
const Step Redetect = clicking("redetectButton");
const Step ToSystem = clicking("label_SystemCheck");
const Step ToCamera = clicking("label_CameraCheck");
const Step ToSpeaker = clicking("label_SoundCheck");
const Step ToMicrophone = clicking("label_MicCheck");
const Step Close = closeDialog;
const Step MeasureNothing = [](tst_Verdict& test) { test.engine().network().setSeries({}); };

} // namespace

void tst_Verdict::initTestCase()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCOMPARE(m_languages.use(id("en")), QString());
}

void tst_Verdict::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", m_home->path().toUtf8());
    m_shown.clear();
}

void tst_Verdict::cleanup()
{
    m_view.reset();
    qunsetenv("XDG_DATA_HOME");
}

void tst_Verdict::click(const char* name) const
{
    auto* const widget = m_view->find<QWidget>(name);
    QVERIFY2(widget, name);
    QTRY_VERIFY2(widget->isEnabled(), name);
    QTest::mouseClick(widget, Qt::LeftButton);
}

void tst_Verdict::passNetwork()
{
    const auto* const delay = m_view->find<QLabel>("label_ND");
    QVERIFY(delay);
    QTRY_COMPARE(delay->text(), id("37ms"));
    look();
    click("Btn_Next");
}

void tst_Verdict::passCamera()
{
    click("Btn_CanSee");
}

void tst_Verdict::playAndPick()
{
    click("tb_play_test_sound");
    const QStringList played = engine().scriptedSpeakers().playedFiles();
    QVERIFY(!played.isEmpty());
    engine().scriptedSpeakers().finishPlayback();
    const QString right = qtTrId(SoundNames::textId(QFileInfo(played.last()).completeBaseName()));
    for (const char* name : {"item0", "item1", "item2", "item3"}) {
        const auto* const button = m_view->find<QAbstractButton>(name);
        if (button && button->text() == right) {
            click(name);
        }
    }
}

void tst_Verdict::passSpeaker()
{
    playAndPick();
    click("Btn_CanHear");
}

void tst_Verdict::passMicrophone()
{
    click("Btn_Mic_Yes");
}

void tst_Verdict::measure(int delayMs, int lossPercent)
{
    Platform::NetworkFigures figures;
    figures.delayMs = delayMs;
    figures.lossPercent = lossPercent;
    figures.sent = 50;
    figures.answered = 50 - lossPercent / 2;
    engine().network().setFigures(figures);
    QCoreApplication::processEvents();
    if (const auto* const delay = m_view->find<QLabel>("label_ND")) {
        QTRY_COMPARE(delay->text(), QStringLiteral("%1ms").arg(delayMs));
    }
}

void tst_Verdict::run(const Steps& steps)
{
    QFile scenario(m_home->filePath(id("scenario.json")));
    QVERIFY(scenario.open(QIODevice::WriteOnly));
    scenario.write(Scenario);
    scenario.close();
    Options options;
    options.platform = Options::Platform::Scripted;
    options.scenario = scenario.fileName();
    options.language = id("en");
    options.reportFile = m_home->filePath(id("report.json"));
    bool isThrough = false;
    QTimer opening;
    connect(&opening, &QTimer::timeout, this, [&] {
        QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            opening.stop();
            m_view = std::make_unique<DialogView>(dialog);
            visit(steps);
            isThrough = !QTest::currentTestFailed();
            if (dialog && dialog->isVisible()) {
                dialog->done(QDialog::Rejected);
            }
        }
    });
    opening.start(5);
    CapturedOutput output(m_home->filePath(id("terminal.txt")));
    m_code = static_cast<int>(CheckCommand(options).run());
    const QString printed = output.text();
    QVERIFY2(isThrough, qPrintable(printed));
    // Behind what this test itself says.
    m_terminal = printed.split(QLatin1Char('\n'));
    while (!m_terminal.isEmpty() && !m_terminal.first().startsWith(id("System "))) {
        m_terminal.removeFirst();
    }
    QVERIFY2(m_terminal.size() > 4, qPrintable(printed));
    QFile report(options.reportFile);
    QVERIFY(report.open(QIODevice::ReadOnly));
    m_report = QJsonDocument::fromJson(report.readAll()).object();
}

void tst_Verdict::visit(const Steps& steps)
{
    for (const Step& step : steps) {
        step(*this);
        if (QTest::currentTestFailed() || !m_view->dialog() || !m_view->dialog()->isVisible()) {
            return;
        }
        look();
    }
}

void tst_Verdict::look()
{
    if (const auto* table = m_view->find<QTableWidget>("tableWidget")) {
        lookAtTable(*table);
        return;
    }
    lookAtLabels();
    const auto* delay = m_view->find<QLabel>("label_ND");
    const auto* loss = m_view->find<QLabel>("label_LR");
    if (delay && loss && delay->text() != id("- -")) {
        const auto isGreen = [](const QLabel& label) {
            return label.palette().color(QPalette::WindowText) == Green;
        };
        m_shown[id("network")] = isGreen(*delay) && isGreen(*loss) ? id("passed") : id("failed");
    }
}

void tst_Verdict::lookAtTable(const QTableWidget& table)
{
    for (int row = 0; row < 4; ++row) {
        const auto text = [&table, row](int column) {
            return qobject_cast<QLabel*>(table.cellWidget(row, column))->text();
        };
        m_shown[id(CheckKeys[row])] = text(2) == qtTrId("ID_CheckResultPage_Normal") ? id("passed")
                                      : text(1) == qtTrId("ID_CameraPage_NotDetected")
                                          ? id("notTested")
                                          : id("failed");
    }
}

// Red is also what wasn't answered; only the table tells the two apart.
void tst_Verdict::lookAtLabels()
{
    for (int i = 0; i < 4; ++i) {
        const auto* const label = m_view->find<QWidget>(LabelNames[i]);
        const QColor color = label->palette().color(QPalette::WindowText);
        if (color == Green) {
            m_shown[id(CheckKeys[i])] = id("passed");
        } else if (color == Red) {
            m_shown[id(CheckKeys[i])] = id("red");
        }
    }
}

QJsonObject tst_Verdict::check(const char* key) const
{
    const QJsonArray checks = m_report.value(id("checks")).toArray();
    for (const QJsonValue& each : checks) {
        if (each[id("check")] == id(key)) {
            return each.toObject();
        }
    }
    return {};
}

QString tst_Verdict::figure(const QJsonObject& check, const char* list, const char* key)
{
    const QJsonArray figures = check.value(id(list)).toArray();
    for (const QJsonValue& each : figures) {
        if (each[id("key")] == id(key)) {
            return each[id("value")].toVariant().toString();
        }
    }
    return id("none");
}

void tst_Verdict::compareWithDialog(const QStringList& verdicts) const
{
    const QMap<QString, QString> texts = {{id("passed"), qtTrId("ID_CheckResultPage_Normal")},
                                          {id("failed"), qtTrId("ID_CheckResultPage_Abnormal")},
                                          {id("notTested"), qtTrId("ID_CameraPage_NotDetected")}};
    for (int i = 0; i < 4; ++i) {
        const QString key = id(CheckKeys[i]);
        const QString verdict = verdicts.at(i);
        const QString shown = m_shown.value(key, id("notTested"));
        const bool isSame = shown == verdict || (shown == id("red") && verdict != id("passed"));
        QVERIFY2(isSame, qPrintable(key + id(": the dialog shows ") + shown));
        QCOMPARE(check(CheckKeys[i]).value(id("verdict")).toString(), verdict);
        QVERIFY2(m_terminal.at(i).contains(id("  ") + texts.value(verdict)),
                 qPrintable(m_terminal.at(i)));
    }
}

void tst_Verdict::isTheDialogs_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QString>("verdicts"); // of network, camera, speaker and microphone
    QTest::addColumn<int>("code");
    const Steps toSpeaker = {PassNetwork, PassCamera};
    const Steps toMicrophone = toSpeaker + Steps{PassSpeaker};
    const Steps backAtSpeaker = toMicrophone + Steps{ToSpeaker};
    const QString allPassed = id("passed passed passed passed");

    QTest::newRow("all passed") << toMicrophone + Steps{PassMicrophone, Ok} << allPassed << 0;

    QTest::newRow("delay gets bad after its step")
        << Steps{PassNetwork, GetBad, PassCamera, PassSpeaker, PassMicrophone, Ok} << allPassed
        << 0;
    QTest::newRow("delay gets bad in its step")
        << Steps{GetBad, clicking("Btn_Next"), PassCamera, PassSpeaker, PassMicrophone, Close}
        << id("failed passed passed passed") << 1;
    QTest::newRow("delay gets bad in a second visit")
        << toMicrophone + Steps{ToSystem, GetBad, ToMicrophone, PassMicrophone, Close}
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

    QTest::newRow("speaker unplugged after its answer, and seen")
        << backAtSpeaker + Steps{unplugSpeaker, ToMicrophone, PassMicrophone, Close}
        << id("passed passed failed passed") << 1;
    QTest::newRow("speaker unplugged after its result")
        << toMicrophone + Steps{unplugSpeaker, PassMicrophone, Ok} << allPassed << 0;
    QTest::newRow("speaker unplugged before its answer")
        << toSpeaker + Steps{[](tst_Verdict& test) { test.playAndPick(); }, unplugSpeaker,
                             clicking("Btn_CantListen"), PassMicrophone, Close}
        << id("passed passed failed passed") << 1;
    QTest::newRow("speaker unplugged while it stays chosen")
        << backAtSpeaker + Steps{[](tst_Verdict& test) {
                                     test.engine().scriptedSpeakers().unplug(id("speaker-1"));
                                 },
                                 ToMicrophone, PassMicrophone, Ok}
        << allPassed << 0;
    QTest::newRow("speaker unplugged, and nobody looked again")
        << backAtSpeaker + Steps{unplugSpeaker, ToSystem, Close}
        << id("passed passed passed notTested") << 2;
    QTest::newRow("speaker unplugged during a second look at the table")
        << toMicrophone + Steps{GetBad,         ToSystem,       GetBad,    ToMicrophone,
                                PassMicrophone, Redetect,       ToSpeaker, unplugSpeaker,
                                ToMicrophone,   PassMicrophone, Close}
        << id("failed passed failed passed") << 1;
    QTest::newRow("speaker with the name of none")
        << Steps{[](tst_Verdict& test) {
                     test.engine().scriptedSpeakers().rename(id("speaker-1"),
                                                             qtTrId("ID_Engine_NoSpeaker"));
                 },
                 PassNetwork,
                 PassCamera,
                 PassSpeaker,
                 PassMicrophone,
                 Ok}
        << allPassed << 0;

    QTest::newRow("camera unplugged after its answer, and seen")
        << toSpeaker + Steps{ToCamera, unplugCamera, ToSpeaker, PassSpeaker, PassMicrophone, Close}
        << id("passed failed passed passed") << 1;
    QTest::newRow("camera unplugged after its result")
        << toSpeaker + Steps{unplugCamera, PassSpeaker, PassMicrophone, Ok} << allPassed << 0;
    QTest::newRow("pictures stop after the answer, and seen")
        << toSpeaker + Steps{ToCamera, stopPictures, ToSpeaker, PassSpeaker, PassMicrophone, Close}
        << id("passed failed passed passed") << 1;
    QTest::newRow("camera unplugged, and nobody looked again")
        << toSpeaker + Steps{ToCamera, unplugCamera, ToSystem, Close}
        << id("passed passed notTested notTested") << 2;
    QTest::newRow("camera answered again")
        << toMicrophone + Steps{ToCamera, clicking("Btn_Cant"), ToMicrophone, PassMicrophone, Close}
        << id("passed failed passed passed") << 1;

    QTest::newRow("microphone unplugged after its answer, and seen")
        << toMicrophone + Steps{ToSystem,
                                GetBad,
                                ToMicrophone,
                                PassMicrophone,
                                Redetect,
                                [](tst_Verdict& test) {
                                    test.engine().microphones().unplug(id("microphone-1"));
                                },
                                clicking("Btn_Mic_No"),
                                Close}
        << id("failed passed passed failed") << 1;
    QTest::newRow("redetected, and a camera refused before the end")
        << toMicrophone + Steps{ToSystem, GetBad,   ToMicrophone,         PassMicrophone,
                                Redetect, ToCamera, clicking("Btn_Cant"), Close}
        << id("failed failed passed passed") << 1;
    QTest::newRow("redetected, and the network is well again")
        << toMicrophone + Steps{ToSystem,
                                GetBad,
                                ToMicrophone,
                                PassMicrophone,
                                Redetect,
                                ToSystem,
                                [](tst_Verdict& test) { test.measure(20, 0); },
                                Close}
        << allPassed << 0;

    QTest::newRow("jumped to the microphone, then closed")
        << Steps{[](tst_Verdict& test) { test.measure(20, 0); }, ToMicrophone, Close}
        << id("passed notTested notTested notTested") << 2;
    QTest::newRow("jumped to the microphone, answered")
        << Steps{[](tst_Verdict& test) { test.measure(20, 0); }, ToMicrophone, PassMicrophone,
                 Close}
        << id("passed notTested notTested passed") << 2;
    QTest::newRow("put out at the speaker")
        << toSpeaker + Steps{[](tst_Verdict& test) {
               test.engine().facts().kickOut();
               QTRY_VERIFY(!test.view().dialog() || !test.view().dialog()->isVisible());
           }}
        << id("passed passed notTested notTested") << 3;
    QTest::newRow("put out at the table")
        << toMicrophone +
               Steps{PassMicrophone,
                     [](tst_Verdict& test) {
                         test.engine().facts().breakDown();
                         QTRY_VERIFY(!test.view().dialog() || !test.view().dialog()->isVisible());
                     }}
        << allPassed << 3;
}

void tst_Verdict::isTheDialogs()
{
    QFETCH(Steps, steps);
    QFETCH(QString, verdicts);
    run(steps);
    if (QTest::currentTestFailed()) {
        return;
    }
    compareWithDialog(verdicts.split(QLatin1Char(' ')));
    QTEST(m_code, "code");
}

void tst_Verdict::figuresAreThoseOfTheVerdict()
{
    run({PassNetwork, GetBad, PassCamera, PassSpeaker, PassMicrophone, Ok});
    const QJsonObject network = check("network");
    QCOMPARE(network.value(id("verdict")).toString(), id("passed"));
    QCOMPARE(figure(network, "measurements", "delayMs"), id("37"));
    QCOMPARE(figure(network, "measurements", "lossPercent"), id("1"));
    QCOMPARE(figure(network, "later", "delayMs"), id("912"));
    QCOMPARE(figure(network, "later", "lossPercent"), id("84"));
    QCOMPARE(m_report.value(id("networkGrade"))[id("level")].toString(), id("good"));
    QVERIFY2(m_terminal.first().endsWith(id("37ms, 1%")), qPrintable(m_terminal.first()));
    QVERIFY(!check("camera").contains(id("later")));
}

void tst_Verdict::muteAfterTheAnswerIsNoContradiction()
{
    run({PassNetwork, PassCamera, PassSpeaker,
         [](tst_Verdict& test) { test.engine().scriptedSpeakers().moveVolumeFromOutside(0); },
         PassMicrophone, Ok});
    const QJsonObject speaker = check("speaker");
    QCOMPARE(figure(speaker, "measurements", "volumeAfter"), id("60"));
    QCOMPARE(figure(speaker, "later", "volumeAfter"), id("0"));
    QCOMPARE(speaker.value(id("contradictions")).toArray(), QJsonArray());
}

QTEST_MAIN(tst_Verdict)
#include "tst_Verdict.moc"
