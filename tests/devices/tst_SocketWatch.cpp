// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/SocketWatch.h"

#include <QLocalServer>
#include <QTemporaryDir>
#include <QtTest>
#include <fcntl.h>
#include <memory>

using Platform::SocketWatch;

class tst_SocketWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_runtime = m_folder->filePath(QStringLiteral("pulse"));
        m_socket = m_runtime + QStringLiteral("/native");
        m_watch = std::make_unique<SocketWatch>(std::vector<QByteArray>{m_socket.toLocal8Bit()});
        QVERIFY(m_watch->descriptor() >= 0);
    }

    void noticesTheSocket()
    {
        QVERIFY(QDir().mkdir(m_runtime));
        m_watch->renew();
        QVERIFY(!m_watch->hasAppeared());
        QLocalServer server;
        QVERIFY(server.listen(m_socket));
        QVERIFY(m_watch->hasAppeared());
        QVERIFY(!m_watch->hasAppeared()); // only once
    }

    // Elsewhere, because that takes long, and while the session ends.
    void givesItsDescriptorBack()
    {
        const int descriptor = m_watch->descriptor();
        m_watch->renew();
        m_watch.reset();
        QTRY_COMPARE(::fcntl(descriptor, F_GETFD), -1);
    }

    // A server makes the folder first, which can't be watched before it is there.
    void noticesTheFolder()
    {
        m_watch->renew();
        QVERIFY(QDir().mkdir(m_runtime));
        QVERIFY(m_watch->hasAppeared());
        noticeTheServer();
    }

    void noticesARenamedSocket()
    {
        QVERIFY(QDir().mkdir(m_runtime));
        QLocalServer server;
        QVERIFY(server.listen(m_runtime + QStringLiteral("/starting")));
        m_watch->renew();
        QVERIFY(QFile::rename(m_runtime + QStringLiteral("/starting"), m_socket));
        QVERIFY(m_watch->hasAppeared());
    }

    // The folder was removed with the server, and both come again.
    void noticesAFolderThatCameAgain()
    {
        QVERIFY(QDir().mkdir(m_runtime));
        m_watch->renew();
        QVERIFY(QDir().rmdir(m_runtime));
        m_watch->hasAppeared();
        m_watch->renew();
        QVERIFY(QDir().mkdir(m_runtime));
        QVERIFY(m_watch->hasAppeared());
        noticeTheServer();
    }

    void otherFilesDontCount()
    {
        QVERIFY(QDir().mkdir(m_runtime));
        m_watch->renew();
        for (int i = 0; i < 100; ++i) {
            QFile other(m_runtime + QStringLiteral("/other%1").arg(i));
            QVERIFY(other.open(QIODevice::WriteOnly));
            QVERIFY(!m_watch->hasAppeared());
        }
    }

    void foldersThatAreNotThere()
    {
        SocketWatch watch({"/nowhere/at/all/native", "/native", ""});
        watch.renew();
        QVERIFY(!watch.hasAppeared());
    }

private:
    void noticeTheServer()
    {
        m_watch->renew();
        QLocalServer server;
        QVERIFY(server.listen(m_socket));
        QVERIFY(m_watch->hasAppeared());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_runtime;
    QString m_socket;
    std::unique_ptr<SocketWatch> m_watch;
};

QTEST_GUILESS_MAIN(tst_SocketWatch)
#include "tst_SocketWatch.moc"
