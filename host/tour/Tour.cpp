// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/Tour.h"

#include "host/tour/LayoutInspector.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>

namespace {

constexpr int TickMs = 40;
constexpr int SettleTicks = 3; // a widget that becomes ready is painted a moment later
constexpr qint64 StopDeadlineMs = 15000;

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
    return m_sheet.write(title, error);
}

void Tour::step()
{
    QWidget* dialog = openDialog();
    if (!dialog) {
        return;
    }
    const DialogView view(dialog);
    if (m_next == m_stops.size()) {
        leave(view);
        return;
    }
    const TourStop& stop = m_stops[m_next];
    if (!m_sinceAct.isValid()) {
        stop.act(view);
        m_sinceAct.start();
        m_readyTicks = 0;
        return;
    }
    m_readyTicks = stop.isReady(view) ? m_readyTicks + 1 : 0;
    const bool isLate = m_sinceAct.elapsed() > StopDeadlineMs;
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
    if (!stop.name.isEmpty()) {
        takePicture(view, stop);
    }
    m_sinceAct.invalidate();
    ++m_next;
}

void Tour::takePicture(const DialogView& view, const TourStop& stop)
{
    QStringList problems;
    for (const QWidget* window : view.windows()) {
        problems += LayoutInspector::inspect(window);
    }
    const QString file = stop.name + QLatin1String(".png");
    if (!view.picture().save(m_folder + QLatin1Char('/') + file, "PNG")) {
        problems << QStringLiteral("the picture can't be written to %1").arg(m_folder);
    } else {
        ++m_pictureCount;
    }
    m_sheet.add(file, stop.name, problems);
    for (const QString& problem : problems) {
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
