// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/NetworkPage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/PageTools.h"
#include "widgets/TipsWidget.h"
#include "wizard/ClickColorLabel.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QColor Good(0, 146, 101);
const QColor Bad(255, 74, 39);

Platform::ScriptedFacts::Values someFacts()
{
    Platform::ScriptedFacts::Values facts;
    facts.serverName = "stun:192.0.2.7:3478";
    facts.cdnFirstPart = "cdn-1";
    facts.cdnSecondPart = "edge";
    facts.nickName = "Ada";
    facts.accountName = "ada@example.org";
    facts.accountFallbackName = "ada-fallback";
    facts.processorName = "Some CPU @ 3 GHz";
    facts.cacheVolumeAvailableBytes = 1536;
    facts.clientAddress = "203.0.113.9";
    facts.operatingSystem = QStringList{"Some OS", "12", "x86_64"};
    return facts;
}

Platform::NetworkFigures measured(int lossPercent, int delayMs)
{
    Platform::NetworkFigures figures;
    figures.lossPercent = lossPercent;
    figures.delayMs = delayMs;
    return figures;
}

} // namespace

class tst_NetworkPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructionAsksInOrder();
    void factsAreShown();
    void figuresStayOpenUntilTheFirstSignal();
    void delayLimits_data();
    void delayLimits();
    void lossLimits_data();
    void lossLimits();
    void figuresAreRecordedInOrder();
    void hiddenPageIgnoresFigures();
    void laterSignalBringsTheFigures();
    void unmeasuredPageFails();
    void problemNeedsBothGood_data();
    void problemNeedsBothGood();
    void cacheSpace_data();
    void cacheSpace();
    void cacheSpaceIsAskedOnce();
    void longFallbackIsElidedInTheMiddle();
    void longAccountIsShownWhole();
    void longNickNameIsElidedAtTheRight();
    void userInfoRefills();
    void onlyAccountAndNickNameAreRefilled();
    void longTextsDoNotWidenThePage();
    void foreignTextsStayPlain_data();
    void foreignTextsStayPlain();
    void countsAsTestedFromTheStart();
    void nextAnswersYes();
    void savingAndLeavingRecordNothing();
    void tips();
    void formColumns();
    void formSizes();
    void formColors();
    void metaObjectHasTheOneSlot();

private:
    void makePage();
    void showFigures(int lossPercent, int delayMs);
    QString textOf(const char* label) const { return childOf<QLabel>(*m_page, label)->text(); }
    QColor colorOf(const char* label) const;

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<NetworkPage> m_page;
};

void tst_NetworkPage::init()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    m_engine = &Platform::ScriptedEngine::install();
    m_engine->facts().setValues(someFacts());
}

void tst_NetworkPage::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void tst_NetworkPage::makePage()
{
    m_page = std::make_unique<NetworkPage>();
}

void tst_NetworkPage::showFigures(int lossPercent, int delayMs)
{
    makePage();
    m_page->show();
    m_engine->clearCalls();
    m_engine->network().setFigures(measured(lossPercent, delayMs));
    QTRY_VERIFY(m_engine->calls().contains("network.figures()"));
}

QColor tst_NetworkPage::colorOf(const char* label) const
{
    return childOf<QLabel>(*m_page, label)->palette().color(QPalette::WindowText);
}

void tst_NetworkPage::constructionAsksInOrder()
{
    makePage();
    QCOMPARE(
        m_engine->calls(),
        (QStringList{"network.create()", "facts.accountName()", "facts.nickName()",
                     "facts.refreshUserInfo()", "facts.operatingSystem()", "facts.processorName()",
                     "facts.cacheVolumeAvailableBytes()", "facts.serverName()",
                     "facts.clientAddress()", "facts.cdnFirstPart()", "facts.cdnSecondPart()"}));
    m_page.reset();
    QCOMPARE(m_engine->calls().last(), QString("network.destroy()"));
}

void tst_NetworkPage::factsAreShown()
{
    makePage();
    QCOMPARE(textOf("label_Account"), QString("ada@example.org"));
    QCOMPARE(textOf("label_Name"), QString("Ada"));
    QCOMPARE(textOf("label_OS"), QString("Some OS 12 x86_64"));
    QCOMPARE(textOf("label_CPU"), QString("Some CPU @ 3 GHz"));
    QCOMPARE(textOf("label_AV"), QString("1.50 KB"));
    QCOMPARE(textOf("label_SVR"), QString("stun:192.0.2.7:3478"));
    QCOMPARE(textOf("label_CLT"), QString("203.0.113.9"));
    QCOMPARE(textOf("label_CDN"), QString("cdn-1/edge"));
    QCOMPARE(textOf("label_0"), QString("ID_NetworkPage_Account"));
    QCOMPARE(textOf("label_2"), QString("ID_Nickname_NetworkPage"));
    QCOMPARE(textOf("label_3"), QString("ID_NetworkPage_OS"));
    QCOMPARE(textOf("label_4"), QString("ID_NetworkPage_CPU"));
    QCOMPARE(textOf("label_5"), QString("ID_NetworkPage_AvailableCacheSpace"));
    QCOMPARE(textOf("label_6"), QString("ID_NetworkPage_NetworkDelay"));
    QCOMPARE(textOf("label_7"), QString("ID_NetworkPage_LostRate"));
    QCOMPARE(textOf("label_8"), QString("ID_NewLogin_Server"));
    QCOMPARE(textOf("label_9"), QString("ID_NetworkPage_Client"));
    QCOMPARE(textOf("label_10"), QString("CDN:"));
    QCOMPARE(childOf<QPushButton>(*m_page, "Btn_Next")->text(), QString("ID_Next"));
}

void tst_NetworkPage::figuresStayOpenUntilTheFirstSignal()
{
    makePage();
    m_page->show();
    QCOMPARE(textOf("label_ND"), QString("- -"));
    QCOMPARE(textOf("label_LR"), QString("- -"));
    QVERIFY(!m_engine->calls().contains("network.figures()"));
}

void tst_NetworkPage::delayLimits_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("0") << 0 << "0ms" << true;
    QTest::newRow("37") << 37 << "37ms" << true;
    QTest::newRow("499") << 499 << "499ms" << true;
    QTest::newRow("500") << 500 << "500ms" << false;
    QTest::newRow("1234") << 1234 << "1234ms" << false; // no group separator
    QTest::newRow("not measured") << -1 << "N/A" << false;
}

void tst_NetworkPage::delayLimits()
{
    QFETCH(int, delay);
    QFETCH(bool, isGood);
    showFigures(0, delay);
    QTEST(textOf("label_ND"), "text");
    QCOMPARE(colorOf("label_ND"), isGood ? Good : Bad);
    QCOMPARE(colorOf("label_LR"), Good);
    QCOMPARE(m_page->isPassed(), isGood);
}

void tst_NetworkPage::lossLimits_data()
{
    QTest::addColumn<int>("loss");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("0") << 0 << "0%" << true;
    QTest::newRow("3") << 3 << "3%" << true;
    QTest::newRow("70") << 70 << "70%" << true;
    QTest::newRow("71") << 71 << "71%" << false;
    QTest::newRow("100") << 100 << "100%" << false;
}

void tst_NetworkPage::lossLimits()
{
    QFETCH(int, loss);
    QFETCH(bool, isGood);
    showFigures(loss, 37);
    QTEST(textOf("label_LR"), "text");
    QCOMPARE(colorOf("label_LR"), isGood ? Good : Bad);
    QCOMPARE(colorOf("label_ND"), Good);
    QCOMPARE(m_page->isPassed(), isGood);
}

void tst_NetworkPage::figuresAreRecordedInOrder()
{
    showFigures(71, -1);
    QCOMPARE(m_engine->calls(),
             (QStringList{"network.figures()", "report.result(network.delay=N/A)",
                          "network.figures()", "report.result(network.loss=71%)"}));
}

void tst_NetworkPage::hiddenPageIgnoresFigures()
{
    showFigures(3, 37);
    m_page->hide();
    m_engine->clearCalls();
    m_engine->network().setFigures(measured(90, 900));
    QCoreApplication::processEvents();
    QCOMPARE(m_engine->calls(), QStringList());
    QCOMPARE(textOf("label_ND"), QString("37ms"));
    QCOMPARE(textOf("label_LR"), QString("3%"));
    QVERIFY(m_page->isPassed());
}

void tst_NetworkPage::laterSignalBringsTheFigures()
{
    makePage();
    m_engine->network().setFigures(measured(3, 37));
    QCoreApplication::processEvents();
    QCOMPARE(textOf("label_ND"), QString("- -"));
    m_page->show();
    QCOMPARE(textOf("label_ND"), QString("- -"));
    m_engine->network().setFigures(measured(4, 38));
    QTRY_COMPARE(textOf("label_ND"), QString("38ms"));
    QCOMPARE(textOf("label_LR"), QString("4%"));
}

void tst_NetworkPage::unmeasuredPageFails()
{
    makePage();
    QVERIFY(!m_page->isPassed());
    QCOMPARE(m_page->problemText(), QString("ID_NetworkPage_NetworkSlowOrUnstable"));
}

void tst_NetworkPage::problemNeedsBothGood_data()
{
    QTest::addColumn<int>("loss");
    QTest::addColumn<int>("delay");
    QTest::addColumn<bool>("isPassed");
    QTest::newRow("both good") << 70 << 499 << true;
    QTest::newRow("slow") << 70 << 500 << false;
    QTest::newRow("lossy") << 71 << 499 << false;
    QTest::newRow("slow and lossy") << 71 << 500 << false;
}

void tst_NetworkPage::problemNeedsBothGood()
{
    QFETCH(int, loss);
    QFETCH(int, delay);
    QFETCH(bool, isPassed);
    showFigures(loss, delay);
    QCOMPARE(m_page->isPassed(), isPassed);
    const std::vector<QString> problems = m_page->problemList();
    QCOMPARE(problems.size(), std::size_t(isPassed ? 0 : 1));
    if (!isPassed) {
        QCOMPARE(problems.front(), QString("ID_NetworkPage_NetworkSlowOrUnstable"));
    }
}

void tst_NetworkPage::cacheSpace_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    constexpr qint64 K = 1024;
    QTest::newRow("0") << qint64(0) << "0 BYTE"
                       << "0 BYTE";
    QTest::newRow("512") << qint64(512) << "512 BYTE"
                         << "512 BYTE";
    QTest::newRow("1023") << K - 1 << "1,023 BYTE"
                          << "1.023 BYTE";
    QTest::newRow("1024") << K << "1.00 KB"
                          << "1,00 KB";
    QTest::newRow("1536") << qint64(1536) << "1.50 KB"
                          << "1,50 KB";
    QTest::newRow("1 MB - 1") << K * K - 1 << "1,024.00 KB"
                              << "1.024,00 KB";
    QTest::newRow("1 MB") << K * K << "1.00 MB"
                          << "1,00 MB";
    QTest::newRow("1 GB") << K * K * K << "1.00 GB"
                          << "1,00 GB";
    QTest::newRow("1000 GB") << 1000 * K * K * K << "1,000.00 GB"
                             << "1.000,00 GB";
    QTest::newRow("1 TB - 1") << K * K * K * K - 1 << "1,024.00 GB"
                              << "1.024,00 GB";
    QTest::newRow("1 TB") << K * K * K * K << ">1TB"
                          << ">1TB";
    QTest::newRow("-1") << qint64(-1) << ">1TB"
                        << ">1TB";
    QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << ">1TB"
                            << ">1TB";
}

void tst_NetworkPage::cacheSpace()
{
    QFETCH(qint64, bytes);
    auto facts = someFacts();
    facts.cacheVolumeAvailableBytes = bytes;
    m_engine->facts().setValues(facts);
    makePage();
    QTEST(textOf("label_AV"), "english");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    makePage();
    QTEST(textOf("label_AV"), "german");
}

void tst_NetworkPage::cacheSpaceIsAskedOnce()
{
    makePage();
    m_engine->clearCalls();
    m_page->show();
    m_engine->facts().bringUserInfo("a", "b");
    QCoreApplication::processEvents();
    QVERIFY(!m_engine->calls().contains("facts.cacheVolumeAvailableBytes()"));
}

void tst_NetworkPage::longFallbackIsElidedInTheMiddle()
{
    const QString fallback = "begin" + QString(200, 'x') + "end";
    auto facts = someFacts();
    facts.accountName.clear();
    facts.accountFallbackName = fallback;
    m_engine->facts().setValues(facts);
    makePage();
    const auto* label = childOf<QLabel>(*m_page, "label_Account");
    QCOMPARE(label->width(), 278);
    QCOMPARE(label->text(), label->fontMetrics().elidedText(fallback, Qt::ElideMiddle, 278));
    QVERIFY(label->text().startsWith("begin") && label->text().endsWith("end"));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= 278);
    const QString atConstruction = label->text();
    m_page->show();
    m_engine->facts().bringUserInfo(QString(), "Ada");
    QCoreApplication::processEvents();
    QCOMPARE(label->text(), atConstruction);

    facts.accountFallbackName = "short";
    m_engine->facts().setValues(facts);
    m_engine->facts().bringUserInfo(QString(), "Ada");
    QTRY_COMPARE(label->text(), QString("short"));
}

void tst_NetworkPage::longAccountIsShownWhole()
{
    const QString account(300, 'w');
    makePage();
    m_page->show();
    m_engine->facts().bringUserInfo(account, "Ada");
    QTRY_COMPARE(textOf("label_Account"), account);
    QCOMPARE(childOf<QLabel>(*m_page, "label_Account")->width(), 278);
    QVERIFY(!m_engine->calls().contains("facts.accountFallbackName()"));
}

void tst_NetworkPage::longNickNameIsElidedAtTheRight()
{
    const QString nickName = "begin" + QString(200, 'x') + "end";
    makePage();
    m_page->show();
    m_engine->facts().bringUserInfo("ada", nickName);
    QTRY_VERIFY(textOf("label_Name").startsWith("begin"));
    const auto* label = childOf<QLabel>(*m_page, "label_Name");
    QCOMPARE(label->text(), label->fontMetrics().elidedText(nickName, Qt::ElideRight, 278));
    QVERIFY(!label->text().endsWith("end"));
}

void tst_NetworkPage::userInfoRefills()
{
    makePage();
    m_engine->facts().bringUserInfo("grace@example.org", "Grace");
    QTRY_COMPARE(textOf("label_Account"), QString("grace@example.org"));
    QCOMPARE(textOf("label_Name"), QString("Grace"));
}

void tst_NetworkPage::onlyAccountAndNickNameAreRefilled()
{
    makePage();
    auto facts = someFacts();
    facts.serverName = "another";
    facts.clientAddress = "another";
    facts.cdnFirstPart = "another";
    facts.processorName = "another";
    m_engine->facts().setValues(facts);
    m_engine->facts().bringUserInfo("grace@example.org", "Grace");
    QTRY_COMPARE(textOf("label_Name"), QString("Grace"));
    QCOMPARE(textOf("label_SVR"), QString("stun:192.0.2.7:3478"));
    QCOMPARE(textOf("label_CLT"), QString("203.0.113.9"));
    QCOMPARE(textOf("label_CDN"), QString("cdn-1/edge"));
    QCOMPARE(textOf("label_CPU"), QString("Some CPU @ 3 GHz"));
}

void tst_NetworkPage::longTextsDoNotWidenThePage()
{
    const QString longText(2000, 'W');
    Platform::ScriptedFacts::Values facts;
    facts.serverName = facts.cdnFirstPart = facts.nickName = facts.accountName =
        facts.processorName = facts.clientAddress = longText;
    facts.operatingSystem = QStringList{longText};
    m_engine->facts().setValues(facts);
    makePage();
    m_page->show();
    QCOMPARE(m_page->width(), 480);
    QCOMPARE(childOf<QWidget>(*m_page, "widget_left")->width(), 150);
    QCOMPARE(childOf<QWidget>(*m_page, "widget_right")->width(), 278);
    for (const char* name : {"label_Account", "label_Name"}) {
        const auto* label = childOf<QLabel>(*m_page, name);
        QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
        QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    }
}

void tst_NetworkPage::foreignTextsStayPlain_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"label_Account", "label_Name", "label_OS", "label_CPU", "label_SVR",
                             "label_CLT", "label_CDN"}) {
        QTest::newRow(name) << name;
    }
}

void tst_NetworkPage::foreignTextsStayPlain()
{
    QFETCH(QString, name);
    const QString hostile = "<h1>x</h1>&amp;";
    Platform::ScriptedFacts::Values facts;
    facts.serverName = facts.cdnFirstPart = facts.nickName = facts.accountName =
        facts.processorName = facts.clientAddress = hostile;
    facts.operatingSystem = QStringList{hostile};
    m_engine->facts().setValues(facts);
    makePage();
    const auto* label = childOf<QLabel>(*m_page, name.toLatin1());
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY2(label->text().startsWith(hostile), qPrintable(label->text()));
}

void tst_NetworkPage::countsAsTestedFromTheStart()
{
    makePage();
    QVERIFY(m_page->isTested());
}

void tst_NetworkPage::nextAnswersYes()
{
    makePage();
    m_page->show();
    QSignalSpy complete(m_page.get(), &CheckPage::complete);
    QTest::mouseClick(childOf<QPushButton>(*m_page, "Btn_Next"), Qt::LeftButton);
    QCOMPARE(complete.count(), 1);
    QVERIFY(m_page->isTested());
    QVERIFY(!m_page->isPassed()); // the figures alone decide
}

void tst_NetworkPage::savingAndLeavingRecordNothing()
{
    showFigures(3, 37);
    m_engine->clearCalls();
    m_page->saveResult();
    m_page->updateDeviceState();
    m_page->hide();
    QCOMPARE(m_engine->calls(), QStringList());
}

void tst_NetworkPage::tips()
{
    makePage();
    auto* layout = m_page->findChild<QHBoxLayout*>("horizontalLayout_3");
    QVERIFY(layout);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 0);
    auto* tips = qobject_cast<TipsWidget*>(layout->itemAt(0)->layout());
    QVERIFY(tips);
    const auto* button = qobject_cast<QPushButton*>(tips->itemAt(0)->widget());
    QCOMPARE(button->text(), QString(" ID_NetworkPage_ClickHere"));
    QVERIFY(balloonWith("ID_NetworkPage_1\nID_NetworkPage_2\nID_NetworkPage_3"));
}

void tst_NetworkPage::formColumns()
{
    makePage();
    const auto namesIn = [this](const char* layoutName) {
        QStringList names;
        const auto* layout = m_page->findChild<QVBoxLayout*>(layoutName);
        for (int i = 0; i < layout->count(); ++i) {
            names.append(layout->itemAt(i)->widget()->objectName());
        }
        return names;
    };
    QCOMPARE(namesIn("verticalLayout_2"),
             (QStringList{"label_0", "label_2", "label_3", "label_4", "label_5", "label_6",
                          "label_7", "label_8", "label_9", "label_10"}));
    QCOMPARE(namesIn("verticalLayout_3"),
             (QStringList{"label_Account", "label_Name", "label_OS", "label_CPU", "label_AV",
                          "label_ND", "label_LR", "label_SVR", "label_CLT", "label_CDN"}));
    QVERIFY(childOf<ClickColorLabel>(*m_page, "label_ND"));
    QVERIFY(childOf<ClickColorLabel>(*m_page, "label_LR"));
}

void tst_NetworkPage::formSizes()
{
    makePage();
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    QCOMPARE(m_page->minimumSize(), QSize(480, 0));
    QCOMPARE(m_page->maximumSize(), QSize(480, 16777215));
    const auto layout = [this](const char* name) { return m_page->findChild<QBoxLayout*>(name); };
    QCOMPARE(layout("verticalLayout_4")->spacing(), 0);
    QCOMPARE(layout("verticalLayout_4")->contentsMargins().left(), 10);
    QCOMPARE(layout("horizontalLayout")->contentsMargins(), QMargins());
    QCOMPARE(layout("horizontalLayout_3")->spacing(), 0);
    QCOMPARE(layout("horizontalLayout_3")->contentsMargins().left(), 20);
    QCOMPARE(layout("horizontalLayout_2")->spacing(), 0);
    QCOMPARE(layout("horizontalLayout_2")->contentsMargins().bottom(), 10);
    for (const char* column : {"verticalLayout_2", "verticalLayout_3"}) {
        QCOMPARE(layout(column)->spacing(), 12);
        QCOMPARE(layout(column)->contentsMargins(), QMargins());
    }
    QCOMPARE(childOf<QWidget>(*m_page, "widget_3")->minimumWidth(), 448);
    m_page->resize(480, 400);
    m_page->show();
    const auto* next = childOf<QPushButton>(*m_page, "Btn_Next");
    QCOMPARE(next->size(), QSize(138, 30));
    QCOMPARE(next->mapTo(m_page.get(), QPoint(138, 30)), QPoint(468, 390));
    // The captions stand beside their values.
    for (const auto& [caption, value] :
         {std::pair("label_0", "label_Account"), std::pair("label_10", "label_CDN")}) {
        QCOMPARE(childOf<QLabel>(*m_page, caption)->y(), childOf<QLabel>(*m_page, value)->y());
    }
}

void tst_NetworkPage::formColors()
{
    makePage();
    m_page->show();
    QCOMPARE(colorOf("label_0"), QColor(35, 35, 35));
    QCOMPARE(colorOf("label_10"), QColor(35, 35, 35));
    for (const char* name : {"label_AV", "label_Account", "label_CDN", "label_CLT", "label_CPU",
                             "label_Name", "label_OS", "label_SVR"}) {
        QCOMPARE(colorOf(name), QColor(35, 35, 35, 153));
    }
    auto* next = childOf<QPushButton>(*m_page, "Btn_Next");
    QCOMPARE(next->grab().toImage().pixelColor(5, 15), QColor(0x00, 0x92, 0x65));
    QCOMPARE(next->font().pixelSize(), 14);
    next->setEnabled(false);
    QCOMPARE(next->grab().toImage().pixelColor(5, 15), QColor(0x00, 0x83, 0x5A));
}

void tst_NetworkPage::metaObjectHasTheOneSlot()
{
    QCOMPARE(NetworkPage::staticMetaObject.className(), "NetworkPage");
    QCOMPARE(ownMethods(NetworkPage::staticMetaObject), QList<QByteArray>{"fillAccountInfo()"});
}

QTEST_MAIN(tst_NetworkPage)
#include "tst_NetworkPage.moc"
