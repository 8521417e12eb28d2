// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/backend/NetworkProbe.h"

#include <QThread>
#include <functional>

namespace Platform {

struct StunServer;

// Measures the way to a STUN server on a thread of its own, which ends with it. Begins when the
// event loop runs.
class StunProbe final : public NetworkProbe
{
public:
    using AddressHandler = std::function<void(const QString&)>;

    // onClientAddress is called once, as the listener is, with the address that the server saw.
    // nameservers: as of ServerLookup.
    StunProbe(const StunServer& server, Listener& listener, AddressHandler onClientAddress = {},
              const QString& nameservers = {});
    ~StunProbe() override;

    NetworkFigures figures() const override { return m_figures; }

private:
    NetworkFigures m_figures;
    QThread m_thread;
    Mailbox m_mailbox;
};

} // namespace Platform
