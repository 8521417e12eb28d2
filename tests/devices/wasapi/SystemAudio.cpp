// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/SystemAudio.h"

#include <initguid.h>
// Must follow initguid.h, which makes it define what it names.
#include <functiondiscoverykeys_devpkey.h>

using Platform::ComPointer;

namespace TestSupport {

namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

QString nameOf(IMMDevice& device)
{
    ComPointer<IPropertyStore> properties;
    PROPVARIANT value;
    PropVariantInit(&value);
    QString name;
    if (SUCCEEDED(device.OpenPropertyStore(STGM_READ, properties.put())) &&
        SUCCEEDED(properties->GetValue(PKEY_Device_FriendlyName, &value)) &&
        value.vt == VT_LPWSTR) {
        name = QString::fromWCharArray(value.pwszVal);
    }
    PropVariantClear(&value);
    return name;
}

} // namespace

// The library is asked itself, because COM would ask StagedAudio.
HRESULT SystemAudio::createEnumerator(ComPointer<IMMDeviceEnumerator>& enumerator)
{
    HMODULE library = LoadLibraryW(L"mmdevapi.dll"); // for good
    const auto getClassObject = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    if (!getClassObject) {
        return HRESULT_FROM_WIN32(ERROR_NOT_FOUND);
    }
    ComPointer<IClassFactory> factory;
    const HRESULT error =
        getClassObject(__uuidof(MMDeviceEnumerator), __uuidof(IClassFactory), factory.putVoid());
    return SUCCEEDED(error) ? factory->CreateInstance(nullptr, __uuidof(IMMDeviceEnumerator),
                                                      enumerator.putVoid())
                            : error;
}

ComPointer<IMMDevice> SystemAudio::find(IMMDeviceEnumerator& enumerator, EDataFlow flow,
                                        const QString& name)
{
    ComPointer<IMMDeviceCollection> devices;
    UINT count = 0;
    if (SUCCEEDED(enumerator.EnumAudioEndpoints(flow, DEVICE_STATE_ACTIVE, devices.put()))) {
        devices->GetCount(&count);
    }
    for (UINT i = 0; i < count; ++i) {
        ComPointer<IMMDevice> device;
        if (SUCCEEDED(devices->Item(i, device.put())) && nameOf(*device.get()) == name) {
            return device;
        }
    }
    return {};
}

} // namespace TestSupport
