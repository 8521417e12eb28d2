// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/SettingsStore.h"
#include "platform/devices/pipewire/PipeWireCameraSystem.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/PipeWireServer.h"

#include <QDir>
#include <QtTest>
#include <csignal>
#include <optional>

using namespace Platform;
using namespace TestSupport;

namespace {

const QSize PreviewSize(306, 172);
constexpr int LongMs = 8000;
constexpr int FreezeMs = 3000;
constexpr qint64 MaxGapMs = 50;
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
    void pictureArrived() override { ++pictures; }

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

// The pattern's own colour, seen at most places of the picture.
bool shows(const QImage& picture, QRgb colour)
{
    int hits = 0;
    constexpr int Places = 9;
    for (int i = 0; i < Places; ++i) {
        const int x = picture.width() * (2 * i + 1) / (2 * Places);
        hits += isNear(picture.pixel(x, picture.height() / 2), colour) ? 1 : 0;
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

} // namespace

class tst_PipeWireCameras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsAndShowsTwoCameras();

private:
    using Camera = std::unique_ptr<CameraProcess>;

    Camera plug(const QString& name, const QString& description,
                const QStringList& arguments = {}) const;
    void makeBackend();
    QStringList ids() const;
    QStringList names() const;
    QString stateName() const { return toString(m_backend->state()); }

    std::unique_ptr<PipeWireServer> m_server;
    std::unique_ptr<QTemporaryDir> m_settings;
    MemoryReport m_report;
    Watcher m_watcher;
    std::unique_ptr<PipeWireCameraSystem> m_system;
    std::unique_ptr<CameraBackend> m_backend;
};

void tst_PipeWireCameras::init()
{
    m_server = std::make_unique<PipeWireServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    m_settings = std::make_unique<QTemporaryDir>();
    m_report = MemoryReport();
    m_watcher = Watcher();
}

void tst_PipeWireCameras::cleanup()
{
    m_backend.reset();
    m_system.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    m_server.reset();
    QVERIFY(FileWriter::waitForWritten(LongMs));
}

void tst_PipeWireCameras::listsAndShowsTwoCameras()
{
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    const Camera b = plug(NameB, QStringLiteral("Camera B"),
                          {QStringLiteral("--color"), QStringLiteral("28a028")});
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
    QVERIFY(shows(m_backend->latestPicture(), Red));
    QCOMPARE(m_backend->latestPicture().size(), QSize(229, 172));

    m_backend->setCurrent(NameB);
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestPicture().isNull());
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestPicture(), Green));
    const int before = m_watcher.pictures;
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.pictures > before + 20, LongMs);
    m_backend->stop();
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestPicture().isNull());
}

tst_PipeWireCameras::Camera tst_PipeWireCameras::plug(const QString& name,
                                                      const QString& description,
                                                      const QStringList& arguments) const
{
    return std::make_unique<CameraProcess>(name, description, arguments);
}

void tst_PipeWireCameras::makeBackend()
{
    m_system = std::make_unique<PipeWireCameraSystem>(m_settings->path(), m_report);
    m_backend = m_system->createCamera(m_watcher);
    m_backend->setOutputSize(PreviewSize);
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
