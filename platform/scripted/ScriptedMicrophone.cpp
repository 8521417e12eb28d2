// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedMicrophone.h"

#include "platform/backend/LevelScale.h"
#include "platform/backend/ResultDocument.h"
#include "platform/scripted/MissingFigure.h"
#include "platform/scripted/ScriptedMicrophones.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

constexpr int LevelPeriodMs = 33;
constexpr double NoiseFloor = 0.02;
constexpr double MsPerSecond = 1000;

QJsonValue decibelsOf(std::optional<double> level)
{
    return level ? std::round(10.0 * LevelScale::decibelsOf(*level)) / 10.0
                 : QJsonValue(missingFigure());
}

bool canHear(DeviceState state)
{
    return state == DeviceState::Ready || state == DeviceState::Working;
}

} // namespace

ScriptedMicrophone::ScriptedMicrophone(ScriptedMicrophones& microphones, CallLog& log,
                                       ResultDocument& document, Listener& listener)
    : ScriptedSession(QStringLiteral("microphone"), microphones, log, document, listener)
{
    m_levelTimer.setTimerType(Qt::PreciseTimer);
    m_levelTimer.setInterval(LevelPeriodMs);
    connect(&m_levelTimer, &QTimer::timeout, this, &ScriptedMicrophone::onLevelTick);
    connectModel();
    m_id = m_devices.currentId();
    m_found.reset(m_devices.volume(), m_devices.isMuted());
    m_default.take(m_devices.defaultName());
    takeWorkState();
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
    return m_devices.devices();
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
    startMeasuring();
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
    return m_devices.isAdjustable();
}

int ScriptedMicrophone::volume() const
{
    m_session.query("volume");
    return m_devices.audibleVolumeOf(m_devices.currentId());
}

int ScriptedMicrophone::volumeOf(const QString& id) const
{
    m_session.query("volumeOf");
    return m_devices.audibleVolumeOf(id);
}

void ScriptedMicrophone::setVolume(int percent)
{
    m_session.call("setVolume", QString::number(percent));
    m_found.noteMove();
    m_devices.setVolumeByUser(percent);
}

void ScriptedMicrophone::connectModel()
{
    using Model = ScriptedMicrophones;
    connect(&m_devices, &Model::currentChanged, this, &ScriptedMicrophone::onCurrentChanged);
    connect(&m_devices, &Model::currentStateChanged, this, &ScriptedMicrophone::onStateChanged);
    connect(&m_devices, &Model::currentLevelsChanged, this, &ScriptedMicrophone::runLevels);
    connect(&m_devices, &Model::levelEmitted, this, &ScriptedMicrophone::measure,
            Qt::QueuedConnection);
    connect(
        &m_devices, &Model::listChanged, this, [this] { m_listener.microphoneListChanged(); },
        Qt::QueuedConnection);
    connect(
        &m_devices, &Model::currentChanged, this,
        [this](const QString& id) { m_listener.currentMicrophoneChanged(id); },
        Qt::QueuedConnection);
    connect(
        &m_devices, &Model::currentInfoChanged, this,
        [this] { m_listener.microphoneInfoChanged(); }, Qt::QueuedConnection);
    connect(
        &m_devices, &Model::volumeSetByUser, this,
        [this](int percent) { m_listener.microphoneVolumeChanged(percent); }, Qt::QueuedConnection);
    connect(
        &m_devices, &Model::volumeMovedFromOutside, this,
        [this](float percent) {
            m_listener.systemVolumeChanged(m_devices.isMuted() ? 0.0F : percent);
        },
        Qt::QueuedConnection);
}

// One call tells the listener about the other microphone and its state.
void ScriptedMicrophone::onCurrentChanged()
{
    m_hasHeard = false;
    if (m_id != m_devices.currentId()) {
        m_id = m_devices.currentId();
        m_found.reset(m_devices.volume(), m_devices.isMuted());
        startMeasuring();
    }
    m_default.take(m_devices.defaultName());
    runLevels();
    takeWorkState();
}

void ScriptedMicrophone::onStateChanged()
{
    m_hasHeard = false;
    runLevels();
    notifyWorkState();
}

void ScriptedMicrophone::onLevelTick()
{
    measure(canHear(m_devices.currentState()) ? m_devices.levelAt(m_openClock.elapsed()) : 0.0);
}

void ScriptedMicrophone::measure(double level)
{
    if (m_isOpen && canHear(m_devices.currentState()) && std::isfinite(level)) {
        m_loudest = std::max(m_loudest.value_or(level), level);
        m_quietest = std::min(m_quietest.value_or(level), level);
        noteLevel(level);
        m_hasHeard = m_hasHeard || level > NoiseFloor;
        notifyWorkState();
    }
    m_listener.levelMeasured(level);
}

void ScriptedMicrophone::startMeasuring()
{
    m_openClock.start();
    m_loudest.reset();
    m_quietest.reset();
    m_secondPeak.reset();
    m_second = 0;
    m_levelsOverTime = {};
}

// The loudest level of each second. A scenario may be silent for a while: then there are gaps.
void ScriptedMicrophone::noteLevel(double level)
{
    const auto second = static_cast<int>(m_openClock.elapsed() / qint64(MsPerSecond));
    m_second = std::max(m_second, second - TimeSeries::MaxValues - 1);
    for (; m_second < second; ++m_second) {
        if (m_secondPeak) {
            m_levelsOverTime.add(decibelsOf(m_secondPeak).toDouble());
        } else {
            m_levelsOverTime.addGap();
        }
        m_secondPeak.reset();
    }
    m_secondPeak = std::max(m_secondPeak.value_or(level), level);
}

// A scenario gives levels and no samples: figures that need samples are not measured.
void ScriptedMicrophone::addSound(QJsonObject& figures) const
{
    figures.insert(QStringLiteral("soundHeard"), hasHeard());
    figures.insert(QStringLiteral("seconds"),
                   static_cast<double>(m_openClock.elapsed()) / MsPerSecond);
    figures.insert(QStringLiteral("peakDb"), decibelsOf(m_loudest));
    figures.insert(QStringLiteral("noiseFloorDb"), decibelsOf(m_quietest));
    for (const char* key : {"clippedShare", "humShare", "humHz", "bandwidthHz"}) {
        figures.insert(QLatin1String(key), missingFigure());
    }
    if (!m_levelsOverTime.isEmpty()) {
        figures.insert(QLatin1String(SeriesKeys::Level), m_levelsOverTime.toJson());
    }
    const QJsonObject sound = m_devices.sound();
    for (auto it = sound.begin(); it != sound.end(); ++it) {
        figures.insert(it.key(), it.value());
    }
}

void ScriptedMicrophone::recordMeasurement()
{
    QJsonObject figures{{QStringLiteral("state"), toString(currentState())}};
    if (!m_id.isEmpty()) {
        figures.insert(QStringLiteral("device"), m_devices.currentName());
        m_found.addTo(figures, m_devices.volume(), m_devices.isMuted());
    }
    m_default.addTo(figures);
    if (canHear(m_devices.currentState())) {
        addSound(figures);
    }
    m_document.recordMeasurement(QStringLiteral("microphone"), figures);
}

bool ScriptedMicrophone::hasHeard() const
{
    return m_hasHeard || m_devices.currentState() == DeviceState::Working;
}

DeviceState ScriptedMicrophone::currentState() const
{
    const DeviceState state = m_devices.currentState();
    if (!canHear(state)) {
        return state;
    }
    if (hasHeard()) {
        return DeviceState::Working;
    }
    return m_isOpen ? DeviceState::Silent : DeviceState::Ready;
}

// If a microphone disappears while it is open, its last level is 0.
void ScriptedMicrophone::runLevels()
{
    const bool runs = m_isOpen && m_devices.hasLevels() && isUsable(currentState());
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
    if (!takeWorkState()) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, id = m_devices.currentId(), works = m_workState.works] {
            m_listener.microphoneWorkStateChanged(id, works);
        },
        Qt::QueuedConnection);
}

} // namespace Platform
