// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/SoundTest.h"

namespace TestSupport {

void SoundTest::init()
{
    SoundServerTest::init();
    m_report = {};
    m_sound = std::make_unique<Platform::PulseSound>(m_report);
}

void SoundTest::cleanup()
{
    m_sound.reset();
    SoundServerTest::cleanup();
}

} // namespace TestSupport
