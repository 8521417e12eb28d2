// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/window/DisplayServer.h"

#include <QFileInfo>
#include <QtTest>

namespace TestSupport {

namespace {

constexpr int TimeoutMs = 15000;
const QString SocketName = QStringLiteral("wayland-test");

// An application of this process on the same display may have to answer meanwhile.
bool finish(const QProcess& process)
{
    return QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; },
                           TimeoutMs);
}

} // namespace

DisplayServer::DisplayServer(Kind kind) : m_kind(kind)
{
    m_server.setProcessChannelMode(QProcess::SeparateChannels);
}

DisplayServer::~DisplayServer()
{
    m_manager.reset();
    m_compositor.end();
    m_server.end();
}

bool DisplayServer::start(const QSize& size)
{
    m_server.start(
        QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
         QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
         QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    waitFor([this] { return m_server.canReadLine(); });
    m_name = QLatin1Char(':') + QString::fromLatin1(m_server.readLine().trimmed());
    return m_name.size() > 1 && (m_kind == Kind::X11 || startCompositor(size));
}

bool DisplayServer::startCompositor(const QSize& size)
{
    m_compositor.setProcessEnvironment(serverEnvironment());
    m_compositor.setStandardOutputFile(QProcess::nullDevice());
    m_compositor.start(QStringLiteral("weston"),
                       {QStringLiteral("--backend=x11-backend.so"), QStringLiteral("--use-pixman"),
                        QStringLiteral("--no-config"), QStringLiteral("--socket=") + SocketName,
                        QStringLiteral("--width=%1").arg(size.width()),
                        QStringLiteral("--height=%1").arg(size.height())});
    return waitFor([this] { return QFileInfo::exists(m_folder.filePath(SocketName)); });
}

// There may be no event loop yet.
bool DisplayServer::waitFor(const std::function<bool()>& isReady)
{
    constexpr int StepMs = 20;
    QElapsedTimer clock;
    clock.start();
    while (!isReady() && clock.elapsed() < TimeoutMs) {
        m_server.waitForReadyRead(StepMs);
    }
    return isReady();
}

void DisplayServer::kill()
{
    TestProcess& lost = m_kind == Kind::X11 ? m_server : m_compositor;
    lost.kill();
    lost.waitForFinished(TimeoutMs);
}

QProcessEnvironment DisplayServer::serverEnvironment() const
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const char* name :
         {"WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "QT_SCALE_FACTOR", "XAUTHORITY"}) {
        result.remove(QLatin1String(name));
    }
    result.insert(QStringLiteral("DISPLAY"), m_name);
    result.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    result.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
    return result;
}

QProcessEnvironment DisplayServer::environment() const
{
    QProcessEnvironment result = serverEnvironment();
    if (m_kind == Kind::Wayland) {
        result.remove(QStringLiteral("DISPLAY"));
        result.insert(QStringLiteral("WAYLAND_DISPLAY"), SocketName);
        result.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    }
    return result;
}

void DisplayServer::useForThisProcess() const
{
    const QProcessEnvironment own = environment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
        const QString variable = QString::fromLatin1(name);
        if (own.contains(variable)) {
            qputenv(name, own.value(variable).toLocal8Bit());
        } else {
            qunsetenv(name);
        }
    }
}

bool DisplayServer::startManager(const QString& program)
{
    m_manager.reset();
    // A window manager sets the first mark before it manages windows, and the second one after
    // that. Some don't remove them when they end.
    const QStringList marks{QStringLiteral("_NET_SUPPORTING_WM_CHECK"),
                            QStringLiteral("_NET_CLIENT_LIST")};
    for (const QString& mark : marks) {
        output(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("-remove"), mark});
    }
    if (program.isEmpty()) {
        return true;
    }
    m_manager = std::make_unique<TestProcess>();
    m_manager->setProcessEnvironment(serverEnvironment());
    m_manager->setStandardOutputFile(QProcess::nullDevice());
    m_manager->start(program, QStringList());
    const auto isThere = [this, marks] {
        const QStringList question = QStringList{QStringLiteral("-root")} + marks;
        return output(QStringLiteral("xprop"), question).count(QLatin1String("window id")) ==
               marks.size();
    };
    return QTest::qWaitFor(isThere, TimeoutMs);
}

bool DisplayServer::setFontDpi(int dpi)
{
    const QStringList change{QStringLiteral("-root"),
                             QStringLiteral("-f"),
                             QStringLiteral("RESOURCE_MANAGER"),
                             QStringLiteral("8s"),
                             QStringLiteral("-set"),
                             QStringLiteral("RESOURCE_MANAGER"),
                             QStringLiteral("Xft.dpi:\t%1\n").arg(dpi)};
    output(QStringLiteral("xprop"), change);
    const QStringList question{QStringLiteral("-root"), QStringLiteral("RESOURCE_MANAGER")};
    return output(QStringLiteral("xprop"), question).contains(QString::number(dpi));
}

bool DisplayServer::type(const QStringList& words) const
{
    TestProcess process;
    process.setProcessEnvironment(serverEnvironment());
    process.start(QStringLiteral("xdotool"), words);
    return finish(process) && process.exitCode() == 0;
}

QString DisplayServer::output(const QString& program, const QStringList& arguments) const
{
    TestProcess process;
    process.setProcessEnvironment(serverEnvironment());
    process.start(program, arguments);
    static_cast<void>(finish(process));
    return QString::fromUtf8(process.readAll());
}

QImage DisplayServer::picture() const
{
    const QString file = m_folder.filePath(QStringLiteral("picture.png"));
    QFile::remove(file);
    output(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), file});
    return QImage(file);
}

} // namespace TestSupport
