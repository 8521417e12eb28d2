// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/Channel.h>
#include <CommEngine/CommEngineExport.h>
#include <QObject>
#include <QString>
#include <map>
#include <memory>

struct _LumAudioInDevInfo
{
    QString name; // for display
};

// The microphones: list, choice, level, volume, listening to oneself. GUI thread only; no call
// blocks.
class COMMENGINE_EXPORT LumMicrophone : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(LumMicrophone)

public:
    LumMicrophone(Channel channel, bool isShared, QObject* parent = nullptr);
    ~LumMicrophone() override;

    void openMicrophone();
    void closeMicrophone();
    void enableListenSelf(bool on);
    explicit operator bool() const; // a microphone is chosen, plugged in and allowed to be opened
    bool workWell() const;          // sound has been heard from it

    std::map<QString, _LumAudioInDevInfo> getDeviceList() const;
    QString getNoneDeviceText() const;
    QString getCurrentDevice() const;
    QString getCurrentDeviceName() const;
    // The flags are for the client's shared microphones and have no meaning here.
    void setCurrentDevice(const QString& id, bool isByUser, bool isTemporary);

    bool supportAdjustVolume() const;
    int getVolume() const; // percent, 0 to 150
    void setVolume(int percent);

Q_SIGNALS:
    void deviceListChanged();
    void currentMicChanged(const QString& id, bool isUsable, bool works);
    void intensity(double level); // 0 to 1
    void volumeChanged(int percent);
    void infoChanged();
    void workStateChanged(const QString& id, bool works);
    void systemMicrophoneVolume(float percent); // moved by another program

private:
    class Bridge;

    std::unique_ptr<Bridge> m_bridge;
};
