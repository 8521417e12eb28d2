// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

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

// The real dialog on the real engine, in a language of the program. Pictures of it are kept in the
// folder "screenshots" of the build.
class DeviceDialog
{
public:
    using Script = std::function<void()>;

    explicit DeviceDialog(const QString& language);
    ~DeviceDialog();
    DeviceDialog(const DeviceDialog&) = delete;
    DeviceDialog& operator=(const DeviceDialog&) = delete;

    // Opens the dialog, runs the script in it, closes it and says yes to the question. False where
    // the dialog didn't come or didn't go.
    bool run(const Script& script);
    void click(const char* name) const; // a widget, in its middle
    QPixmap picture() const;            // with the balloons, which are windows of their own
    bool keepFrame(const QString& name) const { return picture().save(screenshot(name)); }
    static QString screenshot(const QString& name); // its path, in a folder that is there
    QJsonObject results() const;

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
};

} // namespace TestSupport
