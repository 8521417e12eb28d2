// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <tuple>

class CommandNetworkTest : public QObject
{
    Q_OBJECT

public:
    explicit CommandNetworkTest(QObject* parent = nullptr);

    std::tuple<int, int, int, int, int> getNetworkInfo() const { return {0, 20, 1, 10, 10}; }

Q_SIGNALS:
    void networkInfoChanged();
};
