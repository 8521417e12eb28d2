// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/Mailbox.h"

#include <QThread>
#include <QtTest>

#include <atomic>
#include <thread>

using Platform::Mailbox;

class tst_Mailbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliversInOrderFromTheEventLoop();
    void deliversFromManyThreads();
    void dropsWhatIsUnderWayWhenClosed();
    void closesFromInsideALetter();
    void letsSendersOutliveIt();
    void closesWhileThreadsPost();
};

void tst_Mailbox::deliversInOrderFromTheEventLoop()
{
    Mailbox mailbox;
    const Mailbox::Sender sender = mailbox.sender();
    QList<int> received;
    for (int i = 0; i < 3; ++i) {
        sender.post([&received, i] { received.append(i); });
    }
    QVERIFY(received.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(received, (QList<int>{0, 1, 2}));
}

void tst_Mailbox::deliversFromManyThreads()
{
    constexpr int ThreadCount = 4;
    constexpr int LetterCount = 500;
    Mailbox mailbox;
    std::array<QList<int>, ThreadCount> received;
    bool isOnGuiThread = true;
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < ThreadCount; ++t) {
        threads.emplace_back([sender = mailbox.sender(), &received, &isOnGuiThread, t] {
            for (int i = 0; i < LetterCount; ++i) {
                sender.post([&received, &isOnGuiThread, t, i] {
                    isOnGuiThread = isOnGuiThread && QThread::currentThread() ==
                                                         QCoreApplication::instance()->thread();
                    received.at(t).append(i);
                });
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCoreApplication::processEvents();
    QVERIFY(isOnGuiThread);
    for (const QList<int>& letters : received) {
        QCOMPARE(letters.size(), LetterCount);
        QVERIFY(std::is_sorted(letters.begin(), letters.end()));
    }
}

void tst_Mailbox::dropsWhatIsUnderWayWhenClosed()
{
    Mailbox mailbox;
    const Mailbox::Sender sender = mailbox.sender();
    int received = 0;
    sender.post([&received] { ++received; });
    mailbox.close();
    mailbox.close();
    sender.post([&received] { ++received; });
    QCoreApplication::processEvents();
    QCOMPARE(received, 0);
}

void tst_Mailbox::closesFromInsideALetter()
{
    auto mailbox = std::make_unique<Mailbox>();
    int received = 0;
    mailbox->sender().post([&mailbox] { mailbox.reset(); });
    mailbox->sender().post([&received] { ++received; });
    QCoreApplication::processEvents();
    QVERIFY(!mailbox);
    QCOMPARE(received, 0);
}

void tst_Mailbox::letsSendersOutliveIt()
{
    int received = 0;
    Mailbox::Sender sender = Mailbox().sender();
    sender.post([&received] { ++received; });
    QCoreApplication::processEvents();
    QCOMPARE(received, 0);
}

void tst_Mailbox::closesWhileThreadsPost()
{
    for (int round = 0; round < 50; ++round) {
        Mailbox mailbox;
        std::atomic<bool> isPosting = false;
        std::atomic<bool> mayEnd = false;
        std::atomic<int> received = 0;
        std::thread poster([sender = mailbox.sender(), &isPosting, &mayEnd, &received] {
            while (!mayEnd) {
                sender.post([&received] { ++received; });
                isPosting = true;
            }
        });
        while (!isPosting) {
            std::this_thread::yield();
        }
        mailbox.close();
        const int before = received;
        QCoreApplication::processEvents();
        mayEnd = true;
        poster.join();
        QCoreApplication::processEvents();
        QCOMPARE(received.load(), before);
    }
}

QTEST_GUILESS_MAIN(tst_Mailbox)
#include "tst_Mailbox.moc"
