// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/window/PopupScene.h"

#include "widgets/LumToolTip.h"

#include <LumWidgets/QCustomComboBox.h>

#include <QAbstractItemView>
#include <QLineEdit>

namespace TestSupport {

namespace {

constexpr QSize CentreSize(400, 300);
constexpr QRect ComboPlace(50, 150, 200, 30);
constexpr int Tolerance = 45; // the balloon lets some of what is below it through
constexpr int WideRow = 40;   // wider than a balloon's arrow
const QRgb ComboColour = qRgb(0, 200, 0);
const QRgb ListColour = qRgb(0, 0, 255);
const QRgb BalloonColour = qRgb(255, 0, 0);

bool isNear(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= Tolerance && qAbs(qGreen(a) - qGreen(b)) <= Tolerance &&
           qAbs(qBlue(a) - qBlue(b)) <= Tolerance;
}

// Of rows that have enough of the colour.
QRect placeOf(const QImage& screen, QRgb colour)
{
    QRect place;
    for (int y = 0; y < screen.height(); ++y) {
        int first = -1;
        int last = -1;
        int count = 0;
        for (int x = 0; x < screen.width(); ++x) {
            if (isNear(screen.pixel(x, y), colour)) {
                first = first < 0 ? x : first;
                last = x;
                ++count;
            }
        }
        if (count >= WideRow) {
            place |= QRect(QPoint(first, y), QPoint(last, y));
        }
    }
    return place;
}

} // namespace

PopupScene::PopupScene()
    : m_dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false),
      m_balloon(std::make_unique<LumToolTip>(QStringLiteral("A balloon above the list"), false,
                                             nullptr, Qt::AlignLeft, false, QColor(BalloonColour)))
{
    auto* centre = new QWidget;
    centre->setFixedSize(CentreSize);
    m_combo = new QCustomComboBox(centre);
    m_combo->setGeometry(ComboPlace);
    m_combo->setStyleSheet(QStringLiteral("QComboBox{border:none;background:%1;color:%1;"
                                          "combobox-popup:0;}QComboBox::drop-down{border:none;}")
                               .arg(QColor(ComboColour).name()));
    m_combo->view()->setStyleSheet(QStringLiteral("border:none;background:%1;color:%1;"
                                                  "selection-background-color:%1;")
                                       .arg(QColor(ListColour).name()));
    m_combo->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    m_combo->setPopupWidth(ComboPlace.width());
    m_combo->setEnableClickLineEdit(true);
    m_combo->lineEdit()->setReadOnly(true);
    m_combo->lineEdit()->setStyleSheet(QStringLiteral("background:transparent;border:none;"));
    m_dialog.setCenterWidget(centre, false);
}

PopupScene::~PopupScene() = default;

void PopupScene::placeBalloon()
{
    QRect place = m_balloon->geometry();
    place.moveBottomLeft(m_combo->mapToGlobal(QPoint(0, -1)));
    m_balloon->setGeometry(place);
}

QRect PopupScene::comboIn(const QImage& screen)
{
    return placeOf(screen, ComboColour);
}

QRect PopupScene::listIn(const QImage& screen)
{
    return placeOf(screen, ListColour);
}

QRect PopupScene::balloonIn(const QImage& screen)
{
    return placeOf(screen, BalloonColour);
}

} // namespace TestSupport
