// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/StunServer.h"

#include <QHostAddress>
#include <QThread>
#include <atomic>
#include <functional>
#include <memory>

// A way to a server that delays and loses: a relay on a loopback port and a thread of its own, so
// that the test's own work doesn't add to the delay. Loss strikes requests in a fixed, evenly
// spread order, and the delay is all on the way back.
class ImpairedPath
{
public:
    explicit ImpairedPath(const Platform::StunServer& target);
    ~ImpairedPath();

    Platform::StunServer server() const; // what to ask instead of the target

    void setDelayMs(int ms) { m_settings->delayMs = ms; }
    void setLossPercent(int percent) { m_settings->lossPercent = percent; }

    struct Settings
    {
        std::atomic<int> delayMs{0};
        std::atomic<int> lossPercent{0};
    };

private:
    std::shared_ptr<Settings> m_settings = std::make_shared<Settings>();
    QHostAddress m_address;
    quint16 m_port = 0;
    QThread m_thread;
};
