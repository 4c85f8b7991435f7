#include "ReadingOrder.h"

#include <QTest>

// Controls are read part by part, cut where free room parts them, then line by line; a run is
// read together in its own order.
class TestReadingOrder : public QObject {
    Q_OBJECT
private slots:
    void order_data() {
        QTest::addColumn<QList<QRect>>("rects");
        QTest::addColumn<QList<int>>("runs");
        QTest::addColumn<QList<qsizetype>>("expected");
        const auto row = [](const char* name, const QList<QRect>& rects, const QList<qsizetype>& expected,
                            const QList<int>& runs = {}) {
            QTest::newRow(name) << rects << runs << expected;
        };
        row("none", {}, {});
        row("one line of unequal controls, right to left",
            {{791, 362, 111, 46}, {551, 374, 193, 20}, {95, 350, 326, 46}}, {2, 1, 0});
        // The list rows overlap their neighbours by a few points; each still reads on its own.
        row("overlapping rows", {{0, 36, 414, 39}, {0, 0, 414, 39}, {0, 72, 414, 39}}, {1, 0, 2});
        row("a centre just past the first's bottom starts a line", {{20, 0, 10, 40}, {0, 21, 10, 40}},
            {0, 1});
        row("a tall control beside a short one joins only by its centre",
            {{0, 0, 100, 20}, {110, 5, 100, 200}, {215, 8, 50, 10}}, {0, 2, 1});
        row("the same place twice keeps the given order", {{5, 5, 10, 10}, {5, 5, 10, 10}}, {0, 1});
        // A grid of buttons, then a tall panel right of it, apart by a gutter: the whole grid first,
        // row by row, though the panel starts higher.
        row("a grid before the panel beside it",
            {{0, 20, 50, 20}, {60, 20, 50, 20}, {0, 40, 50, 20}, {60, 40, 50, 20}, {134, 0, 100, 100}},
            {0, 1, 2, 3, 4});
        // Rows apart by the lead go first, columns then; rows closer than that are one group,
        // which a gutter parts into columns.
        row("rows apart by the lead before columns",
            {{0, 0, 50, 20}, {100, 0, 50, 20}, {0, 28, 50, 20}, {100, 28, 50, 20}}, {0, 1, 2, 3});
        row("columns before rows closer than the lead",
            {{0, 0, 50, 20}, {100, 0, 50, 20}, {0, 27, 50, 20}, {100, 27, 50, 20}}, {0, 2, 1, 3});
        // Four items whose second row runs right to left, and a control right of them.
        row("a run in its own order, in its place",
            {{100, 5, 10, 10}, {0, 0, 10, 10}, {20, 0, 10, 10}, {20, 20, 10, 10}, {0, 20, 10, 10}},
            {1, 2, 3, 4, 0}, {-1, 0, 0, 0, 0});
    }
    void order() {
        QFETCH(QList<QRect>, rects);
        QFETCH(QList<int>, runs);
        QFETCH(QList<qsizetype>, expected);
        QCOMPARE(ReadingOrder(rects, runs), expected);
    }
};

QTEST_GUILESS_MAIN(TestReadingOrder)
#include "tst_readingorder.moc"
