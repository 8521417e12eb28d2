// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/ScriptedEngine.h"

#include <QObject>
#include <memory>

namespace TestSupport {

// Every case of such a test gets a fresh scripted engine and must leave no session behind.
class ScriptedTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    std::unique_ptr<Platform::ScriptedEngine> m_engine;
};

} // namespace TestSupport
