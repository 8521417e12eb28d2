// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/MachineFacts.h"
#include "platform/devices/facts/HostUser.h"
#include "platform/devices/facts/LocalAddress.h"

#include <QHostAddress>
#include <QNetworkInterface>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>
#include <pwd.h>
#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>

using namespace Platform;

// Against what the system itself says.
class tst_MachineFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operatingSystem();
    void processorOfThisMachine();
    void processorName_data();
    void processorName();
    void availableBytes();
    void folderThatIsNotThereYet();
    void localAddress();
    void bestAddress_data();
    void bestAddress();
    void user();
    void userWithoutAName();
};

namespace {

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Of the present volumes while others write to them.
constexpr qint64 SlackBytes = 256 * 1024 * 1024;

qint64 statBytes(const QString& folder)
{
    struct statvfs volume = {};
    statvfs(folder.toLocal8Bit().constData(), &volume);
    return qint64(volume.f_bavail) * qint64(volume.f_frsize);
}

} // namespace

void tst_MachineFacts::operatingSystem()
{
    const QStringList facts = MachineFacts::operatingSystem();
    QCOMPARE(facts.size(), 2);
    QString prettyName =
        textOf(QStringLiteral("/etc/os-release")).section(QStringLiteral("\nPRETTY_NAME="), -1);
    if (prettyName.startsWith(QStringLiteral("PRETTY_NAME="))) {
        prettyName = prettyName.section(QLatin1Char('='), 1);
    }
    prettyName = prettyName.section(QLatin1Char('\n'), 0, 0).remove(QLatin1Char('"'));
    QCOMPARE(facts[0], prettyName);
    utsname kernel = {};
    QCOMPARE(uname(&kernel), 0);
    QCOMPARE(facts[1], QString::fromLatin1(kernel.machine));
}

void tst_MachineFacts::processorOfThisMachine()
{
    const QString name = MachineFacts::processorName();
    QVERIFY(!name.isEmpty());
    QProcess lscpu;
    lscpu.start(QStringLiteral("lscpu"), QStringList());
    QVERIFY(lscpu.waitForFinished());
    const QString said = QString::fromUtf8(lscpu.readAllStandardOutput()).simplified();
    QVERIFY2(said.contains(name), qPrintable(name));
}

void tst_MachineFacts::processorName_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    const QString architecture = QSysInfo::currentCpuArchitecture();
    QTest::newRow("usual") << QByteArray("processor\t: 0\nmodel\t\t: 1\n"
                                         "model name\t: Some CPU   @ 3.00GHz: fast\n")
                           << "Some CPU @ 3.00GHz: fast";
    QTest::newRow("none told") << QByteArray("processor\t: 0\nBogoMIPS\t: 50.00\n") << architecture;
    QTest::newRow("empty") << QByteArray() << architecture;
    QTest::newRow("no end") << QByteArray(100000, 'x') << architecture;
    QTest::newRow("far behind") << QByteArray("x\n").repeated(1000) + "model name: y\n"
                                << architecture;
}

void tst_MachineFacts::processorName()
{
    QFETCH(QByteArray, content);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("cpuinfo"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QTEST(MachineFacts::processorName(path), "name");
    QVERIFY(!MachineFacts::processorName(folder.filePath(QStringLiteral("missing"))).isEmpty());
}

void tst_MachineFacts::availableBytes()
{
    for (const QString& folder :
         {QStringLiteral("/"), QDir::tempPath(), QStringLiteral("/dev/shm")}) {
        const qint64 bytes = MachineFacts::availableBytes(folder);
        QVERIFY2(std::abs(bytes - statBytes(folder)) < SlackBytes, qPrintable(folder));
    }
}

void tst_MachineFacts::folderThatIsNotThereYet()
{
    QTemporaryDir folder;
    const qint64 bytes = MachineFacts::availableBytes(folder.filePath(QStringLiteral("a/b/c d")));
    QVERIFY(std::abs(bytes - statBytes(folder.path())) < SlackBytes);
    QCOMPARE(MachineFacts::availableBytes(QString()), qint64(-1));
}

void tst_MachineFacts::localAddress()
{
    const QHostAddress address(LocalAddress::find());
    QVERIFY(QNetworkInterface::allAddresses().contains(address));
    bool isAlone = true;
    const QList<QHostAddress> all = QNetworkInterface::allAddresses();
    for (const QHostAddress& each : all) {
        isAlone &= each.isLoopback() || each.isLinkLocal();
    }
    QCOMPARE(address.isLoopback(), isAlone);
}

void tst_MachineFacts::bestAddress_data()
{
    QTest::addColumn<QString>("addresses");
    QTest::addColumn<QString>("best");
    QTest::newRow("IPv4 behind IPv6") << "::1 2001:db8::1 192.0.2.1 192.0.2.2"
                                      << "192.0.2.1";
    QTest::newRow("IPv6 alone") << "127.0.0.1 fe80::1 2001:db8::1 2001:db8::2"
                                << "2001:db8::1";
    QTest::newRow("nobody gave one") << "127.0.0.1 169.254.3.4 2001:db8::1"
                                     << "2001:db8::1";
    QTest::newRow("no network") << "127.0.0.1 ::1 fe80::1"
                                << "127.0.0.1";
    QTest::newRow("nothing at all") << ""
                                    << "127.0.0.1";
}

void tst_MachineFacts::bestAddress()
{
    QFETCH(QString, addresses);
    QList<QHostAddress> list;
    const QStringList texts = addresses.split(QLatin1Char(' '));
    for (const QString& text : texts) {
        list << QHostAddress(text);
    }
    QTEST(LocalAddress::bestOf(list), "best");
}

void tst_MachineFacts::user()
{
    const HostUser user = HostUser::current();
    const passwd* entry = getpwuid(getuid());
    if (!entry) {
        QCOMPARE(user.loginName, QString::number(getuid()));
        QVERIFY(user.realName.isEmpty());
        return;
    }
    QCOMPARE(user.loginName, QString::fromLocal8Bit(entry->pw_name));
    QCOMPARE(user.realName,
             QString::fromLocal8Bit(entry->pw_gecos).section(QLatin1Char(','), 0, 0).trimmed());
}

void tst_MachineFacts::userWithoutAName()
{
    uid_t id = 3000000000;
    while (getpwuid(id)) {
        ++id;
    }
    const HostUser user = HostUser::withId(id);
    QCOMPARE(user.loginName, QString::number(id));
    QVERIFY(user.realName.isEmpty());
}

QTEST_GUILESS_MAIN(tst_MachineFacts)
#include "tst_MachineFacts.moc"
