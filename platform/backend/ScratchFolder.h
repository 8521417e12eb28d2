// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

namespace Platform {

// A new folder beside a target, for files that are needed while it is written. It goes with the
// object; if the program is killed, it goes with the next write there.
class ScratchFolder
{
public:
    explicit ScratchFolder(const QString& parent);
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    bool isValid() const;
    QString filePath(const QString& name) const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Platform
