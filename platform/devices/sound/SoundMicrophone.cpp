// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundMicrophone.h"

#include "platform/backend/ReportSink.h"
#include "platform/devices/sound/MicrophoneAnalysis.h"
#include "platform/devices/sound/SoundCapture.h"
#include "platform/devices/sound/SoundService.h"

#include <utility>

namespace Platform {

namespace {

constexpr std::chrono::seconds RetryDelay(1);

} // namespace

SoundMicrophone::SoundMicrophone(std::shared_ptr<SoundService> server, Listener& listener,
                                 ReportSink& report)
    : m_server(std::move(server)),
      m_listener(listener),
      m_report(report),
      m_volume(m_server->maximumVolume(SoundKind::Microphone)),
      m_capture(m_server->createCapture()),
      m_retry(RetryDelay, [this] { updateCapture(); })
{
    QObject::connect(m_server.get(), &SoundService::changed, &m_context, [this] { update(); });
    update();
}

SoundMicrophone::~SoundMicrophone()
{
    close();
}

QString SoundMicrophone::currentName() const
{
    const QString listed = nameIn(m_list, m_id);
    return listed.isEmpty() ? m_name : listed;
}

void SoundMicrophone::setCurrent(const QString& id)
{
    m_chosenId = id;
    m_retry.forgetFailure();
    m_mailbox.sender().post([this] { update(); });
}

DeviceState SoundMicrophone::state() const
{
    if (m_chosenId && m_chosenId->isEmpty()) {
        return DeviceState::Off;
    }
    if (!device()) {
        return DeviceState::Absent;
    }
    if (const std::optional<DeviceState> failure = m_retry.failure()) {
        return *failure;
    }
    if (!m_isCapturing) {
        return DeviceState::Ready;
    }
    if (m_hasStalled) {
        return DeviceState::Hung;
    }
    return m_hasHeardSound ? DeviceState::Working : DeviceState::Silent;
}

DeviceState SoundMicrophone::stateOf(const QString& id) const
{
    return id == m_id ? state() : m_server->devices().microphones.stateOf(id);
}

void SoundMicrophone::open()
{
    m_isOpen = true;
    updateCapture();
}

void SoundMicrophone::close()
{
    if (m_isOpen && !m_isCapturing) {
        recordMeasurement(); // says why nothing was measured
    }
    m_isOpen = false;
    updateCapture();
    updateListening();
}

void SoundMicrophone::setListening(bool on)
{
    m_isListening = on;
    updateListening();
}

int SoundMicrophone::volumeOf(const QString& id) const
{
    return m_volume.percentOf(m_server->devices().microphones.volumeOf(id));
}

void SoundMicrophone::setVolume(int percent)
{
    if (device()) {
        m_volume.await(m_server->setVolume(SoundKind::Microphone, m_id, m_volume.set(percent)));
        m_mailbox.sender().post([this] { m_listener.microphoneVolumeChanged(volume()); });
    }
}

const SoundDevice* SoundMicrophone::device() const
{
    return m_server->devices().microphones.find(m_id);
}

// As for speakers, the state changes before the listener is called.
void SoundMicrophone::update()
{
    const SoundSide& microphones = m_server->devices().microphones;
    const Mailbox::Sender sender = m_mailbox.sender();
    const DeviceList list = microphones.list();
    m_default.take(microphones.defaultName());
    const SoundServerState serverState = m_server->devices().server;
    const bool isListChanged = !(m_list == list) || m_serverState != serverState;
    // Without a server, nobody knows whether the chosen one is there: none is the current one.
    const bool isServerThere = toString(serverState).isEmpty();
    const QString id = isServerThere ? m_chosenId.value_or(microphones.preferredId()) : QString();
    const bool isOther = m_id != id;
    if (isOther) {
        endCapture();
        m_retry.forgetFailure();
        m_hasHeardSound = false;
    }
    m_list = list;
    m_serverState = serverState;
    m_id = id;
    if (isListChanged) {
        sender.post([this] { m_listener.microphoneListChanged(); });
    }
    // Whoever refills a list of devices has to select the current device in it again.
    if (isOther || isListChanged) {
        sender.post([this] { m_listener.currentMicrophoneChanged(m_id); });
    }
    updateInfo(device(), isOther);
    updateCapture();
    updateListening();
    updateWorkState();
}

void SoundMicrophone::updateInfo(const SoundDevice* current, bool isOther)
{
    const bool isArrival = isOther || (current && !m_isPresent);
    m_isPresent = current != nullptr;
    if (isArrival) {
        m_volume.reset(current ? current->volume : VolumeState());
    }
    const SoundDevice info = current ? *current : SoundDevice();
    const bool isInfoChanged = m_name != info.name || m_isMuted != info.volume.isMuted ||
                               m_isAdjustable != info.isAdjustable;
    if (current || isOther) {
        m_name = info.name;
        m_isMuted = info.volume.isMuted;
        m_isAdjustable = info.isAdjustable;
        if (isArrival || isInfoChanged) {
            m_mailbox.sender().post([this] { m_listener.microphoneInfoChanged(); });
        }
    }
    if (current && !isArrival &&
        m_volume.take(current->volume, m_server->devices().microphones.settledOrder)) {
        const auto percent =
            static_cast<float>(current->volume.isMuted ? 0.0 : current->volume.percent);
        m_mailbox.sender().post([this, percent] { m_listener.systemVolumeChanged(percent); });
    }
}

// Opens or closes the stream as needed. Whether the device is there is read from the device list:
// some servers move the stream of a lost device to another one and don't report it.
void SoundMicrophone::updateCapture()
{
    const bool isWanted = m_isOpen && device();
    if (!isWanted) {
        endCapture();
        m_retry.cancel();
    } else if (!m_isCapturing && !m_retry.isWaiting()) {
        startCapture();
    }
    updateWorkState();
}

void SoundMicrophone::startCapture()
{
    m_isCapturing = true;
    m_hasStalled = false;
    m_analysis = std::make_shared<MicrophoneAnalysis>(SoundCapture::Rate);
    const Mailbox::Sender sender = m_mailbox.sender();
    const int opening = ++m_opening;
    const auto post = [this, sender, opening](auto letter) {
        sender.post([this, opening, letter] {
            if (opening == m_opening) {
                letter();
            }
        });
    };
    SoundCapture::Events events;
    events.metered.levelMeasured = [this, post](double level) {
        post([this, level] { m_listener.levelMeasured(level); });
    };
    events.metered.soundHeard = [this, post] {
        post([this] {
            m_hasHeardSound = true;
            updateWorkState();
        });
    };
    events.metered.deliveryChanged = [this, post](bool delivers) {
        post([this, delivers] {
            m_hasStalled = !delivers;
            if (delivers) {
                m_retry.forgetFailure();
            }
            updateWorkState();
        });
    };
    events.failed = [this, post](DeviceState reason) {
        post([this, reason] {
            endCapture();
            m_retry.streamBroke(reason);
            updateWorkState();
        });
    };
    m_capture->open(m_id, m_analysis, std::move(events));
    updateListening();
}

// The level drops at once. Messages that are still on their way belong to an ended opening.
void SoundMicrophone::endCapture()
{
    if (!m_isCapturing) {
        return;
    }
    recordMeasurement();
    m_isCapturing = false;
    ++m_opening;
    m_analysis.reset();
    m_capture->close();
    m_mailbox.sender().post([this] {
        if (!m_isCapturing) {
            m_listener.levelMeasured(0.0);
        }
    });
}

void SoundMicrophone::updateListening()
{
    const QString speakerId = m_isListening && m_isCapturing ? m_server->speakerId() : QString();
    if (std::exchange(m_listeningOn, speakerId) != speakerId) {
        m_capture->listenOn(speakerId);
    }
}

void SoundMicrophone::updateWorkState()
{
    const bool usable = isUsable(state());
    if (m_wasUsable != usable || m_hadHeardSound != m_hasHeardSound) {
        m_wasUsable = usable;
        m_hadHeardSound = m_hasHeardSound;
        m_mailbox.sender().post(
            [this] { m_listener.microphoneWorkStateChanged(m_id, hasHeardSound()); });
    }
}

void SoundMicrophone::recordMeasurement() const
{
    QJsonObject figures;
    if (m_analysis) {
        figures = m_analysis->figures();
        figures.insert(QStringLiteral("soundHeard"), m_hasHeardSound);
    }
    if (!m_id.isEmpty()) {
        m_volume.addTo(figures);
        figures.insert(QStringLiteral("device"), currentName());
    }
    m_default.addTo(figures);
    figures.insert(QStringLiteral("state"), toString(m_serverState, state()));
    m_report.recordMeasurement(QStringLiteral("microphone"), figures);
}

} // namespace Platform
