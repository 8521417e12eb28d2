// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraCapture.h"
#include "tests/devices/windowscameras/WindowsCameraTest.h"

#include <QtTest>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int SoonMs = 1500; // less than it takes to look without a message

} // namespace

// Which cameras Windows lists, and what becomes of the list.
class tst_WindowsCameraList : public WindowsCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsCameras();
    void prefersTheFirst();
    void namesThePlace_data();
    void namesThePlace();
    void followsMessages();
    void followsWithoutMessages();
    void keepsTheChosenCameraWhileItIsAway();
    void survivesHostileNames_data();
    void survivesHostileNames();
    void leavesOutWhatHasNoLink();
    void saysWhyThereIsNoList_data();
    void saysWhyThereIsNoList();
    void waitsForAListThatHangs();
    void saysThatWindowsLacksCameras();
    void looksInTheSystemFolderOnly();
};

void tst_WindowsCameraList::listsCameras()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->plug(LinkB, QStringLiteral("Camera"));
    m_cameras->plug(QStringLiteral("\\\\?\\ir#{1}"), QStringLiteral("Integrated IR Camera"));
    makeBackend();
    const QStringList expected{IdA, IdB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), expected, LongMs);
    const QStringList numbered{QStringLiteral("Camera"), QStringLiteral("Camera (2)")};
    QCOMPARE(names(), numbered);
    QTRY_COMPARE(m_backend->currentId(), IdA);
    QCOMPARE(stateName(), QStringLiteral("ready"));
    QVERIFY(m_backend->serverState() == SoundServerState::Running);
    QCOMPARE(m_watcher.log.count(QStringLiteral("list")), 1);
    QCOMPARE(m_cameras->activations(LinkA), 0); // listing opens nothing
}

// Of Windows' list; ours is sorted by id.
void tst_WindowsCameraList::prefersTheFirst()
{
    m_cameras->plug(LinkB, QStringLiteral("Box"));
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    const QStringList expected{IdA, IdB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), expected, LongMs);
    QTRY_COMPARE(m_backend->currentId(), IdB);
}

void tst_WindowsCameraList::namesThePlace_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("place");
    const QString usb = QStringLiteral("\\\\?\\usb#vid_1&pid_2#3&4");
    QTest::newRow("camera") << usb + QStringLiteral("#{e5323777-f976}\\global") << usb;
    QTest::newRow("capture") << usb + QStringLiteral("#{65e8773d-8f56}\\global") << usb;
    QTest::newRow("no interface") << usb << usb;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("interface alone") << QStringLiteral("#{x}") << QString();
}

void tst_WindowsCameraList::namesThePlace()
{
    QFETCH(QString, link);
    QTEST(WindowsCameraSource::placeOf(link), "place");
}

void tst_WindowsCameraList::followsMessages()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs);
    m_cameras->plug(LinkB, QStringLiteral("Box"));
    StagedCameras::castDeviceChange();
    const QStringList both{IdA, IdB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), both, SoonMs);
    m_cameras->unplug(LinkA);
    StagedCameras::castDeviceChange();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdB}, SoonMs);
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
}

void tst_WindowsCameraList::followsWithoutMessages()
{
    makeBackend();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->serverState() == SoundServerState::Running, LongMs);
    QVERIFY(ids().isEmpty());
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs);
    m_cameras->setName(LinkA, QStringLiteral("Renamed"));
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList{QStringLiteral("Renamed")}, LongMs);
}

void tst_WindowsCameraList::keepsTheChosenCameraWhileItIsAway()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->plug(LinkB, QStringLiteral("Box"));
    makeBackend();
    const QStringList both{IdA, IdB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), both, LongMs);
    m_backend->setCurrent(IdB);
    m_cameras->unplug(LinkB);
    StagedCameras::castDeviceChange();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("absent"), LongMs);
    QCOMPARE(m_backend->currentId(), IdB);
    // By another of its interfaces.
    m_cameras->plug(QString(IdB).toUpper() + QStringLiteral("#{65E8773D}\\global"),
                    QStringLiteral("Box"));
    StagedCameras::castDeviceChange();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("ready"), LongMs);
    QCOMPARE(m_backend->currentName(), QStringLiteral("Box"));
}

void tst_WindowsCameraList::survivesHostileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("long") << QString(3000, QLatin1Char('x'));
    QTest::newRow("controls") << QStringLiteral("a\n\t\x1b[31mb\u202e");
    QTest::newRow("markup") << QStringLiteral("<img src=x> & %1");
    QTest::newRow("half a pair") << QString(QChar(0xd83d));
    QTest::newRow("script") << QStringLiteral("\u7530\u0939\u0901 \u0645");
}

void tst_WindowsCameraList::survivesHostileNames()
{
    QFETCH(QString, name);
    m_cameras->plug(LinkA, name);
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs);
    const QString shown = names().constFirst();
    QCOMPARE(shown, printableName(name.isEmpty() ? LinkA.toLower() : name));
    QVERIFY(!shown.contains(QLatin1Char('\n')));
    QVERIFY(shown.size() <= 200);
    start(); // it can be used all the same
}

void tst_WindowsCameraList::leavesOutWhatHasNoLink()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->plug(LinkB, QStringLiteral("Without"));
    m_cameras->hideLink(LinkB);
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs);
}

void tst_WindowsCameraList::saysWhyThereIsNoList_data()
{
    QTest::addColumn<quint32>("error");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("cause");
    QTest::newRow("denied") << 0x80070005U << QStringLiteral("denied") << QStringLiteral("denied");
    QTest::newRow("no service") << 0x800706baU << QStringLiteral("absent")
                                << QStringLiteral("serverLost");
}

void tst_WindowsCameraList::saysWhyThereIsNoList()
{
    QFETCH(quint32, error);
    QFETCH(QString, state);
    QFETCH(QString, cause);
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->refuseList(static_cast<HRESULT>(error));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), cause, LongMs);
    QCOMPARE(stateName(), state);
    m_cameras->refuseList(S_OK);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(causeName(), QString());
}

void tst_WindowsCameraList::waitsForAListThatHangs()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->hangList(true);
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("serverLost"), LongMs);
    QCOMPARE(m_cameras->hangingCalls(), 1); // it is asked once
    m_cameras->hangList(false);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_WindowsCameraList::saysThatWindowsLacksCameras()
{
    makeSystem([] { return MediaFoundation::load(L"no-such-library.dll"); });
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->serverState() == SoundServerState::NotBuilt, LongMs);
    QVERIFY(ids().isEmpty());
    QCOMPARE(causeName(), QString()); // nobody asked for a picture
    m_backend->start();
    QTRY_COMPARE(causeName(), QStringLiteral("notBuilt"));
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("notBuilt"));
    QCOMPARE(figures().value(QLatin1String("cause")).toString(), QStringLiteral("notBuilt"));
}

void tst_WindowsCameraList::looksInTheSystemFolderOnly()
{
    // A library that stands beside the test, with its functions.
    const QFileInfo beside(QCoreApplication::applicationDirPath(),
                           QStringLiteral("ClassroomBackend.dll"));
    QVERIFY(beside.exists());
    const HMODULE before = GetModuleHandleW(L"unlikely-name.dll");
    QVERIFY(!before);
    const QString copy =
        QCoreApplication::applicationDirPath() + QStringLiteral("/unlikely-name.dll");
    QVERIFY(QFile::copy(beside.filePath(), copy));
    const bool isFound = MediaFoundation::load(L"unlikely-name.dll").has_value();
    const HMODULE after = GetModuleHandleW(L"unlikely-name.dll");
    QFile::remove(copy);
    QVERIFY(!isFound);
    QVERIFY(!after); // its code must not run
}

QTEST_GUILESS_MAIN(tst_WindowsCameraList)
#include "tst_WindowsCameraList.moc"
