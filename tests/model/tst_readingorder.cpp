#include "ReadingOrder.h"

#include <QTest>

// Controls are read line by line from the top, each line from the left.
class TestReadingOrder : public QObject {
    Q_OBJECT
private slots:
    void order_data() {
        QTest::addColumn<QList<QRect>>("rects");
        QTest::addColumn<QList<qsizetype>>("expected");
        QTest::newRow("none") << QList<QRect>{} << QList<qsizetype>{};
        QTest::newRow("one line of unequal controls, right to left")
            << QList<QRect>{{791, 362, 111, 46}, {551, 374, 193, 20}, {95, 350, 326, 46}}
            << QList<qsizetype>{2, 1, 0};
        // The list rows overlap their neighbours by a few points; each still reads on its own.
        QTest::newRow("overlapping rows")
            << QList<QRect>{{0, 36, 414, 39}, {0, 0, 414, 39}, {0, 72, 414, 39}} << QList<qsizetype>{1, 0, 2};
        QTest::newRow("a centre just past the first's bottom starts a line")
            << QList<QRect>{{500, 0, 10, 40}, {0, 21, 10, 40}} << QList<qsizetype>{0, 1};
        QTest::newRow("a tall control beside a short one joins only by its centre")
            << QList<QRect>{{0, 0, 100, 20}, {200, 5, 100, 200}, {300, 8, 50, 10}}
            << QList<qsizetype>{0, 2, 1};
        QTest::newRow("the same place twice keeps the given order")
            << QList<QRect>{{5, 5, 10, 10}, {5, 5, 10, 10}} << QList<qsizetype>{0, 1};
    }
    void order() {
        QFETCH(QList<QRect>, rects);
        QFETCH(QList<qsizetype>, expected);
        QCOMPARE(ReadingOrder(rects), expected);
    }
};

QTEST_GUILESS_MAIN(TestReadingOrder)
#include "tst_readingorder.moc"
