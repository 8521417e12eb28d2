// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/LumCustomNormalDialog.h>

#include "platform/LumWidgets/DialogPopups.h"
#include "platform/LumWidgets/FocusRing.h"
#include "platform/LumWidgets/PaintPace.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

namespace {

constexpr int TitleBarHeight = 40;
constexpr int CloseButtonSize = 24;
constexpr int TitleMargin = 16;

const char* const TitleBarStyle = "QWidget#titleBar{background:#FFFFFF;}"
                                  "QLabel#titleLabel{color:#232323;font-size:14px;}";
const char* const CloseButtonStyle =
    "QToolButton{border:none;border-radius:4px;background:transparent;color:#595959;"
    "font-size:16px;}"
    "QToolButton:hover,QToolButton:focus{background:#F0F0F0;}";

void destroyNativeWindow(const QWidget& widget)
{
    if (QWindow* window = widget.windowHandle()) {
        window->destroy();
    }
}

} // namespace

ICustomedTitleBar::~ICustomedTitleBar() = default;

LumCustomNormalDialog::LumCustomNormalDialog(Type /*type*/, QWidget* parent, Qt::WindowFlags flags,
                                             ICustomedTitleBar* titleBar, bool /*isResizable*/)
    : QDialog(parent, flags | Qt::Dialog | Qt::FramelessWindowHint),
      m_customTitleBar(titleBar),
      m_popups(std::make_unique<DialogPopups>(this))
{
    setObjectName(QStringLiteral("LumCustomNormalDialog"));
    setStyleSheet(QStringLiteral("QDialog#LumCustomNormalDialog{background:#FFFFFF;"
                                 "border:1px solid #D5D5D5;}"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_titleBar = m_customTitleBar ? m_customTitleBar->widget() : createTitleBar();
    layout->addWidget(m_titleBar);
    new FocusRing(this);
    new PaintPace(this);
    if (parent) {
        connect(parent, &QObject::destroyed, this, &LumCustomNormalDialog::abandon);
    }
}

LumCustomNormalDialog::~LumCustomNormalDialog()
{
    if (m_center) {
        m_center->disconnect(this);
        delete m_center;
    }
}

void LumCustomNormalDialog::setCenterWidget(QWidget* widget, bool /*isScrollable*/)
{
    delete m_center;
    m_center = widget;
    if (!widget) {
        return;
    }
    layout()->addWidget(widget);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this] { done(Accepted); });
}

void LumCustomNormalDialog::setTitleText(const QString& text)
{
    setWindowTitle(text);
    if (m_customTitleBar) {
        m_customTitleBar->setTitleText(text);
    } else {
        m_titleLabel->setText(text);
    }
}

bool LumCustomNormalDialog::eventFilter(QObject* watched, QEvent* event)
{
    // The centre widget is also hidden, but not explicitly, when the dialog is.
    if (watched == m_center && event->type() == QEvent::Hide && m_center->isHidden()) {
        done(Accepted);
    }
    return QDialog::eventFilter(watched, event);
}

int LumCustomNormalDialog::exec()
{
    setWindowModality(Qt::ApplicationModal);
    // What showing sets off may end the dialog before its loop begins, which would never end then.
    show();
    return isVisible() ? QDialog::exec() : result();
}

void LumCustomNormalDialog::reject()
{
    if (askCenterToClose()) {
        done(Rejected);
    }
}

void LumCustomNormalDialog::closeEvent(QCloseEvent* event)
{
    if (!askCenterToClose()) {
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void LumCustomNormalDialog::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_titleBar->geometry().contains(event->pos()) &&
        windowHandle()) {
        windowHandle()->startSystemMove();
    }
    QDialog::mousePressEvent(event);
}

void LumCustomNormalDialog::showEvent(QShowEvent* event)
{
    moveAboveParent();
    putCloseButtonLast();
    QDialog::showEvent(event);
}

QWidget* LumCustomNormalDialog::createTitleBar()
{
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("titleBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setFixedHeight(TitleBarHeight);
    bar->setStyleSheet(QLatin1String(TitleBarStyle));
    m_titleLabel = new QLabel(bar);
    m_titleLabel->setObjectName(QStringLiteral("titleLabel"));
    m_closeButton = new QToolButton(bar);
    m_closeButton->setObjectName(QStringLiteral("closeButton"));
    m_closeButton->setText(QString(QChar(0x2715)));
    m_closeButton->setAccessibleName(tr("Close"));
    m_closeButton->setFixedSize(CloseButtonSize, CloseButtonSize);
    m_closeButton->setStyleSheet(QLatin1String(CloseButtonStyle));
    connect(m_closeButton, &QToolButton::clicked, this, &QWidget::close);

    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(TitleMargin, 0, TitleMargin / 2, 0);
    layout->addWidget(m_titleLabel);
    layout->addStretch();
    layout->addWidget(m_closeButton);
    return bar;
}

void LumCustomNormalDialog::moveAboveParent()
{
    adjustSize();
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        move(0, 0); // the compositor places it, and Qt counts its popups' places from here
        return;
    }
    QRect place = geometry();
    const QWidget* parent = parentWidget();
    place.moveCenter(parent ? parent->window()->frameGeometry().center()
                            : QGuiApplication::primaryScreen()->availableGeometry().center());
    move(place.topLeft());
}

// The first control of the centre widget gets the focus, not the cross above it.
void LumCustomNormalDialog::putCloseButtonLast()
{
    QList<QWidget*> others;
    for (QWidget* widget = nextInFocusChain(); widget != this;
         widget = widget->nextInFocusChain()) {
        if (widget != m_closeButton && widget->focusPolicy() != Qt::NoFocus) {
            others << widget;
        }
    }
    if (!m_closeButton || others.isEmpty()) {
        return;
    }
    if (others.size() == 1) {
        others.first()->setFocus();
    } else {
        // Around the end of the chain the cross is behind the last one already, and Qt would leave
        // it where it is.
        setTabOrder(others.first(), m_closeButton);
        setTabOrder(others.last(), m_closeButton);
    }
}

void LumCustomNormalDialog::abandon()
{
    // A widget that is destroyed says so before it deletes its children, and this one may stand on
    // the stack.
    setParent(nullptr, windowFlags());
    // A question that is open runs an event loop inside ours; that has to end first.
    const QList<QDialog*> questions = findChildren<QDialog*>();
    for (QDialog* question : questions) {
        question->reject();
    }
    done(Rejected);
    // Windows destroys a native window together with its owner, and Qt warns of that. So they go
    // first, the questions before the dialog that owns them.
    for (const QDialog* question : questions) {
        destroyNativeWindow(*question);
    }
    destroyNativeWindow(*this);
}

bool LumCustomNormalDialog::askCenterToClose()
{
    // What close() returns isn't enough: a centre widget that is already asking its user says true
    // and stays.
    if (m_center && !m_center->isHidden()) {
        m_center->close();
    }
    return !m_center || m_center->isHidden();
}
