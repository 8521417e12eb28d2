// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "agent/EnvCheckExport.h"
#include "agent/EnvCheckVersion.h"

#include <QObject>

class QWidget;

// The way in: the one class that the library exports. GUI thread only, and not safe to be used
// from two threads at once.
class ENVCHECK_EXPORT EnvCheckAgent : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("Version", ENVCHECK_VERSION)
    Q_DISABLE_COPY(EnvCheckAgent)

public:
    // The only agent; made on first use. The host calls release() before it unloads the library.
    static EnvCheckAgent* instance();
    static void release();

    ~EnvCheckAgent() override;

    // Runs the check as a modal dialog and returns when that is closed. Each call starts afresh.
    // parent: what the dialog is shown above, or null.
    void showEnvCheck(QWidget* parent);
    void showKestrel(); // asks the host for its main window

Q_SIGNALS:
    void signalHideLoginDialog(); // for the host; never emitted here
    void signalShowMainWindow();  // emitted by showKestrel() alone

private:
    explicit EnvCheckAgent(QObject* parent = nullptr);

    static EnvCheckAgent* m_instance;
};
