// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedFacts.h"

#include "platform/scripted/CallLog.h"

namespace Platform {

ScriptedFacts::ScriptedFacts(CallLog& log) : m_log(log)
{
}

ScriptedFacts::~ScriptedFacts() = default;

void ScriptedFacts::bringUserInfo(const QString& accountName, const QString& nickName)
{
    m_values.accountName = accountName;
    m_values.nickName = nickName;
    notify(&Listener::userInfoArrived);
}

void ScriptedFacts::breakDown()
{
    notify(&Listener::sessionBrokeDown);
}

void ScriptedFacts::kickOut()
{
    notify(&Listener::userKickedOut);
}

void ScriptedFacts::setListener(Listener* listener)
{
    m_listener = listener;
}

QString ScriptedFacts::serverName() const
{
    query("serverName");
    return m_values.serverName;
}

QString ScriptedFacts::cdnFirstPart() const
{
    query("cdnFirstPart");
    return m_values.cdnFirstPart;
}

QString ScriptedFacts::cdnSecondPart() const
{
    query("cdnSecondPart");
    return m_values.cdnSecondPart;
}

QString ScriptedFacts::nickName() const
{
    query("nickName");
    return m_values.nickName;
}

QString ScriptedFacts::accountName() const
{
    query("accountName");
    return m_values.accountName;
}

QString ScriptedFacts::accountFallbackName() const
{
    query("accountFallbackName");
    return m_values.accountFallbackName;
}

void ScriptedFacts::refreshUserInfo()
{
    m_log.add(QStringLiteral("facts.refreshUserInfo()"));
}

QString ScriptedFacts::processorName() const
{
    query("processorName");
    return m_values.processorName;
}

qint64 ScriptedFacts::cacheVolumeAvailableBytes() const
{
    query("cacheVolumeAvailableBytes");
    return m_values.cacheVolumeAvailableBytes;
}

QString ScriptedFacts::clientAddress() const
{
    query("clientAddress");
    return m_values.clientAddress;
}

QStringList ScriptedFacts::operatingSystem() const
{
    query("operatingSystem");
    return m_values.operatingSystem;
}

void ScriptedFacts::notify(void (Listener::*notification)())
{
    QMetaObject::invokeMethod(
        this,
        [this, notification] {
            if (m_listener) {
                (m_listener->*notification)();
            }
        },
        Qt::QueuedConnection);
}

void ScriptedFacts::query(const char* name) const
{
    m_log.addQuery(QStringLiteral("facts.%1()").arg(QLatin1String(name)));
}

} // namespace Platform
