#include "AlarmFlow.h"
#include "DateFormatter.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

#include <ctime>

namespace {

// Values in UTC, with no zone to move them, so the texts are the same on any machine, any day.
const QDateTime kMade(QDate(2009, 3, 7), QTime(7, 5, 59), QTimeZone::utc());
const QDateTime kPicked(QDate(1999, 12, 31), QTime(23, 59), QTimeZone::utc());

void Do(AlarmFlow& f, const QString& a) {
    using F = AlarmFlow;
    static const QStringList plainNames = {"bday", "wake", "bOn", "bOff", "wOn", "wOff", "back", "done"};
    static void (F::*const plain[])() = {
        &F::PressBirthdayStatus, &F::PressWakeupStatus, &F::BirthdayOn, &F::BirthdayOff, &F::WakeupOn,
        &F::WakeupOff,           &F::BackToChoose,      &F::Done};
    static const QStringList setNames = {"setDate", "setTime", "setWake"};
    static void (F::*const set[])(const QDateTime&) = {&F::SetBirthDate, &F::SetBirthTime, &F::SetWakeupTime};
    static const QStringList editors = {"", "dateEd", "timeEd", "wakeEd"};
    if (const qsizetype i = plainNames.indexOf(a); i >= 0) return (f.*plain[i])();
    if (const qsizetype i = setNames.indexOf(a); i >= 0) return (f.*set[i])(kPicked);
    if (a.startsWith('q')) return f.ChooseFrequency(a.mid(1).toInt());
    if (a == "timer") return void(QMetaObject::invokeMethod(const_cast<QTimer*>(f.timer()), "timeout"));
    QVERIFY(editors.indexOf(a) > 0);
    f.OpenEditor(F::Editor(editors.indexOf(a)));
}

// The whole state in one line, each field after its label: the page [/open editor] [(whose
// confirmation)], back: where Back leads, last: the alarm page opened last, on: the alarms on,
// freq: the wake-up frequency, pressed: the On/Off pairs ever pressed, "values" while the page
// shows its alarm's values, and a running one-shot timer.
QString Describe(const AlarmFlow& f) {
    static const char* const pages[] = {"choose", "bday", "wake", "confirm"};
    static const char* const editors[] = {"", "/date", "/time", "/wake"};
    static const char* const lasts[] = {"-", "bday", "wake"};
    static const char* const frequencies[] = {"once", "daily", "fri-mon"};
    const auto pair = [](bool bday, bool wake) {
        return bday && wake ? "both" : bday ? "bday" : wake ? "wake" : "-";
    };
    QString page = QString::fromLatin1(pages[int(f.page())]) + QString::fromLatin1(editors[int(f.editor())]);
    if (f.page() == AlarmFlow::Page::Confirmation)
        page += f.confirmation() == AlarmFlow::Alarm::Wakeup ? "(wake)" : "(bday)";
    const QTimer* t = f.timer();
    const QString timer =
        t->isActive() ? QString::asprintf(" timer %d ms%s", t->interval(), t->isSingleShot() ? " once" : "")
                      : QString();
    return QString::asprintf("%s back:%s last:%s on:%s freq:%s pressed:%s%s%s", qPrintable(page),
                             f.backTarget() == AlarmFlow::Back::MainMenu ? "main" : "choose",
                             lasts[f.flagBirthdayWakeup()], pair(f.enableBirthday(), f.enableWakeup()),
                             frequencies[f.typeFrequency()], pair(f.birthdaySwitched(), f.wakeupSwitched()),
                             f.valuesShown() ? " values" : "", qPrintable(timer));
}

} // namespace

class TestAlarmFlow : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // A zone half an hour off the hour, east of UTC, so that "local" cannot pass by accident:
        // the flow's values and the formatter's moments carry their own zone.
        qputenv("TZ", "XST-5:30");
        tzset();
    }

    // The strftime-style formatter behind the alarm's texts; their own forms are tested with the
    // pickers, in every zone.
    void formats_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<QString>("expected");
        const QDateTime local(QDate(2009, 3, 7), QTime(13, 5, 59));
        QTest::newRow("literal text kept") << "at %H:%M on %d." << local << "at 13:05 on 07.";
        QTest::newRow("empty format") << "" << local << "";
        QTest::newRow("invalid moment") << "%Y/%m/%d" << QDateTime() << "";
        QTest::newRow("longer than the first buffer")
            << QString("%Y/%m/%d ").repeated(100) << local << QString("2009/03/07 ").repeated(100);
        // The value's own fields are written, whatever its spec: a picker's date is never moved
        // through the local zone.
        QTest::newRow("offset east of UTC")
            << "%Y/%m/%d %H/%M" << QDateTime(QDate(2011, 12, 30), QTime(0, 5), QTimeZone(14 * 3600))
            << "2011/12/30 00/05";
    }
    void formats() {
        QFETCH(QString, format);
        QFETCH(QDateTime, moment);
        QFETCH(QString, expected);
        QCOMPARE(DateFormatter(format, false).stringFromDate(moment), expected);
    }

    // One row a line: its name, the actions, the whole state they leave. Values show on the page
    // of an alarm that is on, and only there.
    void flow_data() {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QString>("state");
        const QString table = QStringLiteral(R"(
Back on the choose page is the screen's | back | choose back:main last:- on:- freq:once pressed:-
statuses only on the choose page | bday wake | bday back:choose last:bday on:- freq:once pressed:-
one editor at a time | bday bOn dateEd timeEd | bday/time back:choose last:bday on:bday freq:once pressed:bday values
an open editor stays open | bday bOn timeEd timeEd | bday/time back:choose last:bday on:bday freq:once pressed:bday values
birthday off closes its editor | bday bOn dateEd bOff | bday back:choose last:bday on:- freq:once pressed:bday
wake-up off closes its editor | wake wOn wakeEd wOff | wake back:choose last:wake on:- freq:once pressed:wake
Set closes its editor | wake wOn wakeEd setWake | wake back:choose last:wake on:wake freq:once pressed:wake values
Set leaves another editor open | bday bOn dateEd setTime | bday/date back:choose last:bday on:bday freq:once pressed:bday values
the other alarm on shows nothing here | wake wOn back bday | bday back:choose last:bday on:wake freq:once pressed:wake
frequency | wake wOn q2 | wake back:choose last:wake on:wake freq:fri-mon pressed:wake values
no fourth frequency | wake q2 q3 | wake back:choose last:wake on:- freq:fri-mon pressed:-
Back keeps the settings, closes the editor | bday bOn dateEd back | choose back:main last:bday on:bday freq:once pressed:bday
Done with the alarm off: no confirmation | bday done | choose back:main last:bday on:- freq:once pressed:-
Done confirms the birthday | bday bOn timeEd done | confirm(bday) back:choose last:bday on:bday freq:once pressed:bday timer 5000 ms once
Done confirms the wake-up alarm | wake wOn done | confirm(wake) back:choose last:wake on:wake freq:once pressed:wake timer 5000 ms once
Done asks only the page's alarm | bday bOn back wake done | choose back:main last:wake on:bday freq:once pressed:bday
Done only on an alarm page | bday bOn back done | choose back:main last:bday on:bday freq:once pressed:bday
the confirmation ends on the choose page | wake wOn done timer | choose back:main last:wake on:wake freq:once pressed:wake)");
        for (const QString& row : table.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList cells = row.split(QStringLiteral(" | "));
            QTest::newRow(qPrintable(cells[0])) << cells[1].split(u' ', Qt::SkipEmptyParts) << cells[2];
        }
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
};

QTEST_GUILESS_MAIN(TestAlarmFlow)
#include "tst_alarmflow.moc"
