// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

enum AudioPlayerType : int {};

class AudioPlayer : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void playFileFinished();
};

AudioPlayer* CreateAudioPlayer(AudioPlayerType, QString path, float volume, char*, int, bool, bool);
int DeleleAudioPlayer(AudioPlayer*);
