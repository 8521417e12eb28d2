// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"
#include "agent/MissingPieces.h"
#include "tests/support/Dictionary.h"

#include <QRegularExpression>
#include <QtTest>

class tst_MissingPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsMissing()
    {
        const Dictionary texts({{"ID_Kestrel_SystemTesting", "System check"}});
        QCOMPARE(MissingPieces::find(), QStringList());
        MissingPieces::report(); // a warning would fail this test
    }

    void textsAreMissing()
    {
        QCOMPARE(MissingPieces::find(),
                 QStringList("texts (no QTranslator knows \"ID_Kestrel_SystemTesting\")"));
        QTest::ignoreMessage(
            QtWarningMsg,
            QRegularExpression("^The check opens without .*: texts \\(.*envcheck_deploy\\(\\)"));
        MissingPieces::report();
    }

    void picturesAreMissing()
    {
        const Dictionary texts({{"ID_Kestrel_SystemTesting", "System check"}});
        Q_CLEANUP_RESOURCE(host);
        const QStringList missing = MissingPieces::find();
        Q_INIT_RESOURCE(host);
        QCOMPARE(missing.size(), 5);
        QCOMPARE(missing.last(),
                 QStringLiteral("picture \":/common/images/common/invite_more.svg\""));
    }

    void versionsAgree()
    {
        const QMetaObject& meta = EnvCheckAgent::staticMetaObject;
        const QMetaClassInfo info = meta.classInfo(meta.indexOfClassInfo("Version"));
        QCOMPARE(info.value(), ENVCHECK_VERSION);
        QCOMPARE(QByteArray(ENVCHECK_VERSION), QByteArray::number(ENVCHECK_VERSION_MAJOR) + '.' +
                                                   QByteArray::number(ENVCHECK_VERSION_MINOR) +
                                                   '.' +
                                                   QByteArray::number(ENVCHECK_VERSION_PATCH));
    }
};

QTEST_MAIN(tst_MissingPieces)
#include "tst_MissingPieces.moc"
