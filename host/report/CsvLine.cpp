// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/CsvLine.h"

#include "host/Console.h"

namespace {

constexpr int NumberDigits = 15;
const QLatin1String LineEnd("\r\n");

bool startsFormula(const QString& text)
{
    static const QString Starts = QStringLiteral("=+-@|%")
                                  // as wide as a Chinese character
                                  + QString::fromUtf8("\uFF1D\uFF0B\uFF0D\uFF20");
    return !text.isEmpty() && Starts.contains(text.at(0));
}

QString quoted(QString text)
{
    const bool isPlain = std::none_of(text.begin(), text.end(), [](QChar c) {
        return c == QLatin1Char('"') || c == QLatin1Char(',');
    });
    if (isPlain) {
        return text;
    }
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QString cellOf(const QJsonValue& value)
{
    if (value.isDouble()) {
        return QString::number(value.toDouble(), 'g', NumberDigits);
    }
    const QString text = Console::plainLine(value.toString());
    return quoted(startsFormula(text) ? QLatin1Char('\'') + text : text);
}

} // namespace

QString CsvLine::ofNames(const QStringList& names)
{
    return names.join(QLatin1Char(',')) + LineEnd;
}

QString CsvLine::of(const std::vector<QJsonValue>& cells)
{
    QStringList texts;
    for (const QJsonValue& cell : cells) {
        texts << cellOf(cell);
    }
    return texts.join(QLatin1Char(',')) + LineEnd;
}
