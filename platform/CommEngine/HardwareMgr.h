// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QObject>
#include <QString>

// The client's device manager: the part that the check reports to. GUI thread only.
class COMMENGINE_EXPORT HardwareMgr : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(HardwareMgr)

public:
    explicit HardwareMgr(const QString& name, QObject* parent = nullptr);
    ~HardwareMgr() override;

    // Hands the code to the engine's report sink and returns at once.
    void postHardwardInfoToServer(int code);

private:
    QString m_name;
};
