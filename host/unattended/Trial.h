// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QJsonObject>
#include <functional>

// One thing that is measured without a person: the network, or one device. It begins with start()
// and ends with finish(), and somebody looks meanwhile whether it is over. GUI thread only.
class Trial
{
public:
    // The newest figures that the engine recorded of a kind.
    using Figures = std::function<QJsonObject(CheckKind kind)>;

    Trial() = default;
    virtual ~Trial() = default;
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    virtual CheckKind kind() const = 0;
    virtual QString device() const { return {}; } // its name; foreign text
    virtual void start() = 0;
    virtual bool isOver() = 0; // enough is known, or the time is up
    // Closes the device. Returns what was measured so far, also if it isn't over.
    virtual QJsonObject finish() = 0;
};
