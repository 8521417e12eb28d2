// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EndingThreads.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QtTest>

using namespace Platform;

class tst_EndingThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void waitsUntilThreadsHaveEnded();
    void waitsForThreadsThatEndingOnesHandOver();
    void destroysFinishedThreads();
    void leavesHungThreadBehind();
    void destructorDoesNotWait();
};

void tst_EndingThreads::waitsUntilThreadsHaveEnded()
{
    QSemaphore mayEnd;
    std::atomic_int ended = 0;
    EndingThreads threads;
    for (int i = 0; i < 2; ++i) {
        std::unique_ptr<QThread> thread(QThread::create([&] {
            mayEnd.acquire();
            ++ended;
        }));
        thread->start();
        threads.take(std::move(thread));
    }
    mayEnd.release(2);
    threads.wait();
    QCOMPARE(ended.load(), 2);
}

void tst_EndingThreads::waitsForThreadsThatEndingOnesHandOver()
{
    QSemaphore mayEnd;
    std::atomic_bool hasInnerEnded = false;
    EndingThreads threads;
    std::unique_ptr<QThread> outer(QThread::create([&] {
        mayEnd.acquire();
        std::unique_ptr<QThread> inner(QThread::create([&] { hasInnerEnded = true; }));
        inner->start();
        threads.take(std::move(inner));
    }));
    outer->start();
    threads.take(std::move(outer));
    mayEnd.release();
    threads.wait();
    QVERIFY(hasInnerEnded);
}

void tst_EndingThreads::destroysFinishedThreads()
{
    EndingThreads threads;
    std::unique_ptr<QThread> thread(QThread::create([] {}));
    const QPointer<QThread> first = thread.get();
    thread->start();
    QVERIFY(thread->wait());
    threads.take(std::move(thread));
    QVERIFY(!first.isNull());
    std::unique_ptr<QThread> next(QThread::create([] {}));
    next->start();
    threads.take(std::move(next));
    QVERIFY(first.isNull());
    threads.wait();
}

void tst_EndingThreads::leavesHungThreadBehind()
{
    QSemaphore mayEnd;
    EndingThreads threads;
    std::unique_ptr<QThread> thread(QThread::create([&] { mayEnd.acquire(); }));
    thread->setObjectName(QStringLiteral("hung"));
    QThread* const abandoned = thread.get();
    thread->start();
    threads.take(std::move(thread));
    QTest::ignoreMessage(QtWarningMsg, "The thread \"hung\" doesn't end; it is left behind");
    QElapsedTimer duration;
    duration.start();
    threads.wait();
    QVERIFY(duration.elapsed() >= 1000);
    QVERIFY(abandoned->isRunning());
    mayEnd.release();
    QVERIFY(abandoned->wait());
    delete abandoned;
}

void tst_EndingThreads::destructorDoesNotWait()
{
    QSemaphore mayEnd;
    QThread* abandoned = nullptr;
    {
        EndingThreads threads;
        std::unique_ptr<QThread> thread(QThread::create([&] { mayEnd.acquire(); }));
        abandoned = thread.get();
        thread->start();
        threads.take(std::move(thread));
    }
    QVERIFY(abandoned->isRunning());
    mayEnd.release();
    QVERIFY(abandoned->wait());
    delete abandoned;
}

QTEST_GUILESS_MAIN(tst_EndingThreads)
#include "tst_EndingThreads.moc"
