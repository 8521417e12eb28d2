// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Console.h"

#include "host/System.h"

#include <QVector>
#include <numeric>
#include <utf8proc.h>

namespace {

bool isSteering(QChar c)
{
    return c.category() == QChar::Other_Control || (c >= QChar(0x202A) && c <= QChar(0x202E)) ||
           (c >= QChar(0x2066) && c <= QChar(0x2069));
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

int Console::columns(const QString& text)
{
    const QVector<uint> characters = text.toUcs4();
    return std::accumulate(characters.begin(), characters.end(), 0, [](int sum, uint character) {
        return sum + utf8proc_charwidth(static_cast<utf8proc_int32_t>(character));
    });
}
