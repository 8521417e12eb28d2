// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/CheckPage.h"

#include <LumUtility/LumColor.h>

#include <QComboBox>
#include <QKeyEvent>
#include <QTimerEvent>

namespace {

constexpr int BlinkIntervalMs = 400;

const QLatin1String BlinkButtonStyle(
    "QToolButton{border-radius: 2px;min-width: 110px;min-height: 24px;max-width: 110px;"
    "max-height: 24px;color: #fff;");
const QLatin1String BlinkLabelStyle("QLabel{font-size: 12px; color: white; background-color:");

} // namespace

CheckPage::CheckPage(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_hardwareMgr(std::make_shared<HardwareMgr>(QString("CheckPage")))
{
}

CheckPage::~CheckPage() = default;

bool CheckPage::isPassed() const
{
    return false;
}

void CheckPage::saveResult()
{
}

void CheckPage::updateDeviceState()
{
}

std::vector<QString> CheckPage::problemList() const
{
    return {};
}

void CheckPage::reset()
{
    m_untested = true;
    m_userConfirmed = false;
}

bool CheckPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            return true;
        }
    } else if (event->type() == QEvent::Wheel) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool CheckPage::isTested() const
{
    return !m_untested;
}

QString CheckPage::problemText() const
{
    QString text;
    for (const QString& line : problemList()) {
        text += line + QLatin1Char('\n');
    }
    text.chop(1);
    return text;
}

void CheckPage::finishCheck(bool userConfirmed)
{
    m_untested = false;
    m_userConfirmed = userConfirmed;
    Q_EMIT complete();
}

void CheckPage::setBlinkButton(QWidget* button)
{
    killTimer(m_blinkTimerId);
    m_blinkTimerId = 0;
    m_blinkButton = button;
    if (m_blinkButton) {
        m_blinkTimerId = startTimer(BlinkIntervalMs, Qt::CoarseTimer);
    }
}

void CheckPage::selectComboData(QComboBox* combo, const QString& value)
{
    if (combo->count() == 0 || combo->currentData(Qt::UserRole).toString() == value) {
        return;
    }
    combo->setCurrentIndex(
        combo->findData(value, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void CheckPage::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_blinkTimerId || !m_blinkButton) {
        return;
    }
    ++m_blinkCount;
    const QString colour = (m_blinkCount % 2 == 1 ? LumColor::LightGreen : LumColor::Green).name();
    m_blinkButton->setStyleSheet(BlinkButtonStyle + QLatin1String("background-color:") + colour +
                                 QLatin1String(";}") + BlinkLabelStyle + colour +
                                 QLatin1String(";}"));
}

void CheckPage::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    updateDeviceState();
}
