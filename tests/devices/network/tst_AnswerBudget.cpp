// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/AnswerBudget.h"

#include <QTest>

using Platform::AnswerBudget;

class tst_AnswerBudget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachClientHasItsOwn();
    void clientsOfOneHostShare();
    void hostsOfIPv6AreNetworks();
    void allShare();
    void everySecondIsNew();
};

namespace {

constexpr quint64 Secret = 7;
constexpr quint16 Port = 40000;
const QHostAddress Host(0xC0000201); // 192.0.2.1

int taken(AnswerBudget& budget, const QHostAddress& address, quint16 port, int count,
          qint64 nowMs = 0)
{
    int result = 0;
    for (int i = 0; i < count; ++i) {
        result += budget.take(address, port, nowMs) ? 1 : 0;
    }
    return result;
}

} // namespace

void tst_AnswerBudget::eachClientHasItsOwn()
{
    AnswerBudget budget(Secret);
    QCOMPARE(taken(budget, Host, Port, 100000), AnswerBudget::PerClient);
    QCOMPARE(taken(budget, Host, Port + 1, 10), 10);
    QCOMPARE(taken(budget, QHostAddress(0xC0000202), Port, 10), 10);
    // One socket may serve both protocols.
    QCOMPARE(taken(budget, QHostAddress(QStringLiteral("::ffff:192.0.2.1")), Port, 1), 0);
}

void tst_AnswerBudget::clientsOfOneHostShare()
{
    AnswerBudget budget(Secret);
    int answers = 0;
    for (quint16 port = 1; port < 2000; ++port) {
        answers += taken(budget, Host, port, 10);
    }
    QCOMPARE(answers, AnswerBudget::PerHost);
    QCOMPARE(taken(budget, QHostAddress(0xC0000202), Port, 10), 10);
}

void tst_AnswerBudget::hostsOfIPv6AreNetworks()
{
    AnswerBudget budget(Secret);
    int answers = 0;
    for (int number = 1; number < 2000; ++number) {
        answers += taken(budget, QHostAddress(QStringLiteral("2001:db8::%1").arg(number)), Port, 1);
    }
    QCOMPARE(answers, AnswerBudget::PerClient); // the same port throughout
    QCOMPARE(taken(budget, QHostAddress(QStringLiteral("2001:db8:0:1::1")), Port, 10), 10);
}

// Invented addresses cost no memory, and the answers have an end.
void tst_AnswerBudget::allShare()
{
    AnswerBudget budget(Secret);
    int answers = 0;
    for (quint32 number = 0; number < 100000; ++number) {
        answers += taken(budget, QHostAddress(number), Port, 1);
    }
    QCOMPARE(answers, AnswerBudget::InAll);
}

void tst_AnswerBudget::everySecondIsNew()
{
    AnswerBudget budget(Secret);
    QCOMPARE(taken(budget, Host, Port, 1000, 5000), AnswerBudget::PerClient);
    QCOMPARE(taken(budget, Host, Port, 1000, 5999), 0);
    QCOMPARE(taken(budget, Host, Port, 1000, 6000), AnswerBudget::PerClient);
}

QTEST_GUILESS_MAIN(tst_AnswerBudget)
#include "tst_AnswerBudget.moc"
