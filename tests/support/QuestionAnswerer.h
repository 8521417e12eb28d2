// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTimer>
#include <QtTest>
#include <functional>

// Waits for the modal question that a call under test opens, and reacts to it. A question that
// stays all the same fails the test, and is closed. Lives on the test's stack around the call.
class QuestionAnswerer
{
public:
    using Reaction = std::function<void(QMessageBox*)>;

    explicit QuestionAnswerer(QMessageBox::StandardButton button)
        : QuestionAnswerer([button](QMessageBox* box) { box->button(button)->click(); })
    {
    }

    explicit QuestionAnswerer(Reaction reaction) : m_reaction(std::move(reaction))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(PollMs);
    }

    int count() const { return m_count; }
    QString title() const { return m_title; }
    QString text() const { return m_text; }
    QMessageBox::StandardButtons buttons() const { return m_buttons; }
    QMessageBox::StandardButton defaultButton() const { return m_defaultButton; }
    const QWidget* parent() const { return m_parent; } // only to be compared

private:
    static constexpr int PollMs = 5;
    static constexpr int PatienceMs = 5000;

    void look()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            return;
        }
        if (box == m_last) {
            if (m_sinceReaction.hasExpired(PatienceMs)) {
                QTest::qFail("The question stays open", __FILE__, __LINE__);
                box->reject();
            }
            return;
        }
        m_last = box;
        m_sinceReaction.start();
        ++m_count;
        m_title = box->windowTitle();
        m_text = box->text();
        m_buttons = box->standardButtons();
        m_defaultButton = box->standardButton(box->defaultButton());
        m_parent = box->parentWidget();
        m_reaction(box);
    }

    QTimer m_timer;
    Reaction m_reaction;
    QPointer<QMessageBox> m_last;
    QElapsedTimer m_sinceReaction;
    int m_count = 0;
    QString m_title;
    QString m_text;
    QMessageBox::StandardButtons m_buttons;
    QMessageBox::StandardButton m_defaultButton = QMessageBox::NoButton;
    const QWidget* m_parent = nullptr;
};
