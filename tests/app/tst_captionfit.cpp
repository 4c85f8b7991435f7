#include "AppHarness.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Sound.h"
#include "SoundSetText.h"

#include <QDebug>
#include <QFontInfo>
#include <QTest>

namespace {

// Every caption the app can show comes from one of these states: the screens as made, every
// alarm page and both confirmations, every sound set page, and a timeline of the most items it
// holds, so every sound name and every item number up to the last has been laid out.
const struct {
    const char* name;
    std::vector<ButtonCallback> alarm;
    int soundPagesOn = 0;
    bool fullTimeline = false;
} kStates[] = {
    {"as made", {}},
    {"birthday page, on", {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_BirthOnBtnAction}},
    {"birthday confirmation",
     {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_BirthOnBtnAction, Frame_Alarm_DoneBtnAction}},
    {"wake-up page, on then off",
     {Frame_Alarm_WakeupBtnAction, Frame_Alarm_WakeupOnBtnAction, Frame_Alarm_WakeupOffBtnAction}},
    {"wake-up confirmation",
     {Frame_Alarm_WakeupBtnAction, Frame_Alarm_WakeupOnBtnAction, Frame_Alarm_DoneBtnAction}},
    {"choose page after both",
     {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_BirthOnBtnAction, Frame_Alarm_BackToChooseBtnAction,
      Frame_Alarm_WakeupBtnAction, Frame_Alarm_WakeupOnBtnAction, Frame_Alarm_BackToChooseBtnAction}},
    {"second sound set page", {}, 1},
    {"last sound set page and a full timeline", {}, kSoundSetPageCount - 1, true},
};

// The caption's ink in its view: each line from the caption origin past the text system's
// padding, its baseline one ascent below the line's top, the lines a line spacing apart.
QRectF CaptionInk(const NSImageViewS* view) {
    const QFontMetricsF metrics(view->Text.font);
    QPointF baseline(view->Text.rectFrame.x + NSImageViewS::kLinePadding,
                     view->Text.rectFrame.y + metrics.ascent());
    QRectF ink;
    for (const QString& line : view->captionText().split(u'\n')) {
        if (!line.trimmed().isEmpty()) ink |= metrics.tightBoundingRect(line).translated(baseline);
        baseline.ry() += metrics.lineSpacing();
    }
    return ink;
}

} // namespace

// A caption is drawn inside its view and cut by its edges: one that is wider or taller than its
// view loses letters on screen ("I'l" for "I'll").
class TestCaptionFit : public QObject {
    Q_OBJECT
private slots:
    void everyCaptionFitsItsView_data() {
        QTest::addColumn<int>("state");
        for (int i = 0; i < int(std::size(kStates)); ++i) QTest::newRow(kStates[i].name) << i;
    }
    void everyCaptionFitsItsView() {
        QFETCH(int, state);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_Control* r = app.root();
        for (const ButtonCallback action : kStates[state].alarm) action(r->frmAlarm(), nullptr);
        for (int page = 0; page < kStates[state].soundPagesOn; ++page)
            Frame_Sound_PageNextBtnAcion(r->frmSound(), nullptr);
        if (kStates[state].fullTimeline)
            for (int i = 0; i < kSoundContentItemMax; ++i)
                r->frmSound()->Timeline.SetSoundContent(i % kSoundSetCount);
        QString cut;
        int captions = 0;
        for (const NSImageViewS* view : r->findChildren<NSImageViewS*>()) {
            if (!view->hasCaption() || view->captionText().isEmpty()) continue;
            ++captions;
            // Measuring in a stand-in face would prove nothing about what the user sees.
            const QString family = QFontInfo(view->Text.font).family();
            QVERIFY2(family.startsWith(QLatin1String("Nimbus Mono PS")), qPrintable(family));
            if (const QRectF ink = CaptionInk(view); !QRectF(QPointF(0, 0), view->size()).contains(ink))
                QDebug(&cut) << view->captionText() << "inks" << ink << "in" << view->size() << "\n";
        }
        QVERIFY(captions > 20);
        QVERIFY2(cut.isEmpty(), qPrintable(cut));
    }
};

QTEST_MAIN(TestCaptionFit)
#include "tst_captionfit.moc"
