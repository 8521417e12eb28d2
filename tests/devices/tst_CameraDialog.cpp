// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DeviceDialog.h"
#include "tests/devices/DialogCameras.h"
#include "tests/support/GapMeter.h"
#include "tests/support/PopupChoice.h"
#include "widgets/LumToolTip.h"

#include <QComboBox>
#include <QPainter>
#include <QPushButton>
#include <QtTest>
#include <algorithm>
#include <optional>

using namespace TestSupport;

namespace {

constexpr int LongMs = 8000;
// Where nothing tells how long a thread waited for a processor, a gap counts only if it comes
// again.
#ifdef Q_OS_WIN
constexpr int Attempts = 4;
#else
constexpr int Attempts = 1;
#endif
constexpr int StateCount = 5;
constexpr int StateWidth = 410;
constexpr int StateGap = 8;
const QRgb Red = DialogCameras::Red;
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

// ENVCHECK_FREEZE_MS may make it longer.
int freezeMs()
{
    constexpr int Usual = 1000;
    return std::max(Usual, qEnvironmentVariableIntValue("ENVCHECK_FREEZE_MS"));
}

} // namespace

// The real dialog on the real engine, with virtual cameras.
class tst_CameraDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase();
    void init();
    void cleanup();

    void tellsTwoCamerasApart();
    void followsPlugsWithThePopupOpen();
    void showsEveryDeviceState_data();
    void showsEveryDeviceState();
    void leavesHungCameraAtOnce();
    void neverBlocksWhileServerIsFrozen_data();
    void neverBlocksWhileServerIsFrozen();

private:
    using Script = std::function<void()>;

    void measureGap(const Script& action);
    void leaveHungCamera();
    void freezeAt(int step);
    void runDialog(const Script& script) { QVERIFY(m_dialog->run(script)); }
    template <typename T>
    T* child(const char* name) const
    {
        return m_dialog->child<T>(name);
    }
    void openCameraPage() const { m_dialog->click("label_CameraCheck"); }
    void openSystemPage() const { m_dialog->click("label_SystemCheck"); }
    QComboBox& list() const { return *child<QComboBox>("cb_vd_name"); }
    bool previewShows(QRgb color) const;
    QStringList entries() const;
    const QWidget* balloon() const; // null if none is visible
    void keepFrame(const char* name) const { QVERIFY(m_dialog->keepFrame(QLatin1String(name))); }
    void keepState();
    void keepSheet() const;

    std::unique_ptr<DialogCameras> m_cameras;
    std::unique_ptr<DeviceDialog> m_dialog;
    qint64 m_gap = 0;             // the longest of a measurement
    std::vector<QImage> m_states; // a row for each language
};

void tst_CameraDialog::init()
{
    m_cameras = std::make_unique<DialogCameras>();
    QVERIFY2(m_cameras->start(), qPrintable(m_cameras->problem()));
    m_dialog = std::make_unique<DeviceDialog>(QStringLiteral("en"));
}

void tst_CameraDialog::cleanupTestCase()
{
    keepSheet();
}

void tst_CameraDialog::cleanup()
{
    m_dialog.reset();
    m_cameras.reset();
}

void tst_CameraDialog::tellsTwoCamerasApart()
{
    m_cameras->plug(NameA, QStringLiteral("Front camera"));
    m_cameras->plug(NameB, QStringLiteral("Desk camera"), Green);
    runDialog([this] {
        openCameraPage();
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        const QStringList expected{QStringLiteral("Front camera"), QStringLiteral("Desk camera"),
                                   qtTrId("ID_Engine_NoCamera")};
        QCOMPARE(entries(), expected);
        QTRY_VERIFY(child<QPushButton>("Btn_CanSee")->isEnabled());
        keepFrame("camera-first");
        chooseInPopup(list(), QStringLiteral("Desk camera"));
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Green), LongMs);
        QCOMPARE(child<QComboBox>("cb_vd_name")->currentText(), QStringLiteral("Desk camera"));
        keepFrame("camera-second");
    });
}

void tst_CameraDialog::followsPlugsWithThePopupOpen()
{
    m_cameras->plug(NameA, QStringLiteral("Front camera"));
    runDialog([this] {
        openCameraPage();
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        auto* const box = child<QComboBox>("cb_vd_name");
        box->showPopup();
        m_cameras->plug(NameB, QStringLiteral("Desk camera"));
        QTRY_COMPARE(box->count(), 3);
        QVERIFY(!box->view()->isVisible());
        QTRY_COMPARE(box->currentText(), QStringLiteral("Front camera"));

        box->showPopup();
        m_cameras->unplug(NameA);
        QTRY_COMPARE(box->count(), 2);
        QVERIFY(!box->view()->isVisible());
        QTRY_COMPARE(box->currentIndex(), -1); // the unplugged camera stays chosen
        QVERIFY(!child<QPushButton>("Btn_CanSee")->isVisible());
        QTRY_VERIFY(previewShows(Background));
        keepFrame("camera-unplugged");

        m_cameras->plug(NameA, QStringLiteral("Front camera"));
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
    m_dialog.reset();
    m_dialog = std::make_unique<DeviceDialog>(language);
    runDialog([this] {
        openCameraPage();
        QCOMPARE(entries(), QStringList(qtTrId("ID_Engine_NoCamera")));
        QVERIFY(!child<QPushButton>("Btn_CanSee")->isVisible());
        QVERIFY(!balloon());
        keepState();

        m_cameras->plug(NameA, QStringLiteral("Front camera"), Red, DialogCameras::Start::Stalled);
        QTRY_COMPARE(entries().size(), 2);
        QTRY_VERIFY(child<QPushButton>("Btn_CanSee")->isVisible());
        QVERIFY(!child<QPushButton>("Btn_CanSee")->isEnabled());
        keepState();

        m_cameras->resume(NameA);
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        QTRY_VERIFY(child<QPushButton>("Btn_CanSee")->isEnabled());
        keepState();

        chooseInPopup(list(), qtTrId("ID_Engine_NoCamera"));
        QTRY_VERIFY(!child<QPushButton>("Btn_CanSee")->isVisible());
        QTRY_VERIFY(previewShows(Background));
        QVERIFY(balloon());
        keepState();

        chooseInPopup(list(), QStringLiteral("Front camera"));
        QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        m_cameras->unplug(NameA);
        QTRY_COMPARE(child<QComboBox>("cb_vd_name")->currentIndex(), -1);
        QTRY_VERIFY(previewShows(Background));
        QVERIFY(!balloon());
        keepState();
    });
    QVERIFY(!balloon());
}

void tst_CameraDialog::leavesHungCameraAtOnce()
{
    measureGap([this] { leaveHungCamera(); });
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
    measureGap([this, step] { freezeAt(step); });
}

// The action sets m_gap.
void tst_CameraDialog::measureGap(const Script& action)
{
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        if (attempt > 0) {
            cleanup();
            init();
        }
        m_gap = 0;
        action();
        if (QTest::currentTestFailed()) {
            return;
        }
        qInfo("longest gap %lld ms", m_gap);
        QVERIFY(m_gap > 0);
        if (m_gap < MaxGapMs) {
            return;
        }
    }
    QVERIFY(m_gap < MaxGapMs);
}

void tst_CameraDialog::leaveHungCamera()
{
    m_cameras->plug(NameA, QStringLiteral("Front camera"));
    std::optional<GapMeter> gaps;
    runDialog([this, &gaps] {
        QTRY_COMPARE_WITH_TIMEOUT(entries().size(), 2, LongMs);
        m_cameras->hang(NameA);
        openCameraPage();
        QTest::qWait(500);
        gaps.emplace();
        openSystemPage();
        m_gap = gaps->longestMs();
        openCameraPage();
        QTest::qWait(500);
        gaps.emplace();
    });
    QVERIFY(gaps);
    m_gap = std::max(m_gap, gaps->longestMs());
}

void tst_CameraDialog::freezeAt(int step)
{
    m_cameras->plug(NameA, QStringLiteral("Front camera"));
    m_cameras->plug(NameB, QStringLiteral("Desk camera"), Green);
    // Once before: texts and fonts are loaded, which takes time whatever the cameras do.
    runDialog([this] { openCameraPage(); });
    int next = 0;
    std::optional<GapMeter> gaps;
    const auto thawLater = [&] {
        QTest::qWait(freezeMs());
        m_gap = gaps->longestMs();
        gaps.reset();
        m_cameras->thaw();
    };
    const auto frozen = [&](const Script& action) {
        if (next++ != step) {
            action();
            return;
        }
        m_cameras->freeze();
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
            m_cameras->freeze();
            gaps.emplace();
        }
    };
    if (step == 0) {
        m_cameras->freeze();
        runDialog([&] {
            gaps.emplace(); // from now on only the cameras can block
            openCameraPage();
            thawLater();
            QTRY_VERIFY_WITH_TIMEOUT(previewShows(Red), LongMs);
        });
    } else {
        next = 1;
        runDialog(whileOpen);
        if (step == 5 && gaps) {
            thawLater();
        }
    }
}

bool tst_CameraDialog::previewShows(QRgb color) const
{
    const QImage picture = child<QWidget>("f_video_player")->grab().toImage();
    int hits = 0;
    constexpr int Places = 9; // in the middle, which a frame of any aspect covers
    for (int i = 0; i < Places; ++i) {
        const int x = picture.width() * (Places + i) / (3 * Places);
        hits += isNear(picture.pixel(x, picture.height() / 2), color) ? 1 : 0;
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

const QWidget* tst_CameraDialog::balloon() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto it = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget* window) {
        return window->isVisible() && qobject_cast<const LumToolTip*>(window);
    });
    return it == windows.cend() ? nullptr : *it;
}

void tst_CameraDialog::keepState()
{
    const QImage picture = m_dialog->picture().toImage();
    m_states.push_back(picture.scaledToWidth(StateWidth, Qt::SmoothTransformation));
}

// All states in one picture.
void tst_CameraDialog::keepSheet() const
{
    if (m_states.empty()) {
        return; // only other cases were run
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
    QVERIFY(sheet.save(DeviceDialog::screenshot(QStringLiteral("camera-states"))));
}

QTEST_MAIN(tst_CameraDialog)
#include "tst_CameraDialog.moc"
