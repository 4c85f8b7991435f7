#include "SoundSetBoard.h"
#include "SoundTimeline.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

namespace {

void Fill(SoundTimeline& t, qint32 items) {
    for (qint32 i = 0; i < items; ++i) t.SetSoundContent(i % 36);
}

enum class Side { LeadIn, Left, Right, Above };

constexpr qint32 kFirst = SoundSetBoard::kSoundButtonFirst;

} // namespace

// The timeline's numbers, and the twelve sound buttons that feed it.
class TestSoundTimeline : public QObject {
    Q_OBJECT
private slots:
    void append_data() {
        QTest::addColumn<qint32>("before");
        QTest::addColumn<qint32>("sound");
        QTest::addColumn<bool>("appended");
        QTest::newRow("the 512th item") << 511 << 35 << true;
        QTest::newRow("a full timeline takes no more") << 512 << 0 << false;
        QTest::newRow("no sound past the table") << 3 << 36 << false;
        QTest::newRow("no sound before it") << 3 << -1 << false;
    }
    void append() {
        QFETCH(qint32, before);
        QFETCH(qint32, sound);
        QFETCH(bool, appended);
        SoundTimeline t;
        Fill(t, before);
        QSignalSpy made(&t, &SoundTimeline::ItemAppended);
        t.SetSoundContent(sound);
        QCOMPARE(t.iItemNum, before + (appended ? 1 : 0));
        const QList<QList<QVariant>> told =
            appended ? QList<QList<QVariant>>{{before, sound}} : QList<QList<QVariant>>{};
        QCOMPARE(made, told);
    }

    // Each item follows the one before it in a snake: along a row, then down into the next row,
    // which runs back the other way; a bar joins it to that item.
    void snake_data() {
        QTest::addColumn<qint32>("n");
        QTest::addColumn<Side>("side");
        QTest::newRow("the first item leads in from the left edge") << 0 << Side::LeadIn;
        QTest::newRow("along the first row") << 1 << Side::Left;
        QTest::newRow("down at the right end") << 3 << Side::Above;
        QTest::newRow("back along the second row") << 4 << Side::Right;
        QTest::newRow("down at the left end") << 6 << Side::Above;
        QTest::newRow("on to the next page") << 12 << Side::Above;
    }
    void snake() {
        QFETCH(qint32, n);
        QFETCH(Side, side);
        const SoundContentLoc loc = GetSoundContentLoc(n, 0);
        const QRectF item = loc.SizeLoc.toRectF();
        // A bar may end where its item begins.
        const QRectF bar = loc.LinkBar.toRectF().adjusted(-0.5, -0.5, 0.5, 0.5);
        QCOMPARE(loc.LinkBarType, side == Side::Above ? kLinkBarVertical : kLinkBarHorizontal);
        QVERIFY(bar.intersects(item));
        if (side == Side::LeadIn) {
            QCOMPARE(loc.LinkBar.x, 0.0f);
            return;
        }
        const QRectF before = GetSoundContentLoc(n - 1, 0).SizeLoc.toRectF();
        QVERIFY(bar.intersects(before));
        if (side == Side::Above)
            QVERIFY(before.left() == item.left() && before.bottom() < item.top());
        else
            QVERIFY(before.top() == item.top() &&
                    (side == Side::Left ? before.right() < item.left() : before.left() > item.right()));
    }

    // A page further on view moves every item one page pitch up, whatever its page.
    void pagePitch() {
        for (const qint32 n : {1, 30, 500}) {
            const SoundContentLoc here = GetSoundContentLoc(n, 0), next = GetSoundContentLoc(n, 1);
            for (auto rect :
                 {&SoundContentLoc::SizeLoc, &SoundContentLoc::NumberText, &SoundContentLoc::LinkBar})
                QCOMPARE((here.*rect).toRectF().translated(0, -kSoundContentPagePitch),
                         (next.*rect).toRectF());
            QCOMPARE(GetSoundContentLoc(n + kSoundContentPageSize, 1), here);
        }
    }

    // A page request is refused before the first page or past the last item's; an accepted one
    // brings the target item 20 points a tick to the top row, the last tick overshooting.
    void scroll_data() {
        QTest::addColumn<qint32>("items");
        QTest::addColumn<qint32>("from");
        QTest::addColumn<qint32>("to");
        QTest::addColumn<qint32>("ticks"); // 0: refused
        QTest::addColumn<qint32>("pageMax");
        QTest::newRow("one page on") << 24 << 0 << 1 << 12 << 1;
        QTest::newRow("past the last item's page") << 24 << 1 << 2 << 0 << 1;
        QTest::newRow("several pages at once") << 37 << 0 << 3 << 33 << 3;
        QTest::newRow("one page back") << 24 << 1 << 0 << 11 << 0;
        QTest::newRow("before the first page") << 24 << 0 << -1 << 0 << 0;
        QTest::newRow("the page on view") << 24 << 1 << 1 << 0 << 0;
        QTest::newRow("on with no items") << 0 << 0 << 1 << 0 << 0;
        QTest::newRow("the whole timeline back") << 512 << 42 << 0 << 456 << 0;
    }
    void scroll() {
        QFETCH(qint32, items);
        QFETCH(qint32, from);
        QFETCH(qint32, to);
        QFETCH(qint32, ticks);
        QFETCH(qint32, pageMax);
        SoundTimeline t;
        Fill(t, items);
        t.iPageNumber = from;
        QSignalSpy steps(&t, &SoundTimeline::ItemsScrolled);
        QSignalSpy arrived(&t, &SoundTimeline::ScrollArrived);
        t.SoundContentMoveToPage(to);
        QCOMPARE(t.Busy(), ticks > 0);
        QCOMPARE(t.iPageNumber, ticks ? to : from);
        QCOMPARE(t.iPageMax, pageMax);
        if (t.timer) t.timer->stop();
        for (int guard = 0; t.Busy() && guard < 1000; ++guard)
            to > from ? t.SoundContentItemDown() : t.SoundContentItemUP();
        const QVariant step = to > from ? -kSoundContentScrollStep : kSoundContentScrollStep;
        QCOMPARE(steps, QList<QList<QVariant>>(ticks, {step}));
        QCOMPARE(arrived.size(), ticks ? 1 : 0);
    }

    // Views are moved by whole points: every value is cut toward zero.
    void scrolledFrame() {
        QCOMPARE(SoundContentScrolled({12.7f, 9.5f, 117.2f, 46.9f}, 20), (NSRect{12, 29, 117, 46}));
        QCOMPARE(SoundContentScrolled({-1.5f, 2.5f, 3, 14}, -20), (NSRect{-1, -17, 3, 14}));
    }

    // While a scroll runs the timeline takes nothing new; the sound set pages still turn.
    void busy() {
        SoundTimeline t;
        SoundSetBoard board(&t);
        Fill(t, 36);
        t.SoundContentMoveToPage(1);
        QVERIFY(!board.SoundSet(11));
        t.SoundContentUp();
        t.SoundContentDown();
        QVERIFY(board.PageNext());
        QCOMPARE(t.iItemNum, 36);
        QCOMPARE(t.iPageNumber, 1);
        QCOMPARE(board.iCurSoundSet, kFirst);
    }

    // Pages run from 0 to 2; the last button on page p stands for sound 11 + 12 p.
    void soundSetPages_data() {
        QTest::addColumn<QString>("presses");
        QTest::addColumn<qint32>("page");
        QTest::newRow("past the last") << ">>>" << 2;
        QTest::newRow("back before the first") << "<" << 0;
        QTest::newRow("there and back") << ">><" << 1;
    }
    void soundSetPages() {
        QFETCH(QString, presses);
        QFETCH(qint32, page);
        SoundTimeline t;
        SoundSetBoard board(&t);
        for (QChar press : presses) press == '>' ? board.PageNext() : board.PagePre();
        QCOMPARE(board.iCurSoundSetPage, page);
        QCOMPARE(board.SoundOf(SoundSetBoard::kSoundButtonLast), 11 + 12 * page);
    }

    // The mark goes to the button pressed last, whatever it names; the timeline scrolls to the
    // page of its last item, full or not.
    void mark_data() {
        QTest::addColumn<qint32>("items");
        QTest::addColumn<QList<qint32>>("presses");
        QTest::addColumn<bool>("moved");
        QTest::addColumn<qint32>("marked");
        QTest::addColumn<qint32>("itemsAfter");
        QTest::addColumn<qint32>("pageAfter");
        QTest::newRow("another button") << 0 << QList<qint32>{10, 11} << true << 11 << 2 << 0;
        QTest::newRow("the same button twice") << 0 << QList<qint32>{11, 11} << false << 11 << 2 << 0;
        QTest::newRow("not a sound button") << 0 << QList<qint32>{22} << false << 10 << 0 << 0;
        QTest::newRow("the thirteenth item") << 12 << QList<qint32>{21} << true << 21 << 13 << 1;
        QTest::newRow("a full timeline") << 512 << QList<qint32>{12} << true << 12 << 512 << 42;
    }
    void mark() {
        QFETCH(qint32, items);
        QFETCH(QList<qint32>, presses);
        QFETCH(bool, moved);
        QFETCH(qint32, marked);
        QFETCH(qint32, itemsAfter);
        QFETCH(qint32, pageAfter);
        SoundTimeline t;
        SoundSetBoard board(&t);
        Fill(t, items);
        bool last = false;
        for (qint32 button : presses) last = board.SoundSet(button);
        QCOMPARE(last, moved);
        QCOMPARE(board.iCurSoundSet, marked);
        QCOMPARE(t.iItemNum, itemsAfter);
        QCOMPARE(t.iPageNumber, pageAfter);
    }

    // The one test on the clock: a page takes its twelve ticks of 10 ms.
    void scrollTiming() {
        SoundTimeline t;
        Fill(t, 24);
        QSignalSpy steps(&t, &SoundTimeline::ItemsScrolled);
        QElapsedTimer clock;
        clock.start();
        t.SoundContentMoveToPage(1);
        QVERIFY(QTest::qWaitFor([&] { return !t.Busy(); }, 5000));
        QCOMPARE(steps.size(), 12);
        QVERIFY2(clock.elapsed() >= 115, qPrintable(QString::number(clock.elapsed())));
    }
};

QTEST_GUILESS_MAIN(TestSoundTimeline)
#include "tst_soundtimeline.moc"
