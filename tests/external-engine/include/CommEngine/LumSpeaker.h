// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <utility>
#include <vector>

class LumSpeaker : public QObject
{
    Q_OBJECT

public:
    explicit LumSpeaker(QObject* parent = nullptr) : QObject(parent) {}

    static std::vector<std::pair<QString, QString>> getDeviceList(bool)
    {
        return {{QStringLiteral("spk"), QStringLiteral("Minimal speaker")}};
    }
    static QString getNoneDeviceText(bool) { return QStringLiteral("none"); }
    QString getCurrentDevice() const { return QStringLiteral("spk"); }
    void setCurrentDevice(const QString&) {}
    QString getDeviceName() const { return QStringLiteral("Minimal speaker"); }
    int getVolume() const { return m_volume; }
    void setVolume(int volume) { m_volume = volume; }
    bool isWorking() const { return true; }

Q_SIGNALS:
    void deviceListChanged();
    void currentDeviceChanged(const QString& id, bool works);
    void volumeChanged(int volume);
    void workStateChanged(bool works);

private:
    int m_volume = 50;
};
