// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/MachineFacts.h"
#include "platform/devices/facts/HostUser.h"
#include "platform/devices/facts/LocalAddress.h"

#include <QDir>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <windows.h>
// Must follow windows.h.
#include <lm.h>
#define SECURITY_WIN32
#include <security.h>

using namespace Platform;

// Against what Windows' own functions say.
class tst_WindowsFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operatingSystem();
    void processorName();
    void availableBytes();
    void unknownVolume();
    void user();
    void localAddress();
};

namespace {

// Of the present volumes while others write to them.
constexpr qint64 SlackBytes = 256 * 1024 * 1024;

qint64 freeBytes(const QString& folder)
{
    ULARGE_INTEGER available = {};
    GetDiskFreeSpaceExW(reinterpret_cast<const wchar_t*>(folder.utf16()), &available, nullptr,
                        nullptr);
    return static_cast<qint64>(available.QuadPart);
}

} // namespace

void tst_WindowsFacts::operatingSystem()
{
    const QStringList facts = MachineFacts::operatingSystem();
    QCOMPARE(facts.size(), 2);
    QVERIFY2(facts.at(0).startsWith(QLatin1String("Windows ")), qPrintable(facts.at(0)));
    QVERIFY2(!facts.at(0).contains(QLatin1Char('(')), qPrintable(facts.at(0)));
    SYSTEM_INFO system = {};
    GetNativeSystemInfo(&system);
    QCOMPARE(int(system.wProcessorArchitecture), PROCESSOR_ARCHITECTURE_AMD64);
    QCOMPARE(facts.at(1), QStringLiteral("x86_64"));
}

void tst_WindowsFacts::processorName()
{
    std::array<wchar_t, 256> said = {};
    DWORD size = sizeof(said);
    QCOMPARE(RegGetValueW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0",
                          L"ProcessorNameString", RRF_RT_REG_SZ, nullptr, said.data(), &size),
             ERROR_SUCCESS);
    const QString name = QString::fromWCharArray(said.data()).simplified();
    QVERIFY(!name.isEmpty());
    QCOMPARE(MachineFacts::processorName(), name);
}

void tst_WindowsFacts::availableBytes()
{
    const QTemporaryDir folder;
    const qint64 expected = freeBytes(folder.path());
    QVERIFY(expected > 0);
    for (const char* below : {"", "not/there yet", "\xe8\xaf\xbe/\xe5\xa0\x82"}) {
        const qint64 bytes =
            MachineFacts::availableBytes(folder.filePath(QString::fromUtf8(below)));
        QVERIFY2(std::abs(bytes - expected) < SlackBytes, below);
    }
    QVERIFY(std::abs(MachineFacts::availableBytes(QDir::rootPath()) - freeBytes(QDir::rootPath())) <
            SlackBytes);
}

void tst_WindowsFacts::unknownVolume()
{
    QCOMPARE(MachineFacts::availableBytes(QStringLiteral("Q:/not/there")), qint64(-1));
    QCOMPARE(MachineFacts::availableBytes(QString()), qint64(-1));
}

// The name for people comes from the directory of a domain, else from this machine's accounts.
void tst_WindowsFacts::user()
{
    const HostUser user = HostUser::current();
    QVERIFY(!user.loginName.isEmpty());
    QCOMPARE(user.loginName, qEnvironmentVariable("USERNAME"));
    std::array<wchar_t, 256> said = {};
    ULONG size = said.size();
    QString expected;
    LPBYTE account = nullptr;
    if (GetUserNameExW(NameDisplay, said.data(), &size)) {
        expected = QString::fromWCharArray(said.data());
    } else if (NetUserGetInfo(nullptr, reinterpret_cast<LPCWSTR>(user.loginName.utf16()), 2,
                              &account) == NERR_Success) {
        const wchar_t* name = reinterpret_cast<const USER_INFO_2*>(account)->usri2_full_name;
        expected = name ? QString::fromWCharArray(name) : QString();
        NetApiBufferFree(account);
    }
    QCOMPARE(user.realName, expected.trimmed());
}

void tst_WindowsFacts::localAddress()
{
    const QHostAddress address(LocalAddress::find());
    const QList<QHostAddress> all = QNetworkInterface::allAddresses();
    QVERIFY(all.contains(address));
    const bool isAlone = std::all_of(all.begin(), all.end(), [](const QHostAddress& each) {
        return each.isLoopback() || each.isLinkLocal();
    });
    QCOMPARE(address.isLoopback(), isAlone);
}

QTEST_GUILESS_MAIN(tst_WindowsFacts)
#include "tst_WindowsFacts.moc"
