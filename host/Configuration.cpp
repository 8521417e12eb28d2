// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Configuration.h"

#include "host/Options.h"
#include "platform/backend/StunServer.h"
#include "platform/backend/WebAddress.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QString ServerKey = QStringLiteral("server");
const QString ReportUrlKey = QStringLiteral("report-url");
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
            fail(ExitCode::WrongUsage, QStringLiteral("%1=%2: it takes %3")
                                           .arg(QLatin1String(ServerVariable), variable,
                                                QLatin1String(Platform::StunServer::Form)));
        }
    }
    const auto refuse = [this](const Value& value, const QString& key, const QString& form) {
        fail(ExitCode::BadInput, QStringLiteral("%1: %2=%3: it takes %4; put it right there")
                                     .arg(value.file, key, value.text, form));
    };
    if (options.server.isEmpty()) {
        const Value server = find(ServerKey);
        options.server = server.text;
        if (!server.text.isEmpty() && !Platform::StunServer::fromText(server.text)) {
            refuse(server, ServerKey, QLatin1String(Platform::StunServer::Form));
        }
    }
    if (options.command == Options::Command::Check && options.reportUrl.isEmpty()) {
        const Value url = find(ReportUrlKey);
        options.reportUrl = url.text;
        if (!url.text.isEmpty() && !Platform::webAddress(url.text)) {
            refuse(url, ReportUrlKey, QStringLiteral("an http or https address"));
        }
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
        fail(ExitCode::BadInput,
             QStringLiteral("%1: it can't be read as a configuration file; put a text file with "
                            "lines such as server=HOST there, or remove it")
                 .arg(file));
        return {};
    }
    const QSettings settings(file, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    QMap<QString, QString> content;
    for (const QString& key : keys) {
        if (key != ServerKey && key != ReportUrlKey) {
            fail(ExitCode::BadInput,
                 QStringLiteral("%1: unknown key %2; the keys are server and report-url")
                     .arg(file, key));
            continue;
        }
        // A comma makes a list of a value.
        content.insert(key, settings.value(key).toStringList().join(QLatin1Char(',')));
    }
    if (settings.status() != QSettings::NoError) {
        fail(ExitCode::BadInput,
             QStringLiteral("%1: every line must be KEY=VALUE, such as server=HOST, or a comment "
                            "after a semicolon; put it right there")
                 .arg(file));
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
