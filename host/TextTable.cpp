// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/TextTable.h"

#include "host/Console.h"

#include <algorithm>

namespace {

constexpr int Gap = 2; // between two columns

} // namespace

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
    const std::vector<int> columns = widths();
    QString text;
    for (const Line& each : m_lines) {
        text += line(each.cells, columns);
    }
    return text;
}

void TextTable::widen(std::vector<int>& widths, const QStringList& cells)
{
    constexpr int MaxWidth = 200; // else one long text would fill every line with as many spaces
    const auto count = static_cast<std::size_t>(cells.size());
    widths.resize(std::max(widths.size(), count));
    for (std::size_t i = 0; i < count; ++i) {
        const int width = Console::columns(cells.at(static_cast<int>(i)));
        widths[i] = std::max(widths[i], std::min(width, MaxWidth));
    }
}

QString TextTable::line(const QStringList& cells, const std::vector<int>& widths)
{
    QString text;
    QString padding; // of the cell before; none at the end of the line
    for (int i = 0; i < cells.size(); ++i) {
        const QString& cell = cells.at(i);
        if (!cell.isEmpty()) {
            text += padding + cell;
            padding.clear();
        }
        const int width = widths[static_cast<std::size_t>(i)] + Gap;
        padding += QString(std::max(Gap, width - Console::columns(cell)), QLatin1Char(' '));
    }
    return text + QLatin1Char('\n');
}

std::vector<int> TextTable::widths() const
{
    std::vector<int> result(1);
    for (const Line& each : m_lines) {
        if (!each.isHeading) {
            widen(result, each.cells);
        }
    }
    return result;
}
