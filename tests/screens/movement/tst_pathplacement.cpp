#include "PathPlacement.h"
#include "PathTables.h"

#include <QTest>

#include <limits>

using namespace PathPlacement;

Q_DECLARE_METATYPE(NSRect)

namespace {
// Where the entry and exit points of a line or turn lie once its picture stands at `frame`.
QPointF EntryAt(qint32 image, const NSRect& frame) {
    return {frame.x + ptPathLocTable[image][0], frame.y + ptPathLocTable[image][1]};
}
QPointF ExitAt(qint32 image, const NSRect& frame) {
    return {frame.x + ptPathLocTable[image][2], frame.y + ptPathLocTable[image][3]};
}
QString Show(const NSRect& r) {
    return QStringLiteral("(%1, %2, %3, %4)").arg(r.x).arg(r.y).arg(r.width).arg(r.height);
}
} // namespace

// The placement rules of the movement path, without any widget.
class TestPathPlacement : public QObject {
    Q_OBJECT
private slots:
    // Every row of the four tables, written out again independently of the source.
    void tableRow_data() {
        QTest::addColumn<int>("image");
        QTest::addColumn<QString>("name");
        QTest::addColumn<float>("w");
        QTest::addColumn<float>("h");
        QTest::addColumn<int>("out");
        QTest::addColumn<QList<float>>("loc");
        auto row = [](int n, const char* name, float w, float h, int out, QList<float> loc) {
            QTest::addRow("%d %s", n, name) << n << QString::fromLatin1(name) << w << h << out << loc;
        };
        row(0, "DirArroundLeft1", 45, 42, 3, {23, 42, 0, 7});
        row(1, "DirArroundLeft2", 46, 42, 0, {46, 7, 11, 42});
        row(2, "DirArroundLeft3", 46, 42, 1, {11, 0, 46, 23});
        row(3, "DirArroundLeft4", 45, 42, 2, {0, 23, 23, 0});
        row(4, "DirArroundRight1", 45, 45, 1, {12, 45, 10, 45});
        row(5, "DirArroundRight2", 45, 44, 2, {23, 45, 12, 0});
        row(6, "DirArroundRight3", 45, 44, 3, {26, 0, 0, 25});
        row(7, "DirArroundRight4", 45, 45, 0, {0, 10, 27, 45});
        row(8, "DirLine1", 66, 73, 2, {29, 73, 29, 0});
        row(9, "DirLine2", 66, 73, 3, {66, 33, 0, 33});
        row(10, "DirLine3", 66, 73, 0, {29, 0, 29, 73});
        row(11, "DirLine4", 66, 73, 1, {0, 33, 66, 33});
        row(12, "DirTurnLeft1", 106, 103, 3, {84, 103, 0, 7});
        row(13, "DirTurnLeft2", 107, 103, 0, {107, 7, 12, 103});
        row(14, "DirTurnLeft3", 106, 103, 1, {11, 0, 106, 83});
        row(15, "DirTurnLeft4", 106, 105, 2, {0, 84, 85, 0});
        row(16, "DirTurnRight1", 106, 105, 1, {14, 105, 10, 106});
        row(17, "DirTurnRight2", 106, 104, 2, {106, 84, 13, 0});
        row(18, "DirTurnRight3", 105, 104, 3, {87, 0, 0, 84});
        row(19, "DirTurnRight4", 105, 105, 0, {0, 10, 87, 105});
        row(20, "DirStop", 40, 38, 4, {});
        row(21, "DirCircleLeft", 33, 33, 4, {});
        row(22, "DirCircleRight", 33, 33, 4, {});
    }
    void tableRow() {
        QFETCH(int, image);
        QFETCH(QString, name);
        QFETCH(float, w);
        QFETCH(float, h);
        QFETCH(int, out);
        QFETCH(QList<float>, loc);
        QCOMPARE(QString::fromLatin1(strPathImgNameTable[image]), name);
        QCOMPARE(iPathImgSizeTable[image][0], w);
        QCOMPARE(iPathImgSizeTable[image][1], h);
        QCOMPARE(iPathDirectOutTable[image], out);
        QCOMPARE(IsLineOrTurn(image), !loc.isEmpty());
        for (int i = 0; i < loc.size(); ++i) QCOMPARE(ptPathLocTable[image][i], loc[i]);
    }

    void commandImages_data() {
        QTest::addColumn<int>("command");
        QTest::addColumn<int>("first"); // -1: none
        QTest::addColumn<int>("later");
        QTest::newRow("0 line") << 0 << 8 << 8;
        QTest::newRow("1 small left") << 1 << 0 << 0;
        QTest::newRow("2 differs when first") << 2 << 2 << 0;
        QTest::newRow("3 small right") << 3 << 4 << 4;
        QTest::newRow("4 wide right") << 4 << 16 << 16;
        QTest::newRow("5 wide left") << 5 << 12 << 12;
        QTest::newRow("6 circle left") << 6 << 21 << 21;
        QTest::newRow("7 circle right") << 7 << 22 << 22;
        QTest::newRow("8 stop") << 8 << 20 << 20;
        QTest::newRow("9") << 9 << -1 << -1;
        QTest::newRow("-1") << -1 << -1 << -1;
        QTest::newRow("min") << std::numeric_limits<qint32>::min() << -1 << -1;
        QTest::newRow("max") << std::numeric_limits<qint32>::max() << -1 << -1;
    }
    void commandImages() {
        QFETCH(int, command);
        QFETCH(int, first);
        QFETCH(int, later);
        QCOMPARE(FirstPieceImage(command).value_or(-1), first);
        QCOMPARE(LaterPieceImage(command).value_or(-1), later);
    }

    void firstDirect() {
        for (qint32 n = 0; n < kPathLocCount; ++n) QCOMPARE(FirstDirect(n), iPathDirectOutTable[n]);
        // A first stop or circle: the path is taken to go on upwards, not nowhere.
        for (qint32 n : {20, 21, 22}) QCOMPARE(FirstDirect(n), qint32(kPathDirectUp));
    }

    void firstFrame_data() {
        QTest::addColumn<int>("image");
        QTest::addColumn<NSRect>("frame");
        QTest::newRow("line") << 8 << NSRect{0, 276, 66, 73};
        QTest::newRow("small left 3") << 2 << NSRect{0, 307, 46, 42};
        QTest::newRow("small left 1") << 0 << NSRect{0, 307, 45, 42};
        QTest::newRow("stop") << 20 << NSRect{0, 311, 40, 38};
        QTest::newRow("circle") << 21 << NSRect{0, 316, 33, 33};
        QTest::newRow("wide right") << 16 << NSRect{0, 244, 106, 105};
    }
    void firstFrame() {
        QFETCH(int, image);
        QFETCH(NSRect, frame);
        const NSRect got = FirstFrame(image, 349.0f);
        QVERIFY2(got == frame, qPrintable(Show(got)));
    }

    // Every line or turn after every line or turn: the new piece touches the newest one on the
    // side it leaves by, its entry level with the exit along the axis across the travel.
    void lineOrTurnJoinsTheExit_data() {
        QTest::addColumn<NSRect>("prevFrame");
        QTest::newRow("corner") << NSRect{0, 276, 66, 73};
        QTest::newRow("negative") << NSRect{-55, -100, 0, 0};
        QTest::newRow("fractional") << NSRect{64.5f, 96.5f, 0, 0};
    }
    void lineOrTurnJoinsTheExit() {
        QFETCH(NSRect, prevFrame);
        for (qint32 p = 0; p < kPathLocCount; ++p) {
            const NSRect prev{prevFrame.x, prevFrame.y, iPathImgSizeTable[p][0], iPathImgSizeTable[p][1]};
            for (qint32 n = 0; n < kPathLocCount; ++n) {
                const NSRect next = NextFrame(p, prev, n);
                const QString where = QStringLiteral("%1 after %2: %3").arg(n).arg(p).arg(Show(next));
                QCOMPARE(next.width, iPathImgSizeTable[n][0]);
                QCOMPARE(next.height, iPathImgSizeTable[n][1]);
                const QPointF entry = EntryAt(n, next);
                const QPointF exit = ExitAt(p, prev);
                switch (iPathDirectOutTable[p]) {
                case kPathDirectUp:
                    QVERIFY2(entry.x() == exit.x() && next.y + next.height == prev.y, qPrintable(where));
                    break;
                case kPathDirectDown:
                    QVERIFY2(entry.x() == exit.x() && next.y == prev.y + prev.height, qPrintable(where));
                    break;
                case kPathDirectLeft:
                    QVERIFY2(entry.y() == exit.y() && next.x + next.width == prev.x, qPrintable(where));
                    break;
                case kPathDirectRight:
                    QVERIFY2(entry.y() == exit.y() && next.x == prev.x + prev.width, qPrintable(where));
                    break;
                default:
                    QFAIL(qPrintable(where));
                }
            }
        }
    }

    // A stop or circle has no entry point: it is centred 6 points off the exit, across the travel.
    void stopOrCircleCentredOffTheExit_data() {
        QTest::addColumn<int>("prev");
        QTest::addColumn<int>("image");
        QTest::addColumn<NSRect>("frame");
        // The newest piece is a line at (0, 203, 66, 73) in each row.
        QTest::newRow("circle after line up") << 8 << 22 << NSRect{29 + 6 - 16.5f, 203 - 33, 33, 33};
        QTest::newRow("stop after line up") << 8 << 20 << NSRect{29 + 6 - 20, 203 - 38, 40, 38};
        QTest::newRow("circle after line down") << 10 << 21 << NSRect{29 + 6 - 16.5f, 203 + 73, 33, 33};
        QTest::newRow("stop after line left") << 9 << 20 << NSRect{-40, 203 + 33 + 6 - 19, 40, 38};
        QTest::newRow("circle after line right") << 11 << 21 << NSRect{66, 203 + 33 + 6 - 16.5f, 33, 33};
    }
    void stopOrCircleCentredOffTheExit() {
        QFETCH(int, prev);
        QFETCH(int, image);
        QFETCH(NSRect, frame);
        const NSRect got = NextFrame(prev, NSRect{0, 203, 66, 73}, image);
        QVERIFY2(got == frame, qPrintable(Show(got)));
    }

    // After a stop or circle the path starts again at the top-left corner, whatever comes next.
    void afterStopOrCircleBackToTheCorner() {
        for (qint32 p : {20, 21, 22}) {
            const NSRect prev{-88, 96.5f, iPathImgSizeTable[p][0], iPathImgSizeTable[p][1]};
            for (qint32 n = 0; n < kPathImageCount; ++n) {
                const NSRect got = NextFrame(p, prev, n);
                QVERIFY2((got == NSRect{0, 0, iPathImgSizeTable[n][0], iPathImgSizeTable[n][1]}),
                         qPrintable(Show(got)));
            }
        }
    }

    // The three points that lie off their edges are used as they stand.
    void oddPointsUsedAsTheyStand() {
        // Image 4 leaves right from its bottom edge: the next piece's entry meets y 45.
        const NSRect a = NextFrame(4, NSRect{0, 0, 45, 45}, 8);
        QVERIFY2((a == NSRect{45, 45 - 73, 66, 73}), qPrintable(Show(a)));
        // Image 16's exit is a point below its picture.
        const NSRect b = NextFrame(16, NSRect{0, 0, 106, 105}, 11);
        QVERIFY2((b == NSRect{106, 106 - 33, 66, 73}), qPrintable(Show(b)));
    }

    void badImagesGiveNoFrame() {
        for (qint32 bad : {-1, 23, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()}) {
            QVERIFY(!IsImage(bad));
            QVERIFY(!IsLineOrTurn(bad));
            QVERIFY((FirstFrame(bad, 349) == NSRect{}));
            QVERIFY((NextFrame(bad, NSRect{0, 0, 66, 73}, 8) == NSRect{}));
            QVERIFY((NextFrame(8, NSRect{0, 0, 66, 73}, bad) == NSRect{}));
        }
        QVERIFY(IsImage(22) && !IsLineOrTurn(20) && IsLineOrTurn(19));
    }
};

QTEST_APPLESS_MAIN(TestPathPlacement)
#include "tst_pathplacement.moc"
