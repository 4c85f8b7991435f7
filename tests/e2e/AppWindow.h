#pragma once

#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// The real robot-companion binary in a private X server (Xvfb on a display number it picks
// itself, so parallel runs never collide), worked with real X input (xdotool) at window
// coordinates and looked at through screenshots (ImageMagick's import). On Wayland, the app runs
// in a Wayland compositor (weston) whose output is a window of that X server: the window worked
// and looked at is the compositor's output, X input to it reaching the app as Wayland input.
class AppWindow {
public:
    // The X screen's size (the app on Wayland: in a compositor whose output fills the X screen and
    // shows each window fullscreen).
    explicit AppWindow(QSize screenSize = {1280, 1024}, bool wayland = false)
        : m_wayland(wayland), m_screenSize(screenSize) {}
    ~AppWindow();

    // Starts the server, then the binary under strace where it can trace, with a home and
    // runtime folder of its own, and waits for its window to be mapped; on failure says why.
    bool start(const QString& binary, QString* why);
    // Ends the application; what it wrote stays readable.
    void stop();
    // What the traced run did that it may not: network sockets, writes to the file system. Read
    // after stop(); empty when the run was not traced.
    QStringList sideEffects() const;
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    // Input at window coordinates.
    bool moveTo(QPoint pos);
    bool click(QPoint pos) { return moveTo(pos) && xdotool({"click", "1"}); }
    bool type(const QString& text) { return xdotool({"type", "--delay", "80", "--", text}); }
    bool key(const QString& keyName) { return xdotool({"key", keyName}); }

    // A screenshot of the window; null when it failed.
    QImage grab() const;
    // Everything the app wrote to stderr so far.
    QString errorOutput();

    // Where the window lies on the screen; null when that cannot be told.
    QRect geometry() const;

private:
    bool startServer(QString* why);
    // The compositor inside the X server, its output the window worked; false when it failed.
    bool startCompositor(QProcessEnvironment* env, QString* why);
    // The X window to work: the app's own, or the compositor's output; empty while there is none.
    QString findWindow() const;
    // Runs an X tool to its end; false when it cannot start, times out or fails.
    bool run(const QString& program, const QStringList& args, QByteArray* output = nullptr) const;
    bool xdotool(const QStringList& args, QByteArray* output = nullptr) const {
        return run("xdotool", args, output);
    }
    QString tracePath() const { return m_scratch.filePath(QStringLiteral("trace.txt")); }

    QProcess m_server;
    QProcess m_compositor;
    bool m_wayland = false;
    QProcessEnvironment m_env = QProcessEnvironment::systemEnvironment(); // with the server's display
    QProcess m_process;
    QTemporaryDir m_scratch;
    bool m_traced = false;
    qint64 m_appPid = 0;
    QString m_windowId;
    QPoint m_pointer{-1, -1};
    QByteArray m_stderr;
    QSize m_screenSize;
};
