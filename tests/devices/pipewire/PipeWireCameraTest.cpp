// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pipewire/PipeWireCameraTest.h"

#include "platform/backend/FileWriter.h"
#include "platform/devices/pipewire/PipeWireFeed.h"
#include "tests/devices/ThreadCount.h"

#include <QtTest>
#include <cerrno>

using namespace Platform;

namespace TestSupport {

const QString PipeWireCameraTest::NameA = QStringLiteral("cam_a");
const QString PipeWireCameraTest::NameB = QStringLiteral("cam_b");
const QString PipeWireCameraTest::GreenText = QStringLiteral("28a028");

void PipeWireCameraTest::initTestCase()
{
    m_server = std::make_unique<PipeWireServer>(serverHabits());
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
}

void PipeWireCameraTest::cleanupTestCase()
{
    m_server.reset();
}

void PipeWireCameraTest::init()
{
    m_settings = std::make_unique<QTemporaryDir>();
    m_report = MemoryReport();
    m_watcher = CameraWatcher();
}

void PipeWireCameraTest::cleanup()
{
    m_gaps.reset();
    m_backend.reset();
    m_system.reset();
    m_server->thaw();
    m_server->thawManager();
    QTRY_COMPARE(cameraThreads(), 0);
    QVERIFY(FileWriter::waitForWritten(LongMs));
}

bool PipeWireCameraTest::isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 12;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

bool PipeWireCameraTest::shows(const QImage& frame, QRgb color)
{
    int hits = 0;
    constexpr int Places = 9;
    for (int i = 0; i < Places; ++i) {
        const int x = frame.width() * (2 * i + 1) / (2 * Places);
        hits += isNear(frame.pixel(x, frame.height() / 2), color) ? 1 : 0;
    }
    return hits > Places / 2;
}

// Ours, and those that PipeWire starts for a stream.
int PipeWireCameraTest::cameraThreads()
{
    return threadCount("cameras") + threadCount("data-loop.0") + threadCount("data-loop");
}

QStringList PipeWireCameraTest::openFiles()
{
    QStringList result = QDir(QStringLiteral("/proc/self/fd"))
                             .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
    result.sort();
    return result;
}

void PipeWireCameraTest::addErrors()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("expected");
    QTest::newRow("busy") << EBUSY << QStringLiteral("busy");
    QTest::newRow("denied") << EACCES << QStringLiteral("denied");
    QTest::newRow("not permitted") << EPERM << QStringLiteral("denied");
    QTest::newRow("other") << EIO << QStringLiteral("failed");
}

void PipeWireCameraTest::failAndReopen(CameraProcess& camera, int error)
{
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    camera.command("error " + QByteArray::number(error));
    // The server gives no reason while the stream runs.
    QTRY_COMPARE(stateName(), QStringLiteral("silent"));
    m_backend->stop();
    m_backend->start();
}

PipeWireCameraTest::Camera PipeWireCameraTest::plug(const QString& name, const QString& description,
                                                    const QStringList& arguments)
{
    auto result = std::make_unique<CameraProcess>(name, description, arguments);
    if (!QTest::qWaitFor([&] { return result->output().contains("paused"); }, LongMs)) {
        qWarning() << "The virtual camera isn't ready:" << result->output();
    }
    return result;
}

void PipeWireCameraTest::makeBackend()
{
    m_system =
        std::make_unique<DeviceCameraSystem>(m_settings->path(), m_report, pipeWireFeedMaker());
    m_backend = m_system->createCamera(m_watcher);
    m_backend->setOutputSize(PreviewSize);
}

bool PipeWireCameraTest::isResponsive()
{
    const qint64 gap = m_gaps->longestMs();
    m_gaps.reset();
    qInfo("longest gap %lld ms", gap);
    return gap < MaxGapMs;
}

} // namespace TestSupport
