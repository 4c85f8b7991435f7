#include "SoundSetBoard.h"
#include "SoundTimeline.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

namespace {

void Fill(SoundTimeline& t, qint32 items) {
    for (qint32 i = 0; i < items; ++i) t.SetSoundContent(i % 36);
}

// Runs the scroll under way to its end, one tick at a time; answers the steps it made.
QList<qint32> RunScroll(SoundTimeline& t, bool later) {
    QSignalSpy steps(&t, &SoundTimeline::ItemsScrolled);
    if (t.timer) t.timer->stop();
    for (int guard = 0; t.Busy() && guard < 1000; ++guard)
        later ? t.SoundContentItemDown() : t.SoundContentItemUP();
    QList<qint32> dys;
    for (const QList<QVariant>& step : steps) dys << step.at(0).toInt();
    return dys;
}

constexpr qint32 kFirst = SoundSetBoard::kSoundButtonFirst;
constexpr qint32 kLast = SoundSetBoard::kSoundButtonLast;

enum class Side { LeadIn, Left, Right, Above };

} // namespace

// The timeline's numbers, and the twelve sound buttons that feed it.
class TestSoundTimeline : public QObject {
    Q_OBJECT
private slots:
    void append_data() {
        QTest::addColumn<qint32>("before");
        QTest::addColumn<qint32>("sound");
        QTest::addColumn<bool>("appended");
        QTest::newRow("first item") << 0 << 0 << true;
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
        QCOMPARE(made.size(), appended ? 1 : 0);
        if (appended) QCOMPARE(made.at(0), (QList<QVariant>{before, sound}));
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
        QTest::newRow("the last of a page") << 11 << Side::Right;
        QTest::newRow("on to the next page") << 12 << Side::Above;
        QTest::newRow("the last item") << 511 << Side::Left;
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
        switch (side) {
        case Side::Left:
            QVERIFY(before.top() == item.top() && before.right() < item.left());
            break;
        case Side::Right:
            QVERIFY(before.top() == item.top() && before.left() > item.right());
            break;
        default:
            QVERIFY(before.left() == item.left() && before.bottom() < item.top());
            break;
        }
    }

    // A page further on view moves every item one page pitch up, whatever its page.
    void pagePitch_data() {
        QTest::addColumn<qint32>("n");
        QTest::addColumn<qint32>("shown");
        QTest::newRow("on the page on view") << 1 << 0;
        QTest::newRow("an item below the view") << 30 << 0;
        QTest::newRow("far below the view") << 500 << 0;
    }
    void pagePitch() {
        QFETCH(qint32, n);
        QFETCH(qint32, shown);
        const SoundContentLoc here = GetSoundContentLoc(n, shown), next = GetSoundContentLoc(n, shown + 1);
        for (auto rect : {&SoundContentLoc::SizeLoc, &SoundContentLoc::NumberText, &SoundContentLoc::LinkBar})
            QCOMPARE((here.*rect).toRectF().translated(0, -kSoundContentPagePitch), (next.*rect).toRectF());
        QCOMPARE(GetSoundContentLoc(n + kSoundContentPageSize, shown + 1), here);
    }

    void paging_data() {
        QTest::addColumn<qint32>("items");
        QTest::addColumn<qint32>("shown");
        QTest::addColumn<qint32>("request");
        QTest::addColumn<bool>("scrolls");
        QTest::addColumn<qint32>("pageMax");
        QTest::newRow("down to the last item's page") << 24 << 0 << 1 << true << 1;
        QTest::newRow("down past it") << 24 << 1 << 2 << false << 1;
        QTest::newRow("several pages at once") << 37 << 0 << 3 << true << 3;
        QTest::newRow("up") << 24 << 1 << 0 << true << 0;
        QTest::newRow("up from the first page") << 24 << 0 << -1 << false << 0;
        QTest::newRow("the page on view") << 24 << 1 << 1 << false << 0;
        QTest::newRow("down with no items") << 0 << 0 << 1 << false << 0;
    }
    void paging() {
        QFETCH(qint32, items);
        QFETCH(qint32, shown);
        QFETCH(qint32, request);
        QFETCH(bool, scrolls);
        QFETCH(qint32, pageMax);
        SoundTimeline t;
        Fill(t, items);
        t.iPageNumber = shown;
        t.SoundContentMoveToPage(request);
        QCOMPARE(t.Busy(), scrolls);
        QCOMPARE(t.iPageNumber, scrolls ? request : shown);
        QCOMPARE(t.iPageMax, pageMax);
        if (scrolls) QCOMPARE(t.iItemTargetNum, request * kSoundContentPageSize);
    }

    // The target item comes 20 points a tick from where it stood to the top row; the last tick
    // overshoots, and the arrival puts every item in place.
    void scroll_data() {
        QTest::addColumn<qint32>("items");
        QTest::addColumn<qint32>("from");
        QTest::addColumn<qint32>("to");
        QTest::addColumn<qint32>("ticks");
        QTest::newRow("one page on") << 24 << 0 << 1 << 12;
        QTest::newRow("one page back") << 24 << 1 << 0 << 11;
        QTest::newRow("three pages on") << 37 << 0 << 3 << 33;
        QTest::newRow("the whole timeline back") << 512 << 42 << 0 << 456;
    }
    void scroll() {
        QFETCH(qint32, items);
        QFETCH(qint32, from);
        QFETCH(qint32, to);
        QFETCH(qint32, ticks);
        SoundTimeline t;
        Fill(t, items);
        t.iPageNumber = from;
        QSignalSpy arrived(&t, &SoundTimeline::ScrollArrived);
        t.SoundContentMoveToPage(to);
        const QList<qint32> steps = RunScroll(t, to > from);
        QCOMPARE(steps, QList<qint32>(ticks, to > from ? -kSoundContentScrollStep : kSoundContentScrollStep));
        QCOMPARE(arrived.size(), 1);
        QVERIFY(!t.Busy());
    }

    // Views are moved by whole points: every value is cut toward zero.
    void scrolledFrame_data() {
        QTest::addColumn<NSRect>("frame");
        QTest::addColumn<qint32>("dy");
        QTest::addColumn<NSRect>("scrolled");
        QTest::newRow("down") << NSRect{12.7f, 9.5f, 117.2f, 46.9f} << 20 << NSRect{12, 29, 117, 46};
        QTest::newRow("up past the top") << NSRect{-1.5f, 2.5f, 3, 14} << -20 << NSRect{-1, -17, 3, 14};
    }
    void scrolledFrame() {
        QFETCH(NSRect, frame);
        QFETCH(qint32, dy);
        QFETCH(NSRect, scrolled);
        QCOMPARE(SoundContentScrolled(frame, dy), scrolled);
    }

    // While a scroll runs the timeline takes nothing new; the sound set pages still turn.
    void busy_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("taken");
        QTest::newRow("sound choice") << "sound" << false;
        QTest::newRow("page up") << "up" << false;
        QTest::newRow("page down") << "down" << false;
        QTest::newRow("sound set page") << "set page" << true;
    }
    void busy() {
        QFETCH(QString, action);
        QFETCH(bool, taken);
        SoundTimeline t;
        SoundSetBoard board(&t);
        Fill(t, 36);
        t.SoundContentMoveToPage(1);
        QVERIFY(t.Busy());
        if (action == "sound") QCOMPARE(board.SoundSet(11), false);
        if (action == "up") t.SoundContentUp();
        if (action == "down") t.SoundContentDown();
        if (action == "set page") QCOMPARE(board.PageNext(), true);
        QCOMPARE(t.iItemNum, 36);
        QCOMPARE(t.iPageNumber, 1);
        QCOMPARE(board.iCurSoundSet, kFirst);
        QCOMPARE(board.iCurSoundSetPage, taken ? 1 : 0);
    }

    // Pages run from 0 to 2; button b on page p stands for sound b - 10 + 12 p.
    void soundSetPages_data() {
        QTest::addColumn<QString>("presses");
        QTest::addColumn<qint32>("page");
        QTest::addColumn<qint32>("firstSound");
        QTest::newRow("forward to the last") << ">>" << 2 << 24;
        QTest::newRow("past the last") << ">>>" << 2 << 24;
        QTest::newRow("back before the first") << "<" << 0 << 0;
        QTest::newRow("there and back") << ">><" << 1 << 12;
    }
    void soundSetPages() {
        QFETCH(QString, presses);
        QFETCH(qint32, page);
        QFETCH(qint32, firstSound);
        SoundTimeline t;
        SoundSetBoard board(&t);
        for (QChar press : presses) press == '>' ? board.PageNext() : board.PagePre();
        QCOMPARE(board.iCurSoundSetPage, page);
        QCOMPARE(board.SoundOf(kFirst), firstSound);
        QCOMPARE(board.SoundOf(kLast), firstSound + 11);
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
        QTest::newRow("the marked button") << 0 << QList<qint32>{10} << false << 10 << 1 << 0;
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
        for (qint32 b = kFirst; b <= kLast; ++b) QCOMPARE(board.MarkOn(b), b == marked);
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
