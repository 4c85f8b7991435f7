#pragma once

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// A private X server (Xvfb on a display number it picks itself, so parallel runs never collide)
// and the X tools run against it: xdotool for input, ImageMagick's import for screenshots.
class XDisplay {
public:
    XDisplay() = default;
    ~XDisplay();
    XDisplay(const XDisplay&) = delete;
    XDisplay& operator=(const XDisplay&) = delete;

    // Why the end-to-end tests cannot run here (a missing program), or empty.
    static QString MissingTools();
    // Starts the server; on failure says why.
    bool start(QString* why);
    // This process's environment with DISPLAY pointing at the server.
    QProcessEnvironment environment() const;
    // Runs an X tool to its end; false when it cannot start, times out or fails.
    bool run(const QString& program, const QStringList& args, QByteArray* output = nullptr) const;
    QImage grabScreen() const;

private:
    QProcess m_server;
    QString m_display;
};
