// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/ScriptedTest.h"

#include <QTest>

namespace TestSupport {

void ScriptedTest::init()
{
    m_engine = std::make_unique<Platform::ScriptedEngine>();
}

void ScriptedTest::cleanup()
{
    QCOMPARE(m_engine->livingSessions(), 0);
    m_engine.reset();
}

} // namespace TestSupport
