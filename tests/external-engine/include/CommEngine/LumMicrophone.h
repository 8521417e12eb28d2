// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/Channel.h>
#include <QObject>
#include <map>

struct _LumAudioInDevInfo
{
    QString name;
};

// One microphone that always hears something.
class LumMicrophone : public QObject
{
    Q_OBJECT

public:
    LumMicrophone(Channel, bool, QObject* parent = nullptr) : QObject(parent) {}

    void openMicrophone() {}
    void closeMicrophone() {}
    void enableListenSelf(bool) {}
    explicit operator bool() const { return true; }
    bool workWell() const { return true; }
    std::map<QString, _LumAudioInDevInfo> getDeviceList() const
    {
        return {{QStringLiteral("mic"), {QStringLiteral("Minimal microphone")}}};
    }
    QString getNoneDeviceText() const { return QStringLiteral("none"); }
    QString getCurrentDevice() const { return QStringLiteral("mic"); }
    QString getCurrentDeviceName() const { return QStringLiteral("Minimal microphone"); }
    void setCurrentDevice(const QString&, bool, bool) {}
    bool supportAdjustVolume() const { return true; }
    int getVolume() const { return m_volume; }
    void setVolume(int volume) { m_volume = volume; }

Q_SIGNALS:
    void deviceListChanged();
    void currentMicChanged(const QString& id, bool isUsable, bool works);
    void intensity(double level);
    void volumeChanged(int volume);
    void infoChanged();
    void workStateChanged(const QString& id, bool works);
    void systemMicrophoneVolume(float volume);

private:
    int m_volume = 80;
};
