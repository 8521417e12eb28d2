// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CoreEngine/CommandNetworkTest.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

class CommandNetworkTest::Bridge final : public Platform::NetworkProbe::Listener
{
public:
    explicit Bridge(CommandNetworkTest& test)
        : m_test(test), m_probe(Platform::EngineRegistry::engine().createNetworkProbe(*this))
    {
    }

    const Platform::NetworkProbe& probe() const { return *m_probe; }

    void networkFiguresChanged() override { Q_EMIT m_test.networkInfoChanged(); }

private:
    CommandNetworkTest& m_test;
    std::unique_ptr<Platform::NetworkProbe> m_probe;
};

CommandNetworkTest::CommandNetworkTest(QObject* parent)
    : QObject(parent), m_bridge(std::make_unique<Bridge>(*this))
{
}

CommandNetworkTest::~CommandNetworkTest() = default;

std::tuple<int, int, int, int, int> CommandNetworkTest::getNetworkInfo() const
{
    const Platform::NetworkFigures figures = m_bridge->probe().figures();
    return {figures.lossPercent, figures.delayMs, figures.jitterMs, figures.sent, figures.answered};
}
