// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/HeadsetPage.h"
#include "platform/scripted/ScriptedEngine.h"
#include "widgets/CycleButton.h"
#include "widgets/LumToolTip.h"
#include "widgets/Volume.h"

#include <LumWidgets/QCustomComboBox.h>

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QtTest>

#include <array>
#include <memory>

namespace TestSupport {

// A test of the speakers' page, on scripted speakers.
class HeadsetPageTest : public QObject
{
    Q_OBJECT

public:
    enum class Speaker { None, Off, Vanished, Works };

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    inline static const QString SpeakerName = "Some Speaker";
    inline static const QString NoSpeakerText = "ID_Engine_NoSpeaker";
    inline static const QString NoneChosenText = "ID_Engine_NoSpeakerSelected";
    inline static const QStringList SoundNames{"Piano",   "Seagull", "Thunder", "Doorbell",
                                               "Shutter", "Bubble",  "Typing",  "Saxophone"};
    inline static const QString NamePrefix = "ID_HeadsetPage_";

    void plug(Speaker speaker);
    void makePage();
    void makeShownPage(Speaker speaker = Speaker::Works);
    void turn();
    void play() { QTest::mouseClick(m_play, Qt::LeftButton); }
    void finish();
    QString playedName();
    QRadioButton* rightButton();
    QRadioButton* wrongButton();
    void checkAnswerButtons(bool isEnabled);
    void checkVerdictButtons(bool canHear, bool cantListen);
    LumToolTip* answerBalloon() { return m_page->findChild<LumToolTip*>(); }

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<HeadsetPage> m_page;
    QCustomComboBox* m_combo = nullptr;
    CycleButton* m_play = nullptr;
    QLabel* m_playLabel = nullptr;
    QPushButton* m_canHear = nullptr;
    QPushButton* m_cantListen = nullptr;
    QStackedWidget* m_stack = nullptr;
    Volume* m_volume = nullptr;
    std::array<QRadioButton*, 4> m_items{};
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::HeadsetPageTest::Speaker)
