// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumWidgets/LumWidgetsExport.h>
#include <QDialog>
#include <QPointer>
#include <memory>

class DialogPopups;
class QFrame;
class QLabel;
class QToolButton;

// A title bar of the client's own, in place of the dialog's.
class LUMWIDGETS_EXPORT ICustomedTitleBar
{
public:
    virtual ~ICustomedTitleBar();

    virtual QWidget* widget() = 0; // the dialog takes it over
    virtual void setTitleText(const QString& text) = 0;
};

// The client's dialog frame: a title bar and one centre widget. GUI thread only.
//
// exec() ends when the centre widget closes or is destroyed. When the user closes the dialog, the
// centre widget is asked first with close(), and the dialog stays if that refuses. The dialog is
// its parent's child, and may stand on the stack all the same: when the parent is destroyed, it
// leaves the parent and ends.
class LUMWIDGETS_EXPORT LumCustomNormalDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(LumCustomNormalDialog)

public:
    enum Type : int {
        Normal = 0,
    };

    // The title bar (null: the dialog's own) is taken over. The last flag is for the client's other
    // dialogs and has no meaning here.
    LumCustomNormalDialog(Type type, QWidget* parent, Qt::WindowFlags flags,
                          ICustomedTitleBar* titleBar, bool isResizable);
    ~LumCustomNormalDialog() override;

    void setCenterWidget(QWidget* widget, bool isScrollable); // takes it over; null is allowed
    void setTitleText(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;
    int exec() override;
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createTitleBar();
    void moveAboveParent();
    void putCloseButtonLast();
    void abandon();
    bool askCenterToClose(); // false where it refused

    QPointer<QWidget> m_center;
    std::unique_ptr<ICustomedTitleBar> m_customTitleBar;
    QWidget* m_titleBar = nullptr;
    QLabel* m_titleLabel = nullptr;
    QToolButton* m_closeButton = nullptr;
    std::unique_ptr<DialogPopups> m_popups;
};
