// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class LumCameraBase;
enum enumPlayerType : int {};

class PlayerContainer : public QFrame
{
    Q_OBJECT

public:
    explicit PlayerContainer(QWidget* parent, bool = true, enumPlayerType = enumPlayerType(1))
        : QFrame(parent)
    {
    }

    void attachCamera(LumCameraBase*) {}
    void play() {}
    void stop() {}
};
