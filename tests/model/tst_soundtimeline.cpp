#include "SoundSetBoard.h"
#include "SoundTimeline.h"

#include <QSignalSpy>
#include <QTest>

namespace {

void Fill(SoundTimeline& t, qint32 items) {
    for (qint32 i = 0; i < items; ++i) t.SetSoundContent(i % 36);
}

// One scroll to `page`, its ticks called here rather than by the timer.
void ScrollTo(SoundTimeline& t, qint32 page) {
    const bool later = page > t.iPageNumber();
    t.SoundContentMoveToPage(page);
    if (t.timer()) t.timer()->stop();
    for (int guard = 0; t.Busy() && guard < 1000; ++guard)
        later ? t.SoundContentItemDown() : t.SoundContentItemUP();
}

SoundContentLoc Scrolled(SoundContentLoc loc, qint32 dy) {
    for (auto rect : {&SoundContentLoc::SizeLoc, &SoundContentLoc::NumberText, &SoundContentLoc::LinkBar})
        loc.*rect = SoundContentScrolled(loc.*rect, dy);
    return loc;
}

bool OnView(const SoundContentLoc& loc) {
    bool on = false;
    for (const NSRect& r : {loc.SizeLoc, loc.NumberText, loc.LinkBar})
        on = on || (r.y < kSoundContentViewHeight && r.y + r.height > 0);
    return on;
}

} // namespace

// The timeline's numbers, and the twelve sound buttons that feed it.
class TestSoundTimeline : public QObject {
    Q_OBJECT
private slots:
    // Items run in a snake of rows of three, each row back the other way from the one above;
    // a bar joins each item to the one before it, the first to the left edge. A page further on
    // view moves every item one page pitch up, whatever its page.
    void snake() {
        for (qint32 n = 0; n <= 12; ++n) {
            const SoundContentLoc loc = GetSoundContentLoc(n, 0);
            for (auto rect :
                 {&SoundContentLoc::SizeLoc, &SoundContentLoc::NumberText, &SoundContentLoc::LinkBar})
                QCOMPARE((loc.*rect).toRectF().translated(0, -kSoundContentPagePitch),
                         (GetSoundContentLoc(n, 1).*rect).toRectF());
            const QRectF item = loc.SizeLoc.toRectF();
            // A bar may end where its item begins.
            const QRectF bar = loc.LinkBar.toRectF().adjusted(-0.5, -0.5, 0.5, 0.5);
            const bool down = n > 0 && n % 3 == 0;
            QCOMPARE(loc.LinkBarType, down ? kLinkBarVertical : kLinkBarHorizontal);
            QVERIFY(bar.intersects(item));
            if (n == 0) {
                QCOMPARE(loc.LinkBar.x, 0.0f);
                continue;
            }
            QCOMPARE(GetSoundContentLoc(n + 480, 40), loc);
            const QRectF before = GetSoundContentLoc(n - 1, 0).SizeLoc.toRectF();
            QVERIFY(bar.intersects(before));
            if (down)
                QVERIFY(before.left() == item.left() && before.bottom() < item.top());
            else
                QVERIFY(before.top() == item.top() &&
                        (n / 3 % 2 ? before.left() > item.right() : before.right() < item.left()));
        }
    }

    // A page request is refused before the first page or past the last item's; an accepted one
    // brings the target item 20 points a tick to the top row, the last tick overshooting. Each
    // tick moves every item, the arriving one puts every item in its place; the items said to be
    // on view are those with a view reaching into the timeline's 224 points, never more than two
    // pages and the next page's first link bar.
    void scroll_data() {
        QTest::addColumn<qint32>("items");
        QTest::addColumn<qint32>("from");
        QTest::addColumn<qint32>("to");
        QTest::addColumn<qint32>("ticks"); // 0: refused
        QTest::newRow("one page on") << 24 << 0 << 1 << 12;
        QTest::newRow("past the last item's page") << 24 << 1 << 2 << 0;
        QTest::newRow("several pages at once") << 37 << 0 << 3 << 33;
        QTest::newRow("one page back") << 24 << 1 << 0 << 11;
        QTest::newRow("before the first page") << 24 << 0 << -1 << 0;
        QTest::newRow("the page on view") << 24 << 1 << 1 << 0;
        QTest::newRow("on with no items") << 0 << 0 << 1 << 0;
        QTest::newRow("the whole timeline back") << 512 << 42 << 0 << 456;
    }
    void scroll() {
        QFETCH(qint32, items);
        QFETCH(qint32, from);
        QFETCH(qint32, to);
        QFETCH(qint32, ticks);
        SoundTimeline t;
        Fill(t, items);
        ScrollTo(t, from);
        QSignalSpy steps(&t, &SoundTimeline::ItemsScrolled);
        QSignalSpy arrived(&t, &SoundTimeline::ScrollArrived);
        QList<SoundContentLoc> was;
        for (qint32 n = 0; n < items; ++n) was << t.GetSoundContentLoc(n);
        t.SoundContentMoveToPage(to);
        QCOMPARE(t.iPageNumber(), ticks ? to : from);
        if (t.timer()) QCOMPARE(t.timer()->interval(), 10); // ticks of a hundredth of a second
        if (t.timer()) t.timer()->stop();
        const qint32 dy = to > from ? -kSoundContentScrollStep : kSoundContentScrollStep;
        for (int guard = 0; guard < 1000; ++guard) {
            const auto [first, end] = t.ItemsOnView();
            QVERIFY(end - first <= 2 * kSoundContentPageSize + 1);
            for (qint32 n = 0; n < items; ++n) {
                QCOMPARE(t.ItemLocNow(n), was[n]);
                QCOMPARE(n >= first && n < end, OnView(was[n]));
            }
            if (!t.Busy()) break;
            to > from ? t.SoundContentItemDown() : t.SoundContentItemUP();
            for (qint32 n = 0; n < items; ++n)
                was[n] = t.Busy() ? Scrolled(was[n], dy) : t.GetSoundContentLoc(n);
        }
        const QVariant step = dy;
        QCOMPARE(steps, QList<QList<QVariant>>(ticks, {step}));
        QCOMPARE(arrived.size(), ticks ? 1 : 0);
    }

    // Views are moved by whole points: every value is cut toward zero.
    void scrolledFrame() {
        QCOMPARE(SoundContentScrolled({12.7f, 9.5f, 117.2f, 46.9f}, 20), (NSRect{12, 29, 117, 46}));
        QCOMPARE(SoundContentScrolled({-1.5f, 2.5f, 3, 14}, -20), (NSRect{-1, -17, 3, 14}));
    }

    // A sound button appends its sound, the last button on sound set page p (0 to 2) standing
    // for 11 + 12 p, to a timeline not yet full; the mark goes to the button pressed last,
    // whatever it names; the timeline scrolls to the page of its last item. While a scroll runs the
    // timeline takes nothing new; the sound set pages still turn.
    void press_data() {
        QTest::addColumn<qint32>("items");
        QTest::addColumn<QString>(
            "presses");                  // buttons, > or < for the sound set pages, v or ^ the timeline's
        QTest::addColumn<bool>("moved"); // the last press changed the board
        QTest::addColumn<qint32>("marked");
        QTest::addColumn<QList<qint32>>("appended");
        QTest::addColumn<qint32>("pageAfter");
        using L = QList<qint32>;
        QTest::newRow("another button") << 0 << "10 11" << true << 11 << L{0, 1} << 0;
        QTest::newRow("the same button twice") << 0 << "11 11" << false << 11 << L{1, 1} << 0;
        QTest::newRow("not a sound button") << 0 << "22" << false << 10 << L{} << 0;
        QTest::newRow("the thirteenth item") << 12 << "21" << true << 21 << L{11} << 1;
        QTest::newRow("the 512th item") << 511 << "21" << true << 21 << L{11} << 42;
        QTest::newRow("a full timeline") << 512 << "12" << true << 12 << L{} << 42;
        QTest::newRow("past the last set page") << 0 << "> > > 21" << true << 21 << L{35} << 0;
        QTest::newRow("before the first set page") << 0 << "< 21" << true << 21 << L{11} << 0;
        QTest::newRow("set pages there and back") << 0 << "> > < 21" << true << 21 << L{23} << 0;
        QTest::newRow("while a scroll runs") << 36 << "v 11 v ^ >" << true << 10 << L{} << 1;
    }
    void press() {
        QFETCH(qint32, items);
        QFETCH(QString, presses);
        QFETCH(bool, moved);
        QFETCH(qint32, marked);
        QFETCH(QList<qint32>, appended);
        QFETCH(qint32, pageAfter);
        SoundTimeline t;
        SoundSetBoard board(&t);
        Fill(t, items);
        QSignalSpy made(&t, &SoundTimeline::ItemAppended);
        QSignalSpy boardChanged(&board, &SoundSetBoard::changed);
        for (const QString& p : presses.split(' ')) {
            boardChanged.clear();
            if (p == ">")
                board.PageNext();
            else if (p == "<")
                board.PagePre();
            else if (p == "v")
                t.SoundContentDown();
            else if (p == "^")
                t.SoundContentUp();
            else
                board.SoundSet(p.toInt());
        }
        QCOMPARE(!boardChanged.isEmpty(), moved);
        QCOMPARE(board.iCurSoundSet(), marked);
        QList<QList<QVariant>> told;
        for (qint32 sound : appended) told.append({items + qint32(told.size()), sound});
        QCOMPARE(made, told);
        QCOMPARE(t.iItemNum(), items + appended.size());
        QCOMPARE(t.iPageNumber(), pageAfter);
    }

    // Only the table's 36 sounds are taken.
    void unknownSound() {
        SoundTimeline t;
        for (const qint32 sound : {-1, 36, 35}) t.SetSoundContent(sound);
        QCOMPARE(t.iItemNum(), 1);
    }
};

QTEST_GUILESS_MAIN(TestSoundTimeline)
#include "tst_soundtimeline.moc"
