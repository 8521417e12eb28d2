// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Console.h"
#include "host/HelpLayout.h"
#include "host/Languages.h"
#include "host/Options.h"

#include <QtTest>

Q_DECLARE_METATYPE(Options::Command)

class tst_Options : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothing();
    void textOptions_data();
    void textOptions();
    void platform_data();
    void platform();
    void goodServers_data();
    void goodServers();
    void commands_data();
    void commands();
    void commandOptions();
    void helpAndVersion();
    void wrongOnes_data();
    void wrongOnes();
    void optionOfAnotherCommand();
    void helpNamesEveryCommand();
    void helpNamesEveryOption_data();
    void helpNamesEveryOption();
    void languageIsFoundBesideErrors_data();
    void languageIsFoundBesideErrors();
    void helpFitsInEveryLanguage_data();
    void helpFitsInEveryLanguage();

private:
    Languages m_languages;
};

namespace {

Options parsed(const QStringList& arguments)
{
    return Options::parse(QStringList{QStringLiteral("envcheck")} + arguments);
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

void tst_Options::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_Options::nothing()
{
    const Options options = parsed({});
    QCOMPARE(options.error, QString());
    QCOMPARE(options.command, Options::Command::Check);
    QCOMPARE(options.platform, Options::Platform::Devices);
    for (const QString& text : {options.scenario, options.language, options.server, options.account,
                                options.nickname, options.cdn, options.resultsFile,
                                options.reportFile, options.reportUrl, options.tourFolder}) {
        QCOMPARE(text, QString());
    }
    QVERIFY(!options.isVerbose);
    QVERIFY(!options.isQuiet);
    QCOMPARE(options.redaction, Options::Redaction::None);
}

void tst_Options::textOptions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("language") << "language"
                              << "zh_CN";
    QTest::newRow("account") << "account"
                             << "a b <c>";
    QTest::newRow("nickname") << "nickname"
                              << "--robin";
    QTest::newRow("cdn") << "cdn"
                         << "one/two";
    QTest::newRow("results") << "results"
                             << "r.json";
    QTest::newRow("report") << "report"
                            << "r.html";
    QTest::newRow("tour") << "tour"
                          << "folder";
    QTest::newRow("report-url") << "report-url"
                                << "https://example.org/x";
    QTest::newRow("report-token-file") << "report-token-file"
                                       << "token";
}

void tst_Options::textOptions()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    const Options options = parsed({QStringLiteral("--%1=%2").arg(name, value)});
    QCOMPARE(options.error, QString());
    const QMap<QString, QString> values = {
        {QStringLiteral("language"), options.language},
        {QStringLiteral("account"), options.account},
        {QStringLiteral("nickname"), options.nickname},
        {QStringLiteral("cdn"), options.cdn},
        {QStringLiteral("results"), options.resultsFile},
        {QStringLiteral("report"), options.reportFile},
        {QStringLiteral("tour"), options.tourFolder},
        {QStringLiteral("report-url"), options.reportUrl},
        {QStringLiteral("report-token-file"), options.reportTokenFile}};
    for (auto it = values.begin(); it != values.end(); ++it) {
        QCOMPARE(it.value(), it.key() == name ? value : QString());
    }
}

void tst_Options::platform_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isScripted");
    QTest::addColumn<QString>("scenario");
    QTest::newRow("devices") << words("--platform devices") << false << QString();
    QTest::newRow("scripted") << words("--platform scripted") << true << "all-well";
    QTest::newRow("a scenario") << words("--scenario no-camera") << true << "no-camera";
    QTest::newRow("both") << words("--platform scripted --scenario x.json") << true << "x.json";
}

void tst_Options::platform()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, isScripted);
    const Options options = parsed(arguments);
    QCOMPARE(options.error, QString());
    QCOMPARE(options.platform == Options::Platform::Scripted, isScripted);
    QTEST(options.scenario, "scenario");
}

void tst_Options::goodServers_data()
{
    QTest::addColumn<QString>("server");
    for (const char* server :
         {"stun:stun.example.org:3478", "stun:192.0.2.1:1", "stun:[2001:db8::1]:65535",
          "stun:localhost:19302", "stun:example.org", "example.org", "example.org:1", "[::1]",
          "[2001:db8::1]:65535", "192.0.2.1"}) {
        QTest::newRow(server) << QString::fromLatin1(server);
    }
}

void tst_Options::goodServers()
{
    QFETCH(QString, server);
    const Options options = parsed({QStringLiteral("--server"), server});
    QCOMPARE(options.error, QString());
    QCOMPARE(options.server, server);
}

void tst_Options::commands_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<Options::Command>("command");
    QTest::newRow("devices") << "devices" << Options::Command::Devices;
    QTest::newRow("an option first") << "--json devices" << Options::Command::Devices;
    QTest::newRow("network") << "network" << Options::Command::Network;
    QTest::newRow("serve") << "serve" << Options::Command::Serve;
    QTest::newRow("report") << "report a.json" << Options::Command::Report;
}

void tst_Options::commands()
{
    QFETCH(QString, arguments);
    const Options options = parsed(words(qPrintable(arguments)));
    QCOMPARE(options.error, QString());
    QTEST(options.command, "command");
}

void tst_Options::commandOptions()
{
    QVERIFY(parsed(words("devices --json")).isJson);
    QCOMPARE(parsed(words("network")).count, 0);
    QCOMPARE(parsed(words("network --count 3")).count, 3);
    QCOMPARE(parsed(words("serve")).port, quint16(3478));
    QCOMPARE(parsed(words("serve --port 0")).port, quint16(0));
    QCOMPARE(parsed(words("serve --port 65535")).port, quint16(65535));
    QVERIFY(parsed(words("serve --verbose")).isVerbose);
    QVERIFY(parsed(words("--quiet")).isQuiet);
    const Options report = parsed(words("report a.json b.json --format room --redact hash"));
    QCOMPARE(report.files, words("a.json b.json"));
    QCOMPARE(report.format, Options::Format::Room);
    QCOMPARE(report.redaction, Options::Redaction::Hash);
    QCOMPARE(parsed(words("report a --format html")).format, Options::Format::Html);
    QCOMPARE(parsed(words("report a --format json")).format, Options::Format::Json);
    QCOMPARE(parsed(words("report a --format text")).format, Options::Format::Text);
    QCOMPARE(parsed(words("--redact personal")).redaction, Options::Redaction::Personal);
    QCOMPARE(parsed(words("--redact none")).redaction, Options::Redaction::None);
    QVERIFY(parsed(words("--redact none")).isRedactionGiven);
    QVERIFY(!parsed(words("--quiet")).isRedactionGiven);
}

void tst_Options::helpAndVersion()
{
    QCOMPARE(parsed(words("--help")).command, Options::Command::Help);
    QCOMPARE(parsed(words("-h")).helpFor, Options::Command::Check);
    QCOMPARE(parsed(words("report --help")).helpFor, Options::Command::Report);
    QCOMPARE(parsed(words("report --help")).error, QString());
    QCOMPARE(parsed(words("--version")).command, Options::Command::Version);
    QCOMPARE(parsed(words("-v")).command, Options::Command::Version);
}

void tst_Options::wrongOnes_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("named"); // what the line must name
    QTest::newRow("unknown option") << "--nothing"
                                    << "nothing";
    QTest::newRow("unknown short option") << "-x"
                                          << "x";
    QTest::newRow("no value") << "--server"
                              << "--server";
    QTest::newRow("unknown command") << "walk"
                                     << "walk";
    QTest::newRow("unknown platform") << "--platform moon"
                                      << "moon";
    QTest::newRow("scenario of devices") << "--platform devices --scenario x"
                                         << "--scenario";
    QTest::newRow("server of scripted ones") << "--scenario x --server stun:a:1"
                                             << "--server";
    QTest::newRow("empty scenario") << "--scenario="
                                    << "--scenario";
    QTest::newRow("empty results") << "--results="
                                   << "--results";
    QTest::newRow("empty report") << "--report="
                                  << "--report";
    QTest::newRow("address of scripted ones") << "--scenario x --report-url https://a"
                                              << "--report-url";
    QTest::newRow("token of scripted ones") << "--platform scripted --report-token-file x"
                                            << "--report-token-file";
    QTest::newRow("empty token file") << "--report-token-file="
                                      << "--report-token-file";
    QTest::newRow("empty tour") << "--tour="
                                << "--tour";
    for (const char* server : {"stun.example.org:x", "example.org:", "::1", "stun:example.org:0",
                               "stun:example.org:65536", "stun::3478", "turn:example.org:3478",
                               "stun:::1:3478", "stun:a/b:1", "stun:example.org:x"}) {
        QTest::newRow(server) << QStringLiteral("--server %1").arg(QLatin1String(server))
                              << QString::fromLatin1(server);
    }
    QTest::newRow("file as address") << "--report-url file:///tmp/x"
                                     << "file:///tmp/x";
    QTest::newRow("no host") << "--report-url https://"
                             << "https://";
    QTest::newRow("count 0") << "network --count 0"
                             << "--count 0";
    QTest::newRow("count of letters") << "network --count many"
                                      << "many";
    QTest::newRow("port too high") << "serve --port 65536"
                                   << "65536";
    QTest::newRow("port below") << "serve --port=-1"
                                << "-1";
    QTest::newRow("unknown format") << "report a --format pdf"
                                    << "pdf";
    QTest::newRow("unknown redaction") << "report a --redact some"
                                       << "some";
    QTest::newRow("loop with a person") << "--loop"
                                        << "--unattended";
    QTest::newRow("report of another ending") << "--report a.pdf"
                                              << "a.pdf";
    QTest::newRow("diagnosis without its ending") << "--diagnose a.json"
                                                  << ".zip";
    QTest::newRow("diagnosis on the output") << "--diagnose -"
                                             << ".zip";
    QTest::newRow("diagnosis as a tour") << "--diagnose a.zip --tour b"
                                         << "--tour";
    QTest::newRow("loop of another command") << "devices --loop"
                                             << "--loop";
    QTest::newRow("an argument too many") << "devices all"
                                          << "all";
    QTest::newRow("option of another command") << "--json"
                                               << "--json";
    QTest::newRow("option of the check") << "serve --account x"
                                         << "--account";
    QTest::newRow("port of network") << "network --port 1"
                                     << "--port";
}

void tst_Options::wrongOnes()
{
    QFETCH(QString, arguments);
    QFETCH(QString, named);
    const Options options = parsed(words(qPrintable(arguments)));
    QVERIFY2(options.error.contains(named), qPrintable(options.error));
    QVERIFY(!options.error.contains(QLatin1Char('\n')));
}

void tst_Options::optionOfAnotherCommand()
{
    const QString ofCheck = parsed(words("--json")).error;
    QVERIFY2(ofCheck.contains(qtTrId("ID_Host_Usage_TheCheck")), qPrintable(ofCheck));
    const QString ofDevices = parsed(words("devices --tour x")).error;
    QVERIFY2(ofDevices.contains(QStringLiteral("devices")), qPrintable(ofDevices));
}

void tst_Options::helpNamesEveryCommand()
{
    const QString help = Options::helpText(Options::Command::Check);
    for (const char* command : {"devices", "network", "serve", "report"}) {
        const QRegularExpression line(QStringLiteral("^  %1 +\\S").arg(command),
                                      QRegularExpression::MultilineOption);
        QVERIFY2(help.contains(line), command);
    }
}

void tst_Options::helpNamesEveryOption_data()
{
    QTest::addColumn<Options::Command>("command");
    QTest::addColumn<QString>("options");
    QTest::newRow("check")
        << Options::Command::Check
        << "platform scenario language server account nickname cdn results "
           "report report-url report-token-file tour unattended diagnose loop redact "
           "quiet verbose help version";
    QTest::newRow("devices") << Options::Command::Devices
                             << "platform scenario language json verbose help version";
    QTest::newRow("network") << Options::Command::Network
                             << "platform scenario language server json count verbose help version";
    QTest::newRow("serve") << Options::Command::Serve << "language port verbose help version";
    QTest::newRow("report") << Options::Command::Report
                            << "language format files-from redact verbose help version";
    QTest::newRow("history") << Options::Command::History << "language json verbose help version";
}

void tst_Options::helpNamesEveryOption()
{
    QFETCH(Options::Command, command);
    QFETCH(QString, options);
    QStringList found;
    static const QRegularExpression option(QStringLiteral("^  (?:-\\w, )?--([a-z-]+)"),
                                           QRegularExpression::MultilineOption);
    auto matches = option.globalMatch(Options::helpText(command));
    while (matches.hasNext()) {
        found << matches.next().captured(1);
    }
    QStringList expected = words(qPrintable(options));
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void tst_Options::languageIsFoundBesideErrors_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("alone") << "--language fr";
    QTest::newRow("with =") << "devices --language=fr --json";
    QTest::newRow("after an unknown option") << "--nothing --language fr";
    QTest::newRow("before a missing value") << "--language fr --server";
    QTest::newRow("with help") << "serve --help --language fr";
}

void tst_Options::languageIsFoundBesideErrors()
{
    QFETCH(QString, arguments);
    QCOMPARE(
        Options::languageIn(QStringList{QStringLiteral("envcheck")} + words(qPrintable(arguments))),
        QStringLiteral("fr"));
}

void tst_Options::helpFitsInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : Languages::available()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_Options::helpFitsInEveryLanguage()
{
    QFETCH(QString, language);
    Languages languages;
    QCOMPARE(languages.use(language), QString());
    using Command = Options::Command;
    for (const Command command :
         {Command::Check, Command::Devices, Command::Network, Command::Serve, Command::Report}) {
        const QString help = Options::helpText(command);
        QVERIFY(help.contains(QLatin1String("envcheck ")));
        QVERIFY2(!help.contains(QLatin1String("ID_")), qPrintable(help));
        for (const QString& line : help.split(QLatin1Char('\n'))) {
            QVERIFY2(Console::columns(line) <= HelpLayout::MaxColumns, qPrintable(line));
        }
    }
    for (const char* wrong :
         {"--nothing", "--server", "walk", "--platform moon", "serve --cdn x"}) {
        const QString error = parsed(words(wrong)).error;
        QVERIFY2(!error.isEmpty() && !error.contains(QLatin1String("ID_")), qPrintable(error));
    }
}

QTEST_GUILESS_MAIN(tst_Options)
#include "tst_Options.moc"
