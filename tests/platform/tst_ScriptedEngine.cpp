// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/NoListener.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Platform;

namespace {

const QString First = QStringLiteral("first");
const QString Second = QStringLiteral("second");

class CameraListener : public CameraBackend::Listener
{
public:
    void cameraListChanged() override { m_heard.append(QStringLiteral("list")); }
    void currentCameraChanged(const QString& id) override
    {
        m_heard.append(QStringLiteral("current ") + id);
    }
    void cameraWorkStateChanged(const QString& id, bool works) override
    {
        m_heard.append(QStringLiteral("works %1 %2").arg(id).arg(works));
    }
    void frameArrived() override { ++m_pictures; }

    QStringList heard() const { return m_heard; }
    QStringList take() { return std::exchange(m_heard, {}); }
    int pictures() const { return m_pictures; }

private:
    QStringList m_heard;
    int m_pictures = 0;
};

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

class SpeakerListener : public SpeakerBackend::Listener
{
public:
    void speakerListChanged() override { m_heard.append(QStringLiteral("list")); }
    void currentSpeakerChanged(const QString& id) override
    {
        m_heard.append(QStringLiteral("current ") + id);
    }
    void speakerVolumeChanged(int percent) override
    {
        m_heard.append(QStringLiteral("volume %1").arg(percent));
    }
    void speakerWorkStateChanged(bool works) override
    {
        m_heard.append(QStringLiteral("works %1").arg(works));
    }

    QStringList take() { return std::exchange(m_heard, {}); }

private:
    QStringList m_heard;
};

class PlayerListener : public PlayerBackend::Listener
{
public:
    void playbackFinished() override { ++m_finished; }
    int finished() const { return m_finished; }

private:
    int m_finished = 0;
};

class ProbeListener : public NetworkProbe::Listener
{
public:
    void networkFiguresChanged() override { ++m_changes; }
    int changes() const { return m_changes; }

private:
    int m_changes = 0;
};

class FactsListener : public SystemFacts::Listener
{
public:
    void userInfoArrived() override { m_heard.append(QStringLiteral("user")); }
    void sessionBrokeDown() override { m_heard.append(QStringLiteral("broken")); }
    void userKickedOut() override { m_heard.append(QStringLiteral("out")); }
    QStringList take() { return std::exchange(m_heard, {}); }

private:
    QStringList m_heard;
};

} // namespace

class tst_ScriptedEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsAndChoosesCameras();
    void tellsCameraStates_data();
    void tellsCameraStates();
    void deliversFramesWhileStarted();
    void noticesAStall();
    void worksAtOnceWhenSaid();
    void paintsWhatTheFeedSays();
    void keepsQuietAboutWhatTheCallerDid();
    void hearsSoundWhileOpen();
    void passesEmittedLevelsOn();
    void setsMicrophoneVolumes();
    void dropsToZeroWhenUnplugged();
    void tellsSpeakerChanges();
    void playsSoundsAsLongAsTheyAre();
    void endsSoundsEarly();
    void measuresAlongTheSeries();
    void tellsOfTheSession();
    void logsCallsInOrder();
    void keepsTheLogBounded();
    void recordsReports();
    void recordsWhatItMeasured();
    void recordsWhyItMeasuredNothing();
    void recordsTheLevelsInDecibels();
    void recordsTheDefaultDevices();
    void mutedMicrophoneHearsNothing();
    void keepsSettingsToItself();
    void tellsNobodyWhoIsGone();

private:
    QJsonObject measurements() const
    {
        return m_engine->reports()
            .document()
            .toJson()
            .value(QStringLiteral("measurements"))
            .toObject();
    }

    std::unique_ptr<ScriptedEngine> m_engine;
};

void tst_ScriptedEngine::init()
{
    m_engine = std::make_unique<ScriptedEngine>();
}

void tst_ScriptedEngine::cleanup()
{
    QCOMPARE(m_engine->livingSessions(), 0);
    m_engine.reset();
}

void tst_ScriptedEngine::listsAndChoosesCameras()
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

void tst_ScriptedEngine::tellsCameraStates_data()
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

void tst_ScriptedEngine::tellsCameraStates()
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

void tst_ScriptedEngine::deliversFramesWhileStarted()
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

void tst_ScriptedEngine::noticesAStall()
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

void tst_ScriptedEngine::worksAtOnceWhenSaid()
{
    m_engine->cameras().plug({First, QStringLiteral("A")}, DeviceState::Working);
    m_engine->microphones().plug({First, QStringLiteral("A")}, DeviceState::Working);
    CameraListener cameraListener;
    MicrophoneListener microphoneListener;
    QVERIFY(m_engine->createCamera(cameraListener)->delivers());
    QVERIFY(m_engine->createMicrophone(microphoneListener)->hasHeardSound());
}

void tst_ScriptedEngine::paintsWhatTheFeedSays()
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

void tst_ScriptedEngine::keepsQuietAboutWhatTheCallerDid()
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

void tst_ScriptedEngine::hearsSoundWhileOpen()
{
    MicrophoneListener listener;
    const auto microphone = m_engine->createMicrophone(listener);
    m_engine->microphones().setLevel(First, 0.5);
    m_engine->microphones().plug({First, QStringLiteral("A")});
    QCoreApplication::processEvents();
    listener.take();
    QVERIFY(microphone->state() == DeviceState::Ready);
    QVERIFY(!microphone->hasHeardSound());
    QVERIFY(listener.levels().empty());

    QElapsedTimer clock;
    clock.start();
    microphone->open();
    QTRY_VERIFY(listener.levels().size() >= 15);
    QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(listener.levels().front(), 0.5);
    QVERIFY(microphone->hasHeardSound());
    QVERIFY(microphone->state() == DeviceState::Working);
    QCOMPARE(listener.take(), QStringList{QStringLiteral("works first 1")});

    microphone->close();
    const auto count = listener.levels().size();
    QTest::qWait(100); // three level periods
    QCOMPARE(listener.levels().size(), count);
    QVERIFY(microphone->hasHeardSound());

    m_engine->microphones().setLevel(Second, 0.0);
    m_engine->microphones().plug({Second, QStringLiteral("B")});
    microphone->setCurrent(Second);
    QVERIFY(!microphone->hasHeardSound()); // not from this one
    microphone->open();
    QTRY_VERIFY(listener.levels().size() > count + 3);
    QVERIFY(!microphone->hasHeardSound());
    QVERIFY(microphone->state() == DeviceState::Silent);
}

void tst_ScriptedEngine::passesEmittedLevelsOn()
{
    MicrophoneListener listener;
    const auto microphone = m_engine->createMicrophone(listener);
    m_engine->microphones().plug({First, QStringLiteral("A")});
    m_engine->microphones().emitLevel(0.999);
    m_engine->microphones().emitLevel(std::numeric_limits<double>::quiet_NaN());
    m_engine->microphones().emitLevel(-3.0);
    QVERIFY(listener.levels().empty());
    QCoreApplication::processEvents();
    QCOMPARE(int(listener.levels().size()), 3);
    QCOMPARE(listener.levels().at(0), 0.999);
    QVERIFY(std::isnan(listener.levels().at(1)));
    QCOMPARE(listener.levels().at(2), -3.0);
    QVERIFY(!microphone->hasHeardSound()); // it wasn't open
    microphone->open();
    m_engine->microphones().emitLevel(0.4);
    QTRY_VERIFY(microphone->hasHeardSound());
}

void tst_ScriptedEngine::setsMicrophoneVolumes()
{
    MicrophoneListener listener;
    const auto microphone = m_engine->createMicrophone(listener);
    m_engine->microphones().plug({First, QStringLiteral("A")});
    QCoreApplication::processEvents();
    listener.take();
    QCOMPARE(microphone->volume(), 100);
    microphone->setVolume(120);
    microphone->setVolume(400);
    QCOMPARE(microphone->volume(), 150);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(),
             (QStringList{QStringLiteral("volume 120"), QStringLiteral("volume 150")}));

    m_engine->microphones().moveVolumeFromOutside(37.9F);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("system 37.9")});
    QCOMPARE(microphone->volume(), 37);
    m_engine->microphones().moveVolumeFromOutside(std::numeric_limits<float>::quiet_NaN());
    m_engine->microphones().moveVolumeFromOutside(std::numeric_limits<float>::infinity());
    QCOMPARE(microphone->volume(), 150);
    QCoreApplication::processEvents();
    listener.take();

    QVERIFY(microphone->isVolumeAdjustable());
    m_engine->microphones().setAdjustable(First, false);
    QVERIFY(!microphone->isVolumeAdjustable());
    m_engine->microphones().rename(First, QStringLiteral("New"));
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(),
             (QStringList{QStringLiteral("info"), QStringLiteral("list"),
                          QStringLiteral("current first"), QStringLiteral("info")}));
}

void tst_ScriptedEngine::dropsToZeroWhenUnplugged()
{
    MicrophoneListener listener;
    const auto microphone = m_engine->createMicrophone(listener);
    m_engine->microphones().setLevel(First, 0.5);
    m_engine->microphones().plug({First, QStringLiteral("A")});
    microphone->open();
    QTRY_VERIFY(!listener.levels().empty());
    m_engine->microphones().unplug(First);
    QTRY_COMPARE(listener.levels().back(), 0.0);
    QVERIFY(microphone->state() == DeviceState::Absent);
    QVERIFY(!microphone->hasHeardSound());
}

void tst_ScriptedEngine::tellsSpeakerChanges()
{
    SpeakerListener listener;
    const auto speaker = m_engine->createSpeaker(listener);
    m_engine->scriptedSpeakers().setVolume(First, 30);
    m_engine->scriptedSpeakers().plug({First, QStringLiteral("A")});
    QCOMPARE(m_engine->speakers().front().id, First);
    QCOMPARE(speaker->volume(), 30);
    QCoreApplication::processEvents();
    listener.take();

    speaker->setVolume(140);
    QCOMPARE(speaker->volume(), 100);
    QCoreApplication::processEvents();
    QVERIFY(listener.take().isEmpty()); // it was this user's own
    m_engine->scriptedSpeakers().moveVolumeFromOutside(70);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("volume 70")});

    m_engine->scriptedSpeakers().setState(First, DeviceState::Failed);
    m_engine->scriptedSpeakers().setState(First, DeviceState::Ready);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), (QStringList{QStringLiteral("works 0"), QStringLiteral("works 1")}));

    m_engine->scriptedSpeakers().unplug(First);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(),
             (QStringList{QStringLiteral("list"), QStringLiteral("current first")}));
    QVERIFY(speaker->state() == DeviceState::Absent);
}

void tst_ScriptedEngine::playsSoundsAsLongAsTheyAre()
{
    m_engine->scriptedSpeakers().plug({First, QStringLiteral("A")});
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Sound.mp3"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4800, 'x')); // 200 ms at 192 kbit/s
    file.close();

    PlayerListener listener;
    QElapsedTimer clock;
    clock.start();
    const auto player = m_engine->createPlayer(path, 1.0F, listener);
    QTRY_COMPARE(listener.finished(), 1);
    QVERIFY2(clock.elapsed() >= 180 && clock.elapsed() < 500,
             qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(m_engine->scriptedSpeakers().playedFiles(), QStringList{path});

    m_engine->scriptedSpeakers().setSoundLength(QStringLiteral("Sound.mp3"), 0);
    PlayerListener shortListener;
    const auto shortPlayer = m_engine->createPlayer(path, 1.0F, shortListener);
    QCOMPARE(shortListener.finished(), 0); // from the event loop
    QTRY_COMPARE(shortListener.finished(), 1);
    m_engine->scriptedSpeakers().finishPlayback();
    QCoreApplication::processEvents();
    QCOMPARE(listener.finished(), 1); // once is all
    QCOMPARE(shortListener.finished(), 1);
}

void tst_ScriptedEngine::endsSoundsEarly()
{
    ScriptedSpeakers& speakers = m_engine->scriptedSpeakers();
    const QString path = QStringLiteral("/nowhere/Sound.mp3");
    PlayerListener deviceless;
    const auto withoutSpeaker = m_engine->createPlayer(path, 1.0F, deviceless);
    QTRY_COMPARE(deviceless.finished(), 1);

    speakers.plug({First, QStringLiteral("A")});
    PlayerListener missing;
    const auto withoutFile = m_engine->createPlayer(path, 1.0F, missing);
    QTRY_COMPARE(missing.finished(), 1);

    speakers.setSoundLength(QStringLiteral("Sound.mp3"), 60000);
    PlayerListener steered;
    const auto player = m_engine->createPlayer(path, 1.0F, steered);
    QCoreApplication::processEvents();
    QCOMPARE(steered.finished(), 0);
    speakers.finishPlayback();
    QCOMPARE(steered.finished(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(steered.finished(), 1);

    PlayerListener unplugged;
    const auto cutOff = m_engine->createPlayer(path, 1.0F, unplugged);
    speakers.unplug(First);
    QTRY_COMPARE(unplugged.finished(), 1);

    speakers.setPlayerFails(true);
    QVERIFY(!m_engine->createPlayer(path, 1.0F, unplugged));
}

void tst_ScriptedEngine::measuresAlongTheSeries()
{
    ProbeListener quietListener;
    const auto quiet = m_engine->createNetworkProbe(quietListener);
    QCOMPARE(quiet->figures().delayMs, -1);

    QElapsedTimer clock;
    clock.start();
    m_engine->network().setSeries({{0, 20, 0, 10, 10}, {71, 500, 0, 20, 6}});
    QTRY_COMPARE(quietListener.changes(), 1);
    QVERIFY(clock.elapsed() < 1000);
    QCOMPARE(quiet->figures().delayMs, 20);
    QTRY_COMPARE(quietListener.changes(), 2);
    QVERIFY(clock.elapsed() >= 1000);
    QCOMPARE(quiet->figures().lossPercent, 71);
    QCOMPARE(quiet->figures().delay5Ms, 20);
    QCOMPARE(quiet->figures().delay95Ms, 500);
    QTRY_COMPARE(quietListener.changes(), 3); // the last element stays
    QCOMPARE(quiet->figures().delayMs, 500);

    m_engine->network().setFigures({1, 2, 3, 4, 5});
    QCOMPARE(quietListener.changes(), 3);
    QCoreApplication::processEvents();
    QCOMPARE(quietListener.changes(), 4);
    QCOMPARE(quiet->figures().jitterMs, 3);
    QCOMPARE(quiet->figures().delay5Ms, 2); // of what was measured since
    m_engine->network().setFigures({100, -1, 0, 4, 0});
    QTRY_COMPARE(quietListener.changes(), 5);
    QCOMPARE(quiet->figures().delay95Ms, -1);
}

void tst_ScriptedEngine::tellsOfTheSession()
{
    ScriptedFacts& facts = m_engine->facts();
    facts.kickOut(); // nobody listens
    QCoreApplication::processEvents();
    FactsListener listener;
    facts.setListener(&listener);
    facts.refreshUserInfo();
    facts.bringUserInfo(QStringLiteral("account"), QStringLiteral("nick"));
    facts.breakDown();
    facts.kickOut();
    QVERIFY(listener.take().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), (QStringList{QStringLiteral("user"), QStringLiteral("broken"),
                                           QStringLiteral("out")}));
    QCOMPARE(facts.accountName(), QStringLiteral("account"));
    QCOMPARE(facts.nickName(), QStringLiteral("nick"));
    facts.breakDown();
    facts.setListener(nullptr);
    QCoreApplication::processEvents();
    QVERIFY(listener.take().isEmpty());
}

void tst_ScriptedEngine::logsCallsInOrder()
{
    CameraListener listener;
    {
        const auto camera = m_engine->createCamera(listener);
        QVERIFY(camera->devices().empty());
        camera->setOutputSize(QSize(306, 172));
        camera->setCurrent(First);
        camera->start();
        QVERIFY(!camera->delivers());
        camera->stop();
    }
    m_engine->reportSink().recordResult(QStringLiteral("camera.userState"), 1);
    m_engine->reportSink().postCode(QStringLiteral("ContentPage::closeEvent"), 3);
    const QStringList commands = {QStringLiteral("camera.create()"),
                                  QStringLiteral("camera.setOutputSize(306x172)"),
                                  QStringLiteral("camera.setCurrent(first)"),
                                  QStringLiteral("camera.start()"),
                                  QStringLiteral("camera.stop()"),
                                  QStringLiteral("camera.destroy()"),
                                  QStringLiteral("report.result(camera.userState=1)"),
                                  QStringLiteral("report.post(ContentPage::closeEvent,3)")};
    QCOMPARE(m_engine->commands(), commands);
    QStringList calls = commands;
    calls.insert(1, QStringLiteral("camera.devices()"));
    calls.insert(5, QStringLiteral("camera.delivers()"));
    QCOMPARE(m_engine->calls(), calls);
    m_engine->clearCalls();
    QVERIFY(m_engine->calls().isEmpty());
}

void tst_ScriptedEngine::keepsTheLogBounded()
{
    for (std::size_t i = 0; i < CallLog::MaxEntries + 5; ++i) {
        m_engine->speakers();
    }
    m_engine->facts().refreshUserInfo();
    QCOMPARE(m_engine->calls().size(), int(CallLog::MaxEntries));
    QCOMPARE(m_engine->calls().constLast(), QStringLiteral("facts.refreshUserInfo()"));
}

void tst_ScriptedEngine::recordsReports()
{
    m_engine->reports().setOutcome(ScriptedReports::Outcome::Unreachable);
    m_engine->reportSink().recordMeasurement(QStringLiteral("camera"),
                                             {{QStringLiteral("width"), 640}});
    m_engine->reportSink().postCode(QStringLiteral("name"), 7);
    QCOMPARE(m_engine->reports().posts().size(), 1);
    QCOMPARE(m_engine->reports().posts().constFirst().code, 7);
    QVERIFY(m_engine->reports().posts().constFirst().outcome ==
            ScriptedReports::Outcome::Unreachable);
    const QJsonObject document = m_engine->reports().document().toJson();
    QCOMPARE(
        document[QStringLiteral("measurements")][QStringLiteral("camera")][QStringLiteral("width")]
            .toInt(),
        640);
    QVERIFY(m_engine->commands().contains(QStringLiteral("report.measurement(camera)")));
}

void tst_ScriptedEngine::recordsWhatItMeasured()
{
    struct Listener final : TestSupport::NoListener, CameraBackend::Listener, NetworkProbe::Listener
    {
        void cameraListChanged() override {}
        void currentCameraChanged(const QString&) override {}
        void cameraWorkStateChanged(const QString&, bool) override {}
        void frameArrived() override { ++pictures; }
        void networkFiguresChanged() override { ++figures; }
        int pictures = 0;
        int figures = 0;
    } listener;
    m_engine->cameras().plug({QStringLiteral("c"), QStringLiteral("Camera")});
    m_engine->cameras().setFeed(QStringLiteral("c"),
                                {ScriptedCameras::Pictures::Black, QSize(640, 480), 50});
    m_engine->microphones().plug({QStringLiteral("m"), QStringLiteral("Microphone")});
    m_engine->microphones().setVolume(QStringLiteral("m"), 80);
    m_engine->scriptedSpeakers().plug({QStringLiteral("s"), QStringLiteral("Speaker")});
    m_engine->microphones().setMuted(QStringLiteral("m"), true);
    m_engine->scriptedSpeakers().setMuted(QStringLiteral("s"), true);
    m_engine->network().setFigures({7, 41, 3, 50, 46});
    {
        const auto camera = m_engine->createCamera(listener);
        const auto microphone = m_engine->createMicrophone(listener);
        const auto speaker = m_engine->createSpeaker(listener);
        const auto probe = m_engine->createNetworkProbe(listener);
        const auto player =
            m_engine->createPlayer(QStringLiteral("/sounds/Piano.mp3"), 1.0F, listener);
        camera->start();
        microphone->open();
        microphone->setVolume(70);
        speaker->setVolume(33);
        m_engine->cameras().plug({QStringLiteral("other"), QStringLiteral("Other")});
        m_engine->scriptedSpeakers().plug({QStringLiteral("other"), QStringLiteral("Other")});
        m_engine->microphones().plug({QStringLiteral("other"), QStringLiteral("Other")});
        QTRY_VERIFY(listener.pictures > 2 && listener.figures > 0);
    }
    const QJsonObject measured = measurements();
    const auto value = [&measured](const char* check, const char* key) {
        return measured.value(QLatin1String(check)).toObject().value(QLatin1String(key));
    };
    QCOMPARE(value("network", "delayMs").toInt(), 41);
    QCOMPARE(value("network", "lossPercent").toInt(), 7);
    QCOMPARE(value("camera", "blackShare").toDouble(), 1.0);
    QCOMPARE(value("camera", "frozenShare").toDouble(), 0.0);
    QCOMPARE(value("camera", "width").toInt(), 640);
    QVERIFY(value("camera", "pictures").toInt() > 2);
    QVERIFY(value("camera", "firstPictureMs").toInt(-1) >= 0);
    QCOMPARE(value("camera", "brightness"), QJsonValue(0.0));
    QCOMPARE(value("microphone", "soundHeard"), QJsonValue(false));
    const QJsonObject scripted{{QStringLiteral("notMeasured"), QStringLiteral("scripted")}};
    for (const char* key :
         {"peakDb", "noiseFloorDb", "clippedShare", "humShare", "humHz", "bandwidthHz"}) {
        QCOMPARE(value("microphone", key), QJsonValue(scripted)); // there is no level curve
    }
    QCOMPARE(value("microphone", "volumeBefore").toInt(), 80);
    QCOMPARE(value("microphone", "volumeAfter").toInt(), 70);
    QCOMPARE(value("speaker", "volumeBefore").toInt(), 50);
    QCOMPARE(value("speaker", "volumeAfter").toInt(), 33);
    QCOMPARE(value("speaker", "movedByUser"), QJsonValue(true));
    for (const char* check : {"microphone", "speaker"}) {
        QCOMPARE(value(check, "mutedBefore"), QJsonValue(true));
        QCOMPARE(value(check, "mutedAfter"), QJsonValue(false)); // the volume was moved
    }
    QCOMPARE(value("speaker", "soundPlayed"), QJsonValue("Piano"));
    QVERIFY(value("microphone", "seconds").toDouble() > 0);
}

void tst_ScriptedEngine::recordsWhyItMeasuredNothing()
{
    TestSupport::NoListener listener;
    m_engine->scriptedSpeakers().setPlayerFails(true);
    {
        const auto microphone = m_engine->createMicrophone(listener);
        const auto speaker = m_engine->createSpeaker(listener);
        microphone->open();
        QVERIFY(!m_engine->createPlayer(QStringLiteral("/sounds/Piano.mp3"), 1.0F, listener));
    }
    const QJsonObject measured = measurements();
    QCOMPARE(measured.value(QStringLiteral("microphone")),
             QJsonValue(QJsonObject{{QStringLiteral("state"), QStringLiteral("absent")}}));
    const QJsonObject failed{{QStringLiteral("failed"), QStringLiteral("failed")}};
    QCOMPARE(measured.value(QStringLiteral("speaker")),
             QJsonValue(QJsonObject{{QStringLiteral("state"), QStringLiteral("absent")},
                                    {QStringLiteral("soundPlayed"), failed}}));
}

void tst_ScriptedEngine::recordsTheLevelsInDecibels()
{
    TestSupport::NoListener listener;
    ScriptedMicrophones& microphones = m_engine->microphones();
    microphones.plug({First, QStringLiteral("A")});
    microphones.plug({Second, QStringLiteral("B")});
    const auto measured = [this](const char* key) {
        return measurements().value(QStringLiteral("microphone"))[QLatin1String(key)];
    };
    const auto microphone = m_engine->createMicrophone(listener);
    microphone->open();
    for (const double level : {0.5, 0.05, 0.9, std::nan("")}) {
        microphones.emitLevel(level);
    }
    QCoreApplication::processEvents();
    microphone->close();
    QCOMPARE(measured("peakDb"), QJsonValue(-6.0));
    QCOMPARE(measured("noiseFloorDb"), QJsonValue(-57.0));

    microphone->open();
    microphones.emitLevel(2.0);
    microphones.emitLevel(-1.0);
    QCoreApplication::processEvents();
    microphone->close();
    QCOMPARE(measured("peakDb"), QJsonValue(0.0));
    QCOMPARE(measured("noiseFloorDb"), QJsonValue(-60.0));

    microphone->open();
    microphones.emitLevel(0.5);
    QCoreApplication::processEvents();
    microphones.choose(Second); // has no part in that
    microphone->close();
    QVERIFY(measured("peakDb").isObject());
}

void tst_ScriptedEngine::recordsTheDefaultDevices()
{
    TestSupport::NoListener listener;
    const DeviceInfo first{First, QStringLiteral("A")};
    const DeviceInfo second{Second, QStringLiteral("B")};
    {
        const auto speaker = m_engine->createSpeaker(listener);
        const auto microphone = m_engine->createMicrophone(listener);
        microphone->open();
        for (ScriptedDevices* devices :
             {static_cast<ScriptedDevices*>(&m_engine->scriptedSpeakers()),
              static_cast<ScriptedDevices*>(&m_engine->microphones())}) {
            devices->plug(first);
            devices->plug(second);
            devices->choose(Second); // the user's choice moves no default
            devices->unplug(First);
            devices->unplug(Second); // none is no news
        }
    }
    for (const char* check : {"speaker", "microphone"}) {
        const QJsonValue measured = m_engine->reports().document().toJson().value(
            QStringLiteral("measurements"))[QLatin1String(check)];
        QCOMPARE(measured[QStringLiteral("defaultBefore")], QJsonValue(QStringLiteral("A")));
        QCOMPARE(measured[QStringLiteral("defaultAfter")], QJsonValue(QStringLiteral("B")));
    }
}

void tst_ScriptedEngine::mutedMicrophoneHearsNothing()
{
    ScriptedMicrophones& microphones = m_engine->microphones();
    microphones.plug({QStringLiteral("m"), QStringLiteral("Microphone")});
    microphones.setLevel(QStringLiteral("m"), 0.5);
    QCOMPARE(microphones.levelAt(0), 0.5);
    microphones.setMuted(QStringLiteral("m"), true);
    QCOMPARE(microphones.levelAt(0), 0.0);
    microphones.setVolumeByUser(80);
    QCOMPARE(microphones.levelAt(0), 0.5);
}

void tst_ScriptedEngine::keepsSettingsToItself()
{
    const QString folder = m_engine->settingsFolder();
    QVERIFY(QFileInfo(folder).isDir());
    QVERIFY(folder.startsWith(QDir::tempPath()));
    m_engine.reset();
    QVERIFY(!QFileInfo::exists(folder));

    m_engine = std::make_unique<ScriptedEngine>();
    m_engine->setSettingsFolder(QStringLiteral("/some/where"));
    QCOMPARE(m_engine->settingsFolder(), QStringLiteral("/some/where"));

    const ScriptedEngine& installed = ScriptedEngine::install();
    QCOMPARE(&EngineRegistry::engine(), &installed);
    EngineRegistry::uninstall();
}

void tst_ScriptedEngine::tellsNobodyWhoIsGone()
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

QTEST_MAIN(tst_ScriptedEngine)
#include "tst_ScriptedEngine.moc"
