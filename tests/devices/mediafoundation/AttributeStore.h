// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComPointer.h"
#include "tests/devices/ComObject.h"

// Must follow windows.h.
#include <mfapi.h>
#include <mfobjects.h>

namespace TestSupport {

// An object with attributes: they are the system's.
template <typename Interface>
class AttributeStore : public ComObject<Interface, IMFAttributes>
{
public:
    template <typename Stage>
    explicit AttributeStore(const std::shared_ptr<Stage>& stage)
        : ComObject<Interface, IMFAttributes>(stage)
    {
        MFCreateAttributes(m_attributes.put(), 0);
    }

    HRESULT STDMETHODCALLTYPE GetItem(REFGUID key, PROPVARIANT* value) override
    {
        return m_attributes->GetItem(key, value);
    }
    HRESULT STDMETHODCALLTYPE GetItemType(REFGUID key, MF_ATTRIBUTE_TYPE* type) override
    {
        return m_attributes->GetItemType(key, type);
    }
    HRESULT STDMETHODCALLTYPE CompareItem(REFGUID key, REFPROPVARIANT value,
                                          WINBOOL* result) override
    {
        return m_attributes->CompareItem(key, value, result);
    }
    HRESULT STDMETHODCALLTYPE Compare(IMFAttributes* other, MF_ATTRIBUTES_MATCH_TYPE match,
                                      WINBOOL* result) override
    {
        return m_attributes->Compare(other, match, result);
    }
    HRESULT STDMETHODCALLTYPE GetUINT32(REFGUID key, UINT32* value) override
    {
        return m_attributes->GetUINT32(key, value);
    }
    HRESULT STDMETHODCALLTYPE GetUINT64(REFGUID key, UINT64* value) override
    {
        return m_attributes->GetUINT64(key, value);
    }
    HRESULT STDMETHODCALLTYPE GetDouble(REFGUID key, double* value) override
    {
        return m_attributes->GetDouble(key, value);
    }
    HRESULT STDMETHODCALLTYPE GetGUID(REFGUID key, GUID* value) override
    {
        return m_attributes->GetGUID(key, value);
    }
    HRESULT STDMETHODCALLTYPE GetStringLength(REFGUID key, UINT32* length) override
    {
        return m_attributes->GetStringLength(key, length);
    }
    HRESULT STDMETHODCALLTYPE GetString(REFGUID key, LPWSTR value, UINT32 size,
                                        UINT32* length) override
    {
        return m_attributes->GetString(key, value, size, length);
    }
    HRESULT STDMETHODCALLTYPE GetAllocatedString(REFGUID key, LPWSTR* value,
                                                 UINT32* length) override
    {
        return m_attributes->GetAllocatedString(key, value, length);
    }
    HRESULT STDMETHODCALLTYPE GetBlobSize(REFGUID key, UINT32* length) override
    {
        return m_attributes->GetBlobSize(key, length);
    }
    HRESULT STDMETHODCALLTYPE GetBlob(REFGUID key, UINT8* value, UINT32 size,
                                      UINT32* length) override
    {
        return m_attributes->GetBlob(key, value, size, length);
    }
    HRESULT STDMETHODCALLTYPE GetAllocatedBlob(REFGUID key, UINT8** value, UINT32* size) override
    {
        return m_attributes->GetAllocatedBlob(key, value, size);
    }
    HRESULT STDMETHODCALLTYPE GetUnknown(REFGUID key, REFIID id, LPVOID* object) override
    {
        return m_attributes->GetUnknown(key, id, object);
    }
    HRESULT STDMETHODCALLTYPE SetItem(REFGUID key, REFPROPVARIANT value) override
    {
        return m_attributes->SetItem(key, value);
    }
    HRESULT STDMETHODCALLTYPE DeleteItem(REFGUID key) override
    {
        return m_attributes->DeleteItem(key);
    }
    HRESULT STDMETHODCALLTYPE DeleteAllItems() override { return m_attributes->DeleteAllItems(); }
    HRESULT STDMETHODCALLTYPE SetUINT32(REFGUID key, UINT32 value) override
    {
        return m_attributes->SetUINT32(key, value);
    }
    HRESULT STDMETHODCALLTYPE SetUINT64(REFGUID key, UINT64 value) override
    {
        return m_attributes->SetUINT64(key, value);
    }
    HRESULT STDMETHODCALLTYPE SetDouble(REFGUID key, double value) override
    {
        return m_attributes->SetDouble(key, value);
    }
    HRESULT STDMETHODCALLTYPE SetGUID(REFGUID key, REFGUID value) override
    {
        return m_attributes->SetGUID(key, value);
    }
    HRESULT STDMETHODCALLTYPE SetString(REFGUID key, LPCWSTR value) override
    {
        return m_attributes->SetString(key, value);
    }
    HRESULT STDMETHODCALLTYPE SetBlob(REFGUID key, const UINT8* value, UINT32 size) override
    {
        return m_attributes->SetBlob(key, value, size);
    }
    HRESULT STDMETHODCALLTYPE SetUnknown(REFGUID key, IUnknown* value) override
    {
        return m_attributes->SetUnknown(key, value);
    }
    HRESULT STDMETHODCALLTYPE LockStore() override { return m_attributes->LockStore(); }
    HRESULT STDMETHODCALLTYPE UnlockStore() override { return m_attributes->UnlockStore(); }
    HRESULT STDMETHODCALLTYPE GetCount(UINT32* count) override
    {
        return m_attributes->GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetItemByIndex(UINT32 index, GUID* key, PROPVARIANT* value) override
    {
        return m_attributes->GetItemByIndex(index, key, value);
    }
    HRESULT STDMETHODCALLTYPE CopyAllItems(IMFAttributes* other) override
    {
        return m_attributes->CopyAllItems(other);
    }

private:
    Platform::ComPointer<IMFAttributes> m_attributes;
};

} // namespace TestSupport
