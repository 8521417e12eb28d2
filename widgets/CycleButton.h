// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <vector>

// A button made of images alone, which runs through three of them while it is disabled. Disabled by
// its own click, it keeps the focus. GUI thread only.
class CycleButton : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY(CycleButton)

public:
    explicit CycleButton(QWidget* parent);
    ~CycleButton() override;

    void setImages(const QString& normal, const QString& hover, const QString& frame1,
                   const QString& frame2, const QString& frame3);
    // Shows the next frame. The count of frames is shared by all buttons, so two that run at the
    // same time skip frames.
    void updateStyle();

protected:
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QString m_normalImage;
    QString m_hoverImage;
    std::vector<QString> m_disabledFrames;
    int m_cycleTimerId = 0;
};
