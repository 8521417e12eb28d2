// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/DeviceChecks.h"

#include "widgets/LumToolTip.h"
#include "wizard/CheckPage.h"

#include <LumWidgets/QCustomComboBox.h>
#include <LumWidgets/QCustomComboBoxItem.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>

#include <iterator>

namespace {

constexpr int NotAnswered = 0;
constexpr int AnsweredYes = 1;
constexpr int AnsweredNo = 2;
constexpr int DeviceWorks = 1;
constexpr int DeviceFails = 2;

constexpr int MostEntries = 8; // without scrolling
constexpr int FocusMargin = 4;

constexpr QSize SmallHandSize(31, 38);
constexpr QSize BigHandSize(38, 48);
constexpr QPoint HandOffset(10, 0);

// Qt keeps it after the first time: the hand moves as long as its page lives.
QPixmap handPicture(bool isSmall, qreal ratio)
{
    const QString size = isSmall ? QStringLiteral("small") : QStringLiteral("big");
    const QString key = QStringLiteral("DeviceChecks hand %1 %2").arg(size).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(QStringLiteral(":/Kestrel/Images/hand_%1.png").arg(size))
                      .scaled((isSmall ? SmallHandSize : BigHandSize) * ratio, Qt::KeepAspectRatio,
                              Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

} // namespace

namespace DeviceChecks {

int answerCode(bool isTested, bool isConfirmed)
{
    if (!isTested) {
        return NotAnswered;
    }
    return isConfirmed ? AnsweredYes : AnsweredNo;
}

int stateCode(bool works)
{
    return works ? DeviceWorks : DeviceFails;
}

void setUpComboBox(QCustomComboBox* combo, CheckPage* page)
{
    combo->setItemDelegate(new QCustomComboBoxItem(page));
    combo->setPopupWidth(combo->width());
    combo->installEventFilter(page);
    combo->setEnableClickLineEdit(true);
    // A box that only now becomes editable has its view set up anew.
    combo->view()->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    combo->view()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    combo->lineEdit()->setReadOnly(true);
    combo->lineEdit()->setStyleSheet(
        QStringLiteral("background-color: transparent; border: none;"));
}

void setCaption(QCustomComboBox* combo, QLabel* caption)
{
    combo->setAccessibleName(caption->text());
    combo->lineEdit()->setAccessibleName(caption->text());
    // A caption in Arabic begins right beside the box, and the focus ring would touch it.
    if (caption->text().isRightToLeft()) {
        caption->setContentsMargins(0, 0, FocusMargin, 0);
    }
}

// Each is put right behind the box, the last one to begin with: Qt leaves alone what follows
// already, even if that wraps around the end of the page. A line edit that was made late stands
// elsewhere than its box, and it is what Qt puts them behind.
void setTabOrder(QCustomComboBox* combo, std::initializer_list<QWidget*> rest)
{
    QWidget* first = combo;
    if (combo->lineEdit()) {
        first = combo->lineEdit();
    }
    for (auto widget = std::rbegin(rest); widget != std::rend(rest); ++widget) {
        QWidget::setTabOrder(first, *widget);
    }
}

void setUpPopup(QCustomComboBox* combo)
{
    combo->view()->setStyleSheet(QStringLiteral("background-color: white"));
    combo->setMaxVisibleItems(MostEntries);
}

void placeAbove(LumToolTip* popup, const QWidget* widget)
{
    const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
    popup->setGeometry(corner.x(), corner.y() - popup->height(), popup->width(), popup->height());
}

QLabel* createHand(QWidget* parent)
{
    auto* hand = new QLabel(parent);
    hand->setStyleSheet(QStringLiteral("background:transparent;border: none;"));
    hand->setAttribute(Qt::WA_TransparentForMouseEvents);
    hand->setFixedSize(BigHandSize);
    return hand;
}

void placeHand(QLabel* hand, const QWidget* button)
{
    hand->move(button->geometry().center() + HandOffset);
    hand->show();
    hand->raise();
}

void showHand(QLabel* hand, bool isSmall)
{
    hand->setPixmap(handPicture(isSmall, hand->devicePixelRatioF()));
}

} // namespace DeviceChecks
