// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"
#include "host/tour/DialogView.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MachineGap.h"
#include "tests/support/PictureBoard.h"
#include "tests/support/QuestionAnswerer.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QSlider>
#include <QTranslator>
#include <QtTest>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int LongMs = 10000;
constexpr qint64 MaxGapMs = 50;
constexpr int FontPixelSize = 12;
constexpr int LitPercent = 30;

// ENVCHECK_FREEZE_MS makes it longer.
int freezeMs()
{
    constexpr int Usual = 1000;
    return std::max(Usual, qEnvironmentVariableIntValue("ENVCHECK_FREEZE_MS"));
}

QString id(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

// The microphone's page in the real dialog, on a real server.
class tst_MicrophoneDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void showsEveryState_data();
    void showsEveryState();
    void unpluggedWhileCounting();
    void staysAwake_data();
    void staysAwake();

private:
    using Script = std::function<void()>;

    void runDialog(const Script& script);
    void openPage() { click("label_MicCheck"); }
    void click(const char* name);
    QComboBox* box() const { return m_view->find<QComboBox>("cb_ad_input_name"); }
    bool isShown(const char* name) const { return m_view->find<QWidget>(name) != nullptr; }
    bool isBalloonShown(const char* textId) const;
    int level() const;
    int captures();
    void keepPicture(const char* caption);

    std::unique_ptr<SoundServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DialogView> m_view;
    PictureBoard m_board;
};

void tst_MicrophoneDialog::initTestCase()
{
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
}

void tst_MicrophoneDialog::init()
{
    m_server = std::make_unique<SoundServer>(SoundServer::Kind::PulseAudio);
    QVERIFY(m_server->start());
    m_folder = std::make_unique<QTemporaryDir>();
    DeviceEngineConfig config;
    config.settingsFolder = m_folder->path();
    config.cacheFolder = m_folder->path();
    EngineRegistry::install(std::make_unique<DeviceEngine>(config));
}

void tst_MicrophoneDialog::cleanup()
{
    EnvCheckAgent::release();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EngineRegistry::uninstall();
    QVERIFY(FileWriter::waitForWritten(LongMs));
    m_server.reset();
}

void tst_MicrophoneDialog::cleanupTestCase()
{
    QVERIFY(m_board.save(pictureFolder() + QStringLiteral("/microphone-states.png")));
}

void tst_MicrophoneDialog::showsEveryState_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << id("en");
    QTest::newRow("Chinese") << id("zh_CN");
}

void tst_MicrophoneDialog::showsEveryState()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QCoreApplication::applicationDirPath() +
                            QStringLiteral("/translations/envcheck_%1").arg(language)));
    QCoreApplication::installTranslator(&translator);
    runDialog([this] {
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), id("Test Microphone A"), LongMs);
        {
            const SoundSource voice(id("voice"), speech(id("one, two, three, four, five, six")));
            QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
            keepPicture("a voice");
            click("Btn_Record");
            QTRY_VERIFY(m_view->find<QLabel>("label_Record")->text().contains(QLatin1Char('5')));
            QTRY_VERIFY(level() > LitPercent);
            keepPicture("counting");
            QVERIFY(!m_view->isEnabled("Btn_Mic_Yes"));
            QTRY_VERIFY_WITH_TIMEOUT(m_view->isEnabled("Btn_Mic_Yes"), LongMs);
        }
        auto* const slider = m_view->find<QWidget>("micPage")->findChild<QSlider*>();
        QTest::keyClick(slider, Qt::Key_End);
        QTRY_VERIFY(isBalloonShown("ID_MicrophonePage_MayNoisy"));
        QTRY_VERIFY(
            m_server->control({id("get-source-volume"), id("microphone_a")}).contains("150%"));
        keepPicture("turned up");
        QTest::keyClick(slider, Qt::Key_Home);
        QTRY_VERIFY(!isBalloonShown("ID_MicrophonePage_MayNoisy"));

        box()->setCurrentIndex(box()->count() - 1);
        QTRY_VERIFY(isBalloonShown("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable"));
        QVERIFY(!isShown("Btn_Mic_Yes"));
        QTRY_COMPARE(captures(), 0);
        keepPicture("disabled");

        m_server->unplug(m_server->microphoneA());
        QTRY_COMPARE(box()->count(), 1);
        QTRY_VERIFY(isShown("noMicPage"));
        QTRY_VERIFY(!isBalloonShown("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable"));
        keepPicture("no microphone");
    });
    m_board.endRow();
    QCoreApplication::removeTranslator(&translator);
}

// The countdown goes on to its end, and the page says what is wrong.
void tst_MicrophoneDialog::unpluggedWhileCounting()
{
    runDialog([this] {
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->count(), 2, LongMs);
        const SoundSource voice(id("voice"), tone(20.0, 440.0, -20.0));
        QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
        click("Btn_Record");
        QTest::qWait(1500);
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

void tst_MicrophoneDialog::staysAwake_data()
{
    QTest::addColumn<bool>("isKilled");
    QTest::addColumn<int>("step");
    for (const bool isKilled : {false, true}) {
        const char* what = isKilled ? "server killed" : "server frozen";
        QTest::addRow("%s before the page", what) << isKilled << 0;
        QTest::addRow("%s while listening", what) << isKilled << 1;
        QTest::addRow("%s while counting", what) << isKilled << 2;
        QTest::addRow("%s before leaving", what) << isKilled << 3;
    }
}

void tst_MicrophoneDialog::staysAwake()
{
    QFETCH(bool, isKilled);
    QFETCH(int, step);
    qint64 gap = 0;
    qint64 machineGap = 0;
    const auto trouble = [&](const Script& action) {
        if (isKilled) {
            m_server->kill();
        } else {
            m_server->freeze();
        }
        {
            MachineGap machine;
            GapMeter gaps;
            action();
            QTest::qWait(freezeMs());
            gap = gaps.longestMs();
            machineGap = machine.longestMs();
        }
        if (isKilled) {
            QVERIFY(m_server->start());
        } else {
            m_server->thaw();
        }
    };
    const auto nothing = [] {};
    runDialog([&] {
        if (step == 0) {
            trouble([this] { openPage(); });
        }
        openPage();
        QTRY_COMPARE_WITH_TIMEOUT(box()->count(), 2, LongMs);
        if (step == 1) {
            trouble(nothing);
        } else if (step == 2) {
            click("Btn_Record");
            trouble(nothing);
        } else if (step == 3) {
            trouble([this] { click("label_SystemCheck"); });
            openPage();
        }
        // It works again.
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), id("Test Microphone A"), LongMs);
        const SoundSource voice(id("voice"), tone(20.0, 440.0, -20.0));
        QTRY_VERIFY_WITH_TIMEOUT(level() > LitPercent, LongMs);
    });
    qInfo("longest gap %lld ms, the machine's own %lld ms", gap, machineGap);
    QVERIFY(gap > 0);
    QVERIFY(gap < MaxGapMs + machineGap);
    QTRY_COMPARE(captures(), 0);
}

void tst_MicrophoneDialog::runDialog(const Script& script)
{
    bool isDone = false;
    const QuestionAnswerer answerer(QMessageBox::Yes);
    QTimer::singleShot(0, this, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        m_view = std::make_unique<DialogView>(dialog);
        script();
        isDone = true;
        dialog->close();
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(isDone);
}

void tst_MicrophoneDialog::click(const char* name)
{
    auto* const widget = m_view->find<QWidget>(name);
    QVERIFY2(widget, name);
    QTest::mouseClick(widget, Qt::LeftButton);
}

// The balloons draw their texts on labels of their own.
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

int tst_MicrophoneDialog::level() const
{
    return m_view->dialog()->findChildren<QProgressBar*>().last()->value();
}

int tst_MicrophoneDialog::captures()
{
    return m_server->control({id("list"), id("source-outputs")}).count("Microphone check");
}

void tst_MicrophoneDialog::keepPicture(const char* caption)
{
    m_board.add(id(caption), m_view->picture());
}

QTEST_MAIN(tst_MicrophoneDialog)
#include "tst_MicrophoneDialog.moc"
