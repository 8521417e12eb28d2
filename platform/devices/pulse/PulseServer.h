// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/pulse/PulseConnection.h"

#include <QObject>
#include <memory>

namespace Platform {

// The sound server as the GUI thread sees it: the connection, the last list of devices, and the
// user's choice of a speaker. All speakers, microphones and players of the process share it. The
// first of them creates it, the last one destroys it. GUI thread only.
class PulseServer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PulseServer)

public:
    PulseServer();
    ~PulseServer() override;

    PulseConnection& connection() { return *m_connection; }
    // Whether it is known if the server answers.
    bool isKnown() const { return m_devices.server != SoundServerState::Starting; }
    const PulseDevices& devices() const { return m_devices; }
    // Returns the number of the order; see PulseSide::settledOrder.
    quint64 setVolume(PulseKind kind, const QString& id, int percent);

    // The chosen speaker, or the server's default if none was chosen. Empty while it is absent.
    QString speakerId() const;
    void chooseSpeaker(const QString& id); // an empty id: follow the server's default
    // The last playback on it failed although it is there.
    bool hasSpeakerFailed() const { return m_failedSpeakerId == speakerId(); }
    void setSpeakerFailed(const QString& id, bool hasFailed);

Q_SIGNALS:
    // Emitted from the event loop, never during a call to this class.
    void changed();

private:
    struct Arrival;

    void takeDevices(const PulseDevices& devices);
    void announce();

    Mailbox m_mailbox;
    std::shared_ptr<Arrival> m_arrival;
    std::unique_ptr<PulseConnection> m_connection;
    PulseDevices m_devices;
    quint64 m_lastOrder = 0;
    QString m_chosenSpeakerId;
    QString m_failedSpeakerId;
};

} // namespace Platform
