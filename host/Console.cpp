// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Console.h"

#include "host/System.h"

#include <QVector>
#include <numeric>
#include <utf8proc.h>

namespace {

// Controls a terminal, ends a line, or turns the direction of the text after it.
bool isSteering(QChar c)
{
    const ushort code = c.unicode();
    return c.category() == QChar::Other_Control || code == 0x061C ||
           (code >= 0x200E && code <= 0x200F) || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

} // namespace

void Console::print(const QString& text)
{
    System::write(stdout, text);
}

void Console::printError(const QString& line)
{
    System::write(stderr, QStringLiteral("envcheck: %1\n").arg(plainLine(line)));
}

void Console::printAside(const QString& text)
{
    System::write(stderr, text);
}

bool Console::isTerminal()
{
    return System::isTerminal(stdout);
}

QString Console::plainLine(const QString& text)
{
    QString line;
    for (const QChar c : text) {
        line += isSteering(c) ? QChar(' ') : c;
    }
    return line.simplified();
}

QString Console::plainJson(const QJsonDocument& document, QJsonDocument::JsonFormat format)
{
    constexpr int Hexadecimal = 16;
    constexpr int Digits = 4;
    QString json;
    for (const QChar c : QString::fromUtf8(document.toJson(format))) {
        // A line break stands between values; within a text it is escaped already.
        if (isSteering(c) && c != QLatin1Char('\n')) {
            json += QStringLiteral("\\u%1").arg(uint(c.unicode()), Digits, Hexadecimal,
                                                QLatin1Char('0'));
        } else {
            json += c;
        }
    }
    return json;
}

int Console::columns(const QString& text)
{
    const QVector<uint> characters = text.toUcs4();
    return std::accumulate(characters.begin(), characters.end(), 0, [](int sum, uint character) {
        return sum + utf8proc_charwidth(static_cast<utf8proc_int32_t>(character));
    });
}
