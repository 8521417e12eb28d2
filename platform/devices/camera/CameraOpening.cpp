// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraOpening.h"

#include "platform/backend/Log.h"
#include "platform/devices/camera/FrameSlot.h"

namespace Platform {

CameraOpening::CameraOpening(System& system, const Rules& rules, std::shared_ptr<FrameSlot> slot,
                             std::shared_ptr<CameraFeed::Listener> listener)
    : m_system(system), m_rules(rules), m_slot(std::move(slot)), m_listener(std::move(listener))
{
}

void CameraOpening::open(int generation, const QString& id)
{
    close();
    m_generation = generation;
    m_id = id;
    m_state = DeviceState::Ready;
    m_program.clear();
    m_isExplained = false;
    openIfPresent();
}

void CameraOpening::close()
{
    m_id.clear();
    dropStream();
}

// A stream that fails is opened again anyway.
void CameraOpening::reopen()
{
    if (m_phase == Phase::Starting || m_phase == Phase::Running) {
        dropStream();
        openIfPresent();
    }
}

void CameraOpening::forgetCamera()
{
    dropStream();
    report(DeviceState::Ready);
}

void CameraOpening::forgetCameraIfReplaced()
{
    if (m_system.serialOf(m_id) != m_serial) {
        forgetCamera();
        m_serial.clear();
    }
}

void CameraOpening::openIfPresent()
{
    if (m_phase != Phase::Idle || m_id.isEmpty()) {
        return;
    }
    const std::optional<QString> serial = m_system.serialOf(m_id);
    if (!serial) {
        return;
    }
    m_serial = *serial;
    m_isExplained = m_isExplained && m_rules.keepsReason;
    m_phase = Phase::Starting;
    if (!m_system.openStream(m_serial)) {
        m_system.cancelWake();
        m_phase = Phase::Idle;
    }
}

void CameraOpening::startBegan()
{
    if (m_phase == Phase::Starting) {
        m_system.wakeAfter(StartTimeout);
    }
}

void CameraOpening::streamRuns()
{
    if (m_phase == Phase::Starting || m_phase == Phase::Running) {
        m_slot->expectFrames(m_generation);
        wakeIn(Phase::Running, WatchPeriod);
    }
}

void CameraOpening::frameArrived()
{
    report(DeviceState::Working);
}

void CameraOpening::setReason(DeviceState state, const QString& program)
{
    report(state, program);
}

void CameraOpening::framesUnreadable(const QString& problem)
{
    qCInfo(Log::camera, "The camera's frames can't be read: %s", qUtf8Printable(problem));
    report(DeviceState::Unreadable);
}

void CameraOpening::streamEnded(std::optional<DeviceState> why, const QString& program)
{
    if (m_phase == Phase::Idle || m_phase == Phase::Retrying) {
        return;
    }
    if (why) {
        m_slot->interrupt(m_generation); // before the report: it must not count as delivering
        report(*why, program);
    }
    wakeIn(Phase::Ending, std::chrono::milliseconds(0)); // a stream can't be closed from inside
}

void CameraOpening::wake()
{
    switch (m_phase) {
    case Phase::Idle:
        break;
    case Phase::Starting:
        if (m_rules.retriesHungStart) {
            dropStream();
            wakeIn(Phase::Retrying, RetryDelay);
        }
        reportUnlessExplained(DeviceState::Hung);
        break;
    case Phase::Running:
        if (m_slot->delivers()) {
            report(DeviceState::Working);
        } else if (m_slot->isSilent()) {
            reportUnlessExplained(DeviceState::Silent);
        }
        m_system.wakeAfter(WatchPeriod);
        break;
    case Phase::Ending:
        dropStream();
        wakeIn(Phase::Retrying, RetryDelay);
        break;
    case Phase::Retrying:
        m_phase = Phase::Idle;
        openIfPresent();
        break;
    }
}

void CameraOpening::wakeIn(Phase phase, std::chrono::milliseconds delay)
{
    m_phase = phase;
    m_system.wakeAfter(delay);
}

void CameraOpening::dropStream()
{
    m_phase = Phase::Idle;
    m_system.cancelWake();
    m_system.closeStream();
    m_slot->interrupt(m_generation);
    if (m_state == DeviceState::Working || m_state == DeviceState::Silent) {
        report(DeviceState::Ready);
    }
}

// A reason says more than that no frames come.
void CameraOpening::reportUnlessExplained(DeviceState state)
{
    if (!m_isExplained) {
        report(state);
    }
}

void CameraOpening::report(DeviceState state, const QString& program)
{
    if (m_id.isEmpty()) {
        return;
    }
    m_isExplained = !isUsable(state) || state == DeviceState::Busy;
    if (m_state != state || m_program != program) {
        m_state = state;
        m_program = program;
        m_listener->stateChanged(m_generation, state, program);
    }
}

} // namespace Platform
