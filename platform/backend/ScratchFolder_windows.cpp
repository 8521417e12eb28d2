// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/ScratchFolder.h"

#include <QTemporaryDir>

namespace Platform {

struct ScratchFolder::Data
{
    QTemporaryDir folder;
};

ScratchFolder::ScratchFolder(const QString& parent)
    : m_data(new Data{QTemporaryDir(parent + QStringLiteral("/.envcheck-XXXXXX"))})
{
}

ScratchFolder::~ScratchFolder() = default;

bool ScratchFolder::isValid() const
{
    return m_data->folder.isValid();
}

QString ScratchFolder::filePath(const QString& name) const
{
    return m_data->folder.filePath(name);
}

} // namespace Platform
