// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
#include "platform/backend/DeviceInfo.h"

#include <QObject>
#include <vector>

namespace Platform {

// The devices of one kind: which are plugged in, what is wrong with them, which one is chosen. The
// first device to be plugged in is chosen unless a choice was made; a chosen device stays chosen
// while it is unplugged. Steered by a scenario or a test; the sessions pass changes on to their
// listeners from the event loop.
//
// A device's scripted state: Ready works as soon as something comes from it, Working works without
// waiting for that, all others stay as they are.
class CLASSROOMSCRIPTED_EXPORT ScriptedDevices : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedDevices)

public:
    ScriptedDevices();
    ~ScriptedDevices() override;

    // A device that is already there keeps its place and takes the new name and state.
    void plug(const DeviceInfo& device, DeviceState state = DeviceState::Ready);
    void unplug(const QString& id);
    void rename(const QString& id, const QString& name);
    void setState(const QString& id, DeviceState state);
    void choose(const QString& id); // an empty id is the entry for no device

    DeviceList devices() const;
    QString currentId() const { return m_currentId; }
    // The system's own choice: the first of the list. Null where there is none.
    QString defaultName() const;
    QString currentName() const { return m_currentName; }
    DeviceState currentState() const;             // as scripted; Absent or Off where there is none
    DeviceState stateOf(const QString& id) const; // as scripted; Absent if it isn't plugged in

Q_SIGNALS:
    void listChanged();
    void currentChanged(const QString& id); // also after every change of the list
    void currentStateChanged();
    void currentInfoChanged();

private:
    struct Device
    {
        DeviceInfo info;
        DeviceState state = DeviceState::Ready;
    };

    std::vector<Device>::iterator find(const QString& id);
    std::vector<Device>::const_iterator find(const QString& id) const;
    void refreshCurrentName();
    void announceList();

    std::vector<Device> m_devices;
    QString m_currentId;
    QString m_currentName;
    bool m_isChoiceMade = false;
};

} // namespace Platform
