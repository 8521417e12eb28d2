// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"

#include <QHostAddress>
#include <QList>
#include <QString>
#include <functional>

namespace Platform {

// Looks up the addresses of a name, on a thread that nobody waits for: a name server that doesn't
// answer holds it for many seconds. Qt's own lookups would hold up the end of the program.
class HostLookup
{
public:
    struct Answer
    {
        QList<QHostAddress> addresses;
        QString error; // if there are none
        bool isUnknownName = false;
    };
    using Found = std::function<void(const Answer&)>;

    // found is called once, from the event loop of this thread, and not after the destructor.
    HostLookup(const QString& name, const Found& found);

private:
    Mailbox m_mailbox;
};

} // namespace Platform
