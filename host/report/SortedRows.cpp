// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/SortedRows.h"

#include <QDir>
#include <algorithm>

void SortedRows::add(int badness, const QByteArray& row)
{
    const bool isOpen = m_file.isOpen() || m_file.openUnbuffered();
    if (!isOpen || m_file.write(row) != row.size()) {
        m_problem = qtTrId("ID_Host_File_NotWritten").arg(QDir::tempPath(), m_file.errorString());
        return;
    }
    m_places.push_back({badness, static_cast<int>(row.size()), m_end});
    m_end += row.size();
}

void SortedRows::visit(const std::function<void(const QByteArray& row)>& show)
{
    std::stable_sort(m_places.begin(), m_places.end(),
                     [](const Place& a, const Place& b) { return a.badness > b.badness; });
    for (const Place& place : m_places) {
        m_file.seek(place.at);
        show(m_file.read(place.size));
    }
}
