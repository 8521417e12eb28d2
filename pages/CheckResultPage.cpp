// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CheckResultPage.h"

#include "ui_CheckResultPage.h"

#include <LumUtility/LumColor.h>

#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>

namespace {

enum Column { ItemColumn, DetailsColumn, ResultColumn };
enum Row { SystemRow, CameraRow, HeadphoneRow, MicrophoneRow, RowCount };

constexpr int ItemWidth = 82;
constexpr int DetailsWidth = 238;
constexpr int ResultWidth = 80;
constexpr int RowHeight = 40;

const QLatin1String ItemColor("#232323");
const QLatin1String PassedColor("#009265");

constexpr Qt::Alignment Left = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment Right = Qt::AlignRight | Qt::AlignVCenter;

} // namespace

CheckResultPage::CheckResultPage(QWidget* parent)
    : CheckPage(parent), ui(std::make_unique<Ui::CheckResultPage>())
{
    ui->setupUi(this);
    setupTable();
    ui->redetectButton->setText(qtTrId("ID_CheckResultPage_Redetect"));
    ui->okButton->setText(qtTrId("ID_OK"));
}

CheckResultPage::~CheckResultPage() = default;

void CheckResultPage::setPages(CheckPage* system, CheckPage* camera, CheckPage* headphone,
                               CheckPage* microphone)
{
    m_systemPage = system;
    m_cameraPage = camera;
    m_headphonePage = headphone;
    m_microphonePage = microphone;
}

bool CheckResultPage::isRedetect() const
{
    return m_redetect;
}

void CheckResultPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    fillRow(SystemRow, qtTrId("ID_CheckResultPage_System"), *m_systemPage);
    fillRow(CameraRow, qtTrId("ID_Camera_Check"), *m_cameraPage);
    fillRow(HeadphoneRow, qtTrId("ID_CheckResultPage_Headphone"), *m_headphonePage);
    fillRow(MicrophoneRow, qtTrId("ID_Microphone_Check"), *m_microphonePage);
    showSummary(m_systemPage->isPassed() && m_cameraPage->isPassed() &&
                m_headphonePage->isPassed() && m_microphonePage->isPassed());
}

void CheckResultPage::on_okButton_clicked()
{
    m_redetect = false;
    Q_EMIT complete();
}

void CheckResultPage::on_redetectButton_clicked()
{
    m_redetect = true;
    Q_EMIT complete();
}

void CheckResultPage::setupTable()
{
    QTableWidget* table = ui->tableWidget;
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    // The page itself isn't mirrored, but within the table's place the columns can be.
    table->setLayoutDirection(QGuiApplication::layoutDirection());
    table->horizontalScrollBar()->hide();
    table->verticalScrollBar()->hide();
    table->setColumnWidth(ItemColumn, ItemWidth);
    table->setColumnWidth(DetailsColumn, DetailsWidth);
    table->setColumnWidth(ResultColumn, ResultWidth);
    table->verticalHeader()->setMinimumSectionSize(RowHeight); // the form's would keep rows higher
    for (int row = 0; row < RowCount; ++row) {
        table->setRowHeight(row, RowHeight);
    }
}

void CheckResultPage::fillRow(int row, const QString& name, const CheckPage& page)
{
    const bool isPassed = page.isPassed();
    const QString color = isPassed ? QString(PassedColor) : LumColor::Red.name();
    const QString problems = isPassed ? QString() : page.problemText();
    const QString result =
        isPassed ? qtTrId("ID_CheckResultPage_Normal") : qtTrId("ID_CheckResultPage_Abnormal");
    setCell(row, ItemColumn, name, ItemColor, Left);
    setCell(row, DetailsColumn, problems, color, Left);
    setCell(row, ResultColumn, result, color, Right);
    // A screen reader reads the items below the labels. The details have none.
    ui->tableWidget->item(row, ItemColumn)->setData(Qt::AccessibleTextRole, name);
    QTableWidgetItem* resultItem = ui->tableWidget->item(row, ResultColumn);
    resultItem->setData(Qt::AccessibleTextRole, result);
    resultItem->setData(Qt::AccessibleDescriptionRole, problems);
}

void CheckResultPage::setCell(int row, int column, const QString& text, const QString& color,
                              Qt::Alignment alignment)
{
    auto* label = new QLabel(text);
    label->setAlignment(alignment);
    label->setStyleSheet(QStringLiteral("font-size: 12px; color: %1;").arg(color));
    ui->tableWidget->setCellWidget(row, column, label);
}

void CheckResultPage::showSummary(bool allPassed)
{
    ui->okButton->setVisible(allPassed);
    ui->lb_IconR->setVisible(allPassed);
    ui->redetectButton->setVisible(!allPassed);
    ui->lb_IconW->setVisible(!allPassed);
    ui->lb_Device->setText(allPassed ? qtTrId("ID_CheckResultPage_EquipmentNormal")
                                     : qtTrId("ID_CheckResultPage_EquipmentAbnormal"));
    ui->lb_DeviceTip->setText(allPassed ? qtTrId("ID_CheckResultPage_OK")
                                        : qtTrId("ID_CheckResultPage_CheckEquipmentAndRetest"));
    ui->tableWidget->setAccessibleName(ui->lb_Device->text());
}
