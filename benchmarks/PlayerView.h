// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/View.h"

#include <QMediaPlayer>
#include <QVideoWidget>

// Qt's player with Qt's video widget, fed by the same source.
class PlayerView final : public View
{
public:
    PlayerView(const QString& node, bool isJpeg);

    void go() override;
    void stop() override;

private:
    QUrl m_source;
    QVideoWidget m_widget;
    QMediaPlayer m_player;
};
