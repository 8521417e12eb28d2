// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/HelpLayout.h"

#include <QtTest>

class tst_HelpLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsStandInOneColumn();
    void namesMayBeWide();
    void wrapped_data();
    void wrapped();
};

void tst_HelpLayout::textsStandInOneColumn()
{
    HelpLayout help;
    help.addParagraph(QStringLiteral("What it does."));
    help.addList(QStringLiteral("Options:"), {{QStringLiteral("--a"), QStringLiteral("one")},
                                              {QStringLiteral("--long"), QString(80, 'x')}});
    QCOMPARE(help.toText(), QStringLiteral("What it does.\n\nOptions:\n  --a     one\n  --long  ") +
                                QString(80, 'x') + QStringLiteral("\n"));
}

void tst_HelpLayout::namesMayBeWide()
{
    HelpLayout help;
    help.addList(QStringLiteral("A"), {{QString::fromUtf8("摄像头"), QStringLiteral("1")},
                                       {QStringLiteral("ab"), QString(40, QChar(0x753B))}});
    const QString half(34, QChar(0x753B)); // 69 columns are left
    QCOMPARE(help.toText(), QString::fromUtf8("A\n  摄像头  1\n  ab      ") + half +
                                QStringLiteral("\n          ") + half.left(6) +
                                QStringLiteral("\n"));
}

void tst_HelpLayout::wrapped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("empty") << QString() << QStringList{QString()};
    QTest::newRow("fits") << "ten column" << QStringList{"ten column"};
    QTest::newRow("at a space") << "ten columns" << QStringList{"ten", "columns"};
    QTest::newRow("a long word") << "a abcdefghijklm b" << QStringList{"a", "abcdefghijklm", "b"};
    QTest::newRow("options and addresses stay whole")
        << "see --platform a/b-c:3478" << QStringList{"see", "--platform", "a/b-c:3478"};
    QTest::newRow("Chinese") << QString::fromUtf8("服务器没有响应")
                             << QStringList{QString::fromUtf8("服务器没有"),
                                            QString::fromUtf8("响应")};
    QTest::newRow("no line begins with a full stop")
        << QString::fromUtf8("服务器没有。")
        << QStringList{QString::fromUtf8("服务器没"), QString::fromUtf8("有。")};
}

void tst_HelpLayout::wrapped()
{
    QFETCH(QString, text);
    QTEST(HelpLayout::wrapped(text, 10), "lines");
}

QTEST_GUILESS_MAIN(tst_HelpLayout)
#include "tst_HelpLayout.moc"
