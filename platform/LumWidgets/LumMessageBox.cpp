// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/LumMessageBox.h>

#include <QPointer>

QMessageBox::StandardButton LumMessageBox::question(QWidget* parent, const QString& title,
                                                    const QString& text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton)
{
    // On the heap and watched: the parent may be destroyed while the box is open.
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(defaultButton);
    box->exec();
    if (!box) {
        return QMessageBox::NoButton;
    }
    const QMessageBox::StandardButton answer = box->standardButton(box->clickedButton());
    delete box;
    return answer;
}
