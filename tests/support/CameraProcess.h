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

    QByteArray output(); // all of it so far: the states of its stream, a line each
    void command(const QByteArray& line);
    void kill(); // without a farewell

private:
    QByteArray m_output;
};

} // namespace TestSupport
