// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/FrameSinkPin.h"

#include "platform/devices/directshow/CopiedSample.h"
#include "platform/devices/directshow/DirectShowFormat.h"

#include <mferror.h>
#include <thread>
#include <utility>

// Must follow windows.h.
#include <uuids.h>
#include <vfwmsgs.h>

namespace Platform {

namespace {

// Some filters leave it to who takes the frames to wait for the time of each, and would send
// without end.
constexpr std::chrono::milliseconds LeastInterval(8);

bool canBeShown(const MediaFormat& format)
{
    return format.frame.pixelFormat != PixelFormat::None && !format.frame.size.isEmpty();
}

bool isSame(const MediaFormat& a, const MediaFormat& b)
{
    return a.frame.pixelFormat == b.frame.pixelFormat && a.frame.size == b.frame.size &&
           a.stride == b.stride && a.isBottomUp == b.isBottomUp;
}

} // namespace

FrameSinkPin::FrameSinkPin(IBaseFilter& filter, std::shared_ptr<SampleBox> box)
    : FilterPin(filter, PINDIR_INPUT), m_box(std::move(box))
{
}

HRESULT FrameSinkPin::QueryInterface(REFIID id, void** object)
{
    return FilterPin::QueryInterface(id, object);
}

HRESULT FrameSinkPin::ReceiveConnection(IPin* from, const AM_MEDIA_TYPE* type)
{
    if (!from || !type) {
        return E_POINTER;
    }
    if (isConnected()) {
        return VFW_E_ALREADY_CONNECTED;
    }
    const MediaFormat format = DirectShowFormat::of(*type);
    if (!canBeShown(format)) {
        return VFW_E_TYPE_NOT_ACCEPTED;
    }
    m_format = format;
    setConnection(*from, *type);
    return S_OK;
}

HRESULT FrameSinkPin::QueryAccept(const AM_MEDIA_TYPE* type)
{
    const MediaFormat format = DirectShowFormat::of(*type);
    return canBeShown(format) && (!isConnected() || isSame(format, m_format)) ? S_OK : S_FALSE;
}

HRESULT FrameSinkPin::EndOfStream()
{
    m_box->put({MF_E_END_OF_STREAM});
    return S_OK;
}

HRESULT FrameSinkPin::GetAllocator(IMemAllocator** allocator)
{
    return CoCreateInstance(CLSID_MemoryAllocator, nullptr, CLSCTX_INPROC_SERVER,
                            __uuidof(IMemAllocator), reinterpret_cast<void**>(allocator));
}

HRESULT FrameSinkPin::NotifyAllocator(IMemAllocator* /*allocator*/, BOOL /*isReadOnly*/)
{
    return S_OK; // it is the camera's business
}

HRESULT FrameSinkPin::GetAllocatorRequirements(ALLOCATOR_PROPERTIES* /*wanted*/)
{
    return E_NOTIMPL; // none
}

HRESULT FrameSinkPin::Receive(IMediaSample* sample)
{
    AM_MEDIA_TYPE* changed = nullptr;
    if (sample->GetMediaType(&changed) == S_OK && changed) {
        const MediaType type = MediaType::taken(changed);
        if (!isSame(DirectShowFormat::of(type.get()), m_format)) {
            m_box->put({VFW_E_TYPE_NOT_ACCEPTED});
            return VFW_E_TYPE_NOT_ACCEPTED;
        }
    }
    std::this_thread::sleep_until(m_nextFrame);
    m_nextFrame = std::chrono::steady_clock::now() + LeastInterval;
    BYTE* data = nullptr;
    const long size = sample->GetActualDataLength();
    if (SUCCEEDED(sample->GetPointer(&data)) && data && size > 0) {
        m_box->put({S_OK, 0, std::make_unique<CopiedSample>(data, static_cast<std::size_t>(size))});
    }
    return S_OK;
}

HRESULT FrameSinkPin::ReceiveMultiple(IMediaSample** samples, long count, long* processed)
{
    HRESULT result = S_OK;
    *processed = 0;
    while (*processed < count && result == S_OK) {
        result = Receive(samples[*processed]);
        ++*processed;
    }
    return result;
}

IUnknown* FrameSinkPin::otherInterface(REFIID id)
{
    return id == __uuidof(IMemInputPin) ? static_cast<IMemInputPin*>(this) : nullptr;
}

} // namespace Platform
