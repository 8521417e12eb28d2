// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/DesktopPalettes.h"
#include "tests/support/PageTools.h"
#include "tests/support/PaintedContrast.h"
#include "tests/support/TimerTools.h"
#include "widgets/Volume.h"
#include "wizard/CheckPage.h"
#include "wizard/ClickColorLabel.h"
#include "wizard/ContentPage.h"

#include <LumWidgets/LumCustomNormalDialog.h>
#include <LumWidgets/QCustomComboBox.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTableWidget>
#include <QtTest>

using Platform::ScriptedEngine;

namespace {

const QString Passed = "ID_CheckResultPage_Normal";
const QString Failed = "ID_CheckResultPage_Abnormal";
constexpr int MostTabs = 30; // more than any page has stops

QString read(QWidget* widget, QAccessible::Text what)
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(what).trimmed() : QString();
}

QString name(QWidget* widget)
{
    return read(widget, QAccessible::Name);
}

QString description(QWidget* widget)
{
    return read(widget, QAccessible::Description);
}

QVariant value(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->valueInterface()->currentValue();
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyControlHasAName_data();
    void everyControlHasAName();
    void tabOrder_data();
    void tabOrder();
    void stepsTellTheirVerdicts();
    void networkTellsItsVerdicts();
    void levelAndVolumeAreRead();
    void resultTableIsRead();
    void deviceIsChosenByKeyboard();
    void tipsOpenAndCloseByKeyboard();
    void wholeRunByKeyboard();
    void stepStartsAtItsFirstControl_data();
    void stepStartsAtItsFirstControl();
    void resultStartsAtItsButton();
    void stepsAreChosenByKeyboard();
    void focusIsSeen_data();
    void focusIsSeen();
    void pagesAreReadable_data();
    void pagesAreReadable();
    void rightToLeft();

private:
    template <typename T>
    T* child(const char* objectName) const
    {
        return childOf<T>(*m_frame, objectName);
    }
    QWidget* shownPage() const { return child<QStackedWidget>("stackedWidget")->currentWidget(); }
    QString shownPageName() const { return shownPage()->objectName(); }
    void showStep(const char* label) { m_frame->selectStep(child<QWidget>(label)); }
    void type(Qt::Key key) { QTest::keyClick(m_dialog->focusWidget(), key); }
    bool tabTo(const QWidget* widget);
    QString nameOfStop(const QWidget* stop) const;
    void press(const char* button);

    ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<LumCustomNormalDialog> m_dialog;
    QPointer<ContentPage> m_frame;
};

void tst_Accessibility::init()
{
    QString error;
    const auto scenario = Platform::Scenario::read("all-well", &error);
    QVERIFY2(scenario, qPrintable(error));
    m_engine = &ScriptedEngine::install(*scenario);
    m_dialog = std::make_unique<LumCustomNormalDialog>(LumCustomNormalDialog::Type(0), nullptr,
                                                       Qt::WindowFlags(), nullptr, false);
    m_dialog->setTitleText("Check");
    m_frame = new ContentPage(m_dialog.get());
    m_dialog->setCenterWidget(m_frame, false);
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_Accessibility::cleanup()
{
    m_dialog.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(Platform::FileWriter::waitForWritten(5000));
    Platform::EngineRegistry::uninstall();
}

bool tst_Accessibility::tabTo(const QWidget* widget)
{
    for (int i = 0; i < MostTabs; ++i) {
        QWidget* focus = m_dialog->focusWidget();
        if (focus == widget) {
            return true;
        }
        QTest::keyClick(focus ? focus : m_dialog.get(), Qt::Key_Tab);
    }
    return false;
}

void tst_Accessibility::press(const char* button)
{
    auto* target = child<QWidget>(button);
    QTRY_VERIFY2(target->isEnabled() && target->isVisible(), button);
    QVERIFY2(tabTo(target), button);
    type(Qt::Key_Space);
}

void tst_Accessibility::everyControlHasAName_data()
{
    QTest::addColumn<QString>("label");
    for (const char* label :
         {"label_SystemCheck", "label_CameraCheck", "label_SoundCheck", "label_MicCheck", ""}) {
        QTest::newRow(*label ? label : "result") << QString(label);
    }
}

void tst_Accessibility::everyControlHasAName()
{
    QFETCH(QString, label);
    if (label.isEmpty()) {
        m_frame->showResult();
    } else {
        showStep(qPrintable(label));
    }
    int controls = 0;
    const QList<QWidget*> widgets = m_dialog->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const bool isControl =
            widget->focusPolicy() != Qt::NoFocus || qobject_cast<QAbstractButton*>(widget) ||
            qobject_cast<QTableWidget*>(widget) || qobject_cast<ClickColorLabel*>(widget);
        // The parts of a table and of a box are read through them.
        const bool isPart = widget->objectName().startsWith("qt_") ||
                            qobject_cast<QAbstractItemView*>(widget->parentWidget());
        if (widget->isVisible() && isControl && !isPart) {
            ++controls;
            QVERIFY2(!name(widget).isEmpty(),
                     qPrintable(widget->metaObject()->className() + (' ' + widget->objectName())));
        }
    }
    QVERIFY(controls >= 3);
}

void tst_Accessibility::tabOrder_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("camera") << "label_CameraCheck"
                            << QStringList{"cb_vd_name", "ID_CameraPage_ClickHere", "Btn_CanSee",
                                           "Btn_Cant"};
    QTest::newRow("speaker") << "label_SoundCheck" << QStringList{"cb_ad_output_name",
                                                                  "tb_play_test_sound",
                                                                  "item2",
                                                                  "item1",
                                                                  "item0",
                                                                  "item3",
                                                                  "ID_Volume",
                                                                  "ID_HeadsetPage_ClickHere",
                                                                  "Btn_CanHear",
                                                                  "Btn_CantListen"};
    QTest::newRow("microphone") << "label_MicCheck"
                                << QStringList{"cb_ad_input_name", "ID_Volume",
                                               "ID_MicrophonePage_ClickHere", "Btn_Mic_Yes",
                                               "Btn_Mic_No"};
}

QString tst_Accessibility::nameOfStop(const QWidget* stop) const
{
    return stop->objectName().isEmpty() ? stop->accessibleName() : stop->objectName();
}

void tst_Accessibility::tabOrder()
{
    QFETCH(QString, label);
    QFETCH(QStringList, stops);
    showStep(qPrintable(label));
    QStringList found;
    const auto isStop = [this](const QWidget* widget) {
        return shownPage()->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) &&
               !widget->focusProxy() && !nameOfStop(widget).isEmpty() &&
               !qobject_cast<const QAbstractItemView*>(widget);
    };
    QWidget* first = m_dialog.get();
    for (QWidget* widget = first->nextInFocusChain(); widget != first;
         widget = widget->nextInFocusChain()) {
        if (isStop(widget)) {
            found.append(nameOfStop(widget));
        }
    }
    QCOMPARE(found, stops);
}

void tst_Accessibility::stepsTellTheirVerdicts()
{
    auto* system = child<ClickColorLabel>("label_SystemCheck");
    auto* camera = child<ClickColorLabel>("label_CameraCheck");
    QCOMPARE(name(system), QString("ID_CheckResultPage_System"));
    QCOMPARE(description(system), QString());
    QTRY_COMPARE(child<QLabel>("label_ND")->text(), QString("38ms"));
    showStep("label_SoundCheck");
    QCOMPARE(description(system), Passed);
    QCOMPARE(description(camera), Failed); // not answered
    showStep("label_CameraCheck");
    QCOMPARE(description(camera), QString());
    m_frame->showResult();
    QCOMPARE(description(child<ClickColorLabel>("label_MicCheck")), Failed);
}

void tst_Accessibility::networkTellsItsVerdicts()
{
    auto* delay = child<QLabel>("label_ND");
    QTRY_VERIFY(delay->text().endsWith("ms"));
    const QString caption = "ID_NetworkPage_NetworkDelay ";
    QCOMPARE(description(delay), caption + Passed);
    QCOMPARE(description(child<QLabel>("label_CPU")), QString("ID_NetworkPage_CPU"));
    Platform::NetworkFigures bad;
    bad.delayMs = 800;
    bad.lossPercent = 90;
    m_engine->network().setFigures(bad);
    QTRY_COMPARE(description(delay), caption + Failed);
    QCOMPARE(description(child<QLabel>("label_LR")), "ID_NetworkPage_LostRate " + Failed);
}

void tst_Accessibility::levelAndVolumeAreRead()
{
    showStep("label_MicCheck");
    auto* level = child<QWidget>("w_intensity")->findChildren<QProgressBar*>().last();
    QCOMPARE(name(level), QString("ID_Microphone"));
    QTRY_VERIFY(value(level).toInt() > 0); // the scripted voice
    auto* volume = child<QWidget>("microphonePage")->findChild<Volume*>()->findChild<QSlider*>();
    QCOMPARE(name(volume), QString("ID_Volume"));
    QTRY_COMPARE(value(volume).toInt(), 90);
    QVERIFY(tabTo(volume));
    type(Qt::Key_Right);
    QCOMPARE(value(volume).toInt(), 91);
}

void tst_Accessibility::resultTableIsRead()
{
    m_frame->showResult();
    auto* widget = child<QTableWidget>("tableWidget");
    QCOMPARE(name(widget), QString("ID_CheckResultPage_EquipmentAbnormal"));
    auto* table = QAccessible::queryAccessibleInterface(widget)->tableInterface();
    QAccessibleInterface* item = table->cellAt(1, 0);
    QAccessibleInterface* result = table->cellAt(1, 2);
    QCOMPARE(item->text(QAccessible::Name), QString("ID_Camera_Check"));
    QCOMPARE(result->text(QAccessible::Name), Failed);
    QCOMPARE(result->text(QAccessible::Description), QString("ID_CameraPage_NotDetected"));
}

void tst_Accessibility::deviceIsChosenByKeyboard()
{
    showStep("label_CameraCheck");
    auto* combo = child<QCustomComboBox>("cb_vd_name");
    QTRY_COMPARE(combo->currentText(), QString("Front camera"));
    const int first = combo->currentIndex();
    QVERIFY(tabTo(combo));
    type(Qt::Key_F4);
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), first == 0 ? Qt::Key_Down : Qt::Key_Up);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    QTRY_COMPARE(combo->currentText(), QString("Document camera"));
}

void tst_Accessibility::tipsOpenAndCloseByKeyboard()
{
    showStep("label_CameraCheck");
    for (int i = 0; i < MostTabs; ++i) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
        if (m_dialog->focusWidget()->accessibleName() == "ID_CameraPage_ClickHere") {
            break;
        }
    }
    type(Qt::Key_Space);
    QWidget* tips = QApplication::activePopupWidget();
    QVERIFY(tips);
    QCOMPARE(description(m_dialog->focusWidget()), qobject_cast<LumToolTip*>(tips)->text());
    QTest::keyClick(tips, Qt::Key_Escape);
    QVERIFY(!tips->isVisible());
    QVERIFY(m_dialog->isVisible());
}

void tst_Accessibility::wholeRunByKeyboard()
{
    QTRY_COMPARE(child<QLabel>("label_ND")->text(), QString("38ms"));
    press("Btn_Next");
    QCOMPARE(shownPageName(), QString("cameraPage"));
    press("Btn_CanSee");
    QCOMPARE(shownPageName(), QString("headsetPage"));

    press("tb_play_test_sound");
    QCOMPARE(m_dialog->focusWidget(), child<QWidget>("tb_play_test_sound"));
    type(Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), child<QWidget>("item2"));
    const QString played =
        "ID_HeadsetPage_" +
        QFileInfo(m_engine->scriptedSpeakers().playedFiles().last()).completeBaseName();
    for (const char* item : {"item0", "item1", "item2", "item3"}) {
        auto* answer = child<QRadioButton>(item);
        if (answer->text() == played) {
            const Qt::Key arrows[] = {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left};
            for (int i = 0; i < MostTabs && !answer->hasFocus(); ++i) {
                type(arrows[i % 4]);
            }
            QVERIFY2(answer->hasFocus(), item);
            type(Qt::Key_Space);
            QVERIFY(answer->isChecked());
            break;
        }
    }
    press("Btn_CanHear");
    QCOMPARE(shownPageName(), QString("microphonePage"));

    auto* record = child<QAbstractButton>("Btn_Record");
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_R, Qt::AltModifier);
    QTRY_VERIFY(!record->isEnabled());
    for (int i = 0; i < 6; ++i) {
        const auto timers = coarseTimers(shownPage(), 1000);
        QVERIFY(!timers.isEmpty());
        tick(shownPage(), timers.first());
    }
    QVERIFY(record->isEnabled());
    press("Btn_Mic_Yes");

    auto* ok = child<QWidget>("okButton");
    QTRY_VERIFY(ok->isVisible());
    auto* table = QAccessible::queryAccessibleInterface(child<QTableWidget>("tableWidget"));
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(table->tableInterface()->cellAt(row, 2)->text(QAccessible::Name), Passed);
    }
    press("okButton");
    QTRY_VERIFY(!m_dialog->isVisible());
    QTRY_VERIFY(!m_frame);
}

void tst_Accessibility::stepStartsAtItsFirstControl_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("first");
    QTest::newRow("network") << "label_SystemCheck"
                             << "Btn_Next";
    QTest::newRow("camera") << "label_CameraCheck"
                            << "cb_vd_name";
    QTest::newRow("speaker") << "label_SoundCheck"
                             << "cb_ad_output_name";
    QTest::newRow("microphone") << "label_MicCheck"
                                << "cb_ad_input_name";
}

// Wherever the focus was before.
void tst_Accessibility::stepStartsAtItsFirstControl()
{
    QFETCH(QString, label);
    QFETCH(QString, first);
    QCOMPARE(m_dialog->focusWidget()->objectName(), QString("Btn_Next"));
    auto* cross = m_dialog->findChild<QWidget*>("closeButton");
    for (QWidget* before : {cross, child<QWidget>("label_MicCheck")}) {
        before->setFocus();
        QTest::mouseClick(child<QWidget>(qPrintable(label)), Qt::LeftButton);
        QCOMPARE(m_dialog->focusWidget()->objectName(), first);
    }
    type(Qt::Key_Tab);
    QVERIFY(m_dialog->focusWidget()->objectName() != first);
    QTest::mouseClick(child<QWidget>("label_SystemCheck"), Qt::LeftButton);
    QTest::mouseClick(child<QWidget>(qPrintable(label)), Qt::LeftButton);
    QCOMPARE(m_dialog->focusWidget()->objectName(), first);
}

void tst_Accessibility::resultStartsAtItsButton()
{
    m_dialog->findChild<QWidget*>("closeButton")->setFocus();
    m_frame->showResult();
    QCOMPARE(m_dialog->focusWidget()->objectName(), QString("redetectButton"));
    type(Qt::Key_Space);
    QCOMPARE(m_dialog->focusWidget()->objectName(), QString("Btn_Next"));
}

// They come after the page's controls, in the order of the steps.
void tst_Accessibility::stepsAreChosenByKeyboard()
{
    QVERIFY(tabTo(child<QWidget>("label_SystemCheck")));
    for (const char* next : {"label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
        type(Qt::Key_Tab);
        QCOMPARE(m_dialog->focusWidget()->objectName(), QString(next));
    }
    type(Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget()->objectName(), QString("closeButton"));
    const std::pair<const char*, Qt::Key> steps[] = {{"label_CameraCheck", Qt::Key_Space},
                                                     {"label_MicCheck", Qt::Key_Return},
                                                     {"label_SoundCheck", Qt::Key_Enter}};
    for (const auto& [label, key] : steps) {
        QVERIFY2(tabTo(child<QWidget>(label)), label);
        type(key);
        QVERIFY(shownPage()->isAncestorOf(m_dialog->focusWidget()));
    }
    QCOMPARE(shownPageName(), QString("headsetPage"));
}

void tst_Accessibility::focusIsSeen_data()
{
    QTest::addColumn<QString>("palette");
    QTest::addColumn<QString>("label");
    for (const QString& name : TestSupport::desktopPalettes()) {
        for (const char* label :
             {"label_SystemCheck", "label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
            QTest::addRow("%s, %s", qPrintable(name), label) << name << label;
        }
    }
}

// Every stop of the Tab key, on every page.
void tst_Accessibility::focusIsSeen()
{
    QFETCH(QString, palette);
    QFETCH(QString, label);
    const TestSupport::DesktopPalette desktop(palette);
    showStep(qPrintable(label));
    const QWidget* first = m_dialog->focusWidget();
    int stops = 0;
    do {
        QWidget* stop = m_dialog->focusWidget();
        const QRect place(stop->mapTo(m_dialog.get(), QPoint()), stop->size());
        QTest::keyClick(stop, Qt::Key_Shift); // as a key, it shows the ring
        const QImage with = TestSupport::pictureOf(m_dialog.get());
        stop->clearFocus();
        const QImage without = TestSupport::pictureOf(m_dialog.get());
        stop->setFocus(Qt::TabFocusReason);
        const int pixels = TestSupport::focusPixels(with, without, place.adjusted(-4, -4, 4, 4));
        QVERIFY2(pixels >= 2 * (place.width() + place.height()),
                 qPrintable(nameOfStop(stop) + QString(": %1 pixels").arg(pixels)));
        ++stops;
        type(Qt::Key_Tab);
    } while (m_dialog->focusWidget() != first && stops < MostTabs);
    QVERIFY(stops >= 6);
    QVERIFY(stops < MostTabs);
}

void tst_Accessibility::pagesAreReadable_data()
{
    QTest::addColumn<QString>("palette");
    for (const QString& name : TestSupport::desktopPalettes()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

// The desktop's colours change nothing: a list that is open has those of the pages, too.
void tst_Accessibility::pagesAreReadable()
{
    QFETCH(QString, palette);
    const TestSupport::DesktopPalette desktop(palette);
    for (const char* label : {"label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
        showStep(label);
        auto* combo = shownPage()->findChild<QCustomComboBox*>();
        QTRY_VERIFY(combo->count() > 1);
        combo->showPopup();
        QTRY_VERIFY(combo->view()->isVisible());
        QWidget* list = combo->view()->window();
        const QImage picture = TestSupport::pictureOf(list);
        for (int row = 0; row < combo->count(); ++row) {
            const QRect item = combo->view()->visualRect(combo->model()->index(row, 0));
            const QPoint corner = combo->view()->viewport()->mapTo(list, item.topLeft());
            const double ratio = TestSupport::textContrast(
                picture, QRect(corner, item.size()).adjusted(3, 3, -3, -3));
            QVERIFY2(ratio >= Contrast::LeastOfText,
                     qPrintable(QString("%1 row %2: %3").arg(label).arg(row).arg(ratio)));
        }
        combo->hidePopup();
    }
}

// The places are fixed, so captions stay beside what they belong to; the table mirrors its columns.
void tst_Accessibility::rightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    cleanup();
    init();
    const auto left = [this](const QWidget* widget) {
        return widget->mapTo(m_dialog.get(), QPoint()).x();
    };
    QVERIFY(left(child<QLabel>("label_0")) < left(child<QLabel>("label_Account")));
    showStep("label_MicCheck");
    const auto* page = shownPage();
    auto* volume = page->findChild<Volume*>();
    QVERIFY(left(page->findChild<QLabel*>("label")) < left(volume));
    QVERIFY(left(page->findChild<QLabel*>("label_select_mic")) <
            left(child<QWidget>("cb_ad_input_name")));
    auto* table = child<QTableWidget>("tableWidget");
    QVERIFY(table->columnViewportPosition(0) > table->columnViewportPosition(2));
    showStep("label_CameraCheck");
    QTest::keyClick(child<QWidget>("cb_vd_name"), Qt::Key_F4);
    QVERIFY(child<QCustomComboBox>("cb_vd_name")->view()->isVisible());
    child<QCustomComboBox>("cb_vd_name")->hidePopup();
}

QTEST_MAIN(tst_Accessibility)
#include "tst_Accessibility.moc"
