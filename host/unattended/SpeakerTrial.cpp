// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/SpeakerTrial.h"

#include "platform/backend/Engine.h"

#include <utility>

SpeakerTrial::SpeakerTrial(Platform::Engine& engine, Platform::DeviceInfo device, Figures figures)
    : m_engine(engine), m_device(std::move(device)), m_figures(std::move(figures))
{
}

SpeakerTrial::~SpeakerTrial() = default;

void SpeakerTrial::start()
{
    m_clock.start();
    m_speaker = m_engine.createSpeaker(*this);
    m_speaker->setCurrent(m_device.id);
}

bool SpeakerTrial::isOver()
{
    const bool isKnown = m_speaker->currentId() == m_device.id && m_clock.elapsed() >= SettleMs;
    return isKnown || m_clock.elapsed() >= LongestMs;
}

QJsonObject SpeakerTrial::finish()
{
    const bool isKnown = m_speaker->currentId() == m_device.id;
    m_speaker.reset();
    return isKnown ? m_figures(kind()) : QJsonObject();
}
