// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreEngine/CoreEngineExport.h>
#include <QObject>
#include <QString>

namespace LumEngine {

// The client's core: user, server and session. One per process, GUI thread only.
class COREENGINE_EXPORT CoreEngine : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(CoreEngine)

public:
    static CoreEngine* instance();
    ~CoreEngine() override;

    // The order of these virtuals is part of the interface.
    virtual QString serverName();
    virtual QString cdnFirstPart();
    virtual void reservedSlot();
    virtual QString cdnSecondPart();
    virtual QString nickName();
    virtual QString accountName();
    virtual QString accountFallbackName();
    virtual void refreshUserInfo(); // may lead to signalUserInfoGet

    QString getProcessorName();
    qint64 getCacheVolumeAvailableBytes(); // negative if it is unknown
    QString clientIpFromLB();

Q_SIGNALS:
    void signalUserInfoGet();
    void signalBasicBreakdown();
    void signalKickout();

private:
    class Bridge;

    CoreEngine();
};

} // namespace LumEngine
