// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "Journal.h"
#include "QuestionBox.h"

#include <CommEngine/HardwareMgr.h>
#include <CommEngine/HardwareMgrInterface.h>
#include <CommEngine/LumCamera.h>
#include <CommEngine/SystemTestingResult.h>
#include <CoreEngine/CommandNetworkTest.h>
#include <CoreEngine/CoreEngine.h>
#include <LumMedia/AudioPlayer.h>
#include <LumUtility/LumSettings.h>
#include <LumUtility/LumUtils.h>
#include <LumUtility/OperatingSystem.h>
#include <LumWidgets/LumCustomNormalDialog.h>
#include <LumWidgets/LumMessageBox.h>

#include <QTimer>
#include <QVBoxLayout>

QStringList& journal()
{
    static QStringList lines;
    return lines;
}

namespace {

void note(const char* what, const QString& value)
{
    journal() << QLatin1String(what) + QLatin1Char(' ') + value;
}

void note(const char* what, int value)
{
    note(what, QString::number(value));
}

} // namespace

const QString HardwareMgrInterface::NoneDevice = QStringLiteral("0");

HardwareMgr::HardwareMgr(const QString& name, QObject* parent) : QObject(parent)
{
    note("manager", name);
}

void HardwareMgr::postHardwardInfoToServer(int code)
{
    note("post", code);
}

QString LumCamera::getCurrentDevice() const
{
    return HardwareMgrInterface::NoneDevice;
}

void SystemTestingResult::writeCameraStateFromUser(int answer)
{
    note("camera answer", answer);
}
void SystemTestingResult::writeCameraState(int state)
{
    note("camera state", state);
}
void SystemTestingResult::writeCurrentCamera(const QString& name)
{
    note("camera name", name);
}
void SystemTestingResult::writeHeadphoneStateFromUser(int answer)
{
    note("headphone answer", answer);
}
void SystemTestingResult::writeHeadphoneState(int state)
{
    note("headphone state", state);
}
void SystemTestingResult::writeCurrentHeadphone(const QString& name)
{
    note("headphone name", name);
}
void SystemTestingResult::writeMicrophoneStateFromUser(int answer)
{
    note("microphone answer", answer);
}
void SystemTestingResult::writeMicrophoneState(int state)
{
    note("microphone state", state);
}
void SystemTestingResult::writeCurrentMicrophone(const QString& name)
{
    note("microphone name", name);
}
void SystemTestingResult::writeNetworkDelay(const QString& text)
{
    note("delay", text);
}
void SystemTestingResult::writeFrameLossRate(const QString& text)
{
    note("loss", text);
}

LumEngine::CoreEngine* LumEngine::CoreEngine::instance()
{
    static CoreEngine core;
    return &core;
}

CommandNetworkTest::CommandNetworkTest(QObject* parent) : QObject(parent)
{
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &CommandNetworkTest::networkInfoChanged);
    timer->start(10);
}

AudioPlayer* CreateAudioPlayer(AudioPlayerType, QString, float, char*, int, bool, bool)
{
    auto* player = new AudioPlayer;
    QTimer::singleShot(10, player, &AudioPlayer::playFileFinished);
    return player;
}

int DeleleAudioPlayer(AudioPlayer* player)
{
    player->deleteLater();
    return 0;
}

LumSettings* LumSettings::instance(const QString& store)
{
    static LumSettings settings;
    note("settings", store.isEmpty() ? QStringLiteral("default") : store);
    return &settings;
}

void LumSettings::setSetting(const QString& key, const QVariant& value)
{
    note("setting", key + QLatin1Char(' ') + value.toString());
    m_values.insert(key, value);
}

QString LumUtils::getMessageBoxTitle(QMessageBox::Icon)
{
    return QStringLiteral("Question");
}

QString OperatingSystem::getName(const QString& separator) const
{
    return QStringLiteral("minimal") + separator + QStringLiteral("system");
}

LumCustomNormalDialog::LumCustomNormalDialog(Type type, QWidget* parent, Qt::WindowFlags flags,
                                             ICustomedTitleBar* titleBar, bool last)
    : QDialog(parent, flags)
{
    note("dialog", QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(type)
                       .arg(parent ? "above" : "alone")
                       .arg(int(flags))
                       .arg(titleBar ? "dressed" : "plain")
                       .arg(last));
    new QVBoxLayout(this);
    if (parent) {
        // This dialog stands on the stack: it leaves a parent that is about to delete its children.
        connect(parent, &QObject::destroyed, this, [this] {
            setParent(nullptr, windowFlags());
            done(Rejected);
        });
    }
}

void LumCustomNormalDialog::setCenterWidget(QWidget* widget, bool last)
{
    note("centre", widget->objectName() + QStringLiteral(" %1").arg(last));
    layout()->addWidget(widget);
    m_center = widget;
    connect(widget, &QObject::destroyed, this, &QDialog::accept);
}

void LumCustomNormalDialog::setTitleText(const QString& text)
{
    note("title", text);
    setWindowTitle(text);
}

int LumCustomNormalDialog::exec()
{
    note("dialog", QStringLiteral("runs"));
    return QDialog::exec();
}

void LumCustomNormalDialog::reject()
{
    if (m_center && !m_center->isHidden()) {
        m_center->close();
    }
    if (!m_center || m_center->isHidden()) {
        QDialog::reject();
    }
}

QMessageBox::StandardButton LumMessageBox::question(QWidget* parent, const QString&,
                                                    const QString& text,
                                                    QMessageBox::StandardButtons,
                                                    QMessageBox::StandardButton)
{
    note("question", text);
    return QuestionBox::instance().ask(parent);
}
