// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DeviceSurvey.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/CameraWatcher.h"

#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Platform;

// The engine where it can't use cameras: it says so, and never that there are none.
class tst_AbsentCameras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void surveySaysWhy();
    void cameraSaysWhy();
    void resultsSayWhy();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DeviceEngine> m_engine;
};

void tst_AbsentCameras::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    DeviceEngineConfig config;
    config.settingsFolder = m_folder->path();
    m_engine = std::make_unique<DeviceEngine>(config);
}

void tst_AbsentCameras::surveySaysWhy()
{
    const DeviceSurvey survey = DeviceSurvey::of(*m_engine);
    QVERIFY(survey.absenceOf(CheckKind::Camera) == Cause::NotBuilt);
    QVERIFY(survey.absenceOf(CheckKind::Microphone) != Cause::NotBuilt);
    QVERIFY(survey.absenceOf(CheckKind::Speaker) != Cause::NotBuilt);
    QVERIFY(survey.isServerMissing()); // so the program doesn't end as if it had looked
    QVERIFY(survey.toText().contains(qtTrId("ID_Host_Reason_NotBuilt")));
    QVERIFY(!survey.toText().contains(qtTrId("ID_Engine_SoundNotBuilt")));
}

void tst_AbsentCameras::cameraSaysWhy()
{
    TestSupport::CameraWatcher watcher;
    const std::unique_ptr<CameraBackend> camera = m_engine->createCamera(watcher);
    QVERIFY(camera->cause().kind == CameraCause::Kind::None); // nobody asked for a picture
    camera->start();
    QVERIFY(camera->cause().kind == CameraCause::Kind::NotBuilt);
    QVERIFY(camera->latestFrame().isNull());
    camera->stop();
    QVERIFY(camera->cause().kind == CameraCause::Kind::None);
}

void tst_AbsentCameras::resultsSayWhy()
{
    TestSupport::CameraWatcher watcher;
    m_engine->createCamera(watcher)->start();
    const QJsonObject figures = m_engine->results()
                                    .value(QLatin1String("measurements"))
                                    .toObject()
                                    .value(QLatin1String("camera"))
                                    .toObject();
    QCOMPARE(figures.value(QLatin1String("state")).toString(), QStringLiteral("notBuilt"));
}

QTEST_GUILESS_MAIN(tst_AbsentCameras)
#include "tst_AbsentCameras.moc"
