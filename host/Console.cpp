// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Console.h"

#include "host/System.h"

#include <algorithm>
#include <numeric>

namespace {

bool isWide(QChar c)
{
    return (c >= QChar(0x1100) && c <= QChar(0x115F)) ||
           (c >= QChar(0x2E80) && c <= QChar(0xA4CF)) ||
           (c >= QChar(0xAC00) && c <= QChar(0xD7A3)) ||
           (c >= QChar(0xF900) && c <= QChar(0xFAFF)) || (c >= QChar(0xFF00) && c <= QChar(0xFF60));
}

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
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int sum, QChar c) { return sum + (isWide(c) ? 2 : 1); });
}

QString Console::padded(const QString& text, int width)
{
    return text + QString(std::max(0, width - columns(text)), QLatin1Char(' '));
}
