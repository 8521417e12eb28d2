// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/StagedFile.h"

#include "tests/devices/windowscameras/StagedCameras.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <mutex>

namespace TestSupport {

namespace {

StagedMode modeOf(const QJsonObject& values)
{
    const QJsonArray size = values[QLatin1String("size")].toArray();
    StagedMode mode;
    mode.format = values[QLatin1String("format")].toString().toLatin1();
    mode.size = QSize(size.at(0).toInt(), size.at(1).toInt());
    mode.rateNumerator = values[QLatin1String("rate")].toInt();
    return mode;
}

std::vector<StagedMode> modesOf(const QJsonArray& values)
{
    std::vector<StagedMode> modes;
    for (const auto& value : values) {
        modes.push_back(modeOf(value.toObject()));
    }
    return modes;
}

// What a file says, against what it said before.
class StagedFileCameras
{
public:
    void read(const QString& path)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QSet<QString> gone = m_links;
        const QJsonArray all = QJsonDocument::fromJson(file.readAll()).array();
        for (const auto& value : all) {
            gone.remove(stage(value.toObject()));
        }
        for (const QString& link : gone) {
            m_cameras.unplug(link);
        }
        m_links -= gone;
    }

private:
    QString stage(const QJsonObject& values)
    {
        const QString link = values[QLatin1String("link")].toString();
        if (!m_links.contains(link)) {
            const bool isDirectShow = values[QLatin1String("isDirectShow")].toBool();
            m_cameras.setSystem(isDirectShow ? StagedSystem::DirectShow
                                             : StagedSystem::MediaFoundation);
            m_cameras.plug(link, values[QLatin1String("name")].toString(),
                           modesOf(values[QLatin1String("modes")].toArray()));
            m_links << link;
        }
        const auto error =
            static_cast<quint32>(values[QLatin1String("activationError")].toDouble());
        m_cameras.refuseActivation(link, static_cast<HRESULT>(error));
        m_cameras.stall(link, values[QLatin1String("isSilent")].toBool());
        return link;
    }

    StagedCameras m_cameras;
    QSet<QString> m_links;
};

} // namespace

void StagedFile::stageIfNamed()
{
    const QString path = qEnvironmentVariable("ENVCHECK_STAGED_CAMERAS");
    if (path.isEmpty()) {
        return;
    }
    static std::mutex mutex;
    static auto* const cameras = new StagedFileCameras; // for threads that outlive main()
    const std::scoped_lock lock(mutex);
    cameras->read(path);
}

} // namespace TestSupport
