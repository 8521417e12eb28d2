// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseConnection.h"

#include <algorithm>
#include <pulse/introspect.h>
#include <pulse/proplist.h>
#include <pulse/rtclock.h>
#include <pulse/subscribe.h>
#include <pulse/timeval.h>
#include <type_traits>
#include <utility>

namespace Platform {

namespace {

constexpr unsigned FirstBackOffMs = 250;
constexpr unsigned LastBackOffMs = 2000;
// Pause between two queries of the device list, so that many changes at once don't keep us busy.
constexpr unsigned PauseMs = 20;
// The watch asks at each tick. Ticks are counted rather than time: if this thread was late itself,
// an answer has waited for it.
constexpr unsigned WatchMs = 1000;
constexpr int SilentAfterTicks = 3;
// Servers show this sink if they have no real one.
constexpr char DummySink[] = "auto_null";

PulseKind kindOf(const pa_sink_info&)
{
    return PulseKind::Speaker;
}

PulseKind kindOf(const pa_source_info&)
{
    return PulseKind::Microphone;
}

bool isNone(const pa_sink_info& sink)
{
    return QLatin1String(sink.name) == QLatin1String(DummySink);
}

bool isNone(const pa_source_info& source)
{
    const char* deviceClass = pa_proplist_gets(source.proplist, PA_PROP_DEVICE_CLASS);
    return source.monitor_of_sink != PA_INVALID_INDEX ||
           QLatin1String(deviceClass) == QLatin1String("monitor");
}

bool isAdjustable(const pa_sink_info&)
{
    return true;
}

bool isAdjustable(const pa_source_info& source)
{
    return (source.flags & (PA_SOURCE_HW_VOLUME_CTRL | PA_SOURCE_DECIBEL_VOLUME)) != 0;
}

// PulseAudio names the profile in the first property, PipeWire in the second.
bool isTelephone(const pa_proplist* properties)
{
    for (const char* key : {"bluetooth.protocol", "api.bluez5.profile"}) {
        const QString profile = QString::fromUtf8(pa_proplist_gets(properties, key))
                                    .replace(QLatin1Char('_'), QLatin1Char('-'));
        if (profile.startsWith(QLatin1String("headset-")) ||
            profile.startsWith(QLatin1String("handsfree-"))) {
            return true;
        }
    }
    return false;
}

} // namespace

PulseConnection::PulseConnection(Publish publish)
    : m_publish(std::move(publish)), m_backOffMs(FirstBackOffMs)
{
    // On the sound thread, because creating a context may ask the X display for the server.
    run([this] {
        connect();
        startWatch();
    });
    m_loop.start();
}

PulseConnection::~PulseConnection()
{
    m_loop.stop();
    dropClients();
    endPause();
    m_context.reset();
    if (m_retry) {
        api()->time_free(m_retry);
    }
    if (m_watch) {
        api()->time_free(m_watch);
    }
}

pa_context* PulseConnection::context() const
{
    return m_context && pa_context_get_state(m_context.get()) == PA_CONTEXT_READY ? m_context.get()
                                                                                  : nullptr;
}

void PulseConnection::add(std::shared_ptr<Client> client)
{
    m_clients.push_back(std::move(client));
}

void PulseConnection::remove(const std::shared_ptr<Client>& client)
{
    m_clients.erase(std::remove(m_clients.begin(), m_clients.end(), client), m_clients.end());
}

void PulseConnection::connect()
{
    m_context.reset(pa_context_new(api(), PulseClientName));
    pa_context_set_state_callback(
        m_context.get(),
        [](pa_context*, void* self) { static_cast<PulseConnection*>(self)->contextStateChanged(); },
        this);
    pa_context_set_subscribe_callback(
        m_context.get(),
        [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* self) {
            static_cast<PulseConnection*>(self)->refresh();
        },
        this);
    if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        disconnected();
    }
}

void PulseConnection::contextStateChanged()
{
    switch (pa_context_get_state(m_context.get())) {
    case PA_CONTEXT_READY:
        m_silentTicks = 0;
        m_backOffMs = FirstBackOffMs;
        release(pa_context_subscribe(m_context.get(),
                                     static_cast<pa_subscription_mask_t>(
                                         PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SOURCE |
                                         PA_SUBSCRIPTION_MASK_SERVER),
                                     nullptr, nullptr));
        refresh();
        break;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        disconnected();
        break;
    case PA_CONTEXT_UNCONNECTED:
    case PA_CONTEXT_CONNECTING:
    case PA_CONTEXT_AUTHORIZING:
    case PA_CONTEXT_SETTING_NAME:
        break;
    }
}

// A failed context can't be used again, and it can't be freed inside its own callback. So the timer
// replaces it.
void PulseConnection::disconnected()
{
    if (m_retry) {
        return;
    }
    m_awaitedReplies = 0;
    m_silentTicks = 0;
    endPause();
    for (const PulseKind kind : {PulseKind::Speaker, PulseKind::Microphone}) {
        VolumeOrders& lost = orders(kind);
        for (std::optional<VolumeOrder>* order : {&lost.underWay, &lost.next}) {
            if (*order) {
                lost.settled = (*order)->number;
                order->reset();
            }
        }
    }
    m_devices = {};
    m_devices.server = SoundServerState::Lost;
    dropClients();
    m_publish(m_devices);

    m_retry = pa_context_rttime_new(
        m_context.get(), pa_rtclock_now() + m_backOffMs * PA_USEC_PER_MSEC,
        [](pa_mainloop_api* loop, pa_time_event* event, const timeval*, void* self) {
            auto* connection = static_cast<PulseConnection*>(self);
            loop->time_free(event);
            connection->m_retry = nullptr;
            connection->connect();
        },
        this);
    m_backOffMs = std::min(2 * m_backOffMs, LastBackOffMs);
}

void PulseConnection::dropClients()
{
    for (const std::shared_ptr<Client>& client : std::vector(m_clients)) {
        client->connectionLost();
    }
}

// However many events come, only one query of the device list runs at a time.
void PulseConnection::refresh()
{
    m_isStale = true;
    if (m_awaitedReplies == 0 && !m_pause) {
        startRound();
    }
}

void PulseConnection::startRound()
{
    m_isStale = false;
    m_arriving = {};
    m_arriving.isConnected = true;
    m_arriving.server = SoundServerState::Running;
    m_arriving.speakers.settledOrder = m_speakerOrders.settled;
    m_arriving.microphones.settledOrder = m_microphoneOrders.settled;
    m_awaitedReplies = 3;
    pa_context* context = m_context.get();
    release(pa_context_get_server_info(
        context,
        [](pa_context*, const pa_server_info* info, void* self) {
            if (info) {
                static_cast<PulseConnection*>(self)->takeServer(info->default_sink_name,
                                                                info->default_source_name);
            }
            static_cast<PulseConnection*>(self)->replyArrived();
        },
        this));
    release(pa_context_get_sink_info_list(context, &deviceArrived<pa_sink_info>, this));
    release(pa_context_get_source_info_list(context, &deviceArrived<pa_source_info>, this));
}

void PulseConnection::takeServer(const char* defaultSink, const char* defaultSource)
{
    m_arriving.speakers.defaultId = QString::fromUtf8(defaultSink);
    m_arriving.microphones.defaultId = QString::fromUtf8(defaultSource);
}

template <typename Info>
void PulseConnection::deviceArrived(pa_context* /*context*/, const Info* info, int end, void* self)
{
    auto* connection = static_cast<PulseConnection*>(self);
    if (end != 0) {
        connection->replyArrived();
    } else if (!isNone(*info)) {
        connection->takeDevice(kindOf(*info), *info);
    }
}

template <typename Info>
void PulseConnection::takeDevice(PulseKind kind, const Info& info)
{
    PulseDevice device;
    device.id = QString::fromUtf8(info.name);
    device.name = QString::fromUtf8(info.description);
    if (device.name.trimmed().isEmpty()) {
        device.name = device.id;
    }
    device.volume = info.volume;
    device.isMuted = info.mute != 0;
    device.isAdjustable = isAdjustable(info);
    device.isTelephone = isTelephone(info.proplist);
    m_arriving.side(kind).devices.push_back(std::move(device));
}

void PulseConnection::replyArrived()
{
    m_silentTicks = 0;
    if (--m_awaitedReplies > 0) {
        return;
    }
    if (!(m_arriving == m_devices)) {
        m_devices = std::move(m_arriving);
        m_publish(m_devices);
    }
    m_pause = pa_context_rttime_new(
        m_context.get(), pa_rtclock_now() + PauseMs * PA_USEC_PER_MSEC,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) {
            auto* connection = static_cast<PulseConnection*>(self);
            connection->endPause();
            if (connection->m_isStale) {
                connection->startRound();
            }
        },
        this);
}

void PulseConnection::endPause()
{
    if (m_pause) {
        api()->time_free(std::exchange(m_pause, nullptr));
    }
}

void PulseConnection::startWatch()
{
    m_watch = pa_context_rttime_new(
        m_context.get(), pa_rtclock_now() + WatchMs * PA_USEC_PER_MSEC,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) {
            static_cast<PulseConnection*>(self)->watch();
        },
        this);
}

// Streams are kept: they go on if the server only was slow.
void PulseConnection::watch()
{
    pa_context_rttime_restart(m_context.get(), m_watch,
                              pa_rtclock_now() + WatchMs * PA_USEC_PER_MSEC);
    if (m_retry) {
        return;
    }
    if (context() && m_awaitedReplies == 0) {
        refresh();
    } else if (++m_silentTicks == SilentAfterTicks) {
        m_devices = {};
        m_devices.isConnected = context() != nullptr;
        m_devices.server = SoundServerState::Silent;
        m_publish(m_devices);
    }
}

PulseConnection::VolumeOrders& PulseConnection::orders(PulseKind kind)
{
    return kind == PulseKind::Speaker ? m_speakerOrders : m_microphoneOrders;
}

void PulseConnection::setVolume(PulseKind kind, const QString& id, int percent, quint64 order)
{
    orders(kind).next = VolumeOrder{id, percent, order};
    if (!orders(kind).underWay) {
        sendVolume(kind);
    }
}

void PulseConnection::sendVolume(PulseKind kind)
{
    VolumeOrders& queue = orders(kind);
    queue.underWay = std::exchange(queue.next, std::nullopt);
    if (!queue.underWay) {
        return;
    }
    const PulseDevice* device = m_devices.side(kind).find(queue.underWay->id);
    if (!context() || !device) {
        queue.settled = queue.underWay->number;
        queue.underWay.reset();
        if (context()) {
            refresh();
        }
        return;
    }
    pa_cvolume volume = device->volume;
    pa_cvolume_scale(
        &volume, static_cast<pa_volume_t>(static_cast<quint64>(PA_VOLUME_NORM) *
                                          static_cast<quint64>(queue.underWay->percent) / 100U));
    const QByteArray name = device->id.toUtf8();
    const auto unmute = kind == PulseKind::Speaker ? &pa_context_set_sink_mute_by_name
                                                   : &pa_context_set_source_mute_by_name;
    // Always unmute; our last state may be stale.
    release(unmute(context(), name.constData(), 0, nullptr, nullptr));
    if (kind == PulseKind::Speaker) {
        release(pa_context_set_sink_volume_by_name(context(), name.constData(), &volume,
                                                   &volumeSet<PulseKind::Speaker>, this));
    } else {
        release(pa_context_set_source_volume_by_name(context(), name.constData(), &volume,
                                                     &volumeSet<PulseKind::Microphone>, this));
    }
}

template <PulseKind Kind>
void PulseConnection::volumeSet(pa_context* /*context*/, int /*success*/, void* self)
{
    auto* connection = static_cast<PulseConnection*>(self);
    VolumeOrders& queue = connection->orders(Kind);
    if (queue.underWay) {
        queue.settled = queue.underWay->number;
    }
    connection->sendVolume(Kind);
    connection->refresh();
}

} // namespace Platform
