#include "SceneFit.h"

#include <QTest>

// The window's scene shrinks, uniformly and never grows, to fit the screen with its frame.
class TestSceneFit : public QObject {
    Q_OBJECT
private slots:
    void factor_data() {
        QTest::addColumn<QSize>("available");
        QTest::addColumn<QMargins>("frame");
        QTest::addColumn<qreal>("factor");
        const QMargins none, titleBar(0, 24, 0, 0), border(4, 28, 4, 4);
        QTest::newRow("exactly the scene") << QSize(1024, 768) << none << 1.0;
        QTest::newRow("larger screen") << QSize(1920, 1080) << border << 1.0;
        QTest::newRow("1024x600: height decides") << QSize(1024, 600) << none << 0.78125;
        QTest::newRow("1366x768 with a title bar") << QSize(1366, 768) << titleBar << 0.96875;
        QTest::newRow("narrow: width decides") << QSize(520, 768) << border << 0.5;
        QTest::newRow("empty area") << QSize(0, 0) << none << 1.0;
        QTest::newRow("frame as high as the area") << QSize(1024, 24) << titleBar << 1.0;
    }
    void factor() {
        QFETCH(QSize, available);
        QFETCH(QMargins, frame);
        QFETCH(qreal, factor);
        QCOMPARE(SceneFit::Factor(available, frame, QSize(1024, 768)), factor);
    }
};

QTEST_GUILESS_MAIN(TestSceneFit)
#include "tst_scenefit.moc"
