// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MachineGap.h"
#include "tests/support/PipeWireServer.h"
#include "tests/support/QuestionAnswerer.h"
#include "widgets/LumToolTip.h"

#include <LumWidgets/LumCustomNormalDialog.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QPainter>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>
#include <csignal>
#include <optional>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int LongMs = 8000;
constexpr int FreezeMs = 3000;
constexpr qint64 MaxGapMs = 50;
constexpr qint64 MaxLeaveMs = 100;
constexpr int StateCount = 5;
constexpr int StateWidth = 410;
constexpr int StateGap = 8;
const QRgb Red = qRgb(0xc8, 0x28, 0x28);
const QRgb Green = qRgb(0x28, 0xa0, 0x28);
const QRgb Background = qRgb(242, 242, 242);
const QString NameA = QStringLiteral("cam_a");
const QString NameB = QStringLiteral("cam_b");

bool isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 12;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

QString translation(const QString& language)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/translations/envcheck_") +
           language;
}

QString screenshots()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../screenshots");
}

} // namespace

// The real dialog on the real engine, with virtual cameras. Its pictures are kept in the folder
// "screenshots" of the build.
class tst_CameraDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void tellsTwoCamerasApart();
    void followsPlugsWithThePopupOpen();
    void showsEveryDeviceState_data();
    void showsEveryDeviceState();
    void leavesAHungCameraAtOnce();
    void neverBlocksWhileServerIsFrozen_data();
    void neverBlocksWhileServerIsFrozen();

private:
    using Script = std::function<void()>;

    std::unique_ptr<CameraProcess> plug(const QString& name, const QString& description,
                                        const QStringList& arguments = {}) const;
    void runDialog(const Script& script);
    template <typename T>
    T* child(const char* name) const;
    void openCameraPage() const;
    void openSystemPage() const;
    void chooseInPopup(const QString& text) const;
    bool previewShows(QRgb colour) const;
    QStringList entries() const;
    const QWidget* balloon() const; // null while none is visible
    void keepPicture(const char* name) const;
    void keepState();
    void keepSheet() const;

    QTranslator m_translator;
    std::unique_ptr<PipeWireServer> m_server;
    std::unique_ptr<QTemporaryDir> m_settings;
    QPointer<LumCustomNormalDialog> m_dialog;
    std::vector<QImage> m_states; // a row for each language
};

void tst_CameraDialog::initTestCase()
{
    QVERIFY(m_translator.load(translation(QStringLiteral("en"))));
    QCoreApplication::installTranslator(&m_translator);
    QVERIFY(QDir().mkpath(screenshots()));
}

void tst_CameraDialog::init()
{
    m_server = std::make_unique<PipeWireServer>();
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    m_settings = std::make_unique<QTemporaryDir>();
    DeviceEngineConfig config;
    config.settingsFolder = m_settings->path();
    config.cacheFolder = m_settings->path();
    EngineRegistry::install(std::make_unique<DeviceEngine>(config));
}

void tst_CameraDialog::cleanupTestCase()
{
    keepSheet();
}

void tst_CameraDialog::cleanup()
{
    EnvCheckAgent::release();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EngineRegistry::uninstall();
    QVERIFY(FileWriter::waitForWritten(LongMs));
    m_server.reset();
}

void tst_CameraDialog::tellsTwoCamerasApart()
{
    const auto a = plug(NameA, QStringLiteral("Front camera"));
    const auto b = plug(NameB, QStringLiteral("Desk camera"),
                        {QStringLiteral("--color"), QStringLiteral("28a028")});
    runDialog([this] {
        openCameraPage();
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        const QStringList expected{QStringLiteral("Front camera"), QStringLiteral("Desk camera"),
                                   qtTrId("ID_Engine_NoCamera")};
        QCOMPARE(entries(), expected);
        QTRY_VERIFY(child<QPushButton>("Btn_CanSee")->isEnabled());
        keepPicture("camera-first");
        chooseInPopup(QStringLiteral("Desk camera"));
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Green), LongMs);
        QCOMPARE(child<QComboBox>("cb_vd_name")->currentText(), QStringLiteral("Desk camera"));
        keepPicture("camera-second");
    });
}

void tst_CameraDialog::followsPlugsWithThePopupOpen()
{
    auto a = plug(NameA, QStringLiteral("Front camera"));
    std::unique_ptr<CameraProcess> b;
    runDialog([this, &a, &b] {
        openCameraPage();
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        auto* const box = child<QComboBox>("cb_vd_name");
        box->showPopup();
        b = plug(NameB, QStringLiteral("Desk camera"));
        QTRY_COMPARE(box->count(), 3);
        QVERIFY(!box->view()->isVisible());
        QTRY_COMPARE(box->currentText(), QStringLiteral("Front camera"));

        box->showPopup();
        a->kill();
        QTRY_COMPARE(box->count(), 2);
        QVERIFY(!box->view()->isVisible());
        QTRY_COMPARE(box->currentIndex(), -1); // the chosen one is away and stays chosen
        QVERIFY(!child<QPushButton>("Btn_CanSee")->isVisible());
        QTRY_VERIFY(previewShows(Background));
        keepPicture("camera-unplugged");

        a = plug(NameA, QStringLiteral("Front camera"));
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        QTRY_COMPARE(box->currentText(), QStringLiteral("Front camera"));
        QVERIFY(child<QPushButton>("Btn_CanSee")->isVisible());
    });
}

void tst_CameraDialog::showsEveryDeviceState_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN");
}

void tst_CameraDialog::showsEveryDeviceState()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(translation(language)));
    QCoreApplication::installTranslator(&translator);
    std::unique_ptr<CameraProcess> camera;
    runDialog([this, &camera] {
        openCameraPage();
        QCOMPARE(entries(), QStringList(qtTrId("ID_Engine_NoCamera")));
        QVERIFY(!child<QPushButton>("Btn_CanSee")->isVisible());
        QVERIFY(balloon() == nullptr);
        keepState();

        camera = plug(NameA, QStringLiteral("Front camera"), {QStringLiteral("--stalled")});
        QTRY_COMPARE(entries().size(), 2);
        QTRY_VERIFY(child<QPushButton>("Btn_CanSee")->isVisible());
        QVERIFY(!child<QPushButton>("Btn_CanSee")->isEnabled());
        keepState();

        camera->command("resume");
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        QTRY_VERIFY(child<QPushButton>("Btn_CanSee")->isEnabled());
        keepState();

        chooseInPopup(qtTrId("ID_Engine_NoCamera"));
        QTRY_VERIFY(!child<QPushButton>("Btn_CanSee")->isVisible());
        QTRY_VERIFY(previewShows(Background));
        QVERIFY(balloon() != nullptr);
        keepState();

        chooseInPopup(QStringLiteral("Front camera"));
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        camera->kill();
        QTRY_COMPARE(child<QComboBox>("cb_vd_name")->currentIndex(), -1);
        QTRY_VERIFY(previewShows(Background));
        QVERIFY(balloon() == nullptr);
        keepState();
    });
    QVERIFY(balloon() == nullptr);
}

void tst_CameraDialog::leavesAHungCameraAtOnce()
{
    const auto camera = plug(NameA, QStringLiteral("Front camera"));
    QElapsedTimer leaving;
    runDialog([this, &camera, &leaving] {
        QTRY_COMPARE_WITH_TIMEOUT(entries().size(), 2, LongMs);
        camera->sendSignal(SIGSTOP);
        openCameraPage();
        QTest::qWait(500);
        leaving.start();
        openSystemPage();
        QVERIFY(leaving.restart() < MaxLeaveMs);
        openCameraPage();
        QTest::qWait(500);
        leaving.start();
    });
    QVERIFY(leaving.elapsed() < MaxLeaveMs + 100); // with the question answered in between
}

void tst_CameraDialog::neverBlocksWhileServerIsFrozen_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("opening the dialog") << 0;
    QTest::newRow("showing the page") << 1;
    QTest::newRow("looking at the picture") << 2;
    QTest::newRow("choosing another camera") << 3;
    QTest::newRow("leaving the page") << 4;
    QTest::newRow("closing the dialog") << 5;
}

void tst_CameraDialog::neverBlocksWhileServerIsFrozen()
{
    QFETCH(int, step);
    const auto a = plug(NameA, QStringLiteral("Front camera"));
    const auto b = plug(NameB, QStringLiteral("Desk camera"),
                        {QStringLiteral("--color"), QStringLiteral("28a028")});
    // The first page, its texts and fonts take their time whatever the cameras do.
    runDialog([this] { openCameraPage(); });
    int next = 0;
    qint64 gap = 0;
    qint64 machineGap = 0;
    std::optional<MachineGap> machine;
    std::optional<GapMeter> gaps;
    const auto thawLater = [&] {
        QTest::qWait(FreezeMs);
        gap = gaps->longestMs();
        machineGap = machine->longestMs();
        gaps.reset();
        machine.reset();
        m_server->thaw();
    };
    const auto frozen = [&](const Script& action) {
        if (next++ != step) {
            action();
            return;
        }
        m_server->freeze();
        machine.emplace();
        gaps.emplace();
        action();
        thawLater();
    };
    const auto whileOpen = [&] {
        QTRY_COMPARE_WITH_TIMEOUT(entries().size(), 3, LongMs);
        frozen([this] { openCameraPage(); });
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        frozen([] {});
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        frozen([this] { child<QComboBox>("cb_vd_name")->setCurrentIndex(1); });
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Green), LongMs);
        frozen([this] { openSystemPage(); });
        openCameraPage();
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Green), LongMs);
        if (step == 5) {
            m_server->freeze();
            machine.emplace();
            gaps.emplace();
        }
    };
    if (step == 0) {
        m_server->freeze();
        runDialog([&] {
            machine.emplace(); // the window is there; what follows is the cameras' doing
            gaps.emplace();
            openCameraPage();
            thawLater();
            QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        });
    } else {
        next = 1;
        runDialog(whileOpen);
        if (step == 5) {
            thawLater();
        }
    }
    qInfo("longest gap %lld ms, the machine's own %lld ms", gap, machineGap);
    QVERIFY(gap > 0);
    QVERIFY(gap < MaxGapMs + machineGap);
}

std::unique_ptr<CameraProcess> tst_CameraDialog::plug(const QString& name,
                                                      const QString& description,
                                                      const QStringList& arguments) const
{
    auto result = std::make_unique<CameraProcess>(name, description, arguments);
    if (!QTest::qWaitFor([&] { return result->output().contains("paused"); }, LongMs)) {
        qWarning() << "The virtual camera isn't ready:" << result->output();
    }
    return result;
}

// Opens the dialog, runs the script in it, closes it and says yes to the question.
void tst_CameraDialog::runDialog(const Script& script)
{
    bool isDone = false;
    const QuestionAnswerer answerer(QMessageBox::Yes);
    QTimer::singleShot(0, this, [&] {
        m_dialog = qobject_cast<LumCustomNormalDialog*>(QApplication::activeModalWidget());
        QVERIFY(m_dialog);
        script();
        isDone = true;
        m_dialog->close();
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    QVERIFY(isDone);
    QVERIFY(!m_dialog);
}

template <typename T>
T* tst_CameraDialog::child(const char* name) const
{
    T* const result = m_dialog->findChild<T*>(QLatin1String(name));
    if (result == nullptr) {
        qFatal("the dialog has no %s", name);
    }
    return result;
}

void tst_CameraDialog::openCameraPage() const
{
    QTest::mouseClick(child<QWidget>("label_CameraCheck"), Qt::LeftButton);
}

void tst_CameraDialog::openSystemPage() const
{
    QTest::mouseClick(child<QWidget>("label_SystemCheck"), Qt::LeftButton);
}

void tst_CameraDialog::chooseInPopup(const QString& text) const
{
    auto* const box = child<QComboBox>("cb_vd_name");
    box->showPopup();
    QAbstractItemView* const view = box->view();
    const QModelIndex index = box->model()->index(box->findText(text), 0);
    const QPoint place = view->visualRect(index).center();
    QTest::mouseMove(view->viewport(), place);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
}

bool tst_CameraDialog::previewShows(QRgb colour) const
{
    const QImage picture = child<QWidget>("f_video_player")->grab().toImage();
    int hits = 0;
    constexpr int Places = 9; // over the middle, which a picture of any shape covers
    for (int i = 0; i < Places; ++i) {
        const int x = picture.width() * (Places + i) / (3 * Places);
        hits += isNear(picture.pixel(x, picture.height() / 2), colour) ? 1 : 0;
    }
    return hits > Places / 2;
}

QStringList tst_CameraDialog::entries() const
{
    const auto* const box = child<QComboBox>("cb_vd_name");
    QStringList result;
    for (int i = 0; i < box->count(); ++i) {
        result << box->itemText(i);
    }
    return result;
}

void tst_CameraDialog::keepPicture(const char* name) const
{
    QVERIFY(m_dialog->grab().save(screenshots() + QLatin1Char('/') + QLatin1String(name) +
                                  QStringLiteral(".png")));
}

const QWidget* tst_CameraDialog::balloon() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto it = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget* window) {
        return window->isVisible() && qobject_cast<const LumToolTip*>(window) != nullptr;
    });
    return it == windows.cend() ? nullptr : *it;
}

void tst_CameraDialog::keepState()
{
    QPixmap picture = m_dialog->grab();
    if (const QWidget* tip = balloon()) {
        QPainter(&picture).drawPixmap(tip->pos() - m_dialog->pos(),
                                      const_cast<QWidget*>(tip)->grab());
    }
    m_states.push_back(picture.toImage().scaledToWidth(StateWidth, Qt::SmoothTransformation));
}

// All states in one picture.
void tst_CameraDialog::keepSheet() const
{
    if (m_states.empty()) {
        return; // only other cases were asked for
    }
    const QSize step = m_states.front().size() + QSize(StateGap, StateGap);
    const int rows = static_cast<int>(m_states.size()) / StateCount;
    QCOMPARE(static_cast<int>(m_states.size()), rows * StateCount);
    QImage sheet(StateCount * step.width() + StateGap, rows * step.height() + StateGap,
                 QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    for (int i = 0; i < rows * StateCount; ++i) {
        painter.drawImage(StateGap + i % StateCount * step.width(),
                          StateGap + i / StateCount * step.height(),
                          m_states[static_cast<std::size_t>(i)]);
    }
    painter.end();
    QVERIFY(sheet.save(screenshots() + QStringLiteral("/camera-states.png")));
}

QTEST_MAIN(tst_CameraDialog)
#include "tst_CameraDialog.moc"
