// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Options.h"

#include "host/report/ReportWords.h"
#include "platform/backend/StunServer.h"
#include "platform/backend/WebAddress.h"

#include <QCommandLineParser>
#include <optional>

namespace {

constexpr int MaxPort = 65535;

// Bits for the commands that accept an option.
enum CommandBit : unsigned {
    InCheck = 1U << 0,
    InDevices = 1U << 1,
    InNetwork = 1U << 2,
    InServe = 1U << 3,
    InReport = 1U << 4,
    InEngine = InCheck | InDevices | InNetwork,
    InAll = InEngine | InServe | InReport,
};

struct CommandName
{
    Options::Command command;
    CommandBit bit;
    const char* name; // empty for the check
    const char* description;
};

constexpr CommandName CommandNames[] = {
    {Options::Command::Check, InCheck, "",
     "Checks the network, the camera, the speaker and the microphone before an online class."},
    {Options::Command::Devices, InDevices, "devices",
     "Lists the cameras, microphones and speakers with their states."},
    {Options::Command::Network, InNetwork, "network",
     "Measures delay and loss and prints the figures as they come."},
    {Options::Command::Serve, InServe, "serve",
     "Answers measurements of other machines, as a small STUN server, until it is stopped."},
    {Options::Command::Report, InReport, "report",
     "Shows reports of earlier runs as text, HTML or JSON, or several as one table."},
};

struct Definition
{
    const char* name;
    unsigned commands;
    const char* value; // null if the option has no value
    const char* description;
};

constexpr Definition Definitions[] = {
    {"platform", InEngine, "NAME",
     "Devices to check: devices (of this machine, the default) or scripted."},
    {"scenario", InEngine, "SCENARIO",
     "What the scripted devices play: a file, or the name of a bundled one such as all-well. "
     "Implies --platform scripted."},
    {"language", InCheck | InReport, "LANGUAGE",
     "Language of the texts, such as en or zh_CN; the system's by default."},
    {"server", InCheck | InNetwork, "HOST[:PORT]",
     "STUN server that delay and loss are measured to, also as stun:HOST:PORT. Without a port the "
     "DNS records of the domain are asked (_stun._udp), else the port is 3478. ENVCHECK_SERVER or "
     "a configuration file can name it, too. Without a server the network is not measured: a "
     "small responder on this machine answers."},
    {"account", InCheck, "TEXT", "Account to show; the system's user by default."},
    {"nickname", InCheck, "TEXT", "Nickname to show; the system's user by default."},
    {"cdn", InCheck, "FIRST/SECOND", "CDN to show."},
    {"results", InCheck, "FILE",
     "Also write the bare results to FILE, as JSON, after each change."},
    {"report", InCheck, "FILE",
     "Write the report to FILE instead of the default place; its ending (.json, .html or .txt) "
     "is its format."},
    {"report-url", InCheck, "URL", "The address to post report codes to."},
    {"tour", InCheck, "FOLDER",
     "Walk through every step automatically and save a picture of each in FOLDER."},
    {"json", InDevices, nullptr, "Print JSON instead of a table."},
    {"count", InNetwork, "N",
     "End after N figures; without it the command runs until it is stopped."},
    {"port", InServe, "N", "UDP port to answer on; 3478 by default, 0 takes a free one."},
    {"format", InReport, "FORMAT",
     "text (the default), html, json, or room: one line for each report."},
    {"redact", InCheck | InReport, "LEVEL",
     "What to leave out: none (the default), personal (no addresses, names and accounts) or "
     "hash (short hashes in their place)."},
    {"quiet", InCheck, nullptr, "Open no window with the outcome after a check that failed."},
    {"verbose", InAll, nullptr, "Also write the log to the terminal."},
};

const CommandName& nameOf(Options::Command command)
{
    for (const CommandName& candidate : CommandNames) {
        if (candidate.command == command) {
            return candidate;
        }
    }
    return CommandNames[0];
}

QString option(const char* name)
{
    return QLatin1String(name);
}

void addOptions(QCommandLineParser& parser, unsigned commands)
{
    for (const Definition& definition : Definitions) {
        if ((definition.commands & commands) != 0) {
            parser.addOption({option(definition.name), QLatin1String(definition.description),
                              QLatin1String(definition.value)});
        }
    }
    parser.addOptions(
        {{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
         {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")}});
}

std::optional<int> numberIn(const QString& text, int least, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional<int>(number)
                                                         : std::nullopt;
}

// Reads the values of the options in order, and stops at the first wrong one.
class Reader
{
public:
    Reader(const QCommandLineParser& parser, Options& options)
        : m_parser(parser), m_options(options)
    {
    }

    void readAll()
    {
        readCommand();
        readPlainTexts();
        readPlatform();
        readAddresses();
        readNumbers();
        readReportOptions();
    }

private:
    bool isSet(const char* name) const { return m_parser.isSet(option(name)); }
    QString value(const char* name) const { return m_parser.value(option(name)); }

    void fail(const QString& problem)
    {
        if (m_options.error.isEmpty()) {
            m_options.error = problem;
        }
    }

    void failAt(const char* name, const QString& whatItTakes)
    {
        fail(QStringLiteral("--%1 %2: it takes %3").arg(option(name), value(name), whatItTakes));
    }

    void readCommand()
    {
        QStringList texts = m_parser.positionalArguments();
        if (!texts.isEmpty()) {
            const auto* found = std::find_if(
                std::begin(CommandNames) + 1, std::end(CommandNames),
                [&texts](const CommandName& c) { return texts.first() == QLatin1String(c.name); });
            if (found == std::end(CommandNames)) {
                fail(QStringLiteral("unknown command '%1': see --help").arg(texts.first()));
                return;
            }
            m_options.command = found->command;
            texts.removeFirst();
        }
        if (m_options.command == Options::Command::Report) {
            m_options.files = texts;
        } else if (!texts.isEmpty()) {
            fail(QStringLiteral("'%1' is one argument too many: see --help").arg(texts.first()));
        }
        const CommandName& command = nameOf(m_options.command);
        for (const Definition& definition : Definitions) {
            if ((definition.commands & command.bit) == 0 && isSet(definition.name)) {
                fail(QStringLiteral("--%1 doesn't go with %2: see --help")
                         .arg(option(definition.name), command.bit == InCheck
                                                           ? QStringLiteral("the check")
                                                           : QLatin1String(command.name)));
            }
        }
    }

    void readPlainTexts()
    {
        m_options.language = value("language");
        m_options.account = value("account");
        m_options.nickname = value("nickname");
        m_options.cdn = value("cdn");
        m_options.isVerbose = isSet("verbose");
        m_options.isQuiet = isSet("quiet");
        m_options.isJson = isSet("json");
        readFile("results", m_options.resultsFile);
        readFile("report", m_options.reportFile);
        readFile("tour", m_options.tourFolder);
        readFile("scenario", m_options.scenario);
    }

    void readFile(const char* name, QString& result)
    {
        result = value(name);
        if (isSet(name) && result.isEmpty()) {
            fail(QStringLiteral("--%1 needs a name that isn't empty").arg(option(name)));
        }
    }

    void readPlatform()
    {
        const auto platform = ReportWords::find<Options::Platform>(value("platform"));
        if (isSet("platform") && !platform) {
            failAt("platform", QStringLiteral("devices or scripted"));
        }
        if (platform == Options::Platform::Devices && isSet("scenario")) {
            fail(QStringLiteral("--scenario doesn't go with --platform devices: leave one out"));
        }
        if (platform == Options::Platform::Scripted || isSet("scenario")) {
            m_options.platform = Options::Platform::Scripted;
            if (m_options.scenario.isEmpty()) {
                m_options.scenario = QLatin1String(Options::DefaultScenario);
            }
            if (isSet("server")) {
                fail(QStringLiteral("--server doesn't go with scripted devices: leave one out"));
            }
        }
    }

    void readAddresses()
    {
        m_options.server = value("server");
        if (isSet("server") && !Platform::StunServer::fromText(m_options.server)) {
            failAt("server", QLatin1String(Platform::StunServer::Form));
        }
        m_options.reportUrl = value("report-url");
        if (isSet("report-url") && !Platform::webAddress(m_options.reportUrl)) {
            failAt("report-url", QStringLiteral("an http or https address"));
        }
    }

    void readNumbers()
    {
        m_options.port = Platform::StunServer::DefaultPort;
        if (isSet("port")) {
            const std::optional<int> port = numberIn(value("port"), 0, MaxPort);
            if (!port) {
                failAt("port", QStringLiteral("a number from 0 to %1").arg(MaxPort));
            }
            m_options.port = static_cast<quint16>(port.value_or(0));
        }
        if (isSet("count")) {
            constexpr int MaxCount = 1000000;
            const std::optional<int> count = numberIn(value("count"), 1, MaxCount);
            if (!count) {
                failAt("count", QStringLiteral("a number from 1 to %1").arg(MaxCount));
            }
            m_options.count = count.value_or(0);
        }
    }

    void readReportOptions()
    {
        const QStringList formats = {QStringLiteral("text"), QStringLiteral("html"),
                                     QStringLiteral("json"), QStringLiteral("room")};
        const int format = static_cast<int>(formats.indexOf(value("format")));
        if (isSet("format") && format < 0) {
            failAt("format", QStringLiteral("text, html, json or room"));
        }
        m_options.format = static_cast<Options::Format>(std::max(0, format));
        const auto level = ReportWords::find<Options::Redaction>(value("redact"));
        if (isSet("redact") && !level) {
            failAt("redact", QStringLiteral("none, personal or hash"));
        }
        m_options.redaction = level.value_or(Options::Redaction::None);
        if (m_options.command == Options::Command::Report && m_options.files.isEmpty()) {
            fail(QStringLiteral("report needs the FILE of a report: see report --help"));
        }
    }

    const QCommandLineParser& m_parser;
    Options& m_options;
};

} // namespace

Options Options::parse(const QStringList& arguments)
{
    Options options;
    QCommandLineParser parser;
    addOptions(parser, InAll);
    if (!parser.parse(arguments)) {
        options.error = QStringLiteral("%1 See --help.").arg(parser.errorText());
        return options;
    }
    Reader(parser, options).readAll();
    if (parser.isSet(option("help"))) {
        options.helpFor = options.command;
        options.command = Command::Help;
        options.error.clear();
    } else if (parser.isSet(option("version"))) {
        options.command = Command::Version;
        options.error.clear();
    }
    return options;
}

QString Options::helpText(Command command)
{
    const CommandName& name = nameOf(command);
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(name.description));
    addOptions(parser, name.bit);
    if (command != Command::Check) {
        parser.addPositionalArgument(QLatin1String(name.name), QString(), QLatin1String(name.name));
        if (command == Command::Report) {
            parser.addPositionalArgument(QStringLiteral("FILE"),
                                         QStringLiteral("A report that a run has written."),
                                         QStringLiteral("FILE..."));
        }
        return parser.helpText();
    }
    QString syntax = QStringLiteral("[devices|network|serve|report]");
    for (const CommandName& other : CommandNames) {
        if (other.command != Command::Check) {
            parser.addPositionalArgument(QLatin1String(other.name),
                                         QLatin1String(other.description), syntax);
            syntax = QStringLiteral(" "); // shown once
        }
    }
    return parser.helpText() +
           QStringLiteral("\nWithout a command the check opens. Each command has its own --help."
                          "\n\nExit codes: 0 all passed, 1 finished with failures, 2 left early, "
                          "3 put out by the engine,\n4 the tour found a fault, 64 wrong usage, 65 "
                          "a named file can't be "
                          "used, 69 something needed isn't there,\n73 a file can't be written.\n");
}
