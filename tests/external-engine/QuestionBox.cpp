// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "QuestionBox.h"

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

QuestionBox& QuestionBox::instance()
{
    static QuestionBox box;
    return box;
}

void QuestionBox::reset(Kind newKind, QMessageBox::StandardButton newAnswer)
{
    kind = newKind;
    answer = newAnswer;
    whileOpen = {};
    beforeAnswer = {};
    asked = 0;
}

QMessageBox::StandardButton QuestionBox::ask(QWidget* frame)
{
    ++asked;
    ++m_depth;
    if (whileOpen) {
        QTimer::singleShot(0, this, whileOpen);
    }
    switch (kind) {
    case Kind::AtOnce:
        break;
    case Kind::DialogBelowFrame:
        runDialog(frame);
        break;
    case Kind::DialogBelowWindow:
        runDialog(frame->window());
        break;
    case Kind::DialogAlone:
        runDialog(nullptr);
        break;
    case Kind::WindowBelowFrame:
        runWindow(frame);
        break;
    case Kind::WindowAlone:
        runWindow(nullptr);
        break;
    case Kind::NothingShown:
        runLoop();
        break;
    }
    --m_depth;
    if (beforeAnswer) {
        beforeAnswer();
    }
    return answer;
}

bool QuestionBox::isShown() const
{
    return m_window && m_window->isVisible();
}

bool QuestionBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Close) {
        Q_EMIT answered();
    }
    return QObject::eventFilter(watched, event);
}

// On the stack: the parent must outlive the question.
void QuestionBox::runDialog(QWidget* parent)
{
    QDialog dialog(parent);
    m_window = &dialog;
    connect(this, &QuestionBox::answered, &dialog, &QDialog::reject);
    dialog.exec();
    m_window = nullptr;
}

void QuestionBox::runWindow(QWidget* parent)
{
    QWidget window(parent, Qt::Window);
    m_window = &window;
    window.installEventFilter(this);
    window.show();
    runLoop();
    m_window = nullptr;
}

void QuestionBox::runLoop()
{
    QEventLoop loop;
    connect(this, &QuestionBox::answered, &loop, &QEventLoop::quit);
    loop.exec();
}
