#include "RobotSlide.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

// The main menu's robot: up five points a tick from below the window to its rest, where it
// arrives once and stays.
class TestRobotSlide : public QObject {
    Q_OBJECT
private slots:
    void positionPerTick_data() {
        QTest::addColumn<int>("ticks");
        QTest::addColumn<float>("y");
        QTest::newRow("before the first tick") << 0 << 768.0f;
        QTest::newRow("first tick") << 1 << 763.0f;
        QTest::newRow("one step short") << 100 << 268.0f;
        QTest::newRow("arriving tick") << 101 << 263.0f;
        QTest::newRow("ticks after arrival") << 150 << 263.0f;
    }
    void positionPerTick() {
        QFETCH(int, ticks);
        QFETCH(float, y);
        RobotSlide slide;
        for (int i = 0; i < ticks; ++i) slide.RobotAction();
        QCOMPARE(slide.y, y);
        QCOMPARE(slide.timer->isActive(), ticks < 101);
    }

    void arrivesOnceBeforeItsLastStep() {
        RobotSlide slide;
        QSignalSpy arrived(&slide, &RobotSlide::arrived);
        QSignalSpy moved(&slide, &RobotSlide::moved);
        float yOnArrival = 0;
        connect(&slide, &RobotSlide::arrived, this, [&] { yOnArrival = slide.y; });
        for (int i = 0; i < 100; ++i) slide.RobotAction();
        QCOMPARE(arrived.size(), 0);
        for (int i = 0; i < 50; ++i) slide.RobotAction();
        QCOMPARE(arrived.size(), 1);
        QCOMPARE(yOnArrival, 268.0f);
        QCOMPARE(moved.size(), 101);
        QCOMPARE(moved.last().first().toFloat(), 263.0f);
    }

    // The one test on the clock: a hundredth of a second a tick, so about a second to arrive.
    void arrivesAfterAboutASecond() {
        QElapsedTimer clock;
        clock.start();
        RobotSlide slide;
        QSignalSpy arrived(&slide, &RobotSlide::arrived);
        QVERIFY(arrived.wait(10000));
        QVERIFY2(clock.elapsed() >= 900, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(slide.timer->timerType(), Qt::PreciseTimer);
    }
};

QTEST_GUILESS_MAIN(TestRobotSlide)
#include "tst_robotslide.moc"
