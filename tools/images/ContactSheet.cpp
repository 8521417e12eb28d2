// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tools/images/ContactSheet.h"

#include "tools/images/Pictures.h"

#include <QFontMetrics>
#include <QPainter>
#include <QVector>

#include <algorithm>

namespace {

constexpr int SheetWidth = 1680;
constexpr int Margin = 12;
constexpr int CaptionHeight = 18;
constexpr int CaptionPixelSize = 11;
const QVector<qreal> Scales = {1.0, 2.0};

struct Cell
{
    QString caption;
    QVector<QImage> images; // one for each scale
    QRect place;
};

// As a window of that scale shows it: a vector is drawn anew, a bitmap is smoothly enlarged.
QImage pictureAt(const QString& path, const QSize& size, qreal scale)
{
    if (isVector(path)) {
        return renderVector(path, size, scale);
    }
    return QImage(path).scaled(size * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QSize imagesSize(const QVector<QImage>& images)
{
    QSize size(-Margin, 0);
    for (const QImage& image : images) {
        size.rwidth() += image.width() + Margin;
        size.setHeight(std::max(size.height(), image.height()));
    }
    return size;
}

Cell makeCell(const QString& path, const Picture& picture)
{
    Cell cell;
    cell.caption = QStringLiteral("%1  %2×%3")
                       .arg(picture.file.section(QLatin1Char('/'), -1))
                       .arg(picture.size.width())
                       .arg(picture.size.height());
    for (const qreal scale : Scales) {
        cell.images.append(pictureAt(path, picture.size, scale));
    }
    return cell;
}

// A picture whose scales don't fit side by side gets one cell for each of them.
QVector<Cell> splitIfWide(const Cell& cell)
{
    if (imagesSize(cell.images).width() <= SheetWidth - 2 * Margin) {
        return {cell};
    }
    QVector<Cell> cells;
    for (const QImage& image : cell.images) {
        cells.append({cell.caption, {image}, {}});
    }
    return cells;
}

// Rows from left to right; returns the height that all rows take.
int placeCells(QVector<Cell>* cells, const QFontMetrics& metrics)
{
    QPoint next(Margin, Margin);
    int rowHeight = 0;
    for (Cell& cell : *cells) {
        const QSize images = imagesSize(cell.images);
        const QSize size(std::max(images.width(), metrics.horizontalAdvance(cell.caption)),
                         images.height() + CaptionHeight);
        if (next.x() > Margin && next.x() + size.width() + Margin > SheetWidth) {
            next = QPoint(Margin, next.y() + rowHeight + Margin);
            rowHeight = 0;
        }
        cell.place = QRect(next, size);
        next.rx() += size.width() + 2 * Margin;
        rowHeight = std::max(rowHeight, size.height());
    }
    return next.y() + rowHeight + Margin;
}

void drawCell(QPainter* painter, const Cell& cell)
{
    int x = cell.place.x();
    for (const QImage& image : cell.images) {
        painter->drawImage(x, cell.place.y(), image);
        x += image.width() + Margin;
    }
    const QRect caption(cell.place.x(), cell.place.bottom() + 1 - CaptionHeight, cell.place.width(),
                        CaptionHeight);
    painter->drawText(caption, Qt::AlignLeft | Qt::AlignVCenter, cell.caption);
}

} // namespace

QImage contactSheet(const QString& root, QString* unreadable)
{
    QVector<Cell> cells;
    const auto append = [&](const QString& path, const Picture& picture) {
        const Cell cell = makeCell(path, picture);
        if (cell.images.first().isNull()) {
            *unreadable = path;
            return false;
        }
        cells += splitIfWide(cell);
        return true;
    };
    for (const Picture& picture : libraryPictures()) {
        if (!append(root + QLatin1String("/resources/images/") + picture.file, picture)) {
            return {};
        }
    }
    for (const Picture& picture : hostPictures()) {
        if (!append(QLatin1String(":/") + picture.file, picture)) {
            return {};
        }
    }

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(CaptionPixelSize);
    const int height = placeCells(&cells, QFontMetrics(font));

    const QVector<QColor> grounds = {Qt::white, QColor(0xF2F2F2)};
    QImage sheet(SheetWidth, height * grounds.size(), QImage::Format_RGB32);
    QPainter painter(&sheet);
    painter.setFont(font);
    painter.setPen(QColor(0x232323));
    for (const QColor& ground : grounds) {
        painter.fillRect(0, 0, SheetWidth, height, ground);
        for (const Cell& cell : qAsConst(cells)) {
            drawCell(&painter, cell);
        }
        painter.translate(0, height);
    }
    return sheet;
}
