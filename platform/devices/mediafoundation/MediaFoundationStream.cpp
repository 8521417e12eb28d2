// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundationStream.h"

#include "platform/backend/Log.h"
#include "platform/devices/camera/CameraOpening.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/mediafoundation/MediaFoundationCamera.h"
#include "platform/devices/mediafoundation/MediaFoundationError.h"

#include <mferror.h>
#include <utility>

namespace Platform {

namespace {

constexpr std::chrono::milliseconds ReleaseTime(2000); // for the stream before
constexpr std::chrono::milliseconds WatchPeriod(200);
using Clock = std::chrono::steady_clock;
constexpr QSize UsualPreview(306, 172); // until the preview says its size
constexpr DWORD FormatFlags = static_cast<DWORD>(MF_SOURCE_READERF_NATIVEMEDIATYPECHANGED) |
                              static_cast<DWORD>(MF_SOURCE_READERF_CURRENTMEDIATYPECHANGED);

} // namespace

MediaFoundationStream::MediaFoundationStream(Order order,
                                             std::shared_ptr<MediaFoundationStream> before)
    : m_order(std::move(order)), m_before(std::move(before)), m_outputSize(QSize())
{
}

MediaFoundationStream::~MediaFoundationStream() = default;

void MediaFoundationStream::run()
{
    if (const auto before = std::exchange(m_before, nullptr)) {
        before->m_box->awaitEnd(ReleaseTime); // most cameras can be opened once only
    }
    if (!m_box->isStopped()) {
        tell([](CameraOpening& opening) { opening.startBegan(); });
        MediaFoundationCamera camera(m_order.functions, m_box);
        const HRESULT error = play(camera);
        if (FAILED(error) && !m_box->isStopped()) {
            fail(error); // before the camera is closed, which may hang
        }
    }
    m_box->end();
}

HRESULT MediaFoundationStream::play(MediaFoundationCamera& camera)
{
    HRESULT error = start(camera);
    auto lastDelivery = Clock::now();
    while (SUCCEEDED(error) && !m_box->isStopped()) {
        const std::optional<SampleBox::Delivery> delivery = m_box->await(WatchPeriod);
        if (delivery) {
            lastDelivery = Clock::now();
            error = take(camera, *delivery);
        }
        const bool isDead = Clock::now() - lastDelivery > SilenceLimit;
        if (isDead || bestMode(camera) != m_mode) { // or the preview is on a sharper screen now
            tell([](CameraOpening& opening) { opening.reopen(); });
            return S_OK;
        }
    }
    return error;
}

HRESULT MediaFoundationStream::start(MediaFoundationCamera& camera)
{
    HRESULT error = camera.open(m_order.link);
    if (FAILED(error) || m_box->isStopped()) {
        return error;
    }
    m_order.slot->setModes(m_order.generation, camera.modes().text());
    m_mode = bestMode(camera);
    error = camera.choose(m_mode);
    if (SUCCEEDED(error)) {
        error = camera.request();
    }
    if (SUCCEEDED(error)) {
        tell([](CameraOpening& opening) { opening.streamRuns(); });
    }
    return error;
}

HRESULT MediaFoundationStream::take(MediaFoundationCamera& camera,
                                    const SampleBox::Delivery& delivery)
{
    if (FAILED(delivery.error)) {
        return delivery.error;
    }
    if ((delivery.flags & MF_SOURCE_READERF_ERROR) != 0) {
        return E_FAIL;
    }
    if ((delivery.flags & MF_SOURCE_READERF_ENDOFSTREAM) != 0) {
        return MF_E_END_OF_STREAM;
    }
    HRESULT error = S_OK;
    if ((delivery.flags & FormatFlags) != 0) {
        error = camera.readFormat();
    }
    if (SUCCEEDED(error)) {
        error = camera.request(); // before the conversion, so that the camera can go on
    }
    if (SUCCEEDED(error) && delivery.sample) {
        deliver(camera, *delivery.sample.get());
    }
    return error;
}

void MediaFoundationStream::deliver(const MediaFoundationCamera& camera, IMFSample& sample)
{
    ComPointer<IMFMediaBuffer> buffer;
    BYTE* data = nullptr;
    DWORD bytes = 0;
    if (FAILED(sample.ConvertToContiguousBuffer(buffer.put())) ||
        FAILED(buffer->Lock(&data, nullptr, &bytes))) {
        return;
    }
    const MediaFormat& format = camera.format();
    const QImage image = m_converter.convert(format.frame, format.view(data, bytes),
                                             format.orientation(), m_outputSize);
    buffer->Unlock();
    if (image.isNull() && m_converter.hasGivenUp()) {
        tell([problem = m_converter.problem()](CameraOpening& opening) {
            opening.framesUnreadable(problem);
        });
    }
    if (!image.isNull() && !m_box->isStopped()) {
        deliver(image, camera);
    }
}

void MediaFoundationStream::deliver(const QImage& image, const MediaFoundationCamera& camera)
{
    if (!m_hasFrame) {
        m_hasFrame = true;
        m_order.slot->setRate(m_order.generation, camera.format().rate.value());
        tell([](CameraOpening& opening) { opening.frameArrived(); });
    }
    if (m_order.slot->put(m_order.generation, image, camera.format().frame.size)) {
        m_order.listener->frameArrived();
    }
}

void MediaFoundationStream::fail(HRESULT error)
{
    qCInfo(Log::camera, "The camera can't be used: %s",
           qUtf8Printable(MediaFoundationError::toString(error)));
    const DeviceState state = MediaFoundationError::failureOf(error);
    tell([state](CameraOpening& opening) { opening.streamEnded(state); });
}

// None if nothing that it offers can be shown; nor can that be chosen.
CameraMode MediaFoundationStream::bestMode(const MediaFoundationCamera& camera) const
{
    const QSize preview = m_outputSize;
    return camera.modes()
        .forPreview(preview.isEmpty() ? UsualPreview : preview)
        .value_or(CameraMode());
}

template <typename Function>
void MediaFoundationStream::tell(Function function)
{
    m_order.sender.post([function, opening = m_order.opening] { function(*opening); });
}

} // namespace Platform
