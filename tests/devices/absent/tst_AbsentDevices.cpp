// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DeviceSurvey.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/NoListener.h"

#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Platform;

// The engine where it can't use devices: it says so, and never that there are none.
class tst_AbsentDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void surveySaysWhy();
    void cameraSaysWhy();
    void resultsSayWhy();
    void noPlayer();
    void noAcousticLoop();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DeviceEngine> m_engine;
};

namespace {

class Listener : public TestSupport::NoListener, public CameraBackend::Listener
{
public:
    virtual ~Listener() = default;

    void cameraListChanged() override {}
    void currentCameraChanged(const QString&) override {}
    void cameraWorkStateChanged(const QString&, bool) override {}
    void cameraCauseChanged() override {}
    void frameArrived() override {}
};

} // namespace

void tst_AbsentDevices::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    DeviceEngineConfig config;
    config.settingsFolder = m_folder->path();
    m_engine = std::make_unique<DeviceEngine>(config);
}

void tst_AbsentDevices::surveySaysWhy()
{
    const DeviceSurvey survey = DeviceSurvey::of(*m_engine);
    for (const CheckKind kind : {CheckKind::Camera, CheckKind::Microphone, CheckKind::Speaker}) {
        QVERIFY(survey.absenceOf(kind) == Cause::NotBuilt);
    }
    QVERIFY(survey.isServerMissing()); // so the program doesn't end as if it had looked
    QVERIFY(survey.toText().contains(qtTrId("ID_Host_Reason_NotBuilt")));
    QVERIFY(survey.toText().contains(qtTrId("ID_Engine_SoundNotBuilt")));
    QVERIFY(!survey.toText().contains(qtTrId("ID_Host_Devices_None")));
}

void tst_AbsentDevices::cameraSaysWhy()
{
    Listener listener;
    const std::unique_ptr<CameraBackend> camera = m_engine->createCamera(listener);
    QVERIFY(camera->cause().kind == CameraCause::Kind::None); // nobody asked for a picture
    camera->start();
    QVERIFY(camera->cause().kind == CameraCause::Kind::NotBuilt);
    QVERIFY(camera->latestFrame().isNull());
    camera->stop();
    QVERIFY(camera->cause().kind == CameraCause::Kind::None);
}

void tst_AbsentDevices::resultsSayWhy()
{
    Listener listener;
    m_engine->createCamera(listener)->start();
    m_engine->createMicrophone(listener)->open();
    m_engine->createSpeaker(listener);
    const QJsonObject measured =
        m_engine->results().value(QLatin1String("measurements")).toObject();
    for (const char* check : {"camera", "microphone", "speaker"}) {
        const QJsonObject figures = measured.value(QLatin1String(check)).toObject();
        QCOMPARE(figures.value(QLatin1String("state")).toString(), QStringLiteral("notBuilt"));
    }
}

void tst_AbsentDevices::noPlayer()
{
    Listener listener;
    QVERIFY(!m_engine->createPlayer(QStringLiteral("any.mp3"), 1.0F, listener));
}

void tst_AbsentDevices::noAcousticLoop()
{
    QVERIFY(!m_engine->createAcousticLoop(QStringLiteral("speaker"), QStringLiteral("microphone")));
}

QTEST_GUILESS_MAIN(tst_AbsentDevices)
#include "tst_AbsentDevices.moc"
