// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/Measurement.h"

#include "platform/devices/network/StunProbe.h"

#include <QCoreApplication>

Measurement::Measurement(const Platform::StunServer& server, const QString& nameservers)
{
    m_clock.start();
    m_probe = std::make_unique<Platform::StunProbe>(
        server, *this, [this](const QString& address) { m_addresses.append(address); },
        nameservers);
}

Measurement::~Measurement() = default;

void Measurement::networkFiguresChanged()
{
    m_isAlwaysOnOneThread &= QThread::currentThread() == qApp->thread();
    m_times.push_back(m_clock.elapsed());
}

Platform::NetworkFigures Measurement::figures() const
{
    return m_probe->figures();
}

qint64 Measurement::end()
{
    QElapsedTimer clock;
    clock.start();
    m_probe.reset();
    return clock.elapsed();
}
