#pragma once

#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

class XDisplay;

// The real robot-companion binary running on an X display, and its window, worked with real X
// input (xdotool) at window coordinates and looked at through screenshots of the display.
class AppWindow {
public:
    explicit AppWindow(const XDisplay& display) : m_display(display) {}
    ~AppWindow() { stop(); }
    AppWindow(const AppWindow&) = delete;
    AppWindow& operator=(const AppWindow&) = delete;

    // Starts the binary, under strace where it can trace, with a home and runtime folder of its
    // own, and waits for its window to be mapped; on failure says why.
    bool start(const QString& binary, QString* why);
    // Ends the application; what it wrote stays readable.
    void stop();
    // What the traced run did that it may not: network sockets, writes to the file system. Read
    // after stop(); empty when the run was not traced.
    QStringList sideEffects() const;
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    // Input at window coordinates.
    bool moveTo(QPoint pos);
    bool press() { return xdotool({QStringLiteral("mousedown"), QStringLiteral("1")}); }
    bool release() { return xdotool({QStringLiteral("mouseup"), QStringLiteral("1")}); }
    bool click(QPoint pos) { return moveTo(pos) && press() && release(); }
    bool type(const QString& text);
    bool key(const QString& keyName) { return xdotool({QStringLiteral("key"), keyName}); }

    // The window's part of the screen; null when the screenshot failed.
    QImage grab() const;
    // Everything the app wrote to stderr so far.
    QString errorOutput();

private:
    bool xdotool(const QStringList& args, QByteArray* output = nullptr) const;
    QString tracePath() const { return m_scratch.filePath(QStringLiteral("trace.txt")); }

    const XDisplay& m_display;
    QProcess m_process;
    QTemporaryDir m_scratch;
    bool m_traced = false;
    qint64 m_appPid = 0;
    QRect m_window;
    QPoint m_pointer{-1, -1};
    QByteArray m_stderr;
};
