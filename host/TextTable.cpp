// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/TextTable.h"

#include "host/Console.h"

#include <algorithm>

void TextTable::addRow(const QStringList& cells)
{
    m_lines.push_back({cells, false});
}

void TextTable::addHeading(const QString& text)
{
    m_lines.push_back({{text}, true});
}

QString TextTable::toText() const
{
    constexpr int Gap = 2;
    const std::vector<int> columns = widths();
    QString text;
    for (const Line& line : m_lines) {
        QString padding; // of the cell before; none at the end of the line
        for (int i = 0; i < line.cells.size(); ++i) {
            const QString& cell = line.cells.at(i);
            if (!cell.isEmpty()) {
                text += padding + cell;
                padding.clear();
            }
            const int width = columns[static_cast<std::size_t>(i)] + Gap;
            padding += QString(std::max(Gap, width - Console::columns(cell)), QLatin1Char(' '));
        }
        text += QLatin1Char('\n');
    }
    return text;
}

std::vector<int> TextTable::widths() const
{
    constexpr int MaxWidth = 200; // else one long text would fill every line with as many spaces
    std::vector<int> result(1);
    for (const Line& line : m_lines) {
        const auto count = static_cast<std::size_t>(line.isHeading ? 0 : line.cells.size());
        result.resize(std::max(result.size(), count));
        for (std::size_t i = 0; i < count; ++i) {
            const int width = Console::columns(line.cells.at(static_cast<int>(i)));
            result[i] = std::max(result[i], std::min(width, MaxWidth));
        }
    }
    return result;
}
