// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <memory>

namespace TestSupport {

// The cameras that the engine of this system finds, as a test of the dialog needs them: virtual
// ones of a PipeWire server, or those that are staged for Windows. A camera's name is its id. For
// programs that a test starts on Windows, DialogCameras_program.cpp has what there is.
class DialogCameras
{
public:
    static constexpr QRgb Red = qRgb(0xc8, 0x28, 0x28);

    enum class Start { Working, Stalled };

    DialogCameras();
    ~DialogCameras(); // what is frozen goes on
    DialogCameras(const DialogCameras&) = delete;
    DialogCameras& operator=(const DialogCameras&) = delete;

    bool start(); // before all else; true once there is a list of cameras
    QString problem() const;

    // Waits until the system knows it.
    void plug(const QString& name, const QString& description, QRgb color = Red,
              Start start = Start::Working);
    void resume(const QString& name); // a stalled one
    void unplug(const QString& name);
    void hang(const QString& name); // it answers nothing any more
    bool wasOpened(const QString& name) const;

    // Whatever brings the cameras answers nothing.
    void freeze();
    void thaw();
#ifdef Q_OS_UNIX
    void kill(); // the server
#endif

private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};

} // namespace TestSupport
