// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundAcousticLoop.h"

#include "platform/devices/sound/MicrophoneAnalysis.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/sound/SoundCapture.h"
#include "platform/devices/sound/SoundPlayback.h"
#include "platform/devices/sound/SoundService.h"
#include "platform/devices/sound/Sweep.h"
#include "platform/devices/sound/SweepRecording.h"

#include <utility>

namespace Platform {

namespace {

constexpr unsigned Rate = SoundCapture::Rate;

std::shared_ptr<SoundBuffer> sweepSound()
{
    const std::vector<float> samples = Sweep::samples(Rate);
    auto sound = std::make_shared<SoundBuffer>();
    sound->begin({Rate, 1});
    sound->append(samples.data(), samples.size());
    sound->end();
    return sound;
}

QString obstacleOf(const SoundDevice* device)
{
    if (!device) {
        return toString(DeviceState::Absent);
    }
    if (device->volume.isMuted) {
        return QStringLiteral("muted");
    }
    return device->volume.percent > 0 ? QString() : QStringLiteral("volumeZero");
}

} // namespace

SoundAcousticLoop::SoundAcousticLoop(std::shared_ptr<SoundService> server, QString speakerId,
                                     QString microphoneId)
    : m_server(std::move(server)),
      m_speakerId(std::move(speakerId)),
      m_microphoneId(std::move(microphoneId)),
      m_recording(std::make_shared<SweepRecording>(Rate))
{
    const auto after = [this](QTimer& timer, int milliseconds, auto function) {
        timer.setSingleShot(true);
        timer.setInterval(milliseconds);
        QObject::connect(&timer, &QTimer::timeout, &m_context, function);
    };
    after(m_deadline, LongestMs, [this] { fail(toString(DeviceState::Hung)); });
    after(m_breakage, SettleMs, [this] { fail(toString(m_breakageReason)); });
    after(m_echo, EchoMs, [this] { search(); });
    m_deadline.start();
    QObject::connect(m_server.get(), &SoundService::changed, &m_context, [this] { update(); });
    update();
}

SoundAcousticLoop::~SoundAcousticLoop()
{
    closeStreams();
}

void SoundAcousticLoop::update()
{
    if (m_outcome || !m_server->isKnown()) {
        return;
    }
    const QString reason = obstacle();
    if (!reason.isEmpty()) {
        fail(reason);
    } else if (!m_capture) {
        record();
    }
}

QString SoundAcousticLoop::obstacle() const
{
    const SoundDevices& devices = m_server->devices();
    const QString trouble = toString(devices.server);
    if (!trouble.isEmpty()) {
        return trouble;
    }
    const QString ofSpeaker = obstacleOf(devices.speakers.find(m_speakerId));
    return ofSpeaker.isEmpty() ? obstacleOf(devices.microphones.find(m_microphoneId)) : ofSpeaker;
}

void SoundAcousticLoop::record()
{
    const Mailbox::Sender sender = m_mailbox.sender();
    SoundCapture::Events events;
    events.metered.levelMeasured = [](double) {};
    events.metered.soundHeard = [] {};
    events.metered.deliveryChanged = [this, sender](bool delivers) {
        sender.post([this, delivers] { deliveryChanged(delivers); });
    };
    events.failed = [this, sender](DeviceState reason) {
        sender.post([this, reason] { streamBroke(reason); });
    };
    events.recorded = [recording = m_recording](const std::vector<float>& mono,
                                                CaptureMeter::Clock::time_point now) {
        recording->add(mono, now);
    };
    m_capture = m_server->createCapture();
    m_capture->open(m_microphoneId, std::make_shared<MicrophoneAnalysis>(Rate), std::move(events));
}

void SoundAcousticLoop::deliveryChanged(bool delivers)
{
    m_delivers = delivers;
    if (delivers && !m_playback && !m_outcome) {
        play();
    }
}

void SoundAcousticLoop::play()
{
    const auto ended = [this, sender = m_mailbox.sender()](std::optional<DeviceState> failure) {
        sender.post([this, failure] { playbackEnded(failure); });
    };
    m_playback = m_server->createPlayback(sweepSound(), ended);
    m_playback->playOn(m_speakerId);
}

void SoundAcousticLoop::playbackEnded(std::optional<DeviceState> failure)
{
    if (failure) {
        streamBroke(*failure);
    } else if (!m_outcome) {
        m_echo.start();
    }
}

void SoundAcousticLoop::streamBroke(DeviceState reason)
{
    if (!m_outcome) {
        m_breakageReason = reason;
        m_breakage.start();
    }
}

// On the sound thread: it has nothing else to do meanwhile, and the GUI thread never waits.
void SoundAcousticLoop::search()
{
    if (!m_delivers) {
        fail(toString(DeviceState::Hung));
        return;
    }
    m_capture->close(
        [this, sender = m_mailbox.sender(), begin = m_playback->begin(), recording = m_recording] {
            const LoopOutcome found = recording->outcome(begin);
            sender.post([this, found] { finish(found); });
        });
}

void SoundAcousticLoop::finish(const LoopOutcome& outcome)
{
    if (!m_outcome) {
        m_outcome = outcome;
        m_deadline.stop();
        m_breakage.stop();
        m_echo.stop();
        closeStreams();
    }
}

void SoundAcousticLoop::fail(const QString& reason)
{
    finish({LoopOutcome::Result::NotTried, 0, 0, reason});
}

void SoundAcousticLoop::closeStreams()
{
    m_capture.reset();
    m_playback.reset();
}

} // namespace Platform
