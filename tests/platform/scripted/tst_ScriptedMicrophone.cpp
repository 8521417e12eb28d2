// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/ScriptedTest.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <utility>

using namespace Platform;

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

class tst_ScriptedMicrophone : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void hearsSoundWhileOpen();
    void passesEmittedLevelsOn();
    void setsMicrophoneVolumes();
    void dropsToZeroWhenUnplugged();
    void mutedMicrophoneHearsNothing();
    void tellsOnlyOfItsOwnMicrophone();
    void tellsAStateOnce();
};

void tst_ScriptedMicrophone::hearsSoundWhileOpen()
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

void tst_ScriptedMicrophone::passesEmittedLevelsOn()
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

void tst_ScriptedMicrophone::setsMicrophoneVolumes()
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

void tst_ScriptedMicrophone::dropsToZeroWhenUnplugged()
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

void tst_ScriptedMicrophone::mutedMicrophoneHearsNothing()
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

void tst_ScriptedMicrophone::tellsOnlyOfItsOwnMicrophone()
{
    ScriptedMicrophones& microphones = m_engine->microphones();
    microphones.plug({First, QStringLiteral("A")});
    microphones.plug({QStringLiteral("other"), QStringLiteral("B")});
    microphones.choose(First);
    MicrophoneListener listener;
    const auto microphone = m_engine->createMicrophone(listener);
    microphones.setMuted(QStringLiteral("other"), true);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList());
    microphones.setMuted(First, true);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("info")});
}

void tst_ScriptedMicrophone::tellsAStateOnce()
{
    ScriptedMicrophones& microphones = m_engine->microphones();
    microphones.plug({First, QStringLiteral("A")});
    QSignalSpy changed(&microphones, &Platform::ScriptedDevices::currentStateChanged);
    microphones.setState(First, DeviceState::Silent);
    microphones.setState(First, DeviceState::Silent);
    microphones.setState(QStringLiteral("unplugged"), DeviceState::Silent);
    QCOMPARE(changed.count(), 1);
}

QTEST_MAIN(tst_ScriptedMicrophone)
#include "tst_ScriptedMicrophone.moc"
