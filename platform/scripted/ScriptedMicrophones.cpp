// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedMicrophones.h"

#include <algorithm>
#include <cmath>

namespace Platform {

ScriptedMicrophones::ScriptedMicrophones() = default;

ScriptedMicrophones::~ScriptedMicrophones() = default;

void ScriptedMicrophones::setLevelCurve(const QString& id, const LevelCurve& curve)
{
    m_inputs[id].curve = curve;
    if (id == currentId()) {
        Q_EMIT currentLevelsChanged();
    }
}

void ScriptedMicrophones::setLevel(const QString& id, double level)
{
    setLevelCurve(id, {{0, level}});
}

void ScriptedMicrophones::setAdjustable(const QString& id, bool isAdjustable)
{
    m_inputs[id].isAdjustable = isAdjustable;
    if (id == currentId()) {
        Q_EMIT currentInfoChanged();
    }
}

void ScriptedMicrophones::setVolume(const QString& id, int percent)
{
    m_inputs[id].volume = std::clamp(percent, 0, MaxVolume);
    if (id == currentId()) {
        Q_EMIT currentInfoChanged();
    }
}

void ScriptedMicrophones::setMuted(const QString& id, bool isMuted)
{
    m_inputs[id].isMuted = isMuted;
    if (id == currentId()) {
        Q_EMIT currentInfoChanged();
    }
}

void ScriptedMicrophones::emitLevel(double level)
{
    Q_EMIT levelEmitted(level);
}

// The report may be any number; the volume of the device stays within its range.
void ScriptedMicrophones::moveVolumeFromOutside(float percent)
{
    if (!std::isnan(percent)) {
        m_inputs[currentId()].volume =
            static_cast<int>(std::clamp(percent, 0.0F, static_cast<float>(MaxVolume)));
    }
    Q_EMIT volumeMovedFromOutside(percent);
}

bool ScriptedMicrophones::hasLevels() const
{
    return !current().curve.empty();
}

double ScriptedMicrophones::levelAt(qint64 ms) const
{
    const LevelCurve curve = current().curve;
    if (curve.empty() || isMuted()) {
        return 0;
    }
    const LevelPoint last = curve.back();
    const auto time = last.atMs > 0 ? static_cast<int>(ms % last.atMs) : 0;
    const auto next = std::find_if(curve.begin(), curve.end(),
                                   [time](const LevelPoint& point) { return point.atMs > time; });
    if (next == curve.begin()) {
        return next->level;
    }
    const auto previous = std::prev(next);
    if (next == curve.end()) {
        return previous->level;
    }
    const double share = double(time - previous->atMs) / double(next->atMs - previous->atMs);
    return previous->level + share * (next->level - previous->level);
}

bool ScriptedMicrophones::isAdjustable() const
{
    return current().isAdjustable;
}

int ScriptedMicrophones::volume() const
{
    return current().volume;
}

int ScriptedMicrophones::audibleVolumeOf(const QString& id) const
{
    const Input input = m_inputs.value(id);
    return input.isMuted ? 0 : input.volume;
}

QJsonObject ScriptedMicrophones::sound() const
{
    return current().sound;
}

void ScriptedMicrophones::setSound(const QString& id, const QJsonObject& figures)
{
    m_inputs[id].sound = figures;
}

bool ScriptedMicrophones::isMuted() const
{
    return isMuted(currentId());
}

bool ScriptedMicrophones::isMuted(const QString& id) const
{
    return m_inputs.value(id).isMuted;
}

void ScriptedMicrophones::setVolumeByUser(int percent)
{
    Input& input = m_inputs[currentId()];
    input.isMuted = false;
    input.volume = std::clamp(percent, 0, MaxVolume);
    Q_EMIT volumeSetByUser(input.volume);
}

} // namespace Platform
