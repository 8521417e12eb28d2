// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

namespace TestSupport {

// A helper program of a test: it dies with the test, also when the test crashes.
class TestProcess : public QProcess
{
    Q_OBJECT
    Q_DISABLE_COPY(TestProcess)

public:
    explicit TestProcess(QObject* parent = nullptr);
    ~TestProcess() override;

    void sendSignal(int number) const;
    void end(); // asks it to, then makes it

protected:
    void setupChildProcess() override;
};

} // namespace TestSupport
