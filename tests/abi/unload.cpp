// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// Loads the library, runs the check, unloads it, again and again: nothing may stay behind.
// Usage: unload LIBRARY
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QTimer>
#include <dlfcn.h>
#include <unistd.h>

namespace {

constexpr int WarmUpCycles = 20;
constexpr int Cycles = 100;
constexpr int DialogMs = 20;
constexpr int WriteTimeoutMs = 5000;
constexpr qint64 MostGrowthKiB = 4096;

int entries(const char* folder)
{
    return static_cast<int>(QDir(QLatin1String(folder))
                                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                                .size());
}

qint64 residentKiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}

template <typename Function>
Function resolve(void* library, const char* name)
{
    auto function = reinterpret_cast<Function>(dlsym(library, name));
    if (!function) {
        qFatal("%s", dlerror());
    }
    return function;
}

bool runOnce(const char* path, const Platform::Scenario& scenario)
{
    void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        QTextStream(stderr) << dlerror() << '\n';
        return false;
    }
    const auto instance = resolve<QObject* (*)()>(library, "_ZN13EnvCheckAgent8instanceEv");
    const auto show = resolve<void (*)(QObject*, QWidget*)>(
        library, "_ZN13EnvCheckAgent12showEnvCheckEP7QWidget");
    const auto release = resolve<void (*)()>(library, "_ZN13EnvCheckAgent7releaseEv");

    Platform::ScriptedEngine& engine = Platform::ScriptedEngine::install(scenario);
    bool wasShown = false;
    QTimer::singleShot(DialogMs, &engine.facts(), [&engine, &wasShown] {
        wasShown = QApplication::activeModalWidget() != nullptr;
        engine.facts().breakDown();
    });
    show(instance(), nullptr);
    release();
    Platform::FileWriter::waitForWritten(WriteTimeoutMs);
    Platform::EngineRegistry::uninstall();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    dlclose(library);
    if (void* still = dlopen(path, RTLD_NOW | RTLD_NOLOAD)) {
        dlclose(still);
        QTextStream(stderr) << "The library is still loaded after dlclose()\n";
        return false;
    }
    return wasShown;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QString error;
    const auto scenario = Platform::Scenario::read(QStringLiteral("all-well"), &error);
    if (argc != 2 || !scenario) {
        QTextStream(stderr) << "Usage: unload LIBRARY " << error << '\n';
        return 2;
    }
    int threads = 0;
    int files = 0;
    qint64 resident = 0;
    for (int cycle = 0; cycle < WarmUpCycles + Cycles; ++cycle) {
        if (cycle == WarmUpCycles) {
            threads = entries("/proc/self/task");
            files = entries("/proc/self/fd");
            resident = residentKiB();
        }
        if (!runOnce(argv[1], *scenario)) {
            QTextStream(stderr) << "Cycle " << cycle << " failed\n";
            return 1;
        }
    }
    const qint64 growth = residentKiB() - resident;
    const int moreThreads = entries("/proc/self/task") - threads;
    const int moreFiles = entries("/proc/self/fd") - files;
    QTextStream(stdout) << Cycles << " cycles: threads " << moreThreads << " more, descriptors "
                        << moreFiles << " more, resident memory " << growth << " KiB more\n";
    return moreThreads <= 0 && moreFiles == 0 && growth <= MostGrowthKiB ? 0 : 1;
}
