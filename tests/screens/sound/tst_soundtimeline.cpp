#include "Button.h"
#include "Frame_Sound.h"
#include "SoundContentLoc.h"

#include <QTest>
#include <QTimer>

#include <memory>

Q_DECLARE_METATYPE(ButtonCallback)

namespace {

// A sound screen of its own, outside any window: its scroll timer never fires unless a test
// runs the event loop, so the tests below step the scroll one tick at a time.
std::unique_ptr<Frame_Sound> MakeScreen() {
    return std::make_unique<Frame_Sound>(MakeNSRect(0, 0, 1024, 768));
}

float ItemY(const Frame_Sound& sound, int n) {
    return sound.SoundContent.Item.BtnButton[n]->frame().y;
}

void Fill(Frame_Sound& sound, int count) {
    for (int i = 0; i < count; ++i) {
        sound.SoundSet(10 + i % 12);
        while (sound.SoundContent.timer) sound.SoundContentItemDown();
    }
}

} // namespace

class TestSoundTimeline : public QObject {
    Q_OBJECT
private slots:
    void downScrollTickByTick() {
        auto sound = MakeScreen();
        Fill(*sound, 12);
        QCOMPARE(sound->scrollTickCount(), qint64(0));
        sound->SoundSet(12);
        QTimer* timer = sound->SoundContent.timer;
        QVERIFY(timer);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 10);
        QCOMPARE(timer->timerType(), Qt::PreciseTimer);
        QVERIFY(!timer->isSingleShot());
        QCOMPARE(ItemY(*sound, 12), 226.0f);

        for (int t = 1; t <= 11; ++t) {
            sound->SoundContentItemDown();
            QVERIFY2(sound->SoundContent.timer, qPrintable(QStringLiteral("ended at tick %1").arg(t)));
            QCOMPARE(ItemY(*sound, 12), 226.0f - 20.0f * t);
            QCOMPARE(ItemY(*sound, 0), 9.0f - 20.0f * t);
            QCOMPARE(sound->SoundContent.Item.strNumber[5]->frame().y, 58.0f - 20.0f * t);
            QCOMPARE(sound->SoundContent.Item.imgLinkBar[12]->frame().y, 212.0f - 20.0f * t);
        }
        // The twelfth tick overshoots to -14; the arrival puts every view where the rule says.
        sound->SoundContentItemDown();
        QCOMPARE(sound->SoundContent.timer, nullptr);
        QCOMPARE(sound->scrollTickCount(), qint64(12));
        for (int n = 0; n < 13; ++n) {
            const SoundContentLoc loc = GetSoundContentLoc(n, 1);
            QCOMPARE(sound->SoundContent.Item.BtnButton[n]->frame(), loc.SizeLoc);
            QCOMPARE(sound->SoundContent.Item.strNumber[n]->frame(), loc.NumberText);
            QCOMPARE(sound->SoundContent.Item.imgLinkBar[n]->frame(), loc.LinkBar);
        }
    }

    void upScrollTickByTick() {
        auto sound = MakeScreen();
        Fill(*sound, 13);
        QCOMPARE(sound->SoundContent.iPageNumber, 1);
        sound->SoundContentMoveToPage(0);
        QVERIFY(sound->SoundContent.timer);
        QCOMPARE(sound->SoundContent.iPageNumber, 0); // changes when the scroll starts
        QCOMPARE(sound->SoundContent.Item.iItemTargetNum, 0);
        for (int t = 1; t <= 10; ++t) {
            sound->SoundContentItemUP();
            QVERIFY(sound->SoundContent.timer);
            QCOMPARE(ItemY(*sound, 0), -208.0f + 20.0f * t);
        }
        sound->SoundContentItemUP();
        QCOMPARE(sound->SoundContent.timer, nullptr);
        QCOMPARE(ItemY(*sound, 0), 9.0f);
        QCOMPARE(ItemY(*sound, 12), 226.0f);
    }

    void scrollWithoutTargetEndsAtOnce() {
        auto sound = MakeScreen();
        sound->SoundContentTimerOn(Frame_Sound::kScrollToLater);
        QVERIFY(sound->SoundContent.timer);
        sound->SoundContentItemDown();
        QCOMPARE(sound->SoundContent.timer, nullptr);
        QCOMPARE(sound->scrollTickCount(), qint64(1));
    }

    void pageRequests_data() {
        QTest::addColumn<int>("items");
        QTest::addColumn<int>("request");
        QTest::addColumn<bool>("scrolls");
        QTest::addColumn<int>("pageMax");
        // With the last item's page shown.
        QTest::newRow("empty, page 1") << 0 << 1 << false << 0;
        QTest::newRow("empty, page -1") << 0 << -1 << false << 0;
        QTest::newRow("one page, page 1") << 12 << 1 << false << 0;
        QTest::newRow("two pages, next") << 24 << 2 << false << 1;
        QTest::newRow("two pages, back") << 24 << 0 << true << 0;
        QTest::newRow("two pages, page -1") << 24 << -1 << false << 0;
        QTest::newRow("two pages, same") << 24 << 1 << false << 0;
        QTest::newRow("three pages, two back") << 36 << 0 << true << 0;
    }

    void pageRequests() {
        QFETCH(int, items);
        QFETCH(int, request);
        QFETCH(bool, scrolls);
        QFETCH(int, pageMax);
        auto sound = MakeScreen();
        Fill(*sound, items);
        sound->SoundContent.iPageMax = 0;
        const int shown = sound->SoundContent.iPageNumber;
        sound->SoundContentMoveToPage(request);
        QCOMPARE(sound->SoundContent.timer != nullptr, scrolls);
        QCOMPARE(sound->SoundContent.iPageNumber, scrolls ? request : shown);
        QCOMPARE(sound->SoundContent.iPageMax, pageMax);
    }

    void soundCallbacksPassTheirButton_data() {
        QTest::addColumn<ButtonCallback>("callback");
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("name");
        QTest::newRow("1_1") << ButtonCallback(Frame_Sound_Sound1_1BtnAcion) << 10 << "gun";
        QTest::newRow("1_2") << ButtonCallback(Frame_Sound_Sound1_2BtnAcion) << 11 << "destroy";
        QTest::newRow("1_3") << ButtonCallback(Frame_Sound_Sound1_3BtnAcion) << 12 << "rock'n roll";
        QTest::newRow("2_1") << ButtonCallback(Frame_Sound_Sound2_1BtnAcion) << 13 << "hip pop";
        QTest::newRow("2_2") << ButtonCallback(Frame_Sound_Sound2_2BtnAcion) << 14 << "techno";
        QTest::newRow("2_3") << ButtonCallback(Frame_Sound_Sound2_3BtnAcion) << 15 << "angel";
        QTest::newRow("3_1") << ButtonCallback(Frame_Sound_Sound3_1BtnAcion) << 16 << "dark side";
        QTest::newRow("3_2") << ButtonCallback(Frame_Sound_Sound3_2BtnAcion) << 17 << "whistle";
        QTest::newRow("3_3") << ButtonCallback(Frame_Sound_Sound3_3BtnAcion) << 18 << "robot";
        QTest::newRow("4_1") << ButtonCallback(Frame_Sound_Sound4_1BtnAcion) << 19 << "vistory";
        QTest::newRow("4_2") << ButtonCallback(Frame_Sound_Sound4_2BtnAcion) << 20 << "yeeeha";
        QTest::newRow("4_3") << ButtonCallback(Frame_Sound_Sound4_3BtnAcion) << 21 << "old bot";
    }

    void soundCallbacksPassTheirButton() {
        QFETCH(ButtonCallback, callback);
        QFETCH(int, button);
        QFETCH(QString, name);
        auto sound = MakeScreen();
        QVERIFY(sound->BtnButton[button]->ButtonAction == callback);
        QCOMPARE(sound->BtnButton[button]->frmControl[0], static_cast<void*>(sound.get()));
        Frame_Sound_PageNextBtnAcion(sound.get(), nullptr);
        callback(sound.get(), sound->BtnButton[button]);
        QCOMPARE(sound->iCurSoundSet, button);
        QCOMPARE(sound->SoundContent.iItemNum, 1);
        QCOMPARE(sound->SoundContent.Item.BtnButton[0]->captionText(), name);
    }

    void badRequestsAreIgnored() {
        auto sound = MakeScreen();
        for (qint32 b : {-1, 0, 9, 22, 27, 1000}) sound->SoundSet(b);
        for (qint32 s : {-1, 36, 512}) sound->SetSoundContent(s);
        QCOMPARE(sound->SoundContent.iItemNum, 0);
        QCOMPARE(sound->iCurSoundSet, 10);
        sound->GetSoundContentLoc(0, nullptr, nullptr, nullptr, nullptr);
        for (ButtonCallback cb :
             {Frame_Sound_MoveMentBtnAcion, Frame_Sound_BackBtnAcion, Frame_Sound_LazerBtnAcion,
              Frame_Sound_Sound1_1BtnAcion, Frame_Sound_PagePreBtnAcion, Frame_Sound_PageNextBtnAcion,
              Frame_Sound_SoundContentUpBtnAction, Frame_Sound_SoundContentDownBtnAction,
              Frame_Sound_SoundContentBtnAction})
            cb(nullptr, nullptr);
        // A screen without the other screens in its record stays where it is.
        Frame_Sound_MoveMentBtnAcion(sound.get(), nullptr);
        Frame_Sound_LazerBtnAcion(sound.get(), nullptr);
        QCOMPARE(sound->SoundContent.iItemNum, 0);
    }

};

QTEST_MAIN(TestSoundTimeline)
#include "tst_soundtimeline.moc"
