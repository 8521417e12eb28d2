// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/ReportJson.h"
#include "host/report/ReportWriter.h"
#include "tests/host/report/SampleReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>

// The program as users start it, each time with a home of its own.
class tst_Program : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void versionAndHelp();
    void manPageNamesEveryOption();
    void everyCommandSpeaksTheLanguage_data();
    void everyCommandSpeaksTheLanguage();
    void wrongUsage_data();
    void wrongUsage();
    void badInput_data();
    void badInput();
    void noDisplay();
    void checkEndedBySignal_data();
    void checkEndedBySignal();
    void checkPutOut();
    void resultsAndReportGoWhereAsked();
    void outputNowhere();
    void unwritablePlaces_data();
    void unwritablePlaces();
    void diskFull();
    void unwritableHome();
    void runsAreKeptAndCompared();
    void touredRunIsReported();
    void redactedRun();
    void devices();
    void networkLines();
    void networkCauses_data();
    void networkCauses();
    void networkWithoutServer();
    void serverSetOnceForAll();
    void brokenConfiguration_data();
    void brokenConfiguration();
    void serveAndMeasure();
    void servedPortInUse();
    void reports();
    void oneBadReportAmongOthers_data();
    void oneBadReportAmongOthers();
    void reportsByList();
    void historyAndLastReport();
    void documentOnOutput();
    void reportsEndedBySignal_data();
    void reportsEndedBySignal();

private:
    struct Run
    {
        int code = -1;
        QString out;
        QString error;
    };

    std::unique_ptr<QProcess> started(const QStringList& arguments,
                                      const QString& wrapper = QString()) const;
    static Run finished(QProcess& process);
    Run run(const QStringList& arguments) const { return finished(*started(arguments)); }
    // Opens the check, waits until it runs, and ends it.
    Run checked(const QStringList& arguments, int signal = SIGTERM,
                const QString& wrapper = QString()) const;
    QString file(const char* name) const { return m_home->filePath(QLatin1String(name)); }
    void configure(const char* path, const QByteArray& content) const;
    QString quickEnd() const; // a scenario that soon puts the user out
    QString dataFolder() const { return file(".local/share/envcheck"); }
    static QJsonObject jsonOf(const QString& path);
    static QStringList linesOf(const QString& path);

    std::unique_ptr<QTemporaryDir> m_home;
};

namespace {

constexpr int TimeoutMs = 20000;

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool canUnshareNetwork()
{
    return QProcess::execute(QStringLiteral("unshare"), words("--map-root-user --net true")) == 0;
}

} // namespace

void tst_Program::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
}

QString tst_Program::quickEnd() const
{
    QFile scenario(file("quick-end.json"));
    if (scenario.open(QIODevice::WriteOnly)) {
        scenario.write("{ \"base\": \"all-well\", \"timeline\": "
                       "[ { \"atMs\": 1000, \"event\": \"kickOut\" } ] }");
    }
    return scenario.fileName();
}

std::unique_ptr<QProcess> tst_Program::started(const QStringList& arguments,
                                               const QString& wrapper) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home->path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_home->path());
    environment.remove(QStringLiteral("XDG_DATA_HOME"));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), file("xdg"));
    environment.remove(QStringLiteral("ENVCHECK_SERVER"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process->setProcessEnvironment(environment);
    const QString program = QStringLiteral(ENVCHECK_PROGRAM);
    if (wrapper.isEmpty()) {
        process->start(program, arguments);
    } else {
        process->start(QStringLiteral("bash"),
                       QStringList{QStringLiteral("-c"), wrapper, program} + arguments);
    }
    return process;
}

tst_Program::Run tst_Program::finished(QProcess& process)
{
    Run result;
    if (!process.waitForFinished(TimeoutMs)) {
        process.kill();
        process.waitForFinished();
        result.error = QStringLiteral("it didn't end");
        return result;
    }
    result.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.error = QString::fromUtf8(process.readAllStandardError());
    return result;
}

// The results file tells that the network was measured while the dialog was open.
tst_Program::Run tst_Program::checked(const QStringList& arguments, int signal,
                                      const QString& wrapper) const
{
    QStringList all = arguments;
    QString results = file("results-of-check.json");
    const int given = static_cast<int>(all.indexOf(QStringLiteral("--results")));
    if (given >= 0) {
        results = all.at(given + 1);
    } else {
        all << QStringLiteral("--results") << results;
    }
    QFile::remove(results);
    const std::unique_ptr<QProcess> process = started(all, wrapper);
    const auto isMeasured = [&results] {
        QFile content(results);
        return content.open(QIODevice::ReadOnly) && content.readAll().contains("delay");
    };
    const bool isOver = QTest::qWaitFor(
        [&] { return isMeasured() || process->state() == QProcess::NotRunning; }, TimeoutMs);
    if (!isOver) {
        qWarning("The check never measured the network");
    }
    if (process->state() == QProcess::Running) { // else the id is 0, which means every program here
        ::kill(static_cast<pid_t>(process->processId()), signal);
    }
    return finished(*process);
}

QJsonObject tst_Program::jsonOf(const QString& path)
{
    QFile content(path);
    return content.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(content.readAll()).object()
                                             : QJsonObject();
}

QStringList tst_Program::linesOf(const QString& path)
{
    QFile content(path);
    return content.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(content.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
               : QStringList();
}

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

void tst_Program::checkEndedBySignal_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void tst_Program::checkEndedBySignal()
{
    QFETCH(int, signal);
    const Run result = checked(words("--scenario all-well"), signal);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.error, QString());
    const QStringList lines = result.out.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 6);
    QVERIFY2(lines.at(0).startsWith(QLatin1String("System   Passed")), qPrintable(result.out));
    QVERIFY(lines.at(4).contains(dataFolder()));
}

void tst_Program::checkPutOut()
{
    const std::unique_ptr<QProcess> process =
        started(QStringList{QStringLiteral("--scenario"), quickEnd()});
    const Run result = finished(*process);
    QCOMPARE(result.code, 3);
    QCOMPARE(result.error, QString());
}

void tst_Program::resultsAndReportGoWhereAsked()
{
    for (const char* name : {"r.json", "r.html", "r.txt"}) {
        const QString report = file(name);
        const Run result = checked(
            QStringList{QStringLiteral("--scenario"), QStringLiteral("all-well"),
                        QStringLiteral("--report"), report, QStringLiteral("--results"),
                        file("results.json"), QStringLiteral("--language"), QStringLiteral("fr")});
        QCOMPARE(result.code, 2);
        QVERIFY2(result.out.contains(report), qPrintable(result.out));
        QVERIFY(QFileInfo(report).size() > 1000);
    }
    const QJsonObject results = jsonOf(file("results.json"));
    QCOMPARE(results.value(QStringLiteral("version")).toInt(), 1);
    const QJsonObject report = jsonOf(file("r.json"));
    QString error;
    QVERIFY2(ReportJson::fromJson(report, &error), qPrintable(error));
    QCOMPARE(report.value(QStringLiteral("language")).toString(), QStringLiteral("fr"));
    QCOMPARE(report.value(QStringLiteral("scenario")).toString(), QStringLiteral("all-well"));
    QVERIFY(!QFileInfo::exists(dataFolder() + QStringLiteral("/reports/r.json")));
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

void tst_Program::unwritablePlaces_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("results") << "--results";
    QTest::newRow("report") << "--report";
}

// Said before the check opens: nobody's time is lost.
void tst_Program::unwritablePlaces()
{
    QFETCH(QString, option);
    for (const char* place : {"/nonexistent/r.json", "/", "/etc/passwd/r.json"}) {
        const Run result =
            run(words("--scenario all-well") + QStringList{option, QLatin1String(place)});
        QCOMPARE(result.code, 73);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.error.contains(QLatin1String(place)), qPrintable(result.error));
    }
}

// No file may grow above nothing: the disk is full for this process.
void tst_Program::diskFull()
{
    const std::unique_ptr<QProcess> process =
        started(QStringList{QStringLiteral("--scenario"), quickEnd()},
                QStringLiteral("trap '' XFSZ; ulimit -f 0; exec \"$0\" \"$@\""));
    const Run result = finished(*process);
    QCOMPARE(result.code, 73);
    QCOMPARE(result.out.count(QLatin1Char('\n')), 4); // the table is there
    QVERIFY2(result.error.contains(QLatin1String("reports/")), qPrintable(result.error));
    QVERIFY2(result.error.contains(QLatin1String("can't be written")), qPrintable(result.error));
    const QDir reports(dataFolder() + QStringLiteral("/reports"));
    QCOMPARE(reports.entryList(QDir::Files | QDir::Hidden), QStringList());
}

void tst_Program::unwritableHome()
{
    QFile blocking(file(".local"));
    QVERIFY(blocking.open(QIODevice::WriteOnly));
    const Run result = run(QStringList{QStringLiteral("--scenario"), quickEnd()});
    QCOMPARE(result.code, 73);
    QCOMPARE(result.out.count(QLatin1Char('\n')), 4);
    QVERIFY2(result.error.contains(QLatin1String("reports")), qPrintable(result.error));
}

void tst_Program::runsAreKeptAndCompared()
{
    // A good run of another day, then two that were put out.
    QVERIFY(QDir().mkpath(dataFolder()));
    QFile runs(dataFolder() + QStringLiteral("/runs.jsonl"));
    QVERIFY(runs.open(QIODevice::WriteOnly));
    runs.write("{\"outcome\":\"passed\",\"platform\":\"scripted\",\"finished\":\"2026-01-02T03:04:"
               "05.000Z\",\"operatingSystem\":\"Another system\"}\n");
    runs.close();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(run(QStringList{QStringLiteral("--scenario"), quickEnd(),
                                 QStringLiteral("--report"), file("r.json")})
                     .code,
                 3);
    }
    const QStringList lines = linesOf(runs.fileName());
    QCOMPARE(lines.size(), 3);
    const QJsonObject last = QJsonDocument::fromJson(lines.last().toUtf8()).object();
    QCOMPARE(last.value(QStringLiteral("outcome")).toString(), QStringLiteral("putOut"));
    QCOMPARE(last.value(QStringLiteral("report")).toString(), file("r.json"));
    QString error;
    const std::optional<Report> report = ReportJson::fromJson(jsonOf(file("r.json")), &error);
    QVERIFY2(report, qPrintable(error));
    QVERIFY(report->lastGoodRun);
    QCOMPARE(report->changes.at(0).what, ChangedThing::OperatingSystem);
    QCOMPARE(report->changes.at(0).before, QStringLiteral("Another system"));
}

// The tour answers yes to everything, also to a black picture.
void tst_Program::touredRunIsReported()
{
    const Run result = run(QStringList{QStringLiteral("--scenario"), QStringLiteral("camera-black"),
                                       QStringLiteral("--tour"), file("tour")});
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QVERIFY2(result.out.contains(file("tour/report.html")), qPrintable(result.out));
    const QString page = linesOf(file("tour/report.html")).join(QLatin1Char('\n'));
    QVERIFY(page.contains(QLatin1String("Answered yes to a black picture.")));
    QVERIFY(page.contains(QLatin1String("ITU-T G.114")));
    QVERIFY(page.contains(QLatin1String("not measured: a scripted device has no such figure")));
    QVERIFY(!page.contains(QLatin1String("the engine does not record it")));
    QVERIFY(!QFileInfo::exists(dataFolder() + QStringLiteral("/runs.jsonl")));
}

void tst_Program::redactedRun()
{
    for (const char* level : {"personal", "hash"}) {
        const Run result =
            run(QStringList{QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--account"),
                            QStringLiteral("robin@example.org"), QStringLiteral("--report"),
                            file("r.html"), QStringLiteral("--redact"), QLatin1String(level)});
        QCOMPARE(result.code, 3);
        QVERIFY(!linesOf(file("r.html")).join(QLatin1Char(' ')).contains(QLatin1String("robin")));
    }
    // The camera's name is in none of the outputs; nor, in those of a user's run, is the home.
    const Run tour =
        run({QStringLiteral("--scenario"), QStringLiteral("camera-black"), QStringLiteral("--tour"),
             file("tour"), QStringLiteral("--report"), file("r.json"), QStringLiteral("--results"),
             file("results.json"), QStringLiteral("--redact"), QStringLiteral("hash")});
    QCOMPARE(tour.code, 0);
    const QString device = QStringLiteral("Front camera");
    for (const QString& output : {tour.out, linesOf(file("r.json")).join(QLatin1Char(' ')),
                                  linesOf(file("results.json")).join(QLatin1Char(' '))}) {
        QVERIFY(output.contains(QLatin1Char('#')));
        QVERIFY2(!output.contains(device), qPrintable(output));
    }
    const Run kickedOut = run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--redact"),
                               QStringLiteral("personal")});
    const QStringList lines = linesOf(dataFolder() + QStringLiteral("/runs.jsonl"));
    for (const QString& output : {kickedOut.out, lines.last()}) {
        QVERIFY2(output.contains(QLatin1String("~/.local/share")), qPrintable(output));
        QVERIFY2(!output.contains(m_home->path()), qPrintable(output));
    }
    QVERIFY(QFileInfo::exists(QJsonDocument::fromJson(run(words("history --json")).out.toUtf8())
                                  .array()
                                  .last()[QStringLiteral("report")]
                                  .toString()));
    QCOMPARE(QFileInfo(dataFolder() + QStringLiteral("/redaction.key")).size(), 32);
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

void tst_Program::networkLines()
{
    const Run good = run(words("network --scenario all-well --count 2"));
    QCOMPARE(good.code, 0);
    const QStringList lines = good.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(0).startsWith(QLatin1String("server ")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(2).startsWith(QLatin1String("delay ")), qPrintable(lines.at(2)));
    QVERIFY(!good.out.contains(QLatin1Char('\r')));
    const Run none = run(words("network --scenario network-unmeasured --count 1"));
    QCOMPARE(none.code, 1);
    QVERIFY2(none.out.contains(QLatin1String("no answer")), qPrintable(none.out));
}

void tst_Program::networkCauses_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("cause");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("wrapper");
    // Nobody listens on the port of "discard" there.
    QTest::newRow("refused") << "--server 127.0.0.1:9"
                             << "refused"
                             << "the server refuses, " << 1 << "";
    // A network of its own, without any interface that is up.
    QTest::newRow("no route") << "--server 192.0.2.1"
                              << "noRoute"
                              << "no way to the server, " << 1
                              << "exec unshare --map-root-user --net \"$0\" \"$@\"";
    QTest::newRow("no server") << ""
                               << "noServer"
                               << "not measured: no server" << 69 << "";
    QTest::newRow("no answer") << "--scenario network-unmeasured"
                               << "noAnswer"
                               << "no answer, " << 1 << "";
    QTest::newRow("good") << "--scenario all-well"
                          << ""
                          << "delay " << 0 << "";
}

// As it comes, in the words of the report.
void tst_Program::networkCauses()
{
    QFETCH(QString, arguments);
    QFETCH(QString, cause);
    QFETCH(QString, text);
    QFETCH(QString, wrapper);
    if (!wrapper.isEmpty() && !canUnshareNetwork()) {
        QSKIP("The system lets nobody make a network namespace");
    }
    const QStringList all = words("network --count 1") + words(qPrintable(arguments));
    const Run lines = finished(*started(all, wrapper));
    QVERIFY2(lines.out.contains(text), qPrintable(lines.out));
    QTEST(lines.code, "code");
    const Run json = finished(*started(all + words("--json"), wrapper));
    QTEST(json.code, "code");
    QCOMPARE(json.out.count(QLatin1Char('\n')), 1);
    const QJsonObject line = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QCOMPARE(line.value(QStringLiteral("cause")).toString(), cause);
    QCOMPARE(line.value(QStringLiteral("verdict")).toString(),
             cause.isEmpty()                      ? QStringLiteral("passed")
             : cause == QLatin1String("noServer") ? QStringLiteral("notTested")
                                                  : QStringLiteral("failed"));
    QVERIFY(line.contains(QStringLiteral("lossPercent")));
}

void tst_Program::networkWithoutServer()
{
    const Run result = run(words("network --count 1"));
    QCOMPARE(result.code, 69);
    QVERIFY2(result.out.contains(QLatin1String(": not measured: no server\n")),
             qPrintable(result.out));
    QVERIFY2(result.error.contains(QLatin1String("--server")), qPrintable(result.error));
    QVERIFY2(result.error.contains(file(".config/envcheck/envcheck.conf")),
             qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
}

void tst_Program::configure(const char* path, const QByteArray& content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(file(path)).absolutePath()));
    QFile configuration(file(path));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write(content);
}

// Each one outdoes those before it: system, user, environment, option.
void tst_Program::serverSetOnceForAll()
{
    const auto measured = [this](const QString& wrapper, const QStringList& options) {
        const std::unique_ptr<QProcess> process =
            started(words("network --count 1") + options, wrapper);
        return finished(*process).out.section(QLatin1Char(','), 0, 0);
    };
    const QString plain = QStringLiteral("exec \"$0\" \"$@\"");
    configure("xdg/envcheck/envcheck.conf", "server=127.0.0.1:1111\n");
    QCOMPARE(measured(plain, {}), QStringLiteral("server 127.0.0.1:1111"));
    configure(".config/envcheck/envcheck.conf", "server=127.0.0.1:2222\n");
    QCOMPARE(measured(plain, {}), QStringLiteral("server 127.0.0.1:2222"));
    const QString variable = QStringLiteral("ENVCHECK_SERVER=127.0.0.1:3333 ") + plain;
    QCOMPARE(measured(variable, {}), QStringLiteral("server 127.0.0.1:3333"));
    QCOMPARE(measured(variable, words("--server 127.0.0.1:4444")),
             QStringLiteral("server 127.0.0.1:4444"));
}

void tst_Program::brokenConfiguration_data()
{
    QTest::addColumn<QString>("wrapper");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("named");
    const QString plain = QStringLiteral("exec \"$0\" \"$@\"");
    QTest::newRow("file, check") << plain << QByteArray("server=x:0\n") << "" << 65 << "server=x:0";
    QTest::newRow("file, network")
        << plain << QByteArray("sever=x\n") << "network" << 65 << "unknown key sever";
    QTest::newRow("file, not asked")
        << plain << QByteArray("sever=x\n") << "serve --help" << 0 << "";
    QTest::newRow("variable") << QStringLiteral("ENVCHECK_SERVER=http://x ") + plain << QByteArray()
                              << "network" << 64 << "ENVCHECK_SERVER=http://x";
}

void tst_Program::brokenConfiguration()
{
    QFETCH(QString, wrapper);
    QFETCH(QByteArray, content);
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    configure(".config/envcheck/envcheck.conf", content);
    const std::unique_ptr<QProcess> process = started(words(qPrintable(arguments)), wrapper);
    const Run result = finished(*process);
    QTEST(result.code, "code");
    QVERIFY2(result.error.contains(named), qPrintable(result.error));
    QCOMPARE(result.error.count(QLatin1Char('\n')), named.isEmpty() ? 0 : 1);
}

void tst_Program::serveAndMeasure()
{
    const std::unique_ptr<QProcess> server = started(words("serve --port 0"));
    QVERIFY(server->waitForReadyRead(TimeoutMs));
    static const QRegularExpression port(QStringLiteral("UDP port (\\d+)"));
    const QString number =
        port.match(QString::fromUtf8(server->readAllStandardOutput())).captured(1);
    QVERIFY(!number.isEmpty());
    for (const char* host : {"127.0.0.1", "[::1]", "stun:127.0.0.1", "stun:[::1]"}) {
        const Run measured = run(QStringList{
            QStringLiteral("network"), QStringLiteral("--count"), QStringLiteral("1"),
            QStringLiteral("--server"), QStringLiteral("%1:%2").arg(QLatin1String(host), number)});
        QCOMPARE(measured.code, 0);
        QVERIFY2(measured.out.contains(QLatin1String("delay ")), qPrintable(measured.out));
        QVERIFY2(!measured.out.contains(QLatin1String("::ffff")), qPrintable(measured.out));
    }
    ::kill(static_cast<pid_t>(server->processId()), SIGINT);
    QCOMPARE(finished(*server).code, 0);
}

void tst_Program::servedPortInUse()
{
    const std::unique_ptr<QProcess> server = started(words("serve --port 0"));
    QVERIFY(server->waitForReadyRead(TimeoutMs));
    static const QRegularExpression port(QStringLiteral("UDP port (\\d+)"));
    const QString number =
        port.match(QString::fromUtf8(server->readAllStandardOutput())).captured(1);
    const Run second = run(QStringList{QStringLiteral("serve"), QStringLiteral("--port"), number});
    QCOMPARE(second.code, 69);
    QVERIFY2(second.error.contains(number), qPrintable(second.error));
    server->terminate();
    QCOMPARE(finished(*server).code, 0);
}

void tst_Program::reports()
{
    QFile report(file("one.json"));
    QVERIFY(report.open(QIODevice::WriteOnly));
    report.write(ReportWriter::toJson(sampleReport()));
    report.close();
    const auto shown = [&](const char* options) {
        return run(QStringList{QStringLiteral("report"), report.fileName()} + words(options));
    };
    QVERIFY(shown("--language en").out.startsWith(QLatin1String("System check report\n")));
    QVERIFY(shown("--language ja --format html").out.contains(QLatin1String("lang=\"ja\"")));
    QCOMPARE(QJsonDocument::fromJson(shown("--format json").out.toUtf8()).object(),
             ReportJson::toJson(sampleReport()));
    const Run room = run(QStringList{QStringLiteral("report"), report.fileName(), report.fileName(),
                                     QStringLiteral("--format"), QStringLiteral("room")});
    QVERIFY2(room.out.contains(QLatin1String("Reports: 2\n")), qPrintable(room.out));
    QVERIFY(!shown("--redact personal").out.contains(QLatin1String("robin")));
    const Run list = run(QStringList{QStringLiteral("report"), report.fileName(), report.fileName(),
                                     QStringLiteral("--format"), QStringLiteral("json")});
    QCOMPARE(QJsonDocument::fromJson(list.out.toUtf8()).array().size(), 2);
}

void tst_Program::oneBadReportAmongOthers_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"text", "html", "json", "room", "csv", "jsonl", "map"}) {
        QTest::newRow(format) << QString::fromLatin1(format);
    }
}

// What is no report gets one line each, a pipe without waiting for its writer.
void tst_Program::oneBadReportAmongOthers()
{
    QFETCH(QString, format);
    QFile report(file("one.json"));
    QVERIFY(report.open(QIODevice::WriteOnly));
    report.write(ReportWriter::toJson(sampleReport()));
    report.close();
    QCOMPARE(::mkfifo(QFile::encodeName(file("pipe.json")).constData(), 0600), 0);
    const Run alone = run({QStringLiteral("report"), report.fileName(), report.fileName(),
                           QStringLiteral("--format"), format});
    QCOMPARE(alone.code, 0);
    const Run mixed = run({QStringLiteral("report"), file("not-there.json"), report.fileName(),
                           file("pipe.json"), QStringLiteral("/dev/zero"), m_home->path(),
                           report.fileName(), QStringLiteral("--format"), format});
    QCOMPARE(mixed.code, 65);
    QCOMPARE(mixed.out, alone.out);
    const QStringList lines = mixed.error.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 4);
    QVERIFY2(lines.at(0).contains(file("not-there.json")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).contains(file("pipe.json")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).contains(QLatin1String("/dev/zero")), qPrintable(lines.at(2)));
}

void tst_Program::reportsByList()
{
    QFile report(file("one.json"));
    QVERIFY(report.open(QIODevice::WriteOnly));
    report.write(ReportWriter::toJson(sampleReport()));
    report.close();
    const QStringList csv = {QStringLiteral("report"), QStringLiteral("--format"),
                             QStringLiteral("csv")};
    const Run named = run(csv + QStringList{report.fileName(), report.fileName()});
    const QString listed = QStringLiteral("cd \"$HOME\"; printf 'one.json\\none.json\\n' | ") +
                           QStringLiteral("\"$0\" \"$@\"");
    const Run byList = finished(*started(csv + words("--files-from -"), listed));
    QCOMPARE(byList.code, 0);
    QCOMPARE(byList.out, named.out);
    const Run byInput = finished(
        *started(csv + words("-"), QStringLiteral("\"$0\" \"$@\" < ") + report.fileName()));
    QCOMPARE(byInput.code, 0);
    QCOMPARE(byInput.out.count(QLatin1Char('\n')), 2);
    QCOMPARE(run(csv + words("--files-from /nonexistent")).code, 65);
}

void tst_Program::historyAndLastReport()
{
    const Run none = run(words("history"));
    QCOMPARE(none.code, 0);
    QCOMPARE(none.out, QStringLiteral("There are no earlier runs.\n"));
    const Run noReport = run(words("report"));
    QCOMPARE(noReport.code, 65);
    QCOMPARE(noReport.error.count(QLatin1Char('\n')), 1);
    QCOMPARE(run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--account"),
                  QStringLiteral("robin")})
                 .code,
             3);
    QCOMPARE(run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--report"),
                  file("r.html"), QStringLiteral("--redact"), QStringLiteral("hash")})
                 .code,
             3);
    const Run table = run(words("history"));
    QCOMPARE(table.out.count(QLatin1Char('\n')), 3);
    QVERIFY2(table.out.contains(QLatin1String("The session was ended")), qPrintable(table.out));
    const QJsonArray list =
        QJsonDocument::fromJson(run(words("history --json")).out.toUtf8()).array();
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(1)[QStringLiteral("report")].toString(), file("r.html"));
    // The page of the last run is no report to read.
    const Run last = run(words("report --format json"));
    QCOMPARE(last.code, 0);
    QVERIFY(last.out.contains(QLatin1String("robin")));
}

// The result table goes to standard error then.
void tst_Program::documentOnOutput()
{
    const Run report = run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--report"),
                            QStringLiteral("-")});
    QCOMPARE(report.code, 3);
    QString error;
    QVERIFY2(ReportJson::fromJson(QJsonDocument::fromJson(report.out.toUtf8()).object(), &error),
             qPrintable(error));
    QVERIFY2(report.error.startsWith(QLatin1String("System ")), qPrintable(report.error));
    const Run results = run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--results"),
                             QStringLiteral("-"), QStringLiteral("--report"), file("r.json")});
    QVERIFY(
        QJsonDocument::fromJson(results.out.toUtf8()).object().contains(QStringLiteral("results")));
    QVERIFY(results.error.contains(file("r.json")));
}

void tst_Program::reportsEndedBySignal_data()
{
    checkEndedBySignal_data();
}

// Also while it waits for standard input, or for the reader of its output.
void tst_Program::reportsEndedBySignal()
{
    QFETCH(int, signal);
    QFile report(file("one.json"));
    QVERIFY(report.open(QIODevice::WriteOnly));
    report.write(ReportWriter::toJson(sampleReport()));
    report.close();
    QFile list(file("list"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    for (int i = 0; i < 1000; ++i) {
        list.write(QFile::encodeName(report.fileName()) + '\n');
    }
    list.close();
    // The pipe's other end is open in the shell, which neither writes nor reads.
    const QString unread = QStringLiteral("mkfifo \"$HOME/p\"; exec 3<>\"$HOME/p\"; echo; "
                                          "exec \"$0\" \"$@\" >&3");
    const QString unwritten = QStringLiteral("mkfifo \"$HOME/q\"; exec 3<>\"$HOME/q\"; echo; "
                                             "exec \"$0\" \"$@\" <&3");
    const std::vector<std::pair<QString, QString>> cases = {
        {unread, QStringLiteral("report --files-from ") + list.fileName()},
        {unwritten, QStringLiteral("report -")}};
    for (const auto& [wrapper, arguments] : cases) {
        const std::unique_ptr<QProcess> process = started(words(qPrintable(arguments)), wrapper);
        QVERIFY(process->waitForReadyRead(TimeoutMs));
        const auto isBlocked = [&process] {
            QFile wait(QStringLiteral("/proc/%1/wchan").arg(process->processId()));
            const QByteArray name = wait.open(QIODevice::ReadOnly) ? wait.readAll() : QByteArray();
            QFile command(QStringLiteral("/proc/%1/comm").arg(process->processId()));
            return command.open(QIODevice::ReadOnly) && command.readAll() == "envcheck\n" &&
                   !name.isEmpty() && name != "0";
        };
        QTRY_VERIFY_WITH_TIMEOUT(isBlocked(), TimeoutMs);
        ::kill(static_cast<pid_t>(process->processId()), signal);
        QVERIFY(process->waitForFinished(TimeoutMs));
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        QCOMPARE(process->exitCode(), signal);
    }
}

QTEST_GUILESS_MAIN(tst_Program)
#include "tst_Program.moc"
