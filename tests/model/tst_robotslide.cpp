#include "RobotSlide.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

// The main menu's robot: up five points a tick from below the window to its rest, where it
// arrives once, within the arriving tick and before its last step, and stays.
class TestRobotSlide : public QObject {
    Q_OBJECT
private slots:
    void perTick_data() {
        QTest::addColumn<int>("ticks");
        QTest::addColumn<float>("y");
        QTest::addColumn<QList<float>>("arrivals"); // where the robot stood at each arrival
        QTest::newRow("before the first tick") << 0 << 768.0f << QList<float>{};
        QTest::newRow("one step short") << 100 << 268.0f << QList<float>{};
        QTest::newRow("arriving tick") << 101 << 263.0f << QList<float>{268.0f};
        QTest::newRow("ticks after arrival") << 150 << 263.0f << QList<float>{268.0f};
    }
    void perTick() {
        QFETCH(int, ticks);
        QFETCH(float, y);
        QFETCH(QList<float>, arrivals);
        RobotSlide slide;
        QSignalSpy moved(&slide, &RobotSlide::moved);
        QList<float> arrived;
        connect(&slide, &RobotSlide::arrived, this, [&] { arrived << slide.y; });
        for (int i = 0; i < ticks; ++i) slide.RobotAction();
        QCOMPARE(slide.y, y);
        QCOMPARE(arrived, arrivals);
        QCOMPARE(slide.timer->isActive(), arrivals.isEmpty());
        QCOMPARE(moved.size(), qMin(ticks, 101));
    }
};

QTEST_GUILESS_MAIN(TestRobotSlide)
#include "tst_robotslide.moc"
