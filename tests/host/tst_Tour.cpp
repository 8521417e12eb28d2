// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/Tour.h"

#include <QDialog>
#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr QSize ScreenSize(640, 480);
constexpr QPoint DialogPlace(101, 57);

} // namespace

// Pictures that come from outside, of a screen that shows the dialog late or never.
class tst_Tour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void waitsForTheCompositor();
    void tellsOfADialogThatIsNeverShown();

private:
    // Shows the dialog from this picture on; 0: never.
    void useCamera(int firstPictureWithDialog);
    QStringList problemsOfTour();
    int pictureCount() const;

    QTemporaryDir* m_folder = nullptr;
    QDialog* m_dialog = nullptr;
};

void tst_Tour::init()
{
    m_folder = new QTemporaryDir;
    m_dialog = new QDialog;
    m_dialog->setFixedSize(300, 200);
    m_dialog->setStyleSheet(QStringLiteral("background:white;color:#232323"));
    auto* page = new QWidget(m_dialog);
    page->setObjectName(QStringLiteral("selfcheckContentPage"));
    page->setGeometry(m_dialog->rect());
    (new QLabel(QStringLiteral("System check"), page))->setGeometry(10, 5, 200, 30);
    m_dialog->show();
}

void tst_Tour::cleanup()
{
    delete m_dialog;
    delete m_folder;
    qunsetenv("ENVCHECK_SCREENSHOT");
}

void tst_Tour::useCamera(int firstPictureWithDialog)
{
    QImage screen(ScreenSize, QImage::Format_RGB32);
    screen.fill(Qt::darkGreen);
    QVERIFY(screen.save(m_folder->filePath(QStringLiteral("empty.png"))));
    QPainter(&screen).drawPixmap(DialogPlace, m_dialog->grab());
    QVERIFY(screen.save(m_folder->filePath(QStringLiteral("full.png"))));
    QFile program(m_folder->filePath(QStringLiteral("camera")));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write(
        QStringLiteral("#!/bin/sh\n"
                       "cd '%1'; echo >> taken\n"
                       "picture=empty; first=%2\n"
                       "[ $first -gt 0 ] && [ $(wc -l < taken) -ge $first ] && picture=full\n"
                       "cp $picture.png \"$1\"\n")
            .arg(m_folder->path(), QString::number(firstPictureWithDialog))
            .toUtf8());
    program.close();
    QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    qputenv("ENVCHECK_SCREENSHOT", program.fileName().toUtf8());
}

QStringList tst_Tour::problemsOfTour()
{
    bool isAtSecondStop = false;
    const auto isReady = [](const DialogView&) { return true; };
    Tour tour(m_folder->path(),
              {{QStringLiteral("first"), [](const DialogView&) {}, isReady},
               {QString(), [&](const DialogView&) { isAtSecondStop = true; }, isReady}});
    tour.start();
    [&] { QTRY_VERIFY_WITH_TIMEOUT(isAtSecondStop, 20000); }();
    QString error;
    return tour.finish(QStringLiteral("Tour"), &error) ? tour.problems() : QStringList{error};
}

int tst_Tour::pictureCount() const
{
    QFile taken(m_folder->filePath(QStringLiteral("taken")));
    return taken.open(QIODevice::ReadOnly) ? taken.readAll().count('\n') : 0;
}

void tst_Tour::waitsForTheCompositor()
{
    useCamera(3);
    QCOMPARE(problemsOfTour(), QStringList());
    QCOMPARE(pictureCount(), 3);
    const QImage picture(m_folder->filePath(QStringLiteral("first.png")));
    QCOMPARE(picture.size(), m_dialog->size() + QSize(40, 40)); // a border of 20 pixels
}

void tst_Tour::tellsOfADialogThatIsNeverShown()
{
    useCamera(0);
    QCOMPARE(problemsOfTour(), QStringList{QStringLiteral(
                                   "first: far: the dialog isn't on the picture of the screen")});
    QCOMPARE(pictureCount(), 10);
}

QTEST_MAIN(tst_Tour)
#include "tst_Tour.moc"
