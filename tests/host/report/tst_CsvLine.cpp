// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/report/CsvLine.h"

#include <QtTest>

class tst_CsvLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cells_data();
    void cells();
    void lines();
};

void tst_CsvLine::cells_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("cell");
    QTest::newRow("text") << QJsonValue(QStringLiteral("camera")) << "camera";
    QTest::newRow("empty") << QJsonValue(QString()) << "";
    QTest::newRow("null") << QJsonValue() << "";
    QTest::newRow("number") << QJsonValue(29.97) << "29.97";
    QTest::newRow("negative number") << QJsonValue(-60) << "-60";
    QTest::newRow("great number") << QJsonValue(1234567890.0) << "1234567890";
    QTest::newRow("comma") << QJsonValue(QStringLiteral("a,b")) << "\"a,b\"";
    QTest::newRow("quotes") << QJsonValue(QStringLiteral("a \"b\"")) << "\"a \"\"b\"\"\"";
    QTest::newRow("line break") << QJsonValue(QStringLiteral("a\nb")) << "a b";
    QTest::newRow("terminal control") << QJsonValue(QStringLiteral("a\x1b[2Jb")) << "a [2Jb";
    QTest::newRow("formula") << QJsonValue(QStringLiteral("=1+1")) << "'=1+1";
    QTest::newRow("formula with quotes")
        << QJsonValue(QStringLiteral("=cmd|'/C calc'!\"A\"")) << "\"'=cmd|'/C calc'!\"\"A\"\"\"";
    for (const char* start : {"+", "-", "@", "|", "%"}) {
        const QString text = QLatin1String(start) + QStringLiteral("1");
        QTest::newRow(start) << QJsonValue(text) << QLatin1Char('\'') + text;
    }
    QTest::newRow("wide equals sign")
        << QJsonValue(QString::fromUtf8("\uFF1D1")) << QString::fromUtf8("'\uFF1D1");
}

void tst_CsvLine::cells()
{
    QFETCH(QJsonValue, value);
    QFETCH(QString, cell);
    QCOMPARE(CsvLine::of({value}), cell + QStringLiteral("\r\n"));
}

void tst_CsvLine::lines()
{
    QCOMPARE(CsvLine::ofNames({QStringLiteral("id"), QStringLiteral("computer")}),
             QStringLiteral("id,computer\r\n"));
    QCOMPARE(CsvLine::of({QJsonValue(1), QJsonValue(), QStringLiteral("x")}),
             QStringLiteral("1,,x\r\n"));
}

QTEST_GUILESS_MAIN(tst_CsvLine)
#include "tst_CsvLine.moc"
