// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestProcess.h"

namespace TestSupport {

// A running virtual_camera.
class CameraProcess : public TestProcess
{
    Q_OBJECT
    Q_DISABLE_COPY(CameraProcess)

public:
    explicit CameraProcess(const QString& name, const QString& description,
                           const QStringList& moreArguments = {});
    ~CameraProcess() override;

    QByteArray output(); // so far: a line for each state of its stream
    void command(const QByteArray& line);
    void kill(); // by SIGKILL

private:
    QByteArray m_output;
};

} // namespace TestSupport
