// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>
#include <functional>
#include <vector>

// Rows that are kept in a temporary file, so any number of them takes little memory. The file
// belongs to this user alone, and is removed with this object.
class SortedRows
{
public:
    void add(int badness, const QByteArray& row);
    // The worst first; those that are equally bad in the order in which they came.
    void visit(const std::function<void(const QByteArray& row)>& show);

    int count() const { return static_cast<int>(m_places.size()); }
    QString problem() const { return m_problem; } // empty unless the disk refused something

private:
    struct Place
    {
        int badness = 0;
        int size = 0;
        qint64 at = 0;
    };

    // Without a buffer, which would be filled again for every row.
    class RowFile : public QTemporaryFile
    {
    public:
        bool openUnbuffered() { return open(ReadWrite | Unbuffered); }
    };

    RowFile m_file;
    qint64 m_end = 0;
    std::vector<Place> m_places;
    QString m_problem;
};
