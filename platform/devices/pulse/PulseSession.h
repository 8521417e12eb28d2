// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/pulse/PulseConnection.h"

#include <QObject>
#include <memory>

namespace Platform {

// What the speakers, the microphones and the players of a process share while there are any: the
// connection, the last list of devices, and the user's choice of a speaker. It goes with the last
// of them. GUI thread only.
class PulseSession : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PulseSession)

public:
    PulseSession();
    ~PulseSession() override;

    PulseConnection& connection() { return *m_connection; }
    bool isKnown() const { return m_isKnown; } // the first answer, or refusal, is in
    const PulseDevices& devices() const { return m_devices; }
    // An order number for PulseConnection::setVolume has been given out and sent with it.
    quint64 setVolume(PulseKind kind, const QString& id, int percent);

    // The chosen speaker, or the server's where none was chosen; empty while it isn't there.
    QString speakerId() const;
    void chooseSpeaker(const QString& id); // an empty id goes back to the server's
    // Playing on it failed although it is there.
    bool hasSpeakerFailed() const { return m_failedSpeakerId == speakerId(); }
    void setSpeakerFailed(const QString& id, bool hasFailed);

Q_SIGNALS:
    // From the event loop, never from inside a call.
    void changed();

private:
    struct Arrival;

    void takeDevices(const PulseDevices& devices);
    void announce();

    Mailbox m_mailbox;
    std::shared_ptr<Arrival> m_arrival;
    std::unique_ptr<PulseConnection> m_connection;
    bool m_isKnown = false;
    PulseDevices m_devices;
    quint64 m_lastOrder = 0;
    QString m_chosenSpeakerId;
    QString m_failedSpeakerId;
};

} // namespace Platform
