// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/ServerError.h"

#include <QtTest>
#include <cerrno>

using namespace Platform;

class tst_ServerError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheState_data();
    void knowsTheState();
};

void tst_ServerError::knowsTheState_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<DeviceState>("expected");
    QTest::newRow("number") << QByteArray("Start error: 设备或资源忙") << -EBUSY
                            << DeviceState::Busy;
    QTest::newRow("number in the text")
        << QByteArray("error set output format: -16 (Das Gerät oder die Ressource ist belegt)") << 0
        << DeviceState::Busy;
    QTest::newRow("denied") << QByteArray("Start error: Keine Berechtigung") << -EACCES
                            << DeviceState::Denied;
    QTest::newRow("not permitted") << QByteArray("-1") << 0 << DeviceState::Denied;
    QTest::newRow("other number") << QByteArray("Device or resource busy") << -EIO
                                  << DeviceState::Failed;
    QTest::newRow("words") << QByteArray("busy") << 0 << DeviceState::Failed;
    QTest::newRow("part of a word")
        << QByteArray("cam-16 (usb-16) -160") << 0 << DeviceState::Failed;
    QTest::newRow("nothing") << QByteArray() << 0 << DeviceState::Failed;
}

void tst_ServerError::knowsTheState()
{
    QFETCH(QByteArray, text);
    QFETCH(int, result);
    QFETCH(DeviceState, expected);
    const ServerError error(text.isNull() ? nullptr : text.constData(), result);
    QVERIFY(error.state() == expected);
    QCOMPARE(error.isEmpty(), text.isEmpty() && result == 0);
    QCOMPARE(error.text, QString::fromUtf8(text));
}

QTEST_GUILESS_MAIN(tst_ServerError)
#include "tst_ServerError.moc"
