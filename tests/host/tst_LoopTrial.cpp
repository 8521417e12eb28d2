// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/LoopTrial.h"
#include "host/unattended/TrialVerdict.h"
#include "platform/backend/ResultKeys.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QtTest>

using namespace Platform;
using Result = LoopOutcome::Result;

namespace {

const DeviceInfo Speaker{QStringLiteral("s"), QStringLiteral("Loud")};
const DeviceInfo Microphone{QStringLiteral("m"), QStringLiteral("Clear")};

// As a client might bring it: all but the loop.
class PlainEngine final : public Engine
{
public:
    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener&) override { return {}; }
    std::unique_ptr<MicrophoneBackend> createMicrophone(MicrophoneBackend::Listener&) override
    {
        return {};
    }
    std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener&) override { return {}; }
    std::unique_ptr<PlayerBackend> createPlayer(const QString&, float,
                                                PlayerBackend::Listener&) override
    {
        return {};
    }
    std::unique_ptr<NetworkProbe> createNetworkProbe(NetworkProbe::Listener&) override
    {
        return {};
    }
    DeviceList speakers() const override { return {}; }
    SystemFacts& systemFacts() override { return m_other.systemFacts(); }
    ReportSink& reportSink() override { return m_other.reportSink(); }
    QString settingsFolder() const override { return {}; }

private:
    ScriptedEngine m_other;
};

QJsonObject figuresOf(Engine& engine)
{
    LoopTrial trial(engine, Speaker, Microphone);
    trial.start();
    if (!QTest::qWaitFor([&trial] { return trial.isOver(); }, LoopTrial::LongestMs)) {
        qWarning("The trial doesn't end");
    }
    return trial.finish();
}

} // namespace

class tst_LoopTrial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsDelayAndLevel();
    void tellsThatNothingWasHeard();
    void tellsWhatPreventsIt();
    void engineCannot();
    void leavesNothingOpen();
};

void tst_LoopTrial::tellsDelayAndLevel()
{
    ScriptedEngine engine;
    engine.scriptedSpeakers().plug(Speaker);
    engine.microphones().plug(Microphone);
    engine.setLoop({Result::Heard, 120.04, -30.26, {}});
    const QJsonObject figures = figuresOf(engine);
    QCOMPARE(figures.value(QStringLiteral("loopDelayMs")), QJsonValue(120.0));
    QCOMPARE(figures.value(QStringLiteral("loopLevelDb")), QJsonValue(-30.3));
    QCOMPARE(figures.value(QStringLiteral("loopSpeaker")), QJsonValue(Speaker.name));
    QCOMPARE(figures.value(QStringLiteral("loopMicrophone")), QJsonValue(Microphone.name));
    QCOMPARE(TrialVerdict::of(CheckKind::Loop, figures, true).verdict, Verdict::Heard);
    QCOMPARE(TrialVerdict::of(CheckKind::Loop, figures, false).verdict, Verdict::Unmeasured);
}

void tst_LoopTrial::tellsThatNothingWasHeard()
{
    ScriptedEngine engine;
    engine.scriptedSpeakers().plug(Speaker);
    engine.microphones().plug(Microphone);
    engine.setLoop({Result::NotHeard, 0, 0, {}});
    const QJsonObject figures = figuresOf(engine);
    QVERIFY(!figures.contains(QStringLiteral("loopDelayMs")));
    const TrialVerdict verdict = TrialVerdict::of(CheckKind::Loop, figures, true);
    QCOMPARE(verdict.verdict, Verdict::NotHeard);
    QVERIFY(verdict.causes == std::vector<Cause>{Cause::LoopNotHeard});
}

void tst_LoopTrial::tellsWhatPreventsIt()
{
    ScriptedEngine engine;
    engine.setLoop({Result::Heard, 1, -1, {}});
    engine.scriptedSpeakers().plug(Speaker);
    engine.microphones().plug(Microphone);
    engine.microphones().setMuted(Microphone.id, true);
    const TrialVerdict muted = TrialVerdict::of(CheckKind::Loop, figuresOf(engine), true);
    QCOMPARE(muted.verdict, Verdict::NotTried);
    QVERIFY(muted.causes == std::vector<Cause>{Cause::Muted});
    engine.scriptedSpeakers().unplug(Speaker.id);
    const TrialVerdict absent = TrialVerdict::of(CheckKind::Loop, figuresOf(engine), true);
    QVERIFY(absent.causes == std::vector<Cause>{Cause::Absent});
}

void tst_LoopTrial::engineCannot()
{
    PlainEngine engine;
    const QJsonObject figures = figuresOf(engine);
    QCOMPARE(figures.value(ResultKeys::Cause), QJsonValue(QStringLiteral("notOffered")));
    const TrialVerdict verdict = TrialVerdict::of(CheckKind::Loop, figures, true);
    QCOMPARE(verdict.verdict, Verdict::NotTried);
    QVERIFY(verdict.causes.empty());
}

void tst_LoopTrial::leavesNothingOpen()
{
    ScriptedEngine engine;
    figuresOf(engine);
    QCOMPARE(engine.livingSessions(), 0);
}

QTEST_GUILESS_MAIN(tst_LoopTrial)
#include "tst_LoopTrial.moc"
