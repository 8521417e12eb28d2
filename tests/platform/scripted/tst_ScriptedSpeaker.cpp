// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/ScriptedTest.h"

#include <QtTest>

#include <utility>

using namespace Platform;

namespace {

const QString First = QStringLiteral("first");

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

} // namespace

class tst_ScriptedSpeaker : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsSpeakerChanges();
};

void tst_ScriptedSpeaker::tellsSpeakerChanges()
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

    m_engine->scriptedSpeakers().setMuted(First, true);
    QCOMPARE(speaker->volume(), 0);
    m_engine->scriptedSpeakers().setMuted(First, false);
    QCOMPARE(speaker->volume(), 70);
    m_engine->scriptedSpeakers().setMuted(First, true);
    QCoreApplication::processEvents();
    QCOMPARE(listener.take(), (QStringList{QStringLiteral("volume 0"), QStringLiteral("volume 70"),
                                           QStringLiteral("volume 0")}));
    speaker->setVolume(40);
    QCOMPARE(speaker->volume(), 40);
    QCoreApplication::processEvents();
    QVERIFY(listener.take().isEmpty());

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

QTEST_MAIN(tst_ScriptedSpeaker)
#include "tst_ScriptedSpeaker.moc"
