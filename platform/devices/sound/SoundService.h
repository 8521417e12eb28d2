// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/sound/SoundDevices.h"
#include "platform/devices/sound/SoundPlayback.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

namespace Platform {

class SoundBuffer;
class SoundCapture;

// The sound server as the GUI thread sees it: the last list of devices, and the user's choice of a
// speaker. All speakers, microphones and players of the process share it. The first of them creates
// it, the last one destroys it. GUI thread only. What talks to the server is in derived classes.
class SoundService : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SoundService)

public:
    ~SoundService() override;

    // Whether it is known if the server answers.
    bool isKnown() const { return m_devices.server != SoundServerState::Starting; }
    const SoundDevices& devices() const { return m_devices; }
    // Sets the volume and unmutes. Percent, from 0 to maximumVolume(). Returns the number of the
    // order; see SoundSide::settledOrder.
    quint64 setVolume(SoundKind kind, const QString& id, int percent);
    virtual int maximumVolume(SoundKind kind) const = 0; // percent

    virtual std::unique_ptr<SoundCapture> createCapture() = 0;
    virtual std::unique_ptr<SoundPlayback> createPlayback(std::shared_ptr<SoundBuffer> sound,
                                                          SoundPlayback::Finished finished) = 0;

    // The chosen speaker, or the server's default if none was chosen. Empty while it is absent.
    QString speakerId() const;
    void chooseSpeaker(const QString& id); // an empty id: follow the server's default
    // Why the last playback on it failed although it is there.
    std::optional<DeviceState> speakerFailure() const;
    void setSpeakerFailure(const QString& id, std::optional<DeviceState> failure);

Q_SIGNALS:
    // Emitted from the event loop, never during a call to this class.
    void changed();

protected:
    using Publish = std::function<void(const SoundDevices&)>;

    SoundService();

    // Takes a new list, whole; from any thread, even after the end of this object.
    Publish publisher();

private:
    struct Arrival;

    virtual void sendVolume(SoundKind kind, const QString& id, int percent, quint64 order) = 0;
    void takeDevices(const SoundDevices& devices);
    void announce();

    Mailbox m_mailbox;
    std::shared_ptr<Arrival> m_arrival;
    SoundDevices m_devices;
    quint64 m_lastOrder = 0;
    QString m_chosenSpeakerId;
    QString m_failedSpeakerId; // empty if none has failed
    DeviceState m_speakerFailure = DeviceState::Failed;
};

} // namespace Platform
