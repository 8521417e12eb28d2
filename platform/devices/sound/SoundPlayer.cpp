// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundPlayer.h"

#include "platform/backend/ReportSink.h"
#include "platform/devices/sound/Mp3Decoder.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/sound/SoundPlayback.h"
#include "platform/devices/sound/SoundService.h"

#include <QFileInfo>
#include <QJsonObject>
#include <chrono>
#include <system_error>
#include <utility>

namespace Platform {

namespace {

// The reader stops after its current piece, unless the disk hangs.
constexpr std::chrono::milliseconds ReaderPatience(20);

const QLatin1String Check("speaker");
const QLatin1String SoundKey("soundPlayed");

} // namespace

SoundPlayer::SoundPlayer(std::shared_ptr<SoundService> server, const QString& path, float volume,
                         Listener& listener, ReportSink& report)
    : m_server(std::move(server)), m_listener(listener), m_report(report)
{
    m_report.recordMeasurement(Check, {{SoundKey, QFileInfo(path).completeBaseName()}});
    m_watchdog.setSingleShot(true);
    QObject::connect(&m_watchdog, &QTimer::timeout, &m_context,
                     [this] { fail(QStringLiteral("hung")); });
    m_watchdog.start(GraceMs);

    startReading(path, volume);
    QObject::connect(m_server.get(), &SoundService::changed, &m_context,
                     [this] { followSpeaker(); });
    followSpeaker();
}

SoundPlayer::~SoundPlayer()
{
    m_sound->cancel(); // from here on, the reader doesn't call the playback
    m_playback.reset();
    if (!m_reader.joinable()) {
        return;
    }
    if (m_readerEnd.wait_for(ReaderPatience) == std::future_status::ready) {
        m_reader.join();
    } else {
        m_reader.detach();
    }
}

void SoundPlayer::startReading(const QString& path, float volume)
{
    const Mailbox::Sender sender = m_mailbox.sender();
    m_sound = std::make_shared<SoundBuffer>([this, sender](bool hasEnded) {
        m_playback->soundAdvanced();
        if (hasEnded) {
            sender.post([this] { m_watchdog.start(m_sound->lengthMs() + GraceMs); });
        }
    });
    const auto ended = [this, sender](std::optional<DeviceState> failure) {
        sender.post([this, failure] { playbackEnded(failure); });
    };
    m_playback = m_server->createPlayback(m_sound, ended);

    // The reader shares nothing but the sound, so it can be abandoned if the disk hangs.
    std::packaged_task<void()> reading(
        [path, volume, sound = m_sound] { Mp3Decoder::decode(path, volume, *sound); });
    m_readerEnd = reading.get_future();
    try {
        m_reader = std::thread(std::move(reading));
    } catch (const std::system_error&) { // no thread can be made
        sender.post([this] { fail(toString(DeviceState::Failed)); });
    }
}

void SoundPlayer::followSpeaker()
{
    if (!m_server->isKnown()) {
        return;
    }
    const QString id = m_server->speakerId();
    if (id.isEmpty()) {
        m_mailbox.sender().post([this] { fail(toString(DeviceState::Absent)); });
    } else if (std::exchange(m_speakerId, id) != id) {
        m_playback->playOn(id);
    }
}

void SoundPlayer::playbackEnded(std::optional<DeviceState> failure)
{
    if (!m_speakerId.isEmpty() && m_sound->size() > 0) {
        m_server->setSpeakerFailure(m_speakerId, failure);
    }
    if (!failure && m_sound->size() > 0) {
        finish();
    } else {
        fail(toString(failure.value_or(DeviceState::Failed)));
    }
}

void SoundPlayer::fail(const QString& reason)
{
    if (!m_isFinished) {
        m_report.recordMeasurement(Check,
                                   {{SoundKey, QJsonObject{{QStringLiteral("failed"), reason}}}});
    }
    finish();
}

void SoundPlayer::finish()
{
    if (!std::exchange(m_isFinished, true)) {
        m_watchdog.stop();
        m_listener.playbackFinished();
    }
}

} // namespace Platform
