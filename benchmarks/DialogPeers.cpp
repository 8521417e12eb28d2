// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/DialogPeers.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWizard>
#include <map>

namespace {

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

template <typename Button>
QWidget* makeButton(QWidget* parent)
{
    auto* button = new Button(parent);
    button->setText(QStringLiteral("Button"));
    return button;
}

QWidget* makeLabel(QWidget* parent)
{
    return new QLabel(QStringLiteral("A label"), parent);
}

QWidget* makeComboBox(QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    combo->setEditable(true);
    combo->addItems({QStringLiteral("First device"), QStringLiteral("Second device")});
    return combo;
}

QWidget* makeTable(QWidget* parent)
{
    return new QTableWidget(4, 3, parent);
}

// What makes a widget of each of Qt's classes.
const std::map<QByteArray, QWidget* (*)(QWidget*)> Makers = {
    {"QLabel", makeLabel},
    {"QPushButton", makeButton<QPushButton>},
    {"QToolButton", makeButton<QToolButton>},
    {"QRadioButton", makeButton<QRadioButton>},
    {"QComboBox", makeComboBox},
    {"QSlider", make<QSlider>},
    {"QProgressBar", make<QProgressBar>},
    {"QTableWidget", makeTable},
    {"QStackedWidget", make<QStackedWidget>},
    {"QFrame", make<QFrame>},
    {"QWidget", make<QWidget>},
};

const QStringList PageNames = {QStringLiteral("networkPage"), QStringLiteral("cameraPage"),
                               QStringLiteral("headsetPage"), QStringLiteral("microphonePage"),
                               QStringLiteral("resultPage")};

QByteArray kindOf(const QWidget& widget)
{
    const QMetaObject* meta = widget.metaObject();
    while (Makers.count(meta->className()) == 0) {
        meta = meta->superClass();
    }
    return meta->className();
}

// Those make their own parts.
bool isComposite(const QByteArray& kind)
{
    return kind == "QComboBox" || kind == "QTableWidget" || kind == "QSlider";
}

} // namespace

DialogPeers::DialogPeers(const QWidget& dialog)
    : m_model(modelOf(dialog)), m_ownCount(widgetCount(dialog))
{
}

std::unique_ptr<QDialog> DialogPeers::makeWizard(bool isStyled) const
{
    auto wizard = std::make_unique<QWizard>();
    std::vector<QWidget*> pages;
    for (int i = 0; i < PageNames.size(); ++i) {
        auto* page = new QWizardPage;
        page->setLayout(new QVBoxLayout);
        pages.push_back(page);
    }
    fill(pages, 0, m_model, isStyled);
    for (QWidget* page : pages) {
        wizard->addPage(static_cast<QWizardPage*>(page));
    }
    return wizard;
}

std::unique_ptr<QDialog> DialogPeers::makeTwin() const
{
    auto dialog = std::make_unique<QDialog>(nullptr, Qt::FramelessWindowHint);
    dialog->setObjectName(m_model.name);
    dialog->setStyleSheet(m_model.styleSheet);
    auto* layout = new QVBoxLayout(dialog.get());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    for (const Model& model : m_model.parts) {
        QWidget* part = build(model, nullptr);
        part->setFixedSize(model.geometry.size());
        part->setWindowFlags(Qt::FramelessWindowHint);
        layout->addWidget(part);
    }
    return dialog;
}

int DialogPeers::widgetCount(const QWidget& window)
{
    return window.findChildren<QWidget*>().size();
}

DialogPeers::Model DialogPeers::modelOf(const QWidget& widget)
{
    const QByteArray kind = kindOf(widget);
    Model model{Makers.at(kind), widget.objectName(), widget.styleSheet(), widget.geometry(), {}};
    if (isComposite(kind)) {
        return model;
    }
    for (const QObject* child : widget.children()) {
        const auto* part = qobject_cast<const QWidget*>(child);
        if (part && !part->isWindow()) {
            model.parts.push_back(modelOf(*part));
        }
    }
    return model;
}

QWidget* DialogPeers::build(const Model& model, QWidget* parent)
{
    QWidget* copy = model.make(parent);
    copy->setObjectName(model.name); // some style sheets name their widget
    copy->setStyleSheet(model.styleSheet);
    copy->setGeometry(model.geometry);
    auto* stack = qobject_cast<QStackedWidget*>(copy);
    for (const Model& part : model.parts) {
        if (stack) {
            stack->addWidget(build(part, nullptr));
        } else {
            build(part, copy);
        }
    }
    return copy;
}

void DialogPeers::fill(std::vector<QWidget*>& pages, std::size_t page, const Model& model,
                       bool isStyled)
{
    for (const Model& part : model.parts) {
        const int ofPage = PageNames.indexOf(part.name);
        const std::size_t target = ofPage < 0 ? page : static_cast<std::size_t>(ofPage);
        QWidget* copy = pages[target];
        if (ofPage < 0) {
            copy = part.make(pages[target]);
            pages[target]->layout()->addWidget(copy);
        }
        if (isStyled) {
            copy->setObjectName(part.name);
            copy->setStyleSheet(part.styleSheet);
        }
        fill(pages, target, part, isStyled);
    }
}
