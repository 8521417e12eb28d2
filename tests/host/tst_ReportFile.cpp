// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "SampleReport.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportWriter.h"
#include "tests/support/FullDisk.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_ReportFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writtenAndRead();
    void wrongPlacesAreNamed_data();
    void wrongPlacesAreNamed();
    void failureLeavesTheOldFile();
    void unreadableOnesAreNamed_data();
    void unreadableOnesAreNamed();
    void keyIsMadeOnce();
};

void tst_ReportFile::writtenAndRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.json"));
    QCOMPARE(ReportFile::write(path, ReportWriter::toJson(sampleReport())), QString());
    QString error;
    const std::optional<Report> report = ReportFile::read(path, &error);
    QVERIFY2(report, qPrintable(error));
    QCOMPARE(report->toJson(), sampleReport().toJson());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList{QStringLiteral("report.json")});
}

void tst_ReportFile::wrongPlacesAreNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such folder") << "/nonexistent/x/report.json"
                                    << "no folder";
    QTest::newRow("a folder") << "/"
                              << "it is a folder";
    QTest::newRow("a device") << "/dev/null"
                              << "isn't an ordinary file";
    QTest::newRow("below a file") << "/etc/passwd/report.json"
                                  << "no folder";
}

void tst_ReportFile::wrongPlacesAreNamed()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const QString problem = ReportFile::write(path, "x");
    QVERIFY2(problem.startsWith(path) && problem.contains(reason), qPrintable(problem));
    QVERIFY(!problem.contains(QLatin1Char('\n')));
    QCOMPARE(ReportFile::problemOfWriting(path), problem);
}

void tst_ReportFile::failureLeavesTheOldFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.json"));
    QCOMPARE(ReportFile::write(path, "old"), QString());
    {
        const FullDisk fullDisk;
        const QString problem = ReportFile::write(path, "new");
        QVERIFY2(problem.startsWith(path), qPrintable(problem));
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void tst_ReportFile::unreadableOnesAreNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "isn't a report in JSON";
    QTest::newRow("not JSON") << QByteArray("hello") << "isn't a report in JSON";
    QTest::newRow("a list") << QByteArray("[]") << "isn't a report in JSON";
    QTest::newRow("another object") << QByteArray("{\"a\": 1}") << "format: ";
    QTest::newRow("cut off") << ReportWriter::toJson(sampleReport()).chopped(20)
                             << "isn't a report in JSON";
    QTest::newRow("huge") << QByteArray(int(ReportFile::MaxBytes) + 1, ' ') << "too large";
}

void tst_ReportFile::unreadableOnesAreNamed()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.json"));
    QCOMPARE(ReportFile::write(path, content), QString());
    QString error;
    QVERIFY(!ReportFile::read(path, &error));
    QVERIFY2(error.startsWith(path) && error.contains(reason), qPrintable(error));
}

void tst_ReportFile::keyIsMadeOnce()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a/b/key"));
    QString error;
    const QByteArray key = ReportFile::redactionKey(path, &error);
    QCOMPARE(error, QString());
    QCOMPARE(key.size(), 32);
    QCOMPARE(ReportFile::redactionKey(path, &error), key);
    QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), 0);
    QVERIFY(ReportFile::redactionKey(QStringLiteral("/etc/passwd/key"), &error).isEmpty());
    QVERIFY(error.contains(QLatin1String("/etc/passwd/key")));
}

QTEST_GUILESS_MAIN(tst_ReportFile)
#include "tst_ReportFile.moc"
