// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/RunOutcome.h"
#include "platform/backend/NetworkProbe.h"
#include "platform/backend/ResultDocument.h"

#include <QtTest>

Q_DECLARE_METATYPE(ExitCode)

class tst_RunOutcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exitCodes_data();
    void exitCodes();
    void network_data();
    void network();
    void networkWithoutDelay();
    void networkLeftUnmeasured();
    void networkWithoutServer();
    void speakerGone_data();
    void speakerGone();
    void devices_data();
    void devices();
    void table();

private:
    Languages m_languages;
};

namespace {

QJsonObject documentWhereAllPassed()
{
    Platform::ResultDocument document;
    document.recordMeasurement(QStringLiteral("network"), Platform::toJson({1, 37}));
    document.recordResult(QStringLiteral("network.delay"), QStringLiteral("37ms"));
    document.recordResult(QStringLiteral("network.loss"), QStringLiteral("1%"));
    for (const char* check : {"camera", "speaker", "microphone"}) {
        const QString name = QLatin1String(check);
        document.recordResult(name + QStringLiteral(".userState"), 1);
        document.recordResult(name + QStringLiteral(".deviceState"), 1);
        document.recordResult(name + QStringLiteral(".device"), QStringLiteral("The ") + name);
    }
    document.recordCode(3);
    return document.toJson();
}

// The document with one value changed.
QJsonObject with(QJsonObject document, const char* check, const char* name, const QJsonValue& value)
{
    QJsonObject results = document.value(QLatin1String("results")).toObject();
    QJsonObject values = results.value(QLatin1String(check)).toObject();
    values.insert(QLatin1String(name), value);
    results.insert(QLatin1String(check), values);
    document.insert(QStringLiteral("results"), results);
    return document;
}

QJsonObject withCodes(QJsonObject document, const QJsonArray& codes)
{
    document.insert(QStringLiteral("codes"), codes);
    return document;
}

} // namespace

void tst_RunOutcome::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_RunOutcome::exitCodes_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<bool>("wasPutOut");
    QTest::addColumn<ExitCode>("code");
    const QJsonObject good = documentWhereAllPassed();
    const QJsonObject bad = with(good, "camera", "userState", 2);
    QTest::newRow("all passed") << good << false << ExitCode::AllPassed;
    QTest::newRow("a failure") << bad << false << ExitCode::SomeFailed;
    QTest::newRow("left early") << withCodes(good, {7}) << false << ExitCode::LeftEarly;
    QTest::newRow("ended by a signal") << withCodes(good, {}) << false << ExitCode::LeftEarly;
    QTest::newRow("put out") << withCodes(good, {}) << true << ExitCode::PutOut;
    QTest::newRow("put out after the end") << good << true << ExitCode::PutOut;
    QTest::newRow("nothing at all") << QJsonObject() << false << ExitCode::LeftEarly;
}

void tst_RunOutcome::exitCodes()
{
    QFETCH(QJsonObject, document);
    QFETCH(bool, wasPutOut);
    QTEST(RunOutcome::fromDocument(document, wasPutOut).exitCode, "code");
}

void tst_RunOutcome::network_data()
{
    QTest::addColumn<QString>("delayText");
    QTest::addColumn<QJsonObject>("figures");
    QTest::addColumn<int>("verdict");
    const auto figures = [](int delayMs, int lossPercent) {
        return Platform::toJson({lossPercent, delayMs});
    };
    const int passed = static_cast<int>(Verdict::Passed);
    const int failed = static_cast<int>(Verdict::Failed);
    QTest::newRow("499 ms") << "499ms" << figures(499, 0) << passed;
    QTest::newRow("500 ms") << "500ms" << figures(500, 0) << failed;
    QTest::newRow("not measured") << "N/A" << figures(-1, 0) << failed;
    QTest::newRow("70 %") << "37ms" << figures(37, 70) << passed;
    QTest::newRow("71 %") << "37ms" << figures(37, 71) << failed;
    QTest::newRow("no loss known")
        << "37ms" << QJsonObject{{QStringLiteral("delayMs"), 37}} << failed;
    QTest::newRow("below 0") << "-5ms" << figures(-5, -1) << passed; // as the step compares
    QTest::newRow("no figures") << "N/A" << QJsonObject() << failed;
    QTest::newRow("never shown") << QString() << figures(37, 0)
                                 << static_cast<int>(Verdict::NotTested);
}

void tst_RunOutcome::network()
{
    QFETCH(QString, delayText);
    QFETCH(QJsonObject, figures);
    QJsonObject document = with({}, "network", "delay", delayText);
    document.insert(QStringLiteral("measurements"),
                    QJsonObject{{QStringLiteral("network"), figures}});
    const CheckOutcome check = RunOutcome::fromDocument(document, false).checks.at(0);
    QCOMPARE(check.check, CheckKind::Network);
    QTEST(static_cast<int>(check.verdict), "verdict");
}

// The reason is said in the language of the terminal. The step's own text, "N/A", doesn't show.
void tst_RunOutcome::networkWithoutDelay()
{
    const auto textFor = [](const QJsonObject& figures) {
        QJsonObject document = with({}, "network", "delay", QStringLiteral("N/A"));
        document.insert(QStringLiteral("measurements"),
                        QJsonObject{{QStringLiteral("network"), figures}});
        return RunOutcome::fromDocument(document, false).checks.at(0).device;
    };
    const auto failedWith = [](const char* reasonId) {
        return qtTrId("ID_Host_MeasuringFailed").arg(qtTrId(reasonId));
    };
    QJsonObject figures = Platform::toJson({100, -1});
    QCOMPARE(textFor(figures), failedWith("ID_Host_Reason_NoAnswer"));
    figures.insert(QStringLiteral("state"), QStringLiteral("noSuchHost"));
    QCOMPARE(textFor(figures), failedWith("ID_Host_Reason_NoSuchHost"));
    figures.insert(QStringLiteral("state"), QStringLiteral("refused"));
    QCOMPARE(textFor(figures), failedWith("ID_Host_Reason_Refused"));
    figures.insert(QStringLiteral("state"), QStringLiteral("noRoute"));
    QCOMPARE(textFor(figures), failedWith("ID_Host_Reason_NoRoute"));
    QCOMPARE(textFor({}), failedWith("ID_Host_Reason_NoAnswer"));
}

// The verdict is the dialog's, and the figures are no result.
void tst_RunOutcome::networkWithoutServer()
{
    QJsonObject document = with({}, "network", "delay", QStringLiteral("0ms"));
    Platform::NetworkFigures figures{0, 0, 0, 50, 50};
    figures.problem = Platform::NetworkProblem::NoServer;
    document.insert(QStringLiteral("measurements"),
                    QJsonObject{{QStringLiteral("network"), Platform::toJson(figures)}});
    const RunOutcome outcome = RunOutcome::fromDocument(document, false);
    QCOMPARE(outcome.checks.at(0).verdict, Verdict::Passed);
    QCOMPARE(outcome.checks.at(0).device, QStringLiteral("not measured: no server"));
    QVERIFY(!outcome.toText().contains(QStringLiteral("0ms")));
}

// The dialog counts the network as failed as soon as it says anything of it.
void tst_RunOutcome::networkLeftUnmeasured()
{
    const QJsonObject document = with({}, "camera", "userState", 0);
    QVERIFY(RunOutcome::fromDocument(document, false).checks.at(0).verdict == Verdict::Failed);
    const QJsonObject camera{{QStringLiteral("camera"), QJsonObject{{QStringLiteral("x"), 1}}}};
    QVERIFY(RunOutcome::fromDocument({{QStringLiteral("measurements"), camera}}, false)
                .checks.at(0)
                .verdict == Verdict::Failed);
}

void tst_RunOutcome::speakerGone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ExitCode>("code");
    QTest::newRow("none there") << qtTrId("ID_Engine_NoSpeaker") << ExitCode::SomeFailed;
    QTest::newRow("none chosen") << qtTrId("ID_Engine_NoSpeakerSelected") << ExitCode::SomeFailed;
    QTest::newRow("called alike") << qtTrId("ID_Engine_NoSpeaker") + QStringLiteral(" (2)")
                                  << ExitCode::AllPassed;
    QTest::newRow("no name") << QString() << ExitCode::AllPassed;
}

void tst_RunOutcome::speakerGone()
{
    QFETCH(QString, name);
    const QJsonObject document = with(documentWhereAllPassed(), "speaker", "device", name);
    QTEST(RunOutcome::fromDocument(document, false).exitCode, "code");
}

void tst_RunOutcome::devices_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("verdict");
    QTest::newRow("yes, works") << 1 << 1 << static_cast<int>(Verdict::Passed);
    QTest::newRow("yes, fails") << 1 << 2 << static_cast<int>(Verdict::Failed);
    QTest::newRow("no, works") << 2 << 1 << static_cast<int>(Verdict::Failed);
    QTest::newRow("no answer") << 0 << 1 << static_cast<int>(Verdict::NotTested);
}

void tst_RunOutcome::devices()
{
    QFETCH(int, answer);
    QFETCH(int, state);
    for (const char* key : {"camera", "speaker", "microphone"}) {
        const QJsonObject document =
            with(with({}, key, "userState", answer), key, "deviceState", state);
        const RunOutcome outcome = RunOutcome::fromDocument(document, false);
        const auto check = std::find_if(outcome.checks.begin(), outcome.checks.end(),
                                        [key](const CheckOutcome& c) {
                                            return ReportWords::of(c.check) == QLatin1String(key);
                                        });
        QVERIFY(check != outcome.checks.end());
        QTEST(static_cast<int>(check->verdict), "verdict");
    }
}

void tst_RunOutcome::table()
{
    const QJsonObject document =
        with(with(documentWhereAllPassed(), "camera", "device", QStringLiteral("A\x1b[2J\nB")),
             "speaker", "userState", 2);
    QCOMPARE(RunOutcome::fromDocument(document, false).toText(),
             QStringLiteral("System   Passed  37ms, 1%\n"
                            "Camera   Passed  A [2J B\n"
                            "Speaker  Failed  The speaker\n"
                            "Mic      Passed  The microphone\n"));
}

QTEST_GUILESS_MAIN(tst_RunOutcome)
#include "tst_RunOutcome.moc"
