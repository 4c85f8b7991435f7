#include "SoundContentLoc.h"
#include "SoundSetText.h"

#include <QTest>

Q_DECLARE_METATYPE(NSRect)

namespace {
NSRect R(qint32 x, qint32 y, qint32 w, qint32 h) {
    return MakeNSRect(x, y, w, h);
}
} // namespace

// The timeline's layout rule, the scroll step and the table of sound names, without widgets.
class TestSoundContentLoc : public QObject {
    Q_OBJECT
private slots:
    void slotsOfThePageShown_data() {
        QTest::addColumn<qint32>("n");
        QTest::addColumn<NSRect>("item");
        QTest::addColumn<NSRect>("number");
        QTest::addColumn<NSRect>("bar");
        QTest::addColumn<qint32>("kind");
        // Item 0 has the lead-in bar; every later slot 0 hangs below the previous page's last item.
        QTest::newRow("item 0") << 0 << R(12, 9, 117, 46) << R(1, 4, 28, 14) << R(0, 27, 14, 3) << 0;
        QTest::newRow("slot 0") << 12 << R(12, 9, 117, 46) << R(1, 4, 28, 14) << R(66, -5, 3, 14) << 1;
        QTest::newRow("slot 1") << 13 << R(133, 9, 117, 46) << R(122, 4, 28, 14) << R(121, 27, 14, 3) << 0;
        QTest::newRow("slot 2") << 14 << R(253, 9, 117, 46) << R(242, 4, 28, 14) << R(241, 27, 14, 3) << 0;
        QTest::newRow("slot 3") << 15 << R(253, 63, 117, 46) << R(242, 58, 28, 14) << R(307, 49, 3, 14) << 1;
        QTest::newRow("slot 4") << 16 << R(133, 63, 117, 46) << R(122, 58, 28, 14) << R(243, 81, 14, 3) << 0;
        QTest::newRow("slot 5") << 17 << R(12, 63, 117, 46) << R(1, 58, 28, 14) << R(122, 81, 14, 3) << 0;
        QTest::newRow("slot 6") << 18 << R(12, 117, 117, 46) << R(1, 112, 28, 14) << R(66, 103, 3, 14) << 1;
        QTest::newRow("slot 7") << 19 << R(133, 117, 117, 46) << R(122, 112, 28, 14) << R(121, 135, 14, 3)
                                << 0;
        QTest::newRow("slot 8") << 20 << R(253, 117, 117, 46) << R(242, 112, 28, 14) << R(241, 135, 14, 3)
                                << 0;
        QTest::newRow("slot 9") << 21 << R(253, 171, 117, 46) << R(242, 166, 28, 14) << R(307, 157, 3, 14)
                                << 1;
        QTest::newRow("slot 10") << 22 << R(133, 171, 117, 46) << R(122, 166, 28, 14) << R(243, 189, 14, 3)
                                 << 0;
        QTest::newRow("slot 11") << 23 << R(12, 171, 117, 46) << R(1, 166, 28, 14) << R(122, 189, 14, 3) << 0;
    }

    void slotsOfThePageShown() {
        QFETCH(qint32, n);
        QFETCH(NSRect, item);
        QFETCH(NSRect, number);
        QFETCH(NSRect, bar);
        QFETCH(qint32, kind);
        const SoundContentLoc loc = GetSoundContentLoc(n, SoundContentPageOf(n));
        QCOMPARE(loc.SizeLoc, item);
        QCOMPARE(loc.NumberText, number);
        QCOMPARE(loc.LinkBar, bar);
        QCOMPARE(loc.LinkBarType, kind);
    }

    // Every page of the full timeline, seen from every other page: one page pitch per page apart.
    void otherPagesArePitchesAway_data() {
        QTest::addColumn<qint32>("n");
        QTest::addColumn<qint32>("shown");
        QTest::newRow("next page from page 0") << 12 << 0;
        QTest::newRow("three pages on") << 36 << 0;
        QTest::newRow("item 0 from page 1") << 0 << 1;
        QTest::newRow("last item from page 0") << 511 << 0;
        QTest::newRow("first item from page 42") << 0 << 42;
        QTest::newRow("slot 9 two pages back") << 57 << 6;
    }

    void otherPagesArePitchesAway() {
        QFETCH(qint32, n);
        QFETCH(qint32, shown);
        const SoundContentLoc own = GetSoundContentLoc(n, SoundContentPageOf(n));
        const SoundContentLoc seen = GetSoundContentLoc(n, shown);
        const float dy = static_cast<float>((SoundContentPageOf(n) - shown) * 217);
        auto moved = [dy](NSRect r) {
            r.y += dy;
            return r;
        };
        QCOMPARE(seen.SizeLoc, moved(own.SizeLoc));
        QCOMPARE(seen.NumberText, moved(own.NumberText));
        QCOMPARE(seen.LinkBar, moved(own.LinkBar));
        QCOMPARE(seen.LinkBarType, own.LinkBarType);
    }

    void thirteenthItemWaitsBelowPageZero() {
        const SoundContentLoc loc = GetSoundContentLoc(12, 0);
        QCOMPARE(loc.SizeLoc, R(12, 226, 117, 46));
        QCOMPARE(loc.LinkBar, R(66, 212, 3, 14));
        QCOMPARE(loc.LinkBarType, kLinkBarVertical);
        QCOMPARE(GetSoundContentLoc(36, 0).SizeLoc, R(12, 660, 117, 46));
    }

    void lastItemIsSlot7OfPage42() {
        QCOMPARE(SoundContentPageOf(511), 42);
        QCOMPARE(GetSoundContentLoc(511, 42), GetSoundContentLoc(7, 0));
    }

    void noPlaceBeforeTheFirstItem() {
        QCOMPARE(SoundContentPageOf(-1), -1);
        const SoundContentLoc loc = GetSoundContentLoc(-1, 0);
        QCOMPARE(loc.SizeLoc, NSRect{});
        QCOMPARE(loc.NumberText, NSRect{});
        QCOMPARE(loc.LinkBar, NSRect{});
    }

    void scrollStepCutsTowardZero_data() {
        QTest::addColumn<NSRect>("frame");
        QTest::addColumn<qint32>("dy");
        QTest::addColumn<NSRect>("expected");
        QTest::newRow("whole, down") << R(12, 226, 111, 46) << -20 << R(12, 206, 111, 46);
        QTest::newRow("whole, up") << R(12, -208, 111, 46) << 20 << R(12, -188, 111, 46);
        QTest::newRow("fraction above zero")
            << NSRect{12.7f, 30.6f, 111.9f, 46.5f} << -20 << NSRect{12, 10, 111, 46};
        QTest::newRow("fraction below zero") << NSRect{-0.5f, -5.5f, 3, 14} << -20 << NSRect{0, -25, 3, 14};
        QTest::newRow("crossing zero") << NSRect{1, 10.5f, 3, 14} << -20 << NSRect{1, -9, 3, 14};
    }

    void scrollStepCutsTowardZero() {
        QFETCH(NSRect, frame);
        QFETCH(qint32, dy);
        QFETCH(NSRect, expected);
        QCOMPARE(SoundContentScrolled(frame, dy), expected);
    }

    void soundNamesByPage_data() {
        QTest::addColumn<qint32>("page");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("page 0") << 0
                                << QStringList{"buzz", "baby",  "tic tac", "Xmas",  "forward", "backward",
                                               "turn", "shoot", "bomb",    "fight", "laser",   "fire"};
        QTest::newRow("page 1") << 1 << QStringList{"gun",    "destroy", "rock'n roll", "hip pop",
                                                    "techno", "angel",   "dark side",   "whistle",
                                                    "robot",  "vistory", "yeeeha",      "old bot"};
        QTest::newRow("page 2") << 2
                                << QStringList{"hero",   "funny", "clap",  "kiss",    "brup",  "vomit",
                                               "defeat", "grrr",  "money", "suspens", "laugh", "wow wow"};
    }

    void soundNamesByPage() {
        QFETCH(qint32, page);
        QFETCH(QStringList, names);
        QCOMPARE(names.size(), kSoundSetPageSize);
        for (qint32 k = 0; k < kSoundSetPageSize; ++k)
            QCOMPARE(QString::fromUtf8(SoundSetName(12 * page + k)), names.at(k));
    }

    void noNameOutsideTheTable() {
        QCOMPARE(SoundSetName(-1), nullptr);
        QCOMPARE(SoundSetName(36), nullptr);
        QVERIFY(SoundSetName(35) != nullptr);
    }
};

QTEST_APPLESS_MAIN(TestSoundContentLoc)
#include "tst_soundcontentloc.moc"
