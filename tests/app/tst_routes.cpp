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
    }

    void routes() {
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        QFETCH(bool, hoverAnswers);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        for (const QString& step : steps) {
            if (step.startsWith(QLatin1String("type "))) {
                for (const QChar c : step.mid(5)) QTest::keyClick(app.handle(), c.toLatin1());
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
