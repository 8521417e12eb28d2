// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <pulse/context.h>
#include <pulse/operation.h>
#include <pulse/stream.h>
#include <pulse/subscribe.h>

namespace Platform {

// The name of this program in the server's mixers.
constexpr char PulseClientName[] = "EnvCheck";

// They end a stream or a connection, and none of its callbacks runs afterwards. Sound thread only.
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

// The operation's callback isn't called any more.
struct PulseOperationCanceller
{
    void operator()(pa_operation* operation) const
    {
        pa_operation_cancel(operation);
        pa_operation_unref(operation);
    }
};

using PulseStreamHandle = std::unique_ptr<pa_stream, PulseStreamCloser>;
using PulseContextHandle = std::unique_ptr<pa_context, PulseContextCloser>;
using PulseOperationHandle = std::unique_ptr<pa_operation, PulseOperationCanceller>;

// Nobody waits for the operation; it goes on by itself. False if it couldn't be started.
inline bool release(pa_operation* operation)
{
    if (operation) {
        pa_operation_unref(operation);
    }
    return operation != nullptr;
}

} // namespace Platform
