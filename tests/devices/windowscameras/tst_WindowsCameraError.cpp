// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraError.h"

#include <QtTest>

using namespace Platform;

class tst_WindowsCameraError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meaning_data()
    {
        QTest::addColumn<quint32>("error");
        QTest::addColumn<DeviceState>("state");
        QTest::addColumn<DeviceState>("failure");
        const auto same = [](const char* name, quint32 error, DeviceState state) {
            QTest::newRow(name) << error << state << state;
        };
        QTest::newRow("unplugged") << 0xc00d3ea2U << DeviceState::Absent << DeviceState::Failed;
        QTest::newRow("not listed") << 0x80070002U << DeviceState::Absent << DeviceState::Failed;
        QTest::newRow("not connected") << 0x8007048fU << DeviceState::Absent << DeviceState::Failed;
        same("in use", 0xc00d3704U, DeviceState::Busy);
        same("taken by another program", 0xc00d3ea3U, DeviceState::Busy);
        same("no bandwidth left", 0x800705aaU, DeviceState::Busy);
        same("opened by another program", 0x80070020U, DeviceState::Busy);
        same("the driver is busy", 0x800700aaU, DeviceState::Busy);
        same("privacy settings", 0x80070005U, DeviceState::Denied);
        same("no answer", 0x800705b4U, DeviceState::Hung);
        same("no such format", 0xc00d36b4U, DeviceState::Unreadable);
        QTest::newRow("no hardware") << 0x80040275U << DeviceState::Absent << DeviceState::Failed;
        same("the filter doesn't answer", 0x8004022eU, DeviceState::Hung);
        same("no such format of the filter", 0x80040200U, DeviceState::Unreadable);
        same("no format that the filter takes", 0x8004022aU, DeviceState::Unreadable);
        same("can't be connected", 0x80040217U, DeviceState::Unreadable);
        same("its program is gone", 0x80040154U, DeviceState::Failed);
        same("closed", 0xc00d3e85U, DeviceState::Failed);
        same("end of the stream", 0xc00d3e84U, DeviceState::Failed);
        same("anything else", 0x8000ffffU, DeviceState::Failed);
    }

    void meaning()
    {
        QFETCH(quint32, error);
        QFETCH(DeviceState, state);
        QFETCH(DeviceState, failure);
        QVERIFY(WindowsCameraError::stateOf(static_cast<HRESULT>(error)) == state);
        QVERIFY(WindowsCameraError::failureOf(static_cast<HRESULT>(error)) == failure);
    }

    void text()
    {
        const auto textOf = [](quint32 error) {
            return WindowsCameraError::toString(static_cast<HRESULT>(error));
        };
        QCOMPARE(textOf(0xc00d3ea3U), QStringLiteral("DEVICE_PREEMPTED (0xc00d3ea3)"));
        QCOMPARE(textOf(0x80070005U), QStringLiteral("E_ACCESSDENIED (0x80070005)"));
        QCOMPARE(textOf(0x800700c1U), QStringLiteral("ERROR_BAD_EXE_FORMAT (0x800700c1)"));
        QCOMPARE(textOf(0x8000ffffU), QStringLiteral("0x8000ffff"));
    }
};

QTEST_GUILESS_MAIN(tst_WindowsCameraError)
#include "tst_WindowsCameraError.moc"
