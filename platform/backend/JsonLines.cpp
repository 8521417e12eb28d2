// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/JsonLines.h"

namespace Platform {

JsonLines::JsonLines(const QByteArray& json) : m_json(json)
{
    while (m_position < m_json.size() && current() != '{' && current() != '[') {
        ++m_position; // a byte order mark
    }
    scanValue({});
}

int JsonLines::lineOf(const QString& path) const
{
    QString known = path;
    while (!known.isEmpty() && !m_lines.contains(known)) {
        known.truncate(std::max(
            0, std::max(known.lastIndexOf(QLatin1Char('.')), known.lastIndexOf(QLatin1Char('[')))));
    }
    return m_lines.value(known, 1);
}

int JsonLines::lineAt(const QByteArray& json, int offset)
{
    return static_cast<int>(json.left(offset).count('\n')) + 1;
}

void JsonLines::scanValue(const QString& path)
{
    skipBlanks();
    if (!m_lines.contains(path)) {
        m_lines.insert(path, m_line);
    }
    if (current() == '{') {
        scanObject(path);
    } else if (current() == '[') {
        scanArray(path);
    } else if (current() == '"') {
        takeString();
    } else {
        while (m_position < m_json.size() && !QByteArray(",]} \t\r\n").contains(current())) {
            ++m_position;
        }
    }
    skipBlanks();
}

void JsonLines::scanObject(const QString& path)
{
    do {
        ++m_position; // the brace or the comma
        skipBlanks();
        if (current() != '"') {
            break; // an empty object
        }
        const int line = m_line;
        const QString key = takeString();
        const QString member = path.isEmpty() ? key : path + QLatin1Char('.') + key;
        if (m_lines.contains(member) && m_duplicate.isEmpty()) {
            m_duplicate = member;
        }
        m_lines.insert(member, line);
        skipBlanks();
        ++m_position; // the colon
        scanValue(member);
    } while (current() == ',');
    ++m_position;
}

void JsonLines::scanArray(const QString& path)
{
    int index = 0;
    do {
        ++m_position; // the bracket or the comma
        skipBlanks();
        if (current() == ']') {
            break; // an empty array
        }
        scanValue(QStringLiteral("%1[%2]").arg(path).arg(index++));
    } while (current() == ',');
    ++m_position;
}

void JsonLines::skipBlanks()
{
    while (m_position < m_json.size() && QByteArray(" \t\r\n").contains(current())) {
        m_line += current() == '\n' ? 1 : 0;
        ++m_position;
    }
}

// Leaves escape sequences as they are.
QString JsonLines::takeString()
{
    const int start = ++m_position;
    while (m_position < m_json.size() && current() != '"') {
        m_position += current() == '\\' ? 2 : 1;
    }
    const QString text = QString::fromUtf8(m_json.mid(start, m_position - start));
    ++m_position;
    return text;
}

char JsonLines::current() const
{
    return m_position < m_json.size() ? m_json.at(m_position) : '\0';
}

} // namespace Platform
