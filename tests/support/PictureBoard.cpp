// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PictureBoard.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <algorithm>

namespace TestSupport {

namespace {

constexpr int Margin = 16;
constexpr int CaptionHeight = 24;
constexpr int CaptionPixels = 14;
const QColor BoardColour(0xF2, 0xF2, 0xF2);
const QColor CaptionColour(0x23, 0x23, 0x23);

QSize sizeOf(const QPixmap& picture)
{
    return picture.size() / picture.devicePixelRatio();
}

} // namespace

QString pictureFolder()
{
    const QString named = qEnvironmentVariable("ENVCHECK_PICTURES");
    const QString folder =
        named.isEmpty() ? QCoreApplication::applicationDirPath() + QStringLiteral("/../screenshots")
                        : named;
    QDir().mkpath(folder);
    return folder;
}

void PictureBoard::add(const QString& caption, const QPixmap& picture)
{
    m_rows.back().push_back({caption, picture});
}

bool PictureBoard::save(const QString& file) const
{
    int width = 0;
    int height = Margin;
    std::vector<int> rowHeights;
    for (const std::vector<Entry>& row : m_rows) {
        int rowWidth = Margin;
        int rowHeight = 0;
        for (const Entry& entry : row) {
            rowWidth += sizeOf(entry.picture).width() + Margin;
            rowHeight = std::max(rowHeight, sizeOf(entry.picture).height());
        }
        rowHeights.push_back(rowHeight);
        width = std::max(width, rowWidth);
        height += row.empty() ? 0 : CaptionHeight + rowHeight + Margin;
    }
    QImage board(width, height, QImage::Format_RGB32);
    board.fill(BoardColour);
    QPainter painter(&board);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(CaptionColour);
    QFont font = painter.font();
    font.setPixelSize(CaptionPixels);
    painter.setFont(font);
    int y = Margin;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        int x = Margin;
        for (const Entry& entry : m_rows[i]) {
            const QSize size = sizeOf(entry.picture);
            painter.drawText(QRect(x, y, size.width(), CaptionHeight), Qt::AlignVCenter,
                             entry.caption);
            painter.drawPixmap(QRect(QPoint(x, y + CaptionHeight), size), entry.picture);
            x += size.width() + Margin;
        }
        y += m_rows[i].empty() ? 0 : CaptionHeight + rowHeights[i] + Margin;
    }
    painter.end();
    return board.save(file);
}

} // namespace TestSupport
