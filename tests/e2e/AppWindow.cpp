#include "AppWindow.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <csignal>

namespace {
// One line of `strace -f` output is a side effect when it opens a network socket, or opens for
// writing or changes a path outside /dev/, /proc/ and `allowed` (a change with no path is to an
// open file). Reading is free; an attempt counts even when it fails. Resumed halves, signals and
// exits do not match: the first half of a split call has its arguments.
bool IsSideEffect(const QString& line, const QString& allowed) {
    static const QRegularExpression call("^(?:(?:\\[pid\\s+)?\\d+\\]?\\s+)?(\\w+)\\((.*)$"),
        quoted("\"((?:[^\"\\\\]|\\\\.)*)\""), network("^AF_(INET6?|PACKET)\\b"),
        writing("\\b(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND)\\b");
    static const QStringList changing =
        QString("creat mkdir mkdirat rmdir unlink unlinkat rename renameat renameat2 link linkat symlink "
                "symlinkat truncate chmod fchmodat chown lchown fchownat utime utimes utimensat mknod "
                "mknodat setxattr lsetxattr removexattr lremovexattr")
            .split(' ');
    const auto m = call.match(line);
    const QString name = m.captured(1), args = m.captured(2);
    if (name == "socket") return network.match(args).hasMatch();
    QStringList paths;
    for (auto it = quoted.globalMatch(args); it.hasNext();) paths << it.next().captured(1);
    if (name.startsWith("open") && writing.match(args).hasMatch())
        paths = paths.mid(0, 1);
    else if (!changing.contains(name))
        return false;
    return paths.isEmpty() || std::any_of(paths.begin(), paths.end(), [&allowed](const QString& path) {
               return !path.startsWith("/dev/") && !path.startsWith("/proc/") && path != allowed &&
                      !path.startsWith(allowed + '/');
           });
}
} // namespace

AppWindow::~AppWindow() {
    stop();
    for (QProcess* process : {&m_compositor, &m_server}) {
        if (process->state() == QProcess::NotRunning) continue;
        process->terminate();
        if (!process->waitForFinished(5000)) process->kill();
        process->waitForFinished(5000);
    }
}

bool AppWindow::startCompositor(QProcessEnvironment* env, QString* why) {
    // Kiosk shell: every window fullscreen on the one output, so its place is known.
    const QString socket = "robot-wayland", runtime = env->value("XDG_RUNTIME_DIR");
    QProcessEnvironment compositor = m_env;
    compositor.insert("XDG_RUNTIME_DIR", runtime);
    m_compositor.setProcessEnvironment(compositor);
    m_compositor.start("weston", {"--backend=x11-backend.so", "--shell=kiosk-shell.so", "--no-config",
                                  "--use-pixman", "--idle-time=0", "--socket=" + socket,
                                  QStringLiteral("--width=%1").arg(m_screenSize.width()),
                                  QStringLiteral("--height=%1").arg(m_screenSize.height())});
    for (const QDeadlineTimer deadline(30000); !deadline.hasExpired(); QThread::msleep(100)) {
        if (QFile::exists(runtime + '/' + socket)) {
            env->insert("QT_QPA_PLATFORM", "wayland");
            env->insert("WAYLAND_DISPLAY", socket);
            return true;
        }
        if (m_compositor.state() == QProcess::NotRunning) break;
    }
    *why = "weston did not start: " + QString::fromLocal8Bit(m_compositor.readAllStandardError()).right(2000);
    return false;
}

QString AppWindow::findWindow() const {
    QByteArray out;
    const QString search =
        m_wayland ? "search --class ^Weston.Compositor$" : "search --onlyvisible --name ^Robot.Companion$";
    if (!xdotool(search.split(' '), &out)) return {};
    return QString::fromLatin1(out).split(QLatin1Char('\n'), Qt::SkipEmptyParts).value(0);
}

bool AppWindow::startServer(QString* why) {
    // -displayfd: the server takes the first free display and writes its number to our pipe.
    // -noreset: else the server resets whenever its last client leaves, and turns away the next.
    const QString screen = QStringLiteral("%1x%2x24").arg(m_screenSize.width()).arg(m_screenSize.height());
    m_server.start("Xvfb",
                   QString("-displayfd 1 -screen 0 %1 -nolisten tcp -noreset").arg(screen).split(' '));
    QByteArray number;
    for (const QDeadlineTimer deadline(30000);
         m_server.waitForStarted(10000) && !number.contains('\n') && !deadline.hasExpired();)
        if (m_server.waitForReadyRead(200)) number += m_server.readAllStandardOutput();
    bool ok = false;
    m_env.insert("DISPLAY", QStringLiteral(":%1").arg(number.trimmed().toInt(&ok)));
    // The server answers as soon as it has said its number; make sure the tools can talk to it.
    if (ok && xdotool({"getmouselocation"})) return true;
    *why =
        QStringLiteral("Xvfb gave no usable display: %1 %2")
            .arg(m_server.errorString(), QString::fromLocal8Bit(m_server.readAllStandardError()).trimmed());
    return false;
}

bool AppWindow::run(const QString& program, const QStringList& args, QByteArray* output) const {
    QProcess tool;
    tool.setProcessEnvironment(m_env);
    tool.start(program, args);
    // Waiting reads the output into the process's buffer: a large screenshot cannot block the pipe.
    if (!tool.waitForFinished(30000)) {
        tool.kill();
        tool.waitForFinished(5000);
        return false;
    }
    if (output) *output = tool.readAllStandardOutput();
    return tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0;
}

void AppWindow::stop() {
    if (m_process.state() == QProcess::NotRunning) return;
    errorOutput();
    // Under strace the application is strace's child: ending strace alone would let it run on.
    if (m_appPid > 0)
        ::kill(static_cast<pid_t>(m_appPid), SIGTERM);
    else
        m_process.terminate();
    if (!m_process.waitForFinished(20000)) m_process.kill();
    m_process.waitForFinished(5000);
    errorOutput();
}

QStringList AppWindow::sideEffects() const {
    QFile trace(tracePath());
    if (!m_traced || !trace.open(QIODevice::ReadOnly)) return {};
    QStringList effects;
    while (!trace.atEnd())
        if (const QString line = QString::fromLocal8Bit(trace.readLine()).trimmed();
            IsSideEffect(line, m_scratch.filePath("runtime")))
            effects << line;
    return effects;
}

bool AppWindow::start(const QString& binary, QString* why) {
    if (!startServer(why)) return false;
    const auto fail = [why](const QString& reason) {
        *why = reason;
        return false;
    };
    QProcessEnvironment env = m_env;
    // The tests around may run offscreen; this one needs the real X window.
    env.insert("QT_QPA_PLATFORM", "xcb");
    // A home and a runtime folder of its own: writing anywhere but the runtime folder is caught.
    const QString home = m_scratch.filePath("home"), runtime = m_scratch.filePath("runtime");
    for (const QString& folder : {home, runtime}) QDir().mkpath(folder);
    QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    env.insert("HOME", home);
    env.insert("XDG_RUNTIME_DIR", runtime);
    if (m_wayland && !startCompositor(&env, why)) return false;
    env.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + runtime + "/no-bus");
    const QString strace = QStandardPaths::findExecutable("strace");
    // Whether strace can trace here (ptrace may be forbidden in containers).
    m_traced = !strace.isEmpty() && run(strace, QString("-f -o /dev/null true").split(' '));
    // The leak checker stops the process's threads with ptrace, which strace already holds.
    if (m_traced) env.insert("ASAN_OPTIONS", env.value("ASAN_OPTIONS") + ":detect_leaks=0");
    m_process.setProcessEnvironment(env);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.start(m_traced ? strace : binary, m_traced ? QStringList{"-f", "-qq", "-o", tracePath(), "-e",
                                                                       "trace=%file,%network", binary}
                                                         : QStringList{});
    if (!m_process.waitForStarted(20000))
        return fail(QStringLiteral("%1 does not start: %2").arg(binary, m_process.errorString()));

    // The display is this window's own.
    for (const QDeadlineTimer deadline(90000); m_windowId.isEmpty() && !deadline.hasExpired() && isRunning();
         QThread::msleep(200))
        m_windowId = findWindow();
    if (m_windowId.isEmpty())
        return fail(QStringLiteral("no window appeared; stderr: %1").arg(errorOutput()));
    // Traced, the app is strace's child (on Wayland the window found is the compositor's, not the app's).
    QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(m_process.processId()));
    if (m_traced && children.open(QIODevice::ReadOnly)) m_appPid = children.readAll().trimmed().toLongLong();
    return true;
}

bool AppWindow::moveTo(QPoint pos) {
    // A move to where the pointer already is would be no move at all.
    if (pos == m_pointer) return true;
    m_pointer = pos;
    return xdotool({"mousemove", "--window", m_windowId, QString::number(pos.x()), QString::number(pos.y())});
}

QImage AppWindow::grab() const {
    QByteArray png;
    return !run("import", {"-silent", "-window", m_windowId, "png:-"}, &png)
               ? QImage()
               : QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32);
}

QString AppWindow::errorOutput() {
    // Nothing runs the event loop between checks: fetch what the pipe holds now.
    m_process.setReadChannel(QProcess::StandardError);
    while (m_process.state() == QProcess::Running && m_process.waitForReadyRead(20))
        m_stderr += m_process.readAllStandardError();
    m_stderr += m_process.readAllStandardError();
    return QString::fromLocal8Bit(m_stderr);
}

QRect AppWindow::geometry() const {
    QByteArray out;
    if (!xdotool({"getwindowgeometry", "--shell", m_windowId}, &out)) return {};
    QHash<QString, int> values; // X, Y, WIDTH, HEIGHT
    for (const QByteArray& line : out.split('\n'))
        if (const int eq = line.indexOf('='); eq > 0)
            values[QString::fromLatin1(line.left(eq))] = line.mid(eq + 1).toInt();
    return {values.value("X"), values.value("Y"), values.value("WIDTH"), values.value("HEIGHT")};
}
