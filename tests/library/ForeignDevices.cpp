// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/ForeignDevices.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <CommEngine/LumCamera.h>
#include <CommEngine/LumMicrophone.h>
#include <CommEngine/LumSpeaker.h>
#include <LumWidgets/QCustomComboBox.h>

#include "platform/backend/CameraCause.h"

#include <QImage>
#include <QLineEdit>

using TestSupport::ForeignDevices;

namespace {

ForeignDevices& devices()
{
    return ForeignDevices::instance();
}

void tellNewsOf(LumCamera& camera)
{
    Q_EMIT camera.deviceListChanged();
    Q_EMIT camera.currentDeivceChanged(devices().current);
    Q_EMIT camera.workStateChanged(devices().current, true);
}

void tellNewsOf(LumSpeaker& speaker)
{
    Q_EMIT speaker.deviceListChanged();
    Q_EMIT speaker.currentDeviceChanged(devices().current, true);
    Q_EMIT speaker.volumeChanged(speaker.getVolume());
    Q_EMIT speaker.workStateChanged(true);
}

void tellNewsOf(LumMicrophone& microphone)
{
    Q_EMIT microphone.deviceListChanged();
    Q_EMIT microphone.currentMicChanged(devices().current, true, true);
    Q_EMIT microphone.volumeChanged(microphone.getVolume());
    Q_EMIT microphone.workStateChanged(devices().current, true);
}

void called()
{
    if (devices().callsUntilNews > 0 && --devices().callsUntilNews == 0) {
        devices().tellNews();
    }
}

template <typename Device>
void called(const Device* device)
{
    devices().tellNews = [device] { tellNewsOf(*const_cast<Device*>(device)); };
    called();
}

template <typename Device>
void chosen(const Device* device, const QString& id)
{
    devices().chosen.append(id);
    devices().current = id;
    called(device);
}

template <typename Device>
void dying(Device* device)
{
    devices().callsUntilNews = 0;
    if (devices().isTellingLastNews) {
        ++devices().lastNewsTold;
        tellNewsOf(*device);
    }
    devices().tellNews = nullptr;
}

bool isAnyCurrent()
{
    return devices().current != HardwareMgrInterface::NoneDevice;
}

} // namespace

ForeignDevices& ForeignDevices::instance()
{
    static ForeignDevices devices;
    return devices;
}

// Without a line edit to begin with.
QCustomComboBox::QCustomComboBox(QWidget* parent, bool /*isThemed*/) : QComboBox(parent)
{
}

void QCustomComboBox::setEnableClickLineEdit(bool enabled)
{
    setEditable(enabled);
    if (enabled) {
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        lineEdit()->installEventFilter(this);
    }
}

class LumCamera::Bridge
{
};

LumCamera::LumCamera(Channel /*channel*/, bool /*isShared*/, QObject* parent)
    : LumCameraBase(parent)
{
}

LumCamera::~LumCamera()
{
    dying(this);
}

std::map<QString, QString> LumCamera::getDeviceList() const
{
    called(this);
    return {devices().list.begin(), devices().list.end()};
}

QString LumCamera::getNoneDeviceText() const
{
    called(this);
    return QStringLiteral("none");
}

QString LumCamera::getCurrentDevice() const
{
    called(this);
    return devices().current;
}

LumCamera::operator bool() const
{
    called(this);
    return isAnyCurrent();
}

bool LumCamera::workWell() const
{
    called(this);
    return true;
}

void LumCamera::setCurrentDevice(const QString& id, bool /*isTemporary*/, bool /*isByUser*/)
{
    chosen(this, id);
}

QString LumCamera::getCurrentDeviceName() const
{
    called(this);
    return {};
}

void LumCamera::startCapture(bool /*isShared*/)
{
    called(this);
}

void LumCamera::stopCapture()
{
    called(this);
}

void LumCamera::setOutputSize(const QSize& /*size*/)
{
    called(this);
}

QImage LumCamera::latestFrame() const
{
    return {};
}

Platform::CameraCause LumCamera::cause() const
{
    return {};
}

void LumCamera::setPreviewPixelRatio(qreal /*ratio*/)
{
}

class LumSpeaker::Bridge
{
};

LumSpeaker::LumSpeaker(QObject* parent) : QObject(parent)
{
}

LumSpeaker::~LumSpeaker()
{
    dying(this);
}

std::vector<std::pair<QString, QString>> LumSpeaker::getDeviceList(bool /*withVirtual*/)
{
    called();
    return devices().list;
}

QString LumSpeaker::getNoneDeviceText(bool /*listIsEmpty*/)
{
    called();
    return QStringLiteral("none");
}

QString LumSpeaker::getCurrentDevice() const
{
    called(this);
    return devices().current;
}

int LumSpeaker::getVolume() const
{
    called(this);
    return 50;
}

bool LumSpeaker::isWorking() const
{
    called(this);
    return true;
}

void LumSpeaker::setCurrentDevice(const QString& id)
{
    chosen(this, id);
}

QString LumSpeaker::getDeviceName() const
{
    called(this);
    return {};
}

void LumSpeaker::setVolume(int /*percent*/)
{
    called(this);
}

class LumMicrophone::Bridge
{
};

LumMicrophone::LumMicrophone(Channel /*channel*/, bool /*isShared*/, QObject* parent)
    : QObject(parent)
{
}

LumMicrophone::~LumMicrophone()
{
    dying(this);
}

void LumMicrophone::openMicrophone()
{
    called(this);
}

void LumMicrophone::closeMicrophone()
{
    called(this);
}

void LumMicrophone::enableListenSelf(bool /*on*/)
{
    called(this);
}

bool LumMicrophone::supportAdjustVolume() const
{
    called(this);
    return true;
}

int LumMicrophone::getVolume() const
{
    called(this);
    return 50;
}

void LumMicrophone::setVolume(int /*percent*/)
{
    called(this);
}

QString LumMicrophone::getCurrentDeviceName() const
{
    called(this);
    return {};
}

std::map<QString, _LumAudioInDevInfo> LumMicrophone::getDeviceList() const
{
    called(this);
    std::map<QString, _LumAudioInDevInfo> result;
    for (const auto& [id, name] : devices().list) {
        result.insert({id, {name}});
    }
    return result;
}

QString LumMicrophone::getNoneDeviceText() const
{
    called(this);
    return QStringLiteral("none");
}

QString LumMicrophone::getCurrentDevice() const
{
    called(this);
    return devices().current;
}

LumMicrophone::operator bool() const
{
    called(this);
    return isAnyCurrent();
}

bool LumMicrophone::workWell() const
{
    called(this);
    return true;
}

void LumMicrophone::setCurrentDevice(const QString& id, bool /*isByUser*/, bool /*isTemporary*/)
{
    chosen(this, id);
}
