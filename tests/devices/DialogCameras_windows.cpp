// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DialogCameras.h"

#include "tests/devices/windowscameras/StagedCameras.h"

#include <QSet>

namespace TestSupport {

struct DialogCameras::Parts
{
    void setHanging(const QString& name, bool hangs)
    {
        cameras.hangActivation(name, hangs);
        cameras.hangStart(name, hangs);
        cameras.hangShutdown(name, hangs);
        cameras.stall(name, hangs);
    }
    void setHanging(bool hangs)
    {
        cameras.hangList(hangs);
        for (const QString& name : plugged) {
            setHanging(name, hangs);
        }
    }

    StagedCameras cameras;
    QSet<QString> plugged;
};

// ENVCHECK_STAGED_SYSTEM chooses DirectShow.
DialogCameras::DialogCameras() : m_parts(std::make_unique<Parts>())
{
    if (qEnvironmentVariable("ENVCHECK_STAGED_SYSTEM") == QLatin1String("DirectShow")) {
        m_parts->cameras.setSystem(StagedSystem::DirectShow);
    }
}

DialogCameras::~DialogCameras() = default;

bool DialogCameras::start()
{
    return true;
}

QString DialogCameras::problem() const
{
    return {};
}

void DialogCameras::plug(const QString& name, const QString& description, QRgb color, Start start)
{
    StagedMode mode;
    mode.color = color;
    m_parts->cameras.plug(name, description, {mode});
    m_parts->cameras.stall(name, start == Start::Stalled);
    m_parts->plugged << name;
    StagedCameras::castDeviceChange();
}

void DialogCameras::resume(const QString& name)
{
    m_parts->cameras.stall(name, false);
}

void DialogCameras::unplug(const QString& name)
{
    m_parts->cameras.unplug(name);
    m_parts->plugged.remove(name);
    StagedCameras::castDeviceChange();
}

void DialogCameras::hang(const QString& name)
{
    m_parts->setHanging(name, true);
}

bool DialogCameras::wasOpened(const QString& name) const
{
    return m_parts->cameras.activations(name) > 0;
}

void DialogCameras::freeze()
{
    m_parts->setHanging(true);
}

void DialogCameras::thaw()
{
    m_parts->setHanging(false);
}

} // namespace TestSupport
