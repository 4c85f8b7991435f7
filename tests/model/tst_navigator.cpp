#include "ScreenNavigator.h"

#include <QSignalSpy>
#include <QTest>

// Which screen is shown: each route leads from its own screen to its target, and from any
// other screen it is refused, so one screen stays shown whatever arrives late.
class TestNavigator : public QObject {
    Q_OBJECT
private slots:
    void routes_data() {
        QTest::addColumn<QList<Route>>("taken");
        QTest::addColumn<ScreenId>("shown");
        using enum Route;
        using S = ScreenId;
        QTest::newRow("typical run") << QList<Route>{MainMenuProgram, ScenarioGo, MovementSound,
                                                     SoundLazer,      LazerSound, SoundMovement,
                                                     MovementBack}
                                     << S::MainMenu;
        QTest::newRow("alarm and back") << QList<Route>{MainMenuAlarm, AlarmBack} << S::MainMenu;
        QTest::newRow("scenario back") << QList<Route>{MainMenuProgram, ScenarioBack} << S::MainMenu;
        QTest::newRow("laser to movement")
            << QList<Route>{MainMenuProgram, ScenarioGo, MovementLazer, LazerMovement} << S::Movement;
        QTest::newRow("a route from a screen not shown is refused")
            << QList<Route>{MainMenuProgram, SoundLazer, MovementBack} << S::Scenario;
        QTest::newRow("the same route twice") << QList<Route>{MainMenuAlarm, MainMenuAlarm} << S::Alarm;
        QTest::newRow("nothing leads to the face screen")
            << QList<Route>{MainMenuProgram, ScenarioGo, MovementLazer, LazerSound, SoundMovement}
            << S::Movement;
    }
    void routes() {
        QFETCH(QList<Route>, taken);
        QFETCH(ScreenId, shown);
        ScreenNavigator navigator;
        QSignalSpy switched(&navigator, &ScreenNavigator::switched);
        int accepted = 0;
        for (const Route r : taken) accepted += navigator.follow(r) ? 1 : 0;
        QCOMPARE(navigator.shown(), shown);
        QCOMPARE(switched.size(), accepted);
        for (const QList<QVariant>& s : switched)
            QVERIFY(s.at(0).value<ScreenId>() != s.at(1).value<ScreenId>());
    }
};

QTEST_GUILESS_MAIN(TestNavigator)
#include "tst_navigator.moc"
