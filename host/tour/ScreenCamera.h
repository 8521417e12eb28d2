// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>

// Takes pictures of the whole screen, with the program that the environment names: no program may
// take them on Wayland by itself. GUI thread only.
class ScreenCamera : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ScreenCamera)

public:
    ScreenCamera();
    ~ScreenCamera() override;

    // ENVCHECK_SCREENSHOT names a program that writes a picture to the file in its one argument.
    static bool isThere();

    bool isBusy() const { return m_done != nullptr; }
    // From the event loop; with a null picture if there is none.
    void take(const std::function<void(const QImage&)>& done);

private:
    void finish();

    QTemporaryDir m_folder;
    QProcess m_program;
    std::function<void(const QImage&)> m_done;
};
