// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PulseClient.h"

#include <pulse/pulseaudio.h>

namespace TestSupport {

namespace {

void noteSuccess(pa_context* /*context*/, int success, void* result)
{
    *static_cast<bool*>(result) = success != 0;
}

} // namespace

PulseClient::PulseClient()
    : m_loop(pa_mainloop_new()),
      m_context(pa_context_new(pa_mainloop_get_api(m_loop), "Test client"))
{
}

PulseClient::~PulseClient()
{
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
    pa_mainloop_free(m_loop);
}

bool PulseClient::connect()
{
    return pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0 &&
           iterate([this] { return pa_context_get_state(m_context) == PA_CONTEXT_READY; });
}

bool PulseClient::loadModule(const char* name, const char* arguments, std::uint32_t& index)
{
    index = PA_INVALID_INDEX;
    return finish(pa_context_load_module(
               m_context, name, arguments,
               [](pa_context*, std::uint32_t loaded, void* result) {
                   *static_cast<std::uint32_t*>(result) = loaded;
               },
               &index)) &&
           index != PA_INVALID_INDEX;
}

bool PulseClient::unloadModule(std::uint32_t index)
{
    bool isGood = false;
    return finish(pa_context_unload_module(m_context, index, &noteSuccess, &isGood)) && isGood;
}

bool PulseClient::killClient(std::uint32_t index)
{
    bool isGood = false;
    return finish(pa_context_kill_client(m_context, index, &noteSuccess, &isGood)) && isGood;
}

bool PulseClient::iterate(const std::function<bool()>& isDone)
{
    while (!isDone()) {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context)) ||
            pa_mainloop_iterate(m_loop, 1, nullptr) < 0) {
            return false;
        }
    }
    return true;
}

bool PulseClient::finish(pa_operation* operation)
{
    const bool isDone = operation && iterate([operation] {
                            return pa_operation_get_state(operation) != PA_OPERATION_RUNNING;
                        });
    if (operation) {
        pa_operation_unref(operation);
    }
    return isDone;
}

} // namespace TestSupport
