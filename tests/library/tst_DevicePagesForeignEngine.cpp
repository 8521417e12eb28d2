// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CameraPage.h"
#include "pages/HeadsetPage.h"
#include "pages/MicrophonePage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/library/ForeignDevices.h"
#include "tests/support/DevicePageTools.h"

#include <CommEngine/HardwareMgrInterface.h>

using DevicePageTools::entries;
using TestSupport::ForeignDevices;

enum class Page { Camera, Speaker, Microphone };

Q_DECLARE_METATYPE(Page)

class tst_DevicePagesForeignEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void boxWithALateLineEdit_data() { addPages(); }
    void boxWithALateLineEdit();
    void tabsPastALateLineEdit_data();
    void tabsPastALateLineEdit();
    void sameNameTwice_data() { addPages(); }
    void sameNameTwice();
    void sameSpeakerTwice();
    void newsComeTwice_data() { addPages(); }
    void newsComeTwice();
    void newsComeInsideCalls_data() { addPages(); }
    void newsComeInsideCalls();
    void newsComeAfterHiding_data() { addPages(); }
    void newsComeAfterHiding();
    void newsComeWhileThePageDies_data() { addPages(); }
    void newsComeWhileThePageDies();

private:
    static void addPages();
    static ForeignDevices& devices() { return ForeignDevices::instance(); }
    void makePage();
    QStringList expectedEntries() const;

    std::unique_ptr<CheckPage> m_page;
    QCustomComboBox* m_combo = nullptr;
};

void tst_DevicePagesForeignEngine::init()
{
    devices() = {};
    devices().list = {{"a", "One"}, {"b", "Two"}};
    devices().current = QStringLiteral("a");
    Platform::ScriptedEngine::install();
}

void tst_DevicePagesForeignEngine::cleanup()
{
    devices().callsUntilNews = 0;
    m_page.reset();
    Platform::EngineRegistry::uninstall();
}

void tst_DevicePagesForeignEngine::addPages()
{
    QTest::addColumn<Page>("page");
    QTest::newRow("camera") << Page::Camera;
    QTest::newRow("speaker") << Page::Speaker;
    QTest::newRow("microphone") << Page::Microphone;
}

void tst_DevicePagesForeignEngine::makePage()
{
    QFETCH(Page, page);
    switch (page) {
    case Page::Camera:
        m_page = std::make_unique<CameraPage>();
        break;
    case Page::Speaker:
        m_page = std::make_unique<HeadsetPage>();
        break;
    case Page::Microphone:
        m_page = std::make_unique<MicrophonePage>();
        break;
    }
    m_combo = m_page->findChild<QCustomComboBox*>();
    m_page->show();
}

// The speaker page lists no entry for none beside devices.
QStringList tst_DevicePagesForeignEngine::expectedEntries() const
{
    QStringList result;
    for (const auto& [id, name] : devices().list) {
        result.append(name + '=' + id);
    }
    if (!qobject_cast<HeadsetPage*>(m_page.get())) {
        result.append("none=" + HardwareMgrInterface::NoneDevice);
    }
    return result;
}

void tst_DevicePagesForeignEngine::boxWithALateLineEdit()
{
    makePage();
    DevicePageTools::isSetUp(m_combo, m_page.get());
    QVERIFY(!m_combo->accessibleName().isEmpty());
    QCOMPARE(m_combo->lineEdit()->accessibleName(), m_combo->accessibleName());
    QCOMPARE(m_combo->lineEdit()->text(), QString("One"));
    DevicePageTools::ignoresWheelAndArrows(m_combo);
}

void tst_DevicePagesForeignEngine::tabsPastALateLineEdit_data()
{
    QTest::addColumn<Page>("page");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("camera") << Page::Camera << QStringList{"QPushButton", "Btn_CanSee", "Btn_Cant"};
    QTest::newRow("speaker") << Page::Speaker
                             << QStringList{"tb_play_test_sound", "QSlider", "Btn_CanHear"};
    QTest::newRow("microphone") << Page::Microphone
                                << QStringList{"QSlider", "Btn_Mic_Yes", "Btn_Mic_No"};
}

void tst_DevicePagesForeignEngine::tabsPastALateLineEdit()
{
    QFETCH(QStringList, stops);
    makePage();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    m_combo->setFocus();
    const auto stopAfter = [this](Qt::Key key) {
        QTest::keyClick(m_page->windowHandle(), key);
        const QWidget* focus = m_page->focusWidget();
        const QString name = focus->objectName();
        return name.isEmpty() ? QString(focus->metaObject()->className()) : name;
    };
    for (const QString& stop : qAsConst(stops)) {
        QCOMPARE(stopAfter(Qt::Key_Tab), stop);
    }
    QCOMPARE(stopAfter(Qt::Key_Tab), m_combo->objectName()); // around the end
    std::reverse(stops.begin(), stops.end());
    for (const QString& stop : qAsConst(stops)) {
        QCOMPARE(stopAfter(Qt::Key_Backtab), stop);
    }
    QCOMPARE(stopAfter(Qt::Key_Backtab), m_combo->objectName());
}

void tst_DevicePagesForeignEngine::sameNameTwice()
{
    devices().list = {{"a", "Same"}, {"b", "Same"}, {"c", "Same"}};
    devices().current = QStringLiteral("b");
    makePage();
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(m_combo->currentIndex(), 1);
    m_combo->setCurrentIndex(2);
    QCOMPARE(devices().chosen, QStringList{"c"});
    devices().tellNews();
    QCOMPARE(m_combo->currentIndex(), 2);
    QCOMPARE(devices().chosen, QStringList{"c"});
}

// Only its list can hold an id twice.
void tst_DevicePagesForeignEngine::sameSpeakerTwice()
{
    devices().list = {{"a", "One"}, {"b", "Two"}, {"b", "Two again"}, {"b", "Two"}};
    m_page = std::make_unique<HeadsetPage>();
    m_combo = m_page->findChild<QCustomComboBox*>();
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(m_combo->currentIndex(), 0);
    m_combo->setCurrentIndex(2);
    QCOMPARE(devices().chosen, QStringList{"b"});
    devices().tellNews();
    QCOMPARE(m_combo->currentData().toString(), QString("b"));
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(devices().chosen, QStringList{"b"});
}

void tst_DevicePagesForeignEngine::newsComeTwice()
{
    makePage();
    devices().list.push_back({"c", "Three"});
    devices().current = QStringLiteral("c");
    devices().tellNews();
    devices().tellNews();
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(m_combo->currentIndex(), 2);
    QCOMPARE(devices().chosen, QStringList());
    m_combo->setCurrentIndex(0);
    QCOMPARE(devices().chosen, QStringList{"a"});
}

// Whichever call they come from, filling the list and following the choice never choose, and the
// user chooses once.
void tst_DevicePagesForeignEngine::newsComeInsideCalls()
{
    constexpr int MostCalls = 20;
    makePage();
    devices().list.push_back({"c", "Three"});
    const auto check = [this](int call, const QStringList& chosen, int index) {
        devices().callsUntilNews = 0;
        const QByteArray where = "inside of call " + QByteArray::number(call);
        QVERIFY2(entries(*m_combo) == expectedEntries(), where);
        QVERIFY2(devices().chosen == chosen, where);
        QVERIFY2(m_combo->currentIndex() == index, where);
    };
    for (int call = 1; call <= MostCalls; ++call) {
        devices().chosen.clear();
        devices().current = QStringLiteral("c");
        devices().callsUntilNews = call;
        devices().tellNews();
        check(call, {}, 2);
        devices().callsUntilNews = call;
        m_combo->setCurrentIndex(1);
        check(call, {"b"}, 1);
        devices().callsUntilNews = call;
        m_page->hide();
        m_page->show();
        check(call, {"b"}, 1);
    }
}

void tst_DevicePagesForeignEngine::newsComeAfterHiding()
{
    makePage();
    m_page->hide();
    devices().current = HardwareMgrInterface::NoneDevice;
    devices().tellNews();
    for (const LumToolTip* balloon : balloons()) {
        QVERIFY(!balloon->isVisible());
    }
    QCOMPARE(devices().chosen, QStringList());
    devices().current = QStringLiteral("b");
    devices().tellNews();
    m_page->show();
    QCOMPARE(m_combo->currentData().toString(), QString("b"));
}

// Also a visible page: devices that are closed with it say so.
void tst_DevicePagesForeignEngine::newsComeWhileThePageDies()
{
    makePage();
    devices().isTellingLastNews = true;
    m_page.reset();
    QCOMPARE(devices().lastNewsTold, 1);
    QCOMPARE(devices().chosen, QStringList());
}

QTEST_MAIN(tst_DevicePagesForeignEngine)
#include "tst_DevicePagesForeignEngine.moc"
