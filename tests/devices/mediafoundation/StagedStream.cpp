// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/mediafoundation/StagedStream.h"

#include "tests/devices/windowscameras/CameraStage.h"

#include <cstring>

using Platform::ComPointer;

namespace TestSupport {

namespace {

ComPointer<IMFMediaBuffer> bufferOf(const QByteArray& bytes)
{
    const auto size = static_cast<DWORD>(bytes.size());
    ComPointer<IMFMediaBuffer> buffer;
    MFCreateMemoryBuffer(size, buffer.put());
    BYTE* memory = nullptr;
    buffer->Lock(&memory, nullptr, nullptr);
    std::memcpy(memory, bytes.constData(), size);
    buffer->Unlock();
    buffer->SetCurrentLength(size);
    return buffer;
}

} // namespace

StagedStream::StagedStream(const std::shared_ptr<CameraStage>& stage, IMFMediaSource& source,
                           IMFStreamDescriptor& descriptor)
    : EventGenerator(stage), m_source(source), m_descriptor(descriptor)
{
}

HRESULT StagedStream::GetMediaSource(IMFMediaSource** source)
{
    m_source.AddRef();
    *source = &m_source;
    return S_OK;
}

HRESULT StagedStream::GetStreamDescriptor(IMFStreamDescriptor** descriptor)
{
    m_descriptor.AddRef();
    *descriptor = &m_descriptor;
    return S_OK;
}

HRESULT StagedStream::RequestSample(IUnknown* token)
{
    Request request;
    if (token) {
        token->AddRef();
        *request.token.put() = token;
    }
    const std::scoped_lock lock(m_mutex);
    m_requests.push_back(std::move(request));
    return S_OK;
}

void StagedStream::deliver(const QByteArray& frame, LONGLONG time, LONGLONG duration)
{
    Request request;
    if (!takeRequest(request)) {
        return;
    }
    ComPointer<IMFSample> sample;
    MFCreateSample(sample.put());
    sample->AddBuffer(bufferOf(frame).get());
    sample->SetSampleTime(time);
    sample->SetSampleDuration(duration);
    if (request.token) {
        sample->SetUnknown(MFSampleExtension_Token, request.token.get());
    }
    tellOf(MEMediaSample, sample.get());
}

bool StagedStream::takeRequest(Request& request)
{
    const std::scoped_lock lock(m_mutex);
    if (m_requests.empty()) {
        return false;
    }
    request = std::move(m_requests.front());
    m_requests.pop_front();
    return true;
}

} // namespace TestSupport
