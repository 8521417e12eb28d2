// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PlugStorm.h"

#include <functional>
#include <pulse/pulseaudio.h>

namespace TestSupport {

namespace {

// A connection that waits for each answer.
class Client
{
public:
    Client() : m_loop(pa_mainloop_new()), m_context(newContext(m_loop)) {}

    ~Client()
    {
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
        pa_mainloop_free(m_loop);
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    bool connect()
    {
        if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
            return false;
        }
        return iterate([this] { return pa_context_get_state(m_context) == PA_CONTEXT_READY; });
    }

    bool plug(PlugStorm::Device device)
    {
        const bool isSpeaker = device == PlugStorm::Device::Speaker;
        m_index = PA_INVALID_INDEX;
        return finish(pa_context_load_module(
                   m_context, isSpeaker ? "module-null-sink" : "module-remap-source",
                   isSpeaker ? "norewinds=1 sink_name=hasty"
                             : "source_name=hasty master=voice.monitor",
                   [](pa_context*, std::uint32_t index, void* self) {
                       static_cast<Client*>(self)->m_index = index;
                   },
                   this)) &&
               m_index != PA_INVALID_INDEX;
    }

    bool unplug() { return finish(pa_context_unload_module(m_context, m_index, nullptr, nullptr)); }

private:
    static pa_context* newContext(pa_mainloop* loop)
    {
        return pa_context_new(pa_mainloop_get_api(loop), "Plug storm");
    }

    bool iterate(const std::function<bool()>& isDone)
    {
        while (!isDone()) {
            if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context)) ||
                pa_mainloop_iterate(m_loop, 1, nullptr) < 0) {
                return false;
            }
        }
        return true;
    }

    bool finish(pa_operation* operation)
    {
        const bool isDone = operation && iterate([operation] {
                                return pa_operation_get_state(operation) != PA_OPERATION_RUNNING;
                            });
        if (operation) {
            pa_operation_unref(operation);
        }
        return isDone;
    }

    pa_mainloop* m_loop;
    pa_context* m_context;
    std::uint32_t m_index = PA_INVALID_INDEX;
};

} // namespace

PlugStorm::PlugStorm(int rounds, Device device)
    : m_thread([this, rounds, device] { run(rounds, device); })
{
}

PlugStorm::~PlugStorm()
{
    m_isEnding = true;
    m_thread.join();
}

void PlugStorm::run(int rounds, Device device)
{
    Client client;
    bool isGood = client.connect();
    for (int i = 0; i < rounds && isGood && !m_isEnding; ++i) {
        isGood = client.plug(device);
        m_events += isGood ? 1 : 0;
        isGood = isGood && client.unplug();
        m_events += isGood ? 1 : 0;
    }
    m_isOver = true;
}

} // namespace TestSupport
