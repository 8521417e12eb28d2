// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/UnattendedCheck.h"

#include "host/DeviceSurvey.h"
#include "host/TerminationSignals.h"
#include "host/report/ReportBuilder.h"
#include "host/unattended/CameraTrial.h"
#include "host/unattended/LoopTrial.h"
#include "host/unattended/MicrophoneTrial.h"
#include "host/unattended/NetworkTrial.h"
#include "host/unattended/SpeakerTrial.h"
#include "host/unattended/TrialVerdict.h"
#include "platform/backend/Engine.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace {

constexpr int LookEveryMs = 50;

} // namespace

UnattendedCheck::UnattendedCheck(Platform::Engine& engine, Trial::Figures figures, Noise noise)
    : m_engine(engine), m_figures(std::move(figures)), m_noise(noise)
{
}

UnattendedCheck::~UnattendedCheck() = default;

void UnattendedCheck::run()
{
    m_entries.emplace_back();
    m_entries.back().trial = std::make_unique<NetworkTrial>(m_engine, m_figures);
    m_clock.start();
    startNext(); // the network needs the longest time
    const DeviceSurvey survey = DeviceSurvey::of(m_engine);
    if (!TerminationSignals::haveArrived()) {
        addDevices(survey);
        if (m_noise == Noise::Sweep) {
            addLoop(survey);
        }
        startNext();
        QEventLoop loop;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &loop, [this, &loop] {
            finishOver();
            startNext();
            if (isAllFinished() || m_clock.elapsed() >= LongestMs) {
                loop.quit();
            }
        });
        look.start(LookEveryMs);
        loop.exec();
    }
    m_wasBrokenOff = TerminationSignals::haveArrived() && !isAllFinished();
    for (Entry& entry : m_entries) {
        if (!entry.isFinished) {
            finish(entry, false);
        }
        m_checks.push_back(std::move(entry.check));
    }
    m_entries.clear();
}

bool UnattendedCheck::isServiceMissing() const
{
    return std::any_of(m_checks.begin(), m_checks.end(), [](const ReportCheck& check) {
        return check.has(Cause::NoServer) || check.has(Cause::ServerLost) ||
               check.has(Cause::ServerSilent) || check.has(Cause::NotBuilt);
    });
}

RunEnd UnattendedCheck::outcome() const
{
    if (m_wasBrokenOff) {
        return RunEnd::BrokenOff;
    }
    if (isServiceMissing()) {
        return RunEnd::Unavailable;
    }
    const bool doAllWork =
        std::all_of(m_checks.begin(), m_checks.end(),
                    [](const ReportCheck& check) { return isGood(check.verdict); });
    return doAllWork ? RunEnd::Works : RunEnd::Faulty;
}

void UnattendedCheck::addDevices(const DeviceSurvey& survey)
{
    const auto add = [this, &survey](CheckKind kind, const DeviceSurvey::Devices& devices,
                                     const auto& makeTrial) {
        if (const std::optional<Cause> absence = survey.absenceOf(kind)) {
            addAbsence(kind, *absence);
        }
        for (const DeviceSurvey::Device& device : devices) {
            m_entries.emplace_back();
            m_entries.back().trial = makeTrial(device.info);
        }
    };
    add(CheckKind::Camera, survey.cameras, [this](const Platform::DeviceInfo& device) {
        return std::make_unique<CameraTrial>(m_engine, device, m_figures);
    });
    add(CheckKind::Speaker, survey.speakers, [this](const Platform::DeviceInfo& device) {
        return std::make_unique<SpeakerTrial>(m_engine, device, m_figures);
    });
    add(CheckKind::Microphone, survey.microphones, [this](const Platform::DeviceInfo& device) {
        return std::make_unique<MicrophoneTrial>(m_engine, device, m_figures);
    });
}

// The chosen devices as they are before the trials choose others.
void UnattendedCheck::addLoop(const DeviceSurvey& survey)
{
    const auto chosen = [](const DeviceSurvey::Devices& devices) {
        const auto found =
            std::find_if(devices.begin(), devices.end(),
                         [](const DeviceSurvey::Device& device) { return device.isCurrent; });
        return found == devices.end() ? Platform::DeviceInfo() : found->info;
    };
    m_entries.emplace_back();
    m_entries.back().trial =
        std::make_unique<LoopTrial>(m_engine, chosen(survey.speakers), chosen(survey.microphones));
}

void UnattendedCheck::addAbsence(CheckKind kind, Cause cause)
{
    Entry entry;
    entry.isFinished = true;
    entry.check.kind = kind;
    entry.check.verdict = Verdict::Faulty;
    entry.check.deviceState = SeenState::Fails;
    entry.check.causes = {cause};
    m_entries.push_back(std::move(entry));
}

void UnattendedCheck::startNext()
{
    for (Entry& entry : m_entries) {
        if (!entry.isStarted && !entry.isFinished && mayStart(entry)) {
            entry.isStarted = true;
            entry.trial->start();
        }
    }
}

void UnattendedCheck::finishOver()
{
    for (Entry& entry : m_entries) {
        if (entry.isStarted && !entry.isFinished && entry.trial->isOver()) {
            finish(entry, true);
        }
    }
}

void UnattendedCheck::finish(Entry& entry, bool hasEnded)
{
    const CheckKind kind = entry.trial->kind();
    const QJsonObject figures = entry.isStarted ? entry.trial->finish() : QJsonObject();
    const TrialVerdict verdict = TrialVerdict::of(kind, figures, hasEnded);
    entry.isFinished = true;
    entry.check.kind = kind;
    entry.check.device = entry.trial->device();
    entry.check.verdict = verdict.verdict;
    entry.check.causes = verdict.causes;
    entry.check.deviceState = isGood(verdict.verdict)  ? SeenState::Works
                              : isBad(verdict.verdict) ? SeenState::Fails
                                                       : SeenState::Unknown;
    entry.check.measurements = ReportBuilder::measuredOf(kind, figures);
    if (kind == CheckKind::Network) {
        m_networkFigures = figures;
    }
    entry.trial.reset();
}

// Devices of a kind are measured one after the other if the engine has one chosen device for all
// sessions. For speakers, every engine has. The sweep comes when no microphone is measured any
// more, and no speaker is chosen.
bool UnattendedCheck::mayStart(const Entry& entry) const
{
    const CheckKind kind = entry.trial->kind();
    if (kind == CheckKind::Loop) {
        return std::all_of(m_entries.begin(), m_entries.end(), [](const Entry& other) {
            return other.isFinished || (other.trial->kind() != CheckKind::Speaker &&
                                        other.trial->kind() != CheckKind::Microphone);
        });
    }
    return (m_engine.hasOwnChoices() && kind != CheckKind::Speaker) ||
           std::none_of(m_entries.begin(), m_entries.end(), [kind](const Entry& other) {
               return other.isStarted && !other.isFinished && other.trial->kind() == kind;
           });
}

bool UnattendedCheck::isAllFinished() const
{
    return std::all_of(m_entries.begin(), m_entries.end(),
                       [](const Entry& entry) { return entry.isFinished; });
}
