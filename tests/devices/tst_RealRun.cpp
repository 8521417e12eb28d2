// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ExitCode.h"
#include "host/Languages.h"
#include "host/Options.h"
#include "host/OutcomeWindow.h"
#include "host/SoundNames.h"
#include "host/commands/CheckCommand.h"
#include "host/tour/DialogView.h"
#include "platform/backend/StunServer.h"
#include "tests/devices/CoturnServer.h"
#include "tests/devices/DialogCameras.h"
#include "tests/devices/RunDevices.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/PictureBoard.h"
#include "tests/support/Signals.h"

#include <LumMedia/AudioPlayer.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QProgressBar>
#include <QTableWidget>
#include <QtTest>

using namespace TestSupport;

namespace {

constexpr int LongMs = 15000;
constexpr int FontPixelSize = 12;
constexpr int LitPercent = 40;
constexpr double AlikeAtLeast = 0.8;
constexpr std::size_t RecognizedAfter = 3 * SoundRate / 2; // of a sound
constexpr int SoundCount = 8;

QString id(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

// The whole program, from its options to its exit code, on real servers with virtual devices, and
// driven by clicks. Its pictures go to the folder that ENVCHECK_PICTURES names, otherwise to the
// folder "screenshots" of the build.
class tst_RealRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void everyCheckPasses();
    void everyCheckFails();

private:
    using Visit = void (tst_RealRun::*)();

    void run(Visit visit, ExitCode expected);
    void passNetwork();
    void passCamera();
    void passSpeaker();
    void hearEverySound();
    QString hear(int sound, const std::vector<std::vector<float>>& beginnings);
    void passMicrophone();
    void visitWithEverything();
    void visitWithNothing();
    template <typename Widget>
    Widget* find(const char* name) const;
    void click(const char* name) const;
    bool isShown(const char* name) const;
    bool isMeasured() const;
    bool previewIsRed() const;
    const char* buttonFor(const std::vector<float>& heard) const;
    static QFileInfoList sounds();
    void compareTable(const QList<QPair<QString, QString>>& rows) const;
    void keepFrame(const char* caption);

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<RunDevices> m_devices;
    CoturnServer m_stun;
    std::unique_ptr<DialogView> m_view;
    QStringList m_outcome; // what the window after the dialog said
    PictureBoard m_board;
};

void tst_RealRun::initTestCase()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
}

void tst_RealRun::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", m_home->path().toUtf8());
    m_devices = std::make_unique<RunDevices>();
    QVERIFY(m_devices->start());
}

void tst_RealRun::cleanup()
{
    m_view.reset();
    m_devices.reset();
    m_stun.kill();
    qunsetenv("XDG_DATA_HOME");
}

void tst_RealRun::cleanupTestCase()
{
    QVERIFY(m_board.save(pictureFolder() + QStringLiteral("/real-run.png")));
}

void tst_RealRun::everyCheckPasses()
{
    QVERIFY(m_stun.start());
    QVERIFY(m_devices->plugCamera());
    run(&tst_RealRun::visitWithEverything, ExitCode::AllPassed);
    QCOMPARE(m_outcome, QStringList()); // there was none
}

void tst_RealRun::everyCheckFails()
{
    m_devices->unplugSound();
    run(&tst_RealRun::visitWithNothing, ExitCode::SomeFailed);
    Languages texts; // those of the run are gone
    QCOMPARE(texts.use(id("en")), QString());
    QVERIFY(m_outcome.contains(qtTrId("ID_Host_Outcome_Failed")));
    QCOMPARE(m_outcome.count(qtTrId("ID_Host_Remedy_NoAnswer")), 1);
    QCOMPARE(m_outcome.count(qtTrId("ID_Host_Remedy_Absent")), 3);
}

// As main() does it, but that somebody is there to look and to click.
void tst_RealRun::run(Visit visit, ExitCode expected)
{
    Languages languages;
    QCOMPARE(languages.use(id("en")), QString());
    Options options;
    options.account = id("m.curie");
    options.nickname = id("Marie");
    options.cdn = id("Campus/North");
    options.server = QStringLiteral("stun:%1:%2")
                         .arg(m_stun.server().host, QString::number(m_stun.server().port));
    options.reportFile = m_home->filePath(id("report.json"));
    bool isThrough = false;
    QTimer opening;
    connect(&opening, &QTimer::timeout, this, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            opening.stop();
            m_view = std::make_unique<DialogView>(dialog);
            (this->*visit)();
            isThrough = !QTest::currentTestFailed();
            if (!isThrough) {
                dialog->done(QDialog::Rejected);
            }
        }
    });
    opening.start(10);
    m_outcome.clear();
    QTimer closing;
    connect(&closing, &QTimer::timeout, this, [this] {
        auto* const window = qobject_cast<OutcomeWindow*>(QApplication::activeModalWidget());
        if (window && window->isVisible()) {
            for (const auto* label : window->findChildren<QLabel*>()) {
                m_outcome << label->text();
            }
            QTest::keyClick(window, Qt::Key_Escape);
        }
    });
    closing.start(10);
    const ExitCode code = CheckCommand(options).run(languages.current());
    QVERIFY(isThrough);
    QCOMPARE(static_cast<int>(code), static_cast<int>(expected));

    QFile report(options.reportFile);
    QVERIFY(report.open(QIODevice::ReadOnly));
    const QJsonObject document = QJsonDocument::fromJson(report.readAll()).object();
    QCOMPARE(document.value(id("outcome")).toString(),
             expected == ExitCode::AllPassed ? id("passed") : id("failed"));
}

void tst_RealRun::visitWithEverything()
{
    for (const Visit visit : {&tst_RealRun::passNetwork, &tst_RealRun::passCamera,
                              &tst_RealRun::passSpeaker, &tst_RealRun::passMicrophone}) {
        (this->*visit)();
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    QTRY_VERIFY(isShown("tableWidget"));
    keepFrame("Every check passed");
    const QString passed = qtTrId("ID_CheckResultPage_Normal");
    compareTable({{{}, passed}, {{}, passed}, {{}, passed}, {{}, passed}});
    QCOMPARE(find<QLabel>("lb_Device")->text(), qtTrId("ID_CheckResultPage_EquipmentNormal"));
    m_board.endRow();
    click("okButton");
}

void tst_RealRun::passNetwork()
{
    QTRY_VERIFY_WITH_TIMEOUT(isMeasured(), LongMs);
    QTRY_VERIFY(find<QLabel>("label_ND")->text().endsWith(id("ms")));
    keepFrame("System and network");
    click("Btn_Next");
}

void tst_RealRun::passCamera()
{
    QTRY_VERIFY(isShown("f_video_player"));
    QCOMPARE(find<QComboBox>("cb_vd_name")->currentText(), id("Test Camera"));
    QTRY_VERIFY_WITH_TIMEOUT(previewIsRed(), LongMs);
    QTRY_VERIFY(m_view->isEnabled("Btn_CanSee"));
    keepFrame("Camera");
    click("Btn_CanSee");
}

void tst_RealRun::passSpeaker()
{
    QTRY_VERIFY(isShown("tb_play_test_sound"));
    QCOMPARE(find<QComboBox>("cb_ad_output_name")->currentText(), id("Test Speaker A"));
    const auto* const label = find<QLabel>("label_Play");
    const auto says = [label](const QString& text) {
        return QTest::qWaitFor([label, &text] { return label->text() == text; }, LongMs);
    };
    const char* button = nullptr;
    const QString fault = measuredFault([&] {
        if (!m_devices->listen()) {
            return id("nothing is recorded");
        }
        click("tb_play_test_sound");
        if (!says(qtTrId("ID_HeadsetPage_Playing")) || !says(qtTrId("ID_HeadsetPage_PlayAgain"))) {
            return id("the sound doesn't play to its end");
        }
        button = buttonFor(m_devices->heard());
        return button ? QString() : id("no answer names what was heard");
    });
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    hearEverySound();
    click(button);
    keepFrame("Speaker");
    click("Btn_CanHear");
}

// The page draws one of them; here each begins, on the same speaker.
void tst_RealRun::hearEverySound()
{
    QCOMPARE(sounds().size(), SoundCount);
    std::vector<std::vector<float>> beginnings;
    for (const QFileInfo& file : sounds()) {
        beginnings.push_back(soundFile(file.filePath()));
        beginnings.back().resize(firstAbove(beginnings.back(), Audible) + RecognizedAfter);
    }
    for (int sound = 0; sound < SoundCount; ++sound) {
        const QString fault = measuredFault([&] { return hear(sound, beginnings); });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
}

// What is wrong with it, if anything.
QString tst_RealRun::hear(int sound, const std::vector<std::vector<float>>& beginnings)
{
    if (!m_devices->listen()) {
        return id("nothing is recorded");
    }
    const QFileInfo file = sounds().at(sound);
    const QPointer<AudioPlayer> player =
        CreateAudioPlayer(AudioPlayerType(3), file.filePath(), 1.0F, nullptr, 0, false, false);
    std::vector<float> heard;
    const bool isHeard = QTest::qWaitFor(
        [&] {
            heard = m_devices->heard();
            return firstAbove(heard, Audible) + RecognizedAfter < heard.size();
        },
        LongMs);
    DeleleAudioPlayer(player);
    double own = 0.0;
    double others = 0.0;
    for (int i = 0; i < SoundCount; ++i) {
        double& place = i == sound ? own : others;
        place = std::max(place, correlation(heard, beginnings[std::size_t(i)]));
    }
    const QString figures =
        QStringLiteral("%1: %2, others up to %3").arg(file.fileName()).arg(own).arg(others);
    qInfo("%s", qPrintable(figures));
    return isHeard && own > AlikeAtLeast && others < own / 2 ? QString() : figures;
}

void tst_RealRun::passMicrophone()
{
    QTRY_VERIFY(isShown("Btn_Record"));
    QCOMPARE(find<QComboBox>("cb_ad_input_name")->currentText(), id("Test Microphone A"));
    QVERIFY(m_devices->listen());
    click("Btn_Record");
    const std::vector<float> words = m_devices->say(id("one, two, three, four, five, six, seven"));
    QVERIFY(!words.empty());
    const auto* const bar = m_view->dialog()->findChildren<QProgressBar*>().last();
    QTRY_VERIFY_WITH_TIMEOUT(bar->value() > LitPercent, LongMs);
    QTRY_VERIFY(find<QLabel>("label_Record")->text().contains(QLatin1Char('3')));
    QTRY_VERIFY(bar->value() > LitPercent);
    keepFrame("Microphone, counting aloud");
    QTRY_VERIFY_WITH_TIMEOUT(m_view->isEnabled("Btn_Mic_Yes"), LongMs);
    QVERIFY(m_devices->waitForVoice());
    const double alike = loudnessCorrelation(m_devices->heard(), words);
    QVERIFY2(alike > AlikeAtLeast, qPrintable(QString::number(alike)));
    click("Btn_Mic_Yes");
}

void tst_RealRun::visitWithNothing()
{
    QTRY_VERIFY_WITH_TIMEOUT(isMeasured(), LongMs);
    QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>("label_LR")->text(), id("100%"), LongMs);
    QCOMPARE(find<QLabel>("label_ND")->text(), id("N/A"));
    keepFrame("System and network, nobody answers");
    click("Btn_Next");
    QTRY_VERIFY(isShown("Btn_Cant"));
    QTRY_VERIFY(!isShown("Btn_CanSee"));
    keepFrame("No camera");
    click("Btn_Cant");
    QTRY_VERIFY(isShown("noHeadsetPage"));
    keepFrame("No speaker");
    click("Btn_CantListen");
    QTRY_VERIFY(isShown("noMicPage"));
    keepFrame("No microphone");
    click("Btn_Mic_No");
    QTRY_VERIFY(isShown("tableWidget"));
    keepFrame("Every check failed");
    const QString failed = qtTrId("ID_CheckResultPage_Abnormal");
    compareTable({{qtTrId("ID_NetworkPage_NetworkSlowOrUnstable"), failed},
                  {qtTrId("ID_lumcamera_NoWebcamFound"), failed},
                  {qtTrId("ID_hardwaremgrinterface_NoSpeakerFound"), failed},
                  {qtTrId("ID_MicrophonePage_NoMicrophoneWasDetected"), failed}});
    QCOMPARE(find<QLabel>("lb_Device")->text(), qtTrId("ID_CheckResultPage_EquipmentAbnormal"));
    m_view->dialog()->close();
}

template <typename Widget>
Widget* tst_RealRun::find(const char* name) const
{
    Widget* const result = m_view->find<Widget>(name);
    if (!result) {
        qFatal("the dialog shows no %s", name);
    }
    return result;
}

void tst_RealRun::click(const char* name) const
{
    QTest::mouseClick(find<QWidget>(name), Qt::LeftButton);
}

bool tst_RealRun::isShown(const char* name) const
{
    return m_view->find<QWidget>(name) != nullptr;
}

bool tst_RealRun::isMeasured() const
{
    return find<QLabel>("label_ND")->text() != id("- -");
}

bool tst_RealRun::previewIsRed() const
{
    const QImage picture = find<QWidget>("f_video_player")->grab().toImage();
    const QRgb pixel = picture.pixel(picture.width() / 3, picture.height() / 2);
    constexpr int Tolerance = 12;
    return qAbs(qRed(pixel) - qRed(DialogCameras::Red)) <= Tolerance &&
           qAbs(qGreen(pixel) - qGreen(DialogCameras::Red)) <= Tolerance &&
           qAbs(qBlue(pixel) - qBlue(DialogCameras::Red)) <= Tolerance;
}

// The answer that names what was heard; null where none of them does.
const char* tst_RealRun::buttonFor(const std::vector<float>& heard) const
{
    for (const char* button : {"item0", "item1", "item2", "item3"}) {
        const QString answer = find<QAbstractButton>(button)->text();
        for (const QFileInfo& sound : sounds()) {
            if (answer != qtTrId(SoundNames::textId(sound.completeBaseName()))) {
                continue;
            }
            const double alike = correlation(heard, soundFile(sound.filePath()));
            qInfo("%s: %.3f", qPrintable(sound.fileName()), alike);
            if (alike > AlikeAtLeast) {
                return button;
            }
        }
    }
    return nullptr;
}

QFileInfoList tst_RealRun::sounds()
{
    return QDir(QStringLiteral(ENVCHECK_SOURCE_DIR "/share/sounds")).entryInfoList({id("*.mp3")});
}

// Each row's problems and its result.
void tst_RealRun::compareTable(const QList<QPair<QString, QString>>& rows) const
{
    const auto* const table = find<QTableWidget>("tableWidget");
    QCOMPARE(table->rowCount(), rows.size());
    const auto cell = [table](int row, int column) {
        return qobject_cast<QLabel*>(table->cellWidget(row, column))->text();
    };
    for (int row = 0; row < rows.size(); ++row) {
        QCOMPARE(cell(row, 1), rows.at(row).first);
        QCOMPARE(cell(row, 2), rows.at(row).second);
    }
}

void tst_RealRun::keepFrame(const char* caption)
{
    m_board.add(id(caption), m_view->picture());
}

QTEST_MAIN(tst_RealRun)
#include "tst_RealRun.moc"
