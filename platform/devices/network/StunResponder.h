// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomDevices/ClassroomDevicesExport.h"
#include "platform/backend/StunServer.h"

#include <QHostAddress>
#include <QThread>

namespace Platform {

// A small STUN server on a thread of its own, from its creation to its destruction. It answers
// as many requests as AnswerBudget allows, from the address to which each was sent.
class CLASSROOMDEVICES_EXPORT StunResponder
{
public:
    // Port 0 takes a free one.
    explicit StunResponder(const QHostAddress& address = QHostAddress::LocalHost, quint16 port = 0);
    ~StunResponder();
    StunResponder(const StunResponder&) = delete;
    StunResponder& operator=(const StunResponder&) = delete;

    // Where it is reached; the port is 0 where the address couldn't be taken, and errorString()
    // tells why.
    const StunServer& server() const { return m_server; }
    QString errorString() const { return m_errorString; }

private:
    StunServer m_server;
    QString m_errorString;
    QThread m_thread;
};

} // namespace Platform
