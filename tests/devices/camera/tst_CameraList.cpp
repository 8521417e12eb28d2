// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraList.h"

#include <QtTest>

using namespace Platform;

namespace {

CameraNode node(const QString& serial, const QString& name, const QString& description)
{
    CameraNode result;
    result.serial = serial;
    result.name = name;
    result.description = description;
    result.role = QStringLiteral("Camera");
    result.hasFormats = true;
    result.hasColor = true;
    return result;
}

QStringList texts(const DeviceList& devices)
{
    QStringList result;
    for (const DeviceInfo& device : devices) {
        result << device.id + QLatin1Char('=') + device.name;
    }
    return result;
}

} // namespace

class tst_CameraList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheIdOverReplugging();
    void prefersThePlaceToTheName();
    void numbersTheNodesOfOneDevice();
    void tellsEqualNodesApart();
    void namesTheNameless();
    void tellsWhetherAnythingChanged();
    void hidesWhatIsNoCamera_data();
    void hidesWhatIsNoCamera();
    void prefersCamerasAndPriority();
};

void tst_CameraList::keepsTheIdOverReplugging()
{
    CameraList list;
    QVERIFY(list.add(7, node(QStringLiteral("41"), QStringLiteral("usb-1"), QStringLiteral("C"))));
    QCOMPARE(*list.serialOf(QStringLiteral("usb-1")), QStringLiteral("41"));
    QVERIFY(list.remove(7));
    QVERIFY(!list.serialOf(QStringLiteral("usb-1")));
    QVERIFY(list.add(9, node(QStringLiteral("55"), QStringLiteral("usb-1"), QStringLiteral("C"))));
    QCOMPARE(*list.serialOf(QStringLiteral("usb-1")), QStringLiteral("55"));
}

void tst_CameraList::prefersThePlaceToTheName()
{
    CameraList list;
    CameraNode camera = node(QStringLiteral("41"), QStringLiteral("cam"), QStringLiteral("C"));
    camera.place = QStringLiteral("pci-0:usb-1");
    list.add(7, camera);
    QCOMPARE(texts(list.devices()), QStringList(QStringLiteral("pci-0:usb-1=C")));
    list.remove(7);
    camera.serial = QStringLiteral("55");
    camera.name = QStringLiteral("cam.2");
    list.add(9, camera);
    QCOMPARE(*list.serialOf(QStringLiteral("pci-0:usb-1")), QStringLiteral("55"));
}

void tst_CameraList::numbersTheNodesOfOneDevice()
{
    CameraNode near = node(QStringLiteral("41"), QStringLiteral("near"), QStringLiteral("Near"));
    CameraNode wide = node(QStringLiteral("42"), QStringLiteral("wide"), QStringLiteral("Wide"));
    near.place = QStringLiteral("usb-1");
    wide.place = near.place;
    const QStringList expected{QStringLiteral("usb-1=Near"), QStringLiteral("usb-1#2=Wide")};
    for (const bool isWideFirst : {false, true}) {
        CameraList list;
        list.add(isWideFirst ? 2 : 1, near);
        list.add(isWideFirst ? 1 : 2, wide);
        QCOMPARE(texts(list.devices()), expected);
    }
}

void tst_CameraList::tellsEqualNodesApart()
{
    CameraList list;
    list.add(1, node(QStringLiteral("41"), QStringLiteral("usb"), QStringLiteral("Camera")));
    list.add(2, node(QStringLiteral("42"), QStringLiteral("usb"), QStringLiteral("Camera")));
    const QStringList expected{QStringLiteral("usb=Camera"), QStringLiteral("usb#2=Camera (2)")};
    QCOMPARE(texts(list.devices()), expected);
    QCOMPARE(*list.serialOf(QStringLiteral("usb#2")), QStringLiteral("42"));
}

void tst_CameraList::namesTheNameless()
{
    CameraList list;
    list.add(1, node(QStringLiteral("41"), QStringLiteral("usb"), QString()));
    list.add(2, node(QStringLiteral("42"), QString(), QStringLiteral("Camera")));
    const QStringList expected{QStringLiteral("42=Camera"), QStringLiteral("usb=usb")};
    QCOMPARE(texts(list.devices()), expected);
}

void tst_CameraList::tellsWhetherAnythingChanged()
{
    CameraList list;
    QVERIFY(!list.remove(1));
    QVERIFY(!list.clear());
    CameraNode screen = node(QStringLiteral("41"), QStringLiteral("s"), QStringLiteral("S"));
    screen.role = QStringLiteral("Screen");
    QVERIFY(!list.add(1, screen));
    QVERIFY(list.add(1, node(QStringLiteral("41"), QStringLiteral("s"), QStringLiteral("S"))));
    QVERIFY(list.add(1, screen)); // no camera any more
    QVERIFY(list.devices().empty());
    QVERIFY(!list.remove(1));
    list.add(2, node(QStringLiteral("42"), QStringLiteral("c"), QStringLiteral("C")));
    QVERIFY(list.clear());
    QVERIFY(list.devices().empty());
}

void tst_CameraList::hidesWhatIsNoCamera_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("capabilities");
    QTest::addColumn<QString>("description");
    QTest::addColumn<bool>("hasFormats");
    QTest::addColumn<bool>("hasColor");
    QTest::addColumn<bool>("expected");
    const QString camera = QStringLiteral("Camera");
    const QString name = QStringLiteral("HD Webcam");
    const QString none;
    QTest::newRow("camera") << camera << none << name << true << true << true;
    QTest::newRow("no role") << none << none << name << true << true << true;
    QTest::newRow("screen") << QStringLiteral("Screen") << none << name << true << true << false;
    QTest::newRow("captures") << camera << QStringLiteral(":capture:") << name << true << true
                              << true;
    QTest::newRow("metadata") << camera << QStringLiteral(":") << name << true << true << false;
    QTest::newRow("gray only") << camera << none << name << true << false << false;
    QTest::newRow("formats unknown") << camera << none << name << false << false << true;
    QTest::newRow("IR") << camera << none << QStringLiteral("Integrated IR Camera") << true << true
                        << false;
    QTest::newRow("infrared") << camera << none << QStringLiteral("Infrared Sensor") << true << true
                              << false;
    QTest::newRow("part of a word")
        << camera << none << QStringLiteral("FIRM Webcam") << true << true << true;
}

void tst_CameraList::hidesWhatIsNoCamera()
{
    QFETCH(QString, role);
    QFETCH(QString, capabilities);
    QFETCH(QString, description);
    QFETCH(bool, hasFormats);
    QFETCH(bool, hasColor);
    CameraNode tested = node(QStringLiteral("41"), QStringLiteral("c"), description);
    tested.role = role;
    tested.capabilities = capabilities;
    tested.hasFormats = hasFormats;
    tested.hasColor = hasColor;
    QTEST(CameraList::isCamera(tested), "expected");
}

void tst_CameraList::prefersCamerasAndPriority()
{
    CameraList list;
    QCOMPARE(list.preferredId(), QString());
    CameraNode roleless = node(QStringLiteral("40"), QStringLiteral("a"), QStringLiteral("A"));
    roleless.role.clear();
    list.add(1, roleless);
    QCOMPARE(list.preferredId(), QStringLiteral("a"));
    list.add(2, node(QStringLiteral("41"), QStringLiteral("c"), QStringLiteral("C")));
    list.add(3, node(QStringLiteral("42"), QStringLiteral("b"), QStringLiteral("B")));
    QCOMPARE(list.preferredId(), QStringLiteral("b"));
    CameraNode first = node(QStringLiteral("43"), QStringLiteral("d"), QStringLiteral("D"));
    first.priority = 1000;
    list.add(4, first);
    QCOMPARE(list.preferredId(), QStringLiteral("d"));
}

QTEST_GUILESS_MAIN(tst_CameraList)
#include "tst_CameraList.moc"
