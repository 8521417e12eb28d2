// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraOpening.h"
#include "platform/devices/camera/FrameSlot.h"

#include <QtTest>

using namespace Platform;
using namespace std::chrono_literals;

namespace {

const QString Id = QStringLiteral("usb-1");
const QString Other = QStringLiteral("usb-2");

// A system of which the test decides everything: the list, the streams, the time.
class System final : public CameraOpening::System
{
public:
    std::optional<QString> serialOf(const QString& id) const override
    {
        return serials.contains(id) ? std::make_optional(serials.value(id)) : std::nullopt;
    }
    bool openStream(const QString& serial) override
    {
        log << QStringLiteral("open ") + serial;
        if (onOpen) {
            onOpen();
        }
        return canOpen;
    }
    void closeStream() override { log << QStringLiteral("close"); }
    void wakeAfter(std::chrono::milliseconds delay) override { wakeIn = delay; }
    void cancelWake() override { wakeIn.reset(); }

    QMap<QString, QString> serials{{Id, QStringLiteral("41")}};
    QStringList log;
    bool canOpen = true;
    std::function<void()> onOpen;
    std::optional<std::chrono::milliseconds> wakeIn;
};

class Listener final : public CameraFeed::Listener
{
public:
    explicit Listener(QStringList& states) : m_states(states) {}

    void listArrived(const DeviceList&, const QString&, CameraServer) override {}
    void stateChanged(int generation, DeviceState state, const QString& program) override
    {
        const QString by = program.isEmpty() ? QString() : QStringLiteral(" by ") + program;
        m_states << QString::number(generation) + QLatin1Char(' ') + toString(state) + by;
    }
    void frameArrived() override {}
    void serverMissing() override {}

private:
    QStringList& m_states;
};

QImage frame()
{
    QImage result(4, 4, QImage::Format_RGB32);
    result.fill(Qt::red);
    return result;
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

} // namespace

class tst_CameraOpening : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void opensAndCloses();
    void opensWhenTheCameraArrives();
    void opensTheOtherCamera();
    void retriesHungStart();
    void waitsForHungStart();
    void startsTheTimeoutWhenTheSystemSaysSo();
    void noticesSilence();
    void retriesAfterAReason();
    void retriesWithoutAReason();
    void endsTheStreamFromOutside();
    void keepsTheReason();
    void tellsWhoUsesTheCamera();
    void forgetsTheReasonAtTheNextOpening();
    void reportsWhatCannotBeOpened();
    void forgetsTheCameraThatLeft();
    void followsReplugging();
    void ignoresOtherCameras();
    void losesTheConnection();
    void ignoresLateEvents();

private:
    void make(const CameraOpening::Rules& rules);
    void open();
    void run(); // opens a stream that runs
    void putFrame();
    void wake(std::chrono::milliseconds expected); // what was asked for
    QStringList takeLog() { return std::exchange(m_system->log, {}); }
    QStringList takeStates() { return std::exchange(m_states, {}); }

    FrameSlot::Clock::time_point m_now;
    QStringList m_states;
    std::shared_ptr<FrameSlot> m_slot;
    std::unique_ptr<System> m_system;
    std::unique_ptr<CameraOpening> m_opening;
};

void tst_CameraOpening::init()
{
    make({});
}

void tst_CameraOpening::opensAndCloses()
{
    open();
    QCOMPARE(takeLog(), words("close, open 41"));
    m_opening->startBegan();
    QVERIFY(m_system->wakeIn == CameraOpening::StartTimeout);
    m_opening->streamRuns();
    QVERIFY(m_system->wakeIn == CameraOpening::WatchPeriod);
    putFrame();
    putFrame();
    QCOMPARE(takeStates(), words("1 working"));
    m_opening->close();
    QCOMPARE(takeLog(), words("close"));
    QVERIFY(!m_system->wakeIn);
    QVERIFY(!m_slot->delivers());
    m_opening->openIfPresent();
    QCOMPARE(takeLog(), QStringList());
    QCOMPARE(takeStates(), QStringList()); // nobody wants to know any more
}

void tst_CameraOpening::opensWhenTheCameraArrives()
{
    m_system->serials.clear();
    open();
    m_opening->openIfPresent();
    QCOMPARE(takeLog(), words("close"));
    m_system->serials.insert(Id, QStringLiteral("42"));
    m_opening->openIfPresent();
    m_opening->openIfPresent(); // once
    QCOMPARE(takeLog(), words("open 42"));
}

void tst_CameraOpening::opensTheOtherCamera()
{
    m_system->serials.insert(Other, QStringLiteral("50"));
    run();
    putFrame();
    takeLog();
    takeStates();
    m_opening->open(m_slot->open(), Other);
    QCOMPARE(takeLog(), words("close, open 50"));
    QCOMPARE(takeStates(), QStringList());
    m_opening->streamRuns();
    putFrame();
    QCOMPARE(takeStates(), words("2 working"));
    QCOMPARE(m_opening->generation(), 2);
}

void tst_CameraOpening::retriesHungStart()
{
    open();
    m_opening->startBegan();
    takeLog();
    wake(CameraOpening::StartTimeout);
    QCOMPARE(takeLog(), words("close"));
    QCOMPARE(takeStates(), words("1 hung"));
    m_opening->openIfPresent(); // not yet
    QCOMPARE(takeLog(), QStringList());
    wake(CameraOpening::RetryDelay);
    QCOMPARE(takeLog(), words("open 41"));
    m_opening->streamRuns();
    putFrame();
    QCOMPARE(takeStates(), words("1 working"));
}

void tst_CameraOpening::waitsForHungStart()
{
    make({false, false});
    open();
    m_opening->startBegan();
    takeLog();
    wake(CameraOpening::StartTimeout);
    QCOMPARE(takeStates(), words("1 hung"));
    QVERIFY(!m_system->wakeIn);
    m_opening->openIfPresent();
    QCOMPARE(takeLog(), QStringList());
    m_opening->streamRuns();
    putFrame();
    QCOMPARE(takeStates(), words("1 working"));
}

void tst_CameraOpening::startsTheTimeoutWhenTheSystemSaysSo()
{
    open();
    QVERIFY(!m_system->wakeIn);
    m_opening->startBegan();
    QVERIFY(m_system->wakeIn == CameraOpening::StartTimeout);
    m_opening->streamRuns();
    m_opening->startBegan(); // too late
    QVERIFY(m_system->wakeIn == CameraOpening::WatchPeriod);
}

void tst_CameraOpening::noticesSilence()
{
    run();
    m_now += 500ms;
    wake(CameraOpening::WatchPeriod);
    QCOMPARE(takeStates(), QStringList());
    m_now += 1ms;
    wake(CameraOpening::WatchPeriod);
    wake(CameraOpening::WatchPeriod);
    QCOMPARE(takeStates(), words("1 silent"));
    m_slot->put(m_opening->generation(), frame(), QSize(4, 4));
    wake(CameraOpening::WatchPeriod);
    QCOMPARE(takeStates(), words("1 working"));
    m_now += 501ms;
    wake(CameraOpening::WatchPeriod);
    QCOMPARE(takeStates(), words("1 silent"));
    QVERIFY(!m_slot->newest().isNull()); // the last frame stays
    m_opening->forgetCamera();
    QCOMPARE(takeStates(), words("1 ready"));
}

void tst_CameraOpening::retriesAfterAReason()
{
    run();
    putFrame();
    takeLog();
    takeStates();
    m_opening->streamEnded(DeviceState::Busy);
    QCOMPARE(takeStates(), words("1 busy"));
    QVERIFY(m_slot->newest().isNull());
    QCOMPARE(takeLog(), QStringList()); // not from inside the stream
    wake(0ms);
    QCOMPARE(takeLog(), words("close"));
    wake(CameraOpening::RetryDelay);
    QCOMPARE(takeLog(), words("open 41"));
    QCOMPARE(takeStates(), QStringList());
}

void tst_CameraOpening::retriesWithoutAReason()
{
    run();
    putFrame();
    takeLog();
    takeStates();
    m_opening->streamEnded(std::nullopt);
    QCOMPARE(takeStates(), QStringList());
    wake(0ms);
    QCOMPARE(takeLog(), words("close"));
    QCOMPARE(takeStates(), words("1 ready"));
    wake(CameraOpening::RetryDelay);
    QCOMPARE(takeLog(), words("open 41"));
}

// The last word counts until the stream is closed.
void tst_CameraOpening::endsTheStreamFromOutside()
{
    run();
    m_opening->streamEnded(DeviceState::Failed);
    m_opening->streamEnded(DeviceState::Denied);
    QCOMPARE(takeStates(), words("1 failed, 1 denied"));
    takeLog();
    wake(0ms);
    QCOMPARE(takeLog(), words("close"));
    QVERIFY(m_system->wakeIn == CameraOpening::RetryDelay);
}

void tst_CameraOpening::keepsTheReason()
{
    run();
    m_opening->streamEnded(DeviceState::Failed);
    wake(0ms);
    wake(CameraOpening::RetryDelay);
    m_opening->startBegan();
    wake(CameraOpening::StartTimeout);
    wake(CameraOpening::RetryDelay);
    m_opening->streamRuns();
    m_now += 1s;
    wake(CameraOpening::WatchPeriod);
    QCOMPARE(takeStates(), words("1 failed"));
    putFrame();
    m_now += 1s;
    wake(CameraOpening::WatchPeriod);
    QCOMPARE(takeStates(), words("1 working, 1 silent"));
}

void tst_CameraOpening::tellsWhoUsesTheCamera()
{
    open();
    m_opening->startBegan();
    m_opening->streamEnded(DeviceState::Busy, QStringLiteral("meeting"));
    m_opening->setReason(DeviceState::Busy, QStringLiteral("meeting"));
    m_opening->setReason(DeviceState::Busy, QStringLiteral("recorder"));
    m_opening->setReason(DeviceState::Failed);
    QCOMPARE(takeStates(), words("1 busy by meeting, 1 busy by recorder, 1 failed"));
}

void tst_CameraOpening::forgetsTheReasonAtTheNextOpening()
{
    make({false, false});
    run();
    m_opening->streamEnded(DeviceState::Failed);
    wake(0ms);
    wake(CameraOpening::RetryDelay);
    m_opening->startBegan();
    QCOMPARE(takeStates(), words("1 failed"));
    wake(CameraOpening::StartTimeout);
    QCOMPARE(takeStates(), words("1 hung"));
}

void tst_CameraOpening::reportsWhatCannotBeOpened()
{
    m_system->canOpen = false;
    m_system->onOpen = [this] { m_opening->setReason(DeviceState::Failed); };
    open();
    QCOMPARE(takeStates(), words("1 failed"));
    QVERIFY(!m_system->wakeIn); // it won't change by waiting
    takeLog();
    m_opening->openIfPresent(); // but perhaps with the list
    QCOMPARE(takeLog(), words("open 41"));
    QCOMPARE(takeStates(), QStringList());
}

void tst_CameraOpening::forgetsTheCameraThatLeft()
{
    run();
    m_opening->streamEnded(DeviceState::Failed);
    wake(0ms);
    m_opening->forgetCameraIfReplaced();
    QCOMPARE(takeStates(), words("1 failed")); // it is still there
    m_system->serials.clear();
    takeLog();
    m_opening->forgetCameraIfReplaced();
    QCOMPARE(takeLog(), words("close"));
    QCOMPARE(takeStates(), words("1 ready"));
    QVERIFY(!m_system->wakeIn);
}

void tst_CameraOpening::followsReplugging()
{
    run();
    putFrame();
    takeLog();
    takeStates();
    m_system->serials.insert(Id, QStringLiteral("42"));
    m_opening->forgetCameraIfReplaced();
    QCOMPARE(takeLog(), words("close"));
    QCOMPARE(takeStates(), words("1 ready"));
    QVERIFY(m_slot->newest().isNull());
    m_opening->openIfPresent();
    QCOMPARE(takeLog(), words("open 42"));
}

void tst_CameraOpening::ignoresOtherCameras()
{
    run();
    putFrame();
    takeLog();
    m_system->serials.insert(Other, QStringLiteral("50"));
    m_opening->forgetCameraIfReplaced();
    m_opening->openIfPresent();
    QCOMPARE(takeLog(), QStringList());
    QVERIFY(m_slot->delivers());
}

void tst_CameraOpening::losesTheConnection()
{
    run();
    putFrame();
    takeStates();
    takeLog();
    m_opening->forgetCamera();
    QCOMPARE(takeLog(), words("close"));
    QCOMPARE(takeStates(), words("1 ready"));
    QVERIFY(!m_slot->delivers());
    QVERIFY(!m_system->wakeIn);
}

void tst_CameraOpening::ignoresLateEvents()
{
    run();
    m_opening->close();
    takeLog();
    m_opening->streamRuns();
    m_opening->startBegan();
    m_opening->streamEnded(DeviceState::Failed);
    m_opening->frameArrived();
    m_opening->wake();
    QVERIFY(!m_system->wakeIn);
    QCOMPARE(takeLog(), QStringList());
    QCOMPARE(takeStates(), QStringList());
}

void tst_CameraOpening::make(const CameraOpening::Rules& rules)
{
    m_now = {};
    m_states.clear();
    m_slot = std::make_shared<FrameSlot>([this] { return m_now; });
    m_system = std::make_unique<System>();
    m_opening = std::make_unique<CameraOpening>(*m_system, rules, m_slot,
                                                std::make_shared<Listener>(m_states));
}

void tst_CameraOpening::open()
{
    m_opening->open(m_slot->open(), Id);
}

void tst_CameraOpening::run()
{
    open();
    m_opening->startBegan();
    m_opening->streamRuns();
}

void tst_CameraOpening::putFrame()
{
    m_slot->put(m_opening->generation(), frame(), QSize(4, 4));
    m_opening->frameArrived();
}

void tst_CameraOpening::wake(std::chrono::milliseconds expected)
{
    QVERIFY(m_system->wakeIn == expected);
    m_system->wakeIn.reset();
    m_opening->wake();
}

QTEST_GUILESS_MAIN(tst_CameraOpening)
#include "tst_CameraOpening.moc"
