// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/WasapiEndpoint.h"

#include "platform/devices/windows/DriverThread.h"
#include "tests/devices/wasapi/SystemAudio.h"

#include <future>
#include <memory>

using Platform::ComPointer;
using Platform::DriverThread::Priority;

namespace TestSupport {

namespace {

QString find(EDataFlow flow, const QString& name)
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    ComPointer<IMMDevice> device;
    if (SUCCEEDED(SystemAudio::createEnumerator(enumerator))) {
        device = SystemAudio::find(*enumerator.get(), flow, name);
    }
    LPWSTR text = nullptr;
    const QString id =
        device && SUCCEEDED(device->GetId(&text)) ? QString::fromWCharArray(text) : QString();
    CoTaskMemFree(text);
    return id;
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
