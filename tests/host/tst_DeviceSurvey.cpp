// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/DeviceSurvey.h"
#include "host/Languages.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QJsonArray>
#include <QtTest>

class tst_DeviceSurvey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noDevices();
    void everyDeviceHasItsState();
    void foreignNames();
    void soundServerIsTheCause();
    void unsupportedSystem();
    void nothingIsOpenedOrMoved();

private:
    Languages m_languages;
};

void tst_DeviceSurvey::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_DeviceSurvey::noDevices()
{
    Platform::ScriptedEngine engine;
    const DeviceSurvey survey = DeviceSurvey::of(engine);
    QCOMPARE(survey.toText(),
             QStringLiteral("Cameras\n    none found\nMicrophones\n    none found\n"
                            "Speakers\n    none found\n"));
    QCOMPARE(survey.toJson().value(QStringLiteral("cameras")).toArray().size(), 0);
}

void tst_DeviceSurvey::everyDeviceHasItsState()
{
    Platform::ScriptedEngine engine;
    using Platform::DeviceState;
    engine.cameras().plug({QStringLiteral("c1"), QStringLiteral("One")}, DeviceState::Denied);
    engine.cameras().plug({QStringLiteral("c2"), QStringLiteral("Two")}, DeviceState::Ready);
    engine.microphones().plug({QStringLiteral("m"), QStringLiteral("Mic")}, DeviceState::Busy);
    engine.microphones().setVolume(QStringLiteral("m"), 120);
    engine.scriptedSpeakers().plug({QStringLiteral("s"), QStringLiteral("Speaker")});
    engine.scriptedSpeakers().setVolume(QStringLiteral("s"), 40);
    engine.scriptedSpeakers().plug({QStringLiteral("t"), QStringLiteral("Other")});
    engine.scriptedSpeakers().setVolume(QStringLiteral("t"), 70);
    engine.scriptedSpeakers().setMuted(QStringLiteral("t"), true);
    const DeviceSurvey survey = DeviceSurvey::of(engine);
    QCOMPARE(survey.toText(), QStringLiteral("Cameras\n"
                                             "  * access denied  -      One\n"
                                             "    ready          -      Two\n"
                                             "Microphones\n"
                                             "  * in use         120 %  Mic\n"
                                             "Speakers\n"
                                             "  * ready          40 %   Speaker\n"
                                             "    ready          0 %    Other\n"));
    Languages languages;
    QCOMPARE(languages.use(QStringLiteral("zh_CN")), QString());
    QCOMPARE(survey.toText(), QString::fromUtf8("摄像头\n"
                                                "  * 访问被拒绝  -      One\n"
                                                "    就绪        -      Two\n"
                                                "麦克风\n"
                                                "  * 被占用      120 %  Mic\n"
                                                "扬声器\n"
                                                "  * 就绪        40 %   Speaker\n"
                                                "    就绪        0 %    Other\n"));
    const QJsonObject camera =
        survey.toJson().value(QStringLiteral("cameras")).toArray().at(0).toObject();
    QCOMPARE(camera, (QJsonObject{{QStringLiteral("id"), QStringLiteral("c1")},
                                  {QStringLiteral("name"), QStringLiteral("One")},
                                  {QStringLiteral("state"), QStringLiteral("denied")},
                                  {QStringLiteral("isCurrent"), true}}));
}

void tst_DeviceSurvey::foreignNames()
{
    DeviceSurvey survey;
    survey.cameras.push_back({{QStringLiteral("c"), QStringLiteral("a\x1b[2J\nb")},
                              Platform::DeviceState::Ready,
                              false,
                              std::nullopt});
    QVERIFY(survey.toText().contains(QLatin1String("a [2J b\n")));
}

void tst_DeviceSurvey::soundServerIsTheCause()
{
    DeviceSurvey survey;
    survey.soundServer = Platform::SoundServerState::Lost;
    QCOMPARE(survey.toText(), QStringLiteral("Cameras\n    none found\n"
                                             "Microphones\n    The sound service is not running\n"
                                             "Speakers\n    The sound service is not running\n"));
    survey.soundServer = Platform::SoundServerState::Silent;
    QVERIFY(survey.toText().endsWith(QLatin1String("    The sound service does not answer\n")));
}

void tst_DeviceSurvey::unsupportedSystem()
{
    using State = Platform::SoundServerState;
    DeviceSurvey survey;
    survey.soundServer = State::NotBuilt;
    survey.cameraServer = State::NotBuilt;
    QCOMPARE(survey.toText(),
             QStringLiteral("Cameras\n    not supported on this system\n"
                            "Microphones\n    No sound: this system is not supported\n"
                            "Speakers\n    No sound: this system is not supported\n"));
    const QJsonObject causes = survey.toJson().value(QLatin1String("causes")).toObject();
    for (const char* list : {"cameras", "microphones", "speakers"}) {
        QCOMPARE(causes.value(QLatin1String(list)).toString(), QStringLiteral("notBuilt"));
    }
    QVERIFY(survey.isServerMissing());
}

void tst_DeviceSurvey::nothingIsOpenedOrMoved()
{
    Platform::ScriptedEngine engine;
    engine.cameras().plug({QStringLiteral("c"), QStringLiteral("One")});
    engine.microphones().plug({QStringLiteral("m"), QStringLiteral("Mic")});
    engine.scriptedSpeakers().plug({QStringLiteral("s"), QStringLiteral("Speaker")});
    DeviceSurvey::of(engine);
    QVERIFY(!engine.commands().isEmpty());
    for (const QString& command : engine.commands()) {
        QVERIFY2(!command.contains(QLatin1String(".start")) &&
                     !command.contains(QLatin1String(".open")) &&
                     !command.contains(QLatin1String(".setCurrent")) &&
                     !command.contains(QLatin1String("setVolume")),
                 qPrintable(command));
    }
    QCOMPARE(engine.livingSessions(), 0);
}

QTEST_GUILESS_MAIN(tst_DeviceSurvey)
#include "tst_DeviceSurvey.moc"
