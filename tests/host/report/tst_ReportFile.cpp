// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportWriter.h"
#include "tests/host/report/SampleReport.h"
#include "tests/support/WriteObstacle.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_ReportFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writtenAndRead();
    void writtenAndReadBelowALongPath();
    void wrongPlacesAreNamed_data();
    void wrongPlacesAreNamed();
    void failureLeavesTheOldFile();
    void unreadableOnesAreNamed_data();
    void unreadableOnesAreNamed();
    void keyIsMadeOnce();

private:
    Languages m_languages;
};

void tst_ReportFile::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_ReportFile::writtenAndRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("report.json"));
    QCOMPARE(ReportFile::write(path, ReportWriter::toJson(sampleReport())), QString());
    QString error;
    const std::optional<Report> report = ReportFile::read(path, &error);
    QVERIFY2(report, qPrintable(error));
    QCOMPARE(ReportJson::toJson(*report), ReportJson::toJson(sampleReport()));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList{QStringLiteral("report.json")});
}

void tst_ReportFile::writtenAndReadBelowALongPath()
{
    constexpr int Depth = 8;
    const QTemporaryDir folder;
    const QString path =
        folder.filePath(QString(50, QLatin1Char('a')).append(QLatin1Char('/')).repeated(Depth)) +
        QStringLiteral("report.json");
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    QCOMPARE(ReportFile::write(path, "old"), QString());
    QCOMPARE(ReportFile::write(path, ReportWriter::toJson(sampleReport())), QString());
    QString error;
    const std::optional<Report> report = ReportFile::read(path, &error);
    QVERIFY2(report, qPrintable(error));
    QCOMPARE(ReportJson::toJson(*report), ReportJson::toJson(sampleReport()));
}

void tst_ReportFile::wrongPlacesAreNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
#ifdef Q_OS_UNIX
    const QString root = QStringLiteral("/");
    QTest::newRow("a device") << "/dev/null"
                              << "not an ordinary file";
#else
    const QString root = QStringLiteral("C:/");
    QTest::newRow("a device") << "NUL"
                              << "the name of a device";
    QTest::newRow("a device with an ending") << "C:/windows/con.json"
                                             << "the name of a device";
    QTest::newRow("a stream") << "C:/windows/win.ini:report"
                              << "a name can't contain";
#endif
    QTest::newRow("no such folder")
        << root + QStringLiteral("nonexistent/x/report.json") << "no folder";
    QTest::newRow("a folder") << root << "it is a folder";
    QTest::newRow("below a file") << QCoreApplication::applicationFilePath() +
                                         QStringLiteral("/report.json")
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
        const WriteObstacle obstacle(path);
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
    QTest::newRow("empty") << QByteArray() << "not a report in JSON";
    QTest::newRow("not JSON") << QByteArray("hello") << "not a report in JSON";
    QTest::newRow("a list") << QByteArray("[]") << "not a report in JSON";
    QTest::newRow("another object") << QByteArray("{\"a\": 1}") << "format: ";
    QTest::newRow("cut off") << ReportWriter::toJson(sampleReport()).chopped(20)
                             << "not a report in JSON";
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
#ifdef Q_OS_UNIX
    QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), 0);
#endif
    const QString below = path + QStringLiteral("/key");
    QVERIFY(ReportFile::redactionKey(below, &error).isEmpty());
    QVERIFY(error.contains(below));
}

QTEST_GUILESS_MAIN(tst_ReportFile)
#include "tst_ReportFile.moc"
