// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/PreviewNotice.h>

#include "platform/backend/CameraCause.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>
#include <QTextOption>

namespace {

using Kind = Platform::CameraCause::Kind;

// The page gives the preview a light gray ground whatever the desktop's theme is.
constexpr QRgb TextColor = 0xFF232323;
constexpr QRgb GroundColor = 0xFFF2F2F2;
constexpr QRgb SpinnerColor = 0xFF009265;
constexpr QRgb SpinnerTrackColor = 0xFFD5D5D5;
constexpr qreal GroundRadius = 6.0;
constexpr int GroundPadding = 10;
constexpr int SpinnerPixels = 32;
constexpr int SpinnerGap = 12;
constexpr qreal SpinnerWidth = 3.0;
constexpr int Turn = 360 * 16; // in the units of QPainter
// A program's name may be any text: its letters must not turn the sentence around it.
constexpr QChar IsolateStart(0x2068);
constexpr QChar IsolateEnd(0x2069);

const char* textIdOf(const Platform::CameraCause& cause)
{
    switch (cause.kind) {
    case Kind::None:
        break;
    case Kind::Starting:
        return "ID_Engine_Camera_Starting";
    case Kind::Absent:
        return "ID_Engine_Camera_Absent";
    case Kind::Busy:
        return cause.program.isEmpty() ? "ID_Engine_Camera_Busy" : "ID_Engine_Camera_BusyBy";
    case Kind::Denied:
        return "ID_Engine_Camera_Denied";
    case Kind::Hung:
        return "ID_Engine_Camera_Hung";
    case Kind::Stalled:
        return "ID_Engine_Camera_Stalled";
    case Kind::Black:
        return "ID_Engine_Camera_Black";
    case Kind::Unplugged:
        return "ID_Engine_Camera_Unplugged";
    case Kind::ServerLost:
        return "ID_Engine_Camera_ServerLost";
    case Kind::Failed:
        return "ID_Engine_Camera_Failed";
    case Kind::Unreadable:
        return "ID_Engine_Camera_Unreadable";
    case Kind::NotBuilt:
        return "ID_Engine_Camera_NotBuilt";
    }
    return nullptr;
}

QString isolated(const QString& program, const QFont& font, int width)
{
    static const QRegularExpression directions(
        QStringLiteral("[\\x{061C}\\x{200E}\\x{200F}\\x{202A}-\\x{202E}\\x{2066}-\\x{2069}]"));
    QString plain = program.simplified();
    plain.remove(directions);
    return IsolateStart + QFontMetrics(font).elidedText(plain, Qt::ElideMiddle, width) + IsolateEnd;
}

QTextOption optionOf(const QString& text)
{
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WordWrap);
    // The name of a program says nothing about the direction of the sentence.
    static const QRegularExpression name(QStringLiteral("\\x{2068}.*\\x{2069}"));
    option.setTextDirection(QString(text).remove(name).isRightToLeft() ? Qt::RightToLeft
                                                                       : Qt::LeftToRight);
    return option;
}

QRectF placeOf(const QPainter& painter, const QRect& area, const QString& text)
{
    const int margin = PreviewNotice::MarginPixels;
    const QRect inner = area.adjusted(margin, 0, -margin, 0);
    const QRect needed =
        painter.fontMetrics().boundingRect(inner, Qt::AlignCenter | Qt::TextWordWrap, text);
    return {qreal(inner.left()), area.top() + (area.height() - needed.height()) / 2.0,
            qreal(inner.width()), qreal(needed.height())};
}

} // namespace

QString PreviewNotice::textOf(const Platform::CameraCause& cause, const QFont& font, int width)
{
    const char* id = textIdOf(cause);
    const QString text = id ? qtTrId(id) : QString();
    return cause.program.isEmpty()
               ? text
               : text.arg(isolated(cause.program, font, width - 2 * MarginPixels));
}

void PreviewNotice::paintText(QPainter& painter, const QRect& area, const QString& text,
                              bool isOnPicture)
{
    const QRectF place = placeOf(painter, area, text);
    if (isOnPicture) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(GroundColor));
        painter.drawRoundedRect(
            place.adjusted(-GroundPadding, -GroundPadding, GroundPadding, GroundPadding),
            GroundRadius, GroundRadius);
    }
    painter.setPen(QColor(TextColor));
    painter.drawText(place, text, optionOf(text));
}

void PreviewNotice::paintStarting(QPainter& painter, const QRect& area, const QString& text,
                                  int step)
{
    const qreal height = placeOf(painter, area, text).height();
    const qreal top = area.top() + (area.height() - height - SpinnerPixels - SpinnerGap) / 2.0;
    const QRectF ring(area.left() + (area.width() - SpinnerPixels) / 2.0, top, SpinnerPixels,
                      SpinnerPixels);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(SpinnerTrackColor), SpinnerWidth));
    painter.drawEllipse(ring);
    painter.setPen(QPen(QColor(SpinnerColor), SpinnerWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, Turn / 4 - step * Turn / SpinnerSteps, Turn / 4);
    painter.setPen(QColor(TextColor));
    painter.drawText(QRectF(area.left() + MarginPixels, ring.bottom() + SpinnerGap,
                            area.width() - 2 * MarginPixels, height),
                     text, optionOf(text));
}
