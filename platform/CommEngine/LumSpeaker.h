// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QObject>
#include <QString>
#include <memory>
#include <utility>
#include <vector>

// The playback devices: list, choice, volume. The sounds that were started while it was the newest
// speaker end with it. GUI thread only; no call blocks.
class COMMENGINE_EXPORT LumSpeaker : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(LumSpeaker)

public:
    explicit LumSpeaker(QObject* parent = nullptr);
    ~LumSpeaker() override;

    // Pairs of id and display name. The flag is for the client's virtual devices and has no meaning
    // here.
    static std::vector<std::pair<QString, QString>> getDeviceList(bool withVirtual);
    static QString getNoneDeviceText(bool listIsEmpty);
    // No speaker is shown under such a name, so that a recorded name tells whether there was one.
    static bool isNoneDeviceText(const QString& name);

    QString getCurrentDevice() const;
    void setCurrentDevice(const QString& id);
    QString getDeviceName() const;
    int getVolume() const; // percent, 0 to 100
    void setVolume(int percent);
    bool isWorking() const; // false if the device is gone or failed

Q_SIGNALS:
    void deviceListChanged();
    void currentDeviceChanged(const QString& id, bool works);
    void volumeChanged(int percent);
    void workStateChanged(bool works);

private:
    class Bridge;

    std::unique_ptr<Bridge> m_bridge;
};
