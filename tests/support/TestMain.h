// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// The main function of every test: envcheck_add_test() includes this before all else, so that
// QTEST_MAIN, QTEST_GUILESS_MAIN and QTEST_APPLESS_MAIN run the test under the WarningGuard.
#pragma once

#include <QtTest>

namespace QTest {

int qExecGuarded(QObject* test, int argc, char** argv);

}

// All three macros end in this call.
#define qExec qExecGuarded
