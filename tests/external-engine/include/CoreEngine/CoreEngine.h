// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace LumEngine {

class CoreEngine : public QObject
{
    Q_OBJECT

public:
    static CoreEngine* instance();

    virtual QString serverName() { return QStringLiteral("minimal server"); }
    virtual QString cdnFirstPart() { return QStringLiteral("one"); }
    virtual void reservedSlot() {}
    virtual QString cdnSecondPart() { return QStringLiteral("two"); }
    virtual QString nickName() { return QStringLiteral("Nick"); }
    virtual QString accountName() { return QStringLiteral("account"); }
    virtual QString accountFallbackName() { return {}; }
    virtual void refreshUserInfo() { Q_EMIT signalUserInfoGet(); }
    QString getProcessorName() { return QStringLiteral("minimal processor"); }
    qint64 getCacheVolumeAvailableBytes() { return 1536; }
    QString clientIpFromLB() { return QStringLiteral("192.0.2.1"); }

Q_SIGNALS:
    void signalUserInfoGet();
    void signalBasicBreakdown();
    void signalKickout();
};

} // namespace LumEngine
