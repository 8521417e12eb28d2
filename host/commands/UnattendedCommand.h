// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"
#include "host/Options.h"

#include <QByteArray>

struct Report;

// The check with --unattended. It opens no window and asks no person. GUI thread only.
class UnattendedCommand
{
public:
    explicit UnattendedCommand(const Options& options);

    ExitCode run(const QString& language);

private:
    bool prepare();
    void print(const Report& report) const;
    bool write(const Report& report) const;
    bool writeDiagnosis(const QByteArray& archive) const;

    Options m_options;
    QByteArray m_redactionKey;
};
