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
#include <memory>
#include <unistd.h>

using namespace DialogStage;

namespace {

constexpr double MaxPercent = 0.5; // of a core, beyond what measures
constexpr int StartMs = 1000;      // streams open, lists are filled
constexpr double BytesOfMb = 1024.0 * 1024.0;

struct Page
{
    const char* label;
    const char* name;
    bool moves;
    bool hasStreams;
};

constexpr std::array<Page, 4> Pages = {{
    {"label_SystemCheck", "network, ten probes a second", true, false},
    {"label_CameraCheck", "camera, 30 frames a second", true, false},
    {"label_SoundCheck", "speaker, silent", false, false},
    {"label_MicCheck", "microphone, in a silent room", false, true},
}};

// Programs of the sound server that do nothing but keep streams as those of the page: a recording
// that is dropped, and silence that is played.
class BareStreams
{
public:
    BareStreams()
    {
        m_recording.setStandardOutputFile(QProcess::nullDevice());
        m_recording.start(QStringLiteral("parec"),
                          {QStringLiteral("--raw"), QStringLiteral("--format=float32le"),
                           QStringLiteral("--rate=48000"), QStringLiteral("--channels=2"),
                           QStringLiteral("--latency-msec=5")});
        m_playback.setStandardInputFile(QStringLiteral("/dev/zero"));
        m_playback.start(QStringLiteral("pacat"),
                         {QStringLiteral("--raw"), QStringLiteral("--format=float32le"),
                          QStringLiteral("--rate=48000"), QStringLiteral("--channels=1"),
                          QStringLiteral("--latency-msec=10"),
                          QStringLiteral("--process-time-msec=5")});
        m_recording.waitForStarted();
        m_playback.waitForStarted();
    }

    qint64 recordingId() const { return m_recording.processId(); }
    qint64 playbackId() const { return m_playback.processId(); }

private:
    TestSupport::TestProcess m_recording;
    TestSupport::TestProcess m_playback;
};

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
    std::printf("| page at rest | share of a core, %% | beyond network and streams (at most %.1f "
                "where nothing moves) | resident memory, MB |\n|---|---|---|---|\n"
                "| an empty QDialog | | | %.1f |\n",
                MaxPercent, memoryOfBareDialogMb());
    bool isGood = true;
    double ofNetwork = 0.0; // it goes on behind the other pages
    const auto share = [msOfPage](const ProcessorClock& clock) {
        return 100.0 * clock.elapsedMs() / msOfPage;
    };
    runDialog(application, [&] {
        for (const Page& page : Pages) {
            click(page.label);
            const auto streams = page.hasStreams ? std::make_unique<BareStreams>() : nullptr;
            wait(StartMs);
            const ProcessorClock recording(streams ? streams->recordingId() : 0);
            const ProcessorClock playback(streams ? streams->playbackId() : 0);
            const ProcessorClock clock(ProcessorClock::Of::Process);
            wait(msOfPage);
            const double percent = share(clock);
            ofNetwork = &page == Pages.data() ? percent : ofNetwork;
            const double ofStreams = streams ? share(recording) + share(playback) : 0.0;
            const double beyond = percent - ofNetwork - ofStreams;
            std::printf("| %s | %.2f | %.2f | %.1f |\n", page.name, percent, beyond,
                        memoryMb(QStringLiteral("self")));
            if (streams) {
                std::printf("| such streams alone, `parec` and `pacat` | %.2f | | |\n", ofStreams);
            }
            isGood = isGood && (page.moves || beyond <= MaxPercent);
        }
    });
    std::puts("");
    return isGood;
}
