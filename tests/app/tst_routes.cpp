#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"

#include <QAccessible>
#include <QApplication>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The one control on view that a screen reader calls `name` (* standing for any characters
// but a slash, as in a date): the routes name controls as the user sees them.
QWidget* OnView(QWidget* root, const QString& name) {
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(name));
    QList<QWidget*> found;
    for (QWidget* w : root->findChildren<QWidget*>())
        if (w->isVisible() &&
            pattern.match(QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name)).hasMatch())
            found << w;
    return found.size() == 1 ? found.first() : nullptr;
}

// The screen on view, and on the alarm screen its page and whether an editor is open.
QString Shown(const AppHarness& app) {
    const Frame_Control* r = app.root();
    const QHash<QString, QWidget*> screens = {{"main menu", r->frmMainMenu()}, {"scenario", r->frmScenario()},
                                              {"alarm", r->frmAlarm()},        {"movement", r->frmMovement()},
                                              {"sound", r->frmSound()},        {"laser", r->frmLazer()}};
    QString shown = screens.key(app.shownScreen(), QStringLiteral("?"));
    const Frame_Alarm* a = r->frmAlarm();
    if (shown != QLatin1String("alarm")) return shown;
    const QList<std::pair<const char*, QWidget*>> pages = {{"confirmation", a->frmDoneView},
                                                           {"choose", a->frmChooseView},
                                                           {"birthday", a->frmBirthdayControlView},
                                                           {"wake up", a->frmWakeupControlView}};
    for (const auto& [name, page] : pages)
        if (page->isVisible()) {
            shown += QStringLiteral(": ") + name;
            break;
        }
    for (const QWidget* editor : {a->frmBirthDateEditView, a->frmBirthTimeEditView, a->frmWakeupTimeEditView})
        if (editor->isVisible()) shown += QStringLiteral(", editor");
    return shown;
}

} // namespace

// Every route between the screens and the alarm's pages, taken by real clicks and keys in the
// window: where it ends (the only screen shown; on the alarm screen, its page), and whether its
// buttons answer the pointer, as they do when some route made their hover registrations while
// they were on view (the scenario screen's, made while it was hidden, do not): its Back, or on
// the menu, "Program scenario", is pointed at. Each way back is taken twice: by Back and by Escape.
class TestRoutes : public QObject {
    Q_OBJECT
private slots:
    void routes_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("hoverAnswers");
        const QStringList toMovement{"Program scenario", "Create a new scenario", "Scenario name",
                                     "type Robo", "Create"};
        const QStringList toSound = toMovement + QStringList{"Sound tab"};
        const QStringList toLaser = toMovement + QStringList{"Laser tab"};
        const QStringList toBirthday{"Alarm/Clock", "Birthday alarm:Off"};
        const auto back = [](const char* from, const QStringList& steps, const char* to, bool hover) {
            QTest::addRow("%s, back", from) << steps + QStringList{"Back"} << to << hover;
            QTest::addRow("%s, escape", from) << steps + QStringList{"key Esc"} << to << hover;
        };
        QTest::newRow("menu, program") << QStringList{"Program scenario"} << "scenario" << false;
        QTest::newRow("menu, escape stays") << QStringList{"key Esc"} << "main menu" << true;
        back("scenario", {"Program scenario"}, "main menu", true);
        back("scenario list", {"Program scenario", "Modify exist scenario"}, "main menu", true);
        QTest::newRow("scenario, create") << toMovement << "movement" << true;
        QTest::newRow("scenario, modify and go")
            << QStringList{"Program scenario", "Modify exist scenario", "Go"} << "movement" << true;
        back("movement", toMovement, "main menu", true);
        QTest::newRow("movement, sound tab") << toSound << "sound" << true;
        QTest::newRow("movement, laser tab") << toLaser << "laser" << true;
        QTest::newRow("sound, movement tab") << toSound + QStringList{"Movement tab"} << "movement" << true;
        back("sound", toSound, "movement", true);
        QTest::newRow("sound, laser tab") << toSound + QStringList{"Laser tab"} << "laser" << true;
        QTest::newRow("laser, sound tab") << toLaser + QStringList{"Sound tab"} << "sound" << true;
        back("laser", toLaser, "sound", true);
        QTest::newRow("laser, movement tab") << toLaser + QStringList{"Movement tab"} << "movement" << true;
        QTest::newRow("laser, face tab") << toLaser + QStringList{"Face tab"} << "movement" << true;
        QTest::newRow("laser, play") << toLaser + QStringList{"Play"} << "movement" << true;
        QTest::newRow("menu, alarm") << QStringList{"Alarm/Clock"} << "alarm: choose" << true;
        back("alarm choose page", {"Alarm/Clock"}, "main menu", true);
        back("alarm birthday page", toBirthday, "alarm: choose", true);
        back("alarm wake up page", {"Alarm/Clock", "Wake up alarm:Off"}, "alarm: choose", true);
        // What a screen shows when it is come back to, and what a state leaves on view.
        QTest::newRow("scenario, back and again: the views closed, the name kept")
            << QStringList{"Program scenario", "Modify exist scenario", "3",       "Back", "Program scenario",
                           "misses Go",        "Modify exist scenario", "chosen 3"}
            << "scenario" << true;
        QTest::newRow("scenario, the last name deleted: nothing to modify")
            << QStringList{"Program scenario", "Modify exist scenario"} + QStringList(20, "Delete scenario") +
                   QStringList{"misses Modify exist scenario", "misses Go"}
            << "scenario" << true;
        QTest::newRow("laser, back and again: the configuration kept")
            << toLaser +
                   QStringList{"Robot configuration 2", "Back", "Laser tab", "chosen Robot configuration 2"}
            << "laser" << true;
        QTest::newRow("alarm, a wake-up alarm off hides its values; back and again: the choose page")
            << QStringList{"Alarm/Clock", "Wake up alarm:Off",  "misses *Once",          "Wake up alarm, On",
                           "sees *Once",  "Wake up alarm, Off", "misses *Once",          "Back",
                           "Back",        "Alarm/Clock",        "sees Wake up alarm:Off"}
            << "alarm: choose" << true;
        // The keyboard alone: a new screen's first control has the focus, the scenario's first is
        // "Create a new scenario", which opens the name field with the focus in it.
        const QStringList keysToScenario{"tab to Program scenario", "key Space",
                                         "focus Create a new scenario"};
        const QStringList keysToName = keysToScenario + QStringList{"key Space", "focus Scenario name"};
        QTest::newRow("keys: shift+tab wraps to the last, back")
            << keysToScenario + QStringList{"key Backtab", "focus Back", "key Return"} << "main menu" << true;
        QTest::newRow("keys: return in the name creates")
            << keysToName + QStringList{"type Robo", "key Return"} << "movement" << true;
        QTest::newRow("keys: return without a name does nothing")
            << keysToName + QStringList{"key Return"} << "scenario" << false;
        QTest::newRow("keys: escape leaves the name first, then the screen")
            << keysToName + QStringList{"key Esc", "focus Create a new scenario", "key Esc"} << "main menu"
            << true;
        QTest::newRow("keys: tab skips a disabled create")
            << keysToName + QStringList{"key Tab", "focus Modify exist scenario"} << "scenario" << false;
        // After a click the focus does not show: a key shows it and presses nothing.
        QTest::newRow("keys: a key without the ring shows it")
            << QStringList{"Program scenario", "key Space", "focus Create a new scenario"} << "scenario"
            << false;
        // A page that hides its focused button hands the focus to the first control of the page
        // shown; an editor opens with the focus in it, and Return sets, or Escape closes, it alone.
        const QStringList keysToDate =
            toBirthday + QStringList{"Birthday alarm, On", "tab to Birthday date, */*/*", "key Space",
                                     "focus Birthday date"};
        QTest::newRow("keys: alarm page")
            << QStringList{"tab to Alarm/Clock", "key Space", "tab to Birthday alarm:Off", "key Space",
                           "focus Birthday alarm, On"}
            << "alarm: birthday" << true;
        QTest::newRow("keys: date editor, escape")
            << keysToDate + QStringList{"key Esc", "focus Birthday date, */*/*"} << "alarm: birthday" << true;
        QTest::newRow("keys: date editor, return sets")
            << keysToDate + QStringList{"key Return", "focus Birthday date, */*/*"} << "alarm: birthday"
            << true;
        // The confirmation holds the focus and ignores keys for its while; then the choose page.
        const QString held = "Birthday Alarm is on!!! It means I'll congraduate you on your birthday!";
        QTest::newRow("keys: confirmation holds, then the choose page")
            << toBirthday +
                   QString("Birthday alarm, On|tab to Done|key Space|focus %1|key Esc|key Space|focus "
                           "%1|confirmation ends|focus Birthday alarm:On")
                       .arg(held)
                       .split(u'|')
            << "alarm: choose" << true;
    }

    void routes() {
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        QFETCH(bool, hoverAnswers);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        for (const QString& step : steps) {
            const QString verb = step.section(u' ', 0, 0), rest = step.section(u' ', 1);
            if (verb == "type"_L1) {
                for (const QChar c : rest) QTest::keyClick(app.handle(), c.toLatin1());
            } else if (verb == "key"_L1) {
                QTest::keyClick(app.handle(), QKeySequence(rest)[0].key());
            } else if (step == "confirmation ends"_L1) {
                app.root()->frmAlarm()->flow.DoneView();
            } else if (verb == "focus"_L1) { // the focus may follow once the change that moved it is over
                QTRY_COMPARE(QApplication::focusWidget(), OnView(app.root(), rest));
            } else if (verb == "sees"_L1 || verb == "misses"_L1) {
                QVERIFY2((OnView(app.root(), rest) != nullptr) == (verb == "sees"_L1), qPrintable(step));
            } else if (verb == "chosen"_L1) {
                QWidget* chosen = OnView(app.root(), rest);
                QVERIFY2(chosen, qPrintable(step));
                const QAccessible::State state = QAccessible::queryAccessibleInterface(chosen)->state();
                QVERIFY2(state.selected || state.checked, qPrintable(step));
            } else if (step.startsWith("tab to "_L1)) {
                QWidget* target = OnView(app.root(), step.mid(7));
                // At least one Tab: the ring shows only once a key is used.
                for (int tab = 0; tab < 10 && (tab == 0 || QApplication::focusWidget() != target); ++tab)
                    QTest::keyClick(app.handle(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget(), target);
            } else {
                QWidget* control = OnView(app.root(), step);
                QVERIFY2(control, qPrintable(step + QStringLiteral(" is not on view")));
                app.click(control);
            }
        }
        QCOMPARE(Shown(app), shown);
        auto* probe =
            qobject_cast<Button*>(OnView(app.root(), shown == "main menu" ? "Program scenario" : "Back"));
        QVERIFY(probe);
        app.moveTo(QPoint(400, 20)); // off the button, then onto it
        app.moveTo(probe);
        QCOMPARE(probe->look() == Button::Look::Move, hoverAnswers);
    }
};

QTEST_MAIN(TestRoutes)
#include "tst_routes.moc"
