// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedCamera.h"

#include "platform/backend/ResultDocument.h"
#include "platform/backend/StallTimeout.h"
#include "platform/scripted/ScriptedCameras.h"
#include "platform/scripted/TestPattern.h"

namespace Platform {

namespace {

constexpr int MsPerSecond = 1000;
const QSize SampleSize(160, 160); // enough to measure the brightness

} // namespace

ScriptedCamera::ScriptedCamera(ScriptedCameras& cameras, CallLog& log, ResultDocument& document,
                               Listener& listener)
    : ScriptedSession(QStringLiteral("camera"), cameras, log, document, listener)
{
    m_frameTimer.setTimerType(Qt::PreciseTimer);
    m_watchdog.setSingleShot(true);
    connect(&m_frameTimer, &QTimer::timeout, this, &ScriptedCamera::onFrame);
    connect(&m_watchdog, &QTimer::timeout, this, &ScriptedCamera::notifyWorkState);

    connect(
        &m_devices, &ScriptedCameras::listChanged, this, [this] { m_listener.cameraListChanged(); },
        Qt::QueuedConnection);
    connect(&m_devices, &ScriptedCameras::currentChanged, this, &ScriptedCamera::onCurrentChanged);
    connect(
        &m_devices, &ScriptedCameras::currentChanged, this,
        [this](const QString& id) { m_listener.currentCameraChanged(id); }, Qt::QueuedConnection);
    const auto refresh = [this] {
        runFrames();
        notifyWorkState();
    };
    connect(&m_devices, &ScriptedCameras::currentStateChanged, this, refresh);
    connect(&m_devices, &ScriptedCameras::currentFeedChanged, this, refresh);
    takeWorkState();
}

ScriptedCamera::~ScriptedCamera()
{
    if (m_isStarted) {
        recordMeasurement();
    }
}

DeviceList ScriptedCamera::devices() const
{
    m_session.query("devices");
    return m_devices.devices();
}

DeviceState ScriptedCamera::stateOf(const QString& id) const
{
    m_session.query("stateOf");
    return id == m_devices.currentId() ? currentState() : m_devices.stateOf(id);
}

bool ScriptedCamera::delivers() const
{
    m_session.query("delivers");
    return isDelivering();
}

void ScriptedCamera::start()
{
    m_session.call("start");
    m_isStarted = true;
    m_startClock.start();
    runFrames();
    takeWorkState();
}

// The caller knows what its own call changes, so the listener isn't told.
void ScriptedCamera::stop()
{
    m_session.call("stop");
    if (m_isStarted) {
        recordMeasurement();
    }
    m_isStarted = false;
    m_watchdog.stop();
    runFrames();
    takeWorkState();
}

void ScriptedCamera::setOutputSize(const QSize& pixels)
{
    m_session.call("setOutputSize",
                   QStringLiteral("%1x%2").arg(pixels.width()).arg(pixels.height()));
    m_outputSize = pixels;
    m_picture = {};
}

QImage ScriptedCamera::latestFrame() const
{
    m_session.query("latestFrame");
    if (m_frame > 0 && m_picture.isNull()) {
        const ScriptedCameras::Feed feed = m_devices.feed(m_devices.currentId());
        const QSize size = TestPattern::fitted(feed.size, m_outputSize);
        m_picture = feed.pictures == ScriptedCameras::Pictures::Black
                        ? TestPattern::black(size)
                        : TestPattern::picture(size, m_devices.currentName(), m_frame);
    }
    return m_picture;
}

// One call tells the listener about the other camera and its state.
void ScriptedCamera::onCurrentChanged()
{
    m_watchdog.stop();
    m_startClock.start();
    m_frame = 0;
    m_pictures = 0;
    m_blackFrames = 0;
    m_frozenFrames = 0;
    m_picture = {};
    runFrames();
    takeWorkState();
}

void ScriptedCamera::onFrame()
{
    const ScriptedCameras::Feed feed = m_devices.feed(m_devices.currentId());
    const bool isFrozen = m_frame > 0 && feed.pictures == ScriptedCameras::Pictures::Frozen;
    if (m_pictures == 0) {
        m_firstFrameMs = m_startClock.elapsed();
    }
    ++m_pictures;
    m_blackFrames += feed.pictures == ScriptedCameras::Pictures::Black ? 1 : 0;
    m_frozenFrames += isFrozen ? 1 : 0;
    if (!isFrozen) {
        ++m_frame;
        m_picture = {};
    }
    StallTimeout timeout;
    timeout.setRate(feed.framesPerSecond);
    m_watchdog.start(std::chrono::duration_cast<std::chrono::milliseconds>(timeout.duration()));
    notifyWorkState();
    m_listener.frameArrived();
}

bool ScriptedCamera::canDeliver() const
{
    const DeviceState state = m_devices.currentState();
    return (state == DeviceState::Ready || state == DeviceState::Working) &&
           m_devices.feed(m_devices.currentId()).pictures != ScriptedCameras::Pictures::None;
}

bool ScriptedCamera::isDelivering() const
{
    return m_watchdog.isActive() ||
           (canDeliver() && m_devices.currentState() == DeviceState::Working);
}

DeviceState ScriptedCamera::currentState() const
{
    const DeviceState state = m_devices.currentState();
    if (state != DeviceState::Ready && state != DeviceState::Working) {
        return state;
    }
    if (isDelivering()) {
        return DeviceState::Working;
    }
    return m_isStarted ? DeviceState::Silent : DeviceState::Ready;
}

// As with a real camera, the watchdog notices a stall. A scripted state counts at once.
void ScriptedCamera::runFrames()
{
    if (m_isStarted && canDeliver()) {
        const int rate = m_devices.feed(m_devices.currentId()).framesPerSecond;
        m_frameTimer.start(MsPerSecond / rate);
        return;
    }
    m_frameTimer.stop();
    const DeviceState state = m_devices.currentState();
    if (state != DeviceState::Ready && state != DeviceState::Working) {
        m_watchdog.stop();
    }
}

void ScriptedCamera::recordMeasurement()
{
    const ScriptedCameras::Feed feed = m_devices.feed(m_devices.currentId());
    QJsonObject figures{{QStringLiteral("device"), m_devices.currentName()},
                        {QStringLiteral("state"), toString(currentState())},
                        {QStringLiteral("pictures"), m_pictures}};
    if (m_pictures > 0) {
        const double pictures = m_pictures;
        figures.insert(QStringLiteral("rate"), feed.framesPerSecond);
        figures.insert(QStringLiteral("width"), feed.size.width());
        figures.insert(QStringLiteral("height"), feed.size.height());
        figures.insert(QStringLiteral("firstPictureMs"), m_firstFrameMs);
        const QImage sample = TestPattern::picture(TestPattern::fitted(feed.size, SampleSize),
                                                   m_devices.currentName(), m_frame);
        figures.insert(QStringLiteral("brightness"),
                       TestPattern::brightness(sample) * (1 - m_blackFrames / pictures));
        figures.insert(QStringLiteral("blackShare"), m_blackFrames / pictures);
        figures.insert(QStringLiteral("frozenShare"), m_frozenFrames / pictures);
    }
    m_document.recordMeasurement(QStringLiteral("camera"), figures);
}

void ScriptedCamera::notifyWorkState()
{
    if (!takeWorkState()) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, id = m_devices.currentId(), works = m_workState.works] {
            m_listener.cameraWorkStateChanged(id, works);
        },
        Qt::QueuedConnection);
}

} // namespace Platform
