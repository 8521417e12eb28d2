// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

using Texts = QMap<QString, QString>;

const QStringList LANGUAGES = QStringLiteral(ENVCHECK_LANGUAGES).split(QLatin1Char(' '));

const QStringList SOUND_IDS = {
    QStringLiteral("ID_HeadsetPage_Piano"),   QStringLiteral("ID_HeadsetPage_Seagull"),
    QStringLiteral("ID_HeadsetPage_Thunder"), QStringLiteral("ID_HeadsetPage_Doorbell"),
    QStringLiteral("ID_HeadsetPage_Shutter"), QStringLiteral("ID_HeadsetPage_Bubble"),
    QStringLiteral("ID_HeadsetPage_Typing"),  QStringLiteral("ID_HeadsetPage_Saxophone"),
    QStringLiteral("ID_HeadsetPage_sound0"),  QStringLiteral("ID_HeadsetPage_sound1"),
    QStringLiteral("ID_HeadsetPage_sound2"),  QStringLiteral("ID_HeadsetPage_sound3")};

// Texts of the program itself, and reasons of the engine in its messages, stand in free layouts or
// on the console and have no fixed place.
const QRegularExpression PLACELESS(QStringLiteral("^ID_(Host|Engine_(File|Json|Scenario))_"));

// Where texts stand: the room in pixels that the frame, the padding or the indicator leaves, and
// the size of the letters. A height means that the text wraps. The 12 points of the check area are
// 16 pixels on a desktop and 17 on the offscreen platform.
struct Place
{
    const char* ids;
    int pixelSize;
    int width;
    int height = 0;
    const char* suffix = "";
};

constexpr Place PLACES[] = {
    // Step labels: 86 wide, less 10 of padding and the indent of a framed label.
    {"ID_CheckResultPage_System ID_Camera_Check ID_CheckResultPage_Headphone ID_Microphone_Check",
     17, 71},
    // The same texts in the item column of the result table.
    {"ID_CheckResultPage_System ID_Camera_Check ID_CheckResultPage_Headphone ID_Microphone_Check",
     12, 82},
    // Answer buttons; the camera's carry the seconds of their lock.
    {"ID_Next ID_CameraPage_CannotSee ID_HeadsetPage_CanHear ID_HeadsetPage_CanNotHear", 14, 128},
    {"ID_CameraPage_Yes ID_CameraPage_No", 14, 128, 0, "(3)"},
    {"ID_MicrophonePage_CanHearOrSee ID_MicrophonePage_CanNotHearOrSee", 14, 160},
    // Captions and values of the network page.
    {"ID_NetworkPage_Account ID_Nickname_NetworkPage ID_NetworkPage_OS ID_NetworkPage_CPU "
     "ID_NetworkPage_AvailableCacheSpace ID_NetworkPage_NetworkDelay ID_NetworkPage_LostRate "
     "ID_NewLogin_Server ID_NetworkPage_Client",
     17, 150},
    {"ID_Engine_BuiltInResponder", 17, 278},
    // Captions of the device pages.
    {"ID_CameraPage_Camera", 12, 52},
    {"ID_HeadsetPage_Speaker ID_Microphone", 12, 65},
    {"ID_Volume", 12, 50},
    // Answers: 95 at most, less 21 for the indicator and its spacing.
    {"ID_HeadsetPage_Piano ID_HeadsetPage_Seagull ID_HeadsetPage_Thunder ID_HeadsetPage_Doorbell "
     "ID_HeadsetPage_Shutter ID_HeadsetPage_Bubble ID_HeadsetPage_Typing "
     "ID_HeadsetPage_Saxophone ID_HeadsetPage_sound0 ID_HeadsetPage_sound1 "
     "ID_HeadsetPage_sound2 ID_HeadsetPage_sound3",
     12, 73},
    // Below the play and record buttons: 78 wide, less the frame and its indent.
    {"ID_HeadsetPage_play ID_HeadsetPage_Play ID_HeadsetPage_Playing ID_HeadsetPage_PlayAgain "
     "ID_Record ID_MicrophonePage_Recording ID_MicrophonePage_OfS ID_MicrophonePage_Again",
     17, 71},
    // How-to lines.
    {"ID_HeadsetPage_Tip ID_MicrophonePage_MicrophoneTest", 12, 306, 60},
    // Result page: 14 points, and the 12 of the check area.
    {"ID_CheckResultPage_EquipmentNormal ID_CheckResultPage_EquipmentAbnormal", 19, 270},
    {"ID_CheckResultPage_OK ID_CheckResultPage_CheckEquipmentAndRetest", 17, 270},
    {"ID_CheckResultPage_Redetect ID_OK", 14, 84},
    {"ID_CheckResultPage_Normal ID_CheckResultPage_Abnormal", 12, 80},
    // Details column of the result table, one line for each problem.
    {"ID_NetworkPage_NetworkSlowOrUnstable ID_CameraPage_NotDetected ID_lumcamera_NoWebcamFound "
     "ID_CameraPage_CameraDisabled ID_CameraPage_NoCameraImageWasDetected "
     "ID_CameraPage_choseNo ID_hardwaremgrinterface_NoSpeakerFound ID_HeadsetPage_choseNo "
     "ID_HeadsetPage_ChoseWrong ID_MicrophonePage_NoMicrophoneWasDetected "
     "ID_MicrophonePage_MicrophoneDisabled ID_MicrophonePage_NoVoiceWasRecorded "
     "ID_MicrophonePage_ChoseNo",
     12, 232},
    // Tips: the balloon is 448 wide and does not wrap.
    {"ID_NetworkPage_1 ID_NetworkPage_2 ID_NetworkPage_3 ID_CameraPage_1 ID_CameraPage_2 "
     "ID_CameraPage_3 ID_CameraPage_4 ID_CameraPage_5 ID_HeadsetPage_2 ID_HeadsetPage_3 "
     "ID_HeadsetPage_4 ID_MicrophonePage_2 ID_MicrophonePage_3 ID_MicrophonePage_4",
     12, 430},
    {"ID_NetworkPage_ClickHere", 12, 400},
    {"ID_CameraPage_ClickHere ID_HeadsetPage_ClickHere ID_MicrophonePage_ClickHere", 12, 287},
    // Balloons: from the device list, or the slider, to the edge of the page.
    {"ID_CameraPage_DisabledWillMakeCameraUnusable "
     "ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable",
     12, 370},
    {"ID_MicrophonePage_MayNoisy ID_HeadsetPage_PleaseSelectTheAnswer", 17, 360},
    // In the place of the camera's picture, also below the ring of the start.
    {"ID_Engine_Camera_Absent ID_Engine_Camera_Black ID_Engine_Camera_Busy ID_Engine_Camera_BusyBy "
     "ID_Engine_Camera_Denied ID_Engine_Camera_Failed ID_Engine_Camera_Hung "
     "ID_Engine_Camera_NotBuilt "
     "ID_Engine_Camera_ServerLost ID_Engine_Camera_Stalled ID_Engine_Camera_Unplugged "
     "ID_Engine_Camera_Unreadable",
     13, 274, 130},
    {"ID_Engine_Camera_Starting", 13, 274},
    // Behind the name of a headset, which may be cut.
    {"ID_Engine_TelephoneQuality", 12, 200},
    // Entries of the device lists.
    {"ID_Engine_NoCamera ID_Engine_NoMicrophone ID_Engine_NoSpeaker ID_Engine_NoSpeakerSelected "
     "ID_Engine_NotConnected ID_Engine_SoundNotBuilt ID_Engine_SoundServerLost "
     "ID_Engine_SoundServerSilent",
     12, 270},
    // Dialog, question and welcome page.
    {"ID_Kestrel_SystemTesting", 17, 300},
    {"ID_MessageBox_Question ID_MessageBox_Information ID_MessageBox_Warning "
     "ID_MessageBox_Critical",
     14, 200},
    {"ID_ContentPage_NotFinishedIfLeave", 14, 560},
    {"ID_WelcomePage_StartTest", 20, 250},
    {"ID_WelcomePage_Welcome ID_Skip", 20, 820},
};

QString sourceFile(const QString& path)
{
    return QStringLiteral(ENVCHECK_SOURCE_DIR "/") + path;
}

QString textFile(const QString& language)
{
    return sourceFile(QStringLiteral("share/translations/envcheck_%1.ts").arg(language));
}

QString compiledFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
}

QStringList idsOf(const Place& place)
{
    return QString::fromLatin1(place.ids).split(QLatin1Char(' '));
}

// DejaVu Sans is wider than most, so what fits in it fits elsewhere. Arabic may come in either.
QStringList fontsFor(const QString& language)
{
    static const QMap<QString, QStringList> special = {
        {QStringLiteral("zh_CN"), {QStringLiteral("Noto Sans CJK SC")}},
        {QStringLiteral("zh_TW"), {QStringLiteral("Noto Sans CJK TC")}},
        {QStringLiteral("ja"), {QStringLiteral("Noto Sans CJK JP")}},
        {QStringLiteral("ko"), {QStringLiteral("Noto Sans CJK KR")}},
        {QStringLiteral("ar"),
         {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans Arabic")}}};
    return special.value(language, {QStringLiteral("DejaVu Sans")});
}

QSet<QString> placeholdersOf(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?\\d+|%n"));
    QSet<QString> found;
    auto matches = placeholder.globalMatch(text);
    while (matches.hasNext()) {
        found.insert(matches.next().captured());
    }
    return found;
}

QSet<QString> keysOf(const Texts& texts)
{
    const QStringList keys = texts.keys();
    return {keys.cbegin(), keys.cend()};
}

QString sorted(const QSet<QString>& ids)
{
    QStringList list(ids.cbegin(), ids.cend());
    list.sort();
    return list.join(QLatin1Char(' '));
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void languages();
    void everyUsedIdIsThere();
    void noIdIsLeftOver();
    void messagesOfTheProgramAreTexts();
    void languagesHaveTheSameIds();
    void placeholdersAgree();
    void soundNamesAreDistinct();
    void tipsAreNumbered();
    void instructionNamesTheRecordLabel();
    void everyTextHasAPlace();
    void textsFit();
    void compiledTextsAreFound();
    void questionButtonsAreTranslated();

private:
    static Texts read(const QString& language);
    static QSet<QString> usedIds();
    Texts textsOfRow() const;

    QMap<QString, Texts> m_texts;
};

// Global data: every function below runs once for each language.
void tst_Translations::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : LANGUAGES) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

// Fails at anything but finished entries that have an id, a text and no second entry of that id.
Texts tst_Translations::read(const QString& language)
{
    QFile file(textFile(language));
    if (!file.open(QIODevice::ReadOnly)) {
        QTest::qFail(qPrintable(file.fileName() + QStringLiteral(": ") + file.errorString()),
                     __FILE__, __LINE__);
        return {};
    }
    Texts texts;
    QStringList faults;
    QString id;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("TS") &&
            reader.attributes().value(QLatin1String("language")) != language) {
            faults << QStringLiteral("another language in the head");
        } else if (reader.name() == QLatin1String("message")) {
            id = reader.attributes().value(QLatin1String("id")).toString();
            if (!id.startsWith(QLatin1String("ID_")) || texts.contains(id)) {
                faults << QStringLiteral("missing or repeated id '%1'").arg(id);
            }
        } else if (reader.name() == QLatin1String("translation")) {
            if (reader.attributes().hasAttribute(QLatin1String("type"))) {
                faults << QStringLiteral("unfinished ") + id;
            }
            const QString text = reader.readElementText();
            if (text.trimmed().isEmpty() || text != text.trimmed()) {
                faults << QStringLiteral("empty, or blanks around it: ") + id;
            }
            texts.insert(id, text);
        }
    }
    if (reader.hasError()) {
        faults << reader.errorString();
    }
    if (!faults.isEmpty()) {
        QTest::qFail(
            qPrintable(language + QStringLiteral(": ") + faults.join(QStringLiteral("; "))),
            __FILE__, __LINE__);
    }
    return texts;
}

QSet<QString> tst_Translations::usedIds()
{
    static const QRegularExpression literal(QStringLiteral("\"(ID_[A-Za-z0-9_]+)\""));
    QSet<QString> ids;
    for (const char* folder : {"agent", "wizard", "pages", "widgets", "platform", "host"}) {
        QDirIterator files(sourceFile(QString::fromLatin1(folder)),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            // What udev calls the properties of a device looks the same.
            if (file.fileName().contains(QLatin1String("/v4l2/")) ||
                !file.open(QIODevice::ReadOnly)) {
                continue;
            }
            auto matches = literal.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                ids.insert(matches.next().captured(1));
            }
        }
    }
    return ids;
}

Texts tst_Translations::textsOfRow() const
{
    QFETCH_GLOBAL(QString, language);
    return m_texts.value(language);
}

void tst_Translations::initTestCase()
{
    for (const QString& language : LANGUAGES) {
        m_texts.insert(language, read(language));
        QVERIFY(!QTest::currentTestFailed());
    }
}

void tst_Translations::languages()
{
    QStringList found;
    const QDir folder(sourceFile(QStringLiteral("share/translations")));
    const QFileInfoList files =
        folder.entryInfoList({QStringLiteral("envcheck_*.ts")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        found << file.completeBaseName().section(QLatin1Char('_'), 1);
    }
    QCOMPARE(found, LANGUAGES);
}

void tst_Translations::everyUsedIdIsThere()
{
    const QSet<QString> used = usedIds();
    QVERIFY(!used.isEmpty());
    QCOMPARE(sorted(used - keysOf(textsOfRow())), QString());
}

void tst_Translations::noIdIsLeftOver()
{
    QCOMPARE(sorted(keysOf(textsOfRow()) - usedIds()), QString());
}

// What the program says of itself comes by id: a literal would be English in every language.
void tst_Translations::messagesOfTheProgramAreTexts()
{
    static const QRegularExpression literal(
        QStringLiteral("(?:printError|fail|failAt)\\(\\s*(?:\"\\w+\",\\s*)?QStringLiteral\\("));
    QDirIterator files(sourceFile(QStringLiteral("host")), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    QStringList found;
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        if (literal.match(QString::fromUtf8(file.readAll())).hasMatch()) {
            found << file.fileName();
        }
    }
    QCOMPARE(found.join(QLatin1Char(' ')), QString());
}

void tst_Translations::languagesHaveTheSameIds()
{
    const QSet<QString> own = keysOf(textsOfRow());
    const QSet<QString> english = keysOf(m_texts.value(QStringLiteral("en")));
    QCOMPARE(sorted(english - own), QString());
    QCOMPARE(sorted(own - english), QString());
}

void tst_Translations::placeholdersAgree()
{
    const Texts texts = textsOfRow();
    const Texts english = m_texts.value(QStringLiteral("en"));
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        QVERIFY2(placeholdersOf(text.value()) == placeholdersOf(english.value(text.key())),
                 qPrintable(text.key()));
    }
    QCOMPARE(placeholdersOf(texts.value(QStringLiteral("ID_MicrophonePage_OfS"))),
             QSet<QString>{QStringLiteral("%1")});
}

// A click is judged by the text of its button.
void tst_Translations::soundNamesAreDistinct()
{
    const Texts texts = textsOfRow();
    QSet<QString> names;
    for (const QString& id : SOUND_IDS) {
        names.insert(texts.value(id));
    }
    QCOMPARE(names.size(), SOUND_IDS.size());
}

void tst_Translations::tipsAreNumbered()
{
    static const QRegularExpression tip(QStringLiteral("^ID_[A-Za-z]+Page_(\\d)$"));
    const Texts texts = textsOfRow();
    int tips = 0;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        const QRegularExpressionMatch match = tip.match(text.key());
        if (match.hasMatch()) {
            ++tips;
            QVERIFY2(text.value().startsWith(match.captured(1) + QStringLiteral(". ")),
                     qPrintable(text.key()));
        }
    }
    QCOMPARE(tips, 14);
}

void tst_Translations::instructionNamesTheRecordLabel()
{
    const Texts texts = textsOfRow();
    QVERIFY(texts.value(QStringLiteral("ID_MicrophonePage_MicrophoneTest"))
                .contains(texts.value(QStringLiteral("ID_Record"))));
}

void tst_Translations::everyTextHasAPlace()
{
    QSet<QString> placed;
    for (const Place& place : PLACES) {
        for (const QString& id : idsOf(place)) {
            placed.insert(id);
        }
    }
    QSet<QString> known;
    for (const QString& id : m_texts.value(QStringLiteral("en")).keys()) {
        if (!PLACELESS.match(id).hasMatch()) {
            known.insert(id);
        }
    }
    QCOMPARE(sorted(known - placed), QString());
    QCOMPARE(sorted(placed - known), QString());
}

void tst_Translations::textsFit()
{
    QFETCH_GLOBAL(QString, language);
    const Texts texts = textsOfRow();
    const QStringList families = QFontDatabase().families();
    QStringList cut;
    for (const QString& family : fontsFor(language)) {
        QVERIFY2(families.contains(family),
                 qPrintable(family + QStringLiteral(" is missing; install fonts-dejavu-core, "
                                                    "fonts-noto-core and fonts-noto-cjk")));
        for (const Place& place : PLACES) {
            QFont font(family);
            font.setPixelSize(place.pixelSize);
            const QFontMetrics metrics(font);
            for (const QString& id : idsOf(place)) {
                QString text = texts.value(id) + QLatin1String(place.suffix);
                text.replace(QLatin1String("%1"), QLatin1String("5"));
                const QSize needed = place.height > 0
                                         ? metrics
                                               .boundingRect(QRect(0, 0, place.width, place.height),
                                                             Qt::TextWordWrap, text)
                                               .size()
                                         : QSize(metrics.horizontalAdvance(text), 0);
                if (needed.width() > place.width || needed.height() > place.height) {
                    cut << QStringLiteral("%1 (%2): %3x%4 of %5x%6")
                               .arg(id, family)
                               .arg(needed.width())
                               .arg(needed.height())
                               .arg(place.width)
                               .arg(place.height);
                }
            }
        }
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
}

void tst_Translations::compiledTextsAreFound()
{
    QFETCH_GLOBAL(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral("envcheck_") + language, compiledFolder()));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const Texts texts = textsOfRow();
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        QCOMPARE(qtTrId(text.key().toLatin1().constData()), text.value());
    }
}

// The message box takes its buttons from Qt's texts; ours help out where Qt has none.
void tst_Translations::questionButtonsAreTranslated()
{
    QFETCH_GLOBAL(QString, language);
    if (language == QLatin1String("en")) {
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), QStringLiteral("&Yes"));
        return;
    }
    const QString name = QStringLiteral("qtbase_") + language;
    QTranslator translator;
    QVERIFY2(translator.load(name, QLibraryInfo::location(QLibraryInfo::TranslationsPath)) ||
                 translator.load(name, compiledFolder()),
             qPrintable(name + QStringLiteral(".qm is missing; install qttranslations5-l10n")));
    for (const char* source : {"&Yes", "&No"}) {
        QVERIFY(!translator.translate("QPlatformTheme", source).isEmpty());
    }
    QVERIFY(translator.translate("QPlatformTheme", "&Yes") != QStringLiteral("&Yes"));
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
