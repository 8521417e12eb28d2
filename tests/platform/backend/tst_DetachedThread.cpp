// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"

#include <QSemaphore>
#include <QThread>
#include <QtTest>

#include <memory>

using namespace Platform;
using namespace std::chrono_literals;

constexpr int Jobs = 500; // some are lost of so many if threads that end disturb those that begin

class tst_DetachedThread : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsElsewhere();
    void runsEachJob();
    void waitsForTheEnd();
    void leavesBehindWhatHangs();
};

void tst_DetachedThread::runsElsewhere()
{
    const auto ended = std::make_shared<QSemaphore>();
    const auto thread = std::make_shared<QThread*>(nullptr);
    QVERIFY(DetachedThread::run([ended, thread] {
        *thread = QThread::currentThread();
        ended->release();
    }));
    QVERIFY(ended->tryAcquire(1, 10000));
    QVERIFY(*thread != QThread::currentThread());
}

void tst_DetachedThread::runsEachJob()
{
    for (int job = 0; job < Jobs; ++job) {
        const auto ended = std::make_shared<QSemaphore>();
        QVERIFY(DetachedThread::run([ended] { ended->release(); }));
        QVERIFY2(ended->tryAcquire(1, 10000), qPrintable(QString::number(job)));
    }
}

void tst_DetachedThread::waitsForTheEnd()
{
    const auto hasRun = std::make_shared<bool>(false);
    QVERIFY(DetachedThread::runWithin(10s, [hasRun] { *hasRun = true; }));
    QVERIFY(*hasRun);
}

void tst_DetachedThread::leavesBehindWhatHangs()
{
    const auto mayEnd = std::make_shared<QSemaphore>();
    const auto ended = std::make_shared<QSemaphore>();
    QVERIFY(!DetachedThread::runWithin(50ms, [mayEnd, ended] {
        mayEnd->acquire();
        ended->release();
    }));
    mayEnd->release();
    QVERIFY(ended->tryAcquire(1, 10000)); // it still owns what it uses
}

QTEST_GUILESS_MAIN(tst_DetachedThread)
#include "tst_DetachedThread.moc"
