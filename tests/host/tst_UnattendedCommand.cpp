// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <map>

namespace {

constexpr int TimeoutMs = 40000;

// The lists of a scenario; all is in order.
struct Devices
{
    QByteArray network = R"("network": [ { "delayMs": 20 } ])";
    QByteArray cameras = R"("cameras": [ { "id": "c", "name": "Cam" } ])";
    QByteArray microphones =
        R"("microphones": [ { "id": "m", "name": "Mic", "levels": [ [ 0, 0.2 ] ] } ])";
    QByteArray speakers = R"("speakers": [ { "id": "s", "name": "Speaker" } ])";

    QByteArray scenario() const
    {
        return "{ " + network + ", " + cameras + ", " + microphones + ", " + speakers + " }";
    }
};

} // namespace

Q_DECLARE_METATYPE(Verdict)

// The program with --unattended, without a display, on scripted devices.
class tst_UnattendedCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void findings_data();
    void findings();
    void loop_data();
    void loop();
    void noNoiseUnlessAskedFor();
    void severalDevices();
    void diagnosis();
    void diagnosisThatCantBeWritten();
    void signalEndsIt();
    void wrongUsage_data();
    void wrongUsage();

private:
    struct Run
    {
        QTemporaryDir home;
        QProcess process;
    };

    static std::unique_ptr<Run> started(const QByteArray& scenario, const QStringList& more = {});
    void start(const QByteArray& scenario, const QStringList& more = {})
    {
        m_run = started(scenario, more);
    }
    int finish();
    Report report() const;
    void addFinding(const char* name, const Devices& devices, const char* check, const char* cause,
                    int code);

    std::unique_ptr<Run> m_run;
    std::map<QByteArray, std::unique_ptr<Run>> m_findings; // by the names of their rows
    QString m_out;
    QString m_error;
};

void tst_UnattendedCommand::initTestCase()
{
    // Nobody looks: neither display nor theme.
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        qunsetenv(name);
    }
}

void tst_UnattendedCommand::init()
{
    m_run.reset();
}

std::unique_ptr<tst_UnattendedCommand::Run>
tst_UnattendedCommand::started(const QByteArray& scenario, const QStringList& more)
{
    auto run = std::make_unique<Run>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), run->home.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), run->home.path());
    environment.remove(QStringLiteral("XDG_DATA_HOME"));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    environment.remove(QStringLiteral("ENVCHECK_SERVER"));
    run->process.setProcessEnvironment(environment);
    QFile file(run->home.filePath(QStringLiteral("scenario.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(scenario) < 0) {
        qWarning("The scenario can't be written");
    }
    file.close();
    run->process.start(QStringLiteral(ENVCHECK_PROGRAM),
                       QStringList{QStringLiteral("check"), QStringLiteral("--unattended"),
                                   QStringLiteral("--language"), QStringLiteral("en"),
                                   QStringLiteral("--scenario"), file.fileName()} +
                           more);
    return run;
}

int tst_UnattendedCommand::finish()
{
    const bool hasEnded = m_run->process.waitForFinished(TimeoutMs);
    m_out = QString::fromUtf8(m_run->process.readAllStandardOutput());
    m_error = QString::fromUtf8(m_run->process.readAllStandardError());
    return hasEnded && m_run->process.exitStatus() == QProcess::NormalExit
               ? m_run->process.exitCode()
               : -1;
}

Report tst_UnattendedCommand::report() const
{
    QString problem;
    const std::optional<Report> report =
        ReportJson::fromJson(QJsonDocument::fromJson(m_out.toUtf8()).object(), &problem);
    if (!report) {
        qWarning("%s", qPrintable(problem));
    }
    return report.value_or(Report());
}

// Each row's run begins here: most of its time it waits.
void tst_UnattendedCommand::addFinding(const char* name, const Devices& devices, const char* check,
                                       const char* cause, int code)
{
    QTest::newRow(name) << QByteArray(name) << QString::fromLatin1(check)
                        << QString::fromLatin1(cause) << code;
    m_findings[name] = started(devices.scenario(), {QStringLiteral("--json"), QStringLiteral("-")});
}

void tst_UnattendedCommand::findings_data()
{
    QTest::addColumn<QByteArray>("run");
    QTest::addColumn<QString>("check");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<int>("code");
    const auto camera = [this](const char* name, const char* fields, const char* cause) {
        Devices devices;
        devices.cameras =
            QByteArray(R"("cameras": [ { "id": "c", "name": "Cam", )") + fields + "}]";
        addFinding(name, devices, "camera", cause, 1);
    };
    const auto microphone = [this](const char* name, const char* fields, const char* cause) {
        Devices devices;
        devices.microphones =
            QByteArray(R"("microphones": [ { "id": "m", "name": "Mic", )") + fields + "}]";
        addFinding(name, devices, "microphone", cause, 1);
    };
    const auto speaker = [this](const char* name, const char* fields, const char* cause) {
        Devices devices;
        devices.speakers =
            QByteArray(R"("speakers": [ { "id": "s", "name": "Speaker", )") + fields + "}]";
        addFinding(name, devices, "speaker", cause, 1);
    };
    addFinding("good", {}, "camera", "", 0);
    camera("busy camera", R"("state": "busy", "program": "Other program")", "busy");
    camera("denied camera", R"("state": "denied")", "denied");
    camera("unreadable camera", R"("state": "unreadable")", "unreadable");
    camera("hung camera", R"("state": "hung")", "hung");
    camera("black camera", R"("pictures": "black")", "black");
    camera("frozen camera", R"("pictures": "frozen")", "frozen");
    camera("camera without frames", R"("pictures": "none")", "stalled");
    microphone("hum", R"("levels": [[0, 0.3]], "sound": { "noiseFloorDb": -40, "humPercent": 80 })",
               "hum");
    microphone("clipping", R"("levels": [[0, 1]], "sound": { "clippedPercent": 5 })", "clipping");
    microphone("digital silence", R"("levels": [[0, 0]], "sound": { "peakDb": -120 })", "silent");
    microphone("muted microphone", R"("muted": true)", "muted");
    microphone("denied microphone", R"("state": "denied")", "denied");
    speaker("muted speaker", R"("muted": true)", "muted");
    speaker("speaker at volume 0", R"("volume": 0)", "volumeZero");
    speaker("broken speaker", R"("state": "failed")", "failed");
    Devices devices;
    devices.cameras = R"("cameras": [])";
    addFinding("no camera", devices, "camera", "absent", 1);
    devices.cameras += R"(, "timeline": [ { "atMs": 0, "event": "cameraServer" } ])";
    addFinding("no camera service", devices, "camera", "serverLost", 69);
    devices = {};
    devices.network = R"("network": [ { "delayMs": 900 } ])";
    addFinding("slow network", devices, "network", "slow", 1);
}

void tst_UnattendedCommand::findings()
{
    QFETCH(QByteArray, run);
    QFETCH(QString, check);
    QFETCH(QString, cause);
    m_run = std::move(m_findings.at(run));
    const int code = finish();
    QTEST(code, "code");
    const Report report = this->report();
    const ReportCheck* found = report.check(*ReportWords::find<CheckKind>(check));
    QVERIFY(found);
    QCOMPARE(found->verdict, cause.isEmpty() ? Verdict::Works : Verdict::Faulty);
    QCOMPARE(found->causes.empty() ? QString() : ReportWords::of(found->causes.front()), cause);
    const auto good = std::count_if(report.checks.begin(), report.checks.end(),
                                    [](const ReportCheck& c) { return isGood(c.verdict); });
    QCOMPARE(int(good), cause.isEmpty() ? 4 : 3);
    if (cause == QLatin1String("busy")) {
        QCOMPARE(found->measurement(FigureName::Program)->value.toString(),
                 QStringLiteral("Other program"));
    }
    // The table is for people, so it doesn't stand where the document goes.
    QVERIFY(m_error.contains(QLatin1String("Unattended: ")));
}

void tst_UnattendedCommand::loop_data()
{
    QTest::addColumn<QByteArray>("run");
    QTest::addColumn<Verdict>("verdict");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<int>("code");
    const auto row = [this](const char* name, const Devices& devices, const char* loop,
                            Verdict verdict, const char* cause, const char* reason) {
        QTest::newRow(name) << QByteArray(name) << verdict << QString::fromLatin1(cause)
                            << QString::fromLatin1(reason) << (verdict == Verdict::Heard ? 0 : 1);
        QByteArray scenario = devices.scenario();
        scenario.insert(1, loop);
        m_findings[name] = started(
            scenario, {QStringLiteral("--loop"), QStringLiteral("--json"), QStringLiteral("-")});
    };
    const char* heard = R"( "loop": { "delayMs": 123, "levelDb": -31 },)";
    row("heard", {}, heard, Verdict::Heard, "", "");
    row("not heard", {}, R"( "loop": { "heard": false },)", Verdict::NotHeard, "loopNotHeard", "");
    row("not in the scenario", {}, "", Verdict::NotTried, "", "scripted");
    Devices devices;
    devices.speakers = R"("speakers": [ { "id": "s", "name": "Speaker", "muted": true } ])";
    row("muted loop", devices, heard, Verdict::NotTried, "muted", "muted");
    devices.speakers = R"("speakers": [])";
    row("no speaker", devices, heard, Verdict::NotTried, "absent", "absent");
    devices = {};
    devices.microphones = R"("microphones": [ { "id": "m", "name": "Mic", "state": "failed" } ])";
    row("broken microphone", devices, heard, Verdict::NotTried, "failed", "failed");
}

void tst_UnattendedCommand::loop()
{
    QFETCH(QByteArray, run);
    QFETCH(Verdict, verdict);
    QFETCH(QString, cause);
    QFETCH(QString, reason);
    m_run = std::move(m_findings.at(run));
    const int code = finish();
    QTEST(code, "code");
    const Report report = this->report();
    const ReportCheck* check = report.check(CheckKind::Loop);
    QVERIFY(check);
    QCOMPARE(check->verdict, verdict);
    QCOMPARE(check->causes.empty() ? QString() : ReportWords::of(check->causes.front()), cause);
    const Measurement* delay = check->measurement(FigureName::LoopDelay);
    QCOMPARE(delay ? delay->reason : QString(), reason);
    QCOMPARE(check->measurement(FigureName::LoopLevel) != nullptr, verdict == Verdict::Heard);
    if (verdict == Verdict::Heard) {
        QCOMPARE(delay->value.toDouble(), 123.0);
        QVERIFY2(m_error.contains(QLatin1String("Speaker, Mic, 123 ms, -31 dB")),
                 qPrintable(m_error));
    }
    // What is wrong with a device is told once.
    const QString remedy = QStringLiteral("The device is muted");
    QCOMPARE(m_error.count(remedy), cause == QLatin1String("muted") ? 1 : 0);
}

void tst_UnattendedCommand::noNoiseUnlessAskedFor()
{
    QByteArray scenario = Devices().scenario();
    scenario.insert(1, R"( "loop": { "heard": false },)");
    start(scenario, {QStringLiteral("--json"), QStringLiteral("-")});
    QCOMPARE(finish(), 0);
    QVERIFY(!report().check(CheckKind::Loop));
}

// Each has its own check. Those that are in order don't hide the one that isn't.
void tst_UnattendedCommand::severalDevices()
{
    Devices devices;
    devices.cameras = R"("cameras": [ { "id": "a", "name": "A" },
                         { "id": "b", "name": "B", "state": "denied" } ])";
    start(devices.scenario());
    QCOMPARE(finish(), 1);
    QVERIFY2(m_out.contains(QRegularExpression(QStringLiteral("Works +A\n"))), qPrintable(m_out));
    QVERIFY2(m_out.contains(QRegularExpression(QStringLiteral("Needs fixing +B\n"))),
             qPrintable(m_out));
    QCOMPARE(m_error, QString());
}

void tst_UnattendedCommand::diagnosis()
{
    const QTemporaryDir folder;
    const QString archive = folder.filePath(QStringLiteral("for support.zip"));
    start(Devices().scenario(),
          {QStringLiteral("--diagnose"), archive, QStringLiteral("--json=-")});
    QCOMPARE(finish(), 0);
    QVERIFY2(m_error.contains(archive), qPrintable(m_error));
    QProcess unzip;
    unzip.start(QStringLiteral("unzip"),
                {QStringLiteral("-p"), archive, QStringLiteral("report.json")});
    QVERIFY(unzip.waitForFinished(TimeoutMs));
    QCOMPARE(QString::fromUtf8(unzip.readAllStandardOutput()), m_out);
    QCOMPARE(report().redaction, Options::Redaction::Personal); // it is made to be given away
    QCOMPARE(QFile::permissions(archive) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
}

void tst_UnattendedCommand::diagnosisThatCantBeWritten()
{
    start(Devices().scenario(), {QStringLiteral("--diagnose=/nowhere/a.zip")});
    QCOMPARE(finish(), 73);
    QVERIFY2(m_error.contains(QLatin1String("/nowhere/a.zip")), qPrintable(m_error));
    QCOMPARE(m_error.count(QLatin1Char('\n')), 1);
}

void tst_UnattendedCommand::signalEndsIt()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("report.json"));
    Devices devices;
    devices.cameras = R"("cameras": [ { "id": "c", "name": "Cam", "state": "denied" } ])";
    start(devices.scenario(), {QStringLiteral("--json"), file});
    QTest::qWait(5000); // the denied camera is known, the network isn't
    QCOMPARE(m_run->process.state(), QProcess::Running);
    QElapsedTimer clock;
    clock.start();
    ::kill(static_cast<pid_t>(m_run->process.processId()), SIGTERM);
    QCOMPARE(finish(), 2);
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QFile written(file);
    QVERIFY(written.open(QIODevice::ReadOnly));
    m_out = QString::fromUtf8(written.readAll());
    const Report report = this->report();
    QCOMPARE(report.outcome, RunEnd::BrokenOff);
    QCOMPARE(report.check(CheckKind::Network)->verdict, Verdict::Unmeasured);
    QVERIFY(report.check(CheckKind::Camera)->has(Cause::Denied));
}

void tst_UnattendedCommand::wrongUsage_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("results") << "--results=/tmp/x.json";
    QTest::newRow("tour") << "--tour=/tmp/x";
    QTest::newRow("quiet") << "--quiet";
    QTest::newRow("no file") << "--json";
    QTest::newRow("diagnosis") << "--diagnose=/tmp/x.json";
    QTest::newRow("ending") << "--json=/tmp/x.csv";
}

void tst_UnattendedCommand::wrongUsage()
{
    QFETCH(QString, option);
    start(Devices().scenario(), {option});
    QCOMPARE(finish(), 64);
    QCOMPARE(m_error.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(tst_UnattendedCommand)
#include "tst_UnattendedCommand.moc"
