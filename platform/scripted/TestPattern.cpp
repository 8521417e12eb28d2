// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/TestPattern.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace Platform {

namespace {

constexpr int Hues = 360;
constexpr int BarSteps = 90; // frames for one way across the image
constexpr int BarShare = 20; // width of the image divided by that of the bar
constexpr int FontShare = 8; // height of the image divided by that of the letters
constexpr int MarginShare = 20;
constexpr double Brightest = 255.0;

QImage emptyPicture(const QSize& size)
{
    QImage picture(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    picture.fill(Qt::black);
    return picture;
}

} // namespace

QSize TestPattern::fitted(const QSize& size, const QSize& bound)
{
    if (bound.isEmpty() || (size.width() <= bound.width() && size.height() <= bound.height())) {
        return size;
    }
    return size.scaled(bound, Qt::KeepAspectRatio);
}

QImage TestPattern::picture(const QSize& size, const QString& name, int frame)
{
    QImage picture = emptyPicture(size);
    const QRect area = picture.rect();
    const int hue = static_cast<int>(qHash(name, 0) % Hues);
    QLinearGradient background(area.topLeft(), area.bottomRight());
    background.setColorAt(0, QColor::fromHsv(hue, 150, 150));
    background.setColorAt(1, QColor::fromHsv((hue + Hues / 6) % Hues, 200, 70));

    QPainter painter(&picture);
    painter.fillRect(area, background);
    const int barWidth = std::max(1, area.width() / BarShare);
    const int barLeft = (area.width() - barWidth) * (frame % BarSteps) / BarSteps;
    painter.fillRect(barLeft, 0, barWidth, area.height(), QColor(255, 255, 255, 110));

    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        return picture; // there are no fonts
    }
    QFont font = painter.font();
    font.setPixelSize(std::max(1, area.height() / FontShare));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const int margin = area.width() / MarginShare;
    painter.drawText(area.adjusted(margin, 0, -margin, 0), Qt::AlignCenter | Qt::TextWrapAnywhere,
                     name);
    return picture;
}

QImage TestPattern::black(const QSize& size)
{
    return emptyPicture(size);
}

double TestPattern::brightness(const QImage& picture)
{
    qint64 sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        sum += std::accumulate(line, line + picture.width(), qint64(0),
                               [](qint64 before, QRgb pixel) { return before + qGray(pixel); });
    }
    const double pixels = double(picture.width()) * picture.height();
    return static_cast<double>(sum) / pixels / Brightest;
}

} // namespace Platform
