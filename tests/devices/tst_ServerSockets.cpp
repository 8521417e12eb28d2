// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/ServerSockets.h"

#include <QtTest>

namespace ServerSockets = Platform::ServerSockets;
using Paths = std::vector<QByteArray>;

class tst_ServerSockets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        for (const char* name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "PIPEWIRE_REMOTE",
                                 "PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR", "USERPROFILE"}) {
            qunsetenv(name);
        }
    }

    void pulse()
    {
        QVERIFY(ServerSockets::ofPulse() == Paths{"/run/pulse/native"});
        qputenv("XDG_RUNTIME_DIR", "/run/user/7");
        QVERIFY(ServerSockets::ofPulse() ==
                (Paths{"/run/pulse/native", "/run/user/7/pulse/native"}));
        qputenv("PULSE_RUNTIME_PATH", "/run/own");
        QVERIFY(ServerSockets::ofPulse() == (Paths{"/run/pulse/native", "/run/own/native"}));
        qputenv("PULSE_SERVER", "  {machine}unix:/a  unix:/b /c tcp:example.org:4713 {broken ");
        QVERIFY(ServerSockets::ofPulse() == (Paths{"/a", "/b", "/c"}));
    }

    void pipeWire()
    {
        QVERIFY(ServerSockets::ofPipeWire() == Paths{});
        qputenv("USERPROFILE", "/home/u");
        QVERIFY(ServerSockets::ofPipeWire() == Paths{"/home/u/pipewire-0"});
        qputenv("XDG_RUNTIME_DIR", "/run/user/7");
        QVERIFY(ServerSockets::ofPipeWire() == Paths{"/run/user/7/pipewire-0"});
        qputenv("PIPEWIRE_RUNTIME_DIR", "/run/own");
        QVERIFY(ServerSockets::ofPipeWire() == Paths{"/run/own/pipewire-0"});
        qputenv("PIPEWIRE_REMOTE", "other");
        QVERIFY(ServerSockets::ofPipeWire() == Paths{"/run/own/other"});
        qputenv("PIPEWIRE_REMOTE", "/somewhere/socket");
        QVERIFY(ServerSockets::ofPipeWire() == Paths{"/somewhere/socket"});
    }
};

QTEST_APPLESS_MAIN(tst_ServerSockets)
#include "tst_ServerSockets.moc"
