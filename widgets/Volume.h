// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QSlider;

// A volume slider with its value beside it. What the program sets stays silent; what the user moves
// is announced. GUI thread only.
class Volume : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(Volume)

public:
    // The range starts at 0 and ends at 100, or at 150 where it is extended.
    Volume(QWidget* parent, int initialValue, bool extendedRange);
    ~Volume() override;

    // A value outside the range moves the slider to its end, and is shown as it is.
    void setVolume(int value);

    // What a screen reader calls it.
    void setCaption(const QString& caption);
    QWidget* slider() const; // what takes the focus

Q_SIGNALS:
    void setVolumeByUser(int value);

private Q_SLOTS:
    void onValueChange(int);

private:
    void showValue(int value);

    QSlider* m_slider;
    QLabel* m_valueLabel;
    int m_maximum;
};
