// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/HeadsetPageTest.h"
#include "tests/support/Dictionary.h"

#include <QDialog>
#include <QFileInfo>

#include <numeric>

using TestSupport::HeadsetPageTest;

namespace {

// How far counts are from being equal, in the chi-square measure.
template <typename Counts>
double unevenness(const Counts& counts)
{
    const int total = std::accumulate(counts.begin(), counts.end(), 0);
    const double wanted = static_cast<double>(total) / static_cast<double>(counts.size());
    return std::accumulate(counts.begin(), counts.end(), 0.0, [wanted](double sum, int count) {
        return sum + (count - wanted) * (count - wanted) / wanted;
    });
}

} // namespace

// Playing a sound, and the draw of what is played and offered.
class tst_HeadsetPagePlaying : public HeadsetPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void playFlow();
    void answeringWhilePlaying();
    void playCallsInOrder();
    void hidingWhilePlayingEndsThePlayer();
    void destructionWhilePlayingEndsThePlayer();
    void doubleClickPlaysOnce();
    void playingAnewLeavesTheFirstToTheEngine();
    void playingMovesNoFocus_data();
    void playingMovesNoFocus();
    void refusedPlayerFinishes();
    void speakerGoesWhilePlaying();

    void firstPlayUsesTheFirstDraw();
    void laterPlaysDrawAgain();
    void drawIsDistinctAndUniform();
    void collidingNamesAreToldApart();

private:
    QStringList shownNames();
};

QStringList tst_HeadsetPagePlaying::shownNames()
{
    QStringList names;
    for (const QRadioButton* item : m_items) {
        names.append(item->text());
    }
    return names;
}

void tst_HeadsetPagePlaying::playFlow()
{
    makeShownPage(); // idle
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(false);
    checkVerdictButtons(true, false);

    play(); // playing
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Playing"));
    QVERIFY(!m_play->isEnabled());
    checkAnswerButtons(true);
    checkVerdictButtons(false, false);

    finish(); // finished
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_PlayAgain"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(true);
    checkVerdictButtons(false, true);

    QTest::mouseClick(wrongButton(), Qt::LeftButton); // answered
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_PlayAgain"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(true);
    checkVerdictButtons(true, true);

    play(); // playing again
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Playing"));
    checkVerdictButtons(false, false);
    for (const QRadioButton* item : m_items) {
        QVERIFY(!item->isChecked());
    }
    QTest::mouseClick(rightButton(), Qt::LeftButton);

    m_page->hide(); // hidden
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(false);
    checkVerdictButtons(false, false);
    for (const QRadioButton* item : m_items) {
        QVERIFY(!item->isChecked());
    }
    m_page->show(); // nothing comes back by itself
    checkVerdictButtons(false, false);
}

void tst_HeadsetPagePlaying::answeringWhilePlaying()
{
    makeShownPage();
    play();
    QTest::mouseClick(rightButton(), Qt::LeftButton);
    checkVerdictButtons(true, true);
    QVERIFY(!m_play->isEnabled());
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Playing"));
    finish();
    checkVerdictButtons(true, true);
    QVERIFY(rightButton()->isChecked());
}

void tst_HeadsetPagePlaying::playCallsInOrder()
{
    makeShownPage();
    m_engine->clearCalls();
    play();
    const QString path = m_engine->scriptedSpeakers().playedFiles().last();
    QCOMPARE(QFileInfo(path).absolutePath(),
             QCoreApplication::applicationDirPath() + "/html/sounds/speakerCheck");
    const QString created = "player.create(" + QFileInfo(path).fileName() + ')';
    QCOMPARE(m_engine->calls(), QStringList{created});
    finish();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_engine->calls(), (QStringList{created, "player.destroy()"}));
    QCOMPARE(m_engine->livingSessions(), 1); // the speaker's
}

void tst_HeadsetPagePlaying::hidingWhilePlayingEndsThePlayer()
{
    makeShownPage();
    play();
    m_engine->clearCalls();
    m_page->hide();
    QCOMPARE(m_engine->calls(),
             (QStringList{"speaker.currentId()", "speaker.currentName()", "player.destroy()"}));
    QCOMPARE(m_engine->livingSessions(), 1);
    finish(); // too late
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    checkVerdictButtons(false, false);
    m_page->show();
    play();
    QVERIFY(!m_play->isEnabled());
}

void tst_HeadsetPagePlaying::destructionWhilePlayingEndsThePlayer()
{
    makeShownPage();
    play();
    m_engine->scriptedSpeakers().finishPlayback(); // under way while the page goes
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    turn();
}

void tst_HeadsetPagePlaying::doubleClickPlaysOnce()
{
    makeShownPage();
    play();
    QTest::mouseDClick(m_play, Qt::LeftButton);
    play();
    QCOMPARE(m_engine->scriptedSpeakers().playedFiles().size(), 1);
}

// No click gets there: the button is disabled. The first one ends with the speaker.
void tst_HeadsetPagePlaying::playingAnewLeavesTheFirstToTheEngine()
{
    makeShownPage();
    play();
    QVERIFY(QMetaObject::invokeMethod(m_page.get(), "onTestLoudspeaker"));
    QCOMPARE(m_engine->scriptedSpeakers().playedFiles().size(), 2);
    QCOMPARE(m_engine->livingSessions(), 3); // the speaker's and two players'
    m_page->hide();
    QCOMPARE(m_engine->livingSessions(), 2);
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
}

void tst_HeadsetPagePlaying::playingMovesNoFocus_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

// Somebody who presses twice picks no answer and answers nothing.
void tst_HeadsetPagePlaying::playingMovesNoFocus()
{
    QFETCH(Qt::Key, key);
    plug(Speaker::Works);
    makePage();
    QDialog dialog;
    m_page->setParent(&dialog); // which presses its default button at Return
    const auto release = qScopeGuard([this] { m_page->setParent(nullptr); });
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy completed(m_page.get(), &CheckPage::complete);
    m_play->setFocus(Qt::TabFocusReason);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    finish(); // from now on the answers are enabled

    for (int played = 2; played <= 3; ++played) {
        QCOMPARE(dialog.focusWidget(), m_play);
        QTest::keyClick(dialog.windowHandle(), key);
        QCOMPARE(m_engine->scriptedSpeakers().playedFiles().size(), played);
        QCOMPARE(dialog.focusWidget(), m_play);
        QTest::keyClick(dialog.windowHandle(), key);
        checkAnswerButtons(true);
        for (const QRadioButton* item : m_items) {
            QVERIFY(!item->isChecked());
        }
        checkVerdictButtons(false, false);
        QVERIFY(!m_play->isEnabled());
        QCOMPARE(completed.count(), 0);
        finish();
    }
    QTest::keyClick(dialog.windowHandle(), key);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), m_items.at(2)); // the first of them to the eye
}

void tst_HeadsetPagePlaying::refusedPlayerFinishes()
{
    m_engine->scriptedSpeakers().setPlayerFails(true);
    makeShownPage();
    play();
    QTRY_COMPARE(m_playLabel->text(), QString("ID_HeadsetPage_PlayAgain"));
    QVERIFY(m_play->isEnabled());
    checkVerdictButtons(false, true);
}

void tst_HeadsetPagePlaying::speakerGoesWhilePlaying()
{
    makeShownPage();
    play();
    m_engine->scriptedSpeakers().unplug("a");
    turn();
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("noHeadsetPage"));
    checkVerdictButtons(false, true);
    QTRY_VERIFY(m_play->isEnabled());
    QVERIFY(!answerBalloon()->isVisible());
}

void tst_HeadsetPagePlaying::firstPlayUsesTheFirstDraw()
{
    makeShownPage();
    const QStringList drawn = shownNames();
    m_page->hide();
    m_page->show();
    play();
    QCOMPARE(shownNames(), drawn);
    QVERIFY(rightButton());
}

// That a second draw is the first again happens once in 1680 times.
void tst_HeadsetPagePlaying::laterPlaysDrawAgain()
{
    makeShownPage();
    QSet<QStringList> draws;
    QSet<QString> sounds;
    for (int i = 0; i < 20; ++i) {
        play();
        draws.insert(shownNames());
        sounds.insert(playedName());
        finish();
    }
    QVERIFY(draws.size() > 10);
    QVERIFY(sounds.size() > 2);
}

// The limits are passed by chance less than once in a million runs.
void tst_HeadsetPagePlaying::drawIsDistinctAndUniform()
{
    constexpr int Draws = 2000;
    constexpr double LimitOfEight = 42;
    constexpr double LimitOfFour = 32;
    makeShownPage();
    std::array<int, 8> played{};
    std::array<int, 4> places{};
    std::array<std::array<int, 8>, 4> shown{};
    const auto indexOf = [](const QString& name) {
        return static_cast<std::size_t>(SoundNames.indexOf(name.mid(NamePrefix.size())));
    };
    for (int i = 0; i < Draws; ++i) {
        QVERIFY(QMetaObject::invokeMethod(m_page.get(), "onTestLoudspeaker"));
        const QStringList names = shownNames();
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 4);
        QVERIFY(names.contains(playedName()));
        ++played.at(indexOf(playedName()));
        ++places.at(static_cast<std::size_t>(names.indexOf(playedName())));
        for (std::size_t button = 0; button < shown.size(); ++button) {
            ++shown.at(button).at(indexOf(names.at(static_cast<int>(button))));
        }
    }
    QVERIFY2(unevenness(played) < LimitOfEight, qPrintable(QString::number(unevenness(played))));
    QVERIFY2(unevenness(places) < LimitOfFour, qPrintable(QString::number(unevenness(places))));
    for (const auto& counts : shown) {
        QVERIFY2(unevenness(counts) < LimitOfEight,
                 qPrintable(QString::number(unevenness(counts))));
    }
}

void tst_HeadsetPagePlaying::collidingNamesAreToldApart()
{
    QHash<QString, QString> words;
    for (const QString& name : SoundNames) {
        words.insert(NamePrefix + name, "Sound");
    }
    words.insert(NamePrefix + "Seagull", "Sound (2)");
    const Dictionary dictionary(words);
    makeShownPage();
    QMap<QString, QSet<QString>> filesOf;
    for (int i = 0; i < 200; ++i) {
        QVERIFY(QMetaObject::invokeMethod(m_page.get(), "onTestLoudspeaker"));
        const QStringList names = shownNames();
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 4);
        int rightOnes = 0;
        for (QRadioButton* item : m_items) {
            item->click();
            m_page->finishCheck(true);
            if (m_page->isPassed()) {
                ++rightOnes;
                filesOf[item->text()].insert(m_engine->scriptedSpeakers().playedFiles().last());
            }
        }
        QCOMPARE(rightOnes, 1);
    }
    QCOMPARE(filesOf.keys(), (QStringList{"Sound", "Sound (2)", "Sound (3)", "Sound (4)",
                                          "Sound (5)", "Sound (6)", "Sound (7)", "Sound (8)"}));
    for (const QSet<QString>& files : filesOf) {
        QCOMPARE(files.size(), 1);
    }
}

QTEST_MAIN(tst_HeadsetPagePlaying)
#include "tst_HeadsetPagePlaying.moc"
