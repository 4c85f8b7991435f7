#include "ScreenNavigator.h"

#include <QSignalSpy>
#include <QTest>

// Each route leads from its own screen to its target, and from any other screen it is refused,
// so one screen stays shown whatever arrives late.
class TestNavigator : public QObject {
    Q_OBJECT
private slots:
    void routes_data() {
        QTest::addColumn<QList<Route>>("taken");
        QTest::addColumn<ScreenId>("shown");
        QTest::addColumn<int>("accepted");
        using enum Route;
        QTest::newRow("a route from a screen not shown")
            << QList<Route>{MainMenuProgram, SoundLazer, MovementBack} << ScreenId::Scenario << 1;
        QTest::newRow("the same route twice")
            << QList<Route>{MainMenuAlarm, MainMenuAlarm} << ScreenId::Alarm << 1;
    }
    void routes() {
        QFETCH(QList<Route>, taken);
        QFETCH(ScreenId, shown);
        QFETCH(int, accepted);
        ScreenNavigator navigator;
        QSignalSpy switched(&navigator, &ScreenNavigator::switched);
        int followed = 0;
        for (const Route r : taken) followed += navigator.follow(r) ? 1 : 0;
        QCOMPARE(navigator.shown(), shown);
        QCOMPARE(followed, accepted);
        QCOMPARE(switched.size(), accepted);
    }
};

QTEST_GUILESS_MAIN(TestNavigator)
#include "tst_navigator.moc"
