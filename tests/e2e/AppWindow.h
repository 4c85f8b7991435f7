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
// coordinates and looked at through screenshots (ImageMagick's import).
class AppWindow {
public:
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

    // The X screen's size, set before start (default 1280 x 1024).
    void setScreenSize(QSize size) { m_screenSize = size; }
    // Where the window lies on the screen; null when that cannot be told.
    QRect geometry() const;

private:
    bool startServer(QString* why);
    // Runs an X tool to its end; false when it cannot start, times out or fails.
    bool run(const QString& program, const QStringList& args, QByteArray* output = nullptr) const;
    bool xdotool(const QStringList& args, QByteArray* output = nullptr) const {
        return run("xdotool", args, output);
    }
    QString tracePath() const { return m_scratch.filePath(QStringLiteral("trace.txt")); }

    QProcess m_server;
    QProcessEnvironment m_env = QProcessEnvironment::systemEnvironment(); // with the server's display
    QProcess m_process;
    QTemporaryDir m_scratch;
    bool m_traced = false;
    qint64 m_appPid = 0;
    QString m_windowId;
    QPoint m_pointer{-1, -1};
    QByteArray m_stderr;
    QSize m_screenSize{1280, 1024};
};
