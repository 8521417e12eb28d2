// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/DirectShowSources.h"

#include <utility>

// Must follow windows.h.
#include <oleauto.h>
#include <uuids.h>

namespace Platform {

namespace {

constexpr int MaxEntries = 1000; // a registry may have any number

QString entryOf(IMoniker& moniker)
{
    LPOLESTR text = nullptr;
    if (FAILED(moniker.GetDisplayName(nullptr, nullptr, &text)) || !text) {
        return {};
    }
    const QString result = QString::fromWCharArray(text).toLower(); // as the registry sees it
    CoTaskMemFree(text);
    return result;
}

QString textOf(IPropertyBag& properties, const wchar_t* name)
{
    VARIANT value;
    VariantInit(&value);
    QString result;
    if (SUCCEEDED(properties.Read(name, &value, nullptr)) && value.vt == VT_BSTR && value.bstrVal) {
        result =
            QString::fromWCharArray(value.bstrVal, static_cast<int>(SysStringLen(value.bstrVal)));
    }
    VariantClear(&value);
    return result;
}

DirectShowSource sourceOf(IMoniker& moniker)
{
    DirectShowSource result;
    result.entry = entryOf(moniker);
    ComPointer<IPropertyBag> properties;
    if (SUCCEEDED(moniker.BindToStorage(nullptr, nullptr, __uuidof(IPropertyBag),
                                        properties.putVoid()))) {
        result.path = textOf(*properties.get(), L"DevicePath").toLower();
        result.name = textOf(*properties.get(), L"FriendlyName");
    }
    return result;
}

// Shows the function each entry, until it returns false.
template <typename Function>
HRESULT visit(Function function)
{
    ComPointer<ICreateDevEnum> devices;
    HRESULT error = CoCreateInstance(CLSID_SystemDeviceEnum, nullptr, CLSCTX_INPROC_SERVER,
                                     __uuidof(ICreateDevEnum), devices.putVoid());
    ComPointer<IEnumMoniker> entries;
    if (SUCCEEDED(error)) {
        error = devices->CreateClassEnumerator(CLSID_VideoInputDeviceCategory, entries.put(), 0);
    }
    ComPointer<IMoniker> moniker;
    for (int i = 0; entries && i < MaxEntries; ++i) { // there is no list if it would be empty
        if (entries->Next(1, moniker.put(), nullptr) != S_OK || !function(*moniker.get())) {
            break;
        }
    }
    return error;
}

} // namespace

HRESULT DirectShowSources::list(std::vector<DirectShowSource>& sources)
{
    return visit([&sources](IMoniker& moniker) {
        DirectShowSource source = sourceOf(moniker);
        if (!source.entry.isEmpty()) {
            sources.push_back(std::move(source));
        }
        return true;
    });
}

ComPointer<IBaseFilter> DirectShowSources::open(const QString& entry, HRESULT& error)
{
    ComPointer<IBaseFilter> result;
    HRESULT opened = HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
    error = visit([&](IMoniker& moniker) {
        if (entryOf(moniker) != entry) {
            return true;
        }
        opened = moniker.BindToObject(nullptr, nullptr, __uuidof(IBaseFilter), result.putVoid());
        return false;
    });
    error = SUCCEEDED(error) ? opened : error;
    return result;
}

} // namespace Platform
