// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/OwnView.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/devices/DeviceEngine.h"

using namespace Platform;

class OwnView::Preview final : public PlayerContainer
{
public:
    explicit Preview(LumCamera& camera) : PlayerContainer(nullptr), m_camera(camera)
    {
        attachCamera(&m_camera);
        resize(View::Size);
        show();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        PlayerContainer::paintEvent(event);
        const QImage frame = m_camera.latestFrame();
        if (!frame.isNull()) {
            tellPainted(frame, true);
        }
    }

private:
    LumCamera& m_camera;
};

OwnView::OwnView(const QString& node)
{
    DeviceEngineConfig config;
    config.settingsFolder = m_settings.path();
    config.cacheFolder = m_settings.path();
    EngineRegistry::install(std::make_unique<DeviceEngine>(config));
    m_camera = std::make_unique<LumCamera>(Channel(0), false);
    m_preview = std::make_unique<Preview>(*m_camera);
    m_camera->setOutputSize(View::Size);
    QObject::connect(m_camera.get(), &LumCamera::deviceListChanged, m_preview.get(), [this, node] {
        if (m_camera->getDeviceList().count(node) > 0) {
            tellReady();
        }
    });
}

OwnView::~OwnView()
{
    m_preview.reset();
    m_camera.reset();
    EngineRegistry::uninstall();
}

void OwnView::go()
{
    m_camera->startCapture(false);
    m_preview->play();
}

void OwnView::stop()
{
    m_camera->stopCapture();
    m_preview->stop();
}
