// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreEngine/CoreEngineExport.h>
#include <QObject>
#include <memory>
#include <tuple>

// Measures the way to the server as long as the object lives. GUI thread only.
class COREENGINE_EXPORT CommandNetworkTest : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(CommandNetworkTest)

public:
    explicit CommandNetworkTest(QObject* parent = nullptr);
    ~CommandNetworkTest() override;

    // Loss in percent, delay in ms (-1: not measured), jitter in ms, probes sent, probes answered.
    std::tuple<int, int, int, int, int> getNetworkInfo() const;

Q_SIGNALS:
    void networkInfoChanged();

private:
    class Bridge;

    std::unique_ptr<Bridge> m_bridge;
};
