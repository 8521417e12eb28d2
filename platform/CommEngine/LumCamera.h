// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/Channel.h>
#include <CommEngine/LumCameraBase.h>
#include <QSize>
#include <map>
#include <memory>

// The cameras: list, choice, frames. GUI thread only; no call blocks.
class COMMENGINE_EXPORT LumCamera : public LumCameraBase
{
    Q_OBJECT
    Q_DISABLE_COPY(LumCamera)

public:
    LumCamera(Channel channel, bool isShared, QObject* parent = nullptr);
    ~LumCamera() override;

    std::map<QString, QString> getDeviceList() const; // id to name
    QString getNoneDeviceText() const;
    explicit operator bool() const; // a camera is chosen, plugged in and allowed to be opened
    bool workWell() const;          // frames arrive
    QString getCurrentDevice() const;
    QString getCurrentDeviceName() const;
    // The flags are for the client's shared cameras and have no meaning here.
    void setCurrentDevice(const QString& id, bool isTemporary, bool isByUser);

    virtual void startCapture(bool isShared);
    virtual void stopCapture();
    virtual void setOutputSize(const QSize& size); // device-independent pixels

    QImage latestFrame() const override;
    Platform::CameraCause cause() const override;
    void setPreviewPixelRatio(qreal ratio) override;

Q_SIGNALS:
    void deviceListChanged();
    void workStateChanged(const QString& id, bool works);

private:
    class Bridge;

    void applyOutputSize();

    std::unique_ptr<Bridge> m_bridge;
    QSize m_outputSize;
    qreal m_pixelRatio = 1.0;
};
