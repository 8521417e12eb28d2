// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>
#include <vector>

namespace TestSupport {

// Where the tests keep their pictures: the folder that ENVCHECK_PICTURES names, otherwise
// "screenshots" in the build. It is made.
QString pictureFolder();

// Pictures under their captions, row by row on one board.
class PictureBoard
{
public:
    void add(const QString& caption, const QPixmap& picture);
    void endRow() { m_rows.emplace_back(); }
    bool save(const QString& file) const;

private:
    struct Entry
    {
        QString caption;
        QPixmap picture;
    };

    std::vector<std::vector<Entry>> m_rows{1};
};

} // namespace TestSupport
