// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DeviceSurvey.h"
#include "platform/backend/FileWriter.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/devices/DialogCameras.h"

#include <QFile>
#include <QTest>

using namespace TestSupport;

namespace {

constexpr int LongMs = 15000;
const QByteArray Stored = "[camera]\ncurrent=desk\n";

} // namespace

// The list of cameras on a real server, beside the choice that an earlier check has stored.
class tst_CameraSurvey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesTheStoredChoice();
};

void tst_CameraSurvey::leavesTheStoredChoice()
{
    DialogCameras cameras;
    QVERIFY2(cameras.start(), qPrintable(cameras.problem()));
    cameras.plug(QStringLiteral("desk"), QStringLiteral("Desk camera"));
    cameras.plug(QStringLiteral("front"), QStringLiteral("Front camera"));
    const QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("devices.ini")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write(Stored);
    settings.close();

    Platform::DeviceEngineConfig config;
    config.settingsFolder = folder.path();
    {
        Platform::DeviceEngine engine(config);
        const DeviceSurvey survey = DeviceSurvey::of(engine);
        QCOMPARE(survey.cameras.size(), std::size_t(2));
        QCOMPARE(survey.cameras.at(0).info.name, QStringLiteral("Desk camera"));
        QVERIFY(survey.cameras.at(0).isCurrent);
        QVERIFY(!survey.cameras.at(1).isCurrent);
        QVERIFY(survey.cameras.at(1).state == Platform::DeviceState::Ready);
    }
    QVERIFY(Platform::FileWriter::waitForWritten(LongMs));
    QVERIFY(settings.open(QIODevice::ReadOnly));
    QCOMPARE(settings.readAll(), Stored);
    QVERIFY(!cameras.wasOpened(QStringLiteral("front")));
    QVERIFY(!cameras.wasOpened(QStringLiteral("desk")));
}

QTEST_GUILESS_MAIN(tst_CameraSurvey)
#include "tst_CameraSurvey.moc"
