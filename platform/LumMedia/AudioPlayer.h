// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumMedia/LumMediaExport.h>
#include <QObject>
#include <QString>
#include <memory>

enum AudioPlayerType : int {};

// One sound that plays. The two functions below create and delete it. It is also stopped and
// deleted, without a signal, with the LumSpeaker that was the newest at its creation. GUI thread
// only.
class LUMMEDIA_EXPORT AudioPlayer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(AudioPlayer)

public:
    ~AudioPlayer() override;

Q_SIGNALS:
    // Once, from the event loop; also if the file or the device is bad.
    void playFileFinished();

private:
    class Bridge;
    friend LUMMEDIA_EXPORT AudioPlayer* CreateAudioPlayer(AudioPlayerType, QString, float, char*,
                                                          int, bool, bool);
    friend LUMMEDIA_EXPORT int DeleleAudioPlayer(AudioPlayer*);

    AudioPlayer(const QString& path, float volume);

    std::unique_ptr<Bridge> m_bridge;
};

// Starts to play the file on the current speaker. volume is a factor, 0 to 1; type, data, size and
// the flags are for the client's other sounds and have no meaning here. Never null.
LUMMEDIA_EXPORT AudioPlayer* CreateAudioPlayer(AudioPlayerType type, QString path, float volume,
                                               char* data, int size, bool loop, bool fadeIn);

// Stops the sound and deletes its player; 0. Null is allowed and gives -1. Safe inside a handler of
// the player's own signal.
LUMMEDIA_EXPORT int DeleleAudioPlayer(AudioPlayer* player);
