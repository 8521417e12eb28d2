// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/DeviceCameraSystem.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/CameraWatcher.h"
#include "tests/support/DeviceTexts.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/PipeWireServer.h"

#include <QTemporaryDir>
#include <memory>
#include <optional>

namespace TestSupport {

// A test with virtual cameras on a PipeWire server of its own.
class PipeWireCameraTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

protected:
    using Camera = std::unique_ptr<CameraProcess>;

    static constexpr int LongMs = 8000;
    static constexpr QSize PreviewSize{306, 172};
    static constexpr QRgb Red = qRgb(0xc8, 0x28, 0x28);
    static constexpr QRgb Green = qRgb(0x28, 0xa0, 0x28);
    static constexpr QRgb Blue = qRgb(0, 0, 255);
    static const QString NameA;
    static const QString NameB;
    static const QString GreenText;

    virtual PipeWireServer::Habits serverHabits() const { return {}; }

    static bool isNear(QRgb actual, QRgb expected);
    static bool shows(const QImage& frame, QRgb color); // at most places
    static int cameraThreads();                         // of this process
    static QStringList openFiles();

    // What a camera reports, and the state that this becomes: "error" and "expected".
    static void addErrors();
    // Makes the camera fail while it is open, and opens it again.
    void failAndReopen(CameraProcess& camera, int error);
    static Camera plug(const QString& name, const QString& description,
                       const QStringList& arguments = {});
    void makeBackend();
    void watch() { m_gaps.emplace(); } // the GUI thread, from now on
    bool isResponsive();               // and was since; ends the watch
    QStringList ids() const { return idsOf(m_backend->devices()); }
    QStringList names() const { return namesOf(m_backend->devices()); }
    QJsonObject figures() const { return m_report.measurements.value(QStringLiteral("camera")); }
    QString stateName() const { return toString(m_backend->state()); }

    std::unique_ptr<PipeWireServer> m_server;
    std::unique_ptr<QTemporaryDir> m_settings;
    MemoryReport m_report;
    CameraWatcher m_watcher;
    std::optional<GapMeter> m_gaps;
    std::unique_ptr<Platform::DeviceCameraSystem> m_system;
    std::unique_ptr<Platform::CameraBackend> m_backend;
};

} // namespace TestSupport
