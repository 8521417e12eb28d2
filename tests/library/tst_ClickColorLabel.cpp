// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/ClickColorLabel.h"

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_ClickColorLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickedAtEveryRelease_data();
    void clickedAtEveryRelease();
    void releaseOutsideCounts();
    void baseHandlerIsNotCalled();
    void verdictBringsAFreshPalette();
    void lastVerdictStays();
    void laterPaletteReplacesTheVerdict();
    void metaObjectHasOneSignal();
};

void tst_ClickColorLabel::clickedAtEveryRelease_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_ClickColorLabel::clickedAtEveryRelease()
{
    QFETCH(Qt::MouseButton, button);
    ClickColorLabel label(nullptr);
    QSignalSpy clicked(&label, &ClickColorLabel::clicked);
    QTest::mousePress(&label, button);
    QCOMPARE(clicked.count(), 0);
    QTest::mouseRelease(&label, button);
    QCOMPARE(clicked.count(), 1);
}

void tst_ClickColorLabel::releaseOutsideCounts()
{
    ClickColorLabel label(nullptr);
    label.resize(86, 28);
    QSignalSpy clicked(&label, &ClickColorLabel::clicked);
    QTest::mousePress(&label, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(500, 500));
    QCOMPARE(clicked.count(), 1);
}

void tst_ClickColorLabel::baseHandlerIsNotCalled()
{
    // QLabel's handler would take a release on a link and ignore one elsewhere.
    ClickColorLabel label(nullptr);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    release.accept();
    QCoreApplication::sendEvent(&label, &release);
    QVERIFY(release.isAccepted());
}

void tst_ClickColorLabel::verdictBringsAFreshPalette()
{
    ClickColorLabel label(nullptr);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::yellow);
    label.setPalette(palette);
    label.setResultColor(true);
    QVERIFY(label.palette().color(QPalette::Window) != QColor(Qt::yellow));
}

void tst_ClickColorLabel::lastVerdictStays()
{
    ClickColorLabel label(nullptr);
    label.setResultColor(true);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#009265"));
    QVERIFY(label.styleSheet().isEmpty()); // the frame's own colour has to come through later
    label.setResultColor(false);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#FF4A27"));
}

void tst_ClickColorLabel::laterPaletteReplacesTheVerdict()
{
    ClickColorLabel label(nullptr);
    label.setResultColor(true);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(35, 35, 35, 204));
    label.setPalette(palette);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(35, 35, 35, 204));
}

void tst_ClickColorLabel::metaObjectHasOneSignal()
{
    const QMetaObject& meta = ClickColorLabel::staticMetaObject;
    QCOMPARE(meta.className(), "ClickColorLabel");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("clicked()"));
}

QTEST_MAIN(tst_ClickColorLabel)
#include "tst_ClickColorLabel.moc"
