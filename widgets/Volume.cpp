// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/Volume.h"

#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QSlider>

#include <sstream>

namespace {

constexpr int MaximumPercent = 100;
constexpr int ExtendedMaximumPercent = 150;
constexpr int LabelSpacing = 10;
constexpr int HandleExtraHeight = 2;

const QLatin1String HandleImage(":/Kestrel/Images/handle.svg");
const QLatin1String GrooveImage(":/Kestrel/Images/groove.png");
const QLatin1String SubPageImage(":/Kestrel/Images/subpage.png");

const QLatin1String ValueLabelStyle("QLabel { border-width: 1px;"
                                    "                             border-color: #c5c8d0;"
                                    "                             border-style: solid;"
                                    "                             border-radius: 2px;"
                                    "                             max-width: 30px;"
                                    "                             min-width: 30;"
                                    "                             max-height: 18px;"
                                    "                             font-size: 12px;"
                                    "                             color: #666666;"
                                    "                             line-height: 3.429;}");

// The handle's margins are negative, so that it reaches both ends of the groove.
QString sliderStyle(const QSize& handle, int grooveWidth)
{
    const int half = handle.width() / 2;
    return QStringLiteral(
               "QSlider{min-width:%1px; max-height:%2px; margin-left: %3px;  margin-right: %4px;}")
               .arg(handle.width() + grooveWidth)
               .arg(handle.height())
               .arg(half)
               .arg(handle.width()) +
           QStringLiteral("QSlider::groove:horizontal {margin-top:10px; left:%1px; right:%2px; "
                          "background:url(%3) no-repeat;}")
               .arg(half)
               .arg(handle.width())
               .arg(GrooveImage) +
           QStringLiteral("QSlider::sub-page:horizontal{margin-top: 10px; background: url(%1) "
                          "no-repeat;}")
               .arg(SubPageImage) +
           QStringLiteral("QSlider::handle:horizontal {margin-top: -9px; image: url(%1); width: "
                          "%2px; height:%3px; margin-left: %4px; margin-right: %5px;}")
               .arg(HandleImage)
               .arg(handle.width())
               .arg(handle.height() + HandleExtraHeight)
               .arg(-half)
               .arg(-handle.width() / 2);
}

} // namespace

Volume::Volume(QWidget* parent, int initialValue, bool extendedRange)
    : QWidget(parent),
      m_slider(new QSlider(Qt::Horizontal, this)),
      m_valueLabel(new QLabel(this)),
      m_maximum(extendedRange ? ExtendedMaximumPercent : MaximumPercent)
{
    // Below a style sheet Qt fills the left part of a slider in every direction.
    setLayoutDirection(Qt::LeftToRight);
    const QSize handle = QImage(HandleImage).size();
    const int grooveWidth = QImage(GrooveImage).width();
    setStyleSheet(QStringLiteral("QWidget {height:%1px}").arg(handle.height()));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignRight);
    m_slider->setStyleSheet(sliderStyle(handle, grooveWidth));
    layout->addWidget(m_slider);
    layout->addSpacing(LabelSpacing);
    m_slider->setRange(0, m_maximum);
    setVolume(initialValue);
    layout->addWidget(m_valueLabel);
    m_valueLabel->setStyleSheet(ValueLabelStyle);
    m_valueLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}

Volume::~Volume() = default;

void Volume::setVolume(int value)
{
    disconnect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(onValueChange(int)));
    m_slider->setValue(value);
    showValue(value);
    connect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(onValueChange(int)));
}

void Volume::setCaption(const QString& caption)
{
    setAccessibleName(caption);
    m_slider->setAccessibleName(caption);
    m_valueLabel->setAccessibleDescription(caption); // its name is the value
}

QWidget* Volume::slider() const
{
    return m_slider;
}

void Volume::onValueChange(int value)
{
    showValue(value);
    Q_EMIT setVolumeByUser(value);
}

void Volume::showValue(int value)
{
    std::ostringstream text;
    text << value;
    m_valueLabel->setText(QString::fromStdString(text.str()));
}
