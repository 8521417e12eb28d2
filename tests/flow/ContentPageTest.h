// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/ScriptedEngine.h"
#include "wizard/CheckPage.h"
#include "wizard/ClickColorLabel.h"
#include "wizard/ContentPage.h"

#include <QPointer>
#include <QStackedWidget>
#include <QVector>

namespace TestSupport {

// A test of the frame with its pages, on scripted devices.
class ContentPageTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static constexpr const char* PageNames[] = {"networkPage", "cameraPage", "headsetPage",
                                                "microphonePage"};

    CheckPage* page(const char* name) const { return m_frame->findChild<CheckPage*>(name); }
    ClickColorLabel* label(const char* name) const
    {
        return m_frame->findChild<ClickColorLabel*>(name);
    }
    QStackedWidget* stack(const char* name) const
    {
        return m_frame->findChild<QStackedWidget*>(name);
    }
    QVector<ClickColorLabel*> labels() const
    {
        return {label("label_SystemCheck"), label("label_CameraCheck"), label("label_SoundCheck"),
                label("label_MicCheck")};
    }
    void answerAll(bool answer);
    void finishPage(const char* name, bool answer) { page(name)->finishCheck(answer); }
    QString shownPage() const { return stack("stackedWidget")->currentWidget()->objectName(); }
    QColor textColor(const char* name) const
    {
        return label(name)->palette().color(QPalette::WindowText);
    }
    QVector<int> postedCodes() const;
    bool isSettingWritten() const;

    Platform::ScriptedEngine* m_engine = nullptr;
    QPointer<ContentPage> m_frame;
};

} // namespace TestSupport
