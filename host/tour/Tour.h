// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/ContactSheet.h"
#include "host/tour/ScreenCamera.h"
#include "host/tour/TourScript.h"
#include "host/tour/WindowPlaces.h"

#include <QJsonArray>
#include <QObject>
#include <QStringList>
#include <QTimer>

// Walks through the check by itself, saves a picture of each stop and inspects the layout. The
// pictures are of the screen if there is a ScreenCamera, else of the program's windows. Start it
// before the dialog opens; it works in the event loop of the dialog. GUI thread only.
class Tour : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Tour)

public:
    // The folder for the pictures must exist.
    Tour(const QString& folder, std::vector<TourStop> stops);
    ~Tour() override;

    void start();
    // Call it when the dialog is closed: writes the contact sheet and findings.json. False with an
    // error if it fails.
    bool finish(const QString& title, QString* error);

    // Faults of the layout, stops that weren't reached and pictures that weren't written.
    QStringList problems() const { return m_problems; }
    int pictureCount() const { return m_pictureCount; }

private:
    void step();
    void inspect(const DialogView& view, const TourStop& stop, const QImage& screen);
    // The place of the popup in the dialog; empty without one.
    static QJsonObject inspectPlaces(const DialogView& view, const TourStop& stop,
                                     const WindowPlaces& places, QStringList* problems);
    void save(const TourStop& stop, const QPixmap& picture, QStringList problems,
              const QJsonObject& place);
    void goOn();
    bool writeFindings(const QString& title, QString* error) const;
    void leave(const DialogView& view);

    QString m_folder;
    std::vector<TourStop> m_stops;
    ContactSheet m_sheet;
    ScreenCamera m_camera;
    QTimer m_timer;
    size_t m_next = 0;
    int m_ticks = 0; // since the act; 0 before it
    int m_readyTicks = 0;
    int m_picturesOfStop = 0; // of the screen
    int m_pictureCount = 0;
    QStringList m_problems;
    QJsonArray m_findings; // per picture
};
