// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/NetworkPage.h"

#include "ui_NetworkPage.h"
#include "widgets/TipsWidget.h"

#include <CommEngine/SystemTestingResult.h>
#include <CoreEngine/CoreEngine.h>
#include <LumUtility/OperatingSystem.h>

#include <QLocale>

namespace {

// The elements of the measurement that are shown.
constexpr std::size_t LossElement = 0;
constexpr std::size_t DelayElement = 1;
constexpr int NotMeasured = -1;
constexpr int TooSlowMs = 500;
constexpr int WorstLossPercent = 70;

constexpr QRgb GoodColor = 0x009265;
constexpr QRgb BadColor = 0xFF4A27;

constexpr quint64 Kilo = 1024;
constexpr quint64 Mega = Kilo * Kilo;
constexpr quint64 Giga = Mega * Kilo;
constexpr quint64 Tera = Giga * Kilo;

QString inUnits(quint64 size, quint64 unit, const QString& name)
{
    constexpr int Decimals = 2;
    const double units = static_cast<double>(size) / static_cast<double>(unit);
    return QLocale().toString(units, 'f', Decimals) + name;
}

// A negative size, which stands for an unknown one, is among the largest.
QString sizeText(quint64 size)
{
    if (size < Kilo) {
        return QLocale().toString(size) + QStringLiteral(" BYTE");
    }
    if (size < Mega) {
        return inUnits(size, Kilo, QStringLiteral(" KB"));
    }
    if (size < Giga) {
        return inUnits(size, Mega, QStringLiteral(" MB"));
    }
    if (size < Tera) {
        return inUnits(size, Giga, QStringLiteral(" GB"));
    }
    return QStringLiteral(">1TB");
}

QString elidedWhereTooLong(const QString& text, Qt::TextElideMode mode, const QLabel& label)
{
    label.ensurePolished(); // so that the style sheet's font is measured
    return label.fontMetrics().elidedText(text, mode, label.width());
}

void showVerdict(QLabel* label, const QLabel* caption, bool isGood)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(isGood ? GoodColor : BadColor));
    label->setPalette(palette);
    const QString verdict =
        isGood ? qtTrId("ID_CheckResultPage_Normal") : qtTrId("ID_CheckResultPage_Abnormal");
    label->setAccessibleDescription(caption->text() + QLatin1Char(' ') + verdict);
}

} // namespace

NetworkPage::NetworkPage(QWidget* parent)
    : CheckPage(parent), ui(std::make_unique<Ui::NetworkPage>()), m_networkTest(this)
{
    ui->setupUi(this);
    auto* core = LumEngine::CoreEngine::instance();
    connect(core, &LumEngine::CoreEngine::signalUserInfoGet, this, &NetworkPage::fillAccountInfo);
    // Long texts must not widen the page.
    ui->label_Account->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    ui->label_Name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    fillAccountInfo();
    core->refreshUserInfo();
    fillMachineFacts();
    setCaptions();
    const qint64 cacheBytes = core->getCacheVolumeAvailableBytes();
    ui->label_AV->setText(sizeText(static_cast<quint64>(cacheBytes)));
    fillSessionFacts();

    ui->Btn_Next->setText(qtTrId("ID_Next"));
    connect(ui->Btn_Next, &QPushButton::clicked, this, [this] { finishCheck(true); });
    m_untested = false;
    addTips();
    connect(&m_networkTest, &CommandNetworkTest::networkInfoChanged, this,
            &NetworkPage::refreshNetworkInfo);
}

NetworkPage::~NetworkPage()
{
    ui.reset(); // before the measurement ends
}

bool NetworkPage::isPassed() const
{
    return m_delayOk && m_lossRateOk;
}

std::vector<QString> NetworkPage::problemList() const
{
    if (m_delayOk && m_lossRateOk) {
        return {};
    }
    return {qtTrId("ID_NetworkPage_NetworkSlowOrUnstable")};
}

void NetworkPage::fillAccountInfo()
{
    auto* core = LumEngine::CoreEngine::instance();
    QString account = core->accountName();
    if (account.isEmpty()) {
        // Only the fallback is cut where it is too long.
        account =
            elidedWhereTooLong(core->accountFallbackName(), Qt::ElideMiddle, *ui->label_Account);
    }
    ui->label_Account->setText(account);
    ui->label_Name->setText(elidedWhereTooLong(core->nickName(), Qt::ElideRight, *ui->label_Name));
}

void NetworkPage::fillMachineFacts()
{
    ui->label_OS->setText(OperatingSystem().getName(QStringLiteral(" ")));
    ui->label_CPU->setText(LumEngine::CoreEngine::instance()->getProcessorName());
}

void NetworkPage::setCaptions()
{
    ui->label_0->setText(qtTrId("ID_NetworkPage_Account"));
    ui->label_2->setText(qtTrId("ID_Nickname_NetworkPage"));
    ui->label_3->setText(qtTrId("ID_NetworkPage_OS"));
    ui->label_4->setText(qtTrId("ID_NetworkPage_CPU"));
    ui->label_5->setText(qtTrId("ID_NetworkPage_AvailableCacheSpace"));
    ui->label_6->setText(qtTrId("ID_NetworkPage_NetworkDelay"));
    ui->label_7->setText(qtTrId("ID_NetworkPage_LostRate"));
    ui->label_8->setText(qtTrId("ID_NewLogin_Server"));
    ui->label_9->setText(qtTrId("ID_NetworkPage_Client"));
    if (ui->label_0->text().isRightToLeft()) {
        ui->label_10->setAlignment(Qt::AlignRight | Qt::AlignVCenter); // as the others' letters do
    }
    // The values stand in another column; a screen reader has to be told what they are.
    const std::pair<const QLabel*, QLabel*> rows[] = {
        {ui->label_0, ui->label_Account}, {ui->label_2, ui->label_Name},
        {ui->label_3, ui->label_OS},      {ui->label_4, ui->label_CPU},
        {ui->label_5, ui->label_AV},      {ui->label_6, ui->label_ND},
        {ui->label_7, ui->label_LR},      {ui->label_8, ui->label_SVR},
        {ui->label_9, ui->label_CLT},     {ui->label_10, ui->label_CDN},
    };
    for (const auto& [caption, value] : rows) {
        value->setAccessibleDescription(caption->text());
    }
}

void NetworkPage::fillSessionFacts()
{
    auto* core = LumEngine::CoreEngine::instance();
    ui->label_SVR->setText(core->serverName());
    ui->label_CLT->setText(core->clientIpFromLB());
    const QString cdnFirst = core->cdnFirstPart();
    const QString cdnSecond = core->cdnSecondPart();
    ui->label_CDN->setText(cdnFirst + QLatin1Char('/') + cdnSecond);
}

void NetworkPage::addTips()
{
    const QString text = qtTrId("ID_NetworkPage_1") + QLatin1Char('\n') +
                         qtTrId("ID_NetworkPage_2") + QLatin1Char('\n') +
                         qtTrId("ID_NetworkPage_3");
    ui->horizontalLayout_3->addLayout(
        new TipsWidget(qtTrId("ID_NetworkPage_ClickHere"), text, this));
}

void NetworkPage::refreshNetworkInfo()
{
    if (!isVisible()) {
        return;
    }
    const int delay = std::get<DelayElement>(m_networkTest.getNetworkInfo());
    const bool isMeasured = delay != NotMeasured;
    const QString delayText =
        isMeasured ? QStringLiteral("%1ms").arg(delay) : QStringLiteral("N/A");
    SystemTestingResult::writeNetworkDelay(delayText);
    m_delayOk = isMeasured && delay < TooSlowMs;
    showVerdict(ui->label_ND, ui->label_6, m_delayOk);
    ui->label_ND->setText(delayText);

    const int loss = std::get<LossElement>(m_networkTest.getNetworkInfo());
    const QString lossText = QStringLiteral("%1%").arg(loss);
    ui->label_LR->setText(lossText);
    SystemTestingResult::writeFrameLossRate(lossText);
    m_lossRateOk = loss <= WorstLossPercent;
    showVerdict(ui->label_LR, ui->label_7, m_lossRateOk);
}
