// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Platform {

// Facts about the machine, the account and the session. GUI thread only. Every answer is already
// there: no call waits for a disk or a server.
class SystemFacts
{
public:
    class Listener
    {
    public:
        virtual void userInfoArrived() = 0;
        virtual void sessionBrokeDown() = 0;
        virtual void userKickedOut() = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~SystemFacts() = default;

    virtual void setListener(Listener* listener) = 0; // not owned; null detaches

    virtual QString serverName() const = 0;
    virtual QString cdnFirstPart() const = 0;
    virtual QString cdnSecondPart() const = 0;
    virtual QString nickName() const = 0;
    virtual QString accountName() const = 0;
    virtual QString accountFallbackName() const = 0;
    virtual void refreshUserInfo() = 0; // may later lead to userInfoArrived()

    virtual QString processorName() const = 0;
    virtual qint64 cacheVolumeAvailableBytes() const = 0; // negative if it is unknown
    virtual QString clientAddress() const = 0;
    virtual QStringList operatingSystem() const = 0; // name, then version, then architecture
};

} // namespace Platform
