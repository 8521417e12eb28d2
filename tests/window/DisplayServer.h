// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestProcess.h"

#include <QImage>
#include <QSize>
#include <QTemporaryDir>
#include <functional>
#include <memory>

namespace TestSupport {

// A display of the test's own: an X server without a screen, or a Wayland compositor that has such
// a server for its screen, keyboard and mouse.
class DisplayServer
{
public:
    enum class Kind { X11, Wayland };

    explicit DisplayServer(Kind kind);
    ~DisplayServer();
    DisplayServer(const DisplayServer&) = delete;
    DisplayServer& operator=(const DisplayServer&) = delete;

    bool start(const QSize& size);
    void kill();
    // What its clients need in their environment, by variables' names.
    QProcessEnvironment environment() const;
    void useForThisProcess() const; // before the application object is made

    bool startManager(const QString& program); // of X11's windows; an empty name ends it
    bool setFontDpi(int dpi);                  // on X11
    bool type(const QStringList& words) const; // real events, in the words of xdotool
    QString output(const QString& program, const QStringList& arguments) const;

    QImage picture() const; // of the whole screen

private:
    bool startCompositor(const QSize& size);
    QProcessEnvironment serverEnvironment() const;
    bool waitFor(const std::function<bool()>& isReady);

    const Kind m_kind;
    QTemporaryDir m_folder;
    TestProcess m_server;
    TestProcess m_compositor;
    std::unique_ptr<TestProcess> m_manager;
    QString m_name;
};

} // namespace TestSupport
