// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
#include "platform/backend/SystemFacts.h"

#include <QObject>

namespace Platform {

class CallLog;

// The scripted account, machine and session.
class CLASSROOMSCRIPTED_EXPORT ScriptedFacts final : public QObject, public SystemFacts
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedFacts)

public:
    struct Values
    {
        QString serverName;
        QString cdnFirstPart;
        QString cdnSecondPart;
        QString nickName;
        QString accountName;
        QString accountFallbackName;
        QString processorName;
        qint64 cacheVolumeAvailableBytes = -1;
        QString clientAddress;
        QStringList operatingSystem; // name, then version, then architecture
    };

    explicit ScriptedFacts(CallLog& log);
    ~ScriptedFacts() override;

    Values values() const { return m_values; }
    void setValues(const Values& values) { m_values = values; } // tells nobody

    void bringUserInfo(const QString& accountName, const QString& nickName);
    void breakDown();
    void kickOut();

    void setListener(Listener* listener) override;
    QString serverName() const override;
    QString cdnFirstPart() const override;
    QString cdnSecondPart() const override;
    QString nickName() const override;
    QString accountName() const override;
    QString accountFallbackName() const override;
    void refreshUserInfo() override;
    QString processorName() const override;
    qint64 cacheVolumeAvailableBytes() const override;
    QString clientAddress() const override;
    QStringList operatingSystem() const override;

private:
    void notify(void (Listener::*notification)());
    void query(const char* name) const;

    CallLog& m_log;
    Values m_values;
    Listener* m_listener = nullptr;
};

} // namespace Platform
