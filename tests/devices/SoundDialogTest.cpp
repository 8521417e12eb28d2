// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/SoundDialogTest.h"

#include <QTest>

namespace TestSupport {

void SoundDialogTest::init()
{
    SoundServerTest::init();
    QVERIFY(m_server);
    m_dialog = std::make_unique<DeviceDialog>(language());
}

void SoundDialogTest::cleanup()
{
    m_dialog.reset();
    SoundServerTest::cleanup();
}

QString SoundDialogTest::language() const
{
    return m_server->kind() == SoundServer::Kind::PulseAudio ? id("en") : id("zh_CN");
}

void SoundDialogTest::meterFrozen(const char* fault, const Script& action)
{
    m_server->freeze();
    m_dialog->meter(fault, [&] {
        action();
        QTest::qWait(DeviceDialog::freezeMs());
    });
    m_server->thaw();
}

} // namespace TestSupport
