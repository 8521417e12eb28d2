// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

#include "host/Languages.h"

#include <QLocale>
#include <QtTest>

class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void available();
    void nearest_data();
    void nearest();
    void unknownOnes_data();
    void unknownOnes();
    void systemLanguage();
    void textsGoWithTheObject();
    void qtSpeaksTheLanguageToo();
};

void tst_Languages::available()
{
    QCOMPARE(Languages::available().join(QLatin1Char(' ')), QStringLiteral(ENVCHECK_LANGUAGES));
}

void tst_Languages::nearest_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("taken");
    QTest::newRow("exact") << "de"
                           << "de";
    QTest::newRow("a country") << "de_AT"
                               << "de";
    QTest::newRow("hyphen") << "pt-BR"
                            << "pt_BR";
    QTest::newRow("another country") << "pt_PT"
                                     << "pt_BR";
    QTest::newRow("simplified") << "zh"
                                << "zh_CN";
    QTest::newRow("Singapore") << "zh_Hans_SG"
                               << "zh_CN";
    QTest::newRow("traditional") << "zh_Hant"
                                 << "zh_TW";
    QTest::newRow("Hong Kong") << "zh_HK"
                               << "zh_TW";
}

void tst_Languages::nearest()
{
    QFETCH(QString, wanted);
    Languages languages;
    QCOMPARE(languages.use(wanted), QString());
    QTEST(languages.current(), "taken");
    QCOMPARE(QLocale().language(), QLocale(languages.current()).language());
}

void tst_Languages::unknownOnes_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::newRow("no such language") << "tlh";
    QTest::newRow("not brought along") << "it";
    QTest::newRow("a path") << "../../etc/passwd";
}

void tst_Languages::unknownOnes()
{
    QFETCH(QString, wanted);
    Languages languages;
    const QString problem = languages.use(wanted);
    QVERIFY2(problem.contains(wanted), qPrintable(problem));
    QVERIFY2(problem.contains(QLatin1String("zh_CN")), qPrintable(problem));
    // The message itself comes in the system's language: the test runs under LC_ALL=C.
    QCOMPARE(languages.current(), QStringLiteral("en"));
    QCOMPARE(qtTrId("ID_Host_Yes"), QStringLiteral("Yes"));
}

void tst_Languages::systemLanguage()
{
    Languages languages;
    QCOMPARE(languages.use(QString()), QString());
    QCOMPARE(languages.current(), QStringLiteral("en")); // the test runs under LC_ALL=C
}

void tst_Languages::textsGoWithTheObject()
{
    QCOMPARE(qtTrId("ID_Host_Yes"), QStringLiteral("ID_Host_Yes"));
    {
        Languages languages;
        QCOMPARE(languages.use(QStringLiteral("fr")), QString());
        QCOMPARE(qtTrId("ID_Host_Yes"), QStringLiteral("Oui"));
        QCOMPARE(languages.use(QStringLiteral("es")), QString());
        QCOMPARE(qtTrId("ID_Host_Yes"), QString::fromUtf8("Sí"));
    }
    QCOMPARE(qtTrId("ID_Host_Yes"), QStringLiteral("ID_Host_Yes"));
}

void tst_Languages::qtSpeaksTheLanguageToo()
{
    Languages languages;
    for (const char* language : {"de", "vi"}) {
        QCOMPARE(languages.use(QLatin1String(language)), QString());
        QVERIFY(QCoreApplication::translate("QPlatformTheme", "&Yes") != QLatin1String("&Yes"));
    }
}

QTEST_GUILESS_MAIN(tst_Languages)
#include "tst_Languages.moc"
