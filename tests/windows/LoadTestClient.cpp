// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/windows/LoadTestClient.h"

#include "host/tour/TourScript.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/LockEvents.h"
#include "tests/support/TimerTools.h"

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QTimer>
#include <QTranslator>

using Platform::ScriptedEngine;

namespace {

constexpr int DriveIntervalMs = 20;
constexpr int SecondMs = 1000;
constexpr int StepsPerHurriedSecond = 5;
constexpr int WriteTimeoutMs = 5000;

// Walks as the guided tour does, without its waits and its look at every text. In a hurry, the
// seconds that a page counts are a tenth as long, and sounds end soon.
class Walker : public QTimer
{
public:
    Walker(const QString& pictureFolder, bool hurries, ScriptedEngine& engine)
        : m_pictureFolder(pictureFolder),
          m_hurries(hurries),
          m_engine(engine),
          m_stops(TourScript::walk(&engine))
    {
        callOnTimeout(this, &Walker::step);
        start(DriveIntervalMs);
    }

private:
    void step()
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->findChild<QWidget*>(QStringLiteral("selfcheckContentPage"))) {
            return;
        }
        const DialogView view(dialog);
        if (m_next == m_stops.size()) {
            stop();
            view.click("okButton");
            return;
        }
        const TourStop& here = m_stops[m_next];
        if (!m_hasActed) {
            here.act(view);
            m_hasActed = true;
        } else if (here.isReady(view)) {
            if (!m_pictureFolder.isEmpty() && !here.name.isEmpty()) {
                view.picture().save(
                    QDir(m_pictureFolder).filePath(here.name + QLatin1String(".png")));
            }
            m_hasActed = false;
            ++m_next;
        } else if (m_hurries && ++m_waits % StepsPerHurriedSecond == 0) {
            endSecond(*dialog);
        }
    }

    void endSecond(const QWidget& dialog)
    {
        m_engine.scriptedSpeakers().finishPlayback();
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            for (const int timer : coarseTimers(widget, SecondMs)) {
                tick(widget, timer);
            }
        }
    }

    QString m_pictureFolder;
    bool m_hurries;
    ScriptedEngine& m_engine;
    std::vector<TourStop> m_stops;
    size_t m_next = 0;
    bool m_hasActed = false;
    int m_waits = 0; // steps in which a stop wasn't ready
};

struct Client
{
    int argumentCount = 1;
    QByteArray name = "client";
    char* arguments = name.data();
    QApplication application{argumentCount, &arguments};
    QTranslator texts;
    ScriptedEngine* engine = nullptr;
    std::unique_ptr<Walker> walker;
};

std::unique_ptr<Client> theClient;

} // namespace

bool clientStart()
{
    theClient = std::make_unique<Client>();
    makeLockEvents();
    QApplication::setQuitOnLastWindowClosed(false);
    return theClient->texts.load(QStringLiteral("envcheck_en"),
                                 QCoreApplication::applicationDirPath() +
                                     QStringLiteral("/translations")) &&
           QCoreApplication::installTranslator(&theClient->texts);
}

void clientWalkThrough(const wchar_t* pictureFolder, bool hurries)
{
    QString error;
    theClient->engine =
        &ScriptedEngine::install(*Platform::Scenario::read(QStringLiteral("all-well"), &error));
    theClient->walker =
        std::make_unique<Walker>(pictureFolder ? QString::fromWCharArray(pictureFolder) : QString(),
                                 hurries, *theClient->engine);
}

int clientOutcome()
{
    theClient->walker.reset();
    // Up to 10 MiB of them stay for icons that are gone, about 185 KiB a run: they are Qt's, and
    // would hide what the library leaves.
    QPixmapCache::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const bool isClean = theClient->engine->livingSessions() == 0 &&
                         QApplication::topLevelWidgets().isEmpty() &&
                         Platform::FileWriter::waitForWritten(WriteTimeoutMs);
    const auto posts = theClient->engine->reports().posts();
    Platform::EngineRegistry::uninstall();
    return isClean && posts.size() == 1 ? posts.first().code : 0;
}

void clientEnd()
{
    theClient.reset();
}
