// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/DialogView.h"
#include "tests/devices/SoundDialogTest.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/PictureBoard.h"
#include "tests/support/PlugStorm.h"
#include "tests/support/SoundRecording.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QSlider>
#include <QtTest>
#include <algorithm>
#include <memory>

using namespace TestSupport;

namespace {

constexpr int LongMs = 10000;
constexpr int FontPixelSize = 12;
constexpr int LitPercent = 30;
constexpr int FewestLevels = 20; // different levels of a voice in a few seconds
constexpr double AlikeAtLeast = 0.8;
constexpr int PlugEvents = 200;

// The part of the recording that begins with its first sound.
std::vector<float> trimmed(const std::vector<float>& recording, std::size_t length)
{
    const std::size_t begin = firstAbove(recording, Audible);
    const std::size_t end = std::min(begin + length, recording.size());
    return {recording.begin() + static_cast<std::ptrdiff_t>(begin),
            recording.begin() + static_cast<std::ptrdiff_t>(end)};
}

} // namespace

// The microphone page in the real dialog, on the real engine and real sound servers.
class tst_MicrophoneDialog : public SoundDialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void showsEveryState();
    void listensBackWhileCounting();
    void unpluggedWhileCounting();
    void leavesTheServerAsItWas_data();
    void leavesTheServerAsItWas();
    void neverBlocksWhileTheServerIsFrozen();
    void survivesTheServersDeath();
    void saysWhatTheServerDoes();
    void survivesManyPluggings();

private:
    void runDialog(const Script& script);
    void openPage() const { m_dialog->click("label_MicCheck"); }
    void leavePage() const { m_dialog->click("label_SystemCheck"); }
    QComboBox* box() const { return m_dialog->child<QComboBox>("cb_ad_input_name"); }
    QSlider* slider() const { return m_dialog->child<QWidget>("micPage")->findChild<QSlider*>(); }
    bool isShown(const char* name) const { return m_view->find<QWidget>(name) != nullptr; }
    bool isBalloonShown(const char* textId) const;
    QProgressBar* levelBar() const;
    int level() const { return levelBar()->value(); }
    void works() const;
    QByteArray volume();
    int captures();
    int playbacks();
    void keepFrame(const char* caption);

    std::unique_ptr<DialogView> m_view;
    PictureBoard m_board;
};

void tst_MicrophoneDialog::initTestCase()
{
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
}

void tst_MicrophoneDialog::cleanup()
{
    m_view.reset();
    SoundDialogTest::cleanup();
}

void tst_MicrophoneDialog::cleanupTestCase()
{
    QVERIFY(m_board.save(pictureFolder() + QStringLiteral("/microphone-states.png")));
}

void tst_MicrophoneDialog::showsEveryState()
{
    runDialog([this] {
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), id("Test Microphone A"), LongMs);
        {
            const SoundSource voice(id("voice"), speech(id("one, two, three, four, five, six")));
            QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
            keepFrame("a voice");
            m_dialog->click("Btn_Record");
            QTRY_VERIFY(m_view->find<QLabel>("label_Record")->text().contains(QLatin1Char('5')));
            QTRY_VERIFY(level() > LitPercent);
            keepFrame("counting");
        }
#ifdef Q_OS_UNIX // Windows makes nothing louder than 100 %
        QTest::keyClick(slider(), Qt::Key_End);
        QTRY_VERIFY(isBalloonShown("ID_MicrophonePage_MayNoisy"));
        QTRY_VERIFY(volume().contains("150%"));
        keepFrame("turned up");
        QTest::keyClick(slider(), Qt::Key_Home);
        QTRY_VERIFY(!isBalloonShown("ID_MicrophonePage_MayNoisy"));
#endif

        box()->setCurrentIndex(box()->count() - 1);
        QTRY_VERIFY(isBalloonShown("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable"));
        QVERIFY(!isShown("Btn_Mic_Yes"));
        QTRY_COMPARE(captures(), 0);
        keepFrame("disabled");

        m_server->unplug(m_server->microphoneA());
        QTRY_COMPARE(box()->count(), 1);
        QTRY_VERIFY(isShown("noMicPage"));
        QTRY_VERIFY(!isBalloonShown("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable"));
        keepFrame("no microphone");
    });
    m_board.endRow();
}

// As a user does: choose a speaker, count aloud, watch the bar, listen, answer yes.
void tst_MicrophoneDialog::listensBackWhileCounting()
{
    const std::vector<float> words = speech(id("one, two, three, four, five, six"));
    SoundRecording microphone(id("microphone_a"));
    SoundRecording chosen(id("speaker_b.monitor"));
    SoundRecording other(id("speaker_a.monitor"));
    for (SoundRecording* recording : {&microphone, &chosen, &other}) {
        QVERIFY(recording->waitForStart());
    }
    runDialog([&] {
        m_dialog->click("label_SoundCheck");
        auto* const speakers = m_dialog->child<QComboBox>("cb_ad_output_name");
        QTRY_VERIFY_WITH_TIMEOUT(speakers->findData(id("speaker_b")) >= 0, LongMs);
        speakers->setCurrentIndex(speakers->findData(id("speaker_b")));
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(playbacks(), 1, LongMs);

        const QString fault = measuredFault([&] {
            const bool isReady =
                QTest::qWaitFor([this] { return m_view->isEnabled("Btn_Record"); }, LongMs);
            QSet<int> levels;
            const auto connection = connect(levelBar(), &QProgressBar::valueChanged, this,
                                            [&levels](int level) { levels.insert(level); });
            microphone.forget();
            chosen.forget();
            m_dialog->click("Btn_Record");
            SoundSource voice(id("voice"), words);
            const bool isOver = isReady && voice.waitForEnd() && !m_view->isEnabled("Btn_Mic_Yes");
            disconnect(connection);
            // Compared with the recording, because on a busy machine the words have gaps there
            // already.
            const std::vector<float> said = trimmed(microphone.samples(), words.size());
            const double alike = loudnessCorrelation(chosen.samples(), said);
            qInfo("heard and said are alike to %.3f", alike);
            return isOver && levels.size() >= FewestLevels && alike > AlikeAtLeast
                       ? QString()
                       : QStringLiteral("%1 levels, alike to %2").arg(levels.size()).arg(alike);
        });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
        QVERIFY(other.peak() < Audible);

        QTRY_VERIFY_WITH_TIMEOUT(m_view->isEnabled("Btn_Mic_Yes"), LongMs);
        m_dialog->click("Btn_Mic_Yes");
        QTRY_COMPARE(captures() + playbacks(), 0);
    });
    const QJsonObject result =
        m_dialog->results().value(id("results")).toObject().value(id("microphone")).toObject();
    QCOMPARE(result.value(id("userState")).toInt(), 1);
    QCOMPARE(result.value(id("deviceState")).toInt(), 1);
}

// The countdown continues to its end, and the page says what is wrong.
void tst_MicrophoneDialog::unpluggedWhileCounting()
{
    runDialog([this] {
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->count(), 2, LongMs);
        const SoundSource voice(id("voice"), tone(20.0, 440.0, -20.0));
        QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
        m_dialog->click("Btn_Record");
        QTRY_VERIFY(m_view->find<QLabel>("label_Record")->text().contains(QLatin1Char('5')));
        m_server->unplug(m_server->microphoneA());
        QTRY_COMPARE(level(), 0);
        QTRY_VERIFY(isShown("noMicPage"));
        QVERIFY(!isShown("Btn_Mic_Yes"));
        QVERIFY(m_view->isEnabled("Btn_Mic_No"));

        m_server->plugMicrophone(id("microphone_a"), id("Test Microphone A"));
        QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
        QVERIFY(isShown("Btn_Record"));
        QTRY_VERIFY_WITH_TIMEOUT(m_view->isEnabled("Btn_Mic_Yes"), LongMs);
    });
    QTRY_COMPARE(captures(), 0);
}

void tst_MicrophoneDialog::leavesTheServerAsItWas_data()
{
    QTest::addColumn<bool>("isSliderMoved");
    QTest::newRow("nothing moved") << false;
    QTest::newRow("slider moved") << true;
}

// Trying one microphone after the other changes no volume, no mute and no default.
void tst_MicrophoneDialog::leavesTheServerAsItWas()
{
    QFETCH(bool, isSliderMoved);
    m_server->plugMicrophone(id("microphone_b"), id("Test Microphone B"));
    m_server->control({id("set-source-volume"), id("microphone_a"), id("71%")});
    m_server->control({id("set-source-volume"), id("microphone_b"), id("130%")});
    m_server->control({id("set-source-mute"), id("microphone_b"), id("1")});
    m_server->control({id("set-sink-volume"), id("speaker_a"), id("43%"), id("87%")});
    m_server->control({id("set-sink-mute"), id("speaker_b"), id("1")});
    const QStringList before = m_server->state();
    runDialog([&] {
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->count(), 3, LongMs);
        const SoundSource voice(id("voice"), tone(20.0, 440.0, -20.0));
        QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
        m_dialog->click("Btn_Record");
        QTRY_COMPARE(playbacks(), 1);
        box()->setCurrentIndex(box()->findData(id("microphone_b")));
        QTRY_COMPARE(level(), 0);           // it is muted
        QTRY_COMPARE(slider()->value(), 0); // as loud as it is
        box()->setCurrentIndex(box()->findData(id("microphone_a")));
        QTRY_VERIFY(level() > LitPercent);
        QTRY_COMPARE(slider()->value(), 71);
        if (isSliderMoved) {
            slider()->setValue(20);
            QTRY_VERIFY(volume().contains(" 20%"));
        }
    });
    QTRY_COMPARE(captures() + playbacks(), 0);
    const QStringList after = m_server->state();
    QCOMPARE(after.size(), before.size());
    for (int i = 0; i < before.size(); ++i) {
        const bool isMoved = isSliderMoved && before.at(i).startsWith(id("microphone_a\t"));
        QVERIFY2((after.at(i) == before.at(i)) != isMoved, qPrintable(after.at(i)));
    }
}

void tst_MicrophoneDialog::neverBlocksWhileTheServerIsFrozen()
{
    m_server->plugMicrophone(id("microphone_b"), id("Test Microphone B"));
    m_server->control({id("set-source-volume"), id("microphone_b"), id("90%")});
    // Once before measuring: the first pages load texts and fonts, which takes time on any server.
    runDialog([this] { openPage(); });

    const SoundSource voice(id("voice"), tone(60.0, 440.0, -20.0));
    m_server->freeze();
    runDialog([&] {
        m_dialog->meter("frozen while the dialog opens", [&] {
            openPage();
            QTest::qWait(DeviceDialog::freezeMs());
            QVERIFY(isShown("noMicPage"));
        });
        m_server->thaw();
        works();

        leavePage();
        meterFrozen("frozen while the page opens", [this] { openPage(); });
        works();
        meterFrozen("frozen while listening", [] {});
        works();
        meterFrozen("frozen while a device is chosen",
                    [this] { box()->setCurrentIndex(box()->findData(id("microphone_b"))); });
        QTRY_COMPARE(slider()->value(), 90);
        works();
        box()->setCurrentIndex(box()->findData(id("microphone_a")));
        QTRY_COMPARE(slider()->value(), 100);
        works();
        meterFrozen("frozen while the slider is dragged", [this] {
            for (int value = 100; value >= 80; --value) {
                slider()->setValue(value);
            }
        });
        QTRY_VERIFY(volume().contains(" 80%"));
        m_dialog->click("Btn_Record");
        meterFrozen("frozen while counting", [this] { QTRY_COMPARE(level(), 0); });
        works();
        meterFrozen("frozen while the page is left", [this] { leavePage(); });
        QTRY_COMPARE(captures() + playbacks(), 0);

        openPage();
        works();
        m_server->freeze();
    });
    // The dialog was closed with a frozen server.
    m_server->thaw();
    QTRY_COMPARE(captures() + playbacks(), 0);
    QVERIFY2(m_dialog->worstGapMs() < MaxDialogGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

void tst_MicrophoneDialog::saysWhatTheServerDoes()
{
    m_server->kill();
    const auto state = [this] {
        return m_dialog->results()
            .value(id("measurements"))[id("microphone")][id("state")]
            .toString();
    };
    runDialog([&] {
        openPage();
        QTRY_COMPARE(box()->currentText(), qtTrId("ID_Engine_SoundServerLost"));
        QVERIFY(isShown("noMicPage"));
        QVERIFY(m_server->start());
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), id("Test Microphone A"), LongMs);

        // Also if the user chose one that is unknown now.
        m_server->plugMicrophone(id("microphone_b"), id("Test Microphone B"));
        QTRY_COMPARE(box()->count(), 3);
        box()->setCurrentIndex(box()->findData(id("microphone_b")));
        QTRY_COMPARE(box()->currentData().toString(), id("microphone_b"));
        m_server->freeze();
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), qtTrId("ID_Engine_SoundServerSilent"),
                                  LongMs);
        QVERIFY(isShown("noMicPage"));
        leavePage();
        QCOMPARE(state(), id("serverSilent"));
        openPage();
        m_server->thaw();
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), id("Test Microphone B"), LongMs);

        m_server->kill();
        QTRY_COMPARE(box()->currentText(), qtTrId("ID_Engine_SoundServerLost"));
        QVERIFY(m_server->start());
        QTRY_VERIFY_WITH_TIMEOUT(box()->findData(id("microphone_a")) >= 0, LongMs);
    });
}

void tst_MicrophoneDialog::survivesTheServersDeath()
{
    const auto startAgain = [this] {
        m_dialog->meter("started again", [this] {
            QVERIFY(m_server->start());
            QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), id("Test Microphone A"), LongMs);
        });
        const SoundSource voice(id("voice"), tone(20.0, 440.0, -20.0));
        works();
    };
    const auto killed = [this](const char* step, const Script& action) {
        m_dialog->meter(step, [&] {
            m_server->kill();
            action();
            QTRY_VERIFY(isShown("noMicPage") || !isShown("microphonePage"));
        });
    };
    runDialog([&] {
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->count(), 2, LongMs);
        killed("killed while listening", [] {});
        startAgain();

        m_dialog->click("Btn_Record");
        killed("killed while counting", [this] {
            QTRY_COMPARE(level(), 0);
            QTRY_VERIFY(m_view->isEnabled("Btn_Mic_No"));
        });
        m_dialog->meter("the page left and opened without a server", [this] {
            leavePage();
            openPage();
        });
        startAgain();

        killed("killed while the page is left", [this] { leavePage(); });
        openPage();
        startAgain();
    });
    QTRY_COMPARE(captures() + playbacks(), 0);
    QVERIFY2(m_dialog->worstGapMs() < MaxStartGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

void tst_MicrophoneDialog::survivesManyPluggings()
{
    SoundRecording speaker(id("speaker_a.monitor"));
    QVERIFY(speaker.waitForStart());
    const SoundSource voice(id("voice"), tone(60.0, 440.0, -20.0));
    runDialog([&] {
        openPage();
        works();
        const int count = box()->count();
        QElapsedTimer clock;
        clock.start();
        m_dialog->meter("many pluggings while listening", [&] {
            const PlugStorm storm(*m_server, PlugEvents / 2, HastyDevice::Kind::Microphone);
            QTRY_VERIFY_WITH_TIMEOUT(storm.isOver(), 60000);
            QCOMPARE(storm.events(), PlugEvents);
        });
        qInfo("| plugs and unplugs | %d in %lld ms |", PlugEvents, clock.elapsed());
        QTRY_COMPARE(box()->count(), count);
        QCOMPARE(box()->currentData().toString(), id("microphone_a"));
        QVERIFY(level() > LitPercent);
        speaker.forget();
        QTRY_VERIFY(speaker.peak() > Audible);
        QCOMPARE(captures(), 1);
        QCOMPARE(playbacks(), 1);
    });
    QVERIFY2(m_dialog->worstGapMs() < MaxDialogGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

void tst_MicrophoneDialog::runDialog(const Script& script)
{
    QVERIFY(m_dialog->run([&] {
        m_view = std::make_unique<DialogView>(QApplication::activeModalWidget());
        script();
    }));
}

// Balloons are windows that show their text in a label.
bool tst_MicrophoneDialog::isBalloonShown(const char* textId) const
{
    const QString text = qtTrId(textId);
    const QWidgetList windows = m_view->windows();
    return std::any_of(windows.begin(), windows.end(), [&text](const QWidget* window) {
        const QList<QLabel*> labels = window->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&text](const QLabel* label) {
            return label->isVisible() && label->text() == text;
        });
    });
}

QProgressBar* tst_MicrophoneDialog::levelBar() const
{
    return m_dialog->child<QWidget>("w_intensity")->findChildren<QProgressBar*>().last();
}

// The bar shows the sound that is playing.
void tst_MicrophoneDialog::works() const
{
    QTRY_VERIFY_WITH_TIMEOUT(isShown("micPage") && level() > LitPercent, LongMs);
}

QByteArray tst_MicrophoneDialog::volume()
{
    return m_server->control({id("get-source-volume"), id("microphone_a")});
}

int tst_MicrophoneDialog::captures()
{
    return m_server->streams("source-outputs", "Microphone check");
}

int tst_MicrophoneDialog::playbacks()
{
    return m_server->streams("sink-inputs", "Listening to oneself");
}

void tst_MicrophoneDialog::keepFrame(const char* caption)
{
    m_board.add(id(caption), m_view->picture());
}

QTEST_MAIN(tst_MicrophoneDialog)
#include "tst_MicrophoneDialog.moc"
