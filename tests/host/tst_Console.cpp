// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Console.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_Console : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainLine_data();
    void plainLine();
    void plainJson();
    void columns();
};

void tst_Console::plainLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("plain") << "A camera"
                           << "A camera";
    QTest::newRow("lines") << "a\nb\r\nc\td"
                           << "a b c d";
    QTest::newRow("an escape sequence") << "a\x1b[31mb"
                                        << "a [31mb";
    QTest::newRow("a bell and DEL") << "a\x07\x7f"
                                       "b"
                                    << "a b";
    QTest::newRow("C1") << QStringLiteral("a") + QChar(0x9B) + QStringLiteral("b") << "a b";
    QTest::newRow("turned around")
        << QStringLiteral("a") + QChar(0x202E) + QStringLiteral("b") << "a b";
    for (const int code : {0x061C, 0x200E, 0x200F, 0x2028, 0x2029, 0x2069}) {
        QTest::addRow("U+%04X", code)
            << QStringLiteral("a") + QChar(code) + QStringLiteral("b") << "a b";
    }
    QTest::newRow("isolated") << QStringLiteral("a") + QChar(0x2067) + QStringLiteral("b") << "a b";
}

void tst_Console::plainLine()
{
    QFETCH(QString, text);
    QTEST(Console::plainLine(text), "line");
}

void tst_Console::plainJson()
{
    const QString foreign =
        QString::fromUtf8("a\x1b\n\t\x7f\u009b31m\u202e\u2067\u2028\u200f\u061c") +
        QString::fromUtf8(" 摄像头 \U0001F4F7");
    const QJsonDocument document(QJsonObject{{foreign, QJsonArray{foreign}}});
    const QString json = Console::plainJson(document);
    const QString escaped = QStringLiteral("\"a\\u001b\\n\\t\\u007f\\u009b31m\\u202e\\u2067\\u2028"
                                           "\\u200f\\u061c 摄像头 \U0001F4F7\"");
    QCOMPARE(json, QStringLiteral("{\n    %1: [\n        %1\n    ]\n}\n").arg(escaped));
    QCOMPARE(QJsonDocument::fromJson(json.toUtf8()), document);
}

void tst_Console::columns()
{
    QCOMPARE(Console::columns(QString()), 0);
    QCOMPARE(Console::columns(QStringLiteral("Camera")), 6);
    QCOMPARE(Console::columns(QString::fromUtf8("摄像头")), 6);
    QCOMPARE(Console::columns(QString::fromUtf8("카메라 1")), 8);
    QCOMPARE(Console::columns(QString::fromUtf8("e\u0301")), 1);    // a combining accent
    QCOMPARE(Console::columns(QString::fromUtf8("\U0001F4F7")), 2); // beyond 16 bits
    QCOMPARE(Console::columns(QString::fromUtf8("Kamera \u200B")), 7);
}

QTEST_GUILESS_MAIN(tst_Console)
#include "tst_Console.moc"
