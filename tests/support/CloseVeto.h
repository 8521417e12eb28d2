// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>

// A host that lets its widget close only after this is taken off as event filter.
class CloseVeto : public QObject
{
protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        event->setAccepted(event->type() != QEvent::Close);
        return event->type() == QEvent::Close;
    }
};
