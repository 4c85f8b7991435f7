#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "TrackingRegistry.h"

#include <QDateEdit>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

// The main menu shows its buttons when its robot has arrived; should it never get there, its
// own way of showing them stands in, so the alarm screen can still be reached by a click.
Frame_Alarm* OpenAlarm(AppHarness& app) {
    Frame_MainMenu* menu = app.root()->frmMainMenu;
    if (!app.waitForMainMenuReady(3000)) menu->ButtonTrackingOn();
    if (!menu->BtnAlarm->isVisible()) return nullptr;
    app.click(menu->BtnAlarm);
    return app.root()->frmAlarm;
}

bool On(const QWidget* w) {
    return w && w->isVisible();
}

// Child widgets in stacking order, the topmost last.
QList<QWidget*> WidgetChildren(const QWidget* parent) {
    QList<QWidget*> children;
    for (QObject* c : parent->children())
        if (auto* w = qobject_cast<QWidget*>(c)) children << w;
    return children;
}

QRect Geometry(const QWidget* w) {
    return w ? w->geometry() : QRect();
}

// What the user sees, in a few words: the page, which value buttons and editors are open,
// where Back leads, and the alarm state (page opened last, birthday, wake-up, frequency).
QString Summary(const AppHarness& app, const Frame_Alarm* a) {
    if (app.shownScreen() == app.root()->frmMainMenu) return "main menu";
    if (app.shownScreen() != a) return "another screen";

    QString page = "mixed";
    const bool choose = On(a->frmChooseView), birthday = On(a->frmBirthdayControlView),
               wakeup = On(a->frmWakeupControlView), done = On(a->BtnDone), title = On(a->txtBigTitle);
    if (On(a->frmDoneView))
        page = "confirmation";
    else if (choose && !birthday && !wakeup && !done && !title)
        page = "choose";
    else if (birthday && !choose && !wakeup && done && title &&
             a->txtBigTitle->captionText() == "Birthday Alarm")
        page = "birthday";
    else if (wakeup && !choose && !birthday && done && title &&
             a->txtBigTitle->captionText() == "Wake up Alarm")
        page = "wake-up";

    QStringList values;
    if (On(a->frmBirthTimeDateButtonView)) values << "dates";
    if (On(a->frmWakeupTimeFreqButtonView)) values << "times";
    QStringList editors;
    if (On(a->frmBirthDateEditView)) editors << "date";
    if (On(a->frmBirthTimeEditView)) editors << "time";
    if (On(a->frmWakeupTimeEditView)) editors << "wake-up time";

    QString back = "?";
    if (a->BtnBack->ButtonAction == &Frame_Alarm_BackToChooseBtnAction) back = "choose";
    if (a->BtnBack->ButtonAction == &Frame_Alarm_BackToMainMenuBtnAction) back = "main menu";

    return QString("%1 | values:%2 | editor:%3 | back:%4 | %5 %6 %7 %8")
        .arg(page, values.isEmpty() ? "none" : values.join('+'),
             editors.isEmpty() ? "none" : editors.join('+'), back)
        .arg(a->flagBirthdayWakeup)
        .arg(a->enableBirthday)
        .arg(a->enableWakeup)
        .arg(a->typeFrequency);
}

Button* ButtonNamed(AppHarness& app, Frame_Alarm* a, const QString& name) {
    const std::pair<const char*, Button*> buttons[] = {
        {"Birthday", a->BtnBirthdayStatus},
        {"Wakeup", a->BtnWakeupStatus},
        {"BirthOn", a->BtnBirthdayOn},
        {"BirthOff", a->BtnBirthdayOff},
        {"BirthDate", a->BtnBirthDate},
        {"BirthDateSet", a->BtnBirthDateSet},
        {"BirthTime", a->BtnBirthTime},
        {"BirthTimeSet", a->BtnBirthTimeSet},
        {"WakeOn", a->BtnWakeupOn},
        {"WakeOff", a->BtnWakeupOff},
        {"WakeTime", a->BtnWakeupTime},
        {"WakeTimeSet", a->BtnWakeupTimeSet},
        {"Freq1", a->BtnWakeupFreq1},
        {"Freq2", a->BtnWakeupFreq2},
        {"Freq3", a->BtnWakeupFreq3},
        {"Back", a->BtnBack},
        {"Done", a->BtnDone},
        {"Question", a->BtnQuestion},
        {"Alarm", app.root()->frmMainMenu->BtnAlarm},
    };
    for (const auto& [n, b] : buttons)
        if (name == n) return b;
    return nullptr;
}

// The confirmation timer is the screen's own 5-second one; tests that do not care about the
// wait let it run out at once, which calls exactly what the full wait would.
bool FireConfirmationTimer(Frame_Alarm* a) {
    if (!a->timer || !a->timer->isActive()) return false;
    a->timer->start(0);
    return QTest::qWaitFor([a] { return !a->timer->isActive(); }, 2000);
}

// Clicks a visible button by name, or fires the confirmation timer ("Timer").
bool Do(AppHarness& app, Frame_Alarm* a, const QString& step) {
    if (step == "Timer") return FireConfirmationTimer(a);
    Button* b = ButtonNamed(app, a, step);
    if (!b || !b->isVisible()) return false;
    app.click(b);
    return true;
}

#define DO_STEPS(app, alarm, steps)                                                                          \
    for (const QString& step : steps) QVERIFY2(Do(app, alarm, step), qPrintable("cannot do step " + step))

// Runs fn with standard error going to a file; returns what it wrote.
template <class Fn> QByteArray CaptureStderr(Fn fn) {
    QTemporaryFile file;
    if (!file.open()) return "<no temporary file>";
    std::fflush(stderr);
    const int saved = ::dup(STDERR_FILENO);
    ::dup2(file.handle(), STDERR_FILENO);
    fn();
    std::fflush(stderr);
    ::dup2(saved, STDERR_FILENO);
    ::close(saved);
    QFile read(file.fileName());
    if (!read.open(QIODevice::ReadOnly)) return "<unreadable>";
    return read.readAll();
}

} // namespace

class TestAlarmScreen : public QObject {
    Q_OBJECT
private slots:
    // Every move of the alarm screen, each from a fresh window, through clicks on the real window.
    void pageFlow_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("expected");
        const QString chooseNew = "choose | values:none | editor:none | back:main menu | 0 0 0 0";

        QTest::newRow("main menu Alarm: choose page") << QStringList{} << chooseNew;
        QTest::newRow("choose: birthday status")
            << QStringList{"Birthday"} << "birthday | values:none | editor:none | back:choose | 1 0 0 0";
        QTest::newRow("choose: wake-up status")
            << QStringList{"Wakeup"} << "wake-up | values:none | editor:none | back:choose | 2 0 0 0";
        QTest::newRow("choose: Back") << QStringList{"Back"} << "main menu";
        QTest::newRow("choose: Back, then Alarm again") << QStringList{"Back", "Alarm"} << chooseNew;

        QTest::newRow("birthday: On") << QStringList{"Birthday", "BirthOn"}
                                      << "birthday | values:dates | editor:none | back:choose | 1 1 0 0";
        QTest::newRow("birthday: Off first")
            << QStringList{"Birthday", "BirthOff"}
            << "birthday | values:none | editor:none | back:choose | 1 0 0 0";
        QTest::newRow("birthday: On, Off") << QStringList{"Birthday", "BirthOn", "BirthOff"}
                                           << "birthday | values:none | editor:none | back:choose | 1 0 0 0";
        QTest::newRow("birthday: date editor")
            << QStringList{"Birthday", "BirthOn", "BirthDate"}
            << "birthday | values:dates | editor:date | back:choose | 1 1 0 0";
        QTest::newRow("birthday: time editor")
            << QStringList{"Birthday", "BirthOn", "BirthTime"}
            << "birthday | values:dates | editor:time | back:choose | 1 1 0 0";
        QTest::newRow("birthday: date then time leaves time")
            << QStringList{"Birthday", "BirthOn", "BirthDate", "BirthTime"}
            << "birthday | values:dates | editor:time | back:choose | 1 1 0 0";
        QTest::newRow("birthday: time then date leaves date")
            << QStringList{"Birthday", "BirthOn", "BirthTime", "BirthDate"}
            << "birthday | values:dates | editor:date | back:choose | 1 1 0 0";
        QTest::newRow("birthday: date editor pressed twice stays")
            << QStringList{"Birthday", "BirthOn", "BirthDate", "BirthDate"}
            << "birthday | values:dates | editor:date | back:choose | 1 1 0 0";
        QTest::newRow("birthday: date Set closes")
            << QStringList{"Birthday", "BirthOn", "BirthDate", "BirthDateSet"}
            << "birthday | values:dates | editor:none | back:choose | 1 1 0 0";
        QTest::newRow("birthday: time Set closes")
            << QStringList{"Birthday", "BirthOn", "BirthTime", "BirthTimeSet"}
            << "birthday | values:dates | editor:none | back:choose | 1 1 0 0";
        QTest::newRow("birthday: Off closes the editor")
            << QStringList{"Birthday", "BirthOn", "BirthTime", "BirthOff"}
            << "birthday | values:none | editor:none | back:choose | 1 0 0 0";
        QTest::newRow("birthday: On again, editors still closed")
            << QStringList{"Birthday", "BirthOn", "BirthDate", "BirthOff", "BirthOn"}
            << "birthday | values:dates | editor:none | back:choose | 1 1 0 0";

        QTest::newRow("wake-up: On") << QStringList{"Wakeup", "WakeOn"}
                                     << "wake-up | values:times | editor:none | back:choose | 2 0 1 0";
        QTest::newRow("wake-up: On, Off") << QStringList{"Wakeup", "WakeOn", "WakeOff"}
                                          << "wake-up | values:none | editor:none | back:choose | 2 0 0 0";
        QTest::newRow("wake-up: time editor")
            << QStringList{"Wakeup", "WakeOn", "WakeTime"}
            << "wake-up | values:times | editor:wake-up time | back:choose | 2 0 1 0";
        QTest::newRow("wake-up: time Set closes")
            << QStringList{"Wakeup", "WakeOn", "WakeTime", "WakeTimeSet"}
            << "wake-up | values:times | editor:none | back:choose | 2 0 1 0";
        QTest::newRow("wake-up: Off closes the editor")
            << QStringList{"Wakeup", "WakeOn", "WakeTime", "WakeOff"}
            << "wake-up | values:none | editor:none | back:choose | 2 0 0 0";
        QTest::newRow("wake-up: Once") << QStringList{"Wakeup", "WakeOn", "Freq3", "Freq1"}
                                       << "wake-up | values:times | editor:none | back:choose | 2 0 1 0";
        QTest::newRow("wake-up: Daily") << QStringList{"Wakeup", "WakeOn", "Freq2"}
                                        << "wake-up | values:times | editor:none | back:choose | 2 0 1 1";
        QTest::newRow("wake-up: Friday To Monday")
            << QStringList{"Wakeup", "WakeOn", "Freq3"}
            << "wake-up | values:times | editor:none | back:choose | 2 0 1 2";

        QTest::newRow("birthday: Back") << QStringList{"Birthday", "Back"}
                                        << "choose | values:none | editor:none | back:main menu | 1 0 0 0";
        QTest::newRow("birthday: Back with an editor open")
            << QStringList{"Birthday", "BirthOn", "BirthDate", "Back"}
            << "choose | values:none | editor:none | back:main menu | 1 1 0 0";
        QTest::newRow("wake-up: Back with an editor open")
            << QStringList{"Wakeup", "WakeOn", "WakeTime", "Back"}
            << "choose | values:none | editor:none | back:main menu | 2 0 1 0";
        QTest::newRow("birthday, Back, wake-up: no birthday buttons")
            << QStringList{"Birthday", "BirthOn", "Back", "Wakeup"}
            << "wake-up | values:none | editor:none | back:choose | 2 1 0 0";
        QTest::newRow("wake-up, Back, birthday: no wake-up buttons")
            << QStringList{"Wakeup", "WakeOn", "Back", "Birthday"}
            << "birthday | values:none | editor:none | back:choose | 1 0 1 0";
        QTest::newRow("birthday page remembers On")
            << QStringList{"Birthday", "BirthOn", "Back", "Birthday"}
            << "birthday | values:dates | editor:none | back:choose | 1 1 0 0";
        QTest::newRow("wake-up page remembers On")
            << QStringList{"Wakeup", "WakeOn", "Freq2", "Back", "Wakeup"}
            << "wake-up | values:times | editor:none | back:choose | 2 0 1 1";

        QTest::newRow("birthday: Done with alarm off")
            << QStringList{"Birthday", "Done"}
            << "choose | values:none | editor:none | back:main menu | 1 0 0 0";
        QTest::newRow("wake-up: Done with alarm off")
            << QStringList{"Wakeup", "Done"}
            << "choose | values:none | editor:none | back:main menu | 2 0 0 0";
        QTest::newRow("birthday: Done with alarm on")
            << QStringList{"Birthday", "BirthOn", "Done"}
            << "confirmation | values:none | editor:none | back:choose | 1 1 0 0";
        QTest::newRow("wake-up: Done with alarm on")
            << QStringList{"Wakeup", "WakeOn", "Done"}
            << "confirmation | values:none | editor:none | back:choose | 2 0 1 0";
        QTest::newRow("birthday: Done with an editor open")
            << QStringList{"Birthday", "BirthOn", "BirthTime", "Done"}
            << "confirmation | values:none | editor:none | back:choose | 1 1 0 0";
        QTest::newRow("confirmation: timer leads to choose")
            << QStringList{"Birthday", "BirthOn", "Done", "Timer"}
            << "choose | values:none | editor:none | back:main menu | 1 1 0 0";
        QTest::newRow("wake-up confirmation: timer leads to choose")
            << QStringList{"Wakeup", "WakeOn", "Done", "Timer"}
            << "choose | values:none | editor:none | back:main menu | 2 0 1 0";
        QTest::newRow("after the confirmation Back leads to the main menu")
            << QStringList{"Birthday", "BirthOn", "Done", "Timer", "Back"} << "main menu";
        QTest::newRow("choose page again after the main menu keeps the state")
            << QStringList{"Wakeup", "WakeOn", "Freq3", "Back", "Back", "Alarm"}
            << "choose | values:none | editor:none | back:main menu | 2 0 1 2";
    }
    void pageFlow() {
        QFETCH(QStringList, steps);
        QFETCH(QString, expected);
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        QCOMPARE(a->frmPreframe, static_cast<NSViewS*>(app.root()->frmMainMenu));
        DO_STEPS(app, a, steps);
        QCOMPARE(Summary(app, a), expected);
    }

    void theThreeEditorsShareOnePlace_data() {
        QTest::addColumn<int>("which");
        QTest::newRow("birthday date") << 0;
        QTest::newRow("birthday time") << 1;
        QTest::newRow("wake-up time") << 2;
    }
    void theThreeEditorsShareOnePlace() {
        QFETCH(int, which);
        AppHarness app;
        Frame_Alarm* a = app.root()->frmAlarm;
        NSViewS* editors[] = {a->frmBirthDateEditView, a->frmBirthTimeEditView, a->frmWakeupTimeEditView};
        NSImageViewS* grounds[] = {a->txtFieldGround, a->txtBirthTimeFieldGround,
                                   a->txtWakeupTimeFieldGround};
        QDateTimeEdit* pickers[] = {a->txtBirthDate, a->txtBirthTime, a->txtWakeupTime};
        Button* sets[] = {a->BtnBirthDateSet, a->BtnBirthTimeSet, a->BtnWakeupTimeSet};

        NSViewS* editor = editors[which];
        QCOMPARE(Geometry(editor), QRect(534, 339, 372, 75));
        // Background, picker over it, then Set.
        QCOMPARE(WidgetChildren(editor), (QList<QWidget*>{grounds[which], pickers[which], sets[which]}));
        QCOMPARE(Geometry(grounds[which]), QRect(0, 0, 227, 72));
        QCOMPARE(grounds[which]->imgDefault.name(), QString("textbox"));
        QCOMPARE(grounds[which]->imgDefault.size(), QSizeF(227, 72));
        QCOMPARE(Geometry(pickers[which]), QRect(18, 0, 195, 50));
        QCOMPARE(Geometry(sets[which]), QRect(257, 23, 111, 46));
        QCOMPARE(sets[which]->captionText(), QString("Set"));
    }

    void creationTextsAreTheCreationMomentWithSlashes() {
        const QDateTime before = QDateTime::currentDateTime();
        AppHarness app;
        const QDateTime after = QDateTime::currentDateTime();
        Frame_Alarm* a = app.root()->frmAlarm;

        // Each picker starts at the moment the screen was made.
        const QDate date = a->txtBirthDate->date();
        QVERIFY(date >= before.date() && date <= after.date());
        for (QTimeEdit* picker : {a->txtBirthTime, a->txtWakeupTime}) {
            const QTime t = picker->time();
            if (before.date() == after.date()) QVERIFY(t >= before.time().addMSecs(-1) && t <= after.time());
        }
        QCOMPARE(a->formattedBirthDateString, date.toString("yyyy/MM/dd"));
        QCOMPARE(a->formattedBirthTimeString, a->txtBirthTime->time().toString("HH/mm"));
        QCOMPARE(a->formattedWakeupTimeString, a->txtWakeupTime->time().toString("HH/mm"));
        QCOMPARE(a->BtnBirthDate->captionText(), a->formattedBirthDateString);
        QCOMPARE(a->BtnBirthTime->captionText(), a->formattedBirthTimeString);
        QCOMPARE(a->BtnWakeupTime->captionText(), a->formattedWakeupTimeString);
        QVERIFY(a->forBirthDateFormatter && a->forBirthTimeFormatter && a->forWakeupTimeFormatter);
        QCOMPARE(a->forBirthDateFormatter->dateFormat(), QString("%Y/%m/%d"));
        QCOMPARE(a->forBirthTimeFormatter->dateFormat(), QString("%H/%M"));
        QCOMPARE(a->forWakeupTimeFormatter->dateFormat(), QString("%H/%M"));
    }

    void setWithoutTouchingThePickerWritesItsValue() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        const QString date = a->txtBirthDate->date().toString("yyyy/MM/dd");
        const QString time = a->txtBirthTime->time().toString("HH/mm");
        const QString wake = a->txtWakeupTime->time().toString("HH/mm");
        // Spoil the texts first, so only Set can bring them back.
        a->formattedBirthDateString = a->formattedBirthTimeString = a->formattedWakeupTimeString = "x";

        const DateFormatter* oldDateFormatter = a->forBirthDateFormatter.get();
        DO_STEPS(app, a, (QStringList{"Birthday", "BirthOn", "BirthDate", "BirthDateSet"}));
        QCOMPARE(a->formattedBirthDateString, date);
        QCOMPARE(a->BtnBirthDate->captionText(), date);
        QVERIFY(a->forBirthDateFormatter.get() != oldDateFormatter); // made anew at Set
        QCOMPARE(a->forBirthDateFormatter->dateFormat(), QString("%Y/%m/%d"));

        DO_STEPS(app, a, (QStringList{"BirthTime", "BirthTimeSet"}));
        QCOMPARE(a->formattedBirthTimeString, time);
        QCOMPARE(a->BtnBirthTime->captionText(), time);
        QCOMPARE(a->formattedBirthDateString, date);

        DO_STEPS(app, a, (QStringList{"Back", "Wakeup", "WakeOn", "WakeTime", "WakeTimeSet"}));
        QCOMPARE(a->formattedWakeupTimeString, wake);
        QCOMPARE(a->BtnWakeupTime->captionText(), wake);
        QCOMPARE(a->BtnWakeupTime->Text.rectFrame, MakeNSRect(8, 8, 180, 46));
    }

    void setWritesWhatTheUserPicked() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, (QStringList{"Birthday", "BirthOn", "BirthDate"}));
        a->txtBirthDate->setDate(QDate(2009, 3, 7));
        DO_STEPS(app, a, (QStringList{"BirthDateSet", "BirthTime"}));
        a->txtBirthTime->setTime(QTime(7, 5));
        DO_STEPS(app, a, (QStringList{"BirthTimeSet"}));
        QCOMPARE(a->BtnBirthDate->captionText(), QString("2009/03/07"));
        QCOMPARE(a->BtnBirthTime->captionText(), QString("07/05"));

        // Off keeps the texts; On again shows them.
        DO_STEPS(app, a, (QStringList{"BirthOff", "BirthOn"}));
        QVERIFY(a->BtnBirthDate->isVisible());
        QCOMPARE(a->BtnBirthDate->captionText(), QString("2009/03/07"));
        QCOMPARE(a->BtnBirthTime->captionText(), QString("07/05"));

        DO_STEPS(app, a, (QStringList{"Back", "Wakeup", "WakeOn", "WakeTime"}));
        a->txtWakeupTime->setTime(QTime(23, 59, 59));
        DO_STEPS(app, a, (QStringList{"WakeTimeSet"}));
        QCOMPARE(a->BtnWakeupTime->captionText(), QString("23/59"));
        // The picker the user left unset keeps its value: a time edit never touches a date.
        QCOMPARE(a->BtnBirthDate->captionText(), QString("2009/03/07"));
    }

    void onOffLooks_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("onUp");
        QTest::addColumn<QString>("offUp");
        QTest::newRow("birthday, new") << QStringList{"Birthday"} << "but_normal_Btn01"
                                       << "but_selected_Btn01";
        QTest::newRow("birthday On") << QStringList{"Birthday", "BirthOn"} << "but_selected_Btn01"
                                     << "but_disabled_Btn01";
        QTest::newRow("birthday Off") << QStringList{"Birthday", "BirthOff"} << "but_disabled_Btn01"
                                      << "but_selected_Btn01";
        QTest::newRow("birthday On, Off")
            << QStringList{"Birthday", "BirthOn", "BirthOff"} << "but_disabled_Btn01"
            << "but_selected_Btn01";
        QTest::newRow("birthday On kept across visits")
            << QStringList{"Birthday", "BirthOn", "Back", "Birthday"} << "but_selected_Btn01"
            << "but_disabled_Btn01";
        QTest::newRow("wake-up, new: set from the state on entry")
            << QStringList{"Wakeup"} << "but_disabled_Btn01"
            << "but_selected_Btn01";
        QTest::newRow("wake-up On") << QStringList{"Wakeup", "WakeOn"} << "but_selected_Btn01"
                                    << "but_disabled_Btn01";
        QTest::newRow("wake-up On, Off") << QStringList{"Wakeup", "WakeOn", "WakeOff"} << "but_disabled_Btn01"
                                         << "but_selected_Btn01";
        QTest::newRow("wake-up On kept across visits")
            << QStringList{"Wakeup", "WakeOn", "Back", "Wakeup"} << "but_selected_Btn01"
            << "but_disabled_Btn01";
    }
    void onOffLooks() {
        QFETCH(QStringList, steps);
        QFETCH(QString, onUp);
        QFETCH(QString, offUp);
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, steps);
        const bool wakeup = steps.front() == "Wakeup";
        Button* on = wakeup ? a->BtnWakeupOn : a->BtnBirthdayOn;
        Button* off = wakeup ? a->BtnWakeupOff : a->BtnBirthdayOff;
        app.moveTo(QPoint(1, 1)); // the pointer off both, so each shows its up picture
        QCOMPARE(on->BtnImageUp.name(), onUp);
        QCOMPARE(off->BtnImageUp.name(), offUp);
        QCOMPARE(on->shownPictureName(), onUp);
        for (Button* b : {on, off}) {
            QCOMPARE(b->BtnImageMove.name(), QString("but_over_Btn01"));
            QCOMPARE(b->BtnImageDown.name(), QString("but_selected_Btn01"));
            QCOMPARE(Geometry(b).size(), QSize(111, 46));
        }
        QCOMPARE(on->captionText(), QString("On"));
        QCOMPARE(off->captionText(), QString("Off"));
    }

    void wakeupTitleFollowsOnAndOff() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, (QStringList{"Wakeup", "WakeOn"}));
        QCOMPARE(a->txtWakeupTitle->captionText(), QString("Check information about wake up alarm:"));
        QCOMPARE(a->txtWakeupTitle->Text.font.pixelSize(), 15);
        DO_STEPS(app, a, (QStringList{"WakeOff"}));
        QCOMPARE(a->txtWakeupTitle->captionText(), QString("Change the status:"));
        DO_STEPS(app, a, (QStringList{"WakeOn", "Back", "Wakeup"}));
        QCOMPARE(a->txtWakeupTitle->captionText(), QString("Check information about wake up alarm:"));
    }

    void descriptionAndStatusesFollowThePages() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, (QStringList{"Birthday"}));
        QCOMPARE(
            a->txtAlarmDescription->captionText(),
            QString("If you choose the \nbirthday alarm to be \n\"on\",please complete \nthe \"date\" and "
                    "\"time\" \ninformation."));
        QCOMPARE(a->txtAlarmDescription->Text.rectFrame, MakeNSRect(0, 15, 209, 76));
        QCOMPARE(a->txtBigTitle->Text.font.pixelSize(), 24);
        DO_STEPS(app, a, (QStringList{"BirthOn", "Back"}));
        QCOMPARE(a->txtAlarmDescription->captionText(),
                 QString("Choose if you want\n your alarm to be on\n  or off."));
        QCOMPARE(a->txtAlarmDescription->Text.rectFrame, MakeNSRect(0, 27, 209, 76));
        QCOMPARE(a->BtnBirthdayStatus->captionText(), QString("Birthday alarm:On"));
        QCOMPARE(a->BtnWakeupStatus->captionText(), QString("Wake up alarm:Off"));

        DO_STEPS(app, a, (QStringList{"Wakeup"}));
        QCOMPARE(
            a->txtAlarmDescription->captionText(),
            QString(
                "If you choose the \nwake up alarm to be \n\"on\",please complete \nthe \"time\", \"date\" "
                "\nand \"Frequency\" \ninformation."));
        DO_STEPS(app, a, (QStringList{"WakeOn", "Done", "Timer"}));
        QCOMPARE(a->BtnWakeupStatus->captionText(), QString("Wake up alarm:On"));

        // Out through the main menu and back: the same statuses, the same choose page.
        DO_STEPS(app, a, (QStringList{"Back", "Alarm"}));
        QCOMPARE(a->BtnBirthdayStatus->captionText(), QString("Birthday alarm:On"));
        QCOMPARE(a->BtnWakeupStatus->captionText(), QString("Wake up alarm:On"));
        DO_STEPS(app, a, (QStringList{"Birthday", "BirthOff", "Back"}));
        QCOMPARE(a->BtnBirthdayStatus->captionText(), QString("Birthday alarm:Off"));
    }

    void frequencyPictureKeptAcrossVisits() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        Button* freq[] = {a->BtnWakeupFreq1, a->BtnWakeupFreq2, a->BtnWakeupFreq3};
        const auto selected = [&] {
            QStringList ups;
            for (Button* b : freq) ups << b->BtnImageUp.name();
            return ups.join(' ');
        };
        QCOMPARE(selected(), QString("but_selected_Btn02 but_disabled_Btn02 but_disabled_Btn02"));
        DO_STEPS(app, a, (QStringList{"Wakeup", "WakeOn", "Freq3"}));
        QCOMPARE(selected(), QString("but_disabled_Btn02 but_disabled_Btn02 but_selected_Btn02"));
        DO_STEPS(app, a, (QStringList{"Back", "Wakeup"}));
        QCOMPARE(selected(), QString("but_disabled_Btn02 but_disabled_Btn02 but_selected_Btn02"));
        DO_STEPS(app, a, (QStringList{"WakeOff", "WakeOn", "Back", "Back", "Alarm", "Wakeup", "Freq2"}));
        QCOMPARE(selected(), QString("but_disabled_Btn02 but_selected_Btn02 but_disabled_Btn02"));
        for (Button* b : freq) {
            QCOMPARE(b->BtnImageMove.name(), QString("but_over_Btn02"));
            QCOMPARE(b->BtnImageDown.name(), QString("but_selected_Btn02"));
            QCOMPARE(b->parentWidget(), a->frmWakeupTimeFreqButtonView);
        }
        QCOMPARE(a->BtnWakeupFreq3->captionText(), QString("Friday To Monday"));
        QCOMPARE(Geometry(a->BtnWakeupFreq3), QRect(101, 150, 180, 46));
    }

    void doneWithTheAlarmOffStartsNoConfirmation() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, (QStringList{"Birthday", "BirthOn", "BirthOff", "Done"}));
        QVERIFY(!a->timer);
        QVERIFY(a->frmDoneView->isHidden());
        QVERIFY(a->BtnDone->isHidden());
        QVERIFY(a->frmChooseView->isVisible());
    }

    void confirmationCoversAndSwallowsClicks_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("statusAfter");
        QTest::newRow("birthday")
            << QStringList{"Birthday", "BirthOn", "Done"} << "Birthday Alarm"
            << "Birthday Alarm is \non!!! It means I'll\ncongraduate\nyou on your\nbirthday!"
            << "Birthday alarm:On";
        QTest::newRow("wake-up")
            << QStringList{"Wakeup", "WakeOn", "Done"} << "Wake up Alarm"
            << "Wake up Alarm is \non!!! It means I'll\nwake you up at\nthe day and time\nyou "
               "have set!"
            << "Wake up alarm:On";
        QTest::newRow("birthday after a wake-up confirmation")
            << QStringList{"Wakeup", "WakeOn", "Done", "Timer", "Birthday", "BirthOn", "Done"}
            << "Birthday Alarm"
            << "Birthday Alarm is \non!!! It means I'll\ncongraduate\nyou on your\nbirthday!"
            << "Birthday alarm:On";
    }
    void confirmationCoversAndSwallowsClicks() {
        QFETCH(QStringList, steps);
        QFETCH(QString, title);
        QFETCH(QString, message);
        QFETCH(QString, statusAfter);
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, steps);
        QVERIFY(a->frmDoneView->isVisible());
        QCOMPARE(WidgetChildren(a).constLast(), static_cast<QWidget*>(a->frmDoneView));
        QCOMPARE(a->txtDoneBigTitle->captionText(), title);
        QCOMPARE(a->txtDoneMessage->captionText(), message);
        QCOMPARE(a->txtDoneMessage->Text.font.pixelSize(), 14);
        QVERIFY(a->timer && a->timer->isActive() && a->timer->isSingleShot());
        QCOMPARE(a->timer->interval(), 5000);

        // Back and Done lie under the page; so do the places of every other control.
        const QString before = Summary(app, a);
        for (const QWidget* w : {static_cast<QWidget*>(a->BtnBack), static_cast<QWidget*>(a->BtnDone),
                                 static_cast<QWidget*>(a->BtnQuestion)}) {
            app.click(app.at(w));
            QCOMPARE(Summary(app, a), before);
        }
        for (QPoint p : {QPoint(250, 350), QPoint(150, 350), QPoint(700, 380), QPoint(300, 450)}) {
            app.click(p);
            QCOMPARE(Summary(app, a), before);
        }
        QVERIFY(a->BtnBack->look() == Button::Look::Up);

        QVERIFY(FireConfirmationTimer(a));
        QVERIFY(a->frmDoneView->isHidden());
        QVERIFY(a->frmChooseView->isVisible());
        QVERIFY(a->BtnDone->isHidden());
        QVERIFY(a->BtnBirthdayStatus->captionText() == statusAfter ||
                a->BtnWakeupStatus->captionText() == statusAfter);
        DO_STEPS(app, a, (QStringList{"Back"}));
        QCOMPARE(Summary(app, a), QString("main menu"));
    }

    void confirmationEndsByItselfAfterItsTime() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        DO_STEPS(app, a, (QStringList{"Birthday", "BirthOn", "Done"}));
        QVERIFY(a->frmDoneView->isVisible());
        // The one real wait: nothing but the screen's own timer brings the choose page back.
        QTRY_VERIFY_WITH_TIMEOUT(a->frmChooseView->isVisible(), 15000);
        QCOMPARE(Summary(app, a), QString("choose | values:none | editor:none | back:main menu | 1 1 0 0"));
        QCOMPARE(a->BtnBirthdayStatus->captionText(), QString("Birthday alarm:On"));
    }

    void backToMainMenuWritesTheOneLogLine() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        QByteArray written = CaptureStderr([&] { DO_STEPS(app, a, (QStringList{"Birthday", "Back"})); });
        QVERIFY2(!written.contains("BackToMainMenu"), written.constData()); // Back to choose: no line

        written = CaptureStderr([&] { DO_STEPS(app, a, (QStringList{"Back"})); });
        QCOMPARE(Summary(app, a), QString("main menu"));
        const QList<QByteArray> lines = written.trimmed().split('\n');
        QList<QByteArray> logLines;
        for (const QByteArray& l : lines)
            if (l.contains("BackToMainMenu")) logLines << l;
        QCOMPARE(logLines.size(), 1);
        const QRegularExpression shape(
            QString(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} \S+\[%1:\d+\] BackToMainMenu$)")
                .arg(QCoreApplication::applicationPid()));
        QVERIFY2(shape.match(QString::fromLocal8Bit(logLines.front())).hasMatch(),
                 logLines.front().constData());
    }

    void hoverOnlyWhereRegistered() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        // The main menu registered the choose page's buttons.
        app.moveTo(a->BtnBirthdayStatus);
        QCOMPARE(a->BtnBirthdayStatus->shownPictureName(), QString("but_over_Btn03"));
        DO_STEPS(app, a, (QStringList{"Birthday"}));
        app.moveTo(a->BtnBirthdayOn);
        QCOMPARE(a->BtnBirthdayOn->shownPictureName(), QString("but_over_Btn01"));
        app.moveTo(a->BtnDone);
        QCOMPARE(a->BtnDone->shownPictureName(), QString("but_common_over_BtnSilver"));
        DO_STEPS(app, a, (QStringList{"BirthOn", "BirthDate"}));
        app.moveTo(a->BtnBirthDateSet);
        QCOMPARE(a->BtnBirthDateSet->shownPictureName(), QString("but_over_Btn01"));
        // The date and time buttons were registered only while the screen was being built.
        app.moveTo(a->BtnBirthDate);
        QCOMPARE(a->BtnBirthDate->shownPictureName(), QString("but_normal_Btn02"));
        QCOMPARE(TrackingRegistry::instance().registrationCount(a->BtnBirthDate), 0);
        DO_STEPS(app, a, (QStringList{"Back", "Wakeup", "WakeOn"}));
        app.moveTo(a->BtnWakeupFreq2);
        QCOMPARE(a->BtnWakeupFreq2->shownPictureName(), QString("but_over_Btn02"));
    }

    void questionButtonOnlyChangesItsPicture() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        const QString before = Summary(app, a);
        app.moveTo(a->BtnQuestion);
        app.press(app.at(a->BtnQuestion));
        QCOMPARE(a->BtnQuestion->shownPictureName(), QString("but_question_over"));
        app.release(app.at(a->BtnQuestion));
        QCOMPARE(Summary(app, a), before);
        QVERIFY(a->BtnQuestion->ButtonAction == &BtnAction);
    }

    void badCallsGetADefinedAnswer() {
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        // No context: nothing happens.
        for (ButtonCallback cb : {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_WakeupBtnAction,
                                  Frame_Alarm_BirthOnBtnAction, Frame_Alarm_DoneBtnAction,
                                  Frame_Alarm_BackToMainMenuBtnAction, Frame_Alarm_WakeupFreq3BtnAction})
            cb(nullptr, nullptr);
        QCOMPARE(Summary(app, a), QString("choose | values:none | editor:none | back:main menu | 0 0 0 0"));

        // Without a screen to go back to, Back from the choose page stays.
        a->frmPreframe = nullptr;
        DO_STEPS(app, a, (QStringList{"Back"}));
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(a));

        // Done called where no alarm page was opened confirms nothing.
        Frame_Alarm_DoneBtnAction(a, nullptr);
        QVERIFY(!a->timer);
        QVERIFY(a->frmChooseView->isVisible());
    }

    // Pictures of the four pages for a person to look at: ALARM_SCREENSHOT_DIR=/some/dir.
    void screenshots() {
        const QString dir = qEnvironmentVariable("ALARM_SCREENSHOT_DIR");
        if (dir.isEmpty()) QSKIP("set ALARM_SCREENSHOT_DIR to write the pictures");
        AppHarness app;
        Frame_Alarm* a = OpenAlarm(app);
        QVERIFY(a);
        app.moveTo(QPoint(1, 1));
        QVERIFY(app.grab(dir + "/alarm-choose.png"));
        DO_STEPS(app, a, (QStringList{"Birthday", "BirthOn", "BirthDate"}));
        app.moveTo(QPoint(1, 1));
        QVERIFY(app.grab(dir + "/alarm-birthday.png"));
        DO_STEPS(app, a, (QStringList{"BirthDateSet", "Back", "Wakeup", "WakeOn", "Freq3", "WakeTime"}));
        app.moveTo(QPoint(1, 1));
        QVERIFY(app.grab(dir + "/alarm-wakeup.png"));
        DO_STEPS(app, a, (QStringList{"WakeTimeSet", "Done"}));
        QVERIFY(app.grab(dir + "/alarm-confirmation.png"));
    }
};

QTEST_MAIN(TestAlarmScreen)
#include "tst_alarmscreen.moc"
