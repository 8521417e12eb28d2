// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/LoggedSession.h"
#include "platform/scripted/WorkState.h"

#include <QObject>

namespace Platform {

class ResultDocument;

// What scripted cameras, microphones and speakers share: the chosen device and the log of calls.
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

    DeviceState stateOf(const QString& id) const override
    {
        m_session.query("stateOf");
        return id == m_devices.currentId() ? currentState() : m_devices.stateOf(id);
    }

protected:
    using Listener = typename Backend::Listener;

    ScriptedSession(const QString& name, Devices& devices, CallLog& log, ResultDocument& document,
                    Listener& listener)
        : m_devices(devices), m_document(document), m_listener(listener), m_session(log, name)
    {
    }

    // The scripted state, and what this session makes of it.
    virtual DeviceState currentState() const { return m_devices.currentState(); }

    // True if the listener doesn't know this state yet; remembers it as known.
    bool takeWorkState()
    {
        const WorkState before = m_workState;
        m_workState = workStateOf(currentState());
        return !(m_workState == before);
    }

    Devices& m_devices;
    ResultDocument& m_document; // receives what was measured
    Listener& m_listener;
    LoggedSession m_session;
    WorkState m_workState;
};

} // namespace Platform
