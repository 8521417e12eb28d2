// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiError.h"

#include <algorithm>
#include <audioclient.h>
#include <iterator>

namespace Platform {

namespace {

// Since Windows 10; MinGW-w64 doesn't have it yet.
constexpr HRESULT ResourcesInvalidated = AUDCLNT_ERR(0x026);

struct Meaning
{
    HRESULT error;
    DeviceState state;
    bool isServiceLost;
    const char* name;
};

constexpr HRESULT ofWin32(unsigned long error)
{
    return static_cast<HRESULT>(error | (FACILITY_WIN32 << 16) | 0x80000000UL);
}

// A device that is unplugged invalidates its streams. The next opening finds no endpoint, or can't
// create one.
const Meaning Meanings[] = {
    {AUDCLNT_E_DEVICE_INVALIDATED, DeviceState::Absent, false, "DEVICE_INVALIDATED"},
    {AUDCLNT_E_ENDPOINT_CREATE_FAILED, DeviceState::Absent, false, "ENDPOINT_CREATE_FAILED"},
    {ofWin32(ERROR_NOT_FOUND), DeviceState::Absent, false, "ERROR_NOT_FOUND"},
    {ofWin32(ERROR_FILE_NOT_FOUND), DeviceState::Absent, false, "ERROR_FILE_NOT_FOUND"},
    {AUDCLNT_E_DEVICE_IN_USE, DeviceState::Busy, false, "DEVICE_IN_USE"},
    {AUDCLNT_E_EXCLUSIVE_MODE_ONLY, DeviceState::Busy, false, "EXCLUSIVE_MODE_ONLY"},
    {ofWin32(ERROR_BUSY), DeviceState::Busy, false, "ERROR_BUSY"},
    {E_ACCESSDENIED, DeviceState::Denied, false, "E_ACCESSDENIED"},
    {ofWin32(ERROR_TIMEOUT), DeviceState::Hung, false, "ERROR_TIMEOUT"},
    {ofWin32(WAIT_TIMEOUT), DeviceState::Hung, false, "WAIT_TIMEOUT"},
    {ofWin32(ERROR_SEM_TIMEOUT), DeviceState::Hung, false, "ERROR_SEM_TIMEOUT"},
    {AUDCLNT_E_SERVICE_NOT_RUNNING, DeviceState::Failed, true, "SERVICE_NOT_RUNNING"},
    {ofWin32(RPC_S_SERVER_UNAVAILABLE), DeviceState::Failed, true, "RPC_S_SERVER_UNAVAILABLE"},
    {ofWin32(RPC_S_CALL_FAILED), DeviceState::Failed, true, "RPC_S_CALL_FAILED"},
    {RPC_E_DISCONNECTED, DeviceState::Failed, true, "RPC_E_DISCONNECTED"},
    {ResourcesInvalidated, DeviceState::Failed, false, "RESOURCES_INVALIDATED"},
    {AUDCLNT_E_UNSUPPORTED_FORMAT, DeviceState::Failed, false, "UNSUPPORTED_FORMAT"},
    {E_FAIL, DeviceState::Failed, false, "E_FAIL"},
};

const Meaning* meaningOf(HRESULT error)
{
    const auto* found = std::find_if(std::begin(Meanings), std::end(Meanings),
                                     [error](const Meaning& one) { return one.error == error; });
    return found == std::end(Meanings) ? nullptr : found;
}

} // namespace

DeviceState WasapiError::stateOf(HRESULT error)
{
    const Meaning* meaning = meaningOf(error);
    return meaning ? meaning->state : DeviceState::Failed;
}

DeviceState WasapiError::failureOf(HRESULT error)
{
    const DeviceState state = stateOf(error);
    const bool isTold = state == DeviceState::Denied || state == DeviceState::Busy;
    return isTold ? state : DeviceState::Failed;
}

bool WasapiError::isServiceLost(HRESULT error)
{
    const Meaning* meaning = meaningOf(error);
    return meaning && meaning->isServiceLost;
}

QString WasapiError::toString(HRESULT error)
{
    const Meaning* meaning = meaningOf(error);
    const QString number =
        QStringLiteral("0x%1").arg(static_cast<quint32>(error), 8, 16, QLatin1Char('0'));
    return meaning ? QLatin1String(meaning->name) + QStringLiteral(" (%1)").arg(number) : number;
}

} // namespace Platform
