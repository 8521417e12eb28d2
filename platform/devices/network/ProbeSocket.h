// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

class QHostAddress;

namespace Platform {

// A UDP socket that takes datagrams from one server only: the system drops what comes from another
// address or port, even a flood. It tells a refusal of the server's machine from other failures.
// One source file for each system, because Qt mixes them up on Windows. For one thread.
class ProbeSocket : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ProbeSocket)

public:
    enum class Outcome {
        Done,
        Refused, // an earlier datagram was; send() has sent this one all the same
        NoRoute,
        Later, // there is none to receive, or no room to send one now
        Broken,
    };

    ProbeSocket(const QHostAddress& address, quint16 port);
    ~ProbeSocket() override;

    bool isOpen() const;
    QString errorString() const; // if it isn't
    Outcome send(const QByteArray& datagram);
    Outcome receive(QByteArray& datagram);

Q_SIGNALS:
    void readyRead();

private:
    class System;

    std::unique_ptr<System> m_system;
};

} // namespace Platform
