// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/EndpointMirror.h"

#include "tests/devices/wasapi/NativeSound.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using Platform::SoundKind;
using Platform::VolumeState;

namespace TestSupport {

namespace {

constexpr double FullVolume = 65536; // PulseAudio's

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

VolumeState volumeOf(const QJsonObject& device)
{
    double loudest = 0;
    for (const QJsonValue channel : device[text("volume")].toObject()) {
        loudest = std::max(loudest, channel[text("value")].toDouble());
    }
    return {100.0 * std::min(1.0, loudest / FullVolume), device[text("mute")].toBool()};
}

// The server does what the program did to an endpoint.
void carryOut(SoundKind kind, const QString& id, const VolumeState& before, const VolumeState& now)
{
    const QString device = text(kind == SoundKind::Speaker ? "sink" : "source");
    if (now.isMuted != before.isMuted) {
        NativeSoundServer::order(
            {QStringLiteral("set-%1-mute").arg(device), id, text(now.isMuted ? "1" : "0")});
    }
    if (now.percent != before.percent) {
        NativeSoundServer::order({QStringLiteral("set-%1-volume").arg(device), id,
                                  QStringLiteral("%1%").arg(qRound(now.percent))});
    }
}

} // namespace

EndpointMirror::EndpointMirror() : m_endpoints(&carryOut)
{
}

void EndpointMirror::show(const QByteArray& list, const QByteArray& info)
{
    const QJsonObject all = QJsonDocument::fromJson(list).object();
    const QStringList before = m_endpoints.present();
    const QStringList now = show(SoundKind::Speaker, all[text("sinks")].toArray()) +
                            show(SoundKind::Microphone, all[text("sources")].toArray());
    for (const QString& id : before) {
        if (!now.contains(id)) {
            m_endpoints.unplug(id);
        }
    }
    const QJsonObject server = QJsonDocument::fromJson(info).object();
    showDefault(SoundKind::Speaker, server[text("default_sink_name")].toString());
    showDefault(SoundKind::Microphone, server[text("default_source_name")].toString());
}

QStringList EndpointMirror::show(SoundKind kind, const QJsonArray& devices)
{
    QStringList ids;
    const QStringList present = m_endpoints.present();
    for (const QJsonValue value : devices) {
        const QJsonObject device = value.toObject();
        const QString id = device[text("name")].toString();
        if (id.endsWith(QLatin1String(".monitor"))) {
            continue;
        }
        ids << id;
        if (!present.contains(id)) {
            m_endpoints.plug(kind, id, device[text("description")].toString());
        }
        if (!(m_endpoints.volumeOf(id) == volumeOf(device))) {
            m_endpoints.setVolume(id, volumeOf(device));
        }
    }
    return ids;
}

// A monitor as the default is no microphone.
void EndpointMirror::showDefault(SoundKind kind, const QString& id)
{
    const QString shown = m_endpoints.present().contains(id) ? id : QString();
    if (m_endpoints.defaultId(kind) != shown) {
        for (const ERole role : {eConsole, eMultimedia, eCommunications}) {
            m_endpoints.setDefault(kind, role, shown);
        }
    }
}

} // namespace TestSupport
