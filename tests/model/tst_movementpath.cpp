#include "PATHMAINSTRUCT.h"

#include <QTest>

namespace {
constexpr float kPathHeight = 349.0f;
} // namespace

// The movement path: where the newest piece stands for a few paths a user could build, and how
// many pieces a path holds.
class TestMovementPath : public QObject {
    Q_OBJECT
private slots:
    // Lines are 66 x 73, the right turn 106 x 105, the stop 40 x 38, the left round turn 45 x 42.
    void pieces_data() {
        QTest::addColumn<QList<qint32>>("commands");
        QTest::addColumn<QRectF>("newest");
        QTest::addColumn<int>("pieces");
        using L = QList<qint32>;
        QTest::newRow("the first piece in the bottom-left corner") << L{0} << QRectF(0, 276, 66, 73) << 1;
        QTest::newRow("a line up goes on up") << L{0, 0} << QRectF(0, 203, 66, 73) << 2;
        QTest::newRow("a turn's entry meets the line's exit") << L{0, 4} << QRectF(15, 171, 106, 105) << 2;
        QTest::newRow("after a right turn, on to the right") << L{0, 4, 0} << QRectF(121, 204, 66, 73) << 3;
        QTest::newRow("a stop centred 6 points off the exit") << L{0, 8} << QRectF(15, 238, 40, 38) << 2;
        QTest::newRow("after a stop, the top-left corner") << L{0, 8, 0} << QRectF(0, 0, 66, 73) << 3;
        QTest::newRow("after a first stop, the top-left corner") << L{8, 0} << QRectF(0, 0, 66, 73) << 2;
        QTest::newRow("command 2 first") << L{2} << QRectF(0, 307, 46, 42) << 1;
        QTest::newRow("command 2 later draws another turn") << L{0, 2} << QRectF(6, 234, 45, 42) << 2;
        QTest::newRow("an unknown command first draws what slot 0 holds")
            << L{-1} << QRectF(0, 307, 45, 42) << 1;
        QTest::newRow("an unknown command later adds nothing") << L{0, 9, -1} << QRectF(0, 276, 66, 73) << 1;
    }
    void pieces() {
        QFETCH(QList<qint32>, commands);
        QFETCH(QRectF, newest);
        QFETCH(int, pieces);
        PATHMAINSTRUCT path;
        for (const qint32 command : commands) path.SetPath(command, kPathHeight);
        QCOMPARE(path.iItemCnt, pieces);
        const NSRect f = path.Item[pieces - 1].frame;
        QCOMPARE(QRectF(f.x, f.y, f.width, f.height), newest);
    }

    // A full path takes no piece, whichever way it comes.
    void holdsAtMost512Pieces() {
        PATHMAINSTRUCT path;
        for (qint32 i = 0; i < PathPlacement::kMaxPieces; ++i) QVERIFY(path.SetPath(i % 9, kPathHeight));
        for (qint32 c = 0; c < 9; ++c) QVERIFY(!path.SetPath(c, kPathHeight));
        QVERIFY(!path.SetPathImageNormal(8));
        QVERIFY(!path.SetPathImageFirst(kPathHeight));
        QCOMPARE(path.iItemCnt, PathPlacement::kMaxPieces);
    }
};

QTEST_GUILESS_MAIN(TestMovementPath)
#include "tst_movementpath.moc"
