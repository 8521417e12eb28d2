// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulsePlayer.h"

#include "platform/backend/ReportSink.h"
#include "platform/devices/pulse/PulsePlayback.h"
#include "platform/devices/pulse/PulseServer.h"
#include "platform/devices/sound/Mp3Decoder.h"
#include "platform/devices/sound/SoundBuffer.h"

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

PulsePlayer::PulsePlayer(std::shared_ptr<PulseServer> server, const QString& path, float volume,
                         Listener& listener, ReportSink& report)
    : m_server(std::move(server)), m_listener(listener), m_report(report)
{
    m_report.recordMeasurement(Check, {{SoundKey, QFileInfo(path).completeBaseName()}});
    m_watchdog.setSingleShot(true);
    QObject::connect(&m_watchdog, &QTimer::timeout, &m_context,
                     [this] { fail(QStringLiteral("hung")); });
    m_watchdog.start(GraceMs);

    startReading(path, volume);
    QObject::connect(m_server.get(), &PulseServer::changed, &m_context,
                     [this] { followSpeaker(); });
    followSpeaker();
}

PulsePlayer::~PulsePlayer()
{
    m_sound->cancel();
    PulseConnection& connection = m_server->connection();
    connection.run([&connection, playback = m_playback] {
        playback->stop();
        connection.remove(playback);
    });
    if (!m_reader.joinable()) {
        return;
    }
    if (m_readerEnd.wait_for(ReaderPatience) == std::future_status::ready) {
        m_reader.join();
    } else {
        m_reader.detach();
    }
}

void PulsePlayer::startReading(const QString& path, float volume)
{
    PulseConnection& connection = m_server->connection();
    const Mailbox::Sender sender = m_mailbox.sender();
    // The sound is created before its playback, so its callback finds the playback by this pointer.
    const auto playback = std::make_shared<std::weak_ptr<PulsePlayback>>();
    m_sound = std::make_shared<SoundBuffer>([this, &connection, sender, playback](bool hasEnded) {
        connection.run([playback] {
            if (const auto alive = playback->lock()) {
                alive->soundAdvanced();
            }
        });
        if (hasEnded) {
            sender.post([this] { m_watchdog.start(m_sound->lengthMs() + GraceMs); });
        }
    });
    m_playback = std::make_shared<PulsePlayback>(connection, m_sound, [this, sender](bool isGood) {
        sender.post([this, isGood] { playbackEnded(isGood); });
    });
    *playback = m_playback;
    connection.run([&connection, added = m_playback] { connection.add(added); });

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

void PulsePlayer::followSpeaker()
{
    if (!m_server->isKnown()) {
        return;
    }
    const QString id = m_server->speakerId();
    if (id.isEmpty()) {
        m_mailbox.sender().post([this] { fail(toString(DeviceState::Absent)); });
    } else if (std::exchange(m_speakerId, id) != id) {
        m_server->connection().run([playback = m_playback, id] { playback->playOn(id); });
    }
}

void PulsePlayer::playbackEnded(bool isGood)
{
    if (!m_speakerId.isEmpty() && m_sound->size() > 0) {
        m_server->setSpeakerFailed(m_speakerId, !isGood);
    }
    if (isGood && m_sound->size() > 0) {
        finish();
    } else {
        fail(toString(DeviceState::Failed));
    }
}

void PulsePlayer::fail(const QString& reason)
{
    if (!m_isFinished) {
        m_report.recordMeasurement(Check,
                                   {{SoundKey, QJsonObject{{QStringLiteral("failed"), reason}}}});
    }
    finish();
}

void PulsePlayer::finish()
{
    if (!std::exchange(m_isFinished, true)) {
        m_watchdog.stop();
        m_listener.playbackFinished();
    }
}

} // namespace Platform
