// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <pulse/context.h>
#include <pulse/operation.h>
#include <pulse/stream.h>
#include <pulse/subscribe.h>

namespace Platform {

// What the server shows as the owner of streams and connections.
constexpr char PulseClientName[] = "EnvCheck";

// Ends a stream or a connection for good: none of its callbacks runs any more. Sound thread only.
struct PulseStreamCloser
{
    void operator()(pa_stream* stream) const
    {
        pa_stream_set_state_callback(stream, nullptr, nullptr);
        pa_stream_set_read_callback(stream, nullptr, nullptr);
        pa_stream_set_write_callback(stream, nullptr, nullptr);
        pa_stream_set_underflow_callback(stream, nullptr, nullptr);
        pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }
};

struct PulseContextCloser
{
    void operator()(pa_context* context) const
    {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

using PulseStreamHandle = std::unique_ptr<pa_stream, PulseStreamCloser>;
using PulseContextHandle = std::unique_ptr<pa_context, PulseContextCloser>;

// Lets an operation run to its end by itself; false where it couldn't be begun.
inline bool release(pa_operation* operation)
{
    if (operation) {
        pa_operation_unref(operation);
    }
    return operation != nullptr;
}

} // namespace Platform
