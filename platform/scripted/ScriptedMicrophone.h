// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DefaultDevice.h"
#include "platform/backend/FoundVolume.h"
#include "platform/backend/MicrophoneBackend.h"
#include "platform/backend/TimeSeries.h"
#include "platform/scripted/ScriptedSession.h"

#include <QElapsedTimer>
#include <QTimer>
#include <optional>

namespace Platform {

class ScriptedMicrophones;

// One user of the scripted microphones.
class ScriptedMicrophone final : public ScriptedSession<MicrophoneBackend, ScriptedMicrophones>
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedMicrophone)

public:
    ScriptedMicrophone(ScriptedMicrophones& microphones, CallLog& log, ResultDocument& document,
                       Listener& listener);
    ~ScriptedMicrophone() override;

    DeviceList devices() const override;
    bool hasHeardSound() const override;

    void open() override;
    void close() override;
    void setListening(bool on) override;

    bool isVolumeAdjustable() const override;
    int volume() const override;
    int volumeOf(const QString& id) const override;
    void setVolume(int percent) override;

private:
    void connectModel();
    void onCurrentChanged();
    void onStateChanged();
    void onLevelTick();
    void measure(double level);
    bool hasHeard() const;
    DeviceState currentState() const override;
    void runLevels();
    void notifyWorkState();
    void startMeasuring();
    void noteLevel(double level);
    void addSound(QJsonObject& figures) const;
    void recordMeasurement();

    QTimer m_levelTimer;
    QElapsedTimer m_openClock;
    bool m_isOpen = false;
    QString m_id;
    FoundVolume m_found; // of the microphone m_id
    DefaultDevice m_default;
    bool m_hasHeard = false;
    std::optional<double> m_loudest; // since it was opened
    std::optional<double> m_quietest;
    std::optional<double> m_secondPeak; // of the second under way
    int m_second = 0;
    TimeSeries m_levelsOverTime;
};

} // namespace Platform
