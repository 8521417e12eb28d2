// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/EndpointList.h"

#include "platform/devices/wasapi/EndpointNotice.h"
#include "platform/devices/wasapi/WasapiError.h"
#include "platform/devices/wasapi/WinePulseDevices.h"

#include <utility>

#include <initguid.h>
// Must follow initguid.h: only then does it define the property keys.
#include <functiondiscoverykeys_devpkey.h>
#include <propsys.h>

namespace Platform {

namespace {

EDataFlow flowOf(SoundKind kind)
{
    return kind == SoundKind::Speaker ? eRender : eCapture;
}

QString idOf(IMMDevice& endpoint)
{
    LPWSTR id = nullptr;
    if (FAILED(endpoint.GetId(&id))) {
        return {};
    }
    const QString result = QString::fromWCharArray(id);
    CoTaskMemFree(id);
    return result;
}

QString nameOf(IMMDevice& endpoint)
{
    ComPointer<IPropertyStore> properties;
    PROPVARIANT name;
    PropVariantInit(&name);
    QString result;
    if (SUCCEEDED(endpoint.OpenPropertyStore(STGM_READ, properties.put())) &&
        SUCCEEDED(properties->GetValue(PKEY_Device_FriendlyName, &name)) && name.vt == VT_LPWSTR) {
        result = QString::fromWCharArray(name.pwszVal);
    }
    PropVariantClear(&name);
    return result;
}

} // namespace

EndpointList::EndpointList(std::function<void()> changed)
{
    *m_notice.put() = new EndpointNotice(std::move(changed));
}

EndpointList::~EndpointList()
{
    disconnect();
}

HRESULT EndpointList::read(SoundDevices& devices)
{
    HRESULT error = connect();
    const WinePulseDevices standIns = WinePulseDevices::standIns();
    for (const SoundKind kind : {SoundKind::Speaker, SoundKind::Microphone}) {
        if (SUCCEEDED(error)) {
            error = readSide(kind, standIns, devices.side(kind));
        }
    }
    if (FAILED(error)) {
        disconnect();
    }
    return error;
}

HRESULT EndpointList::setVolume(SoundKind kind, const QString& id, int percent)
{
    const auto found = volumes(kind).find(id);
    return found != volumes(kind).end() && found->second.isOpen() ? found->second.set(percent)
                                                                  : E_NOTIMPL;
}

HRESULT EndpointList::connect()
{
    if (m_enumerator) {
        return S_OK;
    }
    HRESULT error = CoCreateInstance(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_ALL,
                                     __uuidof(IMMDeviceEnumerator), m_enumerator.putVoid());
    if (SUCCEEDED(error)) {
        error = m_enumerator->RegisterEndpointNotificationCallback(m_notice.get());
    }
    if (FAILED(error)) {
        m_enumerator.reset();
    }
    return error;
}

void EndpointList::disconnect()
{
    m_speakers.clear();
    m_microphones.clear();
    if (m_enumerator) {
        m_enumerator->UnregisterEndpointNotificationCallback(m_notice.get());
        m_enumerator.reset();
    }
}

HRESULT EndpointList::readSide(SoundKind kind, const WinePulseDevices& leftOut, SoundSide& side)
{
    ComPointer<IMMDeviceCollection> endpoints;
    UINT count = 0;
    HRESULT error =
        m_enumerator->EnumAudioEndpoints(flowOf(kind), DEVICE_STATE_ACTIVE, endpoints.put());
    if (SUCCEEDED(error)) {
        error = endpoints->GetCount(&count);
    }
    Volumes present;
    for (UINT i = 0; SUCCEEDED(error) && i < count; ++i) {
        ComPointer<IMMDevice> endpoint;
        error = endpoints->Item(i, endpoint.put());
        SoundDevice device;
        if (SUCCEEDED(error)) {
            device.id = idOf(*endpoint.get());
        }
        if (!device.id.isEmpty() && !leftOut.contain(device.id)) {
            error = readEndpoint(*endpoint.get(), volumes(kind), present, device);
            side.devices.push_back(std::move(device));
        }
    }
    if (SUCCEEDED(error)) {
        volumes(kind) = std::move(present);
        side.defaultId = defaultId(kind);
    }
    return error;
}

// Only a lost service is an error: an endpoint that is on its way out has no volume, and the notice
// comes.
HRESULT EndpointList::readEndpoint(IMMDevice& endpoint, Volumes& before, Volumes& now,
                                   SoundDevice& device)
{
    device.name = nameOf(endpoint);
    if (device.name.trimmed().isEmpty()) {
        device.name = device.id;
    }
    EndpointVolume& volume = now[device.id];
    const auto known = before.find(device.id);
    if (known != before.end()) {
        volume = std::move(known->second);
    }
    const HRESULT error = readVolume(endpoint, volume, device);
    device.isAdjustable = SUCCEEDED(error);
    return WasapiError::isServiceLost(error) ? error : S_OK;
}

// An endpoint that went and came again needs a new object. One without volume is as loud as it can
// be.
HRESULT EndpointList::readVolume(IMMDevice& endpoint, EndpointVolume& volume, SoundDevice& device)
{
    device.volume = {100.0, false};
    if (volume.isOpen() && SUCCEEDED(volume.read(device.volume))) {
        return S_OK;
    }
    const HRESULT error = volume.open(endpoint, *m_notice.get());
    return SUCCEEDED(error) ? volume.read(device.volume) : error;
}

// Windows has one default for calls and one for all else; people who use a headset for calls expect
// it here.
QString EndpointList::defaultId(SoundKind kind) const
{
    for (const ERole role : {eCommunications, eConsole}) {
        ComPointer<IMMDevice> endpoint;
        if (SUCCEEDED(m_enumerator->GetDefaultAudioEndpoint(flowOf(kind), role, endpoint.put()))) {
            return idOf(*endpoint.get());
        }
    }
    return {};
}

} // namespace Platform
