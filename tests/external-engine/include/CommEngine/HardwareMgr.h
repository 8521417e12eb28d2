// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class HardwareMgr : public QObject
{
    Q_OBJECT

public:
    explicit HardwareMgr(const QString& name, QObject* parent = nullptr);
    void postHardwardInfoToServer(int code);
};
