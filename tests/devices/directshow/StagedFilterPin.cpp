// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/directshow/StagedFilterPin.h"

#include "tests/devices/directshow/StagedType.h"

#include <algorithm>
#include <cstring>
#include <utility>

// Must follow windows.h.
#include <objbase.h>
#include <uuids.h>
#include <vfwmsgs.h>

using Platform::ComPointer;
using Platform::MediaType;

namespace TestSupport {

namespace {

constexpr DWORD CanBeRead = 1; // KSPROPERTY_SUPPORT_GET

AM_MEDIA_TYPE* allocated(MediaType type)
{
    auto* result = static_cast<AM_MEDIA_TYPE*>(CoTaskMemAlloc(sizeof(AM_MEDIA_TYPE)));
    *result = type.release();
    return result;
}

} // namespace

StagedFilterPin::StagedFilterPin(IBaseFilter& filter, std::shared_ptr<CameraStage> stage,
                                 std::shared_ptr<StagedCamera> camera)
    : FilterPin(filter, PINDIR_OUTPUT),
      m_stage(std::move(stage)),
      m_camera(std::move(camera)),
      m_mode(m_camera->modes.front())
{
}

StagedMode StagedFilterPin::mode() const
{
    return m_mode;
}

void StagedFilterPin::commit(bool isOn)
{
    if (m_allocator) {
        isOn ? m_allocator->Commit() : m_allocator->Decommit();
    }
}

void StagedFilterPin::deliver(const QByteArray& frame)
{
    ComPointer<IMediaSample> sample;
    BYTE* data = nullptr;
    if (!m_allocator || FAILED(m_allocator->GetBuffer(sample.put(), nullptr, nullptr, 0)) ||
        FAILED(sample->GetPointer(&data))) {
        return;
    }
    std::memcpy(data, frame.constData(), static_cast<std::size_t>(frame.size()));
    sample->SetActualDataLength(frame.size());
    m_input->Receive(sample.get());
}

void StagedFilterPin::endStream()
{
    if (m_to) {
        m_to->EndOfStream();
    }
}

HRESULT StagedFilterPin::QueryInterface(REFIID id, void** object)
{
    return FilterPin::QueryInterface(id, object);
}

HRESULT StagedFilterPin::Connect(IPin* to, const AM_MEDIA_TYPE* type)
{
    {
        const std::scoped_lock lock(m_stage->mutex);
        if (FAILED(m_camera->readingError)) {
            return m_camera->readingError;
        }
    }
    if (type && !StagedType::find(*m_camera, *type, m_mode)) {
        return VFW_E_TYPE_NOT_ACCEPTED;
    }
    const MediaType agreed = StagedType::of(m_mode);
    HRESULT error = to->QueryInterface(__uuidof(IMemInputPin), m_input.putVoid());
    if (SUCCEEDED(error)) {
        error = to->ReceiveConnection(this, &agreed.get());
    }
    if (SUCCEEDED(error)) {
        error = m_input->GetAllocator(m_allocator.put());
    }
    if (SUCCEEDED(error)) {
        ALLOCATOR_PROPERTIES wanted{1, static_cast<long>(StagedType::maxBytes(m_mode)), 1, 0};
        ALLOCATOR_PROPERTIES actual{};
        error = m_allocator->SetProperties(&wanted, &actual); // one frame: who keeps it, blocks
        m_input->NotifyAllocator(m_allocator.get(), FALSE);
    }
    if (SUCCEEDED(error)) {
        setConnection(*to, agreed.get());
        m_to = ComPointer<IPin>::sharing(*to);
    }
    return error;
}

HRESULT StagedFilterPin::Disconnect()
{
    m_to.reset();
    m_input.reset();
    m_allocator.reset();
    return FilterPin::Disconnect();
}

HRESULT StagedFilterPin::QueryAccept(const AM_MEDIA_TYPE* type)
{
    StagedMode ignored;
    return StagedType::find(*m_camera, *type, ignored) ? S_OK : S_FALSE;
}

HRESULT StagedFilterPin::EnumMediaTypes(IEnumMediaTypes** types)
{
    *types = new StagedTypeList(m_camera);
    return S_OK;
}

HRESULT StagedFilterPin::SetFormat(AM_MEDIA_TYPE* type)
{
    return StagedType::find(*m_camera, *type, m_mode) ? S_OK : VFW_E_INVALIDMEDIATYPE;
}

HRESULT StagedFilterPin::GetFormat(AM_MEDIA_TYPE** type)
{
    *type = allocated(StagedType::of(m_mode));
    return S_OK;
}

HRESULT StagedFilterPin::GetNumberOfCapabilities(int* count, int* bytes)
{
    *count = static_cast<int>(m_camera->modes.size());
    *bytes = sizeof(VIDEO_STREAM_CONFIG_CAPS);
    return S_OK;
}

HRESULT StagedFilterPin::GetStreamCaps(int number, AM_MEDIA_TYPE** type, BYTE* caps)
{
    const StagedMode& mode = m_camera->modes.at(static_cast<std::size_t>(number));
    VIDEO_STREAM_CONFIG_CAPS range{};
    range.guid = FORMAT_VideoInfo;
    range.MinFrameInterval = StagedType::intervalOf(mode.rateNumerator, mode.rateDenominator);
    range.MaxFrameInterval =
        mode.lowestRate == 0 ? range.MinFrameInterval : StagedType::intervalOf(mode.lowestRate, 1);
    std::memcpy(caps, &range, sizeof range);
    *type = allocated(StagedType::of(mode));
    return S_OK;
}

HRESULT StagedFilterPin::Set(REFGUID /*set*/, DWORD /*id*/, LPVOID /*instance*/,
                             DWORD /*instanceBytes*/, LPVOID /*data*/, DWORD /*bytes*/)
{
    return E_NOTIMPL;
}

HRESULT StagedFilterPin::Get(REFGUID set, DWORD /*id*/, LPVOID /*instance*/,
                             DWORD /*instanceBytes*/, LPVOID data, DWORD bytes, DWORD* returned)
{
    if (!IsEqualGUID(set, AMPROPSETID_Pin) || bytes < sizeof(GUID)) {
        return E_NOTIMPL;
    }
    std::memcpy(data, &PIN_CATEGORY_CAPTURE, sizeof(GUID));
    *returned = sizeof(GUID);
    return S_OK;
}

HRESULT StagedFilterPin::QuerySupported(REFGUID set, DWORD /*id*/, DWORD* support)
{
    *support = CanBeRead;
    return IsEqualGUID(set, AMPROPSETID_Pin) ? S_OK : E_NOTIMPL;
}

IUnknown* StagedFilterPin::otherInterface(REFIID id)
{
    const std::scoped_lock lock(m_stage->mutex);
    if (id == __uuidof(IAMStreamConfig) && m_camera->canBeConfigured) {
        return static_cast<IAMStreamConfig*>(this);
    }
    return id == __uuidof(IKsPropertySet) ? static_cast<IKsPropertySet*>(this) : nullptr;
}

} // namespace TestSupport
