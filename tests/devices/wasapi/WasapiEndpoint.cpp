// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/WasapiEndpoint.h"

#include "platform/devices/windows/ComPointer.h"
#include "platform/devices/windows/DriverThread.h"

#include <future>
#include <memory>

#include <initguid.h>
// Must follow initguid.h, which makes it define what it names.
#include <functiondiscoverykeys_devpkey.h>
#include <mmdeviceapi.h>

using Platform::ComPointer;
using Platform::DriverThread::Priority;

namespace TestSupport {

namespace {

QString nameOf(IMMDevice* device)
{
    ComPointer<IPropertyStore> properties;
    PROPVARIANT value;
    PropVariantInit(&value);
    QString name;
    if (SUCCEEDED(device->OpenPropertyStore(STGM_READ, properties.put())) &&
        SUCCEEDED(properties->GetValue(PKEY_Device_FriendlyName, &value)) &&
        value.vt == VT_LPWSTR) {
        name = QString::fromWCharArray(value.pwszVal);
    }
    PropVariantClear(&value);
    return name;
}

QString idOf(IMMDevice* device)
{
    LPWSTR text = nullptr;
    const QString id = SUCCEEDED(device->GetId(&text)) ? QString::fromWCharArray(text) : QString();
    CoTaskMemFree(text);
    return id;
}

QString find(EDataFlow flow, const QString& name)
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    ComPointer<IMMDeviceCollection> devices;
    if (FAILED(CoCreateInstance(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_ALL,
                                __uuidof(IMMDeviceEnumerator), enumerator.putVoid())) ||
        FAILED(enumerator->EnumAudioEndpoints(flow, DEVICE_STATE_ACTIVE, devices.put()))) {
        return {};
    }
    UINT count = 0;
    devices->GetCount(&count);
    for (UINT i = 0; i < count; ++i) {
        ComPointer<IMMDevice> device;
        if (SUCCEEDED(devices->Item(i, device.put())) && nameOf(device.get()) == name) {
            return idOf(device.get());
        }
    }
    return {};
}

// The test's own thread has no COM.
QString findElsewhere(EDataFlow flow, const QString& name)
{
    const auto found = std::make_shared<std::promise<QString>>();
    std::future<QString> result = found->get_future();
    return Platform::DriverThread::run(Priority::Usual,
                                       [found, flow, name] { found->set_value(find(flow, name)); })
               ? result.get()
               : QString();
}

} // namespace

QString speakerCalled(const QString& name)
{
    return findElsewhere(eRender, name);
}

QString microphoneCalled(const QString& name)
{
    return findElsewhere(eCapture, name);
}

} // namespace TestSupport
