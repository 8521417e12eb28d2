// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tools/images/Pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>

const QVector<Picture>& libraryPictures()
{
    static const QVector<Picture> pictures = {
        {QStringLiteral("MicN.svg"), {50, 50}},
        {QStringLiteral("MinS.svg"), {50, 50}},
        {QStringLiteral("play.svg"), {50, 50}},
        {QStringLiteral("play_hover.svg"), {50, 50}},
        {QStringLiteral("play_checked.svg"), {50, 50}},
        {QStringLiteral("playing0.svg"), {50, 50}},
        {QStringLiteral("playing1.svg"), {50, 50}},
        {QStringLiteral("playing2.svg"), {50, 50}},
        {QStringLiteral("icon_check.svg"), {48, 48}},
        {QStringLiteral("CheckOk.svg"), {36, 36}},
        {QStringLiteral("CheckOk.png"), {36, 36}},
        {QStringLiteral("Warning.svg"), {36, 36}},
        {QStringLiteral("Warning.png"), {36, 36}},
        {QStringLiteral("no_headset.png"), {36, 38}},
        {QStringLiteral("no_mic.svg"), {36, 38}},
        {QStringLiteral("no_mic.png"), {36, 38}},
        {QStringLiteral("camera.png"), {35, 38}},
        {QStringLiteral("hand_small.png"), {31, 38}},
        {QStringLiteral("hand_big.png"), {38, 48}},
        {QStringLiteral("handle.svg"), {22, 22}},
        {QStringLiteral("handle.png"), {22, 22}},
        {QStringLiteral("status_ok.svg"), {16, 16}},
        {QStringLiteral("status_ok.png"), {16, 16}},
        {QStringLiteral("status_problem.svg"), {18, 18}},
        {QStringLiteral("status_problem.png"), {16, 16}},
        {QStringLiteral("problem.svg"), {12, 12}},
        {QStringLiteral("problem.png"), {16, 16}},
        {QStringLiteral("radio_checked.svg"), {14, 14}},
        {QStringLiteral("radio_checked.png"), {14, 14}},
        {QStringLiteral("radio_unchecked.svg"), {14, 14}},
        {QStringLiteral("radio_unchecked.png"), {14, 14}},
        {QStringLiteral("radio_disabled.svg"), {14, 14}},
        {QStringLiteral("radio_disabled.png"), {14, 14}},
        {QStringLiteral("recording.png"), {13, 14}},
        {QStringLiteral("drop_down.png"), {14, 15}},
        {QStringLiteral("closeN.png"), {14, 14}},
        {QStringLiteral("closeS.png"), {10, 10}},
        {QStringLiteral("chunk_back.png"), {4, 14}},
        {QStringLiteral("chunk_front.png"), {4, 14}},
        {QStringLiteral("groove.png"), {306, 2}},
        {QStringLiteral("subpage.png"), {306, 2}},
        {QStringLiteral("tooltip_background.png"), {326, 38}},
        {QStringLiteral("tip_background.png"), {470, 90}},
        {QStringLiteral("back.png"), {820, 580}},
    };
    return pictures;
}

const QVector<Picture>& sharpPictures()
{
    static const QVector<Picture> pictures = {
        {QStringLiteral("MicN.svg"), {50, 50}},      {QStringLiteral("MinS.svg"), {50, 50}},
        {QStringLiteral("drop_down.png"), {14, 15}}, {QStringLiteral("no_headset.png"), {36, 38}},
        {QStringLiteral("chunk_back.png"), {4, 14}}, {QStringLiteral("chunk_front.png"), {4, 14}},
    };
    return pictures;
}

QString sharpName(const QString& file, int factor)
{
    const QFileInfo info(file);
    return QStringLiteral("%1@%2x.%3").arg(info.completeBaseName()).arg(factor).arg(info.suffix());
}

QByteArray enlargedVector(const QString& path, const QSize& size, int factor)
{
    const auto attributes = [](const QSize& value) {
        return QStringLiteral("width=\"%1\" height=\"%2\"").arg(value.width()).arg(value.height());
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll())
        .replace(attributes(size), attributes(size * factor))
        .toUtf8();
}

const QVector<Picture>& hostPictures()
{
    static const QVector<Picture> pictures = {
        {QStringLiteral("im/images/chat/radiobutton_unchecked.svg"), {14, 14}},
        {QStringLiteral("im/images/chat/radiobutton_checked.svg"), {14, 14}},
        {QStringLiteral("im/images/chat/radiobutton_unchecked_disabled.svg"), {14, 14}},
        {QStringLiteral("im/images/chat/radiobutton_checked_disabled.svg"), {14, 14}},
        {QStringLiteral("common/images/common/invite_more.svg"), {16, 16}},
        {QStringLiteral("envcheck.svg"), {64, 64}},
    };
    return pictures;
}

bool isVector(const QString& file)
{
    return file.endsWith(QLatin1String(".svg"));
}

QString sourceOfBitmap(const QString& root, const QString& file)
{
    const QString name = QFileInfo(file).completeBaseName() + QLatin1String(".svg");
    const QString own = root + QLatin1String("/resources/sources/") + name;
    return QFileInfo::exists(own) ? own : root + QLatin1String("/resources/images/") + name;
}

QImage renderVector(const QString& path, const QSize& size, qreal scale)
{
    QSvgRenderer renderer(path);
    if (!renderer.isValid()) {
        return {};
    }
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, image.rect());
    return image;
}

QImage renderBitmap(const QString& root, const Picture& picture, qreal scale)
{
    return renderVector(sourceOfBitmap(root, picture.file), picture.size, scale);
}

bool samePixels(const QImage& left, const QImage& right)
{
    constexpr auto format = QImage::Format_ARGB32_Premultiplied;
    return left.convertToFormat(format) == right.convertToFormat(format);
}
