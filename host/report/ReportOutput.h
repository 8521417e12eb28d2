// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Options.h"
#include "host/report/Report.h"

#include <functional>
#include <memory>

// Shows reports one after the other, in one format, without keeping them. If none is added, it
// shows nothing.
class ReportOutput
{
public:
    using Print = std::function<void(const QString& text)>;

    virtual ~ReportOutput() = default;

    // isList: whether more than one report was asked for.
    static std::unique_ptr<ReportOutput> create(Options::Format format, const QString& language,
                                                bool isList, const Print& print);

    // name: what to call the computer if the report doesn't say it.
    virtual void add(const Report& report, const QString& name) = 0;
    virtual void finish() {}
    virtual QString problem() const { return {}; } // one line, if not everything is shown
};
