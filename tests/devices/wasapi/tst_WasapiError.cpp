// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiError.h"

#include <QtTest>

using namespace Platform;

class tst_WasapiError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meaning_data()
    {
        QTest::addColumn<quint32>("error");
        QTest::addColumn<DeviceState>("state");
        QTest::addColumn<bool>("isServiceLost");
        QTest::newRow("unplugged") << 0x88890004U << DeviceState::Absent << false;
        QTest::newRow("still unplugged") << 0x8889000fU << DeviceState::Absent << false;
        QTest::newRow("unknown id") << 0x80070490U << DeviceState::Absent << false;
        QTest::newRow("held by another program") << 0x8889000aU << DeviceState::Busy << false;
        QTest::newRow("privacy switch") << 0x80070005U << DeviceState::Denied << false;
        QTest::newRow("no answer") << 0x80070102U << DeviceState::Hung << false;
        QTest::newRow("no audio service") << 0x88890010U << DeviceState::Failed << true;
        QTest::newRow("service ended") << 0x800706baU << DeviceState::Failed << true;
        QTest::newRow("anything else") << 0x8000ffffU << DeviceState::Failed << false;
    }

    void meaning()
    {
        QFETCH(quint32, error);
        QFETCH(DeviceState, state);
        QFETCH(bool, isServiceLost);
        QVERIFY(WasapiError::stateOf(static_cast<HRESULT>(error)) == state);
        QCOMPARE(WasapiError::isServiceLost(static_cast<HRESULT>(error)), isServiceLost);
    }

    void text()
    {
        QCOMPARE(WasapiError::toString(static_cast<HRESULT>(0x8889000a)),
                 QStringLiteral("DEVICE_IN_USE (0x8889000a)"));
        QCOMPARE(WasapiError::toString(static_cast<HRESULT>(0x8000ffff)),
                 QStringLiteral("0x8000ffff"));
    }
};

QTEST_GUILESS_MAIN(tst_WasapiError)
#include "tst_WasapiError.moc"
