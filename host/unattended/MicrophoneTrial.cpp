// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/MicrophoneTrial.h"

#include "platform/backend/Engine.h"

#include <utility>

MicrophoneTrial::MicrophoneTrial(Platform::Engine& engine, Platform::DeviceInfo device,
                                 Figures figures)
    : m_engine(engine), m_device(std::move(device)), m_figures(std::move(figures))
{
}

MicrophoneTrial::~MicrophoneTrial() = default;

void MicrophoneTrial::start()
{
    m_clock.start();
    m_microphone = m_engine.createMicrophone(*this);
    m_microphone->setCurrent(m_device.id);
}

bool MicrophoneTrial::isOver()
{
    // The choice may need the event loop. Another microphone is never opened.
    if (!m_sinceOpened.isValid() && m_microphone->currentId() == m_device.id) {
        m_sinceOpened.start();
        m_microphone->open();
    }
    const bool isMeasured = m_sinceLevel.isValid() && m_sinceLevel.elapsed() >= MeasureMs;
    return isMeasured || isRefused() || m_clock.elapsed() >= LongestMs;
}

QJsonObject MicrophoneTrial::finish()
{
    if (!m_sinceOpened.isValid()) {
        m_microphone.reset();
        return {};
    }
    m_microphone->close();
    const QJsonObject figures = m_figures(kind());
    m_microphone.reset();
    return figures;
}

void MicrophoneTrial::levelMeasured(double)
{
    if (m_sinceOpened.isValid() && !m_sinceLevel.isValid()) {
        m_sinceLevel.start();
    }
}

bool MicrophoneTrial::isRefused() const
{
    return m_sinceOpened.isValid() && m_sinceOpened.elapsed() >= SettleMs &&
           !Platform::isUsable(m_microphone->state());
}
