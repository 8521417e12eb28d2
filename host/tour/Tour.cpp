// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/Tour.h"

#include "host/tour/LayoutInspector.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QSaveFile>
#include <QStyle>

namespace {

constexpr int TickMs = 40;
constexpr int SettleTicks = 3; // a widget that becomes ready is painted a moment later
constexpr int StopDeadlineMs = 15000;
constexpr int DeadlineTicks = StopDeadlineMs / TickMs; // a machine that stands still doesn't count
// A compositor shows a window some time after Qt calls it visible.
constexpr int MostPicturesOfStop = 10;

// The dialog of the check, also while a question is open.
QWidget* openDialog()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->findChild<QWidget*>("selfcheckContentPage")) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

Tour::Tour(const QString& folder, std::vector<TourStop> stops)
    : m_folder(folder), m_stops(std::move(stops)), m_sheet(folder)
{
    connect(&m_timer, &QTimer::timeout, this, &Tour::step);
}

Tour::~Tour() = default;

void Tour::start()
{
    m_timer.start(TickMs);
}

bool Tour::finish(const QString& title, QString* error)
{
    m_timer.stop();
    for (; m_next < m_stops.size(); ++m_next) {
        if (!m_stops[m_next].name.isEmpty()) {
            m_problems << QStringLiteral("%1: not reached").arg(m_stops[m_next].name);
        }
    }
    return m_sheet.write(title, error) && writeFindings(title, error);
}

bool Tour::writeFindings(const QString& title, QString* error) const
{
    const QJsonObject all{
        {QStringLiteral("title"), title},
        {QStringLiteral("platform"), QGuiApplication::platformName()},
        {QStringLiteral("style"), QApplication::style()->objectName()},
        {QStringLiteral("pictures"), m_findings},
        {QStringLiteral("problems"), QJsonArray::fromStringList(m_problems)},
    };
    QSaveFile file(m_folder + QLatin1String("/findings.json"));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(all).toJson());
    }
    if (!file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

void Tour::step()
{
    QWidget* dialog = openDialog();
    if (!dialog || m_camera.isBusy()) {
        return;
    }
    const DialogView view(dialog);
    if (m_next == m_stops.size()) {
        leave(view);
        return;
    }
    const TourStop& stop = m_stops[m_next];
    if (m_ticks == 0) {
        stop.act(view);
        m_ticks = 1;
        m_readyTicks = 0;
        return;
    }
    ++m_ticks;
    m_readyTicks = stop.isReady(view) ? m_readyTicks + 1 : 0;
    const bool isLate = m_ticks > DeadlineTicks;
    if (m_readyTicks < SettleTicks && !isLate) {
        return;
    }
    if (isLate) {
        m_problems << QStringLiteral("%1 (stop %2): did not become ready in %3 s, %4 windows")
                          .arg(stop.name)
                          .arg(m_next + 1)
                          .arg(StopDeadlineMs / 1000)
                          .arg(view.windows().size());
    }
    if (stop.name.isEmpty()) {
        goOn();
    } else if (ScreenCamera::isThere()) {
        m_camera.take([this](const QImage& screen) {
            if (QWidget* shown = openDialog()) {
                inspect(DialogView(shown), m_stops[m_next], screen);
            }
        });
    } else {
        inspect(view, stop, {});
    }
}

void Tour::goOn()
{
    m_ticks = 0;
    m_picturesOfStop = 0;
    ++m_next;
}

void Tour::inspect(const DialogView& view, const TourStop& stop, const QImage& screen)
{
    const bool isWithScreen = ScreenCamera::isThere();
    const WindowPlaces places =
        isWithScreen ? WindowPlaces::onScreen(view, screen) : WindowPlaces::asToldByQt(view);
    const bool isShown = !places.dialog.isEmpty() && (!stop.anchor || !places.popup.isEmpty());
    if (isWithScreen && !isShown && ++m_picturesOfStop < MostPicturesOfStop) {
        return; // the next step takes another one
    }
    QStringList problems;
    const QWidgetList windows = view.windows();
    for (const QWidget* window : windows) {
        problems += LayoutInspector::inspect(window);
    }
    const QJsonObject place = inspectPlaces(view, stop, places, &problems);
    const QPixmap picture =
        isWithScreen ? QPixmap::fromImage(places.cutOut(screen)) : view.picture();
    if (!QApplication::activePopupWidget()) {
        problems += LayoutInspector::inspectFocus(windows.last());
    }
    save(stop, picture, problems, place);
    goOn();
}

QJsonObject Tour::inspectPlaces(const DialogView& view, const TourStop& stop,
                                const WindowPlaces& places, QStringList* problems)
{
    const QWidget* anchor = stop.anchor ? stop.anchor(view) : nullptr;
    if (ScreenCamera::isThere() && places.dialog.isEmpty()) {
        *problems << QStringLiteral("far: the dialog isn't on the picture of the screen");
        return {};
    }
    if (stop.anchor && (!anchor || places.popup.isEmpty())) {
        *problems << QStringLiteral("far: the popup isn't there");
        return {};
    }
    if (!anchor) {
        return {};
    }
    *problems += LayoutInspector::inspectPopup(places.popup, places.of(*anchor), places.scale);
    const QPointF offset = QPointF(places.popup.topLeft() - places.dialog.topLeft());
    return {{QStringLiteral("x"), offset.x() / places.scale},
            {QStringLiteral("y"), offset.y() / places.scale}};
}

void Tour::save(const TourStop& stop, const QPixmap& picture, QStringList problems,
                const QJsonObject& place)
{
    const QString file = stop.name + QLatin1String(".png");
    if (!picture.save(m_folder + QLatin1Char('/') + file, "PNG")) {
        problems << QStringLiteral("the picture can't be written to %1").arg(m_folder);
    } else {
        ++m_pictureCount;
    }
    m_sheet.add(file, stop.name, problems);
    m_findings.append(
        QJsonObject{{QStringLiteral("picture"), file},
                    {QStringLiteral("problems"), QJsonArray::fromStringList(problems)},
                    {QStringLiteral("popup"), place}});
    for (const QString& problem : qAsConst(problems)) {
        m_problems << QStringLiteral("%1: %2").arg(stop.name, problem);
    }
}

void Tour::leave(const DialogView& view)
{
    // OK ends the dialog. If a check failed there is no OK: close the dialog as a user would.
    m_timer.stop();
    if (view.isEnabled("okButton")) {
        view.click("okButton");
        return;
    }
    QMetaObject::invokeMethod(view.dialog(), &QWidget::close, Qt::QueuedConnection);
    QTimer::singleShot(StopDeadlineMs / 15, this, [] {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            question->button(QMessageBox::Yes)->click();
        }
    });
}
