#include "SideEffectRules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#ifndef ROBOT_APP_BINARY
#define ROBOT_APP_BINARY ""
#endif

namespace {

// The window's points, where the session clicks: the centres of the controls it uses.
struct Step {
    enum Kind { Click, Type, Wait } kind;
    int x = 0;
    int y = 0;
    const char* text = nullptr;
    int ms = 0;
};

constexpr Step Click(int x, int y, int ms = 400) {
    return {Step::Click, x, y, nullptr, ms};
}
constexpr Step TypeText(const char* text) {
    return {Step::Type, 0, 0, text, 300};
}
constexpr Step Pause(int ms) {
    return {Step::Wait, 0, 0, nullptr, ms};
}

// A run through every screen that a control reaches: a scenario named and created, sounds
// chosen, a robot configuration picked, the birthday alarm set and confirmed, and back to the
// main menu through the alarm screen's Back, which writes the one log line.
const Step kSession[] = {
    Pause(3000),                            // the robot slides in; the menu buttons appear after it
    Click(732, 218),                        // Program scenario
    Click(258, 373),                        // Create a new scenario
    Click(647, 384),                        // into the name field
    TypeText("robot"),     Click(846, 385), // Create: the movement screen
    Click(695, 230),                        // sound tab
    Click(155, 361, 800),                   // three sounds
    Click(276, 407, 800),                   //
    Click(395, 499, 800),                   //
    Click(754, 230),                        // laser tab
    Click(279, 431),                        // second configuration
    Click(756, 731),                        // Back: the sound screen
    Click(757, 732),                        // Back: the movement screen
    Click(757, 732),                        // Back: the main menu
    Click(732, 343),                        // Alarm/Clock
    Click(259, 352),                        // birthday alarm
    Click(179, 363),                        // On
    Click(295, 440),                        // the date
    Click(846, 385),                        // Set
    Click(881, 731, 7000),                  // Done: the confirmation page, for five seconds
    Click(756, 731),                        // Back: the main menu
};

// The way back to the main menu through the alarm screen, should a click of the session have
// come before the screen was ready for it.
const Step kAgain[] = {Click(757, 732), Click(756, 731), Click(732, 343), Click(756, 731)};

QString Find(const char* tool) {
    return QStandardPaths::findExecutable(QString::fromLatin1(tool));
}

QString AppBinary() {
    const QString configured = QStringLiteral(ROBOT_APP_BINARY);
    if (!configured.isEmpty() && QFile::exists(configured)) return configured;
    const QString besideTests =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../src/robot-companion");
    return QFile::exists(besideTests) ? QDir::cleanPath(besideTests) : QString();
}

int Run(const QString& program, const QStringList& args, const QProcessEnvironment& env,
        QString* out = nullptr, int timeoutMs = 30000) {
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(program, args);
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished();
        return -1;
    }
    if (out) *out = QString::fromLocal8Bit(p.readAllStandardOutput()).trimmed();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

} // namespace

// The real binary, in a virtual X server, through a scripted session under strace -f: it opens
// no network socket and writes no file.
class TestNoSideEffects : public QObject {
    Q_OBJECT
private slots:
    void rules_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("effect"); // empty: none
        const QString ok;
        QTest::newRow("read a picture")
            << "42  openat(AT_FDCWD, \"/usr/share/fonts/a.ttf\", O_RDONLY|O_CLOEXEC) = 5" << ok;
        QTest::newRow("read with pid bracket")
            << "[pid  42] open(\"/etc/fonts/fonts.conf\", O_RDONLY) = 3" << ok;
        QTest::newRow("write to /dev/null") << "42  openat(AT_FDCWD, \"/dev/null\", O_RDWR) = 12" << ok;
        QTest::newRow("shared memory")
            << "42  openat(AT_FDCWD, \"/dev/shm/x\", O_RDWR|O_CREAT|O_EXCL, 0600) = 9" << ok;
        QTest::newRow("write to /proc")
            << "42  openat(AT_FDCWD, \"/proc/self/coredump_filter\", O_WRONLY) = 3" << ok;
        QTest::newRow("runtime folder checked")
            << "42  mkdir(\"/tmp/t/runtime\", 0700) = -1 EEXIST (File exists)" << ok;
        QTest::newRow("file in the runtime folder")
            << "42  openat(AT_FDCWD, \"/tmp/t/runtime/lock\", O_WRONLY|O_CREAT, 0644) = 4" << ok;
        QTest::newRow("X server socket") << "42  socket(AF_UNIX, SOCK_STREAM|SOCK_CLOEXEC, 0) = 3" << ok;
        QTest::newRow("resumed half") << "42  <... openat resumed>) = 7" << ok;
        QTest::newRow("exit") << "42  +++ exited with 0 +++" << ok;
        QTest::newRow("stat of home")
            << "42  newfstatat(AT_FDCWD, \"/tmp/t/home\", {st_mode=S_IFDIR}, 0) = 0" << ok;
        QTest::newRow("settings file")
            << "42  openat(AT_FDCWD, \"/tmp/t/home/.config/x.conf\", O_WRONLY|O_CREAT|O_TRUNC, 0666) = 6"
            << "opens /tmp/t/home/.config/x.conf for writing";
        QTest::newRow("failed attempt counts")
            << "42  openat(AT_FDCWD, \"/var/log/x\", O_RDWR|O_APPEND) = -1 EACCES (Permission denied)"
            << "opens /var/log/x for writing";
        QTest::newRow("creat") << "42  creat(\"/tmp/out\", 0644) = 3"
                               << "opens /tmp/out for writing";
        QTest::newRow("split call") << "42  openat(AT_FDCWD, \"/tmp/cache\", O_RDWR|O_CREAT <unfinished ...>"
                                    << "opens /tmp/cache for writing";
        QTest::newRow("cache folder") << "42  mkdir(\"/tmp/t/home/.cache\", 0700) = 0"
                                      << "mkdir /tmp/t/home/.cache";
        QTest::newRow("unlink") << "42  unlink(\"/tmp/x\") = 0"
                                << "unlink /tmp/x";
        QTest::newRow("rename") << "42  rename(\"/tmp/t/runtime/a\", \"/tmp/b\") = 0"
                                << "rename /tmp/b";
        QTest::newRow("times of an open file") << "42  utimensat(3, NULL, NULL, 0) = 0"
                                               << "utimensat on an open file";
        QTest::newRow("network socket") << "42  socket(AF_INET, SOCK_STREAM, IPPROTO_TCP) = 7"
                                        << "opens a network socket (AF_INET)";
        QTest::newRow("IPv6 socket") << "42  socket(AF_INET6, SOCK_DGRAM|SOCK_CLOEXEC, IPPROTO_IP) = 8"
                                     << "opens a network socket (AF_INET6)";
    }

    void rules() {
        QFETCH(QString, line);
        QFETCH(QString, effect);
        const auto found = SideEffectRules::SideEffectOf(line, {QStringLiteral("/tmp/t/runtime")});
        QCOMPARE(found.value_or(QString()), effect);
    }

    void scriptedSessionUnderStrace() {
        const QString strace = Find("strace"), xvfb = Find("Xvfb"), xdotool = Find("xdotool");
        if (strace.isEmpty() || xvfb.isEmpty() || xdotool.isEmpty()) QSKIP("needs strace, Xvfb and xdotool");
        const QString app = AppBinary();
        QVERIFY2(!app.isEmpty(), "the application binary was not built");
        const QProcessEnvironment base = QProcessEnvironment::systemEnvironment();
        if (Run(strace,
                {QStringLiteral("-f"), QStringLiteral("-o"), QStringLiteral("/dev/null"),
                 QStringLiteral("true")},
                base) != 0)
            QSKIP("strace cannot trace processes here (ptrace is not permitted)");

        QTemporaryDir tmp;
        QVERIFY(tmp.isValid());
        const QString home = tmp.filePath(QStringLiteral("home"));
        const QString runtime = tmp.filePath(QStringLiteral("runtime"));
        const QString trace = tmp.filePath(QStringLiteral("trace.txt"));
        QVERIFY(QDir().mkpath(home) && QDir().mkpath(runtime));
        QVERIFY(QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                   QFileDevice::ExeOwner));

        // A private X server; it says which display it took once it is ready.
        QProcess server;
        server.start(xvfb, {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                            QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                            QStringLiteral("tcp")});
        if (!server.waitForStarted() || !QTest::qWaitFor([&] { return server.canReadLine(); }, 20000))
            QSKIP("Xvfb did not start");
        const QString display = QLatin1Char(':') + QString::fromLatin1(server.readLine()).trimmed();
        auto stopServer = qScopeGuard([&] {
            server.terminate();
            if (!server.waitForFinished(5000)) server.kill();
        });

        // The application's whole environment, so that nothing of the caller's session leaks in:
        // an empty home, a fresh runtime folder, and a session bus address that leads nowhere (a
        // desktop has a bus; without any, the bus library would start one, which writes its
        // address under the home folder: the desktop's doing, not the application's).
        QProcessEnvironment env;
        env.insert(QStringLiteral("PATH"), base.value(QStringLiteral("PATH")));
        env.insert(QStringLiteral("HOME"), home);
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        env.insert(QStringLiteral("DISPLAY"), display);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                   QStringLiteral("unix:path=") + runtime + QStringLiteral("/no-bus"));
        // The leak checker refuses to run under a tracer; the other sanitizers stay on.
        env.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        env.insert(QStringLiteral("UBSAN_OPTIONS"), QStringLiteral("print_stacktrace=1:halt_on_error=1"));

        QProcess traced;
        traced.setProcessEnvironment(env);
        traced.start(strace, {QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-o"), trace,
                              QStringLiteral("-e"), QStringLiteral("trace=%file,%network"), app});
        QVERIFY(traced.waitForStarted());
        auto stopApp = qScopeGuard([&] {
            if (traced.state() != QProcess::NotRunning) {
                traced.kill();
                traced.waitForFinished(5000);
            }
        });

        QProcessEnvironment tools = base;
        tools.insert(QStringLiteral("DISPLAY"), display);
        QString window;
        QVERIFY2(Run(xdotool,
                     {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                      QStringLiteral("--name"), QStringLiteral("^Robot Companion$")},
                     tools, &window, 60000) == 0,
                 "the window did not appear");
        window = window.section(QLatin1Char('\n'), 0, 0);

        QByteArray log;
        const auto play = [&](const Step* steps, size_t count) {
            for (size_t i = 0; i < count; ++i) {
                const Step& s = steps[i];
                if (s.kind == Step::Click)
                    Run(xdotool,
                        {QStringLiteral("mousemove"), QStringLiteral("--window"), window,
                         QString::number(s.x), QString::number(s.y), QStringLiteral("click"),
                         QStringLiteral("1")},
                        tools);
                else if (s.kind == Step::Type)
                    Run(xdotool,
                        {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("60"),
                         QString::fromLatin1(s.text)},
                        tools);
                QTest::qWait(s.ms);
                log += traced.readAllStandardError();
            }
        };
        play(kSession, std::size(kSession));
        for (int attempt = 0; attempt < 3 && !log.contains("BackToMainMenu"); ++attempt)
            play(kAgain, std::size(kAgain));

        QString pid;
        Run(xdotool, {QStringLiteral("getwindowpid"), window}, tools, &pid);
        QVERIFY(pid.toInt() > 0);
        ::kill(pid.toInt(), SIGTERM);
        QVERIFY(traced.waitForFinished(30000));
        log += traced.readAllStandardError();
        QVERIFY2(log.contains("BackToMainMenu"), "the session did not get through the alarm screen");

        QFile file(trace);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        QStringList effects;
        int lines = 0;
        int unixSockets = 0;
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            ++lines;
            if (line.contains(QLatin1String("socket(AF_UNIX"))) ++unixSockets;
            if (const auto effect = SideEffectRules::SideEffectOf(line, {runtime}))
                effects << *effect + QStringLiteral("   <- ") + line;
        }
        // The trace saw the run: the connection to the X server, and the pictures read.
        QVERIFY2(unixSockets >= 1, qPrintable(QStringLiteral("%1 lines traced").arg(lines)));
        QVERIFY(lines > 100);
        QVERIFY2(effects.isEmpty(), qPrintable(effects.join(QLatin1Char('\n'))));
        // And nothing was left behind where the application could have written.
        QCOMPARE(QDir(home).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden), QStringList());
        QCOMPARE(QDir(runtime).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList());
    }
};

QTEST_MAIN(TestNoSideEffects)
#include "tst_nosideeffects.moc"
