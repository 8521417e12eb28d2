// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/LumCamera.h>

#include <CommEngine/NoneDevice.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

class LumCamera::Bridge final : public Platform::CameraBackend::Listener
{
public:
    explicit Bridge(LumCamera& camera)
        : m_camera(camera), m_backend(Platform::EngineRegistry::engine().createCamera(*this))
    {
    }

    Platform::CameraBackend& backend() const { return *m_backend; }

    void cameraListChanged() override { Q_EMIT m_camera.deviceListChanged(); }
    void currentCameraChanged(const QString& id) override
    {
        Q_EMIT m_camera.currentDeivceChanged(NoneDevice::toFacade(id));
    }
    void cameraWorkStateChanged(const QString& id, bool works) override
    {
        Q_EMIT m_camera.workStateChanged(NoneDevice::toFacade(id), works);
    }
    void cameraCauseChanged() override { Q_EMIT m_camera.causeChanged(); }
    void frameArrived() override { Q_EMIT m_camera.frameArrived(); }

private:
    LumCamera& m_camera;
    std::unique_ptr<Platform::CameraBackend> m_backend;
};

LumCamera::LumCamera(Channel /*channel*/, bool /*isShared*/, QObject* parent)
    : LumCameraBase(parent), m_bridge(std::make_unique<Bridge>(*this))
{
}

LumCamera::~LumCamera() = default;

std::map<QString, QString> LumCamera::getDeviceList() const
{
    std::map<QString, QString> result;
    for (const Platform::DeviceInfo& device : m_bridge->backend().devices()) {
        result.emplace(device.id, device.name);
    }
    return result;
}

QString LumCamera::getNoneDeviceText() const
{
    return qtTrId("ID_Engine_NoCamera");
}

LumCamera::operator bool() const
{
    return Platform::isUsable(m_bridge->backend().state());
}

bool LumCamera::workWell() const
{
    return m_bridge->backend().delivers();
}

QString LumCamera::getCurrentDevice() const
{
    return NoneDevice::toFacade(m_bridge->backend().currentId());
}

QString LumCamera::getCurrentDeviceName() const
{
    return m_bridge->backend().currentName();
}

void LumCamera::setCurrentDevice(const QString& id, bool /*isTemporary*/, bool /*isByUser*/)
{
    m_bridge->backend().setCurrent(NoneDevice::toBackend(id));
}

void LumCamera::startCapture(bool /*isShared*/)
{
    m_bridge->backend().start();
}

void LumCamera::stopCapture()
{
    m_bridge->backend().stop();
}

void LumCamera::setOutputSize(const QSize& size)
{
    m_outputSize = size;
    applyOutputSize();
}

QImage LumCamera::latestFrame() const
{
    // Clear the preview: a still frame would look like a working camera.
    return workWell() ? m_bridge->backend().latestFrame() : QImage();
}

Platform::CameraCause LumCamera::cause() const
{
    return m_bridge->backend().cause();
}

void LumCamera::setPreviewPixelRatio(qreal ratio)
{
    if (!qFuzzyCompare(m_pixelRatio, ratio)) {
        m_pixelRatio = ratio;
        applyOutputSize();
    }
}

void LumCamera::applyOutputSize()
{
    if (!m_outputSize.isEmpty()) {
        m_bridge->backend().setOutputSize((QSizeF(m_outputSize) * m_pixelRatio).toSize());
    }
}
