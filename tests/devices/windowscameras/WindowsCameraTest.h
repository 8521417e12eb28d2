// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/DeviceCameraSystem.h"
#include "platform/devices/mediafoundation/MediaFoundation.h"
#include "tests/devices/windowscameras/StagedCameras.h"
#include "tests/support/CameraWatcher.h"
#include "tests/support/DeviceTexts.h"
#include "tests/support/MemoryReport.h"

#include <QTemporaryDir>
#include <memory>

namespace TestSupport {

// A test with the cameras of Windows. The test stages the list and the sources; the rest of Media
// Foundation is Wine's, and everything above is real.
class WindowsCameraTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static constexpr int LongMs = 8000;
    static constexpr QSize PreviewSize{306, 172};
    static const QString LinkA;
    static const QString LinkB;
    static const QString IdA;
    static const QString IdB;

    // The rows of a test class that runs with both systems, in its initTestCase_data().
    static void addSystems();
    void stageOnSystem(); // for its init(): that of the row

    static bool isNear(QRgb actual, QRgb expected);

    void makeSystem(const Platform::MediaFoundationLoader& load);
    void makeBackend();
    void start(); // and waits for frames
    QStringList ids() const { return idsOf(m_backend->devices()); }
    QStringList names() const { return namesOf(m_backend->devices()); }
    QString stateName() const { return toString(m_backend->state()); }
    QString causeName() const { return toString(m_backend->cause().kind); }
    QJsonObject figures() const { return m_report.measurements.value(QStringLiteral("camera")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    MemoryReport m_report;
    CameraWatcher m_watcher;
    std::unique_ptr<StagedCameras> m_cameras;
    std::unique_ptr<Platform::DeviceCameraSystem> m_system;
    std::unique_ptr<Platform::CameraBackend> m_backend;
};

} // namespace TestSupport
