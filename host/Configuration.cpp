// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Configuration.h"

#include "host/Options.h"
#include "host/ReportToken.h"
#include "platform/backend/StunServer.h"
#include "platform/backend/WebAddress.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QString ServerKey = QStringLiteral("server");
const QString ReportUrlKey = QStringLiteral("report-url");
const QString ReportTokenKey = QStringLiteral("report-token-file");
constexpr qint64 MaxBytes = qint64(64) * 1024; // a larger file is no configuration

} // namespace

Configuration::Configuration(const QStringList& files) : m_files(files)
{
}

QStringList Configuration::usualFiles()
{
    QStringList files;
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::AppConfigLocation);
    for (const QString& folder : folders) {
        files << folder + QStringLiteral("/envcheck.conf");
    }
    return files;
}

void Configuration::complete(Options& options)
{
    // Scripted devices have their own network and report nothing to anybody.
    if (options.platform == Options::Platform::Scripted) {
        return;
    }
    const QString variable = qEnvironmentVariable(ServerVariable);
    if (options.server.isEmpty() && !variable.isEmpty()) {
        options.server = variable;
        if (!Platform::StunServer::fromText(variable)) {
            fail(ExitCode::WrongUsage,
                 qtTrId("ID_Host_Config_BadVariable")
                     .arg(QLatin1String(ServerVariable), variable, qtTrId("ID_Host_Takes_Server")));
        }
    }
    const auto refuse = [this](const Value& value, const QString& key, const QString& form) {
        fail(ExitCode::BadInput,
             qtTrId("ID_Host_Config_BadValue").arg(value.file, key, value.text, form));
    };
    if (options.server.isEmpty()) {
        const Value server = find(ServerKey);
        options.server = server.text;
        if (!server.text.isEmpty() && !Platform::StunServer::fromText(server.text)) {
            refuse(server, ServerKey, qtTrId("ID_Host_Takes_Server"));
        }
    }
    if (options.command == Options::Command::Check && options.reportUrl.isEmpty()) {
        const Value url = find(ReportUrlKey);
        options.reportUrl = url.text;
        if (!url.text.isEmpty() && !Platform::webAddress(url.text)) {
            refuse(url, ReportUrlKey, qtTrId("ID_Host_Takes_WebAddress"));
        }
    }
    completeToken(options);
}

// Whoever has a token in the environment needs no file.
void Configuration::completeToken(Options& options)
{
    const bool hasVariable = !qEnvironmentVariableIsEmpty(ReportToken::Variable);
    if (options.reportUrl.isEmpty() && !options.reportTokenFile.isEmpty()) {
        fail(ExitCode::WrongUsage, qtTrId("ID_Host_Usage_Needs").arg(ReportTokenKey, ReportUrlKey));
    } else if (!options.reportUrl.isEmpty() && options.reportTokenFile.isEmpty() && !hasVariable) {
        options.reportTokenFile = find(ReportTokenKey).text;
    }
}

// The first file that has the key counts, also if its value is empty.
Configuration::Value Configuration::find(const QString& key)
{
    for (const QString& file : m_files) {
        const QMap<QString, QString>& content = contentOf(file);
        if (content.contains(key)) {
            return {content.value(key), file};
        }
    }
    return {};
}

const QMap<QString, QString>& Configuration::contentOf(const QString& file)
{
    if (!m_contents.contains(file)) {
        m_contents.insert(file, read(file));
    }
    return m_contents[file];
}

QMap<QString, QString> Configuration::read(const QString& file)
{
    const QFileInfo info(file);
    if (!info.exists()) {
        return {};
    }
    // Another kind of file, such as a pipe, could keep the program waiting.
    if (!info.isFile() || !info.isReadable() || info.size() > MaxBytes) {
        fail(ExitCode::BadInput, qtTrId("ID_Host_Config_Unreadable").arg(file));
        return {};
    }
    const QSettings settings(file, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    QMap<QString, QString> content;
    for (const QString& key : keys) {
        if (key != ServerKey && key != ReportUrlKey && key != ReportTokenKey) {
            fail(ExitCode::BadInput, qtTrId("ID_Host_Config_UnknownKey").arg(file, key));
            continue;
        }
        // A comma makes a list of a value.
        content.insert(key, settings.value(key).toStringList().join(QLatin1Char(',')));
    }
    if (settings.status() != QSettings::NoError) {
        fail(ExitCode::BadInput, qtTrId("ID_Host_Config_BadLine").arg(file));
    }
    return content;
}

void Configuration::fail(ExitCode code, const QString& line)
{
    if (m_error.isEmpty()) {
        m_error = line;
        m_errorCode = code;
    }
}
