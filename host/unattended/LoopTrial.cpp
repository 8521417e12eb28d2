// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/LoopTrial.h"

#include "platform/backend/AcousticLoop.h"
#include "platform/backend/Engine.h"
#include "platform/backend/ResultKeys.h"

#include <cmath>
#include <utility>

namespace {

namespace ResultKeys = Platform::ResultKeys;
using Result = Platform::LoopOutcome::Result;

double rounded(double value)
{
    constexpr double Steps = 10.0;
    return std::round(Steps * value) / Steps;
}

QString wordOf(Result result)
{
    return ReportWords::of(result == Result::Heard      ? Verdict::Heard
                           : result == Result::NotHeard ? Verdict::NotHeard
                                                        : Verdict::NotTried);
}

} // namespace

LoopTrial::LoopTrial(Platform::Engine& engine, Platform::DeviceInfo speaker,
                     Platform::DeviceInfo microphone)
    : m_engine(engine), m_speaker(std::move(speaker)), m_microphone(std::move(microphone))
{
}

LoopTrial::~LoopTrial() = default;

void LoopTrial::start()
{
    m_clock.start();
    if (auto* maker = dynamic_cast<Platform::AcousticLoopMaker*>(&m_engine)) {
        m_loop = maker->createAcousticLoop(m_speaker.id, m_microphone.id);
    }
}

bool LoopTrial::isOver()
{
    return !m_loop || m_loop->outcome() || m_clock.elapsed() >= LongestMs;
}

QJsonObject LoopTrial::finish()
{
    Platform::LoopOutcome outcome;
    outcome.reason = ReportWords::of(m_loop ? Reason::Hung : Reason::NotOffered);
    if (m_loop) {
        outcome = m_loop->outcome().value_or(outcome);
    }
    m_loop.reset();
    QJsonObject figures{{ResultKeys::State, wordOf(outcome.result)}};
    if (!m_speaker.name.isEmpty()) {
        figures.insert(ReportWords::of(FigureName::LoopSpeaker), m_speaker.name);
    }
    if (!m_microphone.name.isEmpty()) {
        figures.insert(ReportWords::of(FigureName::LoopMicrophone), m_microphone.name);
    }
    const QString delayKey = ReportWords::of(FigureName::LoopDelay);
    if (outcome.result == Result::Heard) {
        figures.insert(delayKey, rounded(outcome.delayMs));
        figures.insert(ReportWords::of(FigureName::LoopLevel), rounded(outcome.levelDb));
    } else if (outcome.result == Result::NotTried) {
        figures.insert(ResultKeys::Cause, outcome.reason);
        figures.insert(delayKey,
                       QJsonObject{{ReportWords::of(FigureStatus::NotMeasured), outcome.reason}});
    }
    return figures;
}
