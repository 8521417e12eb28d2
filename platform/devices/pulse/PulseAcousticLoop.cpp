// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseAcousticLoop.h"

#include "platform/devices/pulse/PulseCapture.h"
#include "platform/devices/pulse/PulsePlayback.h"
#include "platform/devices/pulse/PulseServer.h"
#include "platform/devices/sound/MicrophoneAnalysis.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/sound/Sweep.h"
#include "platform/devices/sound/SweepRecording.h"

#include <utility>

namespace Platform {

namespace {

constexpr unsigned Rate = PulseCapture::Rate;

std::shared_ptr<SoundBuffer> sweepSound()
{
    const std::vector<float> samples = Sweep::samples(Rate);
    auto sound = std::make_shared<SoundBuffer>();
    sound->begin({Rate, 1});
    sound->append(samples.data(), samples.size());
    sound->end();
    return sound;
}

QString obstacleOf(const PulseDevice* device)
{
    if (!device) {
        return toString(DeviceState::Absent);
    }
    if (device->isMuted) {
        return QStringLiteral("muted");
    }
    return device->volumeState().percent > 0 ? QString() : QStringLiteral("volumeZero");
}

} // namespace

PulseAcousticLoop::PulseAcousticLoop(std::shared_ptr<PulseServer> server, QString speakerId,
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
    after(m_breakage, SettleMs, [this] { fail(toString(DeviceState::Failed)); });
    after(m_echo, EchoMs, [this] { search(); });
    m_deadline.start();
    QObject::connect(m_server.get(), &PulseServer::changed, &m_context, [this] { update(); });
    update();
}

PulseAcousticLoop::~PulseAcousticLoop()
{
    closeStreams();
}

void PulseAcousticLoop::update()
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

QString PulseAcousticLoop::obstacle() const
{
    const PulseDevices& devices = m_server->devices();
    const QString trouble = toString(devices.server);
    if (!trouble.isEmpty()) {
        return trouble;
    }
    const QString ofSpeaker = obstacleOf(devices.speakers.find(m_speakerId));
    return ofSpeaker.isEmpty() ? obstacleOf(devices.microphones.find(m_microphoneId)) : ofSpeaker;
}

void PulseAcousticLoop::record()
{
    PulseConnection& connection = m_server->connection();
    const Mailbox::Sender sender = m_mailbox.sender();
    PulseCapture::Events events;
    events.metered.levelMeasured = [](double) {};
    events.metered.soundHeard = [] {};
    events.metered.deliveryChanged = [this, sender](bool delivers) {
        sender.post([this, delivers] { deliveryChanged(delivers); });
    };
    events.failed = [this, sender] { sender.post([this] { m_breakage.start(); }); };
    events.recorded = [recording = m_recording](const std::vector<float>& mono,
                                                CaptureMeter::Clock::time_point now) {
        recording->add(mono, now);
    };
    m_capture = std::make_shared<PulseCapture>(connection);
    connection.run([&connection, capture = m_capture, id = m_microphoneId, events] {
        connection.add(capture);
        capture->open(id, std::make_shared<MicrophoneAnalysis>(Rate), events);
    });
}

void PulseAcousticLoop::deliveryChanged(bool delivers)
{
    m_delivers = delivers;
    if (delivers && !m_playback && !m_outcome) {
        play();
    }
}

void PulseAcousticLoop::play()
{
    PulseConnection& connection = m_server->connection();
    m_playback = std::make_shared<PulsePlayback>(
        connection, sweepSound(), [this, sender = m_mailbox.sender()](bool isGood) {
            sender.post([this, isGood] { playbackEnded(isGood); });
        });
    connection.run([&connection, playback = m_playback, id = m_speakerId] {
        connection.add(playback);
        playback->playOn(id);
    });
}

void PulseAcousticLoop::playbackEnded(bool isGood)
{
    if (!m_outcome) {
        (isGood ? m_echo : m_breakage).start();
    }
}

// On the sound thread: it has nothing else to do meanwhile, and the GUI thread never waits.
void PulseAcousticLoop::search()
{
    if (!m_delivers) {
        fail(toString(DeviceState::Hung));
        return;
    }
    m_server->connection().run([this, sender = m_mailbox.sender(), capture = m_capture,
                                playback = m_playback, recording = m_recording] {
        capture->close();
        const LoopOutcome found = recording->outcome(playback->begin());
        sender.post([this, found] { finish(found); });
    });
}

void PulseAcousticLoop::finish(const LoopOutcome& outcome)
{
    if (!m_outcome) {
        m_outcome = outcome;
        m_deadline.stop();
        m_breakage.stop();
        m_echo.stop();
        closeStreams();
    }
}

void PulseAcousticLoop::fail(const QString& reason)
{
    finish({LoopOutcome::Result::NotTried, 0, 0, reason});
}

void PulseAcousticLoop::closeStreams()
{
    PulseConnection& connection = m_server->connection();
    if (m_capture) {
        connection.run([&connection, capture = std::move(m_capture)] {
            capture->close();
            connection.remove(capture);
        });
    }
    if (m_playback) {
        connection.run([&connection, playback = std::move(m_playback)] {
            playback->stop();
            connection.remove(playback);
        });
    }
}

} // namespace Platform
