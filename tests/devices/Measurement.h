// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/NetworkProbe.h"

#include <QElapsedTimer>
#include <QStringList>
#include <memory>
#include <vector>

namespace Platform {
class StunProbe;
struct StunServer;
} // namespace Platform

// A probe with what it told so far.
class Measurement : public Platform::NetworkProbe::Listener
{
public:
    explicit Measurement(const Platform::StunServer& server, const QString& nameservers = {});
    ~Measurement();

    void networkFiguresChanged() override;

    Platform::NetworkFigures figures() const;
    const std::vector<qint64>& verdictTimes() const { return m_times; } // in ms from the start
    int verdicts() const { return int(m_times.size()); }
    const QStringList& clientAddresses() const { return m_addresses; }
    bool isAlwaysOnOneThread() const { return m_isAlwaysOnOneThread; }
    qint64 end(); // how many ms it took

private:
    QElapsedTimer m_clock;
    std::vector<qint64> m_times;
    QStringList m_addresses;
    bool m_isAlwaysOnOneThread = true;
    std::unique_ptr<Platform::StunProbe> m_probe;
};
