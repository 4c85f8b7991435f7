#include "Frame_MoveMent.h"
#include "PathTables.h"

#include <QTest>

#include <limits>
#include <memory>

Q_DECLARE_METATYPE(NSRect)

char* toString(const NSRect& r) {
    return QTest::toString(r.toRectF());
}

namespace {

QString Show(const NSRect& r) {
    return QStringLiteral("(%1, %2, %3, %4)").arg(r.x).arg(r.y).arg(r.width).arg(r.height);
}

std::unique_ptr<Frame_MoveMent> NewScreen() {
    return std::make_unique<Frame_MoveMent>(MakeNSRect(0, 0, 1024, 768));
}

// The pieces the path view holds, in stacking order.
QList<NSImageViewS*> PiecesIn(const Frame_MoveMent& screen) {
    QList<NSImageViewS*> pieces;
    for (QObject* child : screen.PathInfo.frmPath->children())
        if (auto* v = qobject_cast<NSImageViewS*>(child)) pieces << v;
    return pieces;
}

} // namespace

// The movement path as the screen keeps it: one image view per piece, in the path view.
class TestMovementPath : public QObject {
    Q_OBJECT
private slots:
    void startsEmpty() {
        auto screen = NewScreen();
        const PATHMAINSTRUCT& path = screen->PathInfo;
        QCOMPARE(path.iItemCnt, 0);
        QCOMPARE(path.iDirect, 0);
        QVERIFY(path.frmPath);
        QCOMPARE(path.frmPath->frame(), MakeNSRect(514, 273, 392, 349));
        QCOMPARE(path.frmPath->parentWidget(), screen.get());
        QVERIFY(PiecesIn(*screen).isEmpty());
        for (const PATHITEMSTRUCT& item : path.Item) {
            QVERIFY(!item.PathImg);
            QCOMPARE(item.iImgNO, 0);
            QCOMPARE(item.iPathNO, 0);
        }
    }

    void commands_data() {
        QTest::addColumn<QList<int>>("commands");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QList<NSRect>>("frames");
        QTest::addColumn<QList<int>>("directs");

        QTest::newRow("line, line, wide left, circle, line")
            << QList<int>{0, 0, 5, 6, 0}
            << QStringList{"DirLine1", "DirLine1", "DirTurnLeft1", "DirCircleLeft", "DirLine1"}
            << QList<NSRect>{{0, 276, 66, 73},
                             {0, 203, 66, 73},
                             {-55, 100, 106, 103},
                             {-88, 96.5f, 33, 33},
                             {0, 0, 66, 73}}
            << QList<int>{2, 2, 3, 4, 2};
        QTest::newRow("command 2 first, line, circle")
            << QList<int>{2, 0, 7} << QStringList{"DirArroundLeft3", "DirLine1", "DirCircleRight"}
            << QList<NSRect>{{0, 307, 46, 42}, {46, 257, 66, 73}, {64.5f, 224, 33, 33}}
            << QList<int>{1, 2, 4};
        QTest::newRow("command 2 later draws the small left turn 1")
            << QList<int>{0, 2} << QStringList{"DirLine1", "DirArroundLeft1"}
            << QList<NSRect>{{0, 276, 66, 73}, {6, 234, 45, 42}} << QList<int>{2, 3};
        QTest::newRow("first stop goes up, next still at the corner")
            << QList<int>{8, 0} << QStringList{"DirStop", "DirLine1"}
            << QList<NSRect>{{0, 311, 40, 38}, {0, 0, 66, 73}} << QList<int>{2, 2};
        QTest::newRow("first circle goes up, next still at the corner")
            << QList<int>{6, 3} << QStringList{"DirCircleLeft", "DirArroundRight1"}
            << QList<NSRect>{{0, 316, 33, 33}, {0, 0, 45, 45}} << QList<int>{2, 1};
        QTest::newRow("first circle right") << QList<int>{7} << QStringList{"DirCircleRight"}
                                            << QList<NSRect>{{0, 316, 33, 33}} << QList<int>{2};
        QTest::newRow("9 on an empty path draws slot 0's image")
            << QList<int>{9} << QStringList{"DirArroundLeft1"} << QList<NSRect>{{0, 307, 45, 42}}
            << QList<int>{3};
        QTest::newRow("-1 on an empty path draws slot 0's image")
            << QList<int>{-1} << QStringList{"DirArroundLeft1"} << QList<NSRect>{{0, 307, 45, 42}}
            << QList<int>{3};
        QTest::newRow("out of range on a path with pieces changes nothing")
            << QList<int>{4, 9, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 0}
            << QStringList{"DirTurnRight1", "DirLine1"}
            << QList<NSRect>{{0, 244, 106, 105}, {106, 277, 66, 73}} << QList<int>{1, 1, 1, 1, 1, 2};
        QTest::newRow("negative coordinates")
            << QList<int>{1, 8} << QStringList{"DirArroundLeft1", "DirStop"}
            << QList<NSRect>{{0, 307, 45, 42}, {-40, 301, 40, 38}} << QList<int>{3, 4};
        QTest::newRow("small right leaves from its bottom edge")
            << QList<int>{3, 0} << QStringList{"DirArroundRight1", "DirLine1"}
            << QList<NSRect>{{0, 304, 45, 45}, {45, 276, 66, 73}} << QList<int>{1, 2};
    }
    void commands() {
        QFETCH(QList<int>, commands);
        QFETCH(QStringList, names);
        QFETCH(QList<NSRect>, frames);
        QFETCH(QList<int>, directs);
        auto screen = NewScreen();
        const PATHMAINSTRUCT& path = screen->PathInfo;
        for (int i = 0; i < commands.size(); ++i) {
            screen->SetPath(commands[i]);
            QCOMPARE(path.iDirect, directs[i]);
        }
        QCOMPARE(path.iItemCnt, names.size());
        const QList<NSImageViewS*> pieces = PiecesIn(*screen);
        QCOMPARE(pieces.size(), names.size());
        for (int i = 0; i < names.size(); ++i) {
            const PATHITEMSTRUCT& item = path.Item[i];
            QVERIFY(item.PathImg);
            QCOMPARE(pieces[i], item.PathImg); // drawn in order, each on top of the one before
            QCOMPARE(QString::fromLatin1(strPathImgNameTable[item.iImgNO]), names[i]);
            QCOMPARE(item.PathImg->imgDefault.name(), names[i]);
            QCOMPARE(item.iPathNO, 0);
            const NSRect got = item.PathImg->frame();
            QVERIFY2(got == frames[i], qPrintable(QStringLiteral("piece %1 at %2").arg(i).arg(Show(got))));
            QCOMPARE(item.PathImg->imgDefault.size(), QSizeF(frames[i].width, frames[i].height));
        }
        QVERIFY(!path.Item[names.size()].PathImg);
    }

    // The image drawn depends on the command alone, not on the way the path is heading.
    void imageFollowsTheCommandNotTheDirection() {
        for (int before : {0, 1, 3, 4, 5}) {
            auto screen = NewScreen();
            screen->SetPath(before);
            screen->SetPath(5);
            QCOMPARE(screen->PathInfo.Item[1].iImgNO, 12);
        }
    }

    void fullPathTakesNoMore() {
        auto screen = NewScreen();
        PATHMAINSTRUCT& path = screen->PathInfo;
        for (int i = 0; i < PathPlacement::kMaxPieces; ++i) screen->SetPath(i % 9);
        QCOMPARE(path.iItemCnt, PathPlacement::kMaxPieces);
        const qint32 direct = path.iDirect;
        const NSImageViewS* last = path.Item[PathPlacement::kMaxPieces - 1].PathImg;
        QVERIFY(last);
        const NSRect lastFrame = last->frame();

        for (int command : {0, 2, 4, 8, 9, -1}) screen->SetPath(command);
        screen->SetPathImageNormal(8);
        screen->SetPathImageFirst();
        QCOMPARE(path.iItemCnt, PathPlacement::kMaxPieces);
        QCOMPARE(path.iDirect, direct);
        QCOMPARE(PiecesIn(*screen).size(), PathPlacement::kMaxPieces);
        QCOMPARE(path.Item[PathPlacement::kMaxPieces - 1].PathImg, last);
        QVERIFY(last->frame() == lastFrame);
    }

    void badCallsChangeNothing() {
        auto screen = NewScreen();
        PATHMAINSTRUCT& path = screen->PathInfo;
        // No newest piece to place against.
        screen->SetPathImageNormal(8);
        QCOMPARE(path.iItemCnt, 0);
        screen->SetPath(0);
        for (qint32 bad : {-1, 23, std::numeric_limits<qint32>::min()}) screen->SetPathImageNormal(bad);
        QCOMPARE(path.iItemCnt, 1);
        QCOMPARE(path.iDirect, 2);
        QCOMPARE(PiecesIn(*screen).size(), 1);
    }

};

QTEST_MAIN(TestMovementPath)
#include "tst_movementpath.moc"
