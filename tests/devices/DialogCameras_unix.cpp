// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DialogCameras.h"

#include "tests/support/CameraProcess.h"
#include "tests/support/PipeWireServer.h"

#include <QTest>
#include <csignal>
#include <map>

namespace TestSupport {

namespace {

constexpr int PlugTimeoutMs = 15000;

} // namespace

struct DialogCameras::Parts
{
    PipeWireServer server;
    std::map<QString, std::unique_ptr<CameraProcess>> cameras; // end before the server
};

DialogCameras::DialogCameras() : m_parts(std::make_unique<Parts>())
{
}

DialogCameras::~DialogCameras() = default;

bool DialogCameras::start()
{
    return m_parts->server.start();
}

QString DialogCameras::problem() const
{
    return m_parts->server.problem();
}

void DialogCameras::plug(const QString& name, const QString& description, QRgb color, Start start)
{
    QStringList options{QStringLiteral("--color"), QColor(color).name().mid(1)};
    if (start == Start::Stalled) {
        options << QStringLiteral("--stalled");
    }
    auto& camera = m_parts->cameras[name];
    camera = std::make_unique<CameraProcess>(name, description, options);
    if (!QTest::qWaitFor([&] { return camera->output().contains("paused"); }, PlugTimeoutMs)) {
        qWarning() << "The virtual camera isn't ready:" << camera->output();
    }
}

void DialogCameras::resume(const QString& name)
{
    m_parts->cameras[name]->command("resume");
}

void DialogCameras::unplug(const QString& name)
{
    m_parts->cameras[name]->kill();
}

void DialogCameras::hang(const QString& name)
{
    m_parts->cameras[name]->sendSignal(SIGSTOP);
}

bool DialogCameras::wasOpened(const QString& name) const
{
    return m_parts->cameras[name]->output().contains("streaming");
}

void DialogCameras::freeze()
{
    m_parts->server.freeze();
}

void DialogCameras::thaw()
{
    m_parts->server.thaw();
}

void DialogCameras::kill()
{
    m_parts->server.kill();
}

} // namespace TestSupport
