// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/ScratchFolder.h"

#include "platform/backend/Leftovers.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr int Attempts = 3; // another program may take a new one for a leftover

} // namespace

struct ScratchFolder::Data
{
    QString path;
    int lock = -1; // the open folder
};

ScratchFolder::ScratchFolder(const QString& parent) : m_data(std::make_unique<Data>())
{
    for (int i = 0; i < Attempts && !isValid(); ++i) {
        QByteArray name = Leftovers::nameIn(QFile::encodeName(parent));
        if (!::mkdtemp(name.data())) {
            return;
        }
        const int opened =
            ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (opened >= 0 && Leftovers::claim(opened)) {
            m_data->path = QFile::decodeName(name);
            m_data->lock = opened;
            return;
        }
        ::rmdir(name.constData());
        if (opened < 0) {
            return;
        }
        ::close(opened);
    }
}

ScratchFolder::~ScratchFolder()
{
    if (isValid()) {
        QDir(m_data->path).removeRecursively();
        ::close(m_data->lock);
    }
}

bool ScratchFolder::isValid() const
{
    return m_data->lock >= 0;
}

QString ScratchFolder::filePath(const QString& name) const
{
    return QDir(m_data->path).filePath(name);
}

} // namespace Platform
