// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumWidgets/LumCustomNormalDialog.h>
#include <QImage>
#include <memory>

class LumToolTip;
class QCustomComboBox;

namespace TestSupport {

// A dialog with a device list and a balloon above it, each in a colour of its own, so that a
// picture of the screen tells where they are.
class PopupScene
{
public:
    PopupScene();
    ~PopupScene();
    PopupScene(const PopupScene&) = delete;
    PopupScene& operator=(const PopupScene&) = delete;

    QDialog& dialog() { return m_dialog; }
    QCustomComboBox& combo() { return *m_combo; }
    LumToolTip& balloon() { return *m_balloon; }
    void placeBalloon();

    // On a picture of the screen; empty if it isn't there. The balloon is without its arrow.
    static QRect comboIn(const QImage& screen);
    static QRect listIn(const QImage& screen);
    static QRect balloonIn(const QImage& screen);

private:
    LumCustomNormalDialog m_dialog;
    QCustomComboBox* m_combo = nullptr;
    std::unique_ptr<LumToolTip> m_balloon;
};

} // namespace TestSupport
