#include "PATHMAINSTRUCT.h"
#include "PathTables.h"

#include <QTest>

namespace {

constexpr float kPathHeight = 349.0f;

PATHMAINSTRUCT StartedWith(qint32 image) {
    PATHMAINSTRUCT path;
    path.Item[0].iImgNO = image;
    path.SetPathImageFirst(kPathHeight);
    return path;
}

bool IsStopOrCircle(qint32 image) {
    return image >= kPathLocCount;
}

} // namespace

// The movement path: where every piece goes against the one before it, which way the path
// leaves, and how many pieces it holds.
class TestMovementPath : public QObject {
    Q_OBJECT
private slots:
    // The first piece stands in the bottom-left corner; a first stop or circle sends the path up.
    // An unknown command draws image 0 first, what the empty slot holds, and adds nothing later;
    // later, command 2 draws image 0.
    void commands() {
        for (qint32 command = -1; command <= 9; ++command) {
            PATHMAINSTRUCT path;
            const auto piece = path.SetPath(command, kPathHeight);
            QVERIFY(piece);
            if (command < 0 || command > 8) QCOMPARE(piece->iImgNO, 0);
            QCOMPARE(piece->frame.x, 0.0f);
            QCOMPARE(piece->frame.y + piece->frame.height, kPathHeight);
            QCOMPARE(path.iDirect,
                     IsStopOrCircle(piece->iImgNO) ? kPathDirectUp : iPathDirectOutTable[piece->iImgNO]);
            QVERIFY(!path.SetPath(9, kPathHeight) && !path.SetPath(-1, kPathHeight));
            QCOMPARE(path.SetPath(2, kPathHeight)->iImgNO, 0);
            QCOMPARE(path.iItemCnt, 2);
        }
    }

    // Every image after every image: against the side the newest piece leaves on, a line or
    // turn with its entry level with the exit, a stop or circle centred 6 points off it; after
    // a stop or circle, the top-left corner.
    void placementAfterEveryPiece() {
        for (qint32 prev = 0; prev < kPathImageCount; ++prev) {
            for (qint32 next = 0; next < kPathImageCount; ++next) {
                const QByteArray pair = QByteArray::number(prev) + " then " + QByteArray::number(next);
                PATHMAINSTRUCT path = StartedWith(prev);
                const NSRect p = path.Item[0].frame;
                const auto piece = path.SetPathImageNormal(next);
                QVERIFY2(piece, pair);
                const NSRect n = piece->frame;
                QCOMPARE(path.iDirect, iPathDirectOutTable[next]);
                QCOMPARE(path.iItemCnt, 2);
                const qint32 d = iPathDirectOutTable[prev];
                if (d == kPathDirectNone) {
                    QVERIFY2(n.x == 0.0f && n.y == 0.0f, pair);
                    continue;
                }
                const bool vertical = d == kPathDirectDown || d == kPathDirectUp;
                const float exit = vertical ? p.x + ptPathLocTable[prev][2] : p.y + ptPathLocTable[prev][3];
                const float meets = IsStopOrCircle(next)
                                        ? (vertical ? n.x + n.width / 2 - 6 : n.y + n.height / 2 - 6)
                                    : vertical ? n.x + ptPathLocTable[next][0]
                                               : n.y + ptPathLocTable[next][1];
                QVERIFY2(meets == exit, pair);
                const bool besides = d == kPathDirectDown    ? n.y == p.y + p.height
                                     : d == kPathDirectUp    ? n.y + n.height == p.y
                                     : d == kPathDirectRight ? n.x == p.x + p.width
                                                             : n.x + n.width == p.x;
                QVERIFY2(besides, pair);
            }
        }
    }

    // A full path takes no piece, whichever way it comes.
    void holdsAtMost512Pieces() {
        PATHMAINSTRUCT path;
        for (qint32 i = 0; i < PathPlacement::kMaxPieces; ++i) QVERIFY(path.SetPath(i % 9, kPathHeight));
        const qint32 direct = path.iDirect;
        for (qint32 c = 0; c < 9; ++c) QVERIFY(!path.SetPath(c, kPathHeight));
        QVERIFY(!path.SetPathImageNormal(8));
        QVERIFY(!path.SetPathImageFirst(kPathHeight));
        QCOMPARE(path.iItemCnt, PathPlacement::kMaxPieces);
        QCOMPARE(path.iDirect, direct);
    }
};

QTEST_GUILESS_MAIN(TestMovementPath)
#include "tst_movementpath.moc"
