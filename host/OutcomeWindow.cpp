// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/OutcomeWindow.h"

#include "host/Console.h"
#include "host/report/ReportWriter.h"
#include "host/report/TwinTexts.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/WholeFile.h"
#include "ui_OutcomeWindow.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QUrl>

namespace {

constexpr int Columns = 2;
constexpr int RowSpacing = 10; // above a check

template <typename Value>
QString textOf(Value value)
{
    return qtTrId(ReportWords::textId(value));
}

// A file that only its user can read, in a folder of its own. It stays for the program that shows
// it; the system clears the place.
QString writePage(const QByteArray& content, QString* problem)
{
    QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/envcheck-XXXXXX"));
    const QString page = folder.filePath(QStringLiteral("report.html"));
    *problem = folder.isValid() ? Platform::WholeFile::write(page, content) : folder.errorString();
    folder.setAutoRemove(!problem->isEmpty());
    return page;
}

} // namespace

OutcomeWindow::OutcomeWindow(const Report& report, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::OutcomeWindow>()), m_report(report)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_rows = new QGridLayout;
    m_rows->setColumnStretch(1, 1);
    ui->rows->insertLayout(0, m_rows);
    setTexts();
    for (const ReportCheck& check : m_report.checks) {
        addCheck(check);
    }
    ui->closeButton->setFocus();
    connect(ui->copyButton, &QPushButton::clicked, this, &OutcomeWindow::copy);
    connect(ui->saveButton, &QPushButton::clicked, this, &OutcomeWindow::chooseFile);
    connect(ui->openButton, &QPushButton::clicked, this, &OutcomeWindow::openReport);
    connect(ui->closeButton, &QPushButton::clicked, this, &OutcomeWindow::reject);
}

OutcomeWindow::~OutcomeWindow() = default;

void OutcomeWindow::setTexts()
{
    setWindowTitle(qtTrId("ID_Host_Window_Title"));
    ui->outcomeLabel->setText(textOf(m_report.outcome));
    ui->copyButton->setText(qtTrId("ID_Host_Window_Copy"));
    ui->saveButton->setText(qtTrId("ID_Host_Window_Save"));
    ui->openButton->setText(qtTrId("ID_Host_Window_Open"));
    ui->closeButton->setText(qtTrId("ID_Host_Window_Close"));
    ui->scrollArea->setAccessibleName(qtTrId("ID_Host_Window_Title"));
}

void OutcomeWindow::addCheck(const ReportCheck& check)
{
    if (m_rows->count() > 0) {
        m_rows->setRowMinimumHeight(m_rows->rowCount(), RowSpacing);
    }
    QLabel* const name = addLabel(textOf(check.kind), 0, 1);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    QLabel* const verdict = new QLabel(textOf(check.verdict), ui->contents);
    verdict->setTextFormat(Qt::PlainText);
    verdict->setFont(bold);
    m_rows->addWidget(verdict, m_rows->rowCount() - 1, 1);
    if (!check.device.isEmpty()) {
        addLabel(Console::plainLine(check.device), 0, Columns);
    }
    for (const Cause cause : check.causes) {
        addLabel(textOf(cause), 0, Columns);
    }
}

QLabel* OutcomeWindow::addLabel(const QString& text, int column, int span)
{
    auto* const label = new QLabel(text, ui->contents);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(span == Columns);
    m_rows->addWidget(label, m_rows->rowCount(), column, 1, span);
    return label;
}

void OutcomeWindow::copy()
{
    QGuiApplication::clipboard()->setText(
        ReportWriter::toText(m_report, TwinTexts(m_report.language)));
    tell("ID_Host_Window_Copied");
}

void OutcomeWindow::chooseFile()
{
    auto* const dialog = new QFileDialog(this, qtTrId("ID_Host_Window_Save"), QDir::homePath());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({QStringLiteral("HTML (*.html)"), QStringLiteral("TXT (*.txt)"),
                            QStringLiteral("JSON (*.json)")});
    dialog->setDefaultSuffix(QStringLiteral("html"));
    dialog->selectFile(QStringLiteral("envcheck.html"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.section(QLatin1String(" ("), 0, 0).toLower());
    });
    connect(dialog, &QFileDialog::fileSelected, this, &OutcomeWindow::save);
    dialog->open();
}

void OutcomeWindow::save(const QString& path)
{
    const QByteArray content =
        ReportWriter::toFormat(m_report, ReportWriter::formatOf(path), m_report.language);
    const Platform::Mailbox::Sender sender = m_mailbox.sender();
    Platform::FileWriter::replace(path, content, [this, sender, path](const QString& problem) {
        sender.post([this, path, isWritten = problem.isEmpty()] {
            tell(isWritten ? "ID_Host_Window_Saved" : "ID_Host_Window_NotWritten", path);
        });
    });
}

void OutcomeWindow::openReport()
{
    if (!m_page.isEmpty()) {
        showPage(m_page, {});
        return;
    }
    const QByteArray content =
        ReportWriter::toFormat(m_report, Options::Format::Html, m_report.language);
    const Platform::Mailbox::Sender sender = m_mailbox.sender();
    Platform::FileWriter::enqueue([this, sender, content] {
        QString problem;
        const QString page = writePage(content, &problem);
        sender.post([this, page, problem] { showPage(page, problem); });
    });
}

void OutcomeWindow::showPage(const QString& page, const QString& problem)
{
    if (!problem.isEmpty()) {
        tell("ID_Host_Window_NotWritten", QDir::tempPath());
        return;
    }
    m_page = page;
    const bool isOpened = QDesktopServices::openUrl(QUrl::fromLocalFile(page));
    tell(isOpened ? "ID_Host_ReportIsIn" : "ID_Host_Window_NotOpened", page);
}

// A path has no blanks to break a line at.
void OutcomeWindow::tell(const char* textId, const QString& path)
{
    QString shown = QDir::toNativeSeparators(path);
    shown.replace(QDir::separator(), QDir::separator() + QString(QChar(0x200B)));
    ui->messageLabel->setText(path.isEmpty() ? qtTrId(textId) : qtTrId(textId).arg(shown));
}
