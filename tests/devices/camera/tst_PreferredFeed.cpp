// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EndingThreads.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/camera/PreferredFeed.h"
#include "tests/support/DeviceTexts.h"

#include <QTest>

using namespace Platform;
using TestSupport::idsOf;

namespace {

constexpr int LongMs = 8000;
const DeviceInfo A{QStringLiteral("a"), QStringLiteral("Camera A")};
const DeviceInfo B{QStringLiteral("b"), QStringLiteral("Camera B")};

QString id(const char* text)
{
    return QString::fromLatin1(text);
}

// Reports what the test wants.
class Feed final : public CameraFeed
{
public:
    Feed(Feed** place, std::unique_ptr<Listener> listener)
        : m_place(place), m_listener(std::move(listener))
    {
        *m_place = this;
    }
    ~Feed() override { *m_place = nullptr; }

    void open(int number, const QString& id) override
    {
        generation = number;
        opened = id;
    }
    void close() override { opened.clear(); }
    void setOutputSize(const QSize&) override {}

    void list(const DeviceList& devices)
    {
        m_listener->listArrived(devices, {}, CameraServer::Answers);
    }
    void tell(DeviceState state) { m_listener->stateChanged(generation, state, {}); }
    void miss() { m_listener->serverMissing(); }

    QString opened;
    int generation = 0;

private:
    Feed** m_place;
    std::unique_ptr<Listener> m_listener;
};

} // namespace

class tst_PreferredFeed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_feed.reset(); }

    void usesTheSecondUntilTheFirstLists();
    void usesTheSecondIfTheFirstListsNone();
    void staysIfTheCamerasWereUnplugged();
    void keepsACameraInUse();
    void waitsForTheRestOfTheList();
    void takesOverWithoutABreak();
    void tellsWhyTheTakeoverFailed();
    void opensAnotherCameraMeanwhile();

private:
    class Watcher;

    void startWithSecond(const DeviceList& devices);
    FeedMaker makerOf(Feed** place);

    Feed* m_first = nullptr;
    Feed* m_second = nullptr;
    QStringList m_ids;    // of the last list
    QStringList m_states; // all
    std::shared_ptr<FrameSlot> m_slot;
    std::unique_ptr<PreferredFeed> m_feed;
};

class tst_PreferredFeed::Watcher final : public CameraFeed::Listener
{
public:
    explicit Watcher(tst_PreferredFeed& test) : m_test(test) {}
    void listArrived(const DeviceList& devices, const QString&, CameraServer) override
    {
        m_test.m_ids = idsOf(devices);
    }
    void stateChanged(int, DeviceState state, const QString&) override
    {
        m_test.m_states << toString(state);
    }
    void frameArrived() override {}
    void serverMissing() override {}

private:
    tst_PreferredFeed& m_test;
};

FeedMaker tst_PreferredFeed::makerOf(Feed** place)
{
    return [place](const auto&, auto listener, const auto&) {
        return std::make_unique<Feed>(place, std::move(listener));
    };
}

void tst_PreferredFeed::init()
{
    m_ids.clear();
    m_states.clear();
    m_slot = std::make_shared<FrameSlot>();
    m_feed = std::make_unique<PreferredFeed>(makerOf(&m_first), makerOf(&m_second), m_slot,
                                             std::make_unique<Watcher>(*this),
                                             std::make_shared<EndingThreads>());
    QVERIFY(m_first);
}

void tst_PreferredFeed::startWithSecond(const DeviceList& devices)
{
    m_first->miss();
    QTRY_VERIFY(m_second);
    m_second->list(devices);
    QTRY_COMPARE(m_ids, idsOf(devices));
}

void tst_PreferredFeed::usesTheSecondUntilTheFirstLists()
{
    startWithSecond({A});
    m_first->list({});
    m_first->list({A, B});
    QTRY_VERIFY(!m_second);
    QCOMPARE(m_ids, idsOf({A, B}));
    m_feed->open(1, A.id);
    QCOMPARE(m_first->opened, A.id);
}

void tst_PreferredFeed::usesTheSecondIfTheFirstListsNone()
{
    m_feed->open(1, A.id);
    m_first->list({});
    QTRY_VERIFY_WITH_TIMEOUT(m_second, LongMs);
    QCOMPARE(m_second->opened, A.id);
    QCOMPARE(m_first->opened, QString());
}

void tst_PreferredFeed::staysIfTheCamerasWereUnplugged()
{
    m_first->list({});
    m_first->list({A});
    QTRY_COMPARE(m_ids, idsOf({A}));
    m_first->list({});
    QTRY_COMPARE(m_ids, QStringList());
    QTest::qWait(PreferredFeed::Patience.count() + 100);
    QVERIFY(!m_second);
}

void tst_PreferredFeed::keepsACameraInUse()
{
    startWithSecond({A, B});
    m_feed->open(1, A.id);
    m_first->list({B});
    QTest::qWait(PreferredFeed::Patience.count() + 100);
    QVERIFY(m_second);
    QCOMPARE(m_ids, idsOf({A, B}));
    m_feed->open(2, A.id); // opening it again changes nothing
    QVERIFY(m_second);
    m_second->list({B}); // it was unplugged
    QTRY_VERIFY_WITH_TIMEOUT(!m_second, LongMs);
}

void tst_PreferredFeed::waitsForTheRestOfTheList()
{
    startWithSecond({A, B});
    m_first->list({A});
    QCoreApplication::processEvents();
    QVERIFY(m_second);
    QCOMPARE(m_ids, idsOf({A, B}));
    QTRY_VERIFY_WITH_TIMEOUT(!m_second, LongMs);
    QCOMPARE(m_ids, idsOf({A}));
}

// The other system may have the camera a little longer.
void tst_PreferredFeed::takesOverWithoutABreak()
{
    startWithSecond({A});
    const int generation = m_slot->open();
    m_feed->open(generation, A.id);
    QImage frame(16, 12, QImage::Format_RGB32);
    frame.fill(Qt::red);
    m_slot->put(generation, frame, frame.size());
    m_second->tell(DeviceState::Working);
    QTRY_COMPARE(m_states, QStringList(id("working")));
    m_first->list({A});
    QTRY_VERIFY(!m_second);
    m_slot->interrupt(generation); // by the system that was left
    QTRY_COMPARE_WITH_TIMEOUT(m_first->opened, A.id, LongMs);
    QCOMPARE(m_first->generation, generation);
    m_first->tell(DeviceState::Busy);
    QCoreApplication::processEvents();
    QVERIFY(!m_slot->newest().isNull());
    QCOMPARE(m_states.size(), 1);
    m_first->tell(DeviceState::Working);
    QTRY_COMPARE(m_states.size(), 2);
    QCOMPARE(m_states.last(), id("working"));
    m_slot->interrupt(generation);
    QVERIFY(m_slot->newest().isNull());
}

void tst_PreferredFeed::tellsWhyTheTakeoverFailed()
{
    startWithSecond({A});
    m_feed->open(m_slot->open(), A.id);
    m_first->list({A});
    QTRY_COMPARE_WITH_TIMEOUT(m_first->opened, A.id, LongMs);
    m_first->tell(DeviceState::Busy);
    QTRY_COMPARE_WITH_TIMEOUT(m_states, QStringList(id("busy")), LongMs);
}

void tst_PreferredFeed::opensAnotherCameraMeanwhile()
{
    startWithSecond({A, B});
    m_feed->open(1, A.id);
    m_first->list({A, B});
    QTRY_VERIFY(!m_second);
    m_feed->open(2, B.id);
    QCOMPARE(m_first->opened, B.id);
    m_first->tell(DeviceState::Busy);
    QTRY_COMPARE(m_states, QStringList(id("busy")));
    QTest::qWait(PreferredFeed::ReleaseDelay.count() + 100);
    QCOMPARE(m_first->opened, B.id);
}

QTEST_GUILESS_MAIN(tst_PreferredFeed)
#include "tst_PreferredFeed.moc"
