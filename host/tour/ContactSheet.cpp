// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/ContactSheet.h"

#include <QSaveFile>
#include <QTextStream>

namespace {

const char* const Head =
    "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n<style>\n"
    "body{font-family:sans-serif;background:#F2F2F2;color:#232323;margin:24px}\n"
    "main{display:flex;flex-wrap:wrap;gap:24px}\n"
    "figure{margin:0;background:#FFFFFF;padding:12px;border-radius:4px}\n"
    "img{max-width:640px;display:block;border:1px solid #D5D5D5}\n"
    "figcaption{padding-top:8px}\n"
    ".problem{color:#B3260A}\n"
    "</style>\n</head>\n<body>\n<h1>%1</h1>\n<main>\n";

} // namespace

void ContactSheet::add(const QString& picture, const QString& caption, const QStringList& problems)
{
    m_entries.push_back({picture, caption, problems});
}

bool ContactSheet::write(const QString& title, QString* error) const
{
    QSaveFile file(m_folder + QLatin1String("/index.html"));
    if (!file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return false;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << QString::fromLatin1(Head).arg(title.toHtmlEscaped());
    for (const Entry& entry : m_entries) {
        stream << "<figure><img src=\"" << entry.picture.toHtmlEscaped() << "\" alt=\""
               << entry.caption.toHtmlEscaped() << "\"><figcaption>"
               << entry.caption.toHtmlEscaped();
        for (const QString& problem : entry.problems) {
            stream << "<br><span class=\"problem\">" << problem.toHtmlEscaped() << "</span>";
        }
        stream << "</figcaption></figure>\n";
    }
    stream << "</main>\n</body>\n</html>\n";
    stream.flush();
    if (!file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}
