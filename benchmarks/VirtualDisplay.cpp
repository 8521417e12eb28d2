// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/VirtualDisplay.h"

#include <QTest>
#include <cstdio>

bool VirtualDisplay::start()
{
    constexpr int TimeoutMs = 10000;
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1280x900x24"),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                     QStringLiteral("-noreset")});
    QByteArray number;
    if (!QTest::qWaitFor(
            [&] {
                number += m_process.readAllStandardOutput();
                return number.endsWith('\n');
            },
            TimeoutMs)) {
        std::fputs("No virtual display came up\n", stderr);
        return false;
    }
    qputenv("DISPLAY", ":" + number.trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    return true;
}
