// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Options.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QUrl>

namespace {

const QLatin1String PlatformDevices("devices");
const QLatin1String PlatformScripted("scripted");
const QLatin1String DefaultScenario("all-well");

QString option(const char* name)
{
    return QLatin1String(name);
}

// Host and port of "stun:HOST:PORT"; HOST is a name, an IPv4 address or a bracketed IPv6 one.
bool isServer(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^stun:(\\[[0-9A-Fa-f:.%]+\\]|[^\\s:\\[\\]/]+):([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    const int port = match.captured(2).toInt();
    return match.hasMatch() && port >= 1 && port <= 65535;
}

bool isReportUrl(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Checks the network, the camera, the speaker and the microphone before an "
                       "online class."));
    parser.addOptions({
        {option("platform"),
         QStringLiteral("Devices to check: devices (this machine's) or scripted."),
         QStringLiteral("NAME"), PlatformDevices},
        {option("scenario"),
         QStringLiteral("What the scripted devices play: a file, or the name of a bundled one "
                        "such as all-well. Implies --platform scripted."),
         QStringLiteral("SCENARIO")},
        {option("language"),
         QStringLiteral("Language of the texts, such as en or zh_CN; the system's by default."),
         QStringLiteral("LANGUAGE")},
        {option("server"),
         QStringLiteral("STUN server that delay and loss are measured to. Without it a small "
                        "responder on this machine is used."),
         QStringLiteral("stun:HOST:PORT")},
        {option("account"), QStringLiteral("Account to show."), QStringLiteral("TEXT")},
        {option("nickname"), QStringLiteral("Nickname to show."), QStringLiteral("TEXT")},
        {option("cdn"), QStringLiteral("CDN to show."), QStringLiteral("FIRST/SECOND")},
        {option("results"), QStringLiteral("File that the results are written to, as JSON."),
         QStringLiteral("FILE")},
        {option("report-url"), QStringLiteral("Where report codes are posted to."),
         QStringLiteral("URL")},
        {option("tour"),
         QStringLiteral("Walk through every step by itself and save a picture of each."),
         QStringLiteral("FOLDER")},
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
        {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")},
    });
}

// Empty, or what is wrong with the values.
QString problemOf(const QCommandLineParser& parser)
{
    const QString platform = parser.value(option("platform"));
    if (platform != PlatformDevices && platform != PlatformScripted) {
        return QStringLiteral("--platform %1: it takes devices or scripted").arg(platform);
    }
    const QString server = parser.value(option("server"));
    if (parser.isSet(option("server")) && !isServer(server)) {
        return QStringLiteral("--server %1: it takes stun:HOST:PORT, such as "
                              "stun:stun.example.org:3478")
            .arg(server);
    }
    const QString url = parser.value(option("report-url"));
    if (parser.isSet(option("report-url")) && !isReportUrl(url)) {
        return QStringLiteral("--report-url %1: it takes an http or https address").arg(url);
    }
    const QStringList extra = parser.positionalArguments();
    if (!extra.isEmpty()) {
        return QStringLiteral("unknown command '%1': see --help").arg(extra.first());
    }
    return {};
}

} // namespace

Options Options::parse(const QStringList& arguments)
{
    Options options;
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments)) {
        options.error = QStringLiteral("%1 See --help.").arg(parser.errorText());
        return options;
    }
    if (parser.isSet(option("help"))) {
        options.command = Command::Help;
        options.helpText = parser.helpText();
        return options;
    }
    if (parser.isSet(option("version"))) {
        options.command = Command::Version;
        return options;
    }
    options.error = problemOf(parser);
    options.scenario = parser.value(option("scenario"));
    options.platform =
        parser.value(option("platform")) == PlatformScripted || !options.scenario.isEmpty()
            ? Platform::Scripted
            : Platform::Devices;
    if (options.platform == Platform::Scripted && options.scenario.isEmpty()) {
        options.scenario = DefaultScenario;
    }
    options.language = parser.value(option("language"));
    options.server = parser.value(option("server"));
    options.account = parser.value(option("account"));
    options.nickname = parser.value(option("nickname"));
    options.cdn = parser.value(option("cdn"));
    options.resultsFile = parser.value(option("results"));
    options.reportUrl = parser.value(option("report-url"));
    options.tourFolder = parser.value(option("tour"));
    return options;
}
