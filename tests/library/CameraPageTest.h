// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "pages/CameraPage.h"
#include "platform/scripted/ScriptedEngine.h"
#include "widgets/LumToolTip.h"

#include <LumWidgets/QCustomComboBox.h>

#include <QJsonObject>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace TestSupport {

// A test of the cameras' page, on scripted cameras.
class CameraPageTest : public QObject
{
    Q_OBJECT

public:
    enum class Camera { None, Off, Denied, NoPicture, Picture };

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    inline static const QString CameraName = "Some Camera";
    inline static const QString NoCameraText = "ID_Engine_NoCamera";

    static void addStates();
    void plugCamera(Camera camera);
    void makePage();
    void makeShownPage(Camera camera);
    void checkLocked(int seconds) const;
    void checkUnlocked() const;
    LumToolTip* disabledBalloon() const;
    bool isBalloonVisible() const;
    QJsonObject recorded() const;

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<CameraPage> m_page;
    QPushButton* m_canSee = nullptr;
    QPushButton* m_cant = nullptr;
    QCustomComboBox* m_combo = nullptr;
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::CameraPageTest::Camera)
