// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CameraPage.h"
#include "pages/HeadsetPage.h"
#include "pages/MicrophonePage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/DevicePageTools.h"

#include <CommEngine/HardwareMgrInterface.h>

#include <QPushButton>

#include <functional>

using DevicePageTools::entries;

enum class Page { Camera, Speaker, Microphone };

Q_DECLARE_METATYPE(Page)

namespace {

// What the engine below says of its devices, on whatever page.
struct Devices
{
    std::vector<std::pair<QString, QString>> list; // ids and names
    QString current;
    QStringList chosen;             // by the page
    std::function<void()> tellNews; // that the list, the choice and the state changed
    int callsUntilNews = 0;         // tells them inside of the last of these; 0: of none
};

Devices s_devices;

void tellNewsOf(LumCamera& camera)
{
    Q_EMIT camera.deviceListChanged();
    Q_EMIT camera.currentDeivceChanged(s_devices.current);
    Q_EMIT camera.workStateChanged(s_devices.current, true);
}

void tellNewsOf(LumSpeaker& speaker)
{
    Q_EMIT speaker.deviceListChanged();
    Q_EMIT speaker.currentDeviceChanged(s_devices.current, true);
    Q_EMIT speaker.volumeChanged(speaker.getVolume());
    Q_EMIT speaker.workStateChanged(true);
}

void tellNewsOf(LumMicrophone& microphone)
{
    Q_EMIT microphone.deviceListChanged();
    Q_EMIT microphone.currentMicChanged(s_devices.current, true, true);
    Q_EMIT microphone.volumeChanged(microphone.getVolume());
    Q_EMIT microphone.workStateChanged(s_devices.current, true);
}

void called()
{
    if (s_devices.callsUntilNews > 0 && --s_devices.callsUntilNews == 0) {
        s_devices.tellNews();
    }
}

template <typename Device>
void called(const Device* device)
{
    s_devices.tellNews = [device] { tellNewsOf(*const_cast<Device*>(device)); };
    called();
}

template <typename Device>
void chosen(const Device* device, const QString& id)
{
    s_devices.chosen.append(id);
    s_devices.current = id;
    called(device);
}

bool isAnyCurrent()
{
    return s_devices.current != HardwareMgrInterface::NoneDevice;
}

} // namespace

// An engine of another make: these take the place of the bundled one's functions. Its boxes have no
// line edit to begin with.
QCustomComboBox::QCustomComboBox(QWidget* parent, bool /*isThemed*/) : QComboBox(parent)
{
}

void QCustomComboBox::setEnableClickLineEdit(bool enabled)
{
    setEditable(enabled);
    if (enabled) {
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        lineEdit()->installEventFilter(this);
    }
}

std::map<QString, QString> LumCamera::getDeviceList() const
{
    called(this);
    return {s_devices.list.begin(), s_devices.list.end()};
}

QString LumCamera::getNoneDeviceText() const
{
    called(this);
    return QStringLiteral("none");
}

QString LumCamera::getCurrentDevice() const
{
    called(this);
    return s_devices.current;
}

LumCamera::operator bool() const
{
    called(this);
    return isAnyCurrent();
}

bool LumCamera::workWell() const
{
    called(this);
    return true;
}

void LumCamera::setCurrentDevice(const QString& id, bool /*isTemporary*/, bool /*isByUser*/)
{
    chosen(this, id);
}

std::vector<std::pair<QString, QString>> LumSpeaker::getDeviceList(bool /*withVirtual*/)
{
    called();
    return s_devices.list;
}

QString LumSpeaker::getNoneDeviceText(bool /*listIsEmpty*/)
{
    called();
    return QStringLiteral("none");
}

QString LumSpeaker::getCurrentDevice() const
{
    called(this);
    return s_devices.current;
}

int LumSpeaker::getVolume() const
{
    called(this);
    return 50;
}

bool LumSpeaker::isWorking() const
{
    called(this);
    return true;
}

void LumSpeaker::setCurrentDevice(const QString& id)
{
    chosen(this, id);
}

std::map<QString, _LumAudioInDevInfo> LumMicrophone::getDeviceList() const
{
    called(this);
    std::map<QString, _LumAudioInDevInfo> result;
    for (const auto& [id, name] : s_devices.list) {
        result.insert({id, {name}});
    }
    return result;
}

QString LumMicrophone::getNoneDeviceText() const
{
    called(this);
    return QStringLiteral("none");
}

QString LumMicrophone::getCurrentDevice() const
{
    called(this);
    return s_devices.current;
}

LumMicrophone::operator bool() const
{
    called(this);
    return isAnyCurrent();
}

bool LumMicrophone::workWell() const
{
    called(this);
    return true;
}

void LumMicrophone::setCurrentDevice(const QString& id, bool /*isByUser*/, bool /*isTemporary*/)
{
    chosen(this, id);
}

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

private:
    static void addPages();
    void makePage();
    QStringList expectedEntries() const;

    std::unique_ptr<CheckPage> m_page;
    QCustomComboBox* m_combo = nullptr;
};

void tst_DevicePagesForeignEngine::init()
{
    s_devices = {};
    s_devices.list = {{"a", "One"}, {"b", "Two"}};
    s_devices.current = QStringLiteral("a");
    Platform::ScriptedEngine::install();
}

void tst_DevicePagesForeignEngine::cleanup()
{
    s_devices.callsUntilNews = 0;
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
    for (const auto& [id, name] : s_devices.list) {
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
    s_devices.list = {{"a", "Same"}, {"b", "Same"}, {"c", "Same"}};
    s_devices.current = QStringLiteral("b");
    makePage();
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(m_combo->currentIndex(), 1);
    m_combo->setCurrentIndex(2);
    QCOMPARE(s_devices.chosen, QStringList{"c"});
    s_devices.tellNews();
    QCOMPARE(m_combo->currentIndex(), 2);
    QCOMPARE(s_devices.chosen, QStringList{"c"});
}

// Only its list can hold an id twice.
void tst_DevicePagesForeignEngine::sameSpeakerTwice()
{
    s_devices.list = {{"a", "One"}, {"b", "Two"}, {"b", "Two again"}, {"b", "Two"}};
    m_page = std::make_unique<HeadsetPage>();
    m_combo = m_page->findChild<QCustomComboBox*>();
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(m_combo->currentIndex(), 0);
    m_combo->setCurrentIndex(2);
    QCOMPARE(s_devices.chosen, QStringList{"b"});
    s_devices.tellNews();
    QCOMPARE(m_combo->currentData().toString(), QString("b"));
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(s_devices.chosen, QStringList{"b"});
}

void tst_DevicePagesForeignEngine::newsComeTwice()
{
    makePage();
    s_devices.list.push_back({"c", "Three"});
    s_devices.current = QStringLiteral("c");
    s_devices.tellNews();
    s_devices.tellNews();
    QCOMPARE(entries(*m_combo), expectedEntries());
    QCOMPARE(m_combo->currentIndex(), 2);
    QCOMPARE(s_devices.chosen, QStringList());
    m_combo->setCurrentIndex(0);
    QCOMPARE(s_devices.chosen, QStringList{"a"});
}

// Whichever call they come from, filling the list and following the choice never choose, and the
// user chooses once.
void tst_DevicePagesForeignEngine::newsComeInsideCalls()
{
    constexpr int MostCalls = 20;
    makePage();
    s_devices.list.push_back({"c", "Three"});
    const auto check = [this](int call, const QStringList& chosen, int index) {
        s_devices.callsUntilNews = 0;
        const QByteArray where = "inside of call " + QByteArray::number(call);
        QVERIFY2(entries(*m_combo) == expectedEntries(), where);
        QVERIFY2(s_devices.chosen == chosen, where);
        QVERIFY2(m_combo->currentIndex() == index, where);
    };
    for (int call = 1; call <= MostCalls; ++call) {
        s_devices.chosen.clear();
        s_devices.current = QStringLiteral("c");
        s_devices.callsUntilNews = call;
        s_devices.tellNews();
        check(call, {}, 2);
        s_devices.callsUntilNews = call;
        m_combo->setCurrentIndex(1);
        check(call, {"b"}, 1);
        s_devices.callsUntilNews = call;
        m_page->hide();
        m_page->show();
        check(call, {"b"}, 1);
    }
}

void tst_DevicePagesForeignEngine::newsComeAfterHiding()
{
    makePage();
    m_page->hide();
    s_devices.current = HardwareMgrInterface::NoneDevice;
    s_devices.tellNews();
    for (const LumToolTip* balloon : balloons()) {
        QVERIFY(!balloon->isVisible());
    }
    QCOMPARE(s_devices.chosen, QStringList());
    s_devices.current = QStringLiteral("b");
    s_devices.tellNews();
    m_page->show();
    QCOMPARE(m_combo->currentData().toString(), QString("b"));
}

QTEST_MAIN(tst_DevicePagesForeignEngine)
#include "tst_DevicePagesForeignEngine.moc"
