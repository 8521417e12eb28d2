// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/ReportBuilder.h"
#include "platform/backend/ResultDocument.h"
#include "platform/scripted/CallLog.h"
#include "platform/scripted/ScriptedFacts.h"

#include <QtTest>

class tst_ReportBuilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void facts();
    void answersAndStates_data();
    void answersAndStates();
    void missingFigures_data();
    void missingFigures();
    void engineSaysWhy();
    void noAnswerFromTheServer();
    void noSuchHost();
    void noServer();
    void causesAreListed();
    void countsOfNoPictures_data();
    void countsOfNoPictures();
    void unknownFigures();
    void grade();
    void laterFigures();
    void contradictions_data();
    void contradictions();

private:
    Languages m_languages;
};

namespace {

const ReportBuilder::Run SomeRun = {QDateTime(QDate(2026, 3, 1), QTime(8, 0), Qt::UTC),
                                    QDateTime(QDate(2026, 3, 1), QTime(8, 5), Qt::UTC),
                                    QStringLiteral("de"), Options::Platform::Scripted,
                                    QStringLiteral("all-well")};

Report built(const Platform::ResultDocument& document)
{
    Platform::CallLog log;
    const Platform::ScriptedFacts facts(log);
    const QJsonObject object = document.toJson();
    return ReportBuilder::build(SomeRun, object, RunOutcome::fromDocument(object, false), facts);
}

// A check that was answered.
void answer(Platform::ResultDocument& document, const QString& check, int userState,
            int deviceState)
{
    document.recordResult(check + QStringLiteral(".userState"), userState);
    document.recordResult(check + QStringLiteral(".deviceState"), deviceState);
    document.recordResult(check + QStringLiteral(".device"), QStringLiteral("A device"));
}

Measurement figure(const Report& report, const QString& check, const QString& key)
{
    const ReportCheck* found = report.check(*ReportWords::find<CheckKind>(check));
    const Measurement* measurement = found ? found->measurement(key) : nullptr;
    return measurement ? *measurement : Measurement();
}

} // namespace

void tst_ReportBuilder::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_ReportBuilder::facts()
{
    Platform::CallLog log;
    Platform::ScriptedFacts facts(log);
    Platform::ScriptedFacts::Values values;
    values.accountFallbackName = QStringLiteral("robin");
    values.operatingSystem = QStringList{QStringLiteral("Debian"), QStringLiteral("12")};
    values.cdnFirstPart = QStringLiteral("edge");
    values.cacheVolumeAvailableBytes = 5;
    facts.setValues(values);
    const Report report =
        ReportBuilder::build(SomeRun, {}, RunOutcome::fromDocument({}, false), facts);
    QCOMPARE(report.facts,
             (QJsonObject{{QStringLiteral("account"), QStringLiteral("robin")},
                          {QStringLiteral("operatingSystem"), QStringLiteral("Debian 12")},
                          {QStringLiteral("cdn"), QStringLiteral("edge/")}}));
    QCOMPARE(report.cacheFreeBytes, std::optional<double>(5));
    QCOMPARE(report.outcome, RunEnd::LeftEarly);
    QCOMPARE(report.scenario, QStringLiteral("all-well"));
    values.cacheVolumeAvailableBytes = -1;
    facts.setValues(values);
    QVERIFY(!ReportBuilder::build(SomeRun, {}, RunOutcome::fromDocument({}, false), facts)
                 .cacheFreeBytes);
}

void tst_ReportBuilder::answersAndStates_data()
{
    QTest::addColumn<int>("userState");
    QTest::addColumn<int>("deviceState");
    QTest::addColumn<QString>("answerWord");
    QTest::addColumn<QString>("stateWord");
    QTest::newRow("yes, works") << 1 << 1 << "yes"
                                << "works";
    QTest::newRow("no, fails") << 2 << 2 << "no"
                               << "fails";
    QTest::newRow("nothing") << 0 << 0 << "none"
                             << "unknown";
}

void tst_ReportBuilder::answersAndStates()
{
    QFETCH(int, userState);
    QFETCH(int, deviceState);
    Platform::ResultDocument document;
    answer(document, QStringLiteral("speaker"), userState, deviceState);
    const Report report = built(document);
    const ReportCheck* check = report.check(CheckKind::Speaker);
    QTEST(ReportWords::of(check->answer), "answerWord");
    QTEST(ReportWords::of(check->deviceState), "stateWord");
    QCOMPARE(check->device, QStringLiteral("A device"));
}

void tst_ReportBuilder::missingFigures_data()
{
    QTest::addColumn<bool>("wasOpened");
    QTest::addColumn<QString>("state"); // as the engine recorded it
    QTest::addColumn<bool>("hasFailed");
    QTest::addColumn<QString>("reason");
    QTest::newRow("step not opened") << false << QString() << false << "stepNotOpened";
    QTest::newRow("nothing recorded") << true << QString() << false << "notRecorded";
    QTest::newRow("no device") << true << "absent" << false << "absent";
    QTest::newRow("turned off") << true << "off" << false << "off";
    QTest::newRow("silent") << true << "silent" << false << "silent";
    QTest::newRow("works") << true << "working" << false << "notRecorded";
    QTest::newRow("denied") << true << "denied" << true << "denied";
    QTest::newRow("busy") << true << "busy" << true << "busy";
    QTest::newRow("hung") << true << "hung" << true << "hung";
    QTest::newRow("broken") << true << "failed" << true << "failed";
}

void tst_ReportBuilder::missingFigures()
{
    QFETCH(bool, wasOpened);
    QFETCH(QString, state);
    QFETCH(bool, hasFailed);
    Platform::ResultDocument document;
    if (!state.isEmpty()) {
        document.recordMeasurement(QStringLiteral("camera"), {{QStringLiteral("state"), state}});
    }
    if (wasOpened) {
        answer(document, QStringLiteral("camera"), 2, 2);
    }
    const Measurement rate =
        figure(built(document), QStringLiteral("camera"), QStringLiteral("rate"));
    QCOMPARE(rate.status,
             hasFailed ? Measurement::Status::Failed : Measurement::Status::NotMeasured);
    QTEST(rate.reason, "reason");
}

void tst_ReportBuilder::engineSaysWhy()
{
    Platform::ResultDocument document;
    document.recordMeasurement(
        QStringLiteral("camera"),
        {{QStringLiteral("rate"),
          QJsonObject{{QStringLiteral("failed"), QStringLiteral("the clock stood still")}}},
         {QStringLiteral("brightness"),
          QJsonObject{{QStringLiteral("notMeasured"), QStringLiteral("off")}}},
         {QStringLiteral("width"), 640}});
    const Report report = built(document);
    const QString camera = QStringLiteral("camera");
    QCOMPARE(figure(report, camera, QStringLiteral("rate")).status, Measurement::Status::Failed);
    QCOMPARE(figure(report, camera, QStringLiteral("rate")).reason,
             QStringLiteral("the clock stood still"));
    QCOMPARE(figure(report, camera, QStringLiteral("brightness")).status,
             Measurement::Status::NotMeasured);
    QCOMPARE(figure(report, camera, QStringLiteral("width")).value.toInt(), 640);
}

void tst_ReportBuilder::noAnswerFromTheServer()
{
    Platform::ResultDocument document;
    const QString network = QStringLiteral("network");
    document.recordMeasurement(network, {{QStringLiteral("delayMs"), -1},
                                         {QStringLiteral("jitterMs"), 0},
                                         {QStringLiteral("lossPercent"), 100}});
    const Report report = built(document);
    for (const char* key : {"delayMs", "jitterMs"}) {
        const Measurement measurement = figure(report, network, QLatin1String(key));
        QCOMPARE(measurement.status, Measurement::Status::Failed);
        QCOMPARE(measurement.reason, QStringLiteral("noAnswer"));
    }
    QCOMPARE(figure(report, network, QStringLiteral("lossPercent")).value.toInt(), 100);
    QVERIFY(!report.grade);
}

void tst_ReportBuilder::noSuchHost()
{
    Platform::ResultDocument document;
    Platform::NetworkFigures figures{100, -1};
    figures.problem = Platform::NetworkProblem::NoSuchHost;
    document.recordMeasurement(QStringLiteral("network"), Platform::toJson(figures));
    const Measurement delay =
        figure(built(document), QStringLiteral("network"), QStringLiteral("delayMs"));
    QCOMPARE(delay.status, Measurement::Status::Failed);
    QCOMPARE(delay.reason, QStringLiteral("noSuchHost"));
}

// What this machine's own responder answers is no measurement, whatever the dialog says.
void tst_ReportBuilder::noServer()
{
    Platform::ResultDocument document;
    const QString network = QStringLiteral("network");
    Platform::NetworkFigures figures{0, 0, 0, 50, 50, 0, 1};
    figures.problem = Platform::NetworkProblem::NoServer;
    document.recordMeasurement(network, Platform::toJson(figures));
    document.recordResult(QStringLiteral("network.delay"), QStringLiteral("0ms"));
    document.recordResult(QStringLiteral("network.loss"), QStringLiteral("0%"));
    const Report report = built(document);
    const ReportCheck* check = report.check(CheckKind::Network);
    QCOMPARE(check->verdict, Verdict::Passed);
    for (const Measurement& measurement : check->measurements) {
        QCOMPARE(measurement.status, Measurement::Status::NotMeasured);
        QCOMPARE(measurement.reason, QStringLiteral("noServer"));
    }
    QCOMPARE(check->measurements.size(), std::size_t(7));
    QVERIFY(!report.grade);
    QVERIFY(check->has(Cause::NoServer));
}

void tst_ReportBuilder::causesAreListed()
{
    Platform::ResultDocument document;
    const QString camera = QStringLiteral("camera");
    document.recordMeasurement(camera, {{QStringLiteral("cause"), QStringLiteral("busy")}});
    answer(document, camera, 2, 2);
    const Report report = built(document);
    const ReportCheck* check = report.check(CheckKind::Camera);
    QVERIFY(check->has(Cause::Busy));
    QVERIFY(!check->measurement(QStringLiteral("cause"))); // it is no figure
    QVERIFY(report.check(CheckKind::Speaker)->causes.empty());
}

void tst_ReportBuilder::countsOfNoPictures_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("status");
    const auto row = [](const char* state, int pictures, Measurement::Status status) {
        QTest::addRow("%s, %d", state, pictures)
            << QString::fromLatin1(state) << pictures << static_cast<int>(status);
    };
    row("absent", 0, Measurement::Status::NotMeasured);
    row("off", 0, Measurement::Status::NotMeasured);
    row("denied", 0, Measurement::Status::Failed);
    row("busy", 0, Measurement::Status::Failed);
    row("silent", 0, Measurement::Status::Measured); // it was open, and nothing came
    row("absent", 7, Measurement::Status::Measured); // it was unplugged later
}

void tst_ReportBuilder::countsOfNoPictures()
{
    QFETCH(QString, state);
    QFETCH(int, pictures);
    const QString camera = QStringLiteral("camera");
    Platform::ResultDocument document;
    document.recordMeasurement(
        camera, {{QStringLiteral("state"), state}, {QStringLiteral("pictures"), pictures}});
    const Measurement count = figure(built(document), camera, QStringLiteral("pictures"));
    QTEST(static_cast<int>(count.status), "status");
}

void tst_ReportBuilder::unknownFigures()
{
    Platform::ResultDocument document;
    document.recordMeasurement(QStringLiteral("microphone"),
                               {{QStringLiteral("temperature"), 36.5},
                                {QStringLiteral("device"), QStringLiteral("A device")},
                                {QStringLiteral("state"), QStringLiteral("working")}});
    const Report report = built(document);
    const QString microphone = QStringLiteral("microphone");
    QCOMPARE(figure(report, microphone, QStringLiteral("temperature")).value.toDouble(), 36.5);
    QVERIFY(!report.check(CheckKind::Microphone)->measurement(QStringLiteral("device")));
    QVERIFY(!report.check(CheckKind::Microphone)->measurement(QStringLiteral("state")));
}

void tst_ReportBuilder::grade()
{
    Platform::ResultDocument document;
    document.recordMeasurement(QStringLiteral("network"), {{QStringLiteral("delayMs"), 400},
                                                           {QStringLiteral("lossPercent"), 1},
                                                           {QStringLiteral("jitterMs"), 10}});
    const Report report = built(document);
    QVERIFY(report.grade == NetworkGrade::Level::Fair);
    QCOMPARE(report.gradeLines.size(), std::size_t(3));
    QCOMPARE(report.gradeLines.at(0).value, 200.0);
    QCOMPARE(report.gradeLines.at(0).fairUpTo, std::optional<double>(400));
    QCOMPARE(report.gradeLines.at(2).fairUpTo, std::optional<double>());
}

// Only what reads otherwise than at the verdict is listed, and the grade is of the verdict's
// figures.
void tst_ReportBuilder::laterFigures()
{
    const QString network = QStringLiteral("network");
    Platform::ResultDocument document;
    document.recordMeasurement(network, {{QStringLiteral("delayMs"), 40},
                                         {QStringLiteral("jitterMs"), 3},
                                         {QStringLiteral("lossPercent"), 1}});
    document.recordResult(QStringLiteral("network.delay"), QStringLiteral("40ms"));
    document.recordResult(QStringLiteral("network.loss"), QStringLiteral("1%"));
    document.recordMeasurement(network, {{QStringLiteral("delayMs"), -1},
                                         {QStringLiteral("jitterMs"), 3},
                                         {QStringLiteral("lossPercent"), 100}});
    const Report report = built(document);
    const ReportCheck* check = report.check(CheckKind::Network);
    QCOMPARE(check->verdict, Verdict::Passed);
    QCOMPARE(check->measurement(FigureName::Delay)->value.toInt(), 40);
    QVERIFY(report.grade == NetworkGrade::Level::Good);
    QCOMPARE(check->later.size(), std::size_t(2));
    QCOMPARE(check->later.at(0).key, QStringLiteral("delayMs"));
    QCOMPARE(check->later.at(0).reason, QStringLiteral("noAnswer"));
    QCOMPARE(check->later.at(1).value.toInt(), 100);
}

void tst_ReportBuilder::contradictions_data()
{
    QTest::addColumn<QString>("check");
    QTest::addColumn<int>("userState");
    QTest::addColumn<int>("deviceState");
    QTest::addColumn<QJsonObject>("figures");
    QTest::addColumn<QString>("words");
    const auto one = [](const char* key, const QJsonValue& value) {
        return QJsonObject{{QLatin1String(key), value}};
    };
    const QJsonObject none;
    QTest::newRow("camera fine") << "camera" << 1 << 1 << one("blackShare", 0.5) << "";
    QTest::newRow("black") << "camera" << 1 << 1 << one("blackShare", 0.51) << "yesToBlackPicture";
    QTest::newRow("frozen") << "camera" << 1 << 1 << one("frozenShare", 0.9)
                            << "yesToFrozenPicture";
    QTest::newRow("no pictures") << "camera" << 1 << 2 << none << "yesWithoutPictures";
    QTest::newRow("no to good pictures") << "camera" << 2 << 1 << none << "noToGoodPicture";
    QTest::newRow("no to black ones") << "camera" << 2 << 1 << one("blackShare", 1) << "";
    QTest::newRow("no to no pictures") << "camera" << 2 << 2 << none << "";
    QTest::newRow("camera not answered") << "camera" << 0 << 2 << none << "";
    QTest::newRow("right sound") << "speaker" << 1 << 1 << none << "";
    QTest::newRow("wrong sound") << "speaker" << 1 << 2 << none << "yesToWrongSound";
    QTest::newRow("muted") << "speaker" << 1 << 1 << one("mutedAfter", true) << "yesToMutedSpeaker";
    QTest::newRow("volume 0") << "speaker" << 1 << 1 << one("volumeAfter", 0)
                              << "yesToMutedSpeaker";
    QTest::newRow("no, right sound") << "speaker" << 2 << 1 << none << "noToRightSound";
    QTest::newRow("no, wrong sound") << "speaker" << 2 << 2 << none << "";
    QTest::newRow("voice heard") << "microphone" << 1 << 1 << one("soundHeard", true) << "";
    QTest::newRow("silence") << "microphone" << 1 << 2 << none << "yesToSilence";
    QTest::newRow("heard nothing")
        << "microphone" << 1 << 1 << one("soundHeard", false) << "yesToSilence";
    QTest::newRow("no to good sound") << "microphone" << 2 << 1 << none << "noToGoodSound";
    QTest::newRow("no to silence") << "microphone" << 2 << 1 << one("soundHeard", false) << "";
}

void tst_ReportBuilder::contradictions()
{
    QFETCH(QString, check);
    QFETCH(int, userState);
    QFETCH(int, deviceState);
    QFETCH(QJsonObject, figures);
    Platform::ResultDocument document;
    document.recordMeasurement(check, figures);
    answer(document, check, userState, deviceState);
    const Report report = built(document);
    QStringList found;
    for (const Contradiction each :
         report.check(*ReportWords::find<CheckKind>(check))->contradictions) {
        found << ReportWords::of(each);
    }
    QTEST(found.join(QLatin1Char(' ')), "words");
}

QTEST_GUILESS_MAIN(tst_ReportBuilder)
#include "tst_ReportBuilder.moc"
