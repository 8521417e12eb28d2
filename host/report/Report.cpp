// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Report.h"

#include <algorithm>

bool ReportCheck::has(Cause cause) const
{
    return std::find(causes.begin(), causes.end(), cause) != causes.end();
}

const Measurement* ReportCheck::measurement(const QString& key) const
{
    const auto found =
        std::find_if(measurements.begin(), measurements.end(),
                     [&key](const Measurement& candidate) { return candidate.key == key; });
    return found == measurements.end() ? nullptr : &*found;
}

const Measurement* ReportCheck::measurement(FigureName name) const
{
    return measurement(ReportWords::of(name));
}

const ReportCheck* Report::check(CheckKind kind) const
{
    const auto found = std::find_if(checks.begin(), checks.end(),
                                    [kind](const ReportCheck& c) { return c.kind == kind; });
    return found == checks.end() ? nullptr : &*found;
}
