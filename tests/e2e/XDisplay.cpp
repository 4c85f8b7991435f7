#include "XDisplay.h"

#include <QDeadlineTimer>
#include <QStandardPaths>

XDisplay::~XDisplay() {
    if (m_server.state() == QProcess::NotRunning) return;
    m_server.terminate();
    if (!m_server.waitForFinished(5000)) m_server.kill();
    m_server.waitForFinished(5000);
}

QString XDisplay::MissingTools() {
    QStringList missing;
    for (const char* tool : {"Xvfb", "xdotool", "import"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
            missing << QString::fromLatin1(tool);
    if (missing.isEmpty()) return {};
    return QStringLiteral("not found on PATH: %1 (Debian packages xvfb, xdotool, imagemagick)")
        .arg(missing.join(QStringLiteral(", ")));
}

bool XDisplay::start(QString* why) {
    // -displayfd: the server takes the first free display and writes its number to our pipe.
    // -noreset: else the server resets whenever its last client leaves, and turns away the next.
    m_server.start(
        QStringLiteral("Xvfb"),
        QStringLiteral("-displayfd 1 -screen 0 1280x1024x24 -nolisten tcp -noreset").split(QLatin1Char(' ')));
    QByteArray number;
    const QDeadlineTimer deadline(30000);
    while (m_server.waitForStarted(10000) && !number.contains('\n') && !deadline.hasExpired()) {
        m_server.waitForReadyRead(200);
        number += m_server.readAllStandardOutput();
    }
    bool ok = false;
    const int n = number.trimmed().toInt(&ok);
    if (!ok) {
        *why = QStringLiteral("Xvfb gave no display number: %1 %2")
                   .arg(m_server.errorString(),
                        QString::fromLocal8Bit(m_server.readAllStandardError()).trimmed());
        return false;
    }
    m_display = QStringLiteral(":%1").arg(n);
    // The server answers as soon as it has said its number; make sure the tools can talk to it.
    if (!run(QStringLiteral("xdotool"), {QStringLiteral("getmouselocation")})) {
        *why = QStringLiteral("xdotool cannot use the display %1").arg(m_display);
        return false;
    }
    return true;
}

QProcessEnvironment XDisplay::environment() const {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), m_display);
    return env;
}

bool XDisplay::run(const QString& program, const QStringList& args, QByteArray* output) const {
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(program, args);
    QByteArray out;
    const QDeadlineTimer deadline(30000);
    while (tool.waitForStarted(10000) && tool.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        tool.waitForFinished(100);
        out += tool.readAllStandardOutput();
    }
    if (tool.state() != QProcess::NotRunning) {
        tool.kill();
        tool.waitForFinished(5000);
        return false;
    }
    if (output) *output = out + tool.readAllStandardOutput();
    return tool.error() != QProcess::FailedToStart && tool.exitStatus() == QProcess::NormalExit &&
           tool.exitCode() == 0;
}

QImage XDisplay::grabScreen() const {
    QByteArray png;
    if (!run(QStringLiteral("import"), QStringLiteral("-silent -window root png:-").split(QLatin1Char(' ')),
             &png))
        return {};
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32);
}
