// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/MicrophonePage.h"
#include "platform/scripted/ScriptedEngine.h"
#include "widgets/LumToolTip.h"
#include "widgets/Volume.h"

#include <LumWidgets/QCustomComboBox.h>

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QtTest>

#include <memory>

namespace TestSupport {

// A test of the microphones' page, on scripted microphones.
class MicrophonePageTest : public QObject
{
    Q_OBJECT

public:
    enum class Mic { None, Off, Denied, Silent, Works };

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    inline static const QString MicName = "Some Microphone";
    inline static const QString NoMicText = "ID_Engine_NoMicrophone";
    inline static const QVector<QPair<Mic, const char*>> AllMics{{Mic::None, "none"},
                                                                 {Mic::Off, "turned off"},
                                                                 {Mic::Denied, "denied"},
                                                                 {Mic::Silent, "silent"},
                                                                 {Mic::Works, "works"}};

    void plug(Mic mic);
    void makePage();
    void makeShownPage(Mic mic);
    void turn();
    LumToolTip* disabledBalloon();
    bool isDisabledBalloonVisible();

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<MicrophonePage> m_page;
    QCustomComboBox* m_combo = nullptr;
    QPushButton* m_yes = nullptr;
    QPushButton* m_no = nullptr;
    QPushButton* m_record = nullptr;
    QLabel* m_recordLabel = nullptr;
    QStackedWidget* m_stack = nullptr;
    Volume* m_volume = nullptr;
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::MicrophonePageTest::Mic)
