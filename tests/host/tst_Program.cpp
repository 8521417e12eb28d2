// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"
#include "tests/host/ProgramTest.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace TestSupport;

// The program as users start it: its options, and what all commands share.
class tst_Program : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void versionAndHelp();
    void manPageNamesEveryOption();
    void everyCommandSpeaksTheLanguage_data();
    void everyCommandSpeaksTheLanguage();
    void wrongUsage_data();
    void wrongUsage();
    void badInput_data();
    void badInput();
    void noDisplay();
    void outputNowhere();
    void devices();
};

void tst_Program::versionAndHelp()
{
    const Run version = run(words("--version"));
    QCOMPARE(version.code, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^envcheck \\d+\\.\\d+\\.\\d+\\n$"))
                .match(version.out)
                .hasMatch());
    for (const char* command : {"--help", "devices --help", "network --help", "serve --help",
                                "report --help", "history --help"}) {
        const Run help = run(words(command));
        QCOMPARE(help.code, 0);
        QVERIFY(help.out.contains(QLatin1String("Options:")));
        QCOMPARE(help.error, QString());
    }
}

void tst_Program::manPageNamesEveryOption()
{
    QFile page(QStringLiteral(ENVCHECK_SOURCE_DIR "/docs/envcheck.1"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text =
        QString::fromUtf8(page.readAll()).replace(QLatin1String("\\-"), QLatin1String("-"));
    static const QRegularExpression option(QStringLiteral("--[a-z-]+"));
    int count = 0;
    for (const char* command : {"--help", "devices --help", "network --help", "serve --help",
                                "report --help", "history --help"}) {
        auto matches = option.globalMatch(run(words(command)).out);
        while (matches.hasNext()) {
            const QString name = matches.next().captured();
            QVERIFY2(text.contains(name), qPrintable(name));
            ++count;
        }
    }
    QVERIFY(count > 20);
    for (const char* code : {"0", "1", "2", "3", "4", "64", "65", "69", "73"}) {
        QVERIFY2(text.contains(QStringLiteral(".B %1\n").arg(QLatin1String(code))), code);
    }
}

void tst_Program::everyCommandSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("text");
    QTest::newRow("help") << "--help"
                          << "Aufruf: envcheck [Optionen]";
    QTest::newRow("wrong option") << "--nothing"
                                  << "Siehe --help.";
    QTest::newRow("wrong value") << "--platform moon"
                                 << "--platform moon: erwartet wird";
    QTest::newRow("missing report") << "report not-there.json"
                                    << "lässt sich nicht lesen";
    QTest::newRow("unwritable report") << "--scenario all-well --report /"
                                       << "das ist ein Ordner";
    QTest::newRow("devices") << "devices --scenario all-well"
                             << "Lautsprecher";
    QTest::newRow("network") << "network --scenario all-well --count 1"
                             << "Verzögerung";
    QTest::newRow("serve") << "serve --port x"
                           << "eine Zahl von 0 bis 65535";
}

// The language comes from the option, or from the system.
void tst_Program::everyCommandSpeaksTheLanguage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, text);
    const QStringList all = words(qPrintable(arguments));
    const Run byOption = run(all + words("--language de"));
    QVERIFY2((byOption.out + byOption.error).contains(text),
             qPrintable(byOption.out + byOption.error));
    const Run bySystem =
        finished(*started(all, QStringLiteral("exec env LC_ALL=de_DE.UTF-8 \"$0\" \"$@\"")));
    QCOMPARE(bySystem.code, byOption.code);
    QCOMPARE(bySystem.out, byOption.out);
    QCOMPARE(bySystem.error, byOption.error);
}

void tst_Program::wrongUsage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown option") << "--nothing"
                                    << "nothing";
    QTest::newRow("unknown command") << "walk"
                                     << "walk";
    QTest::newRow("bad value") << "--platform moon"
                               << "moon";
    QTest::newRow("no such language") << "--scenario all-well --language tlh"
                                      << "tlh";
    QTest::newRow("no server") << "network --server http://example.org"
                               << "http://example.org";
    QTest::newRow("no server for the check") << "--server example.org:0"
                                             << "example.org:0";
    QTest::newRow("one place for both") << "--results r.json --report ./x/../r.json"
                                        << "r.json";
    QTest::newRow("both to the output") << "--results - --report -"
                                        << "--report";
    QTest::newRow("unknown ending") << "--report r.pdf"
                                    << ".json, .html";
    QTest::newRow("no ending") << "--report r"
                               << ".json, .html";
    QTest::newRow("results in a page") << "--results r.html"
                                       << ".json";
    QTest::newRow("no report in that language") << "report x --language tlh"
                                                << "tlh";
}

void tst_Program::wrongUsage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    const Run result = run(words(qPrintable(arguments)));
    QCOMPARE(result.code, 64);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.error.startsWith(QLatin1String("envcheck: ")), qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QVERIFY2(result.error.contains(named), qPrintable(result.error));
}

void tst_Program::badInput_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("check") << "--scenario";
    QTest::newRow("devices") << "devices --scenario";
    QTest::newRow("network") << "network --scenario";
    QTest::newRow("report") << "report";
}

void tst_Program::badInput()
{
    QFETCH(QString, arguments);
    QFile broken(file("broken.json"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("{ \"cameras\": 5 ");
    broken.close();
    for (const QString& name : {broken.fileName(), file("not-there.json")}) {
        const Run result = run(words(qPrintable(arguments)) + QStringList{name});
        QCOMPARE(result.code, 65);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.error.contains(name), qPrintable(result.error));
    }
}

void tst_Program::noDisplay()
{
    const QString wrapper =
        QStringLiteral("unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; exec \"$0\" \"$@\"");
    const Run result = finished(*started(words("--scenario all-well"), wrapper));
    QCOMPARE(result.code, 69);
    QVERIFY2(result.error.contains(QLatin1String("no display")), qPrintable(result.error));
    QCOMPARE(finished(*started(words("devices --scenario all-well"), wrapper)).code, 0);
}

void tst_Program::outputNowhere()
{
    const std::unique_ptr<QProcess> full =
        started(words("--help"), QStringLiteral("exec \"$0\" \"$@\" >/dev/full"));
    const Run result = finished(*full);
    QCOMPARE(result.code, 73);
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QVERIFY2(result.error.contains(QStringLiteral("output")), qPrintable(result.error));

    // A closed output doesn't end up in the files that are written.
    const QString report = file("r.json");
    const std::unique_ptr<QProcess> closed =
        started(words("--scenario") + QStringList{quickEnd(), QStringLiteral("--report"), report},
                QStringLiteral("exec \"$0\" \"$@\" >&- 2>&-"));
    QCOMPARE(finished(*closed).code, 3);
    QString error;
    QVERIFY2(ReportJson::fromJson(jsonOf(report), &error), qPrintable(error));
    QCOMPARE(linesOf(dataFolder() + QStringLiteral("/runs.jsonl")).size(), 1);
}

void tst_Program::devices()
{
    const Run table = run(words("devices --scenario hostile-names"));
    QCOMPARE(table.code, 0);
    QVERIFY(table.out.startsWith(QLatin1String("Cameras\n")));
    QVERIFY(!table.out.contains(QChar(0x1B)));
    const Run json = run(words("devices --json --scenario all-well"));
    const QJsonObject object = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QCOMPARE(object.keys(), words("cameras causes microphones speakers"));
}

QTEST_GUILESS_MAIN(tst_Program)
#include "tst_Program.moc"
