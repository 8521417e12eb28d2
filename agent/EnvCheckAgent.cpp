// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"

#include "agent/MissingPieces.h"
#include "wizard/ContentPage.h"

#include <LumWidgets/LumCustomNormalDialog.h>

EnvCheckAgent* EnvCheckAgent::m_instance = nullptr;

EnvCheckAgent* EnvCheckAgent::instance()
{
    if (!m_instance) {
        m_instance = new EnvCheckAgent;
    }
    return m_instance;
}

void EnvCheckAgent::release()
{
    delete m_instance;
    m_instance = nullptr;
}

EnvCheckAgent::EnvCheckAgent(QObject* parent) : QObject(parent)
{
}

EnvCheckAgent::~EnvCheckAgent() = default;

void EnvCheckAgent::showEnvCheck(QWidget* parent)
{
    MissingPieces::report();
    // Nothing here may use the agent after exec(): the host may release it while the dialog runs.
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Type(0), parent, Qt::WindowFlags(), nullptr,
                                 false);
    auto* page = new ContentPage(nullptr);
    dialog.setCenterWidget(page, false);
    dialog.setTitleText(qtTrId("ID_Kestrel_SystemTesting"));
    // First of all in the dialog's loop. If the engine ended the session before, the frame has
    // closed already, and Qt keeps its deletion until this loop ends, which waits for that.
    const auto deleteIfClosed = [page] {
        if (!page->testAttribute(Qt::WA_DeleteOnClose)) {
            delete page;
        }
    };
    QMetaObject::invokeMethod(page, deleteIfClosed, Qt::QueuedConnection);
    dialog.exec();
}

void EnvCheckAgent::showKestrel()
{
    Q_EMIT signalShowMainWindow();
}
