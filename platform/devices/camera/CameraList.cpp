// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraList.h"

#include "platform/devices/camera/InfraredFilter.h"

#include <algorithm>
#include <vector>

namespace Platform {

namespace {

const QLatin1String CameraRole("Camera");
const QLatin1String CaptureCapability(":capture:");

} // namespace

bool CameraList::isCamera(const CameraNode& node)
{
    if (!node.role.isEmpty() && node.role != CameraRole) {
        return false;
    }
    if (!node.capabilities.isEmpty() && !node.capabilities.contains(CaptureCapability)) {
        return false;
    }
    return !InfraredFilter::isInfrared(node);
}

bool CameraList::add(quint32 globalId, const CameraNode& node)
{
    const bool wasListed = m_nodes.erase(globalId) > 0;
    if (!isCamera(node)) {
        return wasListed;
    }
    m_nodes.emplace(globalId, node);
    return true;
}

bool CameraList::remove(quint32 globalId)
{
    return m_nodes.erase(globalId) > 0;
}

bool CameraList::clear()
{
    const bool wasEmpty = m_nodes.empty();
    m_nodes.clear();
    return !wasEmpty;
}

DeviceList CameraList::devices() const
{
    DeviceList result;
    for (const auto& [id, node] : byId()) {
        result.push_back({id, node->description.isEmpty() ? node->name : node->description});
    }
    return withDistinctNames(result);
}

std::optional<QString> CameraList::serialOf(const QString& id) const
{
    const auto nodes = byId();
    const auto it = nodes.find(id);
    return it == nodes.end() ? std::nullopt : std::make_optional(it->second->serial);
}

bool CameraList::isReadable(const QString& serial) const
{
    return std::none_of(m_nodes.begin(), m_nodes.end(), [&serial](const auto& entry) {
        const CameraNode& node = entry.second;
        return node.serial == serial && node.hasFormats && !node.isReadable;
    });
}

CameraModes CameraList::modesOf(const QString& serial) const
{
    const auto it = std::find_if(m_nodes.begin(), m_nodes.end(), [&serial](const auto& entry) {
        return entry.second.serial == serial;
    });
    return it == m_nodes.end() ? CameraModes() : it->second.modes;
}

QString CameraList::preferredId() const
{
    QString result;
    int best = 0;
    for (const auto& [id, node] : byId()) {
        const int rank = 2 * node->priority + (node->role == CameraRole ? 1 : 0);
        if (result.isEmpty() || rank > best) {
            result = id;
            best = rank;
        }
    }
    return result;
}

std::map<QString, const CameraNode*> CameraList::byId() const
{
    std::vector<const CameraNode*> nodes;
    for (const auto& entry : m_nodes) {
        nodes.push_back(&entry.second);
    }
    // By name, so that the nodes of one device get the same numbers in whatever order they came.
    std::stable_sort(nodes.begin(), nodes.end(),
                     [](const CameraNode* a, const CameraNode* b) { return a->name < b->name; });
    std::map<QString, const CameraNode*> result;
    for (const CameraNode* node : nodes) {
        const QString name = node->name.isEmpty() ? node->serial : node->name;
        const QString plain = node->place.isEmpty() ? name : node->place;
        QString id = plain;
        for (int number = 2; result.count(id) > 0; ++number) {
            id = QStringLiteral("%1#%2").arg(plain, QString::number(number));
        }
        result.emplace(id, node);
    }
    return result;
}

} // namespace Platform
