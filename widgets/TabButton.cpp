// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/TabButton.h"

#include <LumUtility/LumColor.h>

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int LabelSpacing = 20;

const QLatin1String LabelStyle("QLabel {font-size: 12px ;  color: #333; min-width: 80px;}");

} // namespace

TabButton::TabButton(QWidget* parent) : QToolButton(parent), m_label(new QLabel(this))
{
    m_label->setStyleSheet(LabelStyle);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_label);
    layout->setSpacing(LabelSpacing);
    connect(this, &QToolButton::toggled, this, &TabButton::onToggled);
}

TabButton::~TabButton() = default;

void TabButton::setText(const QString& text)
{
    m_label->setText(text);
}

void TabButton::onToggled(bool checked)
{
    m_label->setStyleSheet(QLatin1String("QLabel {font-size: 12px ;  color: ") +
                           (checked ? LumColor::Green : LumColor::Red).name() +
                           QLatin1String("; min-width: 80px;}"));
}
