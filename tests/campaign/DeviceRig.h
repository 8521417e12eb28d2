// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"
#include "tests/support/SoundServer.h"

#include <QString>
#include <memory>

namespace TestSupport {
class CameraProcess;
}

// A PipeWire with sound and cameras of its own, for checks on devices.
class DeviceRig
{
public:
    DeviceRig();
    ~DeviceRig();
    DeviceRig(const DeviceRig&) = delete;
    DeviceRig& operator=(const DeviceRig&) = delete;

    bool start(); // with one camera, which sends frames
    void kill();
    bool restart(); // after kill()
    // That the pages show, by name.
    QStringList devices(Step kind) const;
    int streams(); // that the server has now
    TestSupport::SoundServer& server() { return m_server; }
    TestSupport::CameraProcess& camera() { return *m_camera; }
    bool startCamera(const QString& description = CameraName); // in place of the present one
    void endCamera();                                          // by SIGKILL

    static const QString CameraName;

private:
    TestSupport::SoundServer m_server;
    std::unique_ptr<TestSupport::CameraProcess> m_camera;
};
