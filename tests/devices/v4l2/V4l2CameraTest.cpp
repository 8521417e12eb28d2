// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/v4l2/V4l2CameraTest.h"

#include "platform/backend/FileWriter.h"
#include "platform/devices/pipewire/PipeWireFeed.h"
#include "platform/devices/v4l2/V4l2Parts.h"
#include "tests/devices/ThreadCount.h"
#include "tests/devices/v4l2/TestSources.h"

#include <QtTest>
#include <gst/gst.h>

using namespace Platform;

namespace TestSupport {

const QString V4l2CameraTest::PlaceA = QStringLiteral("pci-0000:00:14.0-usb-0:5:1.0");
const QString V4l2CameraTest::PlaceB = QStringLiteral("pci-0000:00:14.0-usb-0:6:1.0");

void V4l2CameraTest::initTestCase()
{
    gst_init(nullptr, nullptr);
}

void V4l2CameraTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", m_folder->path().toUtf8()); // where no server is
    qputenv("PIPEWIRE_RUNTIME_DIR", m_folder->path().toUtf8());
    m_report = MemoryReport();
    m_watcher = CameraWatcher();
    m_sockets = std::make_unique<VirtualSockets>();
    m_makeSource = [](const QString&) { return makeElement(Bars); };
}

void V4l2CameraTest::cleanup()
{
    m_backend.reset();
    m_system.reset();
    QTRY_COMPARE(threadCount("v4l2 cameras"), 0);
    QTRY_COMPARE(threadCount("v4l2 stream"), 0);
    QTRY_COMPARE(sourcesAlive(), 0);
    QVERIFY(FileWriter::waitForWritten(LongMs));
}

VideoDevices::Properties V4l2CameraTest::device(const QString& path, const QString& place,
                                                const QString& name, const QString& capabilities)
{
    return {{QStringLiteral("DEVNAME"), path},
            {QStringLiteral("ID_PATH"), place},
            {QStringLiteral("ID_V4L_PRODUCT"), name},
            {QStringLiteral("ID_V4L_CAPABILITIES"), capabilities}};
}

QStringList V4l2CameraTest::openFiles()
{
    QStringList result;
    const QDir folder(QStringLiteral("/proc/self/fd"));
    const QStringList names =
        folder.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
    for (const QString& name : names) {
        result << name + QStringLiteral(" ") + QFile::symLinkTarget(folder.filePath(name));
    }
    return result;
}

bool V4l2CameraTest::isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 24;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

void V4l2CameraTest::makeBackend()
{
    V4l2Parts parts;
    parts.makeDevices = [this] { return m_sockets->makeDevices(); };
    parts.makeSource = m_makeSource;
    m_system = std::make_unique<DeviceCameraSystem>(m_folder->path(), m_report, pipeWireFeedMaker(),
                                                    v4l2FeedMaker(parts));
    m_backend = m_system->createCamera(m_watcher);
    m_backend->setOutputSize(PreviewSize);
}

} // namespace TestSupport
