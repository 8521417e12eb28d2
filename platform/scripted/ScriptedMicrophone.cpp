// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedMicrophone.h"

#include "platform/backend/ResultDocument.h"
#include "platform/scripted/ScriptedMicrophones.h"

namespace Platform {

namespace {

constexpr int LevelPeriodMs = 33;
constexpr double NoiseFloor = 0.02;

bool canHear(DeviceState state)
{
    return state == DeviceState::Ready || state == DeviceState::Working;
}

} // namespace

ScriptedMicrophone::ScriptedMicrophone(ScriptedMicrophones& microphones, CallLog& log,
                                       ResultDocument& document, Listener& listener)
    : m_microphones(microphones),
      m_document(document),
      m_listener(listener),
      m_session(log, QStringLiteral("microphone"))
{
    m_levelTimer.setTimerType(Qt::PreciseTimer);
    m_levelTimer.setInterval(LevelPeriodMs);
    connect(&m_levelTimer, &QTimer::timeout, this, &ScriptedMicrophone::onLevelTick);
    connectModel();
    m_id = m_microphones.currentId();
    m_volumeBefore = m_microphones.volume();
    m_notified = workStateOf(currentState());
}

ScriptedMicrophone::~ScriptedMicrophone()
{
    if (m_isOpen) {
        recordMeasurement();
    }
}

DeviceList ScriptedMicrophone::devices() const
{
    m_session.query("devices");
    return m_microphones.devices();
}

QString ScriptedMicrophone::currentId() const
{
    m_session.query("currentId");
    return m_microphones.currentId();
}

QString ScriptedMicrophone::currentName() const
{
    m_session.query("currentName");
    return m_microphones.currentName();
}

void ScriptedMicrophone::setCurrent(const QString& id)
{
    m_session.call("setCurrent", id);
    m_microphones.choose(id);
}

DeviceState ScriptedMicrophone::state() const
{
    m_session.query("state");
    return currentState();
}

bool ScriptedMicrophone::hasHeardSound() const
{
    m_session.query("hasHeardSound");
    return hasHeard();
}

void ScriptedMicrophone::open()
{
    m_session.call("open");
    m_isOpen = true;
    m_openClock.start();
    runLevels();
}

void ScriptedMicrophone::close()
{
    m_session.call("close");
    if (m_isOpen) {
        recordMeasurement();
    }
    m_isOpen = false;
    runLevels();
}

void ScriptedMicrophone::setListening(bool on)
{
    m_session.call("setListening", on ? QStringLiteral("true") : QStringLiteral("false"));
}

bool ScriptedMicrophone::isVolumeAdjustable() const
{
    m_session.query("isVolumeAdjustable");
    return m_microphones.isAdjustable();
}

int ScriptedMicrophone::volume() const
{
    m_session.query("volume");
    return m_microphones.volume();
}

void ScriptedMicrophone::setVolume(int percent)
{
    m_session.call("setVolume", QString::number(percent));
    m_isMovedByUser = true;
    m_microphones.setVolumeByUser(percent);
}

void ScriptedMicrophone::connectModel()
{
    using Model = ScriptedMicrophones;
    connect(&m_microphones, &Model::currentChanged, this, &ScriptedMicrophone::onCurrentChanged);
    connect(&m_microphones, &Model::currentStateChanged, this, &ScriptedMicrophone::onStateChanged);
    connect(&m_microphones, &Model::currentLevelsChanged, this, &ScriptedMicrophone::runLevels);
    connect(&m_microphones, &Model::levelEmitted, this, &ScriptedMicrophone::measure,
            Qt::QueuedConnection);
    connect(
        &m_microphones, &Model::listChanged, this, [this] { m_listener.microphoneListChanged(); },
        Qt::QueuedConnection);
    connect(
        &m_microphones, &Model::currentChanged, this,
        [this](const QString& id) { m_listener.currentMicrophoneChanged(id); },
        Qt::QueuedConnection);
    connect(
        &m_microphones, &Model::currentInfoChanged, this,
        [this] { m_listener.microphoneInfoChanged(); }, Qt::QueuedConnection);
    connect(
        &m_microphones, &Model::volumeSetByUser, this,
        [this](int percent) { m_listener.microphoneVolumeChanged(percent); }, Qt::QueuedConnection);
    connect(
        &m_microphones, &Model::volumeMovedFromOutside, this,
        [this](float percent) { m_listener.systemVolumeChanged(percent); }, Qt::QueuedConnection);
}

// The listener hears of another microphone, and with that of its state, in one call.
void ScriptedMicrophone::onCurrentChanged()
{
    m_hasHeard = false;
    if (m_id != m_microphones.currentId()) {
        m_id = m_microphones.currentId();
        m_volumeBefore = m_microphones.volume();
        m_isMovedByUser = false;
    }
    runLevels();
    m_notified = workStateOf(currentState());
}

void ScriptedMicrophone::onStateChanged()
{
    m_hasHeard = false;
    runLevels();
    notifyWorkState();
}

void ScriptedMicrophone::onLevelTick()
{
    measure(canHear(m_microphones.currentState()) ? m_microphones.levelAt(m_openClock.elapsed())
                                                  : 0.0);
}

void ScriptedMicrophone::measure(double level)
{
    if (m_isOpen && level > NoiseFloor && canHear(m_microphones.currentState())) {
        m_hasHeard = true;
        notifyWorkState();
    }
    m_listener.levelMeasured(level);
}

void ScriptedMicrophone::recordMeasurement()
{
    m_document.recordMeasurement(QStringLiteral("microphone"),
                                 {{QStringLiteral("device"), m_microphones.currentName()},
                                  {QStringLiteral("state"), toString(currentState())},
                                  {QStringLiteral("soundHeard"), hasHeard()},
                                  {QStringLiteral("volumeBefore"), m_volumeBefore},
                                  {QStringLiteral("volumeAfter"), m_microphones.volume()},
                                  {QStringLiteral("movedByUser"), m_isMovedByUser}});
}

bool ScriptedMicrophone::hasHeard() const
{
    return m_hasHeard || m_microphones.currentState() == DeviceState::Working;
}

DeviceState ScriptedMicrophone::currentState() const
{
    const DeviceState state = m_microphones.currentState();
    if (!canHear(state)) {
        return state;
    }
    if (hasHeard()) {
        return DeviceState::Working;
    }
    return m_isOpen ? DeviceState::Silent : DeviceState::Ready;
}

// The last level of a microphone that goes away while it is open is 0.
void ScriptedMicrophone::runLevels()
{
    const bool runs = m_isOpen && m_microphones.hasLevels() && isUsable(currentState());
    if (runs) {
        m_levelTimer.start();
        return;
    }
    if (m_isOpen && m_levelTimer.isActive()) {
        QMetaObject::invokeMethod(
            this, [this] { m_listener.levelMeasured(0); }, Qt::QueuedConnection);
    }
    m_levelTimer.stop();
}

void ScriptedMicrophone::notifyWorkState()
{
    const WorkState now = workStateOf(currentState());
    if (now == m_notified) {
        return;
    }
    m_notified = now;
    QMetaObject::invokeMethod(
        this,
        [this, id = m_microphones.currentId(), works = now.works] {
            m_listener.microphoneWorkStateChanged(id, works);
        },
        Qt::QueuedConnection);
}

} // namespace Platform
