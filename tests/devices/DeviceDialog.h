// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/GapMeter.h"

#include <LumWidgets/LumCustomNormalDialog.h>

#include <QJsonObject>
#include <QPixmap>
#include <QPointer>
#include <QTemporaryDir>
#include <QTranslator>
#include <functional>

namespace Platform {
class DeviceEngine;
}

namespace TestSupport {

// How long anything may block the dialog's event loop.
#ifdef Q_OS_WIN
// Nothing tells under Wine how long the thread waited for a processor. Servers are frozen for
// longer than that.
constexpr qint64 MaxDialogGapMs = 400;
#else
constexpr qint64 MaxDialogGapMs = MaxGapMs;
#endif
// Starting a server blocks the event loop of the test for longer, because it waits for programs.
constexpr qint64 MaxStartGapMs = 3 * MaxDialogGapMs;

// The real dialog on the real engine, in one language of the program. Screenshots go to the folder
// "screenshots" of the build.
class DeviceDialog
{
public:
    using Script = std::function<void()>;

    explicit DeviceDialog(const QString& language);
    ~DeviceDialog();
    DeviceDialog(const DeviceDialog&) = delete;
    DeviceDialog& operator=(const DeviceDialog&) = delete;

    // Opens the dialog, runs the script, closes the dialog and answers the question with yes. False
    // if the dialog didn't open or didn't close.
    bool run(const Script& script);
    void click(const char* name) const; // the middle of a widget
    QPixmap picture() const;            // with the balloons, which are separate windows
    bool keepFrame(const QString& name) const { return picture().save(screenshot(name)); }
    static QString screenshot(const QString& name); // its path; creates the folder
    QJsonObject results() const;

    // Measures how long the action blocks the event loop, and prints it as a row for
    // docs/faults.md.
    void meter(const char* fault, const Script& action);
    qint64 worstGapMs() const { return m_worstGapMs; } // of all calls to meter()
    // How long servers are stopped: ENVCHECK_FREEZE_MS if that is longer than the usual time.
    static int freezeMs();

    template <typename T>
    T* child(const char* name) const
    {
        T* const result = m_dialog->findChild<T*>(QLatin1String(name));
        if (!result) {
            qFatal("the dialog has no %s", name);
        }
        return result;
    }

private:
    QTranslator m_translator;
    QTemporaryDir m_folder;
    Platform::DeviceEngine* m_engine; // the registry's
    QPointer<LumCustomNormalDialog> m_dialog;
    qint64 m_worstGapMs = 0;
};

} // namespace TestSupport
