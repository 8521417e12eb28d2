// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/Channel.h>
#include <CommEngine/LumCameraBase.h>
#include <QSize>
#include <map>

// This engine has no camera.
class LumCamera : public LumCameraBase
{
    Q_OBJECT

public:
    LumCamera(Channel, bool, QObject* parent = nullptr) : LumCameraBase(parent) {}

    std::map<QString, QString> getDeviceList() const { return {}; }
    QString getNoneDeviceText() const { return QStringLiteral("none"); }
    explicit operator bool() const { return false; }
    bool workWell() const { return false; }
    QString getCurrentDevice() const;
    QString getCurrentDeviceName() const { return {}; }
    void setCurrentDevice(const QString&, bool, bool) {}
    virtual void startCapture(bool) {}
    virtual void stopCapture() {}
    virtual void setOutputSize(const QSize&) {}

Q_SIGNALS:
    void deviceListChanged();
    void workStateChanged(const QString& id, bool works);
};
