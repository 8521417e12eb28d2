// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/NativeProgram.h"
#include "tests/support/SoundTool.h"

#include <QTest>

namespace TestSupport {

class SoundTool::System
{
public:
    NativeProgram program;
};

SoundTool::SoundTool() : m_system(std::make_unique<System>())
{
}

SoundTool::~SoundTool() = default;

void SoundTool::start(const QString& program, const QStringList& options, const QByteArray& input)
{
    m_system->program.start(program, options);
    if (!input.isEmpty()) {
        m_system->program.feed(input);
    }
}

bool SoundTool::isRunning() const
{
    return m_system->program.isRunning();
}

bool SoundTool::waitForEnd(int timeoutMs)
{
    return QTest::qWaitFor([this] { return !isRunning(); }, timeoutMs);
}

void SoundTool::kill()
{
    m_system->program.end();
}

QIODevice& SoundTool::output()
{
    return m_system->program.socket();
}

} // namespace TestSupport
