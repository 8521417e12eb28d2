// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/DialogRest.h"

#include "benchmarks/ProcessorClock.h"
#include "tests/support/TestProcess.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <array>
#include <cstdio>
#include <unistd.h>

using namespace DialogStage;

namespace {

constexpr double MaxPercent = 0.5; // of a core
constexpr int StartMs = 1000;      // streams open, lists are filled
constexpr double BytesOfMb = 1024.0 * 1024.0;

struct Page
{
    const char* label;
    const char* name;
    bool moves;
};

constexpr std::array<Page, 4> Pages = {{
    {"label_SystemCheck", "network, ten probes a second", true},
    {"label_CameraCheck", "camera, 30 frames a second", true},
    {"label_SoundCheck", "speaker, silent", false},
    {"label_MicCheck", "microphone, in a silent room", false},
}};

void wait(int ms)
{
    QEventLoop loop; // QTest::qWait() wakes up a hundred times a second
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// Resident, with the shared pages of libraries.
double memoryMb(const QString& process)
{
    QFile file(QStringLiteral("/proc/%1/statm").arg(process));
    const QList<QByteArray> pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ') : QList<QByteArray>();
    return pages.size() < 2
               ? 0.0
               : pages[1].toDouble() * static_cast<double>(::sysconf(_SC_PAGESIZE)) / BytesOfMb;
}

double memoryOfBareDialogMb()
{
    TestSupport::TestProcess bare;
    bare.start(QCoreApplication::applicationDirPath() + QStringLiteral("/bare_dialog"),
               {QStringLiteral("622"), QStringLiteral("462")});
    bare.waitForStarted();
    wait(StartMs);
    return memoryMb(QString::number(bare.processId()));
}

} // namespace

bool measureRest(Application& application, int msOfPage)
{
    std::printf("| page at rest | share of a core, %% (at most %.1f where nothing moves) | "
                "resident memory, MB |\n|---|---|---|\n| an empty QDialog | | %.1f |\n",
                MaxPercent, memoryOfBareDialogMb());
    bool isGood = true;
    runDialog(application, [&] {
        for (const Page& page : Pages) {
            click(page.label);
            wait(StartMs);
            const ProcessorClock clock(ProcessorClock::Of::Process);
            wait(msOfPage);
            const double percent = 100.0 * clock.elapsedMs() / msOfPage;
            std::printf("| %s | %.2f | %.1f |\n", page.name, percent,
                        memoryMb(QStringLiteral("self")));
            isGood = isGood && (page.moves || percent <= MaxPercent);
        }
    });
    std::puts("");
    return isGood;
}
