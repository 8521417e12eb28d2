// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/CycleButton.h"

#include <QEvent>
#include <QTimerEvent>

namespace {

constexpr int FrameIntervalMs = 300;
constexpr QSize ImageSize(50, 50);

unsigned s_frameCount = 0;

} // namespace

CycleButton::CycleButton(QWidget* parent) : QPushButton(parent)
{
    setIconSize(ImageSize);
}

CycleButton::~CycleButton() = default;

void CycleButton::setImages(const QString& normal, const QString& hover, const QString& frame1,
                            const QString& frame2, const QString& frame3)
{
    m_normalImage = normal;
    m_hoverImage = hover;
    m_disabledFrames = {frame1, frame2, frame3};
    updateStyle();
}

void CycleButton::updateStyle()
{
    ++s_frameCount;
    const QString frame = m_disabledFrames.empty()
                              ? QString()
                              : m_disabledFrames[s_frameCount % m_disabledFrames.size()];
    setStyleSheet(QStringLiteral("QPushButton{border:none;background: transparent;image:url(%1);}"
                                 "QPushButton:hover{image:url(%2);}"
                                 "QPushButton:disabled{image:url(%3);}")
                      .arg(m_normalImage, m_hoverImage, frame));
}

// Qt asks a button that gets disabled to pass its focus on: the next press of the same key would be
// for another control.
bool CycleButton::focusNextPrevChild(bool next)
{
    return !isEnabled() || QPushButton::focusNextPrevChild(next);
}

void CycleButton::changeEvent(QEvent* event)
{
    if (event->type() != QEvent::EnabledChange) {
        QPushButton::changeEvent(event);
        return;
    }
    if (isEnabled()) {
        killTimer(m_cycleTimerId);
        m_cycleTimerId = 0;
        updateStyle();
    } else {
        m_cycleTimerId = startTimer(FrameIntervalMs);
    }
}

void CycleButton::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_cycleTimerId) {
        updateStyle();
    } else {
        QPushButton::timerEvent(event);
    }
}
