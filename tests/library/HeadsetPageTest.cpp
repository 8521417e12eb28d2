// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/HeadsetPageTest.h"

#include "platform/backend/EngineRegistry.h"
#include "tests/support/PageTools.h"

#include <QFileInfo>

using Platform::DeviceState;

namespace TestSupport {

namespace {

constexpr int LongSoundMs = 60 * 1000;

} // namespace

void HeadsetPageTest::init()
{
    m_engine = &Platform::ScriptedEngine::install();
    for (const QString& name : SoundNames) {
        m_engine->scriptedSpeakers().setSoundLength(name + ".mp3", LongSoundMs);
    }
}

void HeadsetPageTest::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void HeadsetPageTest::plug(Speaker speaker)
{
    auto& speakers = m_engine->scriptedSpeakers();
    switch (speaker) {
    case Speaker::None:
        break;
    case Speaker::Off:
        speakers.plug({"a", SpeakerName}, DeviceState::Working);
        speakers.choose(QString());
        break;
    case Speaker::Vanished:
        speakers.plug({"a", SpeakerName}, DeviceState::Working);
        speakers.choose("vanished");
        break;
    case Speaker::Works:
        speakers.plug({"a", SpeakerName}, DeviceState::Working);
        break;
    }
}

void HeadsetPageTest::makePage()
{
    m_page = std::make_unique<HeadsetPage>();
    m_combo = childOf<QCustomComboBox>(*m_page, "cb_ad_output_name");
    m_play = childOf<CycleButton>(*m_page, "tb_play_test_sound");
    m_playLabel = childOf<QLabel>(*m_page, "label_Play");
    m_canHear = childOf<QPushButton>(*m_page, "Btn_CanHear");
    m_cantListen = childOf<QPushButton>(*m_page, "Btn_CantListen");
    m_stack = childOf<QStackedWidget>(*m_page, "stackedWidget");
    m_volume = m_page->findChild<Volume*>();
    m_items = {childOf<QRadioButton>(*m_page, "item0"), childOf<QRadioButton>(*m_page, "item1"),
               childOf<QRadioButton>(*m_page, "item2"), childOf<QRadioButton>(*m_page, "item3")};
}

void HeadsetPageTest::makeShownPage(Speaker speaker)
{
    plug(speaker);
    makePage();
    m_page->show();
}

// The scripted engine tells its news from the event loop.
void HeadsetPageTest::turn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void HeadsetPageTest::finish()
{
    m_engine->scriptedSpeakers().finishPlayback();
    turn();
}

// Of the sound that was played last, as the answer buttons show it.
QString HeadsetPageTest::playedName()
{
    return NamePrefix +
           QFileInfo(m_engine->scriptedSpeakers().playedFiles().last()).completeBaseName();
}

QRadioButton* HeadsetPageTest::rightButton()
{
    const QString name = playedName();
    const auto right = std::find_if(m_items.begin(), m_items.end(),
                                    [&name](QRadioButton* item) { return item->text() == name; });
    return right == m_items.end() ? nullptr : *right;
}

QRadioButton* HeadsetPageTest::wrongButton()
{
    return m_items.at(0) == rightButton() ? m_items.at(1) : m_items.at(0);
}

void HeadsetPageTest::checkAnswerButtons(bool isEnabled)
{
    for (const QRadioButton* item : m_items) {
        QVERIFY(item->isVisibleTo(m_page.get()));
        QCOMPARE(item->isEnabled(), isEnabled);
    }
}

void HeadsetPageTest::checkVerdictButtons(bool canHear, bool cantListen)
{
    QCOMPARE(m_canHear->isEnabled(), canHear);
    QCOMPARE(m_cantListen->isEnabled(), cantListen);
}

} // namespace TestSupport
