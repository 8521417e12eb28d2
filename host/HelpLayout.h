// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <utility>
#include <vector>

// The layout of --help: paragraphs, and lists with a name on the left and its text on the right.
// Lines are broken by the columns that a terminal needs, so that Chinese fits as well as English.
class HelpLayout
{
public:
    static constexpr int MaxColumns = 79;

    using Rows = std::vector<std::pair<QString, QString>>; // name, text

    void addParagraph(const QString& text);
    void addList(const QString& title, const Rows& rows);

    QString toText() const { return m_text; }

    // Breaks at spaces, and beside characters that are two columns wide.
    static QStringList wrapped(const QString& text, int maxColumns);

private:
    void addGap();

    QString m_text;
};
