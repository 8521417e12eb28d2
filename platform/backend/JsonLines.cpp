// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/JsonLines.h"

#include <QSet>

namespace Platform {

namespace {

// Goes through the text once. Knows the path of the present value only.
class Scan
{
public:
    Scan(const QByteArray& json, const QString& wanted) : m_json(json), m_wanted(wanted)
    {
        while (m_position < m_json.size() && current() != '{' && current() != '[') {
            ++m_position; // a byte order mark
        }
        m_foundLine = m_line;
        scanValue(true);
    }

    int foundLine() const { return m_foundLine; }
    QString duplicate() const { return m_duplicate; }

private:
    // isOnTheWay: the present path is the wanted one, or an ancestor of it.
    void scanValue(bool isOnTheWay)
    {
        skipBlanks();
        if (current() == '{') {
            scanObject(isOnTheWay);
        } else if (current() == '[') {
            scanArray(isOnTheWay);
        } else if (current() == '"') {
            takeString();
        } else {
            while (m_position < m_json.size() && !QByteArray(",]} \t\r\n").contains(current())) {
                ++m_position;
            }
        }
        skipBlanks();
    }

    void scanObject(bool isOnTheWay)
    {
        QSet<QString> keys;
        do {
            ++m_position; // the brace or the comma
            skipBlanks();
            if (current() != '"') {
                break; // an empty object
            }
            const int line = m_line;
            const QString key = takeString();
            const int parent = m_path.size();
            m_path += parent == 0 ? key : QLatin1Char('.') + key;
            if (keys.contains(key) && m_duplicate.isEmpty()) {
                m_duplicate = m_path;
            }
            keys.insert(key);
            skipBlanks();
            ++m_position; // the colon
            scanValue(isOnTheWay && take(parent, line));
            m_path.truncate(parent);
        } while (current() == ',');
        ++m_position;
    }

    void scanArray(bool isOnTheWay)
    {
        int index = 0;
        do {
            ++m_position; // the bracket or the comma
            skipBlanks();
            if (current() == ']') {
                break; // an empty array
            }
            const int parent = m_path.size();
            m_path += QStringLiteral("[%1]").arg(index++);
            scanValue(isOnTheWay && take(parent, m_line));
            m_path.truncate(parent);
        } while (current() == ',');
        ++m_position;
    }

    // Takes the line of the present path if that leads to the wanted one, as its parent does.
    bool take(int parent, int line)
    {
        const QStringRef step = m_path.midRef(parent);
        const QStringRef rest = m_wanted.midRef(parent);
        const bool isOnTheWay =
            rest.startsWith(step) &&
            (rest.size() == step.size() || rest.at(step.size()) == QLatin1Char('.') ||
             rest.at(step.size()) == QLatin1Char('['));
        // Of two equal keys the second one counts.
        m_foundLine = isOnTheWay ? line : m_foundLine;
        return isOnTheWay;
    }

    void skipBlanks()
    {
        while (m_position < m_json.size() && QByteArray(" \t\r\n").contains(current())) {
            m_line += current() == '\n' ? 1 : 0;
            ++m_position;
        }
    }

    // Leaves escape sequences as they are.
    QString takeString()
    {
        const int start = ++m_position;
        while (m_position < m_json.size() && current() != '"') {
            m_position += current() == '\\' ? 2 : 1;
        }
        const QString text = QString::fromUtf8(m_json.mid(start, m_position - start));
        ++m_position;
        return text;
    }

    char current() const { return m_position < m_json.size() ? m_json.at(m_position) : '\0'; }

    const QByteArray& m_json;
    const QString& m_wanted;
    int m_position = 0;
    int m_line = 1;
    int m_foundLine = 1;
    QString m_path;
    QString m_duplicate;
};

} // namespace

int JsonLines::lineOf(const QString& path) const
{
    return Scan(m_json, path).foundLine();
}

QString JsonLines::duplicate() const
{
    return Scan(m_json, QString()).duplicate();
}

int JsonLines::lineAt(const QByteArray& json, int offset)
{
    return static_cast<int>(json.left(offset).count('\n')) + 1;
}

} // namespace Platform
