// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundTool.h"

#include <QProcess>
#include <QTest>

namespace TestSupport {

class SoundTool::System
{
public:
    QProcess process;
};

SoundTool::SoundTool() : m_system(std::make_unique<System>())
{
}

SoundTool::~SoundTool()
{
    kill();
}

void SoundTool::start(const QString& program, const QStringList& options, const QByteArray& input)
{
    m_system->process.start(program, options);
    if (!input.isEmpty()) {
        m_system->process.write(input);
    }
    m_system->process.closeWriteChannel();
}

bool SoundTool::isRunning() const
{
    return m_system->process.state() != QProcess::NotRunning;
}

bool SoundTool::waitForEnd(int timeoutMs)
{
    return QTest::qWaitFor([this] { return !isRunning(); }, timeoutMs);
}

void SoundTool::kill()
{
    if (isRunning()) {
        m_system->process.kill();
        m_system->process.waitForFinished();
    }
}

QIODevice& SoundTool::output()
{
    return m_system->process;
}

} // namespace TestSupport
