// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/MachineDelay.h"

namespace TestSupport {

namespace {

constexpr int Attempts = 5;

} // namespace

// Nothing tells there how long threads waited, so each fault may be the machine's.
QString measuredFault(const std::function<QString()>& measure)
{
    QString fault = measure();
    for (int attempt = 1; attempt < Attempts && !fault.isEmpty(); ++attempt) {
        qInfo("%s; once more", qPrintable(fault));
        fault = measure();
    }
    return fault;
}

} // namespace TestSupport
