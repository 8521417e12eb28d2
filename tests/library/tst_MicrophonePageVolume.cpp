// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/MicrophonePageTest.h"
#include "tests/support/PageTools.h"

#include <LumUtility/LumColor.h>

#include <QProgressBar>
#include <QSlider>

#include <limits>

using Platform::DeviceState;
using TestSupport::MicrophonePageTest;

namespace {

class PaintCounter : public QObject
{
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

// The level, the volume, and the tip about a loud microphone.
class tst_MicrophonePageVolume : public MicrophonePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void level_data();
    void level();
    void levelIsPaintedOnlyIfItChangesThePicture();
    void userVolume();
    void volumeFollowsTheMicrophone();
    void mutedMicrophoneIsAtZero();
    void systemVolumeMovesTheSliderAndNothingElse_data();
    void systemVolumeMovesTheSliderAndNothingElse();

    void noisyTip_data();
    void noisyTip();
    void noisyTipPlaceAndLook();
    void noisyTipNeedsTheSlider();
    void noisyTipOfASliderThatAppears();

private:
    int sliderValue() { return m_page->findChild<QSlider*>()->value(); }
    QString volumeText();
    LumToolTip* noisyBalloon() { return m_page->findChild<LumToolTip*>(); }
};

QString tst_MicrophonePageVolume::volumeText()
{
    return m_volume->findChild<QLabel*>()->text();
}

void tst_MicrophonePageVolume::level_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<int>("shown");
    QTest::newRow("silence") << 0.0 << 0;
    QTest::newRow("half") << 0.5 << 50;
    QTest::newRow("truncated") << 0.999 << 99;
    QTest::newRow("narrowed to float first") << 0.57 << 57; // as a double it would be 56
    QTest::newRow("full") << 1.0 << 100;
    QTest::newRow("tiny") << 0.0099 << 0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 100;
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity() << 0;
    QTest::newRow("negative") << -0.5 << 0;
    QTest::newRow("huge") << 1e300 << 100;
}

void tst_MicrophonePageVolume::level()
{
    QFETCH(double, level);
    makeShownPage(Mic::Works);
    auto* bars = childOf<QWidget>(*m_page, "w_intensity")->layout();
    const auto* front = qobject_cast<QProgressBar*>(bars->itemAt(1)->widget());
    m_engine->microphones().emitLevel(0.33);
    turn();
    QCOMPARE(front->value(), 33);
    m_engine->microphones().emitLevel(level);
    turn();
    QTEST(front->value(), "shown");
}

// A segment is 10 of 210 pixels wide. Values come up to 60 times a second.
void tst_MicrophonePageVolume::levelIsPaintedOnlyIfItChangesThePicture()
{
    makeShownPage(Mic::Works);
    QVERIFY(QTest::qWaitForWindowExposed(m_page->window()));
    auto* bars = childOf<QWidget>(*m_page, "w_intensity")->layout();
    PaintCounter paints;
    bars->itemAt(1)->widget()->installEventFilter(&paints);
    const auto paintsOf = [this, &paints](std::initializer_list<double> levels) {
        paints.count = 0;
        for (const double level : levels) {
            m_engine->microphones().emitLevel(level);
            turn();
        }
        return paints.count;
    };
    QCOMPARE(paintsOf({0.5}), 1);
    QCOMPARE(paintsOf({0.5, 0.51, 0.53, 0.5, 0.49, 0.48}), 0);
    QCOMPARE(paintsOf({0.6, 0.7}), 2);
    QCOMPARE(paintsOf({0.0}), 1);
    QCOMPARE(paintsOf({0.0, 0.0, 0.0}), 0);
}

void tst_MicrophonePageVolume::userVolume()
{
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    m_page->findChild<QSlider*>()->setValue(77);
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setVolume(77)"});
    QCOMPARE(volumeText(), QString("77"));
    turn();
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setVolume(77)"}); // it doesn't echo
    m_page->findChild<QSlider*>()->setValue(1000);
    QCOMPARE(m_engine->commands().last(), QString("microphone.setVolume(150)"));
}

void tst_MicrophonePageVolume::volumeFollowsTheMicrophone()
{
    m_engine->microphones().setVolume("a", 42);
    makeShownPage(Mic::Works);
    QCOMPARE(sliderValue(), 42);
    m_engine->clearCalls();
    m_engine->microphones().setVolume("a", 120);
    turn();
    QCOMPARE(sliderValue(), 120);
    QCOMPARE(volumeText(), QString("120"));
    QCOMPARE(m_engine->calls(),
             (QStringList{"microphone.isVolumeAdjustable()", "microphone.volume()"}));
    QVERIFY(noisyBalloon()->isVisible());
}

void tst_MicrophonePageVolume::mutedMicrophoneIsAtZero()
{
    m_engine->microphones().setVolume("a", 120);
    makeShownPage(Mic::Works);
    QVERIFY(noisyBalloon()->isVisible());
    m_engine->clearCalls();
    m_engine->microphones().setMuted("a", true);
    turn();
    QCOMPARE(sliderValue(), 0);
    QVERIFY(!noisyBalloon()->isVisible());
    m_engine->microphones().setMuted("a", false);
    turn();
    QCOMPARE(sliderValue(), 120);
    QVERIFY(noisyBalloon()->isVisible());
    QCOMPARE(m_engine->commands(), QStringList());
    m_engine->microphones().setMuted("a", true);
    turn();
    m_page->findChild<QSlider*>()->setValue(12);
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setVolume(12)"});
    QVERIFY(!m_engine->microphones().isMuted());
}

void tst_MicrophonePageVolume::systemVolumeMovesTheSliderAndNothingElse_data()
{
    QTest::addColumn<float>("percent");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<int>("onSlider");
    QTest::addColumn<QString>("shown");
    QTest::newRow("truncated") << 37.9F << "37.9" << 37 << "37";
    QTest::newRow("noisy") << 140.0F << "140" << 140 << "140";
    QTest::newRow("negative") << -5.0F << "0" << 0 << "0";
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << "0" << 0 << "0";
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << "1000" << 150 << "1000";
    QTest::newRow("huge") << 3e38F << "1000" << 150 << "1000";
}

void tst_MicrophonePageVolume::systemVolumeMovesTheSliderAndNothingElse()
{
    QFETCH(float, percent);
    QFETCH(QString, logged);
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    m_engine->microphones().moveVolumeFromOutside(percent);
    QTest::ignoreMessage(QtInfoMsg, qPrintable("OSVolume_Mic: " + logged));
    turn();
    QTEST(sliderValue(), "onSlider");
    QTEST(volumeText(), "shown");
    QCOMPARE(m_engine->calls(), QStringList());
    QVERIFY(!noisyBalloon()->isVisible());
}

void tst_MicrophonePageVolume::noisyTip_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("99") << 99 << false;
    QTest::newRow("100") << 100 << false;
    QTest::newRow("101") << 101 << true;
    QTest::newRow("150") << 150 << true;
}

void tst_MicrophonePageVolume::noisyTip()
{
    QFETCH(int, volume);
    m_engine->microphones().setVolume("a", 50);
    makeShownPage(Mic::Works);
    m_page->findChild<QSlider*>()->setValue(volume);
    QTEST(noisyBalloon()->isVisible(), "isShown");
    m_page->findChild<QSlider*>()->setValue(10);
    QVERIFY(!noisyBalloon()->isVisible());
    m_engine->microphones().setVolume("a", volume);
    turn();
    QTEST(noisyBalloon()->isVisible(), "isShown");
}

void tst_MicrophonePageVolume::noisyTipPlaceAndLook()
{
    m_engine->microphones().setVolume("a", 150);
    makeShownPage(Mic::Works);
    LumToolTip* tip = noisyBalloon();
    QVERIFY(tip->isVisible());
    QCOMPARE(tip->text(), QString("ID_MicrophonePage_MayNoisy"));
    QCOMPARE(tip->parentWidget(), m_page.get());
    QVERIFY(!tip->isWindow());
    QVERIFY(!tip->findChild<QLabel*>()->wordWrap());
    const QPoint slider = m_volume->mapTo(m_page.get(), QPoint(0, 0));
    QCOMPARE(tip->geometry(),
             QRect(QPoint(slider.x() + 10, slider.y() - tip->height() + 9), tip->sizeHint()));
    QVERIFY(m_page->rect().contains(tip->geometry()));
    QVERIFY(isArrowInTheMiddle(*tip));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(tip, &leave);
    QVERIFY(tip->isVisible());
}

void tst_MicrophonePageVolume::noisyTipNeedsTheSlider()
{
    m_engine->microphones().setVolume("a", 150);
    m_engine->microphones().setAdjustable("a", false);
    makeShownPage(Mic::Works);
    QVERIFY(!m_volume->isVisible());
    QVERIFY(!noisyBalloon()); // not even made
    m_engine->microphones().setAdjustable("a", true);
    turn();
    QVERIFY(m_volume->isVisible());
    QVERIFY(noisyBalloon()->isVisible());
    m_engine->microphones().setAdjustable("a", false);
    turn();
    QVERIFY(!noisyBalloon()->isVisible());
    m_engine->microphones().setAdjustable("a", true);
    turn();
    m_engine->microphones().setState("a", DeviceState::Denied);
    turn();
    QVERIFY(!noisyBalloon()->isVisible());
}

void tst_MicrophonePageVolume::noisyTipOfASliderThatAppears()
{
    m_engine->microphones().setVolume("a", 150);
    m_engine->microphones().setAdjustable("a", false);
    makeShownPage(Mic::Works);
    m_engine->microphones().setAdjustable("a", true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); // before the layout's own turn
    const QPoint slider = m_volume->mapTo(m_page.get(), QPoint(0, 0));
    const QPoint tip = noisyBalloon()->pos();
    turn();
    QCOMPARE(m_volume->mapTo(m_page.get(), QPoint(0, 0)), slider);
    QCOMPARE(tip, slider + QPoint(10, 9 - noisyBalloon()->height()));
}

QTEST_MAIN(tst_MicrophonePageVolume)
#include "tst_MicrophonePageVolume.moc"
