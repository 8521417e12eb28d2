// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DeviceInfo.h"
#include "platform/backend/EnumWords.h"

#include <QtTest>

using Platform::DeviceState;
namespace EnumWords = Platform::EnumWords;

class tst_EnumWords : public QObject
{
    Q_OBJECT

public:
    enum class Sample { NotMeasured = 7, Off = 2 };
    Q_ENUM(Sample)

private Q_SLOTS:
    void wordsStartSmall();
    void wordsAndValuesMatch();
    void foreignWordsHaveNoValue();
};

void tst_EnumWords::wordsStartSmall()
{
    QCOMPARE(EnumWords::all<Sample>(),
             (QStringList{QStringLiteral("notMeasured"), QStringLiteral("off")}));
    QCOMPARE(EnumWords::word(DeviceState::Busy), QStringLiteral("busy"));
    QCOMPARE(EnumWords::word(static_cast<Sample>(1)), QString());
}

void tst_EnumWords::wordsAndValuesMatch()
{
    for (const Sample sample : {Sample::NotMeasured, Sample::Off}) {
        const std::optional<Sample> value = EnumWords::value<Sample>(EnumWords::word(sample));
        QVERIFY(value);
        QVERIFY(*value == sample);
    }
}

void tst_EnumWords::foreignWordsHaveNoValue()
{
    for (const char* word : {"", "NotMeasured", "offf", "notMeasured "}) {
        QVERIFY2(!EnumWords::value<Sample>(QLatin1String(word)), word);
    }
}

QTEST_GUILESS_MAIN(tst_EnumWords)
#include "tst_EnumWords.moc"
