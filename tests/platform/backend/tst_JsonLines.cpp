// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/JsonLines.h"

#include <QtTest>

using Platform::JsonLines;

class tst_JsonLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsLines_data();
    void findsLines();
    void findsDuplicates_data();
    void findsDuplicates();
    void needsNoMoreThanTheText_data();
    void needsNoMoreThanTheText();
};

void tst_JsonLines::findsLines_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("line");
    const auto row = [](const char* path, int line) {
        QTest::newRow(path) << QString::fromLatin1(path) << line;
    };
    row("", 1);
    row("a", 2);
    row("ab", 3);
    row("ab.c", 4);
    row("ab.list", 5);
    row("ab.list[0]", 5);
    row("ab.list[1]", 6);
    row("ab.list[1].x", 7);
    row("last", 9);
    // A path that doesn't exist has the line of its nearest parent.
    row("ab.none", 3);
    row("ab.list[7]", 5);
    row("ab.list[1].none.deeper", 6);
    row("abc", 1);
    row("none", 1);
}

void tst_JsonLines::findsLines()
{
    const JsonLines lines(
        "\xEF\xBB\xBF{\n\"a\": \"}{\\\"\",\n\"ab\": {\n\"c\": -1e5,\n\"list\": [ 1,\n"
        "{\n\"x\": [] }, {}\n]},\n\"last\": null }");
    QFETCH(QString, path);
    QTEST(lines.lineOf(path), "line");
}

void tst_JsonLines::findsDuplicates_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("path");
    QTest::newRow("none") << QByteArray(R"({"a": {"b": 1}, "b": [{"b": 1}, {"b": 2}]})") << "";
    QTest::newRow("at the top") << QByteArray(R"({"a": 1, "b": 2, "a": 3})") << "a";
    QTest::newRow("within") << QByteArray(R"({"a": [0, {"b": 1, "b": 2}]})") << "a[1].b";
    QTest::newRow("the first") << QByteArray(R"({"a": {"b": 1, "b": 2}, "a": 1})") << "a.b";
}

void tst_JsonLines::findsDuplicates()
{
    QFETCH(QByteArray, json);
    QTEST(JsonLines(json).duplicate(), "path");
}

// A table of all paths would take more than a hundred gigabytes for either.
void tst_JsonLines::needsNoMoreThanTheText_data()
{
    QTest::addColumn<QByteArray>("json");
    const QByteArray zeros = QByteArray("0,").repeated(200000) + '0';
    QTest::newRow("a long key") << "{\"" + QByteArray(400000, 'k') + "\": [" + zeros + "]}";
    const int depth = 1000;
    QTest::newRow("long keys within each other")
        << QByteArray("{\"" + QByteArray(400, 'k') + "\":").repeated(depth) + '[' + zeros + ']' +
               QByteArray(depth, '}');
}

void tst_JsonLines::needsNoMoreThanTheText()
{
    QFETCH(QByteArray, json);
    const JsonLines lines(json);
    QCOMPARE(lines.duplicate(), QString());
    QCOMPARE(lines.lineOf(QString(400, QLatin1Char('k'))), 1);
}

QTEST_GUILESS_MAIN(tst_JsonLines)
#include "tst_JsonLines.moc"
