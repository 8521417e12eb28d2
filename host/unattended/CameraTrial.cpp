// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/CameraTrial.h"

#include "platform/backend/Engine.h"
#include "platform/backend/ResultKeys.h"

#include <utility>

namespace {

const QSize SampleSize(160, 120); // enough to see the noise of a sensor

} // namespace

CameraTrial::CameraTrial(Platform::Engine& engine, Platform::DeviceInfo device, Figures figures)
    : m_engine(engine), m_device(std::move(device)), m_figures(std::move(figures))
{
}

CameraTrial::~CameraTrial() = default;

void CameraTrial::start()
{
    m_clock.start();
    m_camera = m_engine.createCamera(*this);
    m_camera->setCurrent(m_device.id);
    m_camera->setOutputSize(SampleSize);
    m_camera->start();
}

bool CameraTrial::isOver()
{
    if (m_clock.elapsed() >= LongestMs || isExplained()) {
        return true;
    }
    const qint64 seenMs = m_sinceFrame.isValid() ? m_sinceFrame.elapsed() : 0;
    return m_cause.kind == Platform::CameraCause::Kind::None &&
           seenMs >= (m_hasMoved ? MovingMs : FrozenMs);
}

QJsonObject CameraTrial::finish()
{
    const QString program = m_camera->cause().program;
    m_camera->stop();
    QJsonObject figures = m_figures(kind());
    m_camera.reset();
    if (!program.isEmpty()) {
        figures.insert(ReportWords::of(FigureName::Program), program);
    }
    const bool isStill = m_sinceFrame.isValid() && m_sinceFrame.elapsed() >= FrozenMs;
    if (isStill && !m_hasMoved && figures.value(Platform::ResultKeys::Cause).toString().isEmpty()) {
        figures.insert(Platform::ResultKeys::Cause, ReportWords::of(Cause::Frozen));
    }
    return figures;
}

void CameraTrial::frameArrived()
{
    const QImage frame = m_camera->latestFrame();
    if (!m_sinceFrame.isValid()) {
        m_sinceFrame.start();
    } else {
        m_hasMoved = m_hasMoved || frame != m_frame;
    }
    m_frame = frame;
}

bool CameraTrial::isExplained()
{
    using Kind = Platform::CameraCause::Kind;
    const Platform::CameraCause cause = m_camera->cause();
    if (cause != m_cause) {
        m_cause = cause;
        m_sinceCause.start();
    }
    return cause.kind != Kind::None && cause.kind != Kind::Starting &&
           m_sinceCause.elapsed() >= SettleMs;
}
