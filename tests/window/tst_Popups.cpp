// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/window/DisplayServer.h"
#include "tests/window/PopupScene.h"
#include "widgets/LumToolTip.h"

#include <LumWidgets/QCustomComboBox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QtTest>

using namespace TestSupport;

namespace {

constexpr QSize ScreenSize(1366, 768);
constexpr int Near = 12; // pixels
const QRgb White = qRgb(255, 255, 255);

} // namespace

// Popups as the window system shows them, told from pictures of the screen. The argument --wayland
// runs it on a Wayland compositor, otherwise it is an X server.
class tst_Popups : public QObject
{
    Q_OBJECT

public:
    explicit tst_Popups(DisplayServer& server, bool isWayland)
        : m_server(server), m_isWayland(isWayland)
    {
    }

private Q_SLOTS:
    void cleanup();
    void init();
    void balloonIsAboveItsAnchor_data() { addManagers(); }
    void balloonIsAboveItsAnchor();
    void balloonThatIsPlacedLate_data() { addManagers(); }
    void balloonThatIsPlacedLate();
    void balloonStaysOnTheScreen_data() { addManagers(); }
    void balloonStaysOnTheScreen();
    void clickOpensTheListAndClosesIt_data() { addManagers(); }
    void clickOpensTheListAndClosesIt();

private:
    void addManagers() const;
    void moveToBox();
    void compareBalloon();

    DisplayServer& m_server;
    const bool m_isWayland;
    std::unique_ptr<PopupScene> m_scene;
    QRect m_box;
};

void tst_Popups::addManagers() const
{
    QTest::addColumn<QString>("manager");
    QTest::newRow("no window manager") << QString();
    if (!m_isWayland) {
        for (const char* name : {"openbox", "metacity"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }
}

void tst_Popups::init()
{
    QFETCH(QString, manager);
    QVERIFY(m_isWayland || m_server.startManager(manager));
    m_scene = std::make_unique<PopupScene>();
    m_scene->dialog().show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_scene->dialog()));
    // Without the ring around the control with the focus, which lies below the balloon.
    QTest::mouseClick(m_scene->combo().parentWidget(), Qt::LeftButton);
    QTRY_VERIFY(!PopupScene::comboIn(m_server.picture()).isEmpty());
}

void tst_Popups::cleanup()
{
    m_scene.reset();
}

void tst_Popups::moveToBox()
{
    m_box = PopupScene::comboIn(m_server.picture());
    QVERIFY(m_server.type({QStringLiteral("mousemove"), QString::number(m_box.center().x()),
                           QString::number(m_box.center().y())}));
}

void tst_Popups::compareBalloon()
{
    QImage screen;
    QRect balloon;
    QTRY_VERIFY(!(balloon = PopupScene::balloonIn(screen = m_server.picture())).isEmpty());
    const QPoint difference = balloon.bottomLeft() - PopupScene::comboIn(screen).topLeft();
    QVERIFY2(difference.manhattanLength() <= Near,
             qPrintable(QStringLiteral("%1, %2").arg(difference.x()).arg(difference.y())));
    // Beside the arrow there is the dialog, not a black band.
    QCOMPARE(screen.pixel(balloon.center().x(), balloon.bottom() + 3) | 0xff000000u, White);
}

void tst_Popups::balloonIsAboveItsAnchor()
{
    m_scene->placeBalloon();
    m_scene->balloon().show();
    compareBalloon();
}

void tst_Popups::balloonThatIsPlacedLate()
{
    m_scene->balloon().show();
    m_scene->placeBalloon();
    m_scene->balloon().raise();
    compareBalloon();
    QVERIFY(m_scene->balloon().isVisible());
}

// Where its owner puts it may be beside the screen. A Wayland compositor tells nobody where its
// windows are.
void tst_Popups::balloonStaysOnTheScreen()
{
    m_scene->balloon().show();
    if (m_isWayland) {
        m_scene->placeBalloon();
    } else {
        m_scene->balloon().move(ScreenSize.width() - 40, ScreenSize.height() - 20);
    }
    const QSize size = m_scene->balloon().size();
    QTRY_COMPARE(PopupScene::balloonIn(m_server.picture()).width(), size.width());
    QVERIFY(PopupScene::balloonIn(m_server.picture()).height() > size.height() / 2);
}

// However long the button is held.
void tst_Popups::clickOpensTheListAndClosesIt()
{
    moveToBox();
    const QAbstractItemView* list = m_scene->combo().view();
    for (const char* held : {"0", "0.6"}) {
        const QStringList click{QStringLiteral("mousedown"), QStringLiteral("1"),
                                QStringLiteral("sleep"),     QLatin1String(held),
                                QStringLiteral("mouseup"),   QStringLiteral("1")};
        QVERIFY(m_server.type(click));
        QRect place;
        QTRY_VERIFY(!(place = PopupScene::listIn(m_server.picture())).isEmpty());
        QVERIFY(list->isVisible());
        const QPoint difference = place.topLeft() - m_box.bottomLeft();
        QVERIFY2(difference.manhattanLength() <= Near,
                 qPrintable(QStringLiteral("%1, %2").arg(difference.x()).arg(difference.y())));
        QVERIFY(m_server.type(click));
        QTRY_VERIFY(PopupScene::listIn(m_server.picture()).isEmpty());
        QVERIFY(!list->isVisible());
    }
}

int main(int argc, char* argv[])
{
    bool isWayland = false;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--wayland") == 0) {
            isWayland = true;
            std::copy(argv + i + 1, argv + argc + 1, argv + i);
            --argc;
        }
    }
    DisplayServer server(isWayland ? DisplayServer::Kind::Wayland : DisplayServer::Kind::X11);
    if (!server.start(ScreenSize)) {
        qCritical("There is no display server to test with");
        return EXIT_FAILURE;
    }
    server.useForThisProcess();
    QApplication application(argc, argv);
    tst_Popups test(server, isWayland);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Popups.moc"
