// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
#include "platform/backend/DeviceInfo.h"

#include <QObject>
#include <vector>

namespace Platform {

// The devices of one kind: which are plugged in, their states, and which one is chosen. If nobody
// chose one, the first device that is plugged in is the chosen one. A chosen device stays chosen
// while it is unplugged. A scenario or a test makes the changes; the sessions tell their listeners
// from the event loop.
//
// The scripted state of a device: Ready becomes Working with the first frame or sound, Working
// doesn't wait for that, and all others stay as they are.
class CLASSROOMSCRIPTED_EXPORT ScriptedDevices : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedDevices)

public:
    ScriptedDevices();
    ~ScriptedDevices() override;

    // If a device of this id is in the list, it keeps its place and gets the new name and state.
    void plug(const DeviceInfo& device, DeviceState state = DeviceState::Ready);
    void unplug(const QString& id);
    void rename(const QString& id, const QString& name);
    void setState(const QString& id, DeviceState state);
    void choose(const QString& id); // an empty id means "no device"

    DeviceList devices() const { return m_list; }
    QString currentId() const { return m_currentId; }
    // The system's default device: the first of the list. Null if the list is empty.
    QString defaultName() const;
    QString currentName() const { return m_currentName; }
    DeviceState currentState() const;             // as scripted; Absent or Off if there is none
    DeviceState stateOf(const QString& id) const; // as scripted; Absent if it is not plugged in

Q_SIGNALS:
    void listChanged();
    void currentChanged(const QString& id); // also after each change of the list
    void currentStateChanged();
    void currentInfoChanged();

private:
    struct Device : DeviceInfo
    {
        DeviceState state = DeviceState::Ready;
    };

    void refreshCurrentName();
    void announceList();

    std::vector<Device> m_devices;
    DeviceList m_list; // the same with distinct names
    QString m_currentId;
    QString m_currentName;
    bool m_isChoiceMade = false;
};

} // namespace Platform
