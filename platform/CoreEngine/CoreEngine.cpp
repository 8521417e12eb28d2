// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CoreEngine/CoreEngine.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

namespace LumEngine {

namespace {

Platform::SystemFacts& facts()
{
    return Platform::EngineRegistry::engine().systemFacts();
}

} // namespace

// Turns the reports of the engine into signals of the façade.
class CoreEngine::Bridge final : public Platform::SystemFacts::Listener
{
public:
    explicit Bridge(CoreEngine& core) : m_core(core) {}

    void attach()
    {
        if (m_generation != Platform::EngineRegistry::generation()) {
            m_generation = Platform::EngineRegistry::generation();
            facts().setListener(this);
        }
    }

    void userInfoArrived() override { Q_EMIT m_core.signalUserInfoGet(); }
    void sessionBrokeDown() override { Q_EMIT m_core.signalBasicBreakdown(); }
    void userKickedOut() override { Q_EMIT m_core.signalKickout(); }

private:
    CoreEngine& m_core;
    int m_generation = 0;
};

CoreEngine* CoreEngine::instance()
{
    static CoreEngine core;
    static Bridge bridge(core);
    bridge.attach();
    return &core;
}

CoreEngine::CoreEngine() = default;

CoreEngine::~CoreEngine() = default;

QString CoreEngine::serverName()
{
    return facts().serverName();
}

QString CoreEngine::cdnFirstPart()
{
    return facts().cdnFirstPart();
}

void CoreEngine::reservedSlot()
{
}

QString CoreEngine::cdnSecondPart()
{
    return facts().cdnSecondPart();
}

QString CoreEngine::nickName()
{
    return facts().nickName();
}

QString CoreEngine::accountName()
{
    return facts().accountName();
}

QString CoreEngine::accountFallbackName()
{
    return facts().accountFallbackName();
}

void CoreEngine::refreshUserInfo()
{
    facts().refreshUserInfo();
}

QString CoreEngine::getProcessorName()
{
    return facts().processorName();
}

qint64 CoreEngine::getCacheVolumeAvailableBytes()
{
    return facts().cacheVolumeAvailableBytes();
}

QString CoreEngine::clientIpFromLB()
{
    return facts().clientAddress();
}

} // namespace LumEngine
