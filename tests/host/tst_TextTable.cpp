// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/TextTable.h"

#include <QtTest>

class tst_TextTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAreAsWideAsTheirWidestCell();
    void wideCharactersCountTwice();
    void linesEndWithoutSpaces();
    void headingsWidenNothing();
    void veryLongCellsWidenLittle();
    void emptyTable();
};

void tst_TextTable::columnsAreAsWideAsTheirWidestCell()
{
    TextTable table;
    table.addRow({QStringLiteral("Camera"), QStringLiteral("ok"), QStringLiteral("Front")});
    table.addRow({QStringLiteral("Net"), QStringLiteral("failed"), QStringLiteral("20 ms")});
    QCOMPARE(table.toText(), QStringLiteral("Camera  ok      Front\n"
                                            "Net     failed  20 ms\n"));
}

void tst_TextTable::wideCharactersCountTwice()
{
    TextTable table;
    table.addRow({QString::fromUtf8("摄像头"), QStringLiteral("a")});
    table.addRow({QStringLiteral("abcdef"), QStringLiteral("b")});
    table.addRow({QString::fromUtf8("e\u0301"), QStringLiteral("c")});
    QCOMPARE(table.toText(), QString::fromUtf8("摄像头  a\nabcdef  b\ne\u0301       c\n"));
}

void tst_TextTable::linesEndWithoutSpaces()
{
    TextTable table;
    table.addRow({QStringLiteral("a"), QString(), QStringLiteral("b")});
    table.addRow({QStringLiteral("longer"), QString(), QString()});
    table.addRow({QStringLiteral("c")});
    QCOMPARE(table.toText(), QStringLiteral("a         b\nlonger\nc\n"));
}

void tst_TextTable::headingsWidenNothing()
{
    TextTable table;
    table.addHeading(QStringLiteral("A long heading"));
    table.addRow({QStringLiteral("a"), QStringLiteral("b")});
    QCOMPARE(table.toText(), QStringLiteral("A long heading\na  b\n"));
}

void tst_TextTable::veryLongCellsWidenLittle()
{
    const QString endless(100000, QLatin1Char('x'));
    TextTable table;
    table.addRow({endless, QStringLiteral("a")});
    table.addRow({QStringLiteral("b"), QStringLiteral("c")});
    QCOMPARE(table.toText(), endless + QStringLiteral("  a\nb") + QString(201, QLatin1Char(' ')) +
                                 QStringLiteral("c\n"));
}

void tst_TextTable::emptyTable()
{
    QCOMPARE(TextTable().toText(), QString());
}

QTEST_GUILESS_MAIN(tst_TextTable)
#include "tst_TextTable.moc"
