// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"
#include "platform/backend/StunServer.h"
#include "tests/devices/CoturnServer.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/PipeWireServer.h"
#include "tests/support/SoundServer.h"
#include "tests/support/TestProcess.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QtTest>

#include <cmath>

using namespace TestSupport;

namespace {

constexpr int TimeoutMs = 40000;
constexpr int Rate = 48000;
constexpr int Seconds = 30;
constexpr int Dead = 5; // cameras that hang: each takes three seconds or more

QByteArray samples(const std::function<double(double second)>& wave)
{
    constexpr double Largest = 32767;
    QByteArray bytes;
    bytes.reserve(2 * Rate * Seconds);
    for (int i = 0; i < Rate * Seconds; ++i) {
        const double value = std::max(-1.0, std::min(1.0, wave(double(i) / Rate)));
        const auto sample = static_cast<qint16>(value * Largest);
        bytes.append(reinterpret_cast<const char*>(&sample), sizeof(sample));
    }
    return bytes;
}

double hum(double second)
{
    constexpr double MainsHz = 50;
    return std::sin(2 * M_PI * MainsHz * second);
}

// Noise of a quiet room, about -70 dBFS.
double roomNoise(double /*second*/)
{
    constexpr double Amplitude = 0.0005;
    return Amplitude * (2.0 * std::rand() / RAND_MAX - 1.0);
}

} // namespace

// The program without a person, on real servers.
class tst_UnattendedRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void camerasAndSound();
    void loop();
    void servicesAreGone();

private:
    void plug(const char* name, const std::function<double(double)>& wave);
    Report run(int expectedCode, const QStringList& more = {});
    static const ReportCheck* checkOf(const Report& report, const char* device);
    static QString causes(const ReportCheck* check);

    QTemporaryDir m_folder;
    std::unique_ptr<SoundServer> m_sound;
    std::unique_ptr<PipeWireServer> m_pipeWire;
    std::unique_ptr<CoturnServer> m_coturn;
    std::vector<std::unique_ptr<TestProcess>> m_players;
    qint64 m_ms = 0;
};

void tst_UnattendedRun::initTestCase()
{
    m_sound = std::make_unique<SoundServer>(SoundServer::Kind::PulseAudio);
    QVERIFY(m_sound->start());
    const QByteArray soundAddress = qgetenv("PULSE_SERVER");
    m_pipeWire = std::make_unique<PipeWireServer>(); // with an environment that has no sound
    qputenv("PULSE_SERVER", soundAddress);
    QVERIFY2(m_pipeWire->start(), qPrintable(m_pipeWire->problem()));
    m_coturn = std::make_unique<CoturnServer>();
    QVERIFY(m_coturn->start());
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        qunsetenv(name);
    }
    qputenv("XDG_DATA_HOME", m_folder.path().toUtf8());
}

void tst_UnattendedRun::cleanupTestCase()
{
    m_players.clear();
    m_coturn.reset();
    m_pipeWire.reset();
    m_sound.reset();
}

// A microphone that hears the wave.
void tst_UnattendedRun::plug(const char* name, const std::function<double(double)>& wave)
{
    const QString feed = QStringLiteral("feed_") + QLatin1String(name);
    QVERIFY(!m_sound->plugSpeaker(feed, feed, 1, Rate).isEmpty());
    QVERIFY(!m_sound->plugMicrophone(QLatin1String(name), QLatin1String(name), feed).isEmpty());
    const QString path = m_folder.filePath(QLatin1String(name));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(samples(wave));
    file.close();
    m_players.push_back(std::make_unique<TestProcess>());
    m_players.back()->start(QStringLiteral("pacat"),
                            {QStringLiteral("--device=") + feed, QStringLiteral("--format=s16le"),
                             QStringLiteral("--rate=48000"), QStringLiteral("--channels=1"),
                             QStringLiteral("--raw"), path});
    QVERIFY(m_players.back()->waitForStarted());
}

Report tst_UnattendedRun::run(int expectedCode, const QStringList& more)
{
    QProcess process;
    process.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    QElapsedTimer clock;
    clock.start();
    process.start(QStringLiteral(ENVCHECK_PROGRAM),
                  QStringList{QStringLiteral("check"), QStringLiteral("--unattended"),
                              QStringLiteral("--json"), QStringLiteral("-"),
                              QStringLiteral("--server"), m_coturn->server().toString()} +
                      more);
    const bool hasEnded = process.waitForFinished(TimeoutMs);
    m_ms = clock.elapsed();
    QString problem;
    const std::optional<Report> report = ReportJson::fromJson(
        QJsonDocument::fromJson(process.readAllStandardOutput()).object(), &problem);
    if (!hasEnded || process.exitCode() != expectedCode || !report) {
        qWarning("code %d, %s, %s", process.exitCode(), qPrintable(problem),
                 process.readAllStandardError().constData());
    }
    return report.value_or(Report());
}

const ReportCheck* tst_UnattendedRun::checkOf(const Report& report, const char* device)
{
    const auto found = std::find_if(
        report.checks.begin(), report.checks.end(),
        [device](const ReportCheck& check) { return check.device == QLatin1String(device); });
    return found == report.checks.end() ? nullptr : &*found;
}

QString tst_UnattendedRun::causes(const ReportCheck* check)
{
    QStringList words;
    for (const Cause cause : check ? check->causes : std::vector<Cause>{Cause::Absent}) {
        words << ReportWords::of(cause);
    }
    return words.join(QLatin1Char(' '));
}

void tst_UnattendedRun::camerasAndSound()
{
    CameraProcess desk(QStringLiteral("desk"), QStringLiteral("Desk"));
    CameraProcess wall(QStringLiteral("wall"), QStringLiteral("Wall"));
    CameraProcess cap(QStringLiteral("cap"), QStringLiteral("Cap"));
    std::vector<std::unique_ptr<CameraProcess>> dead;
    for (int i = 0; i < Dead; ++i) {
        const QString name = QStringLiteral("Dead %1").arg(i);
        dead.push_back(
            std::make_unique<CameraProcess>(name, name, QStringList{QStringLiteral("--stalled")}));
    }
    for (CameraProcess* camera : {&desk, &wall, &cap, dead.front().get(), dead.back().get()}) {
        QTRY_VERIFY_WITH_TIMEOUT(camera->output().contains("paused"), TimeoutMs);
    }
    wall.command("frozen");
    cap.command("black");
    plug("room", roomNoise);
    plug("humming", [](double second) { return 0.02 * hum(second); });
    plug("humming_loudly", [](double second) { return 0.3 * hum(second); });
    plug("clipping", [](double second) { return 1.5 * hum(10 * second); });
    const QStringList before = m_sound->state();

    const Report report = run(1);
    QCOMPARE(report.outcome, RunEnd::Faulty);
    QCOMPARE(report.check(CheckKind::Network)->verdict, Verdict::Works);
    QVERIFY(report.grade == NetworkGrade::Level::Good);
    QCOMPARE(causes(checkOf(report, "Desk")), QString());
    const Measurement* rate = checkOf(report, "Desk")->measurement(FigureName::Rate);
    QVERIFY(rate && std::abs(rate->value.toDouble() - 30) < 4);
    QCOMPARE(causes(checkOf(report, "Wall")), QStringLiteral("frozen"));
    QCOMPARE(causes(checkOf(report, "Cap")), QStringLiteral("black"));
    for (int i = 0; i < Dead; ++i) {
        const QString cause = causes(checkOf(report, qPrintable(QStringLiteral("Dead %1").arg(i))));
        QVERIFY2(cause == QLatin1String("stalled") || cause == QLatin1String("hung"),
                 qPrintable(cause));
    }
    QCOMPARE(causes(checkOf(report, "room")), QString());
    QCOMPARE(causes(checkOf(report, "humming")), QStringLiteral("hum"));
    QCOMPARE(causes(checkOf(report, "humming_loudly")), QStringLiteral("hum"));
    QCOMPARE(causes(checkOf(report, "clipping")), QStringLiteral("clipping"));
    QCOMPARE(causes(checkOf(report, "Test Microphone A")), QStringLiteral("silent"));
    QCOMPARE(causes(checkOf(report, "Test Speaker A")), QString());

    // All cameras that hang cost one deadline, beside the ten seconds of the network.
    QVERIFY2(m_ms < 16000, qPrintable(QString::number(m_ms)));
    QCOMPARE(m_sound->state(), before);
    QVERIFY(!QFile::exists(m_folder.filePath(QStringLiteral("envcheck/devices.ini"))));
    QTRY_VERIFY_WITH_TIMEOUT(desk.output().trimmed().endsWith("paused"), TimeoutMs);
}

// The default speaker and the default microphone, with nothing between them and with a loop.
void tst_UnattendedRun::loop()
{
    m_players.clear();
    const QStringList before = m_sound->state();
    const Report without = run(1, {QStringLiteral("--loop")});
    QCOMPARE(without.check(CheckKind::Loop)->verdict, Verdict::NotHeard);
    m_sound->control({QStringLiteral("load-module"), QStringLiteral("module-loopback"),
                      QStringLiteral("source=speaker_a.monitor"), QStringLiteral("sink=voice"),
                      QStringLiteral("latency_msec=100")});
    const Report with = run(1, {QStringLiteral("--loop")}); // there is no camera
    const ReportCheck* check = with.check(CheckKind::Loop);
    QCOMPARE(check->verdict, Verdict::Heard);
    const double delayMs = check->measurement(FigureName::LoopDelay)->value.toDouble();
    QVERIFY2(delayMs > 80 && delayMs < 300, qPrintable(QString::number(delayMs)));
    QCOMPARE(check->measurement(FigureName::LoopSpeaker)->value.toString(),
             QStringLiteral("Test Speaker A"));
    QCOMPARE(m_sound->state(), before);
    QVERIFY2(m_ms < 16000, qPrintable(QString::number(m_ms)));
}

void tst_UnattendedRun::servicesAreGone()
{
    m_players.clear();
    m_sound->kill();
    m_pipeWire->kill();
    const Report report = run(69);
    QCOMPARE(report.outcome, RunEnd::Unavailable);
    QCOMPARE(report.check(CheckKind::Network)->verdict, Verdict::Works);
    for (const CheckKind kind : {CheckKind::Camera, CheckKind::Speaker, CheckKind::Microphone}) {
        QCOMPARE(causes(report.check(kind)), QStringLiteral("serverLost"));
    }
}

QTEST_GUILESS_MAIN(tst_UnattendedRun)
#include "tst_UnattendedRun.moc"
