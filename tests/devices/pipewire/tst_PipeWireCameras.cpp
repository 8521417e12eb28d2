// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/SettingsStore.h"
#include "platform/devices/camera/DeviceCameraSystem.h"
#include "platform/devices/pipewire/PipeWireFeed.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/PipeWireServer.h"

#include <QDir>
#include <QtTest>
#include <cerrno>
#include <csignal>
#include <optional>

using namespace Platform;
using namespace TestSupport;

namespace {

const QSize PreviewSize(306, 172);
constexpr int LongMs = 8000;
constexpr int ReconnectsMs = 1000; // a few tries to reach the server that is gone
const QString NameA = QStringLiteral("cam_a");
const QString NameB = QStringLiteral("cam_b");

class Watcher final : public CameraBackend::Listener
{
public:
    void cameraListChanged() override { log << QStringLiteral("list"); }
    void currentCameraChanged(const QString& id) override
    {
        log << QStringLiteral("current ") + id;
    }
    void cameraWorkStateChanged(const QString&, bool works) override
    {
        log << (works ? QStringLiteral("works") : QStringLiteral("fails"));
    }
    void frameArrived() override { ++pictures; }

    QStringList log;
    int pictures = 0;
};

bool isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 12;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

// The pattern's own color, seen at most places of the picture.
bool shows(const QImage& picture, QRgb color)
{
    int hits = 0;
    constexpr int Places = 9;
    for (int i = 0; i < Places; ++i) {
        const int x = picture.width() * (2 * i + 1) / (2 * Places);
        hits += isNear(picture.pixel(x, picture.height() / 2), color) ? 1 : 0;
    }
    return hits > Places / 2;
}

// The threads of this process that have to do with cameras.
int cameraThreads()
{
    int result = 0;
    const QStringList tasks = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs);
    for (const QString& task : tasks) {
        QFile name(QStringLiteral("/proc/self/task/%1/comm").arg(task));
        if (name.open(QIODevice::ReadOnly)) {
            const QByteArray text = name.readAll().trimmed();
            result += text == "cameras" || text == "data-loop.0" || text == "data-loop" ? 1 : 0;
        }
    }
    return result;
}

const QRgb Red = qRgb(0xc8, 0x28, 0x28);
const QRgb Green = qRgb(0x28, 0xa0, 0x28);
const QRgb Blue = qRgb(0, 0, 255);
const QString GreenText = QStringLiteral("28a028");

QStringList openFiles()
{
    QStringList result = QDir(QStringLiteral("/proc/self/fd"))
                             .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
    result.sort();
    return result;
}

} // namespace

class tst_PipeWireCameras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void listsAndShowsTwoCameras();
    void knowsACameraByItsPlace();
    void numbersEqualNames();
    void mergesBursts();
    void hidesWhatIsNoCamera();
    void readsEveryLayout_data();
    void readsEveryLayout();
    void turnsTurnedSensors_data();
    void turnsTurnedSensors();
    void readsDriverMemory();
    void followsFormatChanges();
    void picksUpReturningCamera();
    void noticesSilence();
    void waitsForMissingCamera();
    void switchesOff();
    void abandonsHungStart();
    void tellsFailures_data();
    void tellsFailures();
    void tellsRefusal_data();
    void tellsRefusal();
    void outlivesTheServer();
    void outlivesItsConnections_data();
    void outlivesItsConnections();
    void outlivesTheManager();
    void waitsForTheServer();
    void leavesAFrozenServer();
    void remembersTheChoice();
    void ignoresAbsentRememberedChoice();
    void measures();
    void leavesNothingBehind();
    void keepsNoDescriptorsOfHaste_data();
    void keepsNoDescriptorsOfHaste();

private:
    using Camera = std::unique_ptr<CameraProcess>;

    Camera plug(const QString& name, const QString& description,
                const QStringList& arguments = {}) const;
    void makeBackend();
    void watch() { m_gaps.emplace(); } // the GUI thread, from now on
    bool isResponsive();               // and was since; ends the watch
    QStringList ids() const;
    QStringList names() const;
    QJsonObject figures() const { return m_report.measurements.value(QStringLiteral("camera")); }
    QString stateName() const { return toString(m_backend->state()); }

    std::unique_ptr<PipeWireServer> m_server;
    std::unique_ptr<QTemporaryDir> m_settings;
    MemoryReport m_report;
    Watcher m_watcher;
    std::optional<GapMeter> m_gaps;
    std::unique_ptr<DeviceCameraSystem> m_system;
    std::unique_ptr<CameraBackend> m_backend;
};

void tst_PipeWireCameras::initTestCase()
{
    m_server = std::make_unique<PipeWireServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
}

void tst_PipeWireCameras::cleanupTestCase()
{
    m_server.reset();
}

void tst_PipeWireCameras::init()
{
    m_settings = std::make_unique<QTemporaryDir>();
    m_report = MemoryReport();
    m_watcher = Watcher();
}

void tst_PipeWireCameras::cleanup()
{
    m_gaps.reset();
    m_backend.reset();
    m_system.reset();
    m_server->thaw();
    m_server->thawManager();
    QTRY_COMPARE(cameraThreads(), 0);
    QVERIFY(FileWriter::waitForWritten(LongMs));
}

void tst_PipeWireCameras::listsAndShowsTwoCameras()
{
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    const Camera b =
        plug(NameB, QStringLiteral("Camera B"), {QStringLiteral("--color"), GreenText});
    makeBackend();
    const QStringList both{NameA, NameB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), both, LongMs);
    const QStringList expected{QStringLiteral("Camera A"), QStringLiteral("Camera B")};
    QCOMPARE(names(), expected);
    QTRY_COMPARE(m_backend->currentId(), NameA);
    QCOMPARE(stateName(), QStringLiteral("ready"));

    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QCOMPARE(stateName(), QStringLiteral("working"));
    QVERIFY(shows(m_backend->latestFrame(), Red));
    QCOMPARE(m_backend->latestFrame().size(), QSize(229, 172));

    m_backend->setCurrent(NameB);
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestFrame(), Green));
    const int before = m_watcher.pictures;
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.pictures > before + 20, LongMs);
    m_backend->stop();
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestFrame().isNull());
}

// The server gives the node another name when it comes back; its device is in the same place.
void tst_PipeWireCameras::knowsACameraByItsPlace()
{
    const QString place = QStringLiteral("pci-0000:00:14.0-usb-0:5:1.0");
    const QStringList plugged{QStringLiteral("--bus-path"), place};
    Camera camera = plug(NameA, QStringLiteral("Camera"), plugged);
    const Camera metadata =
        plug(QStringLiteral("metadata"), QStringLiteral("Metadata"),
             plugged + QStringList{QStringLiteral("--capabilities"), QStringLiteral(":")});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList(place), LongMs);
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);

    camera->kill();
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
    camera = plug(NameB, QStringLiteral("Camera"), plugged);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(m_backend->currentId(), place);
    QCOMPARE(ids(), QStringList(place));
}

void tst_PipeWireCameras::numbersEqualNames()
{
    const Camera a = plug(NameA, QStringLiteral("Camera"));
    const Camera b = plug(NameB, QStringLiteral("Camera"));
    makeBackend();
    const QStringList expected{QStringLiteral("Camera"), QStringLiteral("Camera (2)")};
    QTRY_COMPARE_WITH_TIMEOUT(names(), expected, LongMs);
}

void tst_PipeWireCameras::mergesBursts()
{
    constexpr int Count = 4;
    std::vector<Camera> cameras;
    for (int i = 0; i < Count; ++i) {
        cameras.push_back(plug(QStringLiteral("cam_%1").arg(i), QStringLiteral("Camera")));
    }
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), Count, LongMs);
    QTRY_VERIFY(m_watcher.log.endsWith(QStringLiteral("current cam_0")));
    m_watcher.log.clear();
    m_server->freeze(); // so that it finds them gone all at once, however long their end takes
    for (const Camera& camera : cameras) {
        camera->sendSignal(SIGKILL);
    }
    for (const Camera& camera : cameras) {
        QTRY_COMPARE(camera->state(), QProcess::NotRunning);
    }
    m_server->thaw();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 0, LongMs);
    const QStringList expected{QStringLiteral("list"), QStringLiteral("current cam_0")};
    QTRY_COMPARE(m_watcher.log, expected);
}

void tst_PipeWireCameras::hidesWhatIsNoCamera()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const Camera gray = plug(QStringLiteral("gray"), QStringLiteral("Sensor"),
                             {QStringLiteral("--layout"), QStringLiteral("GRAY8")});
    const Camera infrared =
        plug(QStringLiteral("infrared"), QStringLiteral("Integrated IR Camera"));
    const Camera screen = plug(QStringLiteral("screen"), QStringLiteral("Desktop"),
                               {QStringLiteral("--role"), QStringLiteral("Screen")});
    const Camera last = plug(QStringLiteral("last"), QStringLiteral("Last"));
    makeBackend();
    const QStringList expected{NameA, QStringLiteral("last")};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), expected, LongMs);
}

void tst_PipeWireCameras::readsEveryLayout_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("padding");
    QTest::addColumn<QSize>("expected");
    const QSize usual(640, 360);
    const QSize fitted(306, 172);
    for (const char* layout :
         {"YUY2", "UYVY", "NV12", "I420", "RGB", "BGR", "RGBx", "BGRx", "xRGB", "xBGR", "MJPG"}) {
        QTest::newRow(layout) << QString::fromLatin1(layout) << usual << 0 << fitted;
    }
    QTest::newRow("padded rows") << QStringLiteral("YUY2") << usual << 64 << fitted;
    QTest::newRow("padded planes") << QStringLiteral("NV12") << usual << 64 << fitted;
    for (const char* layout : {"YUY2", "NV12", "I420", "RGB", "MJPG"}) {
        QTest::newRow(qPrintable(QStringLiteral("odd ") + QLatin1String(layout)))
            << QString::fromLatin1(layout) << QSize(333, 187) << 0 << fitted;
    }
    QTest::newRow("smaller than the preview")
        << QStringLiteral("YUY2") << QSize(161, 99) << 0 << QSize(161, 99);
}

void tst_PipeWireCameras::readsEveryLayout()
{
    QFETCH(QString, layout);
    QFETCH(QSize, size);
    QFETCH(int, padding);
    QFETCH(QSize, expected);
    const Camera camera = plug(NameA, QStringLiteral("Camera"),
                               {QStringLiteral("--layout"), layout, QStringLiteral("--width"),
                                QString::number(size.width()), QStringLiteral("--height"),
                                QString::number(size.height()), QStringLiteral("--padding"),
                                QString::number(padding)});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    const QImage picture = m_backend->latestFrame();
    QCOMPARE(picture.size(), expected);
    QCOMPARE(picture.format(), QImage::Format_RGB32);
    QVERIFY(shows(picture, Red));
    // The band at the camera's left is at the right of a self-view.
    QVERIFY(isNear(picture.pixel(picture.width() - 6, picture.height() / 2), Blue));
    QVERIFY(!isNear(picture.pixel(6, picture.height() / 2), Blue));
}

void tst_PipeWireCameras::turnsTurnedSensors_data()
{
    QTest::addColumn<int>("transform");
    QTest::addColumn<QSize>("expected");
    QTest::addColumn<QPointF>("band"); // where the camera's left is then, in shares of the picture
    const QSize wide(306, 172);
    const QSize tall(97, 172);
    QTest::newRow("upright") << 0 << wide << QPointF(0.98, 0.5);
    QTest::newRow("90") << 1 << tall << QPointF(0.5, 0.02);
    QTest::newRow("180") << 2 << wide << QPointF(0.02, 0.5);
    QTest::newRow("270") << 3 << tall << QPointF(0.5, 0.98);
    QTest::newRow("flipped") << 4 << wide << QPointF(0.02, 0.5);
    QTest::newRow("flipped 90") << 5 << tall << QPointF(0.5, 0.02);
    QTest::newRow("flipped 180") << 6 << wide << QPointF(0.98, 0.5);
    QTest::newRow("flipped 270") << 7 << tall << QPointF(0.5, 0.98);
}

void tst_PipeWireCameras::turnsTurnedSensors()
{
    QFETCH(int, transform);
    QFETCH(QSize, expected);
    QFETCH(QPointF, band);
    const Camera camera = plug(NameA, QStringLiteral("Camera"),
                               {QStringLiteral("--height"), QStringLiteral("360"),
                                QStringLiteral("--transform"), QString::number(transform)});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    const QImage picture = m_backend->latestFrame();
    QCOMPARE(picture.size(), expected);
    QVERIFY(isNear(picture.pixel(int(band.x() * picture.width()), int(band.y() * picture.height())),
                   Blue));
}

void tst_PipeWireCameras::readsDriverMemory()
{
    const Camera camera =
        plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--driver-memory")});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestFrame(), Red));
}

void tst_PipeWireCameras::followsFormatChanges()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), QSize(229, 172), LongMs);
    camera->command("size 320x180");
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), PreviewSize, LongMs);
    camera->command("size 1281x721");
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), QSize(306, 172), LongMs);
    QTRY_VERIFY(shows(m_backend->latestFrame(), Red));
    QTRY_VERIFY(m_backend->delivers());
    // and the preview's
    m_backend->setOutputSize(2 * PreviewSize);
    QTRY_COMPARE(m_backend->latestFrame().size(), QSize(611, 344));
}

void tst_PipeWireCameras::picksUpReturningCamera()
{
    Camera camera = plug(NameA, QStringLiteral("Camera"));
    const Camera other = plug(NameB, QStringLiteral("Other"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LongMs);
    m_backend->setCurrent(NameA);
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_watcher.log.clear();

    watch();
    camera->sendSignal(SIGKILL);
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
    QVERIFY(isResponsive());
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestFrame().isNull());
    QCOMPARE(m_backend->currentId(), NameA);
    QCOMPARE(m_backend->currentName(), QStringLiteral("Camera"));
    QCOMPARE(ids(), QStringList(NameB));
    QTRY_VERIFY(m_watcher.log.endsWith(QStringLiteral("current cam_a")));

    camera = plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--color"), GreenText});
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestFrame(), Green));
    QTRY_VERIFY(m_watcher.log.contains(QStringLiteral("works")));
}

void tst_PipeWireCameras::noticesSilence()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--stalled")});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("silent"), LongMs);
    QVERIFY(isResponsive());
    QVERIFY(isUsable(m_backend->state()));
    QVERIFY(!m_backend->delivers());

    camera->command("resume");
    QTRY_COMPARE(stateName(), QStringLiteral("working"));
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("works"));
    camera->command("stall");
    QElapsedTimer sinceStall;
    sinceStall.start();
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("fails"));
    QVERIFY(sinceStall.elapsed() >= 400);
    QCOMPARE(stateName(), QStringLiteral("silent"));
    QVERIFY(!m_backend->latestFrame().isNull()); // the last one stays
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("silent"));
}

void tst_PipeWireCameras::waitsForMissingCamera()
{
    const Camera other = plug(NameB, QStringLiteral("Other"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->setCurrent(NameA);
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("current cam_a"));
    m_backend->start();
    QCOMPARE(stateName(), QStringLiteral("absent"));
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameras::switchesOff()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_backend->setCurrent(QString());
    QCOMPARE(stateName(), QStringLiteral("off"));
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("current "));
    QTRY_VERIFY(camera->output().endsWith("paused\n"));
    m_backend->setCurrent(NameA);
    QTRY_COMPARE(stateName(), QStringLiteral("working"));
}

// The camera's program stands still, as one does that is stuck in its driver.
void tst_PipeWireCameras::abandonsHungStart()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    camera->sendSignal(SIGSTOP);
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    QVERIFY(isUsable(m_backend->state()));

    QElapsedTimer duration;
    duration.start();
    m_backend->stop();
    m_backend.reset();
    QVERIFY(duration.elapsed() < 100);
    QVERIFY(isResponsive());
    QTRY_COMPARE(cameraThreads(), 0);
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("hung"));

    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    camera->sendSignal(SIGCONT);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameras::tellsFailures_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("expected");
    QTest::newRow("busy") << EBUSY << QStringLiteral("busy");
    QTest::newRow("denied") << EACCES << QStringLiteral("denied");
    QTest::newRow("not permitted") << EPERM << QStringLiteral("denied");
    QTest::newRow("other") << EIO << QStringLiteral("failed");
}

void tst_PipeWireCameras::tellsFailures()
{
    QFETCH(int, error);
    QFETCH(QString, expected);
    Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    camera->command("error " + QByteArray::number(error));
    QTRY_COMPARE(stateName(), QStringLiteral("silent")); // nobody has said more yet
    m_backend->stop();
    m_backend->start();
    QTRY_COMPARE(stateName(), expected);
    QTRY_VERIFY(m_watcher.log.contains(QStringLiteral("fails")));
    camera.reset();
    camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameras::tellsRefusal_data()
{
    QTest::addColumn<QString>("argument");
    QTest::newRow("no format in common") << QStringLiteral("--unreadable");
    QTest::newRow("no memory in common") << QStringLiteral("--refusing");
}

// What refuses while a format is agreed on is told at once, long before it would pass for hung.
void tst_PipeWireCameras::tellsRefusal()
{
    QFETCH(QString, argument);
    const Camera camera = plug(NameA, QStringLiteral("Camera"), {argument});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    watch();
    m_backend->start();
    QElapsedTimer sinceStart;
    sinceStart.start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("failed"), LongMs);
    QVERIFY(isResponsive());
    QVERIFY(sinceStart.elapsed() < 2000);
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("failed"));
}

void tst_PipeWireCameras::outlivesTheServer()
{
    Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_server->kill();
    QTRY_COMPARE(ids(), QStringList());
    watch();
    QTest::qWait(ReconnectsMs);
    QCOMPARE(stateName(), QStringLiteral("absent"));
    QCOMPARE(m_backend->currentId(), NameA);
    QVERIFY(isResponsive());

    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameras::outlivesItsConnections_data()
{
    QTest::addColumn<bool>("isOfStream");
    QTest::newRow("that of the stream") << true;
    QTest::newRow("that of the list") << false;
}

// The server ends one of them and keeps the other.
void tst_PipeWireCameras::outlivesItsConnections()
{
    QFETCH(bool, isOfStream);
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const QStringList before = openFiles();
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    const int used = openFiles().size();
    for (int round = 0; round < 2; ++round) {
        m_watcher.log.clear();
        const int streams = camera->output().count("streaming");
        QVERIFY(m_server->cutConnections(isOfStream));
        watch();
        QTRY_VERIFY_WITH_TIMEOUT(camera->output().count("streaming") > streams, LongMs);
        // A slow listener may hear of both at once, and of the list in between.
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
        QTRY_VERIFY(m_watcher.log.lastIndexOf(QStringLiteral("works")) >=
                    m_watcher.log.lastIndexOf(QStringLiteral("fails")));
        QVERIFY(isResponsive());
        QCOMPARE(m_watcher.log.contains(QStringLiteral("list")), !isOfStream);
        QCOMPARE(ids(), QStringList(NameA));
        QCOMPARE(stateName(), QStringLiteral("working"));
    }
    QTRY_COMPARE(openFiles().size(), used);
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QTRY_COMPARE(openFiles(), before);
}

// Without the session manager nobody links the stream to its camera.
void tst_PipeWireCameras::outlivesTheManager()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_server->freezeManager();
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    QVERIFY(isResponsive());
    m_server->thawManager();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameras::waitsForTheServer()
{
    m_server->stop();
    makeBackend();
    m_backend->start();
    QCOMPARE(stateName(), QStringLiteral("absent"));
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

// The dialog's test freezes it at every other step.
void tst_PipeWireCameras::leavesAFrozenServer()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_server->freeze();
    watch();
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QVERIFY(isResponsive());
}

void tst_PipeWireCameras::remembersTheChoice()
{
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    const Camera b = plug(NameB, QStringLiteral("Camera B"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LongMs);
    QCOMPARE(m_backend->currentId(), NameA);
    m_backend->setCurrent(NameB);
    QVERIFY(FileWriter::waitForWritten(LongMs));
    m_backend.reset();
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->currentId(), NameB, LongMs);
}

void tst_PipeWireCameras::ignoresAbsentRememberedChoice()
{
    {
        SettingsStore store(m_settings->filePath(QStringLiteral("devices.ini")));
        store.setValue(QStringLiteral("camera/current"), NameB);
    }
    QVERIFY(FileWriter::waitForWritten(LongMs));
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->currentId(), NameA, LongMs);
}

void tst_PipeWireCameras::measures()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"),
                               {QStringLiteral("--color"), QStringLiteral("808080")});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.pictures >= 30, LongMs);
    m_backend->stop();
    QJsonObject measured = figures();
    QCOMPARE(measured.value(QLatin1String("state")).toString(), QStringLiteral("working"));
    QCOMPARE(measured.value(QLatin1String("device")).toString(), QStringLiteral("Camera"));
    QCOMPARE(measured.value(QLatin1String("width")).toInt(), 640);
    QCOMPARE(measured.value(QLatin1String("height")).toInt(), 480);
    const double rate = measured.value(QLatin1String("rate")).toDouble();
    QVERIFY2(rate > 25.0 && rate < 35.0, qPrintable(QString::number(rate)));
    QVERIFY(measured.value(QLatin1String("firstPictureMs")).toInt() < 1000);
    QCOMPARE(measured.value(QLatin1String("blackShare")).toDouble(), 0.0);
    QCOMPARE(measured.value(QLatin1String("frozenShare")).toDouble(), 0.0);
    QVERIFY(qAbs(measured.value(QLatin1String("brightness")).toDouble() - 0.54) < 0.08);

    camera->command("frozen");
    camera->command("black");
    m_watcher.pictures = 0;
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.pictures >= 10, LongMs);
    m_backend->stop();
    measured = figures();
    QCOMPARE(measured.value(QLatin1String("blackShare")).toDouble(), 1.0);
    QCOMPARE(measured.value(QLatin1String("frozenShare")).toDouble(), 1.0);
    QCOMPARE(measured.value(QLatin1String("brightness")).toDouble(), 0.0);

    m_watcher.pictures = 0;
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.pictures >= 1, LongMs);
    m_backend->setCurrent({}); // the entry for no device has no figures
    m_backend->stop();
    QCOMPARE(figures(), (QJsonObject{{QStringLiteral("state"), QStringLiteral("off")},
                                     {QStringLiteral("device"), QString()}}));
}

void tst_PipeWireCameras::leavesNothingBehind()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const QStringList before = openFiles();
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(openFiles().size() > before.size());
    QCOMPARE(camera->output().count("streaming"), 1);
    m_backend->stop();
    QTRY_VERIFY(camera->output().endsWith("paused\n")); // the light is out
    m_backend.reset();
    QTRY_COMPARE(openFiles(), before);
    QTRY_COMPARE(cameraThreads(), 0);
}

void tst_PipeWireCameras::keepsNoDescriptorsOfHaste_data()
{
    QTest::addColumn<bool>("isBackendKept");
    QTest::newRow("one backend") << true;
    QTest::newRow("a backend each") << false;
}

// Closed in all phases of its start, so that the server's answers come too late.
void tst_PipeWireCameras::keepsNoDescriptorsOfHaste()
{
    QFETCH(bool, isBackendKept);
    constexpr int Rounds = 5;
    constexpr int MaxDelayMs = 10;
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const QStringList before = openFiles();
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    for (int i = 0; i < Rounds * MaxDelayMs; ++i) {
        m_backend->start();
        QTest::qWait(i % MaxDelayMs);
        m_backend->stop();
        if (!isBackendKept) {
            m_backend.reset();
            m_backend = m_system->createCamera(m_watcher);
            QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
        }
    }
    m_backend->start(); // what came before is over once it shows
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QTRY_COMPARE(openFiles(), before);
}

tst_PipeWireCameras::Camera tst_PipeWireCameras::plug(const QString& name,
                                                      const QString& description,
                                                      const QStringList& arguments) const
{
    auto result = std::make_unique<CameraProcess>(name, description, arguments);
    if (!QTest::qWaitFor([&] { return result->output().contains("paused"); }, LongMs)) {
        qWarning() << "The virtual camera isn't ready:" << result->output();
    }
    return result;
}

void tst_PipeWireCameras::makeBackend()
{
    m_system =
        std::make_unique<DeviceCameraSystem>(m_settings->path(), m_report, pipeWireFeedMaker());
    m_backend = m_system->createCamera(m_watcher);
    m_backend->setOutputSize(PreviewSize);
}

bool tst_PipeWireCameras::isResponsive()
{
    const qint64 gap = m_gaps->longestMs();
    m_gaps.reset();
    qInfo("longest gap %lld ms", gap);
    return gap < MaxGapMs;
}

QStringList tst_PipeWireCameras::ids() const
{
    QStringList result;
    for (const DeviceInfo& device : m_backend->devices()) {
        result << device.id;
    }
    return result;
}

QStringList tst_PipeWireCameras::names() const
{
    QStringList result;
    for (const DeviceInfo& device : m_backend->devices()) {
        result << device.name;
    }
    return result;
}

QTEST_GUILESS_MAIN(tst_PipeWireCameras)
#include "tst_PipeWireCameras.moc"
