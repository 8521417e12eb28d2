// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SoundServer.h"

#include <QObject>
#include <memory>

namespace TestSupport {

// Each test case runs with both kinds of sound server, on a new one each time.
class SoundServerTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

protected:
    static QString id(const char* name) { return QString::fromLatin1(name); }

    std::unique_ptr<SoundServer> m_server;
};

} // namespace TestSupport
