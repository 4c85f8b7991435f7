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
#include <QTest>

namespace {

// The one control on view that a screen reader calls `name`: the routes name controls as the
// user sees them.
QWidget* OnView(QWidget* root, const QString& name) {
    QList<QWidget*> found;
    for (QWidget* w : root->findChildren<QWidget*>())
        if (w->isVisible() && QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name) == name)
            found << w;
    return found.size() == 1 ? found.first() : nullptr;
}

} // namespace

// Every route between the screens, taken by real clicks in the window: the screen it ends on is
// the only one shown, and its buttons answer the pointer when some route made their hover
// registrations while they were on view (the scenario screen's, made while it was hidden, do not):
// its Back, or on the menu, "Program scenario", is pointed at.
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
        QTest::newRow("menu, program") << QStringList{"Program scenario"} << "scenario" << false;
        QTest::newRow("scenario, back") << QStringList{"Program scenario", "Back"} << "main menu" << true;
        QTest::newRow("scenario, create") << toMovement << "movement" << true;
        QTest::newRow("scenario, modify and go")
            << QStringList{"Program scenario", "Modify exist scenario", "Go"} << "movement" << true;
        QTest::newRow("movement, back") << toMovement + QStringList{"Back"} << "main menu" << true;
        QTest::newRow("movement, sound tab") << toSound << "sound" << true;
        QTest::newRow("movement, laser tab") << toLaser << "laser" << true;
        QTest::newRow("sound, movement tab") << toSound + QStringList{"Movement tab"} << "movement" << true;
        QTest::newRow("sound, back") << toSound + QStringList{"Back"} << "movement" << true;
        QTest::newRow("sound, laser tab") << toSound + QStringList{"Laser tab"} << "laser" << true;
        QTest::newRow("laser, sound tab") << toLaser + QStringList{"Sound tab"} << "sound" << true;
        QTest::newRow("laser, back") << toLaser + QStringList{"Back"} << "sound" << true;
        QTest::newRow("laser, movement tab") << toLaser + QStringList{"Movement tab"} << "movement" << true;
        QTest::newRow("laser, face tab") << toLaser + QStringList{"Face tab"} << "movement" << true;
        QTest::newRow("laser, play") << toLaser + QStringList{"Play"} << "movement" << true;
        QTest::newRow("menu, alarm") << QStringList{"Alarm/Clock"} << "alarm" << true;
        QTest::newRow("alarm, back") << QStringList{"Alarm/Clock", "Back"} << "main menu" << true;
        // The keyboard alone: a new screen's first control has the focus, the scenario's first is
        // "Create a new scenario", which opens the name field with the focus in it.
        const QStringList keysToScenario{"tab to Program scenario", "key Space",
                                         "focus Create a new scenario"};
        const QStringList keysToName = keysToScenario + QStringList{"key Space", "focus Scenario name"};
        QTest::newRow("keys: escape") << keysToScenario + QStringList{"key Esc"} << "main menu" << true;
        QTest::newRow("keys: shift+tab wraps to the last, back")
            << keysToScenario + QStringList{"key Backtab", "focus Back", "key Return"} << "main menu" << true;
        QTest::newRow("keys: return in the name creates")
            << keysToName + QStringList{"type Robo", "key Return"} << "movement" << true;
        QTest::newRow("keys: return without a name does nothing")
            << keysToName + QStringList{"key Return"} << "scenario" << false;
        QTest::newRow("keys: tab skips a disabled create")
            << keysToName + QStringList{"key Tab", "focus Modify exist scenario"} << "scenario" << false;
        QTest::newRow("keys: escape on the sound screen")
            << toSound + QStringList{"key Esc"} << "movement" << true;
        // The choose page hides its focused button: the focus goes to the first control of the page shown.
        const QStringList alarmKeys =
            QString("tab to Alarm/Clock,key Space,tab to Birthday alarm:Off,key Space,focus Help")
                .split(u',');
        QTest::newRow("keys: alarm page") << alarmKeys << "alarm" << true;
    }

    void routes() {
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        QFETCH(bool, hoverAnswers);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        for (const QString& step : steps) {
            const QString rest = step.section(u' ', 1);
            if (step.startsWith(QLatin1String("type "))) {
                for (const QChar c : rest) QTest::keyClick(app.handle(), c.toLatin1());
                continue;
            }
            if (step.startsWith(QLatin1String("key "))) {
                QTest::keyClick(app.handle(), QKeySequence(rest)[0].key());
                continue;
            }
            // The focus may follow once the change that moved it is over.
            if (step.startsWith(QLatin1String("focus "))) {
                QTRY_COMPARE(QApplication::focusWidget(), OnView(app.root(), rest));
                continue;
            }
            if (step.startsWith(QLatin1String("tab to "))) {
                QWidget* target = OnView(app.root(), step.mid(7));
                for (int tab = 0; tab < 10 && QApplication::focusWidget() != target; ++tab)
                    QTest::keyClick(app.handle(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget(), target);
                continue;
            }
            QWidget* control = OnView(app.root(), step);
            QVERIFY2(control, qPrintable(step + QStringLiteral(" is not on view")));
            app.click(control);
        }
        Frame_Control* r = app.root();
        const QHash<QString, QWidget*> screens = {{"main menu", r->frmMainMenu}, {"scenario", r->frmScenario},
                                                  {"alarm", r->frmAlarm},        {"movement", r->frmMovement},
                                                  {"sound", r->frmSound},        {"laser", r->frmLazer}};
        QCOMPARE(app.shownScreen(), screens.value(shown));
        auto* probe = qobject_cast<Button*>(OnView(r, shown == "main menu" ? "Program scenario" : "Back"));
        QVERIFY(probe);
        app.moveTo(QPoint(400, 20)); // off the button, then onto it
        app.moveTo(probe);
        QCOMPARE(probe->look() == Button::Look::Move, hoverAnswers);
    }
};

QTEST_MAIN(TestRoutes)
#include "tst_routes.moc"
