// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/StreamRetry.h"

#include <QtTest>

using Platform::DeviceState;
using namespace std::chrono_literals;

class tst_StreamRetry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void retriesOncePerFailure();
    void forgottenFailureIsStillRetried();
    void canBeCancelled();
    void retryMayFail();
};

void tst_StreamRetry::retriesOncePerFailure()
{
    int retries = 0;
    Platform::StreamRetry retry(0ms, [&retries] { ++retries; });
    QVERIFY(!retry.failure());
    retry.streamBroke(DeviceState::Failed);
    retry.streamBroke(DeviceState::Busy);
    QVERIFY(retry.failure() == DeviceState::Busy); // the last one
    QVERIFY(retry.isWaiting());
    QCOMPARE(retries, 0); // not from inside
    QTRY_COMPARE(retries, 1);
    QVERIFY(!retry.isWaiting());
    QVERIFY(retry.failure()); // until it works
    QCoreApplication::processEvents();
    QCOMPARE(retries, 1);
}

// Of another device, nothing is wrong yet. The server isn't asked more often for that.
void tst_StreamRetry::forgottenFailureIsStillRetried()
{
    int retries = 0;
    Platform::StreamRetry retry(0ms, [&retries] { ++retries; });
    retry.streamBroke(DeviceState::Failed);
    retry.forgetFailure();
    QVERIFY(!retry.failure());
    QVERIFY(retry.isWaiting());
    QTRY_COMPARE(retries, 1);
}

void tst_StreamRetry::canBeCancelled()
{
    int retries = 0;
    Platform::StreamRetry retry(0ms, [&retries] { ++retries; });
    retry.streamBroke(DeviceState::Failed);
    retry.cancel();
    QVERIFY(!retry.failure());
    QVERIFY(!retry.isWaiting());
    QCoreApplication::processEvents();
    QCOMPARE(retries, 0);
}

void tst_StreamRetry::retryMayFail()
{
    int retries = 0;
    Platform::StreamRetry* self = nullptr;
    Platform::StreamRetry retry(0ms, [&retries, &self] {
        if (++retries < 3) {
            self->streamBroke(DeviceState::Failed);
        }
    });
    self = &retry;
    retry.streamBroke(DeviceState::Failed);
    QTRY_COMPARE(retries, 3);
    QVERIFY(!retry.isWaiting());
}

QTEST_GUILESS_MAIN(tst_StreamRetry)
#include "tst_StreamRetry.moc"
