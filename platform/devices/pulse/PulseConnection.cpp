// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseConnection.h"

#include "platform/backend/Log.h"
#include "platform/devices/ServerSockets.h"
#include "platform/devices/pulse/PulseLog.h"

#include <algorithm>
#include <pulse/introspect.h>
#include <pulse/proplist.h>
#include <pulse/subscribe.h>
#include <type_traits>
#include <utility>

namespace Platform {

namespace {

constexpr unsigned FirstBackOffMs = 250;
constexpr unsigned LastBackOffMs = 2000;
constexpr unsigned AppearedBackOffMs = 20; // the socket is there before anybody listens
// Pause between two queries of the device list, so that many changes at once don't keep us busy.
constexpr unsigned PauseMs = 20;
// For all replies of a round. Without them it is begun again.
constexpr unsigned RoundTimeoutMs = 2000;
// The watch asks at each tick. Ticks are counted rather than time: if this thread was late itself,
// an answer has waited for it.
constexpr unsigned WatchMs = 1000;
constexpr int SilentAfterTicks = 3;
// Servers show this sink if they have no real one.
constexpr char DummySink[] = "auto_null";

SoundKind kindOf(const pa_sink_info&)
{
    return SoundKind::Speaker;
}

SoundKind kindOf(const pa_source_info&)
{
    return SoundKind::Microphone;
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
    : m_publish(std::move(publish)),
      m_retry(api(), [this] { connect(); }),
      m_pause(api(),
              [this] {
                  if (m_isStale) {
                      startRound();
                  }
              }),
      m_deadline(api(), [this] { failRound(); }),
      m_watch(api(), [this] { watch(); }),
      m_backOffMs(FirstBackOffMs),
      m_socket(ServerSockets::ofPulse())
{
    if (m_socket.descriptor() >= 0) {
        m_socketEvent = api()->io_new(
            api(), m_socket.descriptor(), PA_IO_EVENT_INPUT,
            [](pa_mainloop_api*, pa_io_event*, int, pa_io_event_flags_t, void* self) {
                static_cast<PulseConnection*>(self)->socketStirred();
            },
            this);
    }
    // On the sound thread, because creating a context may ask the X display for the server.
    run([this] {
        connect();
        m_watch.startOnce(WatchMs);
    });
    m_loop.start();
}

PulseConnection::~PulseConnection()
{
    m_loop.stop();
    dropClients();
    m_round.clear();
    m_context.reset();
    if (m_socketEvent) {
        api()->io_free(m_socketEvent);
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
    m_socket.renew();
    m_context.reset(pa_context_new(api(), PulseClientName));
    if (!m_context) {
        disconnected();
        return;
    }
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
        m_isSubscribed = false;
        m_silentTicks = 0;
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
    if (m_retry.isActive()) {
        return;
    }
    m_round.clear();
    m_awaitedReplies = 0;
    m_deadline.stop();
    m_pause.stop();
    m_silentTicks = 0;
    for (const SoundKind kind : {SoundKind::Speaker, SoundKind::Microphone}) {
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

    m_retry.startOnce(nextBackOffMs());
}

// A server of this machine may have come: it is tried soon, and again often at first.
void PulseConnection::socketStirred()
{
    if (!m_socket.hasAppeared() || context() || m_backOffMs <= 2 * AppearedBackOffMs) {
        return;
    }
    m_backOffMs = AppearedBackOffMs;
    if (m_retry.isActive()) {
        m_retry.startOnce(nextBackOffMs());
    }
}

// Until a list has arrived.
unsigned PulseConnection::nextBackOffMs()
{
    return std::exchange(m_backOffMs, std::min(2 * m_backOffMs, LastBackOffMs));
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
    if (m_awaitedReplies == 0 && !m_pause.isActive()) {
        startRound();
    }
}

void PulseConnection::startRound()
{
    m_isStale = false;
    m_arriving = {};
    m_arrivingVolumes = {};
    m_arriving.isConnected = true;
    m_arriving.server = SoundServerState::Running;
    m_arriving.speakers.settledOrder = m_speakerOrders.settled;
    m_arriving.microphones.settledOrder = m_microphoneOrders.settled;
    m_deadline.startOnce(RoundTimeoutMs);
    pa_context* context = m_context.get();
    if (!m_isSubscribed) {
        await(pa_context_subscribe(context,
                                   static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK |
                                                                       PA_SUBSCRIPTION_MASK_SOURCE |
                                                                       PA_SUBSCRIPTION_MASK_SERVER),
                                   &subscribed, this));
    }
    await(pa_context_get_server_info(context, &serverArrived, this));
    await(pa_context_get_sink_info_list(context, &deviceArrived<pa_sink_info>, this));
    await(pa_context_get_source_info_list(context, &deviceArrived<pa_source_info>, this));
    m_awaitedReplies = m_round.size();
    if (std::find(m_round.cbegin(), m_round.cend(), nullptr) != m_round.cend()) {
        failRound();
    }
}

// A query that can't be sent is kept as null.
void PulseConnection::await(pa_operation* operation)
{
    m_round.emplace_back(operation);
}

void PulseConnection::subscribed(pa_context* /*context*/, int success, void* self)
{
    auto* connection = static_cast<PulseConnection*>(self);
    connection->m_isSubscribed = success != 0;
    connection->replyArrived(success != 0);
}

void PulseConnection::serverArrived(pa_context* /*context*/, const pa_server_info* info, void* self)
{
    auto* connection = static_cast<PulseConnection*>(self);
    if (info) {
        PulseLog::server(*info, connection->m_loggedServer);
        connection->takeServer(info->default_sink_name, info->default_source_name);
    }
    connection->replyArrived(info != nullptr);
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
        connection->replyArrived(end > 0);
    } else if (!isNone(*info)) {
        connection->takeDevice(kindOf(*info), *info);
    }
}

template <typename Info>
void PulseConnection::takeDevice(SoundKind kind, const Info& info)
{
    SoundDevice device;
    device.id = QString::fromUtf8(info.name);
    device.name = QString::fromUtf8(info.description);
    if (device.name.trimmed().isEmpty()) {
        device.name = device.id;
    }
    device.volume = {100.0 * pa_cvolume_max(&info.volume) / PA_VOLUME_NORM, info.mute != 0};
    device.isAdjustable = isAdjustable(info);
    device.isTelephone = isTelephone(info.proplist);
    m_arrivingVolumes.of(kind).insert(device.id, info.volume);
    m_arriving.side(kind).devices.push_back(std::move(device));
}

// A list counts only if all replies of its round are good.
void PulseConnection::replyArrived(bool isGood)
{
    m_silentTicks = 0;
    if (!isGood) {
        failRound();
    } else if (--m_awaitedReplies == 0) {
        finishRound();
    }
}

void PulseConnection::finishRound()
{
    m_backOffMs = FirstBackOffMs;
    m_volumes = std::move(m_arrivingVolumes);
    if (!(m_arriving == m_devices)) {
        m_devices = std::move(m_arriving);
        m_publish(m_devices);
    }
    endRound(PauseMs);
}

// The last list stays until another one has arrived.
void PulseConnection::failRound()
{
    qCInfo(Log::devices, "The sound server left a query unanswered, which is sent again");
    m_isStale = true;
    endRound(nextBackOffMs());
}

void PulseConnection::endRound(unsigned pauseMs)
{
    m_round.clear();
    m_awaitedReplies = 0;
    m_deadline.stop();
    m_pause.startOnce(pauseMs);
}

// Streams are kept: they go on if the server only was slow.
void PulseConnection::watch()
{
    m_watch.startOnce(WatchMs);
    if (m_retry.isActive()) {
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

PulseConnection::VolumeOrders& PulseConnection::orders(SoundKind kind)
{
    return kind == SoundKind::Speaker ? m_speakerOrders : m_microphoneOrders;
}

void PulseConnection::setVolume(SoundKind kind, const QString& id, int percent, quint64 order)
{
    orders(kind).next = VolumeOrder{id, percent, order};
    if (!orders(kind).underWay) {
        sendVolume(kind);
    }
}

void PulseConnection::sendVolume(SoundKind kind)
{
    VolumeOrders& queue = orders(kind);
    queue.underWay = std::exchange(queue.next, std::nullopt);
    if (!queue.underWay) {
        return;
    }
    const SoundDevice* device = m_devices.side(kind).find(queue.underWay->id);
    if (!context() || !device) {
        queue.settled = queue.underWay->number;
        queue.underWay.reset();
        if (context()) {
            refresh();
        }
        return;
    }
    pa_cvolume volume = m_volumes.of(kind).value(device->id);
    pa_cvolume_scale(
        &volume, static_cast<pa_volume_t>(static_cast<quint64>(PA_VOLUME_NORM) *
                                          static_cast<quint64>(queue.underWay->percent) / 100U));
    const QByteArray name = device->id.toUtf8();
    const auto unmute = kind == SoundKind::Speaker ? &pa_context_set_sink_mute_by_name
                                                   : &pa_context_set_source_mute_by_name;
    // Always unmute; our last state may be stale.
    release(unmute(context(), name.constData(), 0, nullptr, nullptr));
    const bool isSent =
        kind == SoundKind::Speaker
            ? release(pa_context_set_sink_volume_by_name(context(), name.constData(), &volume,
                                                         &volumeSet<SoundKind::Speaker>, this))
            : release(pa_context_set_source_volume_by_name(
                  context(), name.constData(), &volume, &volumeSet<SoundKind::Microphone>, this));
    if (!isSent) {
        volumeSettled(kind);
    }
}

// Whether the order was carried out or refused shows in the next list.
void PulseConnection::volumeSettled(SoundKind kind)
{
    VolumeOrders& queue = orders(kind);
    if (queue.underWay) {
        queue.settled = queue.underWay->number;
    }
    sendVolume(kind);
    refresh();
}

template <SoundKind Kind>
void PulseConnection::volumeSet(pa_context* /*context*/, int /*success*/, void* self)
{
    static_cast<PulseConnection*>(self)->volumeSettled(Kind);
}

} // namespace Platform
