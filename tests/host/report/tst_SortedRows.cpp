// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"
#include "host/report/SortedRows.h"

#include <QtTest>

class tst_SortedRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void worstFirst();
    void none();
    void diskThatRefuses();

private:
    Languages m_languages;
};

namespace {

QByteArrayList visited(SortedRows& rows)
{
    QByteArrayList result;
    rows.visit([&result](const QByteArray& row) { result << row; });
    return result;
}

} // namespace

void tst_SortedRows::initTestCase()
{
    QCOMPARE(m_languages.use(QStringLiteral("en")), QString());
}

void tst_SortedRows::worstFirst()
{
    SortedRows rows;
    rows.add(1, "first of one");
    rows.add(7, "worst");
    rows.add(1, QByteArray());
    rows.add(1, "third of one");
    rows.add(0, QByteArray(100000, 'x'));
    QCOMPARE(rows.count(), 5);
    QCOMPARE(visited(rows), QByteArrayList({"worst", "first of one", "", "third of one",
                                            QByteArray(100000, 'x')}));
    QCOMPARE(rows.problem(), QString());
}

void tst_SortedRows::none()
{
    SortedRows rows;
    QCOMPARE(rows.count(), 0);
    QCOMPARE(visited(rows), QByteArrayList());
}

void tst_SortedRows::diskThatRefuses()
{
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // nobody makes files there
    SortedRows rows;
    rows.add(1, "row");
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY2(rows.problem().startsWith(QLatin1String("/proc")), qPrintable(rows.problem()));
    QCOMPARE(rows.count(), 0);
}

QTEST_GUILESS_MAIN(tst_SortedRows)
#include "tst_SortedRows.moc"
