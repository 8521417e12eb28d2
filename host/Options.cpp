// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Options.h"

#include "host/ExitCode.h"
#include "host/HelpLayout.h"
#include "host/report/ReportWords.h"
#include "platform/backend/StunServer.h"
#include "platform/backend/WebAddress.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <optional>

namespace {

constexpr int MaxPort = 65535;
constexpr const char* CheckName = "check"; // the command that needs no name
const QLatin1String JsonOption("--json");
const QLatin1String ReportOption("--report");

// Bits for the commands that accept an option.
enum CommandBit : unsigned {
    InCheck = 1U << 0,
    InDevices = 1U << 1,
    InNetwork = 1U << 2,
    InServe = 1U << 3,
    InReport = 1U << 4,
    InHistory = 1U << 5,
    InEngine = InCheck | InDevices | InNetwork,
    InAll = InEngine | InServe | InReport | InHistory,
};

struct CommandName
{
    Options::Command command;
    CommandBit bit;
    const char* name;   // empty for the check
    const char* textId; // what it does
};

constexpr CommandName CommandNames[] = {
    {Options::Command::Check, InCheck, "", "ID_Host_Help_Check"},
    {Options::Command::Devices, InDevices, "devices", "ID_Host_Help_Devices"},
    {Options::Command::Network, InNetwork, "network", "ID_Host_Help_Network"},
    {Options::Command::Serve, InServe, "serve", "ID_Host_Help_Serve"},
    {Options::Command::Report, InReport, "report", "ID_Host_Help_Report"},
    {Options::Command::History, InHistory, "history", "ID_Host_Help_History"},
};

struct Definition
{
    const char* name;
    unsigned commands;
    const char* value;  // null if the option has no value
    const char* textId; // what it does
};

constexpr Definition Definitions[] = {
    {"platform", InEngine, "NAME", "ID_Host_Option_Platform"},
    {"scenario", InEngine, "SCENARIO", "ID_Host_Option_Scenario"},
    {"language", InAll, "LANGUAGE", "ID_Host_Option_Language"},
    {"server", InCheck | InNetwork, "HOST[:PORT]", "ID_Host_Option_Server"},
    {"account", InCheck, "TEXT", "ID_Host_Option_Account"},
    {"nickname", InCheck, "TEXT", "ID_Host_Option_Nickname"},
    {"cdn", InCheck, "FIRST/SECOND", "ID_Host_Option_Cdn"},
    {"results", InCheck, "FILE", "ID_Host_Option_Results"},
    {"report", InCheck, "FILE", "ID_Host_Option_Report"},
    {"report-url", InCheck, "URL", "ID_Host_Option_ReportUrl"},
    {"report-token-file", InCheck, "FILE", "ID_Host_Option_ReportTokenFile"},
    {"tour", InCheck, "FOLDER", "ID_Host_Option_Tour"},
    {"unattended", InCheck, nullptr, "ID_Host_Option_Unattended"},
    {"diagnose", InCheck, "FILE.zip", "ID_Host_Option_Diagnose"},
    {"loop", InCheck, nullptr, "ID_Host_Option_Loop"},
    {"json", InDevices | InNetwork | InHistory, nullptr, "ID_Host_Option_Json"},
    {"count", InNetwork, "N", "ID_Host_Option_Count"},
    {"port", InServe, "N", "ID_Host_Option_Port"},
    {"format", InReport, "FORMAT", "ID_Host_Option_Format"},
    {"files-from", InReport, "FILE", "ID_Host_Option_FilesFrom"},
    {"redact", InCheck | InReport, "LEVEL", "ID_Host_Option_Redact"},
    {"quiet", InCheck, nullptr, "ID_Host_Option_Quiet"},
    {"verbose", InAll, nullptr, "ID_Host_Option_Verbose"},
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

void addOptions(QCommandLineParser& parser)
{
    for (const Definition& definition : Definitions) {
        parser.addOption({option(definition.name), {}, QLatin1String(definition.value)});
    }
    parser.addOptions({{{QStringLiteral("h"), QStringLiteral("help")}, {}},
                       {{QStringLiteral("v"), QStringLiteral("version")}, {}}});
}

std::optional<int> numberIn(const QString& text, int least, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional<int>(number)
                                                         : std::nullopt;
}

QString oneOf(const char* words)
{
    return qtTrId("ID_Host_Takes_OneOf").arg(QLatin1String(words));
}

QString numberBetween(int least, int most)
{
    return qtTrId("ID_Host_Takes_Number").arg(QString::number(least), QString::number(most));
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
        readOutputs();
        readUnattended();
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
        fail(qtTrId("ID_Host_Usage_Takes").arg(option(name), value(name), whatItTakes));
    }

    void failAtBoth(const char* one, const char* other)
    {
        fail(qtTrId("ID_Host_Usage_LeaveOneOut").arg(option(one), option(other)));
    }

    void readCommand()
    {
        QStringList texts = m_parser.positionalArguments();
        if (!texts.isEmpty() && texts.first() == QLatin1String(CheckName)) {
            texts.removeFirst();
        } else if (!texts.isEmpty()) {
            const auto* found = std::find_if(
                std::begin(CommandNames) + 1, std::end(CommandNames),
                [&texts](const CommandName& c) { return texts.first() == QLatin1String(c.name); });
            if (found == std::end(CommandNames)) {
                fail(qtTrId("ID_Host_Usage_UnknownCommand").arg(texts.first()));
                return;
            }
            m_options.command = found->command;
            texts.removeFirst();
        }
        if (m_options.command == Options::Command::Report) {
            m_options.files = texts;
        } else if (!texts.isEmpty()) {
            fail(qtTrId("ID_Host_Usage_ExtraArgument").arg(texts.first()));
        }
        const CommandName& command = nameOf(m_options.command);
        for (const Definition& definition : Definitions) {
            if ((definition.commands & command.bit) == 0 && isSet(definition.name)) {
                fail(qtTrId("ID_Host_Usage_OtherCommand")
                         .arg(option(definition.name), command.bit == InCheck
                                                           ? qtTrId("ID_Host_Usage_TheCheck")
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
        readFile("files-from", m_options.filesFrom);
        readFile("results", m_options.resultsFile);
        readFile("report", m_options.reportFile);
        readFile("diagnose", m_options.diagnosisFile);
        readFile("report-token-file", m_options.reportTokenFile);
        readFile("tour", m_options.tourFolder);
        readFile("scenario", m_options.scenario);
    }

    void readFile(const char* name, QString& result)
    {
        result = value(name);
        if (isSet(name) && result.isEmpty()) {
            fail(qtTrId("ID_Host_Usage_EmptyName").arg(option(name)));
        }
    }

    void readPlatform()
    {
        const auto platform = ReportWords::find<Options::Platform>(value("platform"));
        if (isSet("platform") && !platform) {
            failAt("platform", oneOf("devices, scripted"));
        }
        if (platform == Options::Platform::Devices && isSet("scenario")) {
            failAtBoth("--scenario", "--platform devices");
        }
        if (platform == Options::Platform::Scripted || isSet("scenario")) {
            m_options.platform = Options::Platform::Scripted;
            if (m_options.scenario.isEmpty()) {
                m_options.scenario = QLatin1String(Options::DefaultScenario);
            }
            for (const char* real : {"server", "report-url", "report-token-file"}) {
                if (isSet(real)) {
                    failAtBoth(qPrintable(QLatin1String("--") + option(real)),
                               isSet("scenario") ? "--scenario" : "--platform scripted");
                }
            }
        }
    }

    void readAddresses()
    {
        m_options.server = value("server");
        if (isSet("server") && !Platform::StunServer::fromText(m_options.server)) {
            failAt("server", qtTrId("ID_Host_Takes_Server"));
        }
        m_options.reportUrl = value("report-url");
        if (isSet("report-url") && !Platform::webAddress(m_options.reportUrl)) {
            failAt("report-url", qtTrId("ID_Host_Takes_WebAddress"));
        }
    }

    void readNumbers()
    {
        m_options.port = Platform::StunServer::DefaultPort;
        if (isSet("port")) {
            const std::optional<int> port = numberIn(value("port"), 0, MaxPort);
            if (!port) {
                failAt("port", numberBetween(0, MaxPort));
            }
            m_options.port = static_cast<quint16>(port.value_or(0));
        }
        if (isSet("count")) {
            constexpr int MaxCount = 1000000;
            const std::optional<int> count = numberIn(value("count"), 1, MaxCount);
            if (!count) {
                failAt("count", numberBetween(1, MaxCount));
            }
            m_options.count = count.value_or(0);
        }
    }

    void readReportOptions()
    {
        const QStringList formats = {QStringLiteral("text"), QStringLiteral("html"),
                                     QStringLiteral("json"), QStringLiteral("room"),
                                     QStringLiteral("csv"),  QStringLiteral("jsonl"),
                                     QStringLiteral("map")};
        const int format = static_cast<int>(formats.indexOf(value("format")));
        if (isSet("format") && format < 0) {
            failAt("format", oneOf("text, html, json, room, csv, jsonl, map"));
        }
        m_options.format = static_cast<Options::Format>(std::max(0, format));
        const auto level = ReportWords::find<Options::Redaction>(value("redact"));
        if (isSet("redact") && !level) {
            failAt("redact", oneOf("none, personal, hash"));
        }
        m_options.redaction = level.value_or(Options::Redaction::None);
        m_options.isRedactionGiven = isSet("redact");
        if (isSet("diagnose") && !m_options.isRedactionGiven) {
            m_options.redaction = Options::Redaction::Personal; // it is made to be given away
        }
    }

    void readOutputs()
    {
        checkEnding("results", {QStringLiteral("json")});
        checkEnding("report", {QStringLiteral("json"), QStringLiteral("html"),
                               QStringLiteral("htm"), QStringLiteral("txt")});
        checkEnding("diagnose", {QStringLiteral("zip")}, false);
        if (!m_options.resultsFile.isEmpty() &&
            placeOf(m_options.resultsFile) == placeOf(m_options.reportFile)) {
            fail(qtTrId("ID_Host_Usage_SamePlace")
                     .arg(option("results"), option("report"), m_options.reportFile));
        }
    }

    void readUnattended()
    {
        m_options.isUnattended = isSet("unattended") || isSet("diagnose");
        m_options.hasLoop = isSet("loop");
        if (m_options.hasLoop && !m_options.isUnattended) {
            fail(qtTrId("ID_Host_Usage_Needs").arg(option("loop"), option("unattended")));
        }
        for (const char* other : {"tour", "results", "quiet"}) {
            if (m_options.isUnattended && isSet(other)) {
                failAtBoth(isSet("diagnose") ? "--diagnose" : "--unattended",
                           qPrintable(QLatin1String("--") + option(other)));
            }
        }
    }

    // An ending that doesn't fit the format, such as "results.xlsx", is refused. A folder gets its
    // own message elsewhere.
    void checkEnding(const char* name, const QStringList& endings, bool mayBeOutput = true)
    {
        const QFileInfo file(value(name));
        const bool isOutput = mayBeOutput && value(name) == Options::Output;
        const bool isNamed = isSet(name) && !isOutput && !file.isDir();
        if (isNamed && !endings.contains(file.suffix(), Qt::CaseInsensitive)) {
            const char* takes = mayBeOutput ? "ID_Host_Takes_Ending" : "ID_Host_Takes_FileEnding";
            failAt(name, qtTrId(takes).arg(QLatin1Char('.') + endings.join(QStringLiteral(", ."))));
        }
    }

    // The same for all ways to write a path, behind links.
    static QString placeOf(const QString& path)
    {
        if (path.isEmpty() || path == Options::Output) {
            return path;
        }
        const QFileInfo file(path);
        const QString present = file.canonicalFilePath();
        const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
        return present.isEmpty() ? folder + QLatin1Char('/') + file.fileName() : present;
    }

    const QCommandLineParser& m_parser;
    Options& m_options;
};

// With --unattended or --diagnose, --json names a file: the report. For other commands it has no
// value.
QStringList withJsonFile(const QStringList& arguments)
{
    const bool isUnattended =
        std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
            return argument == QLatin1String("--unattended") ||
                   argument.section(QLatin1Char('='), 0, 0) == QLatin1String("--diagnose");
        });
    if (!isUnattended) {
        return arguments;
    }
    QStringList result = arguments;
    for (QString& argument : result) {
        if (argument == JsonOption || argument.startsWith(JsonOption + QLatin1Char('='))) {
            argument.replace(0, JsonOption.size(), ReportOption);
        }
    }
    return result;
}

QString usageOf(const CommandName& command)
{
    QString usage = QStringLiteral("envcheck ");
    if (command.command != Options::Command::Check) {
        usage += QLatin1String(command.name) + QLatin1Char(' ');
    }
    usage += qtTrId("ID_Host_Help_UsageOptions");
    if (command.command == Options::Command::Check) {
        usage += QStringLiteral(" [devices|network|serve|report|history]");
    } else if (command.command == Options::Command::Report) {
        usage += QStringLiteral(" [FILE...]");
    }
    return usage;
}

HelpLayout::Rows optionRows(unsigned commands)
{
    HelpLayout::Rows rows;
    for (const Definition& definition : Definitions) {
        if ((definition.commands & commands) != 0) {
            QString name = QStringLiteral("--") + option(definition.name);
            if (definition.value) {
                name += QStringLiteral(" <%1>").arg(QLatin1String(definition.value));
            }
            rows.emplace_back(name, qtTrId(definition.textId));
        }
    }
    rows.emplace_back(QStringLiteral("-h, --help"), qtTrId("ID_Host_Option_Help"));
    rows.emplace_back(QStringLiteral("-v, --version"), qtTrId("ID_Host_Option_Version"));
    return rows;
}

HelpLayout::Rows commandRows()
{
    HelpLayout::Rows rows;
    for (const CommandName& command : CommandNames) {
        if (command.command != Options::Command::Check) {
            rows.emplace_back(QLatin1String(command.name), qtTrId(command.textId));
        }
    }
    return rows;
}

HelpLayout::Rows exitCodeRows()
{
    static const std::pair<ExitCode, const char*> codes[] = {
        {ExitCode::AllPassed, "ID_Host_Exit_AllPassed"},
        {ExitCode::SomeFailed, "ID_Host_Exit_SomeFailed"},
        {ExitCode::LeftEarly, "ID_Host_Exit_LeftEarly"},
        {ExitCode::PutOut, "ID_Host_Exit_PutOut"},
        {ExitCode::TourProblems, "ID_Host_Exit_TourProblems"},
        {ExitCode::WrongUsage, "ID_Host_Exit_WrongUsage"},
        {ExitCode::BadInput, "ID_Host_Exit_BadInput"},
        {ExitCode::Unavailable, "ID_Host_Exit_Unavailable"},
        {ExitCode::CannotWrite, "ID_Host_Exit_CannotWrite"},
    };
    HelpLayout::Rows rows;
    for (const auto& [code, textId] : codes) {
        rows.emplace_back(QString::number(static_cast<int>(code)), qtTrId(textId));
    }
    return rows;
}

} // namespace

Options Options::parse(const QStringList& arguments)
{
    Options options;
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(withJsonFile(arguments))) {
        options.error = qtTrId("ID_Host_Usage_SeeHelp").arg(parser.errorText());
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

QString Options::languageIn(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.parse(arguments); // whether it succeeds is looked at by parse()
    return parser.value(option("language"));
}

QString Options::helpText(Command command)
{
    const CommandName& name = nameOf(command);
    HelpLayout help;
    help.addParagraph(qtTrId("ID_Host_Help_Usage").arg(usageOf(name)));
    help.addParagraph(qtTrId(name.textId));
    help.addList(qtTrId("ID_Host_Help_Options"), optionRows(name.bit));
    if (command == Command::Report) {
        help.addList(qtTrId("ID_Host_Help_Arguments"),
                     {{QStringLiteral("FILE"), qtTrId("ID_Host_Help_File")}});
    }
    if (command == Command::Check) {
        help.addList(qtTrId("ID_Host_Help_Commands"), commandRows());
        help.addParagraph(qtTrId("ID_Host_Help_NoCommand"));
        help.addList(qtTrId("ID_Host_Help_ExitCodes"), exitCodeRows());
    }
    return help.toText();
}
