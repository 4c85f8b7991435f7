#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"

#include <QApplication>
#include <QDateEdit>
#include <QTest>

namespace {

// The controls the routes go through, by what the user sees.
QHash<QString, QWidget*> Controls(Frame_Control* r) {
    Frame_Scenario* s = r->frmScenario;
    Frame_MoveMent* m = r->frmMovement;
    Button* const* sound = r->frmSound->BtnButton;
    Frame_Lazer* l = r->frmLazer;
    return {{"Program scenario", r->frmMainMenu->BtnProgram},
            {"Alarm/Clock", r->frmMainMenu->BtnAlarm},
            {"Create a new scenario", s->BtnCreate},
            {"name field", s->txtScenarioName},
            {"Create", s->BtnNewCreate},
            {"Modify exist scenario", s->BtnModify},
            {"Go", s->BtnGo},
            {"scenario Back", s->BtnBack},
            {"movement sound tab", m->BtnSound},
            {"movement laser tab", m->BtnLazer},
            {"movement Back", m->BtnBack},
            {"sound movement tab", sound[Frame_Sound::kBtnMoveMent]},
            {"sound laser tab", sound[Frame_Sound::kBtnLazer]},
            {"sound Back", sound[Frame_Sound::kBtnBack]},
            {"laser sound tab", l->BtnSound},
            {"laser movement tab", l->BtnMoveMent},
            {"laser face tab", l->BtnFace},
            {"laser play", l->BtnPlay},
            {"laser Back", l->BtnBack},
            {"alarm Back", r->frmAlarm->BtnBack},
            {"alarm Help", r->frmAlarm->BtnQuestion},
            {"Birthday alarm", r->frmAlarm->BtnBirthdayStatus},
            {"Birthday On", r->frmAlarm->BtnBirthdayOn},
            {"birthday date", r->frmAlarm->BtnBirthDate},
            {"date picker", r->frmAlarm->txtBirthDate}};
}

// The screens by name, each with the button whose hover tells whether it made its registrations:
// its Back, or on the menu, "Program scenario".
std::pair<QWidget*, Button*> ScreenNamed(Frame_Control* r, const QString& name) {
    const QHash<QString, std::pair<QWidget*, Button*>> screens = {
        {"main menu", {r->frmMainMenu, r->frmMainMenu->BtnProgram}},
        {"scenario", {r->frmScenario, r->frmScenario->BtnBack}},
        {"alarm", {r->frmAlarm, r->frmAlarm->BtnBack}},
        {"movement", {r->frmMovement, r->frmMovement->BtnBack}},
        {"sound", {r->frmSound, r->frmSound->BtnButton[Frame_Sound::kBtnBack]}},
        {"laser", {r->frmLazer, r->frmLazer->BtnBack}}};
    return screens.value(name);
}

} // namespace

// Every route between the screens, taken by real clicks in the window: the screen it ends on is
// the only one shown, and its buttons answer the pointer when some route made their hover
// registrations while they were on view (the scenario screen's, made while it was hidden, do not).
class TestRoutes : public QObject {
    Q_OBJECT
private slots:
    void routes_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("hoverAnswers");
        const QStringList toMovement{"Program scenario", "Create a new scenario", "name field", "type Robo",
                                     "Create"};
        const QStringList toSound = toMovement + QStringList{"movement sound tab"};
        const QStringList toLaser = toMovement + QStringList{"movement laser tab"};
        QTest::newRow("menu, program") << QStringList{"Program scenario"} << "scenario" << false;
        QTest::newRow("scenario, back")
            << QStringList{"Program scenario", "scenario Back"} << "main menu" << true;
        QTest::newRow("scenario, create") << toMovement << "movement" << true;
        QTest::newRow("scenario, modify and go")
            << QStringList{"Program scenario", "Modify exist scenario", "Go"} << "movement" << true;
        QTest::newRow("movement, back") << toMovement + QStringList{"movement Back"} << "main menu" << true;
        QTest::newRow("movement, sound tab") << toSound << "sound" << true;
        QTest::newRow("movement, laser tab") << toLaser << "laser" << true;
        QTest::newRow("sound, movement tab")
            << toSound + QStringList{"sound movement tab"} << "movement" << true;
        QTest::newRow("sound, back") << toSound + QStringList{"sound Back"} << "movement" << true;
        QTest::newRow("sound, laser tab") << toSound + QStringList{"sound laser tab"} << "laser" << true;
        QTest::newRow("laser, sound tab") << toLaser + QStringList{"laser sound tab"} << "sound" << true;
        QTest::newRow("laser, back") << toLaser + QStringList{"laser Back"} << "sound" << true;
        QTest::newRow("laser, movement tab")
            << toLaser + QStringList{"laser movement tab"} << "movement" << true;
        QTest::newRow("laser, face tab") << toLaser + QStringList{"laser face tab"} << "movement" << true;
        QTest::newRow("laser, play") << toLaser + QStringList{"laser play"} << "movement" << true;
        QTest::newRow("menu, alarm") << QStringList{"Alarm/Clock"} << "alarm" << true;
        QTest::newRow("alarm, back") << QStringList{"Alarm/Clock", "alarm Back"} << "main menu" << true;
        // The keyboard alone: a new screen's first control has the focus, the scenario's first is
        // "Create a new scenario", which opens the name field with the focus in it.
        const QStringList keysToScenario{"tab to Program scenario", "key Space",
                                         "focus Create a new scenario"};
        const QStringList keysToName = keysToScenario + QStringList{"key Space", "focus name field"};
        QTest::newRow("keys: escape") << keysToScenario + QStringList{"key Esc"} << "main menu" << true;
        QTest::newRow("keys: shift+tab wraps to the last, back")
            << keysToScenario + QStringList{"key Backtab", "focus scenario Back", "key Return"} << "main menu"
            << true;
        QTest::newRow("keys: return in the name creates")
            << keysToName + QStringList{"type Robo", "key Return"} << "movement" << true;
        QTest::newRow("keys: return without a name does nothing")
            << keysToName + QStringList{"key Return"} << "scenario" << false;
        QTest::newRow("keys: tab skips a disabled create")
            << keysToName + QStringList{"key Tab", "focus Modify exist scenario"} << "scenario" << false;
        QTest::newRow("keys: escape on the sound screen")
            << toSound + QStringList{"key Esc"} << "movement" << true;
        // The choose page hides its focused button; the date editor opens and closes by keys.
        const QStringList alarmKeys =
            QString("tab to Alarm/Clock,key Space,tab to Birthday alarm,key Space,"
                    "focus alarm Help,tab to Birthday On,key Space,tab to birthday date,"
                    "key Space,focus date picker,key Return,focus birthday date")
                .split(u',');
        QTest::newRow("keys: alarm pages and editor") << alarmKeys << "alarm" << true;
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
                QTRY_COMPARE(QApplication::focusWidget(), Controls(app.root()).value(rest));
                continue;
            }
            if (step.startsWith(QLatin1String("tab to "))) {
                QWidget* target = Controls(app.root()).value(step.mid(7));
                for (int tab = 0; tab < 10 && QApplication::focusWidget() != target; ++tab)
                    QTest::keyClick(app.handle(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget(), target);
                continue;
            }
            QWidget* control = Controls(app.root()).value(step);
            QVERIFY2(control && control->isVisible(), qPrintable(step + QStringLiteral(" is not on view")));
            app.click(control);
        }
        const auto [expected, probe] = ScreenNamed(app.root(), shown);
        QCOMPARE(app.shownScreens(), std::vector<QWidget*>{expected});
        app.moveTo(QPoint(400, 20)); // off the button, then onto it
        app.moveTo(probe);
        QCOMPARE(probe->look() == Button::Look::Move, hoverAnswers);
    }
};

QTEST_MAIN(TestRoutes)
#include "tst_routes.moc"
