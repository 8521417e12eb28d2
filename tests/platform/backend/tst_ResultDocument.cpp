// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/ResultDocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace Platform;

namespace {

constexpr int WaitMs = 10000;

QJsonObject parsed(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class tst_ResultDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void collectsAllSections();
    void keepsWhatAResultWasMadeOf();
    void keepsTheLastValue();
    void forgetsTheOtherDevice();
    void startsAgainWhenCleared();
    void writesEveryChangeWhole();
    void staysInMemoryWithoutAPath();
};

void tst_ResultDocument::startsEmpty()
{
    QCOMPARE(ResultDocument().toJson(),
             parsed(R"({ "version": 1, "results": {}, "measurements": {}, "codes": [] })"));
}

void tst_ResultDocument::collectsAllSections()
{
    ResultDocument document;
    document.recordMeasurement(QStringLiteral("camera"), parsed(R"({ "width": 640 })"));
    document.recordMeasurement(QStringLiteral("camera"), parsed(R"({ "height": 480 })"));
    document.recordResult(QStringLiteral("camera.userState"), 1);
    document.recordResult(QStringLiteral("camera.device"), QStringLiteral("<b>A.B</b>"));
    document.recordResult(QStringLiteral("network.delay"), QStringLiteral("37ms"));
    document.recordCode(3);
    document.recordCode(7);
    QCOMPARE(document.toJson(), parsed(R"({
        "version": 1,
        "results": {
            "camera": { "userState": 1, "device": "<b>A.B</b>" },
            "network": { "delay": "37ms" }
        },
        "measurements": { "camera": { "width": 640, "height": 480 } },
        "codes": [ 3, 7 ]
    })"));
}

void tst_ResultDocument::keepsWhatAResultWasMadeOf()
{
    const QString network = QStringLiteral("network");
    ResultDocument document;
    document.recordMeasurement(network, parsed(R"({ "delayMs": 37, "sent": 5 })"));
    document.recordResult(QStringLiteral("network.delay"), QStringLiteral("37ms"));
    document.recordResult(QStringLiteral("network.loss"), QStringLiteral("0%"));
    document.recordMeasurement(network, parsed(R"({ "delayMs": 912, "sent": 5, "new": 1 })"));
    document.recordMeasurement(QStringLiteral("camera"), parsed(R"({ "width": 640 })"));
    QCOMPARE(document.toJson()[QStringLiteral("measurements")], QJsonValue(parsed(R"({
        "network": { "delayMs": 37, "sent": 5 }, "camera": { "width": 640 } })")));
    QCOMPARE(document.toJson()[QStringLiteral("later")],
             QJsonValue(parsed(R"({ "network": { "delayMs": 912, "new": 1 } })")));

    document.recordResult(QStringLiteral("network.delay"), QStringLiteral("912ms"));
    const QJsonObject json = document.toJson();
    QCOMPARE(json[QStringLiteral("measurements")][network][QStringLiteral("delayMs")],
             QJsonValue(912));
    QVERIFY(!json.contains(QStringLiteral("later")));
}

void tst_ResultDocument::keepsTheLastValue()
{
    ResultDocument document;
    document.recordResult(QStringLiteral("speaker.userState"), 2);
    document.recordResult(QStringLiteral("speaker.userState"), 1);
    QCOMPARE(document.toJson()[QStringLiteral("results")],
             QJsonValue(parsed(R"({ "speaker": { "userState": 1 } })")));
}

void tst_ResultDocument::forgetsTheOtherDevice()
{
    const QString check = QStringLiteral("speaker");
    ResultDocument document;
    const auto measured = [&document, &check] {
        return document.toJson().value(QStringLiteral("measurements"))[check];
    };
    document.recordMeasurement(
        check, parsed(R"({ "state": "ready", "device": "A", "volumeAfter": 50, "x": 1 })"));
    document.recordMeasurement(check, parsed(R"({ "soundPlayed": "Piano" })"));
    document.recordMeasurement(check, parsed(R"({ "state": "ready", "device": "A", "y": 2 })"));
    QCOMPARE(measured(), QJsonValue(parsed(R"({ "state": "ready", "device": "A",
        "volumeAfter": 50, "x": 1, "y": 2, "soundPlayed": "Piano" })")));
    document.recordMeasurement(check, parsed(R"({ "state": "busy", "device": "B", "x": 3 })"));
    QCOMPARE(measured(), QJsonValue(parsed(R"({ "state": "busy", "device": "B", "x": 3,
        "soundPlayed": "Piano" })")));
    document.recordMeasurement(check, parsed(R"({ "state": "absent" })"));
    QCOMPARE(measured(), QJsonValue(parsed(R"({ "state": "absent", "soundPlayed": "Piano" })")));
}

void tst_ResultDocument::startsAgainWhenCleared()
{
    ResultDocument document;
    document.recordResult(QStringLiteral("camera.userState"), 1);
    document.recordCode(3);
    document.clear();
    QCOMPARE(document.toJson(), ResultDocument().toJson());
}

void tst_ResultDocument::writesEveryChangeWhole()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new/results.json"));
    ResultDocument document(path);
    QCOMPARE(document.path(), path);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(!QFileInfo::exists(path)); // not before there is something to say
    for (int i = 0; i < 20; ++i) {
        document.recordResult(QStringLiteral("camera.userState"), i);
    }
    document.recordCode(3);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(file.readAll()).object(), document.toJson());
}

void tst_ResultDocument::staysInMemoryWithoutAPath()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("results.json"));
    ResultDocument document(path);
    document.setPath({});
    document.recordCode(3);
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(!QFileInfo::exists(path));
    document.setPath(path);
    document.recordMeasurement(QStringLiteral("network"), parsed(R"({ "sent": 5 })"));
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QVERIFY(QFileInfo::exists(path));
}

QTEST_GUILESS_MAIN(tst_ResultDocument)
#include "tst_ResultDocument.moc"
