// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/DialogLeftovers.h"

#include "benchmarks/CalmHeap.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/SoundServer.h"

#include <QDir>
#include <QProcess>
#include <array>
#include <cstdio>
#include <map>
#include <unistd.h>

using namespace DialogStage;

namespace {

constexpr int WarmUpOpenings = 20;
constexpr int OpeningsPerLongOne = 25; // the others don't wait for frames and sound
constexpr double MaxGrowthBytes = 512.0;

int lineCount(const QByteArray& text)
{
    return text.isEmpty() ? 0 : text.trimmed().count('\n') + 1;
}

QStringList entries(const char* folder)
{
    return QDir(QLatin1String(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

// The targets of the open file descriptors, by number.
std::map<QString, QString> openDescriptors()
{
    std::map<QString, QString> result;
    for (const QString& name : entries("/proc/self/fd")) {
        const QString link = QLatin1String("/proc/self/fd/") + name;
        std::array<char, 256> target{};
        if (readlink(qPrintable(link), target.data(), target.size() - 1) > 0) {
            result[name] =
                QString::fromLocal8Bit(target.data()); // may be a socket, so no file path
        }
    }
    return result;
}

int pipeWireClients()
{
    QProcess list;
    list.start(QStringLiteral("pw-cli"), {QStringLiteral("ls"), QStringLiteral("Client")});
    list.waitForFinished(TimeoutMs);
    return list.readAllStandardOutput().count("type PipeWire:Interface:Client");
}

struct Possessions
{
    std::size_t heap = 0;
    std::map<QString, QString> descriptors;
    int threads = 0;
    int streams = 0;
    int soundClients = 0;
    int cameraClients = 0;

    static Possessions ofNow(TestSupport::SoundServer& server, TestSupport::CameraProcess& camera,
                             int calmMs)
    {
        CalmHeap::dropIcons(calmMs);
        camera.readAll(); // its output isn't growth of the dialog
        Possessions result;
        const auto list = [&server](const char* kind) {
            return lineCount(server.control(
                {QStringLiteral("list"), QStringLiteral("short"), QLatin1String(kind)}));
        };
        result.streams = list("sink-inputs") + list("source-outputs");
        result.soundClients = list("clients");
        result.cameraClients = pipeWireClients();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        result.descriptors = openDescriptors();
        result.threads = entries("/proc/self/task").size();
        result.heap = CalmHeap::bytes();
        return result;
    }
};

bool printLeftovers(const Possessions& before, const Possessions& after, int openings)
{
    bool isGood = true;
    const double growth =
        (static_cast<double>(after.heap) - static_cast<double>(before.heap)) / openings;
    std::printf("| after %d openings | before | after |\n|---|---|---|\n", openings);
    std::printf("| heap, bytes | %zu | %zu (%.0f an opening, at most %.0f) |\n", before.heap,
                after.heap, growth, MaxGrowthBytes);
    const auto row = [&isGood](const char* name, int count, int countAfter) {
        std::printf("| %s | %d | %d |\n", name, count, countAfter);
        isGood = isGood && count == countAfter;
    };
    row("file descriptors", static_cast<int>(before.descriptors.size()),
        static_cast<int>(after.descriptors.size()));
    row("threads", before.threads, after.threads);
    row("sound streams", before.streams, after.streams);
    row("clients of the sound server", before.soundClients, after.soundClients);
    row("clients of the camera server", before.cameraClients, after.cameraClients);
    std::puts("");
    for (const auto& [descriptor, target] : after.descriptors) {
        if (before.descriptors.count(descriptor) == 0) {
            std::printf("Left open: %s, %s\n", qPrintable(descriptor), qPrintable(target));
        }
    }
    return isGood && growth <= MaxGrowthBytes;
}

} // namespace

bool measureLeftovers(Application& application, TestSupport::SoundServer& server,
                      TestSupport::CameraProcess& camera, int openings, int calmMs)
{
    bool isGood = true;
    const auto openOnce = [&](int number) {
        const bool isLong = number % OpeningsPerLongOne == 0;
        runDialog(application, [&] {
            if (isLong) {
                isGood = showCamera() && playSound(server) && record(server) && isGood;
                return;
            }
            visitDevicePages();
        });
    };
    for (int i = 0; i < WarmUpOpenings; ++i) {
        openOnce(i);
    }
    const Possessions before = Possessions::ofNow(server, camera, calmMs);
    for (int i = 0; i < openings; ++i) {
        openOnce(i);
    }
    const Possessions after = Possessions::ofNow(server, camera, calmMs);
    return printLeftovers(before, after, openings) && isGood;
}
