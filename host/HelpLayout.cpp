// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/HelpLayout.h"

#include "host/Console.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace {

constexpr int Indent = 2;
constexpr int Gap = 2;

bool isWide(QChar c)
{
    return Console::columns(QString(c)) == 2;
}

// Options and addresses aren't broken at their hyphens and slashes.
bool isBreak(const QString& text, int position)
{
    return text.at(position - 1).isSpace() || isWide(text.at(position - 1)) ||
           (position < text.size() && isWide(text.at(position)));
}

QString spaces(int count)
{
    return QString(std::max(0, count), QLatin1Char(' '));
}

} // namespace

void HelpLayout::addParagraph(const QString& text)
{
    addGap();
    m_text += wrapped(text, MaxColumns).join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void HelpLayout::addList(const QString& title, const Rows& rows)
{
    addGap();
    m_text += title + QLatin1Char('\n');
    int nameColumns = 0;
    for (const auto& [name, text] : rows) {
        nameColumns = std::max(nameColumns, Console::columns(name));
    }
    const int textColumn = Indent + nameColumns + Gap;
    for (const auto& [name, text] : rows) {
        const QString start = spaces(Indent) + name;
        const QString lines =
            wrapped(text, MaxColumns - textColumn).join(QLatin1Char('\n') + spaces(textColumn));
        m_text += start + spaces(textColumn - Console::columns(start)) + lines + QLatin1Char('\n');
    }
}

QStringList HelpLayout::wrapped(const QString& text, int maxColumns)
{
    QStringList lines;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    int start = 0;
    int lastBreak = 0;
    for (int next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        if (!isBreak(text, next) && next < text.size()) {
            continue;
        }
        if (lastBreak > start &&
            Console::columns(text.mid(start, next - start).trimmed()) > maxColumns) {
            lines << text.mid(start, lastBreak - start).trimmed();
            start = lastBreak;
        }
        lastBreak = next;
    }
    return lines << text.mid(start).trimmed();
}

void HelpLayout::addGap()
{
    if (!m_text.isEmpty()) {
        m_text += QLatin1Char('\n');
    }
}
