#include "AppHarness.h"
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Sound.h"
#include "NSColor.h"
#include "SoundContentLoc.h"
#include "SoundSetText.h"
#include "TrackingRegistry.h"

#include <QTest>
#include <QTimer>

namespace {

constexpr int kScrollWaitMs = 20000;

// The real window with the sound screen shown, as the movement screen's sound tab leaves it.
struct SoundApp {
    AppHarness app;
    Frame_Sound* sound = nullptr;

    SoundApp() {
        Frame_Control* root = app.root();
        sound = root->frmSound;
        root->frmMainMenu->setHidden(true);
        sound->setHidden(false);
        sound->ButtonTrackingOn();
    }

    Button* button(int index) const { return sound->BtnButton[index]; }
    void click(int index) { app.click(button(index)); }
    bool scrolling() const { return sound->SoundContent.timer != nullptr; }
    bool waitIdle() const {
        return QTest::qWaitFor([this] { return !scrolling(); }, kScrollWaitMs);
    }
    // Clicks a sound button and lets the scroll it starts run out.
    bool choose(int index) {
        click(index);
        return waitIdle();
    }
    // Scroll ticks a click on a control takes, counted from the click to the end of its scroll.
    qint64 ticksOf(int index) {
        const qint64 before = sound->scrollTickCount();
        click(index);
        if (!waitIdle()) return -1;
        return sound->scrollTickCount() - before;
    }
    int items() const { return sound->SoundContent.iItemNum; }
    int page() const { return sound->SoundContent.iPageNumber; }
};

QString ItemName(const Frame_Sound* sound, int n) {
    return sound->SoundContent.Item.BtnButton[n]->captionText();
}

// Every item's three views where the layout rule puts them for the page shown.
bool ItemsInPlace(const Frame_Sound* sound, QString* failure) {
    const SOUNDSETCONTENTITEM& item = sound->SoundContent.Item;
    for (int n = 0; n < sound->SoundContent.iItemNum; ++n) {
        const SoundContentLoc loc = GetSoundContentLoc(n, sound->SoundContent.iPageNumber);
        const bool ok = item.BtnButton[n]->frame() == loc.SizeLoc &&
                        item.strNumber[n]->frame() == loc.NumberText &&
                        item.imgLinkBar[n]->frame() == loc.LinkBar &&
                        item.BtnButton[n]->geometry() == loc.SizeLoc.toRect();
        if (!ok) {
            *failure = QStringLiteral("item %1 out of place: y %2").arg(n).arg(item.BtnButton[n]->frame().y);
            return false;
        }
    }
    return true;
}

} // namespace

#define QVERIFY_ITEMS_IN_PLACE(sound)                                                                        \
    do {                                                                                                     \
        QString failure;                                                                                     \
        QVERIFY2(ItemsInPlace(sound, &failure), qPrintable(failure));                                        \
    } while (false)

// The sound screen in the real window: sound set pages, the selection mark, and the timeline
// that each sound choice extends and scrolls.
class TestSoundScreen : public QObject {
    Q_OBJECT
private slots:
    void firstShowing() {
        SoundApp s;
        QCOMPARE(s.app.shownScreen(), static_cast<QWidget*>(s.sound));
        for (int k = 0; k < 12; ++k)
            QCOMPARE(s.button(10 + k)->captionText(), QString::fromUtf8(SoundSetText[k]));
        QCOMPARE(s.button(10)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(s.button(10)->BtnImageMove.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(s.button(10)->BtnImageDown.name(), QStringLiteral("but_disabled_Btn01_1"));
        for (int b = 11; b <= 21; ++b)
            QCOMPARE(s.button(b)->BtnImageUp.name(), QStringLiteral("but_normal_Btn01"));
        QCOMPARE(s.items(), 0);
        QVERIFY(s.button(8)->isHidden());
        QVERIFY(s.button(9)->isHidden());
        QVERIFY(s.sound->SoundContent.frmSoundContent->children().isEmpty());
        QCOMPARE(s.sound->SoundContent.frmSoundContent->geometry(), QRect(552, 320, 371, 224));
        // Made last, so nothing of the screen lies over the timeline.
        QCOMPARE(s.sound->children().last(), static_cast<QObject*>(s.sound->SoundContent.frmSoundContent));
    }

    void firstChoiceLaysItemZero() {
        SoundApp s;
        QCOMPARE(TrackingRegistry::instance().registrationCount(s.button(8)), 0);
        const qint64 ticks = s.sound->scrollTickCount();
        s.click(10);
        QVERIFY(!s.scrolling()); // page 0 is already shown
        QCOMPARE(s.items(), 1);
        const SOUNDSETCONTENTITEM& item = s.sound->SoundContent.Item;
        QCOMPARE(item.BtnButton[0]->frame(), MakeNSRect(12, 9, 117, 46));
        QCOMPARE(item.BtnButton[0]->captionText(), QStringLiteral("buzz"));
        QCOMPARE(item.BtnButton[0]->captionColor(), NSColor::grayColor());
        QCOMPARE(item.BtnButton[0]->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(item.BtnButton[0]->BtnImageMove.name(), QStringLiteral("but_over_Btn01"));
        QCOMPARE(item.strNumber[0]->frame(), MakeNSRect(1, 4, 28, 14));
        QCOMPARE(item.strNumber[0]->captionText(), QStringLiteral("1"));
        QCOMPARE(item.strNumber[0]->captionColor(), NSColor::orangeColor());
        QCOMPARE(item.imgLinkBar[0]->frame(), MakeNSRect(0, 27, 14, 3));
        QCOMPARE(item.imgLinkBar[0]->imgDefault.name(), QStringLiteral("smallbarH"));
        QCOMPARE(item.BtnButton[1], nullptr);
        // The timeline arrows appear with their hover registrations, and the new item has its own.
        QVERIFY(!s.button(8)->isHidden());
        QVERIFY(!s.button(9)->isHidden());
        QCOMPARE(TrackingRegistry::instance().registrationCount(s.button(8)), 1);
        QCOMPARE(TrackingRegistry::instance().registrationCount(s.button(9)), 1);
        QCOMPARE(TrackingRegistry::instance().registrationCount(item.BtnButton[0]), 1);
        // The mark stays where it was.
        QCOMPARE(s.sound->iCurSoundSet, 10);
        QCOMPARE(s.button(10)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QTest::qWait(50);
        QCOMPARE(s.sound->scrollTickCount(), ticks);
    }

    void pressingAnItemOnlyChangesItsPicture() {
        SoundApp s;
        QVERIFY(s.choose(13));
        Button* item = s.sound->SoundContent.Item.BtnButton[0];
        QVERIFY(item->ButtonAction == &Frame_Sound_SoundContentBtnAction);
        QCOMPARE(item->frmControl[0], static_cast<void*>(s.sound));
        s.app.press(s.app.at(item));
        QCOMPARE(item->shownPictureName(), QStringLiteral("but_over_Btn01"));
        s.app.release(s.app.at(item));
        QCOMPARE(s.items(), 1);
        QCOMPARE(s.sound->iCurSoundSet, 13);
        QVERIFY(!s.scrolling());
        QCOMPARE(item->frame(), MakeNSRect(12, 9, 117, 46));
    }

    void markFollowsTheChoice() {
        SoundApp s;
        QVERIFY(s.choose(10));
        QVERIFY(s.choose(11));
        QCOMPARE(s.items(), 2);
        QCOMPARE(ItemName(s.sound, 1), QStringLiteral("baby"));
        QCOMPARE(s.sound->SoundContent.Item.strNumber[1]->captionText(), QStringLiteral("2"));
        QCOMPARE(s.sound->iCurSoundSet, 11);
        QCOMPARE(s.sound->iLastSoundSet, 10);
        QCOMPARE(s.button(11)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(s.button(11)->BtnImageDown.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(s.button(10)->BtnImageUp.name(), QStringLiteral("but_normal_Btn01"));
        QCOMPARE(s.button(10)->BtnImageMove.name(), QStringLiteral("but_over_Btn01"));
        QCOMPARE(s.button(10)->captionText(), QStringLiteral("buzz")); // pictures change, the name stays
        QVERIFY(s.choose(11));
        QCOMPARE(ItemName(s.sound, 2), QStringLiteral("baby"));
        QCOMPARE(s.button(10)->BtnImageUp.name(), QStringLiteral("but_normal_Btn01"));
        QVERIFY(s.choose(21));
        QCOMPARE(ItemName(s.sound, 3), QStringLiteral("fire"));
        QCOMPARE(s.button(21)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(s.button(11)->BtnImageUp.name(), QStringLiteral("but_normal_Btn01"));
        QCOMPARE(s.sound->SoundContent.Item.imgLinkBar[3]->imgDefault.name(), QStringLiteral("smallbarV"));
    }

    void soundSetPages() {
        SoundApp s;
        s.click(6); // back from page 0
        QCOMPARE(s.sound->iCurSoundSetPage, 0);
        QCOMPARE(s.button(10)->captionText(), QStringLiteral("buzz"));
        s.click(7);
        QCOMPARE(s.sound->iCurSoundSetPage, 1);
        QCOMPARE(s.button(10)->captionText(), QStringLiteral("gun"));
        QCOMPARE(s.button(19)->captionText(), QStringLiteral("vistory"));
        s.click(7);
        QCOMPARE(s.button(10)->captionText(), QStringLiteral("hero"));
        QCOMPARE(s.button(21)->captionText(), QStringLiteral("wow wow"));
        s.click(7); // no page after page 2
        QCOMPARE(s.sound->iCurSoundSetPage, 2);
        QCOMPARE(s.button(21)->captionText(), QStringLiteral("wow wow"));
        for (int k = 0; k < 12; ++k) {
            QCOMPARE(s.button(10 + k)->captionText(), QString::fromUtf8(SoundSetText[24 + k]));
            QCOMPARE(s.button(10 + k)->captionColor(), NSColor::whiteColor());
            QCOMPARE(s.button(10 + k)->Text.rectFrame, MakeNSRect(8, 13, 82, 16));
        }
        s.click(6);
        QCOMPARE(s.sound->iCurSoundSetPage, 1);
        QCOMPARE(s.button(12)->captionText(), QStringLiteral("rock'n roll"));
        // The mark belongs to the button, whatever page it shows; paging leaves it alone.
        QCOMPARE(s.button(10)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QVERIFY(s.choose(10));
        QCOMPARE(ItemName(s.sound, 0), QStringLiteral("gun"));
        QVERIFY(s.choose(14));
        QCOMPARE(ItemName(s.sound, 1), QStringLiteral("techno"));
        QCOMPARE(s.button(14)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        s.click(7);
        QCOMPARE(s.button(14)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));
        QCOMPARE(s.button(14)->captionText(), QStringLiteral("brup"));
        QCOMPARE(s.items(), 2);
    }

    void thirteenthChoiceScrollsOnePage() {
        SoundApp s;
        for (int i = 0; i < 12; ++i) QVERIFY(s.choose(10 + i));
        QCOMPARE(s.page(), 0);
        QVERIFY_ITEMS_IN_PLACE(s.sound);

        const qint64 before = s.sound->scrollTickCount();
        s.click(13);
        QVERIFY(s.scrolling());
        const SOUNDSETCONTENTITEM& item = s.sound->SoundContent.Item;
        QCOMPARE(s.items(), 13);
        QCOMPARE(s.page(), 1); // the page being scrolled to
        QCOMPARE(item.iItemTargetNum, 12);
        // Laid out of view below page 0, so its hover registration is empty.
        QCOMPARE(TrackingRegistry::instance().registrationCount(item.BtnButton[12]), 0);
        QCOMPARE(TrackingRegistry::instance().registrationCount(item.BtnButton[11]), 1);
        QVERIFY(s.waitIdle());
        QCOMPARE(s.sound->scrollTickCount() - before, qint64(12));
        QCOMPARE(item.BtnButton[12]->frame(), MakeNSRect(12, 9, 117, 46));
        QCOMPARE(item.imgLinkBar[12]->frame(), MakeNSRect(66, -5, 3, 14));
        QCOMPARE(item.BtnButton[0]->frame(), MakeNSRect(12, 9 - 217, 117, 46));
        QCOMPARE(item.strNumber[11]->frame(), MakeNSRect(1, 166 - 217, 28, 14));
        QVERIFY_ITEMS_IN_PLACE(s.sound);
        QCOMPARE(s.sound->SoundContent.iPageMax, 1);
    }

    void upAndDownStopAtTheEnds() {
        SoundApp s;
        for (int i = 0; i < 24; ++i) QVERIFY(s.choose(10 + i % 12));
        QCOMPARE(s.page(), 1);
        QCOMPARE(s.ticksOf(9), qint64(0)); // Down on the last item's page
        QCOMPARE(s.page(), 1);
        QCOMPARE(s.ticksOf(8), qint64(11)); // one page back
        QCOMPARE(s.page(), 0);
        QVERIFY_ITEMS_IN_PLACE(s.sound);
        QCOMPARE(s.ticksOf(8), qint64(0)); // Up on page 0
        QCOMPARE(s.page(), 0);
        QCOMPARE(s.ticksOf(9), qint64(12));
        QCOMPARE(s.page(), 1);
        QVERIFY_ITEMS_IN_PLACE(s.sound);
        QCOMPARE(s.ticksOf(9), qint64(0));
        QCOMPARE(s.page(), 1);
        QCOMPARE(s.sound->SoundContent.Item.BtnButton[23]->frame(), MakeNSRect(12, 171, 117, 46));
    }

    void choiceFromAnEarlierPageScrollsThreePages() {
        SoundApp s;
        for (int i = 0; i < 36; ++i) QVERIFY(s.choose(10 + i % 12));
        QCOMPARE(s.page(), 2);
        QCOMPARE(s.ticksOf(8), qint64(11));
        QCOMPARE(s.ticksOf(8), qint64(11));
        QCOMPARE(s.page(), 0);

        const qint64 before = s.sound->scrollTickCount();
        s.click(20);
        QCOMPARE(s.items(), 37);
        QVERIFY(s.scrolling());
        QVERIFY(s.waitIdle());
        QCOMPARE(s.sound->scrollTickCount() - before, qint64(33));
        QCOMPARE(s.page(), 3);
        QCOMPARE(s.sound->SoundContent.Item.BtnButton[36]->frame(), MakeNSRect(12, 9, 117, 46));
        QCOMPARE(ItemName(s.sound, 36), QStringLiteral("laser"));
        QVERIFY_ITEMS_IN_PLACE(s.sound);
    }

    void choicesAndPageRequestsWaitForTheScroll() {
        SoundApp s;
        for (int i = 0; i < 24; ++i) QVERIFY(s.choose(10 + i % 12));
        QCOMPARE(s.ticksOf(8), qint64(11));
        QCOMPARE(s.page(), 0);

        const qint64 before = s.sound->scrollTickCount();
        s.click(9); // Down to page 1
        QVERIFY(s.scrolling());
        s.click(15); // a sound choice: dropped, the mark stays
        QCOMPARE(s.items(), 24);
        QCOMPARE(s.sound->iCurSoundSet, 21);
        QCOMPARE(s.button(15)->BtnImageUp.name(), QStringLiteral("but_normal_Btn01"));
        s.click(8); // Up: dropped
        s.click(9); // a second Down: dropped
        QCOMPARE(s.page(), 1);
        // The sound set pages still turn.
        s.click(7);
        QCOMPARE(s.sound->iCurSoundSetPage, 1);
        QCOMPARE(s.button(10)->captionText(), QStringLiteral("gun"));
        QVERIFY(s.scrolling());
        QVERIFY(s.waitIdle());
        QCOMPARE(s.sound->scrollTickCount() - before, qint64(12));
        QCOMPARE(s.page(), 1);
        QCOMPARE(s.items(), 24);
        QVERIFY_ITEMS_IN_PLACE(s.sound);
        // Once idle the timeline answers again.
        QVERIFY(s.choose(10));
        QCOMPARE(ItemName(s.sound, 24), QStringLiteral("gun"));
        QCOMPARE(s.page(), 2);
    }

    void fullTimeline() {
        SoundApp s;
        s.click(7);
        s.click(7); // page 2: button 21 is "wow wow"
        for (int i = 0; i < 512; ++i) {
            s.click(10 + i % 12);
            QVERIFY(s.waitIdle());
        }
        QCOMPARE(s.items(), 512);
        QCOMPARE(s.page(), 42);
        const SOUNDSETCONTENTITEM& item = s.sound->SoundContent.Item;
        QCOMPARE(item.strNumber[511]->captionText(), QStringLiteral("512"));
        QCOMPARE(item.BtnButton[511]->frame(), GetSoundContentLoc(7, 0).SizeLoc);
        QCOMPARE(ItemName(s.sound, 511), QStringLiteral("grrr")); // button 17 on page 2
        QCOMPARE(s.sound->SoundContent.frmSoundContent->children().size(), 3 * 512);
        QVERIFY_ITEMS_IN_PLACE(s.sound);

        // A 513th choice on page 42: nothing added, but the mark moves.
        s.click(21);
        QVERIFY(!s.scrolling());
        QCOMPARE(s.items(), 512);
        QCOMPARE(s.sound->iCurSoundSet, 21);
        QCOMPARE(s.button(21)->BtnImageUp.name(), QStringLiteral("but_disabled_Btn01_1"));

        // From an earlier page it still scrolls back to page 42.
        QCOMPARE(s.ticksOf(8), qint64(11));
        QCOMPARE(s.page(), 41);
        QCOMPARE(s.ticksOf(10), qint64(12));
        QCOMPARE(s.page(), 42);
        QCOMPARE(s.items(), 512);
        QCOMPARE(s.sound->SoundContent.frmSoundContent->children().size(), 3 * 512);
        QVERIFY_ITEMS_IN_PLACE(s.sound);
    }

    void inertButtonsOnlyChangeTheirPictures_data() {
        QTest::addColumn<int>("index");
        for (int index : {0, 2, 4, 5, 22, 23, 24, 25, 26})
            QTest::newRow(qPrintable(QString::number(index))) << index;
    }

    void inertButtonsOnlyChangeTheirPictures() {
        QFETCH(int, index);
        SoundApp s;
        Button* b = s.button(index);
        s.app.moveTo(b);
        QCOMPARE(b->look(), Button::Look::Move);
        s.app.press(s.app.at(b));
        QCOMPARE(b->look(), Button::Look::Down);
        s.app.release(s.app.at(b));
        QCOMPARE(s.app.shownScreen(), static_cast<QWidget*>(s.sound));
        QCOMPARE(s.items(), 0);
        QCOMPARE(s.sound->iCurSoundSetPage, 0);
        QCOMPARE(s.sound->iCurSoundSet, 10);
    }

    void hoverNeedsTheRegistrationOfButtonTrackingOn() {
        AppHarness app;
        Frame_Sound* sound = app.root()->frmSound;
        app.root()->frmMainMenu->setHidden(true);
        sound->setHidden(false);
        Button* b = sound->BtnButton[12];
        app.moveTo(b);
        QCOMPARE(b->look(), Button::Look::Up);
        app.moveTo(QPoint(5, 760));
        sound->ButtonTrackingOn();
        app.moveTo(b);
        QCOMPARE(b->look(), Button::Look::Move);
        QCOMPARE(b->shownPictureName(), QStringLiteral("but_over_Btn01"));
        app.moveTo(QPoint(5, 760));
        QCOMPARE(b->look(), Button::Look::Up);
        // Hidden buttons get nothing that could fire.
        QCOMPARE(TrackingRegistry::instance().registrationCount(sound->BtnButton[9]), 0);
        QCOMPARE(TrackingRegistry::instance().registrationCount(sound->BtnButton[27]), 1);
    }

    // What the user sees: items drawn in the timeline. Set ROBOT_GRAB_DIR to keep the pictures.
    void timelineDrawsItsItems() {
        SoundApp s;
        const QRect timeline(552, 320, 371, 224);
        const QImage empty = s.app.window()->grab().toImage();
        QCOMPARE(empty.size(), QSize(1024, 768));
        for (int i = 0; i < 14; ++i) QVERIFY(s.choose(10 + i % 12));
        const QImage pageOne = s.app.window()->grab().toImage();
        QVERIFY(pageOne.copy(timeline) != empty.copy(timeline));
        // Above the arrows and sound buttons, nothing has changed.
        QCOMPARE(pageOne.copy(0, 0, 1024, 270), empty.copy(0, 0, 1024, 270));
        for (int i = 0; i < 10; ++i) QVERIFY(s.choose(10 + i % 12));
        QCOMPARE(s.ticksOf(8), qint64(11));
        const QImage pageZero = s.app.window()->grab().toImage();
        QVERIFY(pageZero.copy(timeline) != pageOne.copy(timeline));
        const QString dir = qEnvironmentVariable("ROBOT_GRAB_DIR");
        if (!dir.isEmpty()) {
            QVERIFY(pageOne.save(dir + QStringLiteral("/sound_page1.png")));
            QVERIFY(pageZero.save(dir + QStringLiteral("/sound_page0.png")));
        }
    }

    void timelineClipsItsItems() {
        SoundApp s;
        for (int i = 0; i < 12; ++i) QVERIFY(s.choose(10));
        QCOMPARE(s.ticksOf(10), qint64(12));
        QCOMPARE(s.ticksOf(8), qint64(11));
        // With page 0 shown, item 12 lies below the view and shows nothing.
        const QWidget* hidden = s.sound->SoundContent.Item.BtnButton[12];
        QVERIFY(hidden->isVisible());
        QVERIFY(NSViewS::VisibleRect(hidden).isEmpty());
        // Its link bar's top shows under the last item of page 0.
        const QRect barShown = NSViewS::VisibleRect(s.sound->SoundContent.Item.imgLinkBar[12]);
        QCOMPARE(barShown, QRect(0, 0, 3, 12));
    }
};

QTEST_MAIN(TestSoundScreen)
#include "tst_soundscreen.moc"
