// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ReportToken.h"

#include "host/Options.h"
#include "host/System.h"
#include "platform/backend/WholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>

#include <cerrno>

namespace {

constexpr qint64 MaxBytes = qint64(4) * 1024; // servers take no longer headers

// The form of RFC 6750. Anything else, such as a line break, could become a header of its own.
bool isToken(const QByteArray& text)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9._~+/-]+=*\\z"));
    return text.size() <= MaxBytes &&
           form.match(QLatin1String(text.constData(), text.size())).hasMatch();
}

// Whoever reads along can use a token.
bool isReadOnTheWay(const QUrl& url)
{
    const QStringList ownNames = {QStringLiteral("localhost"), QStringLiteral("127.0.0.1"),
                                  QStringLiteral("::1")};
    return url.scheme() != QLatin1String("https") && !ownNames.contains(url.host());
}

} // namespace

ReportToken::ReportToken(const Options& options)
{
    if (options.reportUrl.isEmpty()) {
        return;
    }
    const bool isFile = !options.reportTokenFile.isEmpty();
    const QString source = isFile ? options.reportTokenFile : QString::fromLatin1(Variable);
    const ExitCode code = isFile ? ExitCode::BadInput : ExitCode::WrongUsage;
    if (isFile) {
        const QString problem = readFile(source);
        if (!problem.isEmpty()) {
            fail(code, problem);
            return;
        }
    } else {
        m_value = qgetenv(Variable).trimmed();
        if (m_value.isEmpty()) {
            return;
        }
    }
    if (!isToken(m_value)) {
        fail(code, qtTrId("ID_Host_Token_NoToken").arg(source));
    } else if (isReadOnTheWay(QUrl(options.reportUrl))) {
        fail(ExitCode::WrongUsage, qtTrId("ID_Host_Token_NotEncrypted").arg(options.reportUrl));
    }
}

void ReportToken::hideVariable()
{
    qunsetenv(Variable);
}

QString ReportToken::readFile(const QString& path)
{
    QByteArray content;
    const QString problem = QFile::exists(path)
                                ? Platform::WholeFile::read(path, &content, MaxBytes)
                                : qt_error_string(ENOENT);
    if (!problem.isEmpty()) {
        return qtTrId("ID_Host_Token_NotRead").arg(path, problem);
    }
    if (System::isOpenToOthers(path)) {
        return qtTrId("ID_Host_Token_Open").arg(path);
    }
    m_value = content.trimmed();
    return {};
}

void ReportToken::fail(ExitCode code, const QString& line)
{
    m_value.clear();
    m_error = line;
    m_errorCode = code;
}
