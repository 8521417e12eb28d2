// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraStream.h"

#include "platform/backend/Log.h"
#include "platform/devices/camera/CameraOpening.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/windowscameras/WindowsCameraError.h"

#include <utility>

namespace Platform {

namespace {

constexpr std::chrono::milliseconds ReleaseTime(2000); // for the stream before
constexpr std::chrono::milliseconds WatchPeriod(200);
using Clock = std::chrono::steady_clock;
constexpr QSize UsualPreview(306, 172); // until the preview says its size

} // namespace

WindowsCameraStream::WindowsCameraStream(Order order, std::shared_ptr<WindowsCameraStream> before)
    : m_order(std::move(order)), m_before(std::move(before)), m_outputSize(QSize())
{
}

WindowsCameraStream::~WindowsCameraStream() = default;

void WindowsCameraStream::run()
{
    if (const auto before = std::exchange(m_before, nullptr)) {
        before->m_box->awaitEnd(ReleaseTime); // most cameras can be opened once only
    }
    if (!m_box->isStopped()) {
        tell([](CameraOpening& opening) { opening.startBegan(); });
        const std::unique_ptr<WindowsCamera> camera = m_order.make(m_box);
        const HRESULT error = play(*camera);
        if (FAILED(error) && !m_box->isStopped()) {
            fail(error); // before the camera is closed, which may hang
        }
    }
    m_box->end();
}

HRESULT WindowsCameraStream::play(WindowsCamera& camera)
{
    HRESULT error = start(camera);
    auto lastDelivery = Clock::now();
    while (SUCCEEDED(error) && !m_box->isStopped()) {
        const std::optional<SampleBox::Delivery> delivery = m_box->await(WatchPeriod);
        if (delivery) {
            lastDelivery = Clock::now();
            error = take(camera, *delivery);
        }
        error = SUCCEEDED(error) ? camera.check() : error;
        const bool isDead = Clock::now() - lastDelivery > SilenceLimit;
        if (isDead || bestMode(camera) != m_mode) { // or the preview is on a sharper screen now
            tell([](CameraOpening& opening) { opening.reopen(); });
            return S_OK;
        }
    }
    return error;
}

HRESULT WindowsCameraStream::start(WindowsCamera& camera)
{
    HRESULT error = camera.open();
    if (FAILED(error) || m_box->isStopped()) {
        return error;
    }
    m_order.slot->setModes(m_order.generation, camera.modes().text());
    m_mode = bestMode(camera);
    error = camera.start(m_mode);
    if (SUCCEEDED(error)) {
        tell([](CameraOpening& opening) { opening.streamRuns(); });
    }
    return error;
}

HRESULT WindowsCameraStream::take(WindowsCamera& camera, const SampleBox::Delivery& delivery)
{
    if (FAILED(delivery.error)) {
        return delivery.error;
    }
    const HRESULT error = camera.take(delivery.flags); // before the conversion, so that it goes on
    if (SUCCEEDED(error) && delivery.sample) {
        deliver(camera, *delivery.sample);
    }
    return error;
}

void WindowsCameraStream::deliver(const WindowsCamera& camera, CameraSample& sample)
{
    const CameraSample::Bytes bytes = sample.bytes();
    if (!bytes.data) {
        return;
    }
    const MediaFormat& format = camera.format();
    const QImage image = m_converter.convert(format.frame, format.view(bytes.data, bytes.size),
                                             format.orientation(), m_outputSize);
    if (image.isNull() && m_converter.hasGivenUp()) {
        tell([problem = m_converter.problem()](CameraOpening& opening) {
            opening.framesUnreadable(problem);
        });
    }
    if (!image.isNull() && !m_box->isStopped()) {
        deliver(image, camera);
    }
}

void WindowsCameraStream::deliver(const QImage& image, const WindowsCamera& camera)
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

void WindowsCameraStream::fail(HRESULT error)
{
    qCInfo(Log::camera, "The camera can't be used: %s",
           qUtf8Printable(WindowsCameraError::toString(error)));
    const DeviceState state = WindowsCameraError::failureOf(error);
    tell([state](CameraOpening& opening) { opening.streamEnded(state); });
}

// None if nothing that it offers can be shown; nor can that be chosen.
CameraMode WindowsCameraStream::bestMode(const WindowsCamera& camera) const
{
    const QSize preview = m_outputSize;
    return camera.modes()
        .forPreview(preview.isEmpty() ? UsualPreview : preview)
        .value_or(CameraMode());
}

template <typename Function>
void WindowsCameraStream::tell(Function function)
{
    m_order.sender.post([function, opening = m_order.opening] { function(*opening); });
}

} // namespace Platform
