#include "AppHarness.h"
#include "AppInvariants.h"
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "SoundContentLoc.h"

#include <QTest>
#include <QTimer>

#include <limits>

namespace {

constexpr int kScrollWaitMs = 60000;

// The movement screen, reached the way the user gets there: main menu, scenario, Create.
Frame_MoveMent* OpenMovement(AppHarness& app) {
    if (!app.waitForMainMenuReady()) return nullptr;
    app.click(app.root()->frmMainMenu->BtnProgram);
    Frame_Scenario* s = app.root()->frmScenario;
    app.click(s->BtnModify);
    app.click(s->BtnGo);
    return app.shownScreen() == app.root()->frmMovement ? app.root()->frmMovement : nullptr;
}

bool WaitIdle(const Frame_Sound* sound) {
    return QTest::qWaitFor([sound] { return sound->Timeline.timer == nullptr; }, kScrollWaitMs);
}

// What a full path looks like, so that any write past its end or into its start shows.
struct PathSnapshot {
    qint32 count = 0;
    qint32 direct = 0;
    NSImageViewS* first = nullptr;
    qint32 firstImage = 0;
    NSImageViewS* last = nullptr;
    qint32 lastImage = 0;
    NSRect lastFrame;
    qsizetype children = 0;

    static PathSnapshot Of(const Frame_MoveMent* m) {
        const PATHMAINSTRUCT& p = m->PathInfo;
        const int n = p.iItemCnt;
        return {n,
                p.iDirect,
                p.Item[0].PathImg,
                p.Item[0].iImgNO,
                n > 0 ? p.Item[n - 1].PathImg : nullptr,
                n > 0 ? p.Item[n - 1].iImgNO : 0,
                n > 0 && p.Item[n - 1].PathImg ? p.Item[n - 1].PathImg->frame() : NSRect{},
                p.frmPath->children().size()};
    }
    bool operator==(const PathSnapshot& o) const {
        return count == o.count && direct == o.direct && first == o.first && firstImage == o.firstImage &&
               last == o.last && lastImage == o.lastImage && lastFrame == o.lastFrame &&
               children == o.children;
    }
};

} // namespace

// The fixed arrays at their ends, in the running application: the 513th path piece and the
// 513th timeline item add nothing, touch nothing beside them, and the application goes on.
class TestLimits : public QObject {
    Q_OBJECT
private slots:
    void pieceAfterTheLastAddsNothing_data() {
        QTest::addColumn<qint32>("command");
        for (qint32 c = 0; c < 9; ++c) QTest::newRow(qPrintable(QStringLiteral("command %1").arg(c))) << c;
        QTest::newRow("command -1") << qint32(-1);
        QTest::newRow("command 9") << qint32(9);
        QTest::newRow("lowest integer") << std::numeric_limits<qint32>::min();
        QTest::newRow("highest integer") << std::numeric_limits<qint32>::max();
    }

    void pieceAfterTheLastAddsNothing() {
        QFETCH(qint32, command);
        AppHarness app;
        Frame_MoveMent* m = OpenMovement(app);
        QVERIFY(m);
        const AppInvariants invariants(app.root());
        // No control extends the path yet; the commands go in where a brick's would.
        for (int i = 0; i < PathPlacement::kMaxPieces; ++i) m->SetPath(i % 9);
        const PathSnapshot full = PathSnapshot::Of(m);
        QCOMPARE(full.count, PathPlacement::kMaxPieces);
        QCOMPARE(full.children, qsizetype(PathPlacement::kMaxPieces));

        m->SetPath(command); // the 513th
        m->SetPath(command);
        m->SetPathImageNormal(command);
        m->SetPathImageFirst();
        QVERIFY(PathSnapshot::Of(m) == full);
        QCOMPARE(invariants.check(), QStringList());

        // The screen goes on working: away to the sound screen and back, the path as it was.
        app.click(m->BtnSound);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmSound));
        app.click(app.root()->frmSound->BtnButton[Frame_Sound::kBtnMoveMent]);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(m));
        QVERIFY(PathSnapshot::Of(m) == full);
        QCOMPARE(invariants.check(), QStringList());
    }

    void itemAfterTheLastAddsNothing() {
        AppHarness app;
        Frame_MoveMent* m = OpenMovement(app);
        QVERIFY(m);
        app.click(m->BtnSound);
        Frame_Sound* sound = app.root()->frmSound;
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(sound));
        const AppInvariants invariants(app.root());
        const SOUNDSETCONTENT& c = sound->SoundContent;
        const SoundTimeline& t = sound->Timeline;

        for (int i = 0; i < kSoundContentItemMax; ++i) {
            app.click(sound->BtnButton[Frame_Sound::kBtnSoundFirst + i % 12]);
            QVERIFY(WaitIdle(sound));
        }
        QCOMPARE(t.iItemNum, kSoundContentItemMax);
        QCOMPARE(t.iPageNumber, 42);
        QCOMPARE(invariants.check(), QStringList());
        Button* const firstItem = c.Item.BtnButton[0];
        Button* const lastItem = c.Item.BtnButton[kSoundContentItemMax - 1];
        NSImageViewS* const firstNumber = c.Item.strNumber[0];
        NSImageViewS* const lastBar = c.Item.imgLinkBar[kSoundContentItemMax - 1];
        const qsizetype children = c.frmSoundContent->children().size();
        QCOMPARE(children, qsizetype(3 * kSoundContentItemMax));

        // The 513th choice, from every sound set page, and requests for sounds that do not exist.
        for (int page = 0; page < 3; ++page) {
            app.click(sound->BtnButton[Frame_Sound::kBtnSoundFirst + 4]);
            QVERIFY(WaitIdle(sound));
            app.click(sound->BtnButton[Frame_Sound::kBtnPageNext]);
        }
        for (qint32 bad : {-1, 36, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()})
            sound->Timeline.SetSoundContent(bad);
        sound->Timeline.SetSoundContent(0);
        QCOMPARE(t.iItemNum, kSoundContentItemMax);
        QCOMPARE(c.frmSoundContent->children().size(), children);
        QCOMPARE(c.Item.BtnButton[0], firstItem);
        QCOMPARE(c.Item.BtnButton[kSoundContentItemMax - 1], lastItem);
        QCOMPARE(c.Item.strNumber[0], firstNumber);
        QCOMPARE(c.Item.strNumber[0]->captionText(), QStringLiteral("1"));
        QCOMPARE(c.Item.imgLinkBar[kSoundContentItemMax - 1], lastBar);
        QCOMPARE(c.Item.strNumber[kSoundContentItemMax - 1]->captionText(), QStringLiteral("512"));
        QCOMPARE(invariants.check(), QStringList());

        // A page back, then one more choice: still 512, and the timeline returns to the last page.
        app.click(sound->BtnButton[Frame_Sound::kBtnContentUp]);
        QVERIFY(WaitIdle(sound));
        QCOMPARE(t.iPageNumber, 41);
        app.click(sound->BtnButton[Frame_Sound::kBtnSoundFirst]);
        QVERIFY(WaitIdle(sound));
        QCOMPARE(t.iPageNumber, 42);
        QCOMPARE(t.iItemNum, kSoundContentItemMax);
        QCOMPARE(invariants.check(), QStringList());
        QVERIFY(app.grab(QStringLiteral("/tmp/reliability-full-timeline.png")));

        // And the application goes on: to the laser screen and back through Back.
        app.click(sound->BtnButton[Frame_Sound::kBtnLazer]);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmLazer));
        app.click(app.root()->frmLazer->BtnBack);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(sound));
        QCOMPARE(invariants.check(), QStringList());
    }
};

QTEST_MAIN(TestLimits)
#include "tst_limits.moc"
