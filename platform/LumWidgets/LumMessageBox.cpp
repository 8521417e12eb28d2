// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/LumMessageBox.h>

#include "platform/LumWidgets/FocusRing.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPointer>

namespace {

const QLatin1String BoxStyle("QMessageBox{background:#FFFFFF;dialogbuttonbox-buttons-have-icons:0;}"
                             "QMessageBox QLabel{color:#232323;font-size:14px;}");
const QLatin1String ButtonStyle(
    "QPushButton{border:1px solid #D5D5D5;border-radius:4px;background:#FFFFFF;color:#232323;"
    "font-size:14px;min-width:86px;min-height:28px;}"
    "QPushButton:hover{background:#F7F7F7;}"
    "QPushButton:default{border:none;background:#00835A;color:#FFFFFF;}");

constexpr QRgb EdgeColor = 0x8C8C8C; // 3.4 : 1 on white

// Without a window manager, a window has no frame: only this edge sets the white box off from the
// white page below it.
class EdgedBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QMessageBox::paintEvent(event);
        QPainter painter(this);
        painter.setPen(QColor(EdgeColor));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

} // namespace

QMessageBox::StandardButton LumMessageBox::question(QWidget* parent, const QString& title,
                                                    const QString& text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton)
{
    // On the heap and watched: the parent may be destroyed while the box is open.
    const QPointer<QMessageBox> box =
        new EdgedBox(QMessageBox::Question, title, text, buttons, parent);
    box->setStyleSheet(BoxStyle);
    // One by one: below a parent with a sheet of its own, a rule of the box's doesn't reach them.
    const QList<QAbstractButton*> all = box->buttons();
    for (QAbstractButton* button : all) {
        button->setStyleSheet(ButtonStyle);
        button->setIcon(QIcon()); // many styles put coloured balls on yes and no
    }
    box->setDefaultButton(defaultButton);
    new FocusRing(box);
    box->exec();
    if (!box) {
        return QMessageBox::NoButton;
    }
    const QMessageBox::StandardButton answer = box->standardButton(box->clickedButton());
    delete box;
    return answer;
}
