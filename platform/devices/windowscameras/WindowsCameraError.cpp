// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraError.h"

#include "platform/devices/wasapi/WasapiError.h"

#include <algorithm>
#include <iterator>
#include <mferror.h>

// Must follow windows.h.
#include <vfwmsgs.h>

namespace Platform {

namespace {

struct Meaning
{
    HRESULT error;
    DeviceState state;
    const char* name;
};

constexpr HRESULT ofWin32(unsigned long error)
{
    return static_cast<HRESULT>(error | (FACILITY_WIN32 << 16) | 0x80000000UL);
}

// Drivers of USB cameras say NO_SYSTEM_RESOURCES if another program has the camera: the bus has no
// bandwidth left for a second stream. A filter of DirectShow can't be made if its program is gone,
// or is there for 32 bits alone.
const Meaning Meanings[] = {
    {MF_E_VIDEO_RECORDING_DEVICE_INVALIDATED, DeviceState::Absent, "DEVICE_INVALIDATED"},
    {MF_E_NO_CAPTURE_DEVICES_AVAILABLE, DeviceState::Absent, "NO_CAPTURE_DEVICES_AVAILABLE"},
    {MF_E_NOT_FOUND, DeviceState::Absent, "MF_E_NOT_FOUND"},
    {ofWin32(ERROR_DEVICE_NOT_CONNECTED), DeviceState::Absent, "ERROR_DEVICE_NOT_CONNECTED"},
    {ofWin32(ERROR_DEVICE_REMOVED), DeviceState::Absent, "ERROR_DEVICE_REMOVED"},
    {ofWin32(ERROR_DEV_NOT_EXIST), DeviceState::Absent, "ERROR_DEV_NOT_EXIST"},
    {ofWin32(ERROR_PATH_NOT_FOUND), DeviceState::Absent, "ERROR_PATH_NOT_FOUND"},
    {MF_E_VIDEO_RECORDING_DEVICE_PREEMPTED, DeviceState::Busy, "DEVICE_PREEMPTED"},
    {MF_E_HW_MFT_FAILED_START_STREAMING, DeviceState::Busy, "HW_MFT_FAILED_START_STREAMING"},
    {ofWin32(ERROR_NO_SYSTEM_RESOURCES), DeviceState::Busy, "ERROR_NO_SYSTEM_RESOURCES"},
    {ofWin32(ERROR_SHARING_VIOLATION), DeviceState::Busy, "ERROR_SHARING_VIOLATION"},
    {ofWin32(ERROR_DEVICE_IN_USE), DeviceState::Busy, "ERROR_DEVICE_IN_USE"},
    {VFW_E_NO_CAPTURE_HARDWARE, DeviceState::Absent, "VFW_E_NO_CAPTURE_HARDWARE"},
    {VFW_E_TIMEOUT, DeviceState::Hung, "VFW_E_TIMEOUT"},
    {VFW_E_INVALIDMEDIATYPE, DeviceState::Unreadable, "VFW_E_INVALIDMEDIATYPE"},
    {VFW_E_TYPE_NOT_ACCEPTED, DeviceState::Unreadable, "VFW_E_TYPE_NOT_ACCEPTED"},
    {VFW_E_NO_TYPES, DeviceState::Unreadable, "VFW_E_NO_TYPES"},
    {VFW_E_NO_ACCEPTABLE_TYPES, DeviceState::Unreadable, "VFW_E_NO_ACCEPTABLE_TYPES"},
    {VFW_E_CANNOT_CONNECT, DeviceState::Unreadable, "VFW_E_CANNOT_CONNECT"},
    {REGDB_E_CLASSNOTREG, DeviceState::Failed, "REGDB_E_CLASSNOTREG"},
    {CO_E_DLLNOTFOUND, DeviceState::Failed, "CO_E_DLLNOTFOUND"},
    {ofWin32(ERROR_MOD_NOT_FOUND), DeviceState::Failed, "ERROR_MOD_NOT_FOUND"},
    {ofWin32(ERROR_BAD_EXE_FORMAT), DeviceState::Failed, "ERROR_BAD_EXE_FORMAT"},
    {MF_E_INVALIDMEDIATYPE, DeviceState::Unreadable, "MF_E_INVALIDMEDIATYPE"},
    {MF_E_NO_MORE_TYPES, DeviceState::Unreadable, "MF_E_NO_MORE_TYPES"},
    {MF_E_END_OF_STREAM, DeviceState::Failed, "MF_E_END_OF_STREAM"},
    {MF_E_SHUTDOWN, DeviceState::Failed, "MF_E_SHUTDOWN"},
};

const Meaning* meaningOf(HRESULT error)
{
    const auto* found = std::find_if(std::begin(Meanings), std::end(Meanings),
                                     [error](const Meaning& one) { return one.error == error; });
    return found == std::end(Meanings) ? nullptr : found;
}

} // namespace

DeviceState WindowsCameraError::stateOf(HRESULT error)
{
    const Meaning* meaning = meaningOf(error);
    return meaning ? meaning->state : WasapiError::stateOf(error);
}

DeviceState WindowsCameraError::failureOf(HRESULT error)
{
    const DeviceState state = stateOf(error);
    return state == DeviceState::Absent ? DeviceState::Failed : state;
}

QString WindowsCameraError::toString(HRESULT error)
{
    const Meaning* meaning = meaningOf(error);
    const QString number = WasapiError::toString(error);
    return meaning ? QLatin1String(meaning->name) + QStringLiteral(" (%1)").arg(number) : number;
}

} // namespace Platform
