#include "AppWindow.h"

#include "SideEffectRules.h"
#include "XDisplay.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <csignal>

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QThread>

AppWindow::AppWindow(const XDisplay& display) : m_display(display) {}

namespace {
// Whether strace can trace here (ptrace may be forbidden in containers).
bool CanTrace(const QString& strace) {
    if (strace.isEmpty()) return false;
    QProcess probe;
    probe.start(strace, {QStringLiteral("-f"), QStringLiteral("-o"), QStringLiteral("/dev/null"),
                         QStringLiteral("true")});
    return probe.waitForFinished(20000) && probe.exitStatus() == QProcess::NormalExit &&
           probe.exitCode() == 0;
}
} // namespace

AppWindow::~AppWindow() {
    stop();
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

QString AppWindow::tracePath() const {
    return m_scratch.filePath(QStringLiteral("trace.txt"));
}

QStringList AppWindow::sideEffects() const {
    QFile trace(tracePath());
    if (!m_traced || !trace.open(QIODevice::ReadOnly)) return {};
    const QStringList allowed{m_scratch.filePath(QStringLiteral("runtime"))};
    QStringList effects;
    while (!trace.atEnd()) {
        const QString line = QString::fromLocal8Bit(trace.readLine()).trimmed();
        if (const auto effect = SideEffectRules::SideEffectOf(line, allowed);
            effect && !effects.contains(*effect))
            effects << *effect;
    }
    return effects;
}

bool AppWindow::xdotool(const QStringList& args) const {
    return m_display.run(QStringLiteral("xdotool"), args);
}

bool AppWindow::start(const QString& binary, QString* why) {
    QProcessEnvironment env = m_display.environment();
    // The tests around may run offscreen; this one needs the real X window.
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    // A home and a runtime folder of its own: writing anywhere but the runtime folder is caught.
    const QString home = m_scratch.filePath(QStringLiteral("home"));
    const QString runtime = m_scratch.filePath(QStringLiteral("runtime"));
    QDir().mkpath(home);
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    env.insert(QStringLiteral("HOME"), home);
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
    env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
               QStringLiteral("unix:path=") + runtime + QStringLiteral("/no-bus"));
    m_process.setProcessEnvironment(env);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    const QString strace = QStandardPaths::findExecutable(QStringLiteral("strace"));
    m_traced = CanTrace(strace);
    // The leak checker stops the process's threads with ptrace, which strace already holds.
    if (m_traced)
        env.insert(QStringLiteral("ASAN_OPTIONS"),
                   env.value(QStringLiteral("ASAN_OPTIONS")) + QStringLiteral(":detect_leaks=0"));
    m_process.setProcessEnvironment(env);
    if (m_traced)
        m_process.start(strace,
                        {QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-o"), tracePath(),
                         QStringLiteral("-e"), QStringLiteral("trace=%file,%network"), binary});
    else
        m_process.start(binary, {});
    if (!m_process.waitForStarted(20000)) {
        if (why) *why = QStringLiteral("%1 does not start: %2").arg(binary, m_process.errorString());
        return false;
    }

    // The display is this test's own, and one application runs on it at a time.
    const QDeadlineTimer deadline(90000);
    while (m_windowId.isEmpty() && !deadline.hasExpired() && isRunning()) {
        QByteArray ids;
        if (m_display.run(QStringLiteral("xdotool"),
                          {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                           QStringLiteral("--name"), QStringLiteral("^Robot Companion$")},
                          &ids))
            m_windowId = QString::fromLatin1(ids).split(QLatin1Char('\n'), Qt::SkipEmptyParts).value(0);
        if (m_windowId.isEmpty()) QThread::msleep(200);
    }
    QByteArray pid;
    if (!m_windowId.isEmpty() &&
        m_display.run(QStringLiteral("xdotool"), {QStringLiteral("getwindowpid"), m_windowId}, &pid))
        m_appPid = pid.trimmed().toLongLong();
    if (m_windowId.isEmpty()) {
        if (why) *why = QStringLiteral("no window appeared; stderr: %1").arg(errorOutput());
        return false;
    }

    QByteArray shell;
    m_display.run(QStringLiteral("xdotool"),
                  {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), m_windowId}, &shell);
    static const QRegularExpression field(QStringLiteral("^(X|Y|WIDTH|HEIGHT)=(\\d+)$"),
                                          QRegularExpression::MultilineOption);
    int x = -1, y = -1, w = 0, h = 0;
    for (auto it = field.globalMatch(QString::fromLatin1(shell)); it.hasNext();) {
        const auto m = it.next();
        const int value = m.captured(2).toInt();
        const QString name = m.captured(1);
        if (name == QLatin1String("X")) x = value;
        if (name == QLatin1String("Y")) y = value;
        if (name == QLatin1String("WIDTH")) w = value;
        if (name == QLatin1String("HEIGHT")) h = value;
    }
    m_window = QRect(x, y, w, h);
    if (x < 0 || y < 0 || w != kWidth || h != kHeight) {
        if (why)
            *why =
                QStringLiteral("unexpected window geometry: %1").arg(QString::fromLatin1(shell).simplified());
        return false;
    }
    return true;
}

bool AppWindow::moveTo(QPoint pos) {
    // A move to where the pointer already is would be no move at all.
    if (pos == m_pointer) return true;
    m_pointer = pos;
    const QPoint screen = m_window.topLeft() + pos;
    return xdotool({QStringLiteral("mousemove"), QString::number(screen.x()), QString::number(screen.y())});
}

bool AppWindow::press() {
    return xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
}

bool AppWindow::release() {
    return xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool AppWindow::click(QPoint pos) {
    return moveTo(pos) && press() && release();
}

bool AppWindow::type(const QString& text) {
    return xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("80"),
                    QStringLiteral("--"), text});
}

bool AppWindow::key(const QString& keyName) {
    return xdotool({QStringLiteral("key"), keyName});
}

QImage AppWindow::grab() const {
    const QImage screen = m_display.grabScreen();
    if (screen.isNull()) return {};
    return screen.copy(m_window);
}

QString AppWindow::errorOutput() {
    // Nothing runs the event loop between checks: fetch what the pipe holds now.
    m_process.setReadChannel(QProcess::StandardError);
    while (m_process.state() == QProcess::Running && m_process.waitForReadyRead(20))
        m_stderr += m_process.readAllStandardError();
    m_stderr += m_process.readAllStandardError();
    return QString::fromLocal8Bit(m_stderr);
}
