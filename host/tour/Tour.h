// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/ContactSheet.h"
#include "host/tour/TourScript.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

// Walks through the check by itself, saves a picture of each stop and looks for unreadable texts.
// Start it before the dialog opens; it works in the event loop of the dialog. GUI thread only.
class Tour : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Tour)

public:
    // The folder for the pictures must exist.
    Tour(const QString& folder, std::vector<TourStop> stops);
    ~Tour() override;

    void start();
    // Call it when the dialog is closed: writes the contact sheet. False with an error if it fails.
    bool finish(const QString& title, QString* error);

    // Unreadable texts, stops that weren't reached and pictures that weren't written.
    QStringList problems() const { return m_problems; }
    int pictureCount() const { return m_pictureCount; }

private:
    void step();
    void takePicture(const DialogView& view, const TourStop& stop);
    void leave(const DialogView& view);

    QString m_folder;
    std::vector<TourStop> m_stops;
    ContactSheet m_sheet;
    QTimer m_timer;
    QElapsedTimer m_sinceAct;
    size_t m_next = 0;
    int m_readyTicks = 0;
    int m_pictureCount = 0;
    QStringList m_problems;
};
