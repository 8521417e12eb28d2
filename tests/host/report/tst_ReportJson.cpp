// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/ReportJson.h"
#include "tests/host/report/SampleReport.h"
#include "tests/support/ProgramTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class tst_ReportJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip();
    void theThreeKindsOfFigures();
    void causes();
    void unknownFiguresAreCarriedAlong();
    void namesTheScenarioOfAScriptedRun();
    void isValidBySchema_data();
    void isValidBySchema();
    void brokenOnesAreNamed_data();
    void brokenOnesAreNamed();

private:
    const ProgramTexts m_texts;
};

namespace {

QJsonObject withoutKey(QJsonObject object, const QString& key)
{
    object.remove(key);
    return object;
}

QJsonObject withValue(QJsonObject object, const QString& key, const QJsonValue& value)
{
    object.insert(key, value);
    return object;
}

// The report's first check with one value changed.
QJsonObject withCheckValue(QJsonObject object, const QString& key, const QJsonValue& value)
{
    QJsonArray checks = object.value(QStringLiteral("checks")).toArray();
    checks[0] = withValue(checks.at(0).toObject(), key, value);
    return withValue(object, QStringLiteral("checks"), checks);
}

int runSchemaCheck(const QJsonObject& object, QString* output)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("report.json")));
    if (!file.open(QIODevice::WriteOnly)) {
        return -1;
    }
    file.write(QJsonDocument(object).toJson());
    file.close();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("/usr/bin/python3"), // the system's, which has the package
                  {QStringLiteral("-c"),
                   QStringLiteral("import json, jsonschema, sys\n"
                                  "schema = json.load(open(sys.argv[1]))\n"
                                  "jsonschema.Draft7Validator.check_schema(schema)\n"
                                  "jsonschema.validate(json.load(open(sys.argv[2])), schema)\n"),
                   QStringLiteral(ENVCHECK_SOURCE_DIR "/docs/report-schema.json"),
                   file.fileName()});
    process.waitForFinished();
    *output = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

} // namespace

void tst_ReportJson::roundTrip()
{
    const QJsonObject object = ReportJson::toJson(sampleReport());
    QString error;
    const std::optional<Report> read = ReportJson::fromJson(object, &error);
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(QJsonDocument(ReportJson::toJson(*read)).toJson(), QJsonDocument(object).toJson());
    QCOMPARE(read->finished, sampleReport().finished);
    QCOMPARE(read->cacheFreeBytes, sampleReport().cacheFreeBytes);
    QVERIFY(!read->facts.contains(QStringLiteral("cacheFreeBytes")));
}

void tst_ReportJson::theThreeKindsOfFigures()
{
    QString error;
    const std::optional<Report> read =
        ReportJson::fromJson(ReportJson::toJson(sampleReport()), &error);
    QVERIFY2(read, qPrintable(error));
    const ReportCheck* camera = read->check(CheckKind::Camera);
    QVERIFY(camera);
    QCOMPARE(camera->measurement(QStringLiteral("rate"))->status, Measurement::Status::Measured);
    QCOMPARE(camera->measurement(QStringLiteral("rate"))->value.toDouble(), 29.97);
    QCOMPARE(camera->measurement(QStringLiteral("brightness"))->status,
             Measurement::Status::NotMeasured);
    QCOMPARE(camera->measurement(QStringLiteral("width"))->status, Measurement::Status::Failed);
    QCOMPARE(camera->measurement(QStringLiteral("width"))->reason, QStringLiteral("hung"));
    QVERIFY(!camera->measurement(FigureName::Height));
    const ReportCheck* network = read->check(CheckKind::Network);
    QCOMPARE(network->measurement(FigureName::Loss)->value.toDouble(), 2.0);
    QCOMPARE(network->later.at(0).value.toDouble(), 84.0);
}

// Reports from before there were causes have none.
void tst_ReportJson::causes()
{
    Report report = sampleReport();
    report.checks[1].causes = {Cause::ServerLost, Cause::Black};
    QString error;
    const std::optional<Report> read = ReportJson::fromJson(ReportJson::toJson(report), &error);
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(read->checks.at(1).causes, report.checks.at(1).causes);
    QVERIFY(read->checks.at(0).causes.empty());
}

void tst_ReportJson::unknownFiguresAreCarriedAlong()
{
    QString error;
    const std::optional<Report> read =
        ReportJson::fromJson(ReportJson::toJson(sampleReport()), &error);
    QVERIFY2(read, qPrintable(error));
    const ReportCheck* camera = read->check(CheckKind::Camera);
    QCOMPARE(camera->measurement(QStringLiteral("lens"))->value.toString(),
             QStringLiteral("Robin's lens"));
}

void tst_ReportJson::namesTheScenarioOfAScriptedRun()
{
    Report report = sampleReport();
    report.scenario.clear();
    QVERIFY(!ReportJson::toJson(report).contains(QStringLiteral("scenario")));
    report.scenario = QStringLiteral("no-microphone");
    QCOMPARE(ReportJson::toJson(report).value(QStringLiteral("scenario")).toString(),
             report.scenario);
}

void tst_ReportJson::isValidBySchema_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<bool>("isValid");
    const QJsonObject good = ReportJson::toJson(sampleReport());
    Report bare = sampleReport();
    bare.facts = {};
    bare.cacheFreeBytes.reset();
    bare.checks.clear();
    bare.grade.reset();
    bare.lastGoodRun.reset();
    Report explained = sampleReport();
    for (const auto& each : ReportWords::table<Cause>()) {
        explained.checks[0].causes.push_back(each.value);
    }
    QTest::newRow("every cause") << ReportJson::toJson(explained) << true;
    QTest::newRow("an unknown cause")
        << withCheckValue(good, QStringLiteral("causes"), QJsonArray{QStringLiteral("weather")})
        << false;
    QTest::newRow("whole") << good << true;
    QTest::newRow("bare") << ReportJson::toJson(bare) << true;
    QTest::newRow("another version") << withValue(good, QStringLiteral("version"), 2) << false;
    QTest::newRow("no checks") << withoutKey(good, QStringLiteral("checks")) << false;
    QTest::newRow("a wrong verdict")
        << withCheckValue(good, QStringLiteral("verdict"), QStringLiteral("maybe")) << false;
    QTest::newRow("a figure without value and reason")
        << withCheckValue(
               good, QStringLiteral("measurements"),
               QJsonArray{QJsonObject{{QStringLiteral("key"), QStringLiteral("delayMs")},
                                      {QStringLiteral("status"), QStringLiteral("measured")}}})
        << false;
    QTest::newRow("an unknown field")
        << withValue(good, QStringLiteral("more"), QStringLiteral("x")) << false;
    QTest::newRow("an unknown field of a check")
        << withCheckValue(good, QStringLiteral("more"), 1) << false;
    const QJsonObject figure{{QStringLiteral("key"), QStringLiteral("delayMs")},
                             {QStringLiteral("status"), QStringLiteral("measured")},
                             {QStringLiteral("value"), 1},
                             {QStringLiteral("reason"), QStringLiteral("hung")}};
    QTest::newRow("a value with a reason")
        << withCheckValue(good, QStringLiteral("measurements"), QJsonArray{figure}) << false;
    QTest::newRow("nothing later")
        << withCheckValue(good, QStringLiteral("later"), QJsonArray()) << false;
    QTest::newRow("no cause among causes")
        << withCheckValue(good, QStringLiteral("causes"), QJsonArray()) << false;
    QTest::newRow("an empty id") << withValue(good, QStringLiteral("id"), QString()) << false;
    QTest::newRow("half a version") << withValue(good, QStringLiteral("version"), 1.5) << false;
    for (const char* time : {"2026-03-01T08:30:00", "2026-03-01T08:30:00+01:00", "2026-03-01"}) {
        QTest::newRow(time) << withValue(good, QStringLiteral("started"), QLatin1String(time))
                            << false;
    }
    QTest::newRow("a whole second")
        << withValue(good, QStringLiteral("started"), QStringLiteral("2026-03-01T08:30:00Z"))
        << true;
    QTest::newRow("an unknown fact")
        << withValue(good, QStringLiteral("system"),
                     QJsonObject{{QStringLiteral("shoeSize"), QStringLiteral("x")}})
        << false;
    QTest::newRow("a number for a fact")
        << withValue(good, QStringLiteral("system"), QJsonObject{{QStringLiteral("account"), 5}})
        << false;
    QTest::newRow("the computer") << withValue(good, QStringLiteral("system"),
                                               QJsonObject{{QStringLiteral("computer"),
                                                            QStringLiteral("pc-17")}})
                                  << true;
    QTest::newRow("an unknown field of the grade")
        << withValue(good, QStringLiteral("networkGrade"),
                     QJsonObject{{QStringLiteral("level"), QStringLiteral("good")},
                                 {QStringLiteral("lines"), QJsonArray()},
                                 {QStringLiteral("more"), 1}})
        << false;
}

void tst_ReportJson::isValidBySchema()
{
    QFETCH(QJsonObject, object);
    QFETCH(bool, isValid);
    QString output;
    const int code = runSchemaCheck(object, &output);
    QString problem; // the reader refuses what the schema refuses
    QVERIFY2(ReportJson::fromJson(object, &problem).has_value() == isValid, qPrintable(problem));
    if (isValid) {
        QVERIFY2(code == 0, qPrintable(output));
    } else {
        QVERIFY2(code == 1 && output.contains(QLatin1String("ValidationError")),
                 qPrintable(output));
    }
}

void tst_ReportJson::brokenOnesAreNamed_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<QString>("field");
    const QJsonObject good = ReportJson::toJson(sampleReport());
    QTest::newRow("empty") << QJsonObject() << "format: ";
    QTest::newRow("another format")
        << withValue(good, QStringLiteral("format"), QStringLiteral("diary")) << "format: ";
    for (const double version : {1e300, -1e300, 0.0, 1.5, 2147483648.0}) {
        QTest::addRow("version %g", version)
            << withValue(good, QStringLiteral("version"), version) << "version: must be a whole";
    }
    QJsonObject system = good.value(QLatin1String("system")).toObject();
    system.insert(QStringLiteral("cacheFreeBytes"), 1e300);
    QTest::newRow("too many bytes") << withValue(good, QStringLiteral("system"), system)
                                    << "system.cacheFreeBytes: must be a whole";
    QTest::newRow("a newer version")
        << withValue(good, QStringLiteral("version"), 2) << "version: it is 2";
    for (const char* key : {"id", "programVersion", "started", "finished", "language", "platform",
                            "redaction", "outcome", "system", "checks"}) {
        QTest::newRow(key) << withoutKey(good, QLatin1String(key))
                           << QStringLiteral("%1: is missing").arg(QLatin1String(key));
    }
    QTest::newRow("no time") << withValue(good, QStringLiteral("finished"), QStringLiteral("noon"))
                             << "finished: must be a time";
    QTest::newRow("a list as text")
        << withValue(good, QStringLiteral("checks"), 5) << "checks: must be a list";
    QTest::newRow("a wrong verdict")
        << withCheckValue(good, QStringLiteral("verdict"), QStringLiteral("maybe"))
        << "checks[0].verdict: must be one of passed";
    QTest::newRow("a figure without a key")
        << withCheckValue(good, QStringLiteral("measurements"), QJsonArray{QJsonObject()})
        << "checks[0].measurements[0].key: is missing";
    QTest::newRow("an unknown contradiction")
        << withCheckValue(good, QStringLiteral("contradictions"), QJsonArray{QStringLiteral("?")})
        << "checks[0].contradictions: must be a list of yesWithoutPictures";
    QTest::newRow("contradictions of numbers")
        << withCheckValue(good, QStringLiteral("contradictions"), QJsonArray{1})
        << "checks[0].contradictions: ";
}

void tst_ReportJson::brokenOnesAreNamed()
{
    QFETCH(QJsonObject, object);
    QFETCH(QString, field);
    QString error;
    QVERIFY(!ReportJson::fromJson(object, &error));
    QVERIFY2(error.startsWith(field), qPrintable(error));
}

QTEST_GUILESS_MAIN(tst_ReportJson)
#include "tst_ReportJson.moc"
