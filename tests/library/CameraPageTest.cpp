// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/CameraPageTest.h"

#include "platform/backend/EngineRegistry.h"
#include "tests/support/PageTools.h"

using Platform::DeviceState;

namespace TestSupport {

void CameraPageTest::init()
{
    m_engine = &Platform::ScriptedEngine::install();
}

void CameraPageTest::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void CameraPageTest::addStates()
{
    QTest::addColumn<Camera>("camera");
    QTest::newRow("no camera") << Camera::None;
    QTest::newRow("disabled") << Camera::Off;
    QTest::newRow("access denied") << Camera::Denied;
    QTest::newRow("no picture") << Camera::NoPicture;
    QTest::newRow("picture") << Camera::Picture;
}

void CameraPageTest::plugCamera(Camera camera)
{
    switch (camera) {
    case Camera::None:
        break;
    case Camera::Off:
        m_engine->cameras().plug({"a", CameraName});
        m_engine->cameras().choose(QString());
        break;
    case Camera::Denied:
        m_engine->cameras().plug({"a", CameraName}, DeviceState::Denied);
        break;
    case Camera::NoPicture:
        m_engine->cameras().setPictures("a", Platform::ScriptedCameras::Pictures::None);
        m_engine->cameras().plug({"a", CameraName});
        break;
    case Camera::Picture:
        m_engine->cameras().plug({"a", CameraName}, DeviceState::Working);
        break;
    }
}

void CameraPageTest::makePage()
{
    m_page = std::make_unique<CameraPage>();
    m_canSee = childOf<QPushButton>(*m_page, "Btn_CanSee");
    m_cant = childOf<QPushButton>(*m_page, "Btn_Cant");
    m_combo = childOf<QCustomComboBox>(*m_page, "cb_vd_name");
}

void CameraPageTest::makeShownPage(Camera camera)
{
    plugCamera(camera);
    makePage();
    m_page->move(100, 100);
    m_page->show();
}

void CameraPageTest::checkLocked(int seconds) const
{
    QVERIFY(!m_canSee->isEnabled());
    QVERIFY(!m_cant->isEnabled());
    QCOMPARE(m_canSee->text(), QString("ID_CameraPage_Yes(%1)").arg(seconds));
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No(%1)").arg(seconds));
}

void CameraPageTest::checkUnlocked() const
{
    QVERIFY(m_canSee->isEnabled());
    QVERIFY(m_cant->isEnabled());
    QCOMPARE(m_canSee->text(), QString("ID_CameraPage_Yes"));
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No"));
}

LumToolTip* CameraPageTest::disabledBalloon() const
{
    return balloonWith("ID_CameraPage_DisabledWillMakeCameraUnusable");
}

bool CameraPageTest::isBalloonVisible() const
{
    return disabledBalloon() && disabledBalloon()->isVisible();
}

QJsonObject CameraPageTest::recorded() const
{
    const QJsonObject document = m_engine->reports().document().toJson();
    return document["results"].toObject()["camera"].toObject();
}

} // namespace TestSupport
