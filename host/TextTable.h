// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <vector>

// A table for a terminal: each column is as wide as its widest cell, if that isn't very long. Cells
// are printed as they are; foreign text needs Console::plainLine() first.
class TextTable
{
public:
    void addRow(const QStringList& cells);
    void addHeading(const QString& text); // a line that doesn't widen any column

    QString toText() const;

    // One line of a table, for those that don't keep their rows here: widen() goes over all of them
    // first.
    static void widen(std::vector<int>& widths, const QStringList& cells);
    static QString line(const QStringList& cells, const std::vector<int>& widths);

private:
    struct Line
    {
        QStringList cells;
        bool isHeading = false;
    };

    std::vector<int> widths() const;

    std::vector<Line> m_lines;
};
