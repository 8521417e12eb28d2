// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QWidget>

// A speech balloon with an arrow at its bottom edge. Without a parent it is a popup that the caller
// places on the screen. GUI thread only.
class LumToolTip : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(LumToolTip)

public:
    // The arrow stands in the middle where alignment is exactly Qt::AlignCenter, otherwise near the
    // left edge.
    LumToolTip(const QString& text, bool wordWrap, QWidget* parent, Qt::Alignment alignment,
               bool hideOnLeave, const QColor& background);
    ~LumToolTip() override;

    QString text() const;

protected:
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel m_label;
    Qt::Alignment m_alignment;
    QColor m_background;
    bool m_hideOnLeave;
    QHBoxLayout m_layout;
};
