// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/ScriptedTest.h"
#include "tests/support/NoListener.h"

#include <QtTest>

#include <cmath>

using namespace Platform;

namespace {

const QString First = QStringLiteral("first");
const QString Second = QStringLiteral("second");

} // namespace

class tst_ScriptedReports : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void recordsReports();
    void recordsWhatItMeasured();
    void recordsWhyItMeasuredNothing();
    void recordsTheLevelsInDecibels();
    void recordsTheDefaultDevices();

private:
    QJsonObject measurements() const
    {
        return m_engine->reports()
            .document()
            .toJson()
            .value(QStringLiteral("measurements"))
            .toObject();
    }
};

void tst_ScriptedReports::recordsReports()
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

void tst_ScriptedReports::recordsWhatItMeasured()
{
    struct Listener final : TestSupport::NoListener, CameraBackend::Listener, NetworkProbe::Listener
    {
        void cameraListChanged() override {}
        void cameraCauseChanged() override {}
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
    QCOMPARE(value("camera", "modes"), QJsonValue(scripted));
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

void tst_ScriptedReports::recordsWhyItMeasuredNothing()
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

void tst_ScriptedReports::recordsTheLevelsInDecibels()
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

void tst_ScriptedReports::recordsTheDefaultDevices()
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

QTEST_MAIN(tst_ScriptedReports)
#include "tst_ScriptedReports.moc"
