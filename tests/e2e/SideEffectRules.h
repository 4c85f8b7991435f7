#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <optional>

// What a traced run of the application may not do, judged one line of `strace -f` output at a
// time: open a network socket, or write to the file system. Reading is free; so is writing
// where nothing is kept:
//   /dev/   device nodes (/dev/null, terminals) and the shared-memory file system: not files;
//   /proc/  the kernel's view of the process: not files either;
// plus the folders the caller names (the runtime folder the platform may create or check,
// which the test makes fresh and throws away). An attempt counts even when it fails: a denied
// write is still a write the application tried.
namespace SideEffectRules {

inline QString StripPid(const QString& line) {
    static const QRegularExpression pid(QStringLiteral("^(\\[pid\\s+)?\\d+\\]?\\s+"));
    QString rest = line;
    return rest.remove(pid);
}

// The quoted arguments of a call, in order (path names, as strace prints them).
inline QStringList QuotedArguments(const QString& call) {
    static const QRegularExpression quoted(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    QStringList args;
    for (auto it = quoted.globalMatch(call); it.hasNext();) args << it.next().captured(1);
    return args;
}

inline bool Allowed(const QString& path, const QStringList& allowedFolders) {
    if (path.startsWith(QLatin1String("/dev/")) || path.startsWith(QLatin1String("/proc/"))) return true;
    for (const QString& folder : allowedFolders)
        if (path == folder || path.startsWith(folder + QLatin1Char('/'))) return true;
    return false;
}

// The side effect the line shows, if any.
inline std::optional<QString> SideEffectOf(const QString& line, const QStringList& allowedFolders) {
    const QString call = StripPid(line);
    // Resumed halves, signals and exits carry no arguments worth judging: the first half of a
    // split call has them.
    if (call.startsWith(QLatin1String("<...")) || call.startsWith(QLatin1String("+++")) ||
        call.startsWith(QLatin1String("---")))
        return std::nullopt;
    const qsizetype paren = call.indexOf(QLatin1Char('('));
    if (paren <= 0) return std::nullopt;
    const QString name = call.left(paren);
    const QStringList paths = QuotedArguments(call);

    if (name == QLatin1String("socket")) {
        static const QRegularExpression network(QStringLiteral("^socket\\((AF_INET6?|AF_PACKET)\\b"));
        const auto m = network.match(call);
        if (m.hasMatch()) return QStringLiteral("opens a network socket (%1)").arg(m.captured(1));
        return std::nullopt;
    }

    if (name == QLatin1String("open") || name == QLatin1String("openat") ||
        name == QLatin1String("openat2") || name == QLatin1String("creat")) {
        static const QRegularExpression writing(
            QStringLiteral("\\b(O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND)\\b"));
        const bool writes = name == QLatin1String("creat") || writing.match(call).hasMatch();
        if (!writes || paths.isEmpty()) return std::nullopt;
        if (Allowed(paths.first(), allowedFolders)) return std::nullopt;
        return QStringLiteral("opens %1 for writing").arg(paths.first());
    }

    static const QStringList changing = {
        QStringLiteral("mkdir"),     QStringLiteral("mkdirat"),     QStringLiteral("rmdir"),
        QStringLiteral("unlink"),    QStringLiteral("unlinkat"),    QStringLiteral("rename"),
        QStringLiteral("renameat"),  QStringLiteral("renameat2"),   QStringLiteral("link"),
        QStringLiteral("linkat"),    QStringLiteral("symlink"),     QStringLiteral("symlinkat"),
        QStringLiteral("truncate"),  QStringLiteral("chmod"),       QStringLiteral("fchmodat"),
        QStringLiteral("chown"),     QStringLiteral("lchown"),      QStringLiteral("fchownat"),
        QStringLiteral("utime"),     QStringLiteral("utimes"),      QStringLiteral("utimensat"),
        QStringLiteral("mknod"),     QStringLiteral("mknodat"),     QStringLiteral("setxattr"),
        QStringLiteral("lsetxattr"), QStringLiteral("removexattr"), QStringLiteral("lremovexattr"),
    };
    if (changing.contains(name)) {
        if (paths.isEmpty()) return QStringLiteral("%1 on an open file").arg(name);
        for (const QString& path : paths)
            if (!Allowed(path, allowedFolders)) return QStringLiteral("%1 %2").arg(name, path);
    }
    return std::nullopt;
}

} // namespace SideEffectRules
