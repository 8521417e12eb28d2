// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/LoggedSession.h"
#include "platform/scripted/WorkState.h"

#include <QObject>

namespace Platform {

class ResultDocument;

// What the users of scripted cameras, microphones and speakers have in common: which device is
// chosen, and the log of what was asked.
template <typename Backend, typename Devices>
class ScriptedSession : public QObject, public Backend
{
public:
    QString currentId() const override
    {
        m_session.query("currentId");
        return m_devices.currentId();
    }

    QString currentName() const override
    {
        m_session.query("currentName");
        return m_devices.currentName();
    }

    void setCurrent(const QString& id) override
    {
        m_session.call("setCurrent", id);
        m_devices.choose(id);
    }

    DeviceState state() const override
    {
        m_session.query("state");
        return currentState();
    }

protected:
    using Listener = typename Backend::Listener;

    ScriptedSession(const QString& name, Devices& devices, CallLog& log, ResultDocument& document,
                    Listener& listener)
        : m_devices(devices), m_document(document), m_listener(listener), m_session(log, name)
    {
    }

    // What the devices say, and what this session made of it.
    virtual DeviceState currentState() const { return m_devices.currentState(); }

    // Whether that is news for the listener; from now on it isn't.
    bool takeWorkState()
    {
        const WorkState before = m_workState;
        m_workState = workStateOf(currentState());
        return !(m_workState == before);
    }

    Devices& m_devices;
    ResultDocument& m_document; // what was measured goes there
    Listener& m_listener;
    LoggedSession m_session;
    WorkState m_workState;
};

} // namespace Platform
