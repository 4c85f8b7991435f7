#include "AppWindow.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <csignal>

namespace {
// What a traced run may not do, judged one line of `strace -f` output at a time: open a network
// socket, or change the file system. Reading is free; so is writing to /dev/ (device nodes, shared
// memory), /proc/ and the allowed folders. An attempt counts even when it fails. Resumed halves,
// signals and exits are not judged: the first half of a split call has its arguments.
QString SideEffectOf(const QString& line, const QStringList& allowed) {
    static const QRegularExpression call(QStringLiteral("^(?:(?:\\[pid\\s+)?\\d+\\]?\\s+)?(\\w+)\\((.*)$"));
    static const QRegularExpression quoted(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    static const QRegularExpression network(QStringLiteral("^(AF_INET6?|AF_PACKET)\\b"));
    static const QRegularExpression writing(
        QStringLiteral("\\b(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND)\\b"));
    static const QStringList opening = QString("open openat openat2 creat").split(' ');
    static const QStringList changing =
        QString("mkdir mkdirat rmdir unlink unlinkat rename renameat renameat2 "
                "link linkat symlink symlinkat truncate chmod fchmodat chown "
                "lchown fchownat utime utimes utimensat mknod mknodat setxattr "
                "lsetxattr removexattr lremovexattr")
            .split(' ');
    const auto m = call.match(line);
    if (!m.hasMatch()) return {};
    const QString name = m.captured(1), args = m.captured(2);
    QStringList paths;
    for (auto it = quoted.globalMatch(args); it.hasNext();) paths << it.next().captured(1);
    const auto forbidden = [&allowed](const QString& path) {
        if (path.startsWith(QLatin1String("/dev/")) || path.startsWith(QLatin1String("/proc/"))) return false;
        for (const QString& folder : allowed)
            if (path == folder || path.startsWith(folder + QLatin1Char('/'))) return false;
        return true;
    };
    if (name == QLatin1String("socket"))
        if (const auto n = network.match(args); n.hasMatch())
            return QStringLiteral("opens a network socket (%1)").arg(n.captured(1));
    if (opening.contains(name) && (name == QLatin1String("creat") || writing.match(args).hasMatch()) &&
        !paths.isEmpty() && forbidden(paths.first()))
        return QStringLiteral("opens %1 for writing").arg(paths.first());
    if (changing.contains(name) && paths.isEmpty()) return QStringLiteral("%1 on an open file").arg(name);
    for (const QString& path : paths)
        if (changing.contains(name) && forbidden(path)) return QStringLiteral("%1 %2").arg(name, path);
    return {};
}
} // namespace

AppWindow::~AppWindow() {
    stop();
    if (m_server.state() == QProcess::NotRunning) return;
    m_server.terminate();
    if (!m_server.waitForFinished(5000)) m_server.kill();
    m_server.waitForFinished(5000);
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
    m_display = QStringLiteral(":%1").arg(number.trimmed().toInt(&ok));
    // The server answers as soon as it has said its number; make sure the tools can talk to it.
    if (ok && xdotool({"getmouselocation"})) return true;
    *why =
        QStringLiteral("Xvfb gave no usable display: %1 %2")
            .arg(m_server.errorString(), QString::fromLocal8Bit(m_server.readAllStandardError()).trimmed());
    return false;
}

QProcessEnvironment AppWindow::environment() const {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("DISPLAY", m_display);
    return env;
}

bool AppWindow::run(const QString& program, const QStringList& args, QByteArray* output) const {
    QProcess tool;
    tool.setProcessEnvironment(environment());
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
        if (const QString effect = SideEffectOf(QString::fromLocal8Bit(trace.readLine()).trimmed(),
                                                {m_scratch.filePath("runtime")});
            !effect.isEmpty() && !effects.contains(effect))
            effects << effect;
    return effects;
}

bool AppWindow::start(const QString& binary, QString* why) {
    if (!startServer(why)) return false;
    QProcessEnvironment env = environment();
    // The tests around may run offscreen; this one needs the real X window.
    env.insert("QT_QPA_PLATFORM", "xcb");
    // A home and a runtime folder of its own: writing anywhere but the runtime folder is caught.
    const QString home = m_scratch.filePath("home"), runtime = m_scratch.filePath("runtime");
    QDir().mkpath(home);
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    env.insert("HOME", home);
    env.insert("XDG_RUNTIME_DIR", runtime);
    env.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + runtime + "/no-bus");
    const QString strace = QStandardPaths::findExecutable("strace");
    // Whether strace can trace here (ptrace may be forbidden in containers).
    m_traced = !strace.isEmpty() && run(strace, QString("-f -o /dev/null true").split(' '));
    // The leak checker stops the process's threads with ptrace, which strace already holds.
    if (m_traced) env.insert("ASAN_OPTIONS", env.value("ASAN_OPTIONS") + ":detect_leaks=0");
    m_process.setProcessEnvironment(env);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    if (m_traced)
        m_process.start(strace, {"-f", "-qq", "-o", tracePath(), "-e", "trace=%file,%network", binary});
    else
        m_process.start(binary, {});
    if (!m_process.waitForStarted(20000)) {
        *why = QStringLiteral("%1 does not start: %2").arg(binary, m_process.errorString());
        return false;
    }

    // The display is this window's own.
    QByteArray out;
    for (const QDeadlineTimer deadline(90000); m_windowId.isEmpty() && !deadline.hasExpired() && isRunning();
         QThread::msleep(200))
        if (xdotool(QString("search --onlyvisible --name ^Robot.Companion$").split(' '), &out))
            m_windowId = QString::fromLatin1(out).split(QLatin1Char('\n'), Qt::SkipEmptyParts).value(0);
    if (m_windowId.isEmpty()) {
        *why = QStringLiteral("no window appeared; stderr: %1").arg(errorOutput());
        return false;
    }
    if (xdotool({"getwindowpid", m_windowId}, &out)) m_appPid = out.trimmed().toLongLong();
    QImage window;
    for (int attempt = 0; attempt < 5 && (window = grab()).isNull(); ++attempt) QThread::msleep(200);
    // On a screen too small for it the window is scaled down; the test says to what.
    if (window.size() != QSize(1024, 768) && m_screenSize.boundedTo({1024, 768}) == QSize(1024, 768)) {
        *why = QStringLiteral("the window is %1 by %2").arg(window.width()).arg(window.height());
        return false;
    }
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
