// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pulse/UnwillingPulse.h"

#include <atomic>
#include <cstring>
#include <dlfcn.h>
#include <functional>
#include <memory>
#include <optional>
#include <pulse/context.h>
#include <pulse/introspect.h>
#include <pulse/stream.h>
#include <pulse/subscribe.h>

namespace TestSupport::UnwillingPulse {

namespace {

constexpr int Disarmed = -1;
std::atomic<Fault> armed;
std::atomic_int callsLeft = Disarmed;

std::atomic<const char*> redirectedFrom = nullptr;
std::atomic<const char*> redirectedTo = nullptr;

bool strikesNow()
{
    int calls = callsLeft;
    while (calls != Disarmed && !callsLeft.compare_exchange_weak(calls, calls - 1)) {
    }
    return calls == 0;
}

template <typename Function>
Function original(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

// A real query whose reply doesn't reach the caller.
pa_operation* unheard(pa_context* context, std::function<void(pa_context*)>* reply)
{
    return pa_context_get_sink_info_by_name(
        context, "no such sink",
        [](pa_context* from, const pa_sink_info*, int, void* data) {
            const std::unique_ptr<std::function<void(pa_context*)>> told(
                static_cast<std::function<void(pa_context*)>*>(data));
            (*told)(from);
        },
        reply);
}

// The operation with its fault; no value if this call has none.
template <typename Reply>
std::optional<pa_operation*> struck(pa_context* context, Reply badReply)
{
    if (armed == Fault::NoContext || !strikesNow()) {
        return std::nullopt;
    }
    if (armed == Fault::NoOperation) {
        return nullptr;
    }
    const bool isHeard = armed == Fault::BadReply;
    return unheard(context, new std::function<void(pa_context*)>([=](pa_context* from) {
                       if (isHeard) {
                           badReply(from);
                       }
                   }));
}

// Asks for a list; a bad reply ends it.
template <typename Callback>
pa_operation* listed(const char* name, pa_context* context, Callback callback, void* data)
{
    const auto fault =
        struck(context, [=](pa_context* from) { callback(from, nullptr, -1, data); });
    using Query = pa_operation* (*)(pa_context*, Callback, void*);
    return fault ? *fault : original<Query>(name)(context, callback, data);
}

} // namespace

void arm(Fault fault, int callsBefore)
{
    armed = fault;
    callsLeft = callsBefore;
}

bool hasStruck()
{
    return callsLeft == Disarmed;
}

void redirectPlayback(const char* from, const char* to)
{
    redirectedTo = to;
    redirectedFrom = from;
}

} // namespace TestSupport::UnwillingPulse

using namespace TestSupport::UnwillingPulse;

extern "C" {

pa_context* pa_context_new(pa_mainloop_api* api, const char* name)
{
    if (armed == Fault::NoContext && strikesNow()) {
        return nullptr;
    }
    return original<decltype(&::pa_context_new)>("pa_context_new")(api, name);
}

pa_operation* pa_context_subscribe(pa_context* context, pa_subscription_mask_t mask,
                                   pa_context_success_cb_t callback, void* data)
{
    const auto fault = struck(context, [=](pa_context* from) {
        if (callback) {
            callback(from, 0, data);
        }
    });
    return fault ? *fault
                 : original<decltype(&::pa_context_subscribe)>("pa_context_subscribe")(
                       context, mask, callback, data);
}

pa_operation* pa_context_get_server_info(pa_context* context, pa_server_info_cb_t callback,
                                         void* data)
{
    const auto fault = struck(context, [=](pa_context* from) { callback(from, nullptr, data); });
    return fault ? *fault
                 : original<decltype(&::pa_context_get_server_info)>("pa_context_get_server_info")(
                       context, callback, data);
}

pa_operation* pa_context_get_sink_info_list(pa_context* context, pa_sink_info_cb_t callback,
                                            void* data)
{
    return listed("pa_context_get_sink_info_list", context, callback, data);
}

pa_operation* pa_context_get_source_info_list(pa_context* context, pa_source_info_cb_t callback,
                                              void* data)
{
    return listed("pa_context_get_source_info_list", context, callback, data);
}

int pa_stream_connect_playback(pa_stream* stream, const char* device, const pa_buffer_attr* buffer,
                               pa_stream_flags_t flags, const pa_cvolume* volume, pa_stream* sync)
{
    const char* const from = redirectedFrom;
    const bool isRedirected = from && std::strcmp(device, from) == 0;
    return original<decltype(&::pa_stream_connect_playback)>("pa_stream_connect_playback")(
        stream, isRedirected ? redirectedTo.load() : device, buffer, flags, volume, sync);
}

} // extern "C"
