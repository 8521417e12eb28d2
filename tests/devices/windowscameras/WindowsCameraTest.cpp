// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/WindowsCameraTest.h"

#include "platform/backend/FileWriter.h"
#include "platform/devices/windows/DriverThread.h"
#include "platform/devices/windowscameras/WindowsCameraCapture.h"

#include <QtTest>

using namespace Platform;

namespace TestSupport {

const QString WindowsCameraTest::LinkA =
    QStringLiteral("\\\\?\\USB#VID_046D&PID_0825&MI_00#7&1a&0&0000#{e5323777-f976-4f5b-9b55-"
                   "b94699c46e44}\\global");
const QString WindowsCameraTest::LinkB =
    QStringLiteral("\\\\?\\usb#vid_046d&pid_0825&mi_00#7&2b&0&0000#{e5323777-f976-4f5b-9b55-"
                   "b94699c46e44}\\global");
const QString WindowsCameraTest::IdA =
    QStringLiteral("\\\\?\\usb#vid_046d&pid_0825&mi_00#7&1a&0&0000");
const QString WindowsCameraTest::IdB =
    QStringLiteral("\\\\?\\usb#vid_046d&pid_0825&mi_00#7&2b&0&0000");

void WindowsCameraTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_report = MemoryReport();
    m_watcher = CameraWatcher();
    m_cameras = std::make_unique<StagedCameras>();
}

void WindowsCameraTest::cleanup()
{
    m_backend.reset();
    m_system.reset();
    const int sources = m_cameras ? m_cameras->opened(LinkA) + m_cameras->opened(LinkB) : 0;
    if (sources == 0 || QTest::currentTestFailed()) {
        m_cameras.reset(); // what hangs goes on
    }
    QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, LongMs);
    QTRY_VERIFY(!m_cameras || m_cameras->objects() == 0); // Wine lets go of some later
    m_cameras.reset();
    QVERIFY(FileWriter::waitForWritten(LongMs));
}

void WindowsCameraTest::addSystems()
{
    QTest::addColumn<StagedSystem>("system");
    QTest::newRow("Media Foundation") << StagedSystem::MediaFoundation;
    QTest::newRow("DirectShow") << StagedSystem::DirectShow;
}

void WindowsCameraTest::stageOnSystem()
{
    QFETCH_GLOBAL(StagedSystem, system);
    m_cameras->setSystem(system);
}

bool WindowsCameraTest::isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 24;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

void WindowsCameraTest::makeSystem(const MediaFoundationLoader& load)
{
    m_system = std::make_unique<DeviceCameraSystem>(m_folder->path(), m_report,
                                                    windowsCameraFeedMaker(load));
    m_backend = m_system->createCamera(m_watcher);
    m_backend->setOutputSize(PreviewSize);
}

void WindowsCameraTest::makeBackend()
{
    makeSystem([] { return MediaFoundation::load(); });
}

void WindowsCameraTest::start()
{
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

} // namespace TestSupport
