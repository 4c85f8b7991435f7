#include "NSLog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <cstdio>
#include <sys/syscall.h>
#include <unistd.h>

QString FormatLogLine(const QString& message) {
    QString program = QCoreApplication::applicationName();
    if (program.isEmpty()) program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const auto thread = static_cast<long long>(::syscall(SYS_gettid));
    return QStringLiteral("%1 %2[%3:%4] %5")
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")), program)
        .arg(static_cast<long long>(::getpid()))
        .arg(thread)
        .arg(message);
}

void NSLog(const QString& message) {
    const QByteArray line = FormatLogLine(message).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
    std::fflush(stderr);
}
