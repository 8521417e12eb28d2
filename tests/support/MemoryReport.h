// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/ReportSink.h"

#include <QMap>

namespace TestSupport {

// Keeps what was measured, and nothing else.
class MemoryReport final : public Platform::ReportSink
{
public:
    void recordResult(const QString&, const QJsonValue&) override {}
    void recordMeasurement(const QString& check, const QJsonObject& figures) override
    {
        measurements[check] = figures;
    }
    void postCode(const QString&, int) override {}

    QMap<QString, QJsonObject> measurements;
};

} // namespace TestSupport
