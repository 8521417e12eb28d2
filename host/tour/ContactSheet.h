// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// Shows the pictures of a tour on one HTML page.
class ContactSheet
{
public:
    explicit ContactSheet(const QString& folder) : m_folder(folder) {}

    // The picture is a file name in the folder; the problems were found in it.
    void add(const QString& picture, const QString& caption, const QStringList& problems);
    bool write(const QString& title, QString* error) const; // to index.html in the folder

private:
    struct Entry
    {
        QString picture;
        QString caption;
        QStringList problems;
    };

    QString m_folder;
    std::vector<Entry> m_entries;
};
