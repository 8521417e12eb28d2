// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/NodeProxy.h"

#include "platform/devices/pipewire/NodeProperties.h"
#include "platform/devices/pipewire/OfferedModes.h"
#include "platform/devices/pipewire/StreamFormat.h"

#include <spa/param/video/format-utils.h>
#include <utility>

namespace Platform {

namespace {

void readProperties(const spa_dict* properties, CameraNode& node)
{
    const auto read = [properties](QString& target, const char* key) {
        const QString value = propertyOf(properties, key);
        if (!value.isEmpty()) {
            target = value;
        }
    };
    read(node.serial, PW_KEY_OBJECT_SERIAL);
    read(node.name, PW_KEY_NODE_NAME);
    read(node.description, PW_KEY_NODE_DESCRIPTION);
    read(node.role, PW_KEY_MEDIA_ROLE);
    read(node.file, DeviceFileKey);
    read(node.capabilities, CapabilitiesKey);
    const QString place = placeOf(properties);
    if (!place.isEmpty()) {
        node.place = place;
    }
    const QString device = propertyOf(properties, PW_KEY_DEVICE_ID);
    if (!device.isEmpty()) {
        node.deviceId = device.toUInt();
    }
    const QString priority = propertyOf(properties, PW_KEY_PRIORITY_SESSION);
    if (!priority.isEmpty()) {
        node.priority = priority.toInt();
    }
}

bool isGray(uint32_t format)
{
    return format == SPA_VIDEO_FORMAT_GRAY8 || format == SPA_VIDEO_FORMAT_GRAY16_BE ||
           format == SPA_VIDEO_FORMAT_GRAY16_LE;
}

} // namespace

const pw_node_events NodeProxy::NodeEvents = [] {
    pw_node_events events{};
    events.version = PW_VERSION_NODE_EVENTS;
    events.info = [](void* data, const pw_node_info* info) {
        static_cast<NodeProxy*>(data)->onInfo(*info);
    };
    events.param = [](void* data, int, uint32_t, uint32_t, uint32_t, const spa_pod* parameter) {
        static_cast<NodeProxy*>(data)->onFormat(parameter);
    };
    return events;
}();

const pw_proxy_events NodeProxy::ProxyEvents = [] {
    pw_proxy_events events{};
    events.version = PW_VERSION_PROXY_EVENTS;
    events.error = [](void* data, int, int result, const char* text) {
        static_cast<NodeProxy*>(data)->onError(result, text);
    };
    events.done = [](void* data, int) { static_cast<NodeProxy*>(data)->onDone(); };
    return events;
}();

NodeProxy::NodeProxy(pw_registry* registry, quint32 globalId, const spa_dict* properties,
                     Listener& listener)
    : m_listener(listener),
      m_globalId(globalId),
      m_proxy(registry, globalId, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE)
{
    readProperties(properties, m_node);
    auto* node = m_proxy.get<pw_node>();
    if (!node) {
        m_isDone = true;
        return;
    }
    pw_proxy_add_listener(m_proxy.get(), m_proxy.newHook(), &ProxyEvents, this);
    pw_node_add_listener(node, m_proxy.newHook(), &NodeEvents, this);
    pw_node_enum_params(node, 0, SPA_PARAM_EnumFormat, 0, UINT32_MAX, nullptr);
    pw_proxy_sync(m_proxy.get(), 0);
}

void NodeProxy::onInfo(const pw_node_info& info)
{
    if (info.props) {
        readProperties(info.props, m_node);
    }
    if ((info.change_mask & PW_NODE_CHANGE_MASK_STATE) == 0) {
        return;
    }
    m_isErrorToTell = info.state == PW_NODE_STATE_ERROR;
    m_error = m_isErrorToTell ? ServerError(info.error) : ServerError();
    if (m_isErrorToTell) {
        pw_proxy_sync(m_proxy.get(), 0); // the number, if there is one, comes before the answer
    }
}

void NodeProxy::onError(int result, const char* text)
{
    if (m_isErrorToTell) {
        m_error = ServerError(text, result);
        tellError();
    }
}

void NodeProxy::tellError()
{
    if (std::exchange(m_isErrorToTell, false)) {
        m_listener.nodeFailed(m_node, m_error);
    }
}

void NodeProxy::onFormat(const spa_pod* format)
{
    uint32_t mediaType = 0;
    uint32_t mediaSubtype = 0;
    if (!format || spa_format_parse(format, &mediaType, &mediaSubtype) < 0 ||
        mediaType != SPA_MEDIA_TYPE_video) {
        return;
    }
    m_node.hasFormats = true;
    if (mediaSubtype != SPA_MEDIA_SUBTYPE_raw) {
        m_node.hasColor = true;
        m_node.isReadable = m_node.isReadable || mediaSubtype == SPA_MEDIA_SUBTYPE_mjpg;
        OfferedModes::read(format, m_node.modes);
        return;
    }
    const spa_pod_prop* const property =
        spa_pod_find_prop(format, nullptr, SPA_FORMAT_VIDEO_format);
    if (!property) {
        return;
    }
    uint32_t count = 0;
    uint32_t choice = 0;
    const spa_pod* const values = spa_pod_get_values(&property->value, &count, &choice);
    if (values->type != SPA_TYPE_Id) {
        return;
    }
    // Its pixels are in an order that only a graphics card knows.
    const spa_pod_prop* const modifier =
        spa_pod_find_prop(format, nullptr, SPA_FORMAT_VIDEO_modifier);
    const bool isForGraphics = modifier && (modifier->flags & SPA_POD_PROP_FLAG_MANDATORY) != 0;
    const auto* const ids = static_cast<const uint32_t*>(SPA_POD_BODY_CONST(values));
    for (uint32_t i = 0; i < count; ++i) {
        m_node.hasColor = m_node.hasColor || !isGray(ids[i]);
        m_node.isReadable =
            m_node.isReadable || (!isForGraphics && pixelFormatOf(ids[i]) != PixelFormat::None);
    }
    if (!isForGraphics) {
        OfferedModes::read(format, m_node.modes);
    }
}

void NodeProxy::onDone()
{
    if (!m_isDone) {
        m_isDone = true;
        m_listener.nodeDescribed(m_globalId, m_node);
    }
    tellError();
}

} // namespace Platform
