// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Languages.h"
#include "host/SoundNames.h"
#include "host/report/ReportJson.h"
#include "host/tour/ScreenPicture.h"
#include "tests/window/DisplayServer.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QtTest>

using namespace TestSupport;

namespace {

constexpr int LongMs = 20000;
constexpr int ShortMs = 700;
constexpr QSize ScreenSize(1366, 768);
constexpr int MostTabs = 20;   // more than any page has stops
constexpr int RestingTabs = 8; // more than half of them on other controls
constexpr int SoundFontPixels = 12;
const QColor SoundColor(0x99, 0x99, 0x99);
const QRgb DisabledGround = 0xFFD3D3D3;
constexpr int GreenExcess = 60;               // more than red
constexpr QMargins SoundMargins(26, 4, 4, 4); // with its round button

// Controls in the window, as they stand in English at a scale of 100 %.
constexpr QRect NextButton(472, 424, 138, 32);
constexpr QRect YesButton(328, 424, 136, 32); // of the camera and of the speaker
constexpr QRect HeardButton(260, 424, 168, 32);
constexpr QRect PlayButton(248, 176, 24, 50); // its left half: a hand moves over the other one
constexpr QRect SoundArea(310, 172, 230, 76);
constexpr QRect RecordButton(250, 196, 46, 46);
constexpr QRect OkButton(434, 94, 90, 34);

} // namespace

// The program from its start to its report, by the keyboard alone and by the mouse alone: every key
// and every click goes through the X server and a window manager.
class tst_WholeRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void byMouse();
    void byKeyboard();

private:
    using Press = std::function<bool(const QRect&)>;
    struct Hands
    {
        Press press;
        Press pick;                   // one of the sounds
        std::function<bool()> record; // starts it
    };

    QString file(const char* name) const { return m_home->filePath(QLatin1String(name)); }
    QJsonObject content(const char* name) const;
    QJsonObject result(const char* check) const;
    bool isAnswered(const char* check) const { return result(check).contains("userState"); }
    QRect windowPlace() const;
    QImage window() const;
    QRect playedSound() const;

    bool click(const QRect& control) const;
    bool type(const QString& key) const;
    QImage resting(const QRect& control) const;
    bool tabTo(const QRect& control) const;
    bool typeAt(const QRect& control) const;
    bool isPicked(const QRect& sound) const;
    bool pickByArrows(const QRect& sound) const;

    void answer(const Press& press, const QRect& button, const char* check);
    void goThrough(const Hands& hands);

    Languages m_languages;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DisplayServer> m_server;
    std::unique_ptr<TestProcess> m_program;
    QRect m_place;
};

void tst_WholeRun::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_WholeRun::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<DisplayServer>(DisplayServer::Kind::X11);
    QVERIFY(m_home->isValid() && m_server->start(ScreenSize));
    QVERIFY(m_server->startManager(QStringLiteral("openbox")));
    m_program = std::make_unique<TestProcess>();
    QProcessEnvironment environment = m_server->environment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home->path());
    environment.insert(QStringLiteral("QT_FONT_DPI"), QStringLiteral("96"));
    m_program->setProcessEnvironment(environment);
    m_program->start(QStringLiteral(ENVCHECK_PROGRAM),
                     {QStringLiteral("--scenario"), QStringLiteral("all-well"),
                      QStringLiteral("--language"), QStringLiteral("en"),
                      QStringLiteral("--report"), file("report.json"), QStringLiteral("--results"),
                      file("results.json")});
    QTRY_VERIFY_WITH_TIMEOUT(result("network").contains("delay"), LongMs);
    QTRY_VERIFY_WITH_TIMEOUT(!(m_place = windowPlace()).isEmpty(), LongMs);
}

void tst_WholeRun::cleanup()
{
    m_program.reset();
    m_server.reset();
    m_home.reset();
}

QJsonObject tst_WholeRun::content(const char* name) const
{
    QFile source(file(name));
    return source.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(source.readAll()).object()
                                            : QJsonObject();
}

QJsonObject tst_WholeRun::result(const char* check) const
{
    return content("results.json")["results"].toObject()[QLatin1String(check)].toObject();
}

QRect tst_WholeRun::windowPlace() const
{
    const QString text =
        m_server->output(QStringLiteral("xdotool"),
                         {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                          QStringLiteral("--class"), QStringLiteral("envcheck"),
                          QStringLiteral("getwindowgeometry"), QStringLiteral("--shell")});
    static const QRegularExpression pattern(
        QStringLiteral("X=(\\d+)\\s+Y=(\\d+)\\s+WIDTH=(\\d+)\\s+HEIGHT=(\\d+)"));
    const QRegularExpressionMatch match = pattern.match(text);
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

QImage tst_WholeRun::window() const
{
    return m_server->picture().copy(m_place);
}

// The words that stand beside the sound that was played, found on the screen.
QRect tst_WholeRun::playedSound() const
{
    const QString sound = content("results.json")["measurements"]
                              .toObject()["speaker"]
                              .toObject()["soundPlayed"]
                              .toString();
    if (sound.isEmpty()) {
        return {};
    }
    QFont font(QStringLiteral("Sans Serif")); // Qt's on X11 without a desktop
    font.setPixelSize(SoundFontPixels);
    const QString words = qtTrId(SoundNames::textId(sound));
    QImage part(QFontMetrics(font).size(0, words), QImage::Format_ARGB32_Premultiplied);
    part.fill(Qt::white);
    QPainter painter(&part);
    painter.setFont(font);
    painter.setPen(SoundColor);
    painter.drawText(part.rect(), Qt::AlignCenter, words);
    painter.end();
    const QImage area = window().copy(SoundArea);
    const auto found = ScreenPicture::find(area, part, QPoint());
    return found ? QRect(SoundArea.topLeft() + *found, part.size()).marginsAdded(SoundMargins)
                 : QRect();
}

bool tst_WholeRun::click(const QRect& control) const
{
    const QPoint place = m_place.topLeft() + control.center();
    return m_server->type({QStringLiteral("mousemove"), QString::number(place.x()),
                           QString::number(place.y()), QStringLiteral("click"),
                           QStringLiteral("1")});
}

bool tst_WholeRun::type(const QString& key) const
{
    return m_server->type({QStringLiteral("key"), key});
}

// A control's picture without the focus: the one that it has most of the time on a way around.
QImage tst_WholeRun::resting(const QRect& control) const
{
    std::vector<QImage> pictures;
    for (int i = 0; i < RestingTabs; ++i) {
        pictures.push_back(window().copy(control));
        type(QStringLiteral("Tab"));
    }
    const auto count = [&](const QImage& picture) {
        return std::count(pictures.begin(), pictures.end(), picture);
    };
    return *std::max_element(pictures.begin(), pictures.end(),
                             [&](const QImage& a, const QImage& b) { return count(a) < count(b); });
}

// As somebody does who sees where the focus is.
bool tst_WholeRun::tabTo(const QRect& control) const
{
    const QImage without = resting(control);
    for (int i = 0; i < MostTabs; ++i) {
        if (window().copy(control) != without) {
            return true;
        }
        type(QStringLiteral("Tab"));
    }
    return false;
}

bool tst_WholeRun::typeAt(const QRect& control) const
{
    return tabTo(control) && type(QStringLiteral("space"));
}

// A picked sound is green.
bool tst_WholeRun::isPicked(const QRect& sound) const
{
    const QImage picture = window().copy(sound);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            if (qGreen(color) - qRed(color) > GreenExcess) {
                return true;
            }
        }
    }
    return false;
}

// The sounds come after the button that plays one, in two rows.
bool tst_WholeRun::pickByArrows(const QRect& sound) const
{
    type(QStringLiteral("Tab"));
    for (int round = 0; round < 3; ++round) {
        for (const char* arrow : {"Down", "Right", "Up", "Left"}) {
            type(QStringLiteral("space"));
            if (QTest::qWaitFor([&] { return isPicked(sound); }, ShortMs)) {
                return true;
            }
            type(QLatin1String(arrow));
        }
    }
    return false;
}

void tst_WholeRun::answer(const Press& press, const QRect& button, const char* check)
{
    const QPoint ground(button.left() + 8, button.center().y());
    QVERIFY2(QTest::qWaitFor([&] { return window().pixel(ground) != DisabledGround; }, LongMs),
             check);
    QVERIFY2(press(button), check);
    QVERIFY2(QTest::qWaitFor([&] { return isAnswered(check); }, LongMs), check);
}

void tst_WholeRun::goThrough(const Hands& hands)
{
    const Press& press = hands.press;
    QVERIFY(press(NextButton));
    answer(press, YesButton, "camera");
    QVERIFY(press(PlayButton));
    QRect sound;
    QTRY_VERIFY_WITH_TIMEOUT(!(sound = playedSound()).isEmpty(), LongMs);
    QVERIFY(hands.pick(sound));
    answer(press, YesButton, "speaker");
    QVERIFY(hands.record());
    answer(press, HeardButton, "microphone");
    QVERIFY(press(OkButton));

    QTRY_COMPARE_WITH_TIMEOUT(m_program->state(), QProcess::NotRunning, LongMs);
    QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
    QVERIFY2(m_program->exitCode() == 0, m_program->readAll().constData());
    QString error;
    const QJsonObject report = content("report.json");
    QVERIFY2(ReportJson::fromJson(report, &error), qPrintable(error));
    const QJsonArray checks = report["checks"].toArray();
    QCOMPARE(checks.size(), 4);
    for (const auto check : checks) {
        QCOMPARE(check.toObject()["verdict"].toString(), QStringLiteral("passed"));
    }
}

void tst_WholeRun::byMouse()
{
    const Press press = [this](const QRect& control) { return click(control); };
    goThrough({press, press, [this] { return click(RecordButton); }});
}

// The record button has a key of its own and no focus.
void tst_WholeRun::byKeyboard()
{
    goThrough({[this](const QRect& control) { return typeAt(control); },
               [this](const QRect& sound) { return pickByArrows(sound); },
               [this] { return type(QStringLiteral("alt+r")); }});
}

QTEST_MAIN(tst_WholeRun)
#include "tst_WholeRun.moc"
