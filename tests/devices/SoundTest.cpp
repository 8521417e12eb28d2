// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/SoundTest.h"

#include <QTest>

namespace TestSupport {

void SoundTest::initTestCase_data()
{
    SoundServer::addTestRows();
}

void SoundTest::init()
{
    m_server = SoundServer::startForTest();
    QVERIFY(m_server);
    m_report = {};
    m_sound = std::make_unique<Platform::PulseSound>(m_report);
}

void SoundTest::cleanup()
{
    m_sound.reset();
    m_server.reset();
}

} // namespace TestSupport
