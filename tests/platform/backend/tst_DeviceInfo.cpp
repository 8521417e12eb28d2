// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DeviceInfo.h"

#include <QtTest>

using namespace Platform;

namespace {

QStringList namesOf(const QStringList& names)
{
    DeviceList devices;
    for (const QString& name : names) {
        devices.push_back({QString::number(devices.size()), name});
    }
    QStringList result;
    for (const DeviceInfo& device : withDistinctNames(devices)) {
        if (device.id != QString::number(result.size())) {
            return {QStringLiteral("an id was changed")};
        }
        result.append(device.name);
    }
    return result;
}

} // namespace

class tst_DeviceInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsUsableStates_data();
    void tellsUsableStates();
    void numbersEqualNames();
    void blanksControlCharacters();
    void cutsLongNames();
    void copiesNoPrintableName();
    void comparesIdAndName();
    void findsById();
};

void tst_DeviceInfo::tellsUsableStates_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("usable");
    const auto row = [](const char* word, DeviceState state, bool usable) {
        QTest::addRow("%s", word) << int(state) << usable;
    };
    row("absent", DeviceState::Absent, false);
    row("off", DeviceState::Off, false);
    row("denied", DeviceState::Denied, false);
    row("failed", DeviceState::Failed, false);
    row("unreadable", DeviceState::Unreadable, false);
    row("busy", DeviceState::Busy, true);
    row("hung", DeviceState::Hung, true);
    row("silent", DeviceState::Silent, true);
    row("ready", DeviceState::Ready, true);
    row("working", DeviceState::Working, true);
}

void tst_DeviceInfo::tellsUsableStates()
{
    QFETCH(int, state);
    QFETCH(bool, usable);
    QCOMPARE(isUsable(static_cast<DeviceState>(state)), usable);
    QCOMPARE(toString(static_cast<DeviceState>(state)), QString::fromUtf8(QTest::currentDataTag()));
}

void tst_DeviceInfo::numbersEqualNames()
{
    const QString name = QStringLiteral("Camera");
    const QString second = QStringLiteral("Camera (2)");
    const QString third = QStringLiteral("Camera (3)");
    QCOMPARE(namesOf({name, name, name}), (QStringList{name, second, third}));
    QStringList many;
    for (int count = 0; count < 20000; ++count) {
        many.append(name);
    }
    QCOMPARE(namesOf(many).last(), QStringLiteral("Camera (20000)"));
    // One that is called so already.
    QCOMPARE(namesOf({second, name, name}), (QStringList{second, name, third}));
    QCOMPARE(namesOf({QString(), QString()}), (QStringList{QString(), QStringLiteral(" (2)")}));
    const QString markup = QStringLiteral("<b>%1 %2</b>");
    QCOMPARE(namesOf({markup, markup}), (QStringList{markup, markup + QStringLiteral(" (2)")}));
}

void tst_DeviceInfo::blanksControlCharacters()
{
    QCOMPARE(namesOf({QStringLiteral("a\nb\tc"), QStringLiteral("a b c")}),
             (QStringList{QStringLiteral("a b c"), QStringLiteral("a b c (2)")}));
    QCOMPARE(namesOf({QString(QChar(0)) + QStringLiteral("x") + QChar(QChar::LineSeparator)}),
             QStringList{QStringLiteral("x")});
}

void tst_DeviceInfo::cutsLongNames()
{
    const QString fits(200, QLatin1Char('x'));
    QCOMPARE(namesOf({fits}), QStringList{fits});
    const QString cut = QString(199, QLatin1Char('x')) + QChar(0x2026);
    QCOMPARE(namesOf({fits + QLatin1Char('x'), QString(10000, QLatin1Char('x'))}),
             (QStringList{cut, cut + QStringLiteral(" (2)")}));
    // Never in the middle of a character.
    const QString emoji =
        QString(198, QLatin1Char('x')) + QString::fromUcs4(U"\U0001F4F7", 1) + QStringLiteral("yz");
    QCOMPARE(namesOf({emoji}), QStringList{QString(198, QLatin1Char('x')) + QChar(0x2026)});
}

// A list of thousands may change many times a second.
void tst_DeviceInfo::copiesNoPrintableName()
{
    const QString name = QStringLiteral("Loudspeaker %1").arg(1);
    const QString printable = printableName(name);
    QCOMPARE(printable, name);
    QVERIFY(printable.constData() == name.constData());
}

void tst_DeviceInfo::comparesIdAndName()
{
    const DeviceInfo device{QStringLiteral("id"), QStringLiteral("name")};
    QVERIFY(device == (DeviceInfo{QStringLiteral("id"), QStringLiteral("name")}));
    QVERIFY(!(device == DeviceInfo{QStringLiteral("id"), QStringLiteral("other")}));
    QVERIFY(!(device == DeviceInfo{QStringLiteral("other"), QStringLiteral("name")}));
}

void tst_DeviceInfo::findsById()
{
    struct Adjustable : DeviceInfo
    {
        int volume = 0;
    };
    const DeviceList plain{{"a", "Camera A"}, {"b", "Camera B"}};
    QCOMPARE(findDevice(plain, "b"), &plain[1]);
    QVERIFY(!findDevice(plain, "c"));
    QCOMPARE(nameIn(plain, "b"), QStringLiteral("Camera B"));
    QCOMPARE(nameIn(plain, "c"), QString());
    QCOMPARE(nameIn({}, ""), QString());
    std::vector<Adjustable> derived{{{"a", "Speaker"}, 50}};
    findDevice(derived, "a")->volume = 60;
    QCOMPARE(derived.front().volume, 60);
}

QTEST_GUILESS_MAIN(tst_DeviceInfo)
#include "tst_DeviceInfo.moc"
