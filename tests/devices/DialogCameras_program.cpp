// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DialogCameras.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace TestSupport {

namespace {

const char FileOfCameras[] = "ENVCHECK_STAGED_CAMERAS";

} // namespace

// For programs that the test starts on Windows: a file tells them of cameras that only come.
struct DialogCameras::Parts
{
    QString file() const { return folder.filePath(QStringLiteral("cameras.json")); }

    QTemporaryDir folder;
    QJsonArray cameras;
};

DialogCameras::DialogCameras() : m_parts(std::make_unique<Parts>())
{
    qputenv(FileOfCameras, m_parts->file().toUtf8());
}

DialogCameras::~DialogCameras()
{
    qunsetenv(FileOfCameras);
}

bool DialogCameras::start()
{
    QFile file(m_parts->file());
    return file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(m_parts->cameras).toJson()) > 0;
}

QString DialogCameras::problem() const
{
    return QStringLiteral("can't write to ") + m_parts->file();
}

void DialogCameras::plug(const QString& name, const QString& description, QRgb /*color*/,
                         Start start)
{
    const QJsonObject mode{{QStringLiteral("format"), QStringLiteral("YUY2")},
                           {QStringLiteral("size"), QJsonArray{640, 480}},
                           {QStringLiteral("rate"), 30}};
    m_parts->cameras << QJsonObject{{QStringLiteral("link"), name},
                                    {QStringLiteral("name"), description},
                                    {QStringLiteral("modes"), QJsonArray{mode}},
                                    {QStringLiteral("isSilent"), start == Start::Stalled}};
    if (!this->start()) {
        qWarning("%s", qUtf8Printable(problem()));
    }
}

} // namespace TestSupport
