// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/ScreenCamera.h"

#include <QFile>
#include <utility>

namespace {

const char* const ProgramVariable = "ENVCHECK_SCREENSHOT";

} // namespace

ScreenCamera::ScreenCamera()
{
    m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_program, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &ScreenCamera::finish);
    connect(&m_program, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            finish();
        }
    });
}

ScreenCamera::~ScreenCamera()
{
    m_program.disconnect(this);
}

bool ScreenCamera::isThere()
{
    return !qEnvironmentVariableIsEmpty(ProgramVariable);
}

void ScreenCamera::take(const std::function<void(const QImage&)>& done)
{
    m_done = done;
    QFile::remove(m_folder.filePath(QStringLiteral("screen.png")));
    m_program.start(qEnvironmentVariable(ProgramVariable),
                    {m_folder.filePath(QStringLiteral("screen.png"))});
}

void ScreenCamera::finish()
{
    const QImage picture(m_folder.filePath(QStringLiteral("screen.png")));
    std::exchange(m_done, nullptr)(picture);
}
