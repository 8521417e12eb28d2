// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/MicrophonePageTest.h"

#include "platform/backend/EngineRegistry.h"
#include "tests/support/PageTools.h"

using Platform::DeviceState;

namespace TestSupport {

void MicrophonePageTest::init()
{
    m_engine = &Platform::ScriptedEngine::install();
}

void MicrophonePageTest::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void MicrophonePageTest::plug(Mic mic)
{
    auto& microphones = m_engine->microphones();
    switch (mic) {
    case Mic::None:
        break;
    case Mic::Off:
        microphones.plug({"a", MicName}, DeviceState::Working);
        microphones.choose(QString());
        break;
    case Mic::Denied:
        microphones.plug({"a", MicName}, DeviceState::Denied);
        break;
    case Mic::Silent:
        microphones.plug({"a", MicName}, DeviceState::Ready);
        break;
    case Mic::Works:
        microphones.plug({"a", MicName}, DeviceState::Working);
        break;
    }
}

void MicrophonePageTest::makePage()
{
    m_page = std::make_unique<MicrophonePage>();
    m_combo = childOf<QCustomComboBox>(*m_page, "cb_ad_input_name");
    m_yes = childOf<QPushButton>(*m_page, "Btn_Mic_Yes");
    m_no = childOf<QPushButton>(*m_page, "Btn_Mic_No");
    m_record = childOf<QPushButton>(*m_page, "Btn_Record");
    m_recordLabel = childOf<QLabel>(*m_page, "label_Record");
    m_stack = childOf<QStackedWidget>(*m_page, "stackedWidget");
    m_volume = m_page->findChild<Volume*>();
}

void MicrophonePageTest::makeShownPage(Mic mic)
{
    plug(mic);
    makePage();
    m_page->move(100, 100);
    m_page->show();
}

// The scripted engine tells its news from the event loop.
void MicrophonePageTest::turn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

LumToolTip* MicrophonePageTest::disabledBalloon()
{
    return balloonWith("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable");
}

bool MicrophonePageTest::isDisabledBalloonVisible()
{
    return disabledBalloon() && disabledBalloon()->isVisible();
}

} // namespace TestSupport
