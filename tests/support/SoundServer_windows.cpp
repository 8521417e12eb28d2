// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/EndpointMirror.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/devices/wasapi/SystemAudio.h"
#include "tests/support/SoundServer.h"

#include <QTest>
#include <thread>

// Must follow windows.h.
#include <audioclient.h>

namespace TestSupport {

struct SoundServer::System
{
    NativeSoundServer server;
    EndpointMirror mirror;
    bool isShown = false;
};

namespace {

constexpr HRESULT Down = AUDCLNT_E_SERVICE_NOT_RUNNING;

// Wine asks for devices once, and can open those later that were there then, also if they were away
// meanwhile. So all that a test may ever plug are there for a moment.
bool introduceDevices(SoundServer& server)
{
    const QString last = QStringLiteral("Test Microphone B");
    server.plugSpeaker(QStringLiteral("speaker_a"), QStringLiteral("Test Speaker A"));
    server.plugSpeaker(QStringLiteral("speaker_b"), QStringLiteral("Test Speaker B"));
    server.plugSpeaker(QStringLiteral("voice"), QStringLiteral("Voice"));
    server.plugMicrophone(QStringLiteral("microphone_a"), QStringLiteral("Test Microphone A"));
    server.plugMicrophone(QStringLiteral("microphone_b"), last);
    bool isKnown = false;
    std::thread asking([&isKnown, &last] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        {
            Platform::ComPointer<IMMDeviceEnumerator> enumerator;
            isKnown = SUCCEEDED(SystemAudio::createEnumerator(enumerator)) &&
                      SystemAudio::find(*enumerator.get(), eCapture, last);
        }
        CoUninitialize();
    });
    asking.join();
    for (const char* module : {"module-remap-source", "module-null-sink"}) {
        server.unplug(module);
    }
    return isKnown;
}

} // namespace

void SoundServer::addTestRows()
{
    QTest::addColumn<Kind>("server");
    QTest::newRow("PulseAudio") << Kind::PulseAudio;
}

SoundServer::SoundServer(Kind kind) : m_kind(kind), m_system(std::make_unique<System>())
{
    endpoints().refuseEnumerator(Down);
}

SoundServer::~SoundServer() = default;

bool SoundServer::launch()
{
    if (!m_system->server.launch()) {
        return false;
    }
    static const bool areKnown = introduceDevices(*this);
    return areKnown;
}

void SoundServer::publish()
{
    m_system->isShown = true;
    const QString json = QStringLiteral("--format=json");
    const QByteArray list = NativeSoundServer::control({json, QStringLiteral("list")});
    const QByteArray info = NativeSoundServer::control({json, QStringLiteral("info")});
    if (!list.isEmpty() && !info.isEmpty()) {
        m_system->mirror.show(list, info);
        endpoints().refuseEnumerator(S_OK);
    }
}

void SoundServer::kill()
{
    m_system->isShown = false;
    m_system->server.kill();
    endpoints().refuseEnumerator(Down);
}

// With the service, every question to Windows' endpoints hangs.
void SoundServer::freeze()
{
    m_system->server.freeze();
    endpoints().setHanging(true);
}

void SoundServer::thaw()
{
    m_system->server.thaw();
    endpoints().setHanging(false);
}

QByteArray SoundServer::control(const QStringList& arguments)
{
    const QByteArray result = NativeSoundServer::control(arguments);
    const QString command = arguments.first();
    const bool isQuestion = command.startsWith(QLatin1String("get-")) ||
                            command == QLatin1String("list") || command == QLatin1String("info");
    if (m_system->isShown && !isQuestion) {
        publish();
    }
    return result;
}

// Told from those of the test by the program that has them.
int SoundServer::streams(const char* list, const char* /*name*/)
{
    return control({QStringLiteral("list"), QLatin1String(list)})
        .count("application.process.binary = \"wine");
}

StagedAudio& SoundServer::endpoints()
{
    return m_system->mirror.endpoints();
}

} // namespace TestSupport
