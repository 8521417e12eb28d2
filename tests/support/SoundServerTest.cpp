// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundServerTest.h"

#include <QTest>

namespace TestSupport {

void SoundServerTest::initTestCase_data()
{
    SoundServer::addTestRows();
}

void SoundServerTest::init()
{
    m_server = SoundServer::startForTest();
    QVERIFY(m_server);
}

void SoundServerTest::cleanup()
{
    m_server.reset();
}

} // namespace TestSupport
