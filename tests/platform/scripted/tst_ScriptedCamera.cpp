// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/CameraListener.h"
#include "tests/platform/scripted/ScriptedTest.h"

#include <QtTest>

using namespace Platform;
using TestSupport::CameraListener;

namespace {

const QString First = QStringLiteral("first");
const QString Second = QStringLiteral("second");

class MicrophoneListener : public MicrophoneBackend::Listener
{
public:
    void microphoneListChanged() override { m_heard.append(QStringLiteral("list")); }
    void currentMicrophoneChanged(const QString& id) override
    {
        m_heard.append(QStringLiteral("current ") + id);
    }
    void levelMeasured(double level) override { m_levels.push_back(level); }
    void microphoneVolumeChanged(int percent) override
    {
        m_heard.append(QStringLiteral("volume %1").arg(percent));
    }
    void microphoneInfoChanged() override { m_heard.append(QStringLiteral("info")); }
    void microphoneWorkStateChanged(const QString& id, bool works) override
    {
        m_heard.append(QStringLiteral("works %1 %2").arg(id).arg(works));
    }
    void systemVolumeChanged(float percent) override
    {
        m_heard.append(QStringLiteral("system %1").arg(double(percent), 0, 'f', 1));
    }

    QStringList take() { return std::exchange(m_heard, {}); }
    const std::vector<double>& levels() const { return m_levels; }

private:
    QStringList m_heard;
    std::vector<double> m_levels;
};

} // namespace

class tst_ScriptedCamera : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsAndChoosesCameras();
    void tellsCameraStates_data();
    void tellsCameraStates();
    void saysWhyThereIsNoPicture();
    void deliversFramesWhileStarted();
    void noticesAStall();
    void worksAtOnceWhenSaid();
    void paintsWhatTheFeedSays();
    void keepsQuietAboutWhatTheCallerDid();
    void tellsNobodyWhoIsGone();
};

void tst_ScriptedCamera::listsAndChoosesCameras()
{
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    QVERIFY(camera->state() == DeviceState::Absent);
    QVERIFY(camera->currentId().isEmpty());

    m_engine->cameras().plug({First, QStringLiteral("A")});
    QVERIFY(listener.take().isEmpty()); // never from inside a call
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(),
             (QStringList{QStringLiteral("list"), QStringLiteral("current first")}));
    QCOMPARE(camera->currentId(), First);
    QCOMPARE(camera->currentName(), QStringLiteral("A"));

    m_engine->cameras().plug({Second, QStringLiteral("A")});
    QCOMPARE(camera->currentId(), First);
    QCOMPARE(camera->devices().at(1).name, QStringLiteral("A (2)"));
    QCoreApplication::processEvents();
    listener.take();

    camera->setCurrent(Second);
    QCOMPARE(camera->currentName(), QStringLiteral("A (2)"));
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("current second")});

    m_engine->cameras().unplug(Second);
    QCOMPARE(camera->currentId(), Second); // still the chosen one
    QCOMPARE(camera->currentName(), QStringLiteral("A (2)"));
    QVERIFY(camera->state() == DeviceState::Absent);
    m_engine->cameras().plug({Second, QStringLiteral("B")});
    QVERIFY(camera->state() == DeviceState::Ready);
    QCOMPARE(camera->currentName(), QStringLiteral("B"));

    camera->setCurrent({});
    QVERIFY(camera->state() == DeviceState::Off);
    QVERIFY(camera->currentName().isEmpty());
}

void tst_ScriptedCamera::tellsCameraStates_data()
{
    QTest::addColumn<int>("scripted");
    QTest::addColumn<int>("started");
    const auto row = [](DeviceState scripted, DeviceState started) {
        QTest::addRow("%s", qPrintable(toString(scripted))) << int(scripted) << int(started);
    };
    row(DeviceState::Denied, DeviceState::Denied);
    row(DeviceState::Failed, DeviceState::Failed);
    row(DeviceState::Busy, DeviceState::Busy);
    row(DeviceState::Hung, DeviceState::Hung);
    row(DeviceState::Silent, DeviceState::Silent);
    row(DeviceState::Ready, DeviceState::Silent); // until the first picture
    row(DeviceState::Working, DeviceState::Working);
}

void tst_ScriptedCamera::tellsCameraStates()
{
    QFETCH(int, scripted);
    QFETCH(int, started);
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    m_engine->cameras().plug({First, QStringLiteral("A")}, static_cast<DeviceState>(scripted));
    QCOMPARE(int(camera->state()), scripted);
    camera->start();
    QCOMPARE(int(camera->state()), started);
}

void tst_ScriptedCamera::saysWhyThereIsNoPicture()
{
    using Kind = CameraCause::Kind;
    ScriptedCameras& cameras = m_engine->cameras();
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    camera->start();
    QVERIFY(camera->cause().kind == Kind::Absent);
    ScriptedCameras::Feed feed;
    feed.startMs = 60000;
    feed.program = QStringLiteral("meeting\n");
    cameras.setFeed(First, feed);
    cameras.plug({First, QStringLiteral("A")});
    QVERIFY(camera->cause().kind == Kind::Starting);
    QTRY_COMPARE(listener.causes(), 1);

    cameras.setState(First, DeviceState::Busy);
    QVERIFY(camera->cause() == (CameraCause{Kind::Busy, QStringLiteral("meeting")}));
    for (const auto& [state, kind] : {std::pair(DeviceState::Denied, Kind::Denied),
                                      std::pair(DeviceState::Failed, Kind::Failed),
                                      std::pair(DeviceState::Unreadable, Kind::Unreadable),
                                      std::pair(DeviceState::Hung, Kind::Hung),
                                      std::pair(DeviceState::Silent, Kind::Stalled)}) {
        cameras.setState(First, state);
        QVERIFY(camera->cause().kind == kind);
    }
    cameras.setFeed(First, {});
    cameras.setState(First, DeviceState::Ready);
    QTRY_VERIFY(camera->cause().kind == Kind::None);
    cameras.setPictures(First, ScriptedCameras::Pictures::None);
    QTRY_VERIFY(camera->cause().kind == Kind::Stalled);
    cameras.setPictures(First, ScriptedCameras::Pictures::Black);
    QTRY_VERIFY(camera->cause().kind == Kind::Black);
    cameras.setServerRunning(false);
    QVERIFY(camera->cause().kind == Kind::ServerLost);
    QVERIFY(camera->devices().empty());
    cameras.setServerRunning(true);
    QCOMPARE(camera->devices().front().name, QStringLiteral("A"));
    cameras.unplug(First);
    QVERIFY(camera->cause().kind == Kind::Unplugged);
    camera->setCurrent({});
    QVERIFY(camera->cause().kind == Kind::None);
    camera->stop();
    QVERIFY(camera->cause().kind == Kind::None);
}

void tst_ScriptedCamera::deliversFramesWhileStarted()
{
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    m_engine->cameras().plug({First, QStringLiteral("A")});
    QCoreApplication::processEvents();
    listener.take();
    QVERIFY(!camera->delivers());
    QVERIFY(camera->latestFrame().isNull());

    camera->start();
    QTRY_VERIFY(listener.pictures() >= 2);
    QVERIFY(camera->delivers());
    QVERIFY(camera->state() == DeviceState::Working);
    QVERIFY(!camera->latestFrame().isNull());
    QCOMPARE(listener.take(), QStringList{QStringLiteral("works first 1")});

    camera->stop();
    const int pictures = listener.pictures();
    QVERIFY(!camera->delivers());
    QVERIFY(camera->state() == DeviceState::Ready);
    QTest::qWait(100); // three frame periods
    QCOMPARE(listener.pictures(), pictures);
    QVERIFY(listener.take().isEmpty());
}

void tst_ScriptedCamera::noticesAStall()
{
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    m_engine->cameras().plug({First, QStringLiteral("A")});
    camera->start();
    QTRY_VERIFY(camera->delivers());
    QCoreApplication::processEvents();
    listener.take();

    QElapsedTimer clock;
    clock.start();
    m_engine->cameras().setPictures(First, ScriptedCameras::Pictures::None);
    QVERIFY(camera->delivers()); // the last picture is recent
    QTRY_COMPARE(listener.heard(), QStringList{QStringLiteral("works first 0")});
    listener.take();
    QVERIFY2(clock.elapsed() > 400 && clock.elapsed() < 1000,
             qPrintable(QString::number(clock.elapsed())));
    QVERIFY(camera->state() == DeviceState::Silent);

    m_engine->cameras().setPictures(First, ScriptedCameras::Pictures::Moving);
    QTRY_COMPARE(listener.heard(), QStringList{QStringLiteral("works first 1")});
    listener.take();

    m_engine->cameras().setState(First, DeviceState::Denied);
    QVERIFY(!camera->delivers());
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("works first 0")});
    m_engine->cameras().setState(First, DeviceState::Busy); // usable again
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("works first 0")});
}

void tst_ScriptedCamera::worksAtOnceWhenSaid()
{
    m_engine->cameras().plug({First, QStringLiteral("A")}, DeviceState::Working);
    m_engine->microphones().plug({First, QStringLiteral("A")}, DeviceState::Working);
    CameraListener cameraListener;
    MicrophoneListener microphoneListener;
    QVERIFY(m_engine->createCamera(cameraListener)->delivers());
    QVERIFY(m_engine->createMicrophone(microphoneListener)->hasHeardSound());
}

void tst_ScriptedCamera::paintsWhatTheFeedSays()
{
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    m_engine->cameras().setFeed(First, {ScriptedCameras::Pictures::Moving, QSize(640, 480), 60});
    m_engine->cameras().plug({First, QStringLiteral("Front")});
    camera->start();
    QTRY_VERIFY(listener.pictures() > 0);
    QCOMPARE(camera->latestFrame().size(), QSize(640, 480));
    camera->setOutputSize(QSize(306, 172));
    QCOMPARE(camera->latestFrame().size(), QSize(229, 172)); // the aspect is kept
    camera->setOutputSize(QSize(2000, 2000));
    QCOMPARE(camera->latestFrame().size(), QSize(640, 480)); // never enlarged

    const QImage moving = camera->latestFrame();
    const int before = listener.pictures();
    QTRY_VERIFY(listener.pictures() > before);
    QVERIFY(camera->latestFrame() != moving);

    m_engine->cameras().setPictures(First, ScriptedCameras::Pictures::Frozen);
    const QImage frozen = camera->latestFrame();
    const int frozenBefore = listener.pictures();
    QTRY_VERIFY(listener.pictures() > frozenBefore + 1);
    QCOMPARE(camera->latestFrame(), frozen);
    QVERIFY(camera->delivers());

    m_engine->cameras().setPictures(First, ScriptedCameras::Pictures::Black);
    const int blackBefore = listener.pictures();
    QTRY_VERIFY(listener.pictures() > blackBefore);
    QImage black(640, 480, QImage::Format_RGB32);
    black.fill(Qt::black);
    QCOMPARE(camera->latestFrame(), black);

    m_engine->cameras().setFeed(Second, m_engine->cameras().feed(First));
    m_engine->cameras().setPictures(Second, ScriptedCameras::Pictures::Frozen);
    m_engine->cameras().plug({Second, QStringLiteral("Back")});
    camera->setCurrent(Second);
    QVERIFY(camera->latestFrame().isNull()); // nothing from this one yet
    QTRY_VERIFY(!camera->latestFrame().isNull());
    QVERIFY(camera->latestFrame() != frozen);
}

void tst_ScriptedCamera::keepsQuietAboutWhatTheCallerDid()
{
    CameraListener listener;
    const auto camera = m_engine->createCamera(listener);
    m_engine->cameras().plug({First, QStringLiteral("A")}, DeviceState::Working);
    m_engine->cameras().plug({Second, QStringLiteral("B")}, DeviceState::Denied);
    QCoreApplication::processEvents();
    listener.take();
    camera->start();
    camera->stop();
    QCoreApplication::processEvents();
    QVERIFY(listener.take().isEmpty());
    camera->setCurrent(Second);
    camera->setCurrent(Second);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("current second")});
}

void tst_ScriptedCamera::tellsNobodyWhoIsGone()
{
    CameraListener listener;
    m_engine->cameras().plug({First, QStringLiteral("A")});
    auto camera = m_engine->createCamera(listener);
    camera->start();
    m_engine->cameras().rename(First, QStringLiteral("B"));
    camera.reset();
    QTest::qWait(100); // three frame periods
    QVERIFY(listener.take().isEmpty());
    QCOMPARE(listener.pictures(), 0);
}

QTEST_MAIN(tst_ScriptedCamera)
#include "tst_ScriptedCamera.moc"
