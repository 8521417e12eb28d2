// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileNames.h"
#include "tests/support/ProgramTexts.h"

#include <QtTest>

using namespace Platform;

class tst_FileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowsRules_data();
    void windowsRules();
    void rulesOfThisSystem();

private:
    const ProgramTexts m_texts;
};

void tst_FileNames::windowsRules_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    for (const char* path :
         {"report.json", "C:/a b/report.json", "C:\\Users\\me\\report.json", "../report.json",
          "./a/../report", "//server/share/report.json", "\\\\?\\C:\\a\\report.json", "console.txt",
          "com10.txt", "com0", "nul1", "icon.png", ".con", "C:report.json"}) {
        QTest::newRow(path) << path << QString();
    }
    QTest::newRow("letters of other languages")
        << QStringLiteral("C:/课堂 检测/报告.json") << QString();
    for (const char* path :
         {"NUL", "con", "Con.json", "C:/a/aux.tar.gz", "prn ", "com1.txt", "LPT9", "C:\\a\\nul\\b",
          "CONIN$", "conout$.txt", "nul .txt", "//server/share/aux"}) {
        QTest::newRow(path) << path << "the name of a device";
    }
    QTest::newRow("superscript") << QStringLiteral("com²") << "the name of a device";
    for (const char* path :
         {"a<b", "C:/a>b/c", "report.json:stream", "a\"b", "a|b", "what?", "*", "a\nb", "a\tb"}) {
        QTest::newRow(path) << path << "a name can't contain";
    }
    for (const char* path : {"report.", "C:/a /report", "report.json ", "..."}) {
        QTest::newRow(path) << path << "a name can't end in";
    }
}

void tst_FileNames::windowsRules()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const QString problem = FileNames::problemOnWindows(path);
    QVERIFY2(problem.isEmpty() == reason.isEmpty() && problem.contains(reason),
             qPrintable(problem));
    QVERIFY(!problem.contains(QLatin1Char('\n')));
}

void tst_FileNames::rulesOfThisSystem()
{
    QCOMPARE(FileNames::problem(QStringLiteral("report.json")), QString());
#ifdef Q_OS_WIN
    QCOMPARE(FileNames::problem(QStringLiteral("con")),
             FileNames::problemOnWindows(QStringLiteral("con")));
#else
    QCOMPARE(FileNames::problem(QStringLiteral("con: a?.")), QString());
#endif
}

QTEST_GUILESS_MAIN(tst_FileNames)
#include "tst_FileNames.moc"
