#include "AlarmFlow.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

#include <functional>
#include <map>

namespace {

// Values in UTC, with no zone to move them, so the texts are the same on any machine, any day.
const QDateTime kMade(QDate(2009, 3, 7), QTime(7, 5, 59), QTimeZone::utc());
const QDateTime kPicked(QDate(1999, 12, 31), QTime(23, 59), QTimeZone::utc());

void Do(AlarmFlow& f, const QString& action) {
    using E = AlarmFlow::Editor;
    static const std::map<QString, std::function<void(AlarmFlow&)>> actions = {
        {"birthday", [](AlarmFlow& f) { f.PressBirthdayStatus(); }},
        {"wakeup", [](AlarmFlow& f) { f.PressWakeupStatus(); }},
        {"birthdayOn", [](AlarmFlow& f) { f.BirthdayOn(); }},
        {"birthdayOff", [](AlarmFlow& f) { f.BirthdayOff(); }},
        {"wakeupOn", [](AlarmFlow& f) { f.WakeupOn(); }},
        {"wakeupOff", [](AlarmFlow& f) { f.WakeupOff(); }},
        {"dateEditor", [](AlarmFlow& f) { f.OpenEditor(E::BirthDate); }},
        {"timeEditor", [](AlarmFlow& f) { f.OpenEditor(E::BirthTime); }},
        {"wakeupEditor", [](AlarmFlow& f) { f.OpenEditor(E::WakeupTime); }},
        {"setDate", [](AlarmFlow& f) { f.SetBirthDate(kPicked); }},
        {"setTime", [](AlarmFlow& f) { f.SetBirthTime(kPicked); }},
        {"setWakeup", [](AlarmFlow& f) { f.SetWakeupTime(kPicked); }},
        {"freq2", [](AlarmFlow& f) { f.ChooseFrequency(2); }},
        {"freq3", [](AlarmFlow& f) { f.ChooseFrequency(3); }},
        {"back", [](AlarmFlow& f) { f.BackToChoose(); }},
        {"done", [](AlarmFlow& f) { f.Done(); }},
        {"timer", [](AlarmFlow& f) { f.DoneView(); }},
    };
    actions.at(action)(f);
}

// The whole state in one line: page[/editor], Back's target, the page flag, which alarms are
// on (birthday, wake-up), the frequency, which On/Off pairs were pressed, and a running timer.
QString Describe(const AlarmFlow& f) {
    static const char* const pages[] = {"choose", "birthday", "wakeup", "confirm"};
    static const char* const editors[] = {"", "/date", "/time", "/wakeup"};
    QString page = QString::fromLatin1(pages[int(f.page())]);
    if (f.page() == AlarmFlow::Page::Confirmation)
        page += f.confirmation() == AlarmFlow::Alarm::Wakeup ? "(wakeup)" : "(birthday)";
    return QStringLiteral("%1%2 back:%3 flag:%4 on:%5%6 freq:%7 pressed:%8%9%10")
        .arg(page, QLatin1String(editors[int(f.editor())]),
             f.backTarget() == AlarmFlow::Back::MainMenu ? "main" : "choose")
        .arg(f.flagBirthdayWakeup())
        .arg(f.enableBirthday())
        .arg(f.enableWakeup())
        .arg(f.typeFrequency())
        .arg(int(f.birthdaySwitched()))
        .arg(int(f.wakeupSwitched()))
        .arg(f.timer()->isActive() ? " timer" : "");
}

} // namespace

class TestAlarmFlow : public QObject {
    Q_OBJECT
private slots:
    void flow_data() {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QString>("state");
        const auto row = [](const char* name, const QString& actions, const char* state) {
            QTest::newRow(name) << actions.split(' ', Qt::SkipEmptyParts) << QString::fromLatin1(state);
        };
        row("made on the choose page", "", "choose back:main flag:0 on:00 freq:0 pressed:00");
        row("birthday page", "birthday", "birthday back:choose flag:1 on:00 freq:0 pressed:00");
        row("wake-up page", "wakeup", "wakeup back:choose flag:2 on:00 freq:0 pressed:00");
        row("statuses only on the choose page", "birthday wakeup",
            "birthday back:choose flag:1 on:00 freq:0 pressed:00");
        row("birthday on", "birthday birthdayOn", "birthday back:choose flag:1 on:10 freq:0 pressed:10");
        row("birthday off", "birthday birthdayOn birthdayOff",
            "birthday back:choose flag:1 on:00 freq:0 pressed:10");
        row("wake-up on", "wakeup wakeupOn", "wakeup back:choose flag:2 on:01 freq:0 pressed:01");
        row("wake-up off", "wakeup wakeupOn wakeupOff", "wakeup back:choose flag:2 on:00 freq:0 pressed:01");
        row("an editor opens", "birthday birthdayOn dateEditor",
            "birthday/date back:choose flag:1 on:10 freq:0 pressed:10");
        row("one editor at a time", "birthday birthdayOn dateEditor timeEditor",
            "birthday/time back:choose flag:1 on:10 freq:0 pressed:10");
        row("an open editor stays open", "birthday birthdayOn timeEditor timeEditor",
            "birthday/time back:choose flag:1 on:10 freq:0 pressed:10");
        row("birthday off closes its editor", "birthday birthdayOn dateEditor birthdayOff",
            "birthday back:choose flag:1 on:00 freq:0 pressed:10");
        row("wake-up off closes its editor", "wakeup wakeupOn wakeupEditor wakeupOff",
            "wakeup back:choose flag:2 on:00 freq:0 pressed:01");
        row("Set closes its editor", "wakeup wakeupOn wakeupEditor setWakeup",
            "wakeup back:choose flag:2 on:01 freq:0 pressed:01");
        row("Set leaves another editor open", "birthday birthdayOn dateEditor setTime",
            "birthday/date back:choose flag:1 on:10 freq:0 pressed:10");
        row("frequency", "wakeup wakeupOn freq2", "wakeup back:choose flag:2 on:01 freq:2 pressed:01");
        row("no fourth frequency", "wakeup freq2 freq3", "wakeup back:choose flag:2 on:00 freq:2 pressed:00");
        row("Back keeps the settings, closes the editor", "birthday birthdayOn dateEditor back",
            "choose back:main flag:1 on:10 freq:0 pressed:10");
        row("Back on the choose page is the screen's", "back",
            "choose back:main flag:0 on:00 freq:0 pressed:00");
        row("Done with the alarm off: no confirmation", "birthday done",
            "choose back:main flag:1 on:00 freq:0 pressed:00");
        row("Done confirms the birthday", "birthday birthdayOn timeEditor done",
            "confirm(birthday) back:choose flag:1 on:10 freq:0 pressed:10 timer");
        row("Done confirms the wake-up alarm", "wakeup wakeupOn done",
            "confirm(wakeup) back:choose flag:2 on:01 freq:0 pressed:01 timer");
        row("Done asks only the page's alarm", "birthday birthdayOn back wakeup done",
            "choose back:main flag:2 on:10 freq:0 pressed:10");
        row("Done only on an alarm page", "birthday birthdayOn back done",
            "choose back:main flag:1 on:10 freq:0 pressed:10");
        row("the confirmation ends on the choose page", "wakeup wakeupOn done timer",
            "choose back:main flag:2 on:01 freq:0 pressed:01");
    }
    void flow() {
        QFETCH(QStringList, actions);
        QFETCH(QString, state);
        AlarmFlow f(kMade);
        QSignalSpy changes(&f, &AlarmFlow::changed);
        for (const QString& action : actions) {
            const QString before = Describe(f);
            const qsizetype told = changes.size();
            Do(f, action);
            // No change goes untold: the screen redraws on the signal alone.
            if (Describe(f) != before) QVERIFY2(changes.size() > told, qPrintable(action));
        }
        QCOMPARE(Describe(f), state);
    }

    void texts_data() {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QStringList>("texts"); // birthday date, birthday time, wake-up time
        QTest::newRow("made from the first value") << "" << QStringList{"2009/03/07", "07/05", "07/05"};
        QTest::newRow("birthday date") << "setDate" << QStringList{"1999/12/31", "07/05", "07/05"};
        QTest::newRow("birthday time") << "setTime" << QStringList{"2009/03/07", "23/59", "07/05"};
        QTest::newRow("wake-up time") << "setWakeup" << QStringList{"2009/03/07", "07/05", "23/59"};
    }
    void texts() {
        QFETCH(QString, set);
        QFETCH(QStringList, texts);
        AlarmFlow f(kMade);
        if (!set.isEmpty()) Do(f, set);
        QCOMPARE((QStringList{f.formattedBirthDateString(), f.formattedBirthTimeString(),
                              f.formattedWakeupTimeString()}),
                 texts);
        // The value is kept as the picker held it, for the picker to start from.
        const QDateTime& held = set == "setDate"   ? f.birthDate()
                                : set == "setTime" ? f.birthTime()
                                                   : f.wakeupTime();
        QCOMPARE(held, set.isEmpty() ? kMade : kPicked);
    }

    // The one test of the timer itself: five seconds, once, and its end is the choose page.
    void confirmationTimer() {
        AlarmFlow f(kMade);
        for (const char* action : {"birthday", "birthdayOn", "done"}) Do(f, action);
        const QTimer* timer = f.timer();
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 5000);
        QVERIFY(timer->isSingleShot());
        QVERIFY(QMetaObject::invokeMethod(const_cast<QTimer*>(timer), "timeout"));
        QCOMPARE(f.page(), AlarmFlow::Page::Choose);
    }
};

QTEST_GUILESS_MAIN(TestAlarmFlow)
#include "tst_alarmflow.moc"
