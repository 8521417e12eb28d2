// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/DeviceCameraSystem.h"
#include "platform/devices/v4l2/VideoDevices.h"
#include "tests/devices/v4l2/VirtualSockets.h"
#include "tests/support/CameraWatcher.h"
#include "tests/support/DeviceTexts.h"
#include "tests/support/MemoryReport.h"

#include <QTemporaryDir>
#include <functional>
#include <gst/gstelement.h>
#include <memory>

namespace TestSupport {

// A test with cameras on a machine without a PipeWire server. GStreamer's test source takes the
// place of the kernel's devices; everything above them is real.
class V4l2CameraTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    static constexpr int LongMs = 8000;
    static constexpr QSize PreviewSize{306, 172};
    static const QString PlaceA;
    static const QString PlaceB;

    static Platform::VideoDevices::Properties
    device(const QString& path, const QString& place, const QString& name,
           const QString& capabilities = QStringLiteral(":capture:"));
    static QStringList openFiles();
    static bool isNear(QRgb actual, QRgb expected);

    void makeBackend();
    QStringList ids() const { return idsOf(m_backend->devices()); }
    QStringList names() const { return namesOf(m_backend->devices()); }
    QString stateName() const { return toString(m_backend->state()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    MemoryReport m_report;
    CameraWatcher m_watcher;
    std::unique_ptr<VirtualSockets> m_sockets;
    std::function<GstElement*(const QString&)> m_makeSource;
    std::unique_ptr<Platform::DeviceCameraSystem> m_system;
    std::unique_ptr<Platform::CameraBackend> m_backend;
};

} // namespace TestSupport
