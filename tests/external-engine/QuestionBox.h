// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QObject>
#include <functional>

// The ways in which an engine may ask a question. A test chooses one, and what happens meanwhile.
class QuestionBox : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        AtOnce, // asks nobody
        DialogBelowFrame,
        DialogBelowWindow,
        DialogAlone,
        WindowBelowFrame,
        WindowAlone,
        NothingShown, // only an event loop
    };
    Q_ENUM(Kind)

    static QuestionBox& instance();

    void reset(Kind newKind, QMessageBox::StandardButton newAnswer);
    // The answer is the one that was set, even if the box was closed without one.
    QMessageBox::StandardButton ask(QWidget* frame);
    bool isOpen() const { return m_depth > 0; } // its event loop runs
    bool isShown() const;                       // and a window of it stands there

    Kind kind = Kind::AtOnce;
    QMessageBox::StandardButton answer = QMessageBox::Yes;
    std::function<void()> whileOpen;    // from the question's event loop
    std::function<void()> beforeAnswer; // after that loop, from within the call
    int asked = 0;

Q_SIGNALS:
    void answered(); // emitted by the test: ends the event loop

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void runDialog(QWidget* parent);
    void runWindow(QWidget* parent);
    void runLoop();

    QWidget* m_window = nullptr;
    int m_depth = 0;
};
