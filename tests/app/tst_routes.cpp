#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"

#include <QTest>

#include <functional>
#include <utility>

namespace {

using Control = std::function<QWidget*(Frame_Control*)>;

// The controls the routes go through, by what the user sees.
const QHash<QString, Control>& Controls() {
    static const QHash<QString, Control> controls = {
        {"Program scenario", [](Frame_Control* r) { return r->frmMainMenu->BtnProgram; }},
        {"Alarm/Clock", [](Frame_Control* r) { return r->frmMainMenu->BtnAlarm; }},
        {"Create a new scenario", [](Frame_Control* r) { return r->frmScenario->BtnCreate; }},
        {"name field", [](Frame_Control* r) { return r->frmScenario->txtScenarioName; }},
        {"Create", [](Frame_Control* r) { return r->frmScenario->BtnNewCreate; }},
        {"Modify exist scenario", [](Frame_Control* r) { return r->frmScenario->BtnModify; }},
        {"Go", [](Frame_Control* r) { return r->frmScenario->BtnGo; }},
        {"scenario Back", [](Frame_Control* r) { return r->frmScenario->BtnBack; }},
        {"movement sound tab", [](Frame_Control* r) { return r->frmMovement->BtnSound; }},
        {"movement laser tab", [](Frame_Control* r) { return r->frmMovement->BtnLazer; }},
        {"movement Back", [](Frame_Control* r) { return r->frmMovement->BtnBack; }},
        {"sound movement tab",
         [](Frame_Control* r) { return r->frmSound->BtnButton[Frame_Sound::kBtnMoveMent]; }},
        {"sound laser tab", [](Frame_Control* r) { return r->frmSound->BtnButton[Frame_Sound::kBtnLazer]; }},
        {"sound Back", [](Frame_Control* r) { return r->frmSound->BtnButton[Frame_Sound::kBtnBack]; }},
        {"laser sound tab", [](Frame_Control* r) { return r->frmLazer->BtnSound; }},
        {"laser movement tab", [](Frame_Control* r) { return r->frmLazer->BtnMoveMent; }},
        {"laser face tab", [](Frame_Control* r) { return r->frmLazer->BtnFace; }},
        {"laser play", [](Frame_Control* r) { return r->frmLazer->BtnPlay; }},
        {"laser Back", [](Frame_Control* r) { return r->frmLazer->BtnBack; }},
        {"alarm Back", [](Frame_Control* r) { return r->frmAlarm->BtnBack; }},
    };
    return controls;
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

const QStringList kToMovement{"Program scenario", "Create a new scenario", "name field", "type Robo",
                              "Create"};

QStringList Then(const QStringList& first, const QStringList& more) {
    return first + more;
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
        const QStringList toSound = Then(kToMovement, {"movement sound tab"});
        const QStringList toLaser = Then(kToMovement, {"movement laser tab"});
        QTest::newRow("menu, program") << QStringList{"Program scenario"} << "scenario" << false;
        QTest::newRow("scenario, back")
            << QStringList{"Program scenario", "scenario Back"} << "main menu" << true;
        QTest::newRow("scenario, create") << kToMovement << "movement" << true;
        QTest::newRow("scenario, modify and go")
            << QStringList{"Program scenario", "Modify exist scenario", "Go"} << "movement" << true;
        QTest::newRow("movement, back") << Then(kToMovement, {"movement Back"}) << "main menu" << true;
        QTest::newRow("movement, sound tab") << toSound << "sound" << true;
        QTest::newRow("movement, laser tab") << toLaser << "laser" << true;
        QTest::newRow("sound, movement tab") << Then(toSound, {"sound movement tab"}) << "movement" << true;
        QTest::newRow("sound, back") << Then(toSound, {"sound Back"}) << "movement" << true;
        QTest::newRow("sound, laser tab") << Then(toSound, {"sound laser tab"}) << "laser" << true;
        QTest::newRow("laser, sound tab") << Then(toLaser, {"laser sound tab"}) << "sound" << true;
        QTest::newRow("laser, back") << Then(toLaser, {"laser Back"}) << "sound" << true;
        QTest::newRow("laser, movement tab") << Then(toLaser, {"laser movement tab"}) << "movement" << true;
        QTest::newRow("laser, face tab") << Then(toLaser, {"laser face tab"}) << "movement" << true;
        QTest::newRow("laser, play") << Then(toLaser, {"laser play"}) << "movement" << true;
        QTest::newRow("menu, alarm") << QStringList{"Alarm/Clock"} << "alarm" << true;
        QTest::newRow("alarm, back") << QStringList{"Alarm/Clock", "alarm Back"} << "main menu" << true;
    }

    void routes() {
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        QFETCH(bool, hoverAnswers);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_Control* root = app.root();
        for (const QString& step : steps) {
            if (step.startsWith(QLatin1String("type "))) {
                for (const QChar c : step.mid(5)) QTest::keyClick(app.handle(), c.toLatin1());
                continue;
            }
            QWidget* control = Controls().value(step)(root);
            QVERIFY2(control && control->isVisible(), qPrintable(step + QStringLiteral(" is not on view")));
            app.click(control);
        }
        const auto [expected, probe] = ScreenNamed(root, shown);
        QCOMPARE(app.shownScreens(), std::vector<QWidget*>{expected});

        // Hover: off the button, then onto it.
        app.moveTo(QPoint(400, 20));
        app.moveTo(probe);
        QCOMPARE(probe->look() == Button::Look::Move, hoverAnswers);
    }
};

QTEST_MAIN(TestRoutes)
#include "tst_routes.moc"
