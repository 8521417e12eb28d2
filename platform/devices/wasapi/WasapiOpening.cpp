// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiOpening.h"

#include "platform/devices/windows/DriverThread.h"

#include <mutex>
#include <utility>

namespace Platform {

struct WasapiOpening::Shared
{
    std::mutex mutex;
    std::optional<Result> result;
    bool isAbandoned = false;
};

WasapiOpening::WasapiOpening(std::shared_ptr<WakeEvent> wake) : m_wake(std::move(wake))
{
}

WasapiOpening::~WasapiOpening()
{
    abandon();
}

void WasapiOpening::start(const WasapiStream::Order& order)
{
    abandon();
    m_shared = std::make_shared<Shared>();
    const auto job = [shared = m_shared, wake = m_wake, order] {
        Result result;
        result.stream = WasapiStream::open(order, result.error);
        {
            const std::scoped_lock lock(shared->mutex);
            if (!shared->isAbandoned) {
                shared->result = std::move(result);
            }
        }
        wake->set();
    }; // what was abandoned is closed here
    if (!DriverThread::run(DriverThread::Priority::Usual, job)) {
        m_shared->result = Result{nullptr, HRESULT_FROM_WIN32(WAIT_TIMEOUT)}; // others hang
        m_wake->set();
    }
}

void WasapiOpening::abandon()
{
    const std::shared_ptr<Shared> shared = std::exchange(m_shared, nullptr);
    if (!shared) {
        return;
    }
    const std::scoped_lock lock(shared->mutex);
    shared->isAbandoned = true;
    if (shared->result && shared->result->stream) {
        WasapiStream::closeElsewhere(std::move(shared->result->stream));
    }
}

std::optional<WasapiOpening::Result> WasapiOpening::take()
{
    if (!m_shared) {
        return std::nullopt;
    }
    std::optional<Result> result;
    {
        const std::scoped_lock lock(m_shared->mutex);
        result = std::exchange(m_shared->result, std::nullopt);
    }
    if (result) {
        m_shared.reset();
    }
    return result;
}

} // namespace Platform
