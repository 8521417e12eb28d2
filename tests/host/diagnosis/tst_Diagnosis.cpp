// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Languages.h"
#include "host/diagnosis/Diagnosis.h"
#include "tests/host/report/SampleReport.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSysInfo>
#include <QtTest>
#include <private/qzipreader_p.h>

#include <map>

namespace {

using Files = std::map<QString, QByteArray>;

const char* const ChineseName = "安娜的麦克风";
const char* const Name = "Anna\u2019s Headset (2)";

Files filesIn(QByteArray archive)
{
    QBuffer buffer(&archive);
    const QZipReader zip(&buffer);
    Files files;
    for (const QZipReader::FileInfo& file : zip.fileInfoList()) {
        files[file.filePath] = zip.fileData(file.filePath);
    }
    return files;
}

DeviceSurvey::Device device(const QString& id, const QString& name)
{
    DeviceSurvey::Device device;
    device.info.id = id;
    device.info.name = name;
    device.volume = 40;
    return device;
}

Diagnosis diagnosisWith(const QString& log)
{
    Diagnosis diagnosis;
    diagnosis.report = sampleReport();
    diagnosis.report.redaction = Options::Redaction::None;
    diagnosis.report.facts = {{QStringLiteral("account"), QStringLiteral("anna@example.org")},
                              {QStringLiteral("nickname"), QStringLiteral("An")},
                              {QStringLiteral("processor"), QStringLiteral("Fast")}};
    diagnosis.devices.microphones = {device(QStringLiteral("usb-1234"), QString::fromUtf8(Name)),
                                     device(QStringLiteral("mic"), QString::fromUtf8(ChineseName))};
    diagnosis.log = log.toUtf8();
    return diagnosis;
}

QString logOf(const QString& log, Options::Redaction level)
{
    const Redaction redaction(level, QByteArrayLiteral("key"));
    return QString::fromUtf8(
        filesIn(diagnosisWith(log).toZip(redaction)).at(QStringLiteral("log.txt")));
}

} // namespace

class tst_Diagnosis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(m_languages.use(QStringLiteral("en")), QString()); }

    void allFiles();
    void nothingIsRemovedUnlessAsked();
    void logWithout_data();
    void logWithout();
    void logKeeps_data();
    void logKeeps();
    void devicesWithoutNames();
    void sameCodesEverywhere();

private:
    Languages m_languages;
};

void tst_Diagnosis::allFiles()
{
    const Redaction redaction(Options::Redaction::None, {});
    const Files files = filesIn(diagnosisWith(QStringLiteral("a line\n")).toZip(redaction));
    QCOMPARE(files.size(), size_t(4));
    for (const char* name : {"report.json", "devices.json", "versions.json"}) {
        QJsonParseError error;
        QJsonDocument::fromJson(files.at(QLatin1String(name)), &error);
        QVERIFY2(error.error == QJsonParseError::NoError, name);
    }
    const QJsonObject versions =
        QJsonDocument::fromJson(files.at(QStringLiteral("versions.json"))).object();
    QCOMPARE(versions.value(QLatin1String("qt")).toString(), QString::fromLatin1(qVersion()));
    QCOMPARE(files.at(QStringLiteral("log.txt")), QByteArrayLiteral("a line\n"));
}

void tst_Diagnosis::nothingIsRemovedUnlessAsked()
{
    const QString log = QString::fromUtf8(Name) + QStringLiteral(" at 192.0.2.7\n");
    QCOMPARE(logOf(log, Options::Redaction::None), log);
}

void tst_Diagnosis::logWithout_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("name of a device") << QString::fromUtf8(Name);
    QTest::newRow("name in other case") << QString::fromUtf8(Name).toUpper();
    QTest::newRow("id of a device") << "usb-1234";
    QTest::newRow("short id") << "mic";
    QTest::newRow("name without gaps around it")
        << QString::fromUtf8(ChineseName) + QStringLiteral("坏了");
    QTest::newRow("account") << "anna@example.org";
    QTest::newRow("folder of the user") << QDir::homePath();
    if (QSysInfo::machineHostName().size() > 2) {
        QTest::newRow("machine") << QSysInfo::machineHostName();
    }
    QTest::newRow("address") << "192.0.2.7";
    QTest::newRow("address with port") << "192.0.2.7:3478";
    QTest::newRow("long address") << "2001:db8::7";
    QTest::newRow("long address in brackets") << "[fe80::1]";
    QTest::newRow("hardware address") << "00:1b:63:84:45:e6";
}

void tst_Diagnosis::logWithout()
{
    QFETCH(QString, text);
    const QString log =
        logOf(QStringLiteral("before %1 after %1, end\n").arg(text), Options::Redaction::Personal);
    QString bare = text;
    bare.remove(QString::fromUtf8("坏了"))
        .remove(QLatin1String(":3478"))
        .remove(QLatin1Char('['))
        .remove(QLatin1Char(']'));
    QVERIFY2(!log.contains(bare, Qt::CaseInsensitive), qPrintable(log));
    QCOMPARE(log.count(QLatin1String("[removed]")), 2);
    QVERIFY(log.startsWith(QLatin1String("before ")) && log.endsWith(QLatin1String(", end\n")));
}

void tst_Diagnosis::logKeeps_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("time") << "at 10:15:02 sharp";
    QTest::newRow("version") << "Windows 10.0.19045, Qt 5.15.8";
    QTest::newRow("error") << "0x88890004 (device invalidated)";
    QTest::newRow("a name of two letters stands in many words") << "An answer";
    QTest::newRow("an id in a longer word") << "A microphone is opened";
    QTest::newRow("scope") << "Log::devices, std::thread";
    QTest::newRow("what isn't private") << "Fast";
}

void tst_Diagnosis::logKeeps()
{
    QFETCH(QString, text);
    QCOMPARE(logOf(text, Options::Redaction::Personal), text);
}

void tst_Diagnosis::devicesWithoutNames()
{
    const Redaction redaction(Options::Redaction::Personal, {});
    const QJsonObject devices =
        QJsonDocument::fromJson(
            filesIn(diagnosisWith({}).toZip(redaction)).at(QStringLiteral("devices.json")))
            .object();
    const QJsonObject microphone =
        devices.value(QLatin1String("microphones")).toArray().first().toObject();
    QCOMPARE(microphone.value(QLatin1String("name")).toString(), QString());
    QCOMPARE(microphone.value(QLatin1String("id")).toString(), QString());
    QCOMPARE(microphone.value(QLatin1String("volume")).toInt(), 40);
}

void tst_Diagnosis::sameCodesEverywhere()
{
    const Redaction redaction(Options::Redaction::Hash, QByteArrayLiteral("key"));
    const Files files = filesIn(diagnosisWith(QString::fromUtf8(Name)).toZip(redaction));
    const QByteArray code = files.at(QStringLiteral("log.txt"));
    QVERIFY2(code.startsWith('#') && code.size() == 13, code.constData());
    QVERIFY(files.at(QStringLiteral("devices.json")).contains(code));
}

QTEST_GUILESS_MAIN(tst_Diagnosis)
#include "tst_Diagnosis.moc"
