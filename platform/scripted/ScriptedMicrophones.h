// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/ScriptedDevices.h"

#include <QJsonObject>
#include <QMap>

namespace Platform {

// The scripted microphones and what each of them hears.
class CLASSROOMSCRIPTED_EXPORT ScriptedMicrophones : public ScriptedDevices
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedMicrophones)

public:
    static constexpr int MaxVolume = 150;

    struct LevelPoint
    {
        int atMs = 0;
        double level = 0; // 0 to 1
    };
    // Straight lines between the points, repeated after the last one. Without points, only
    // emitLevel() gives levels.
    using LevelCurve = std::vector<LevelPoint>;

    ScriptedMicrophones();
    ~ScriptedMicrophones() override;

    // Kept while the microphone is unplugged.
    void setLevelCurve(const QString& id, const LevelCurve& curve);
    void setLevel(const QString& id, double level); // a constant one
    void setAdjustable(const QString& id, bool isAdjustable);
    void setVolume(const QString& id, int percent);
    void setMuted(const QString& id, bool isMuted); // a muted one hears nothing
    // What was measured of its sound, such as "humShare", in place of what follows from the levels.
    void setSound(const QString& id, const QJsonObject& figures);

    // Acts as if the current microphone had measured this level, which may be any number.
    void emitLevel(double level);
    // Another program moves the volume of the current microphone.
    void moveVolumeFromOutside(float percent);

    bool hasLevels() const; // of the current microphone
    double levelAt(qint64 ms) const;
    bool isAdjustable() const;
    int volume() const;
    int audibleVolumeOf(const QString& id) const; // 0 while it is muted
    bool isMuted() const;                         // the current one
    bool isMuted(const QString& id) const;
    QJsonObject sound() const;
    void setVolumeByUser(int percent); // also unmutes

Q_SIGNALS:
    void currentLevelsChanged();
    void levelEmitted(double level);
    void volumeSetByUser(int percent);
    void volumeMovedFromOutside(float percent);

private:
    struct Input
    {
        LevelCurve curve;
        bool isAdjustable = true;
        int volume = 100;
        bool isMuted = false;
        QJsonObject sound;
    };

    Input current() const { return m_inputs.value(currentId()); }

    QMap<QString, Input> m_inputs;
};

} // namespace Platform
