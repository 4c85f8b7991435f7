#include "AppWindow.h"

#include "XDisplay.h"

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QThread>

AppWindow::AppWindow(const XDisplay& display) : m_display(display) {}

AppWindow::~AppWindow() {
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        if (!m_process.waitForFinished(10000)) m_process.kill();
        m_process.waitForFinished(5000);
    }
}

bool AppWindow::xdotool(const QStringList& args) const {
    return m_display.run(QStringLiteral("xdotool"), args);
}

bool AppWindow::start(const QString& binary, QString* why) {
    QProcessEnvironment env = m_display.environment();
    // The tests around may run offscreen; this one needs the real X window.
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_process.setProcessEnvironment(env);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.start(binary, {});
    if (!m_process.waitForStarted(20000)) {
        if (why) *why = QStringLiteral("%1 does not start: %2").arg(binary, m_process.errorString());
        return false;
    }

    const QString pid = QString::number(m_process.processId());
    const QDeadlineTimer deadline(90000);
    while (m_windowId.isEmpty() && !deadline.hasExpired() && isRunning()) {
        QByteArray ids;
        if (m_display.run(
                QStringLiteral("xdotool"),
                {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--pid"), pid},
                &ids))
            m_windowId = QString::fromLatin1(ids).split(QLatin1Char('\n'), Qt::SkipEmptyParts).value(0);
        if (m_windowId.isEmpty()) QThread::msleep(200);
    }
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
