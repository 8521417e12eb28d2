// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedCamera.h"

#include "platform/backend/ResultDocument.h"
#include "platform/backend/ResultKeys.h"
#include "platform/backend/StallTimeout.h"
#include "platform/scripted/MissingFigure.h"
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
    m_patience.setSingleShot(true);
    m_patience.setInterval(CameraCause::StartTime);
    connect(&m_patience, &QTimer::timeout, this, &ScriptedCamera::notifyCause);

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

bool ScriptedCamera::delivers() const
{
    m_session.query("delivers");
    return isDelivering();
}

// Not in the log of calls: the preview asks, no page does.
CameraCause ScriptedCamera::cause() const
{
    return currentCause();
}

SoundServerState ScriptedCamera::serverState() const
{
    return m_devices.isServerLost() ? SoundServerState::Lost : SoundServerState::Running;
}

void ScriptedCamera::start()
{
    m_session.call("start");
    m_isStarted = true;
    m_startClock.start();
    m_patience.start();
    m_hasFrame = false;
    runFrames();
    takeWorkState();
    m_knownCause = currentCause();
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
    m_patience.stop();
    m_blackClock.invalidate();
    runFrames();
    takeWorkState();
    m_knownCause = {};
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
    m_blackClock.invalidate();
    m_hasFrame = false;
    m_startClock.start();
    if (m_isStarted) {
        m_patience.start();
    }
    m_frame = 0;
    m_pictures = 0;
    m_rate = {};
    m_blackFrames = 0;
    m_frozenFrames = 0;
    m_picture = {};
    runFrames();
    takeWorkState();
    notifyCause();
}

void ScriptedCamera::onFrame()
{
    const ScriptedCameras::Feed feed = m_devices.feed(m_devices.currentId());
    const bool isFrozen = m_frame > 0 && feed.pictures == ScriptedCameras::Pictures::Frozen;
    if (m_pictures == 0) {
        m_firstFrameMs = m_startClock.elapsed();
    }
    ++m_pictures;
    m_rate.add(static_cast<double>(m_startClock.elapsed()) / MsPerSecond);
    m_hasFrame = true;
    m_blackFrames += feed.pictures == ScriptedCameras::Pictures::Black ? 1 : 0;
    m_frozenFrames += isFrozen ? 1 : 0;
    if (!isFrozen) {
        ++m_frame;
        m_picture = {};
    }
    if (feed.pictures != ScriptedCameras::Pictures::Black) {
        m_blackClock.invalidate();
    } else if (!m_blackClock.isValid()) {
        m_blackClock.start();
    }
    m_frameTimer.setInterval(MsPerSecond / feed.framesPerSecond);
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

CameraCause ScriptedCamera::currentCause() const
{
    const CameraCause::Kind kind = m_isStarted ? causeKind() : CameraCause::Kind::None;
    return {kind, kind == CameraCause::Kind::Busy
                      ? printableName(m_devices.feed(m_devices.currentId()).program)
                      : QString()};
}

CameraCause::Kind ScriptedCamera::causeKind() const
{
    using Kind = CameraCause::Kind;
    if (m_devices.isServerLost()) {
        return Kind::ServerLost;
    }
    switch (currentState()) {
    case DeviceState::Absent:
        return m_devices.currentId().isEmpty() ? Kind::Absent : Kind::Unplugged;
    case DeviceState::Off:
        return Kind::None;
    case DeviceState::Denied:
        return Kind::Denied;
    case DeviceState::Failed:
        return Kind::Failed;
    case DeviceState::Unreadable:
        return Kind::Unreadable;
    case DeviceState::Busy:
        return Kind::Busy;
    case DeviceState::Hung:
        return Kind::Hung;
    case DeviceState::Working:
        return m_blackClock.isValid() &&
                       std::chrono::milliseconds(m_blackClock.elapsed()) >= CameraCause::BlackTime
                   ? Kind::Black
                   : Kind::None;
    case DeviceState::Silent:
    case DeviceState::Ready:
        break;
    }
    const bool mayStillCome =
        !m_hasFrame && m_patience.isActive() && m_devices.currentState() != DeviceState::Silent;
    return mayStillCome ? Kind::Starting : Kind::Stalled;
}

// As with a real camera, the watchdog notices a stall. A scripted state counts at once.
void ScriptedCamera::runFrames()
{
    if (m_isStarted && canDeliver()) {
        const ScriptedCameras::Feed feed = m_devices.feed(m_devices.currentId());
        const int startMs = m_hasFrame ? 0 : feed.startMs;
        m_frameTimer.start(startMs + MsPerSecond / feed.framesPerSecond);
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
    const QString word = toString(currentCause().kind);
    // Also if there is none: the one of the time before must not stay.
    figures.insert(ResultKeys::Cause, word.isEmpty() ? QJsonValue() : word);
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
        figures.insert(QStringLiteral("modes"), missingFigure());
    }
    if (!m_rate.series().isEmpty()) {
        figures.insert(QLatin1String(SeriesKeys::Rate), m_rate.series().toJson());
    }
    m_document.recordMeasurement(QStringLiteral("camera"), figures);
}

void ScriptedCamera::notifyCause()
{
    const CameraCause now = currentCause();
    if (now != m_knownCause) {
        m_knownCause = now;
        QMetaObject::invokeMethod(
            this, [this] { m_listener.cameraCauseChanged(); }, Qt::QueuedConnection);
    }
}

void ScriptedCamera::notifyWorkState()
{
    notifyCause();
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
