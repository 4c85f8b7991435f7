#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Sound.h"
#include "SoundSetText.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QTest>

#include <functional>

namespace {

using Step = std::function<void(Frame_Control*)>;

void Alarm(Frame_Control* r, ButtonCallback action) {
    action(r->frmAlarm, nullptr);
}

// Every caption the app can show comes from one of these states: the screens as made, every
// alarm page and both confirmations, every sound set page, and a timeline of the most items it
// holds, so every sound name and every item number up to the last has been laid out.
const struct {
    const char* name;
    Step step;
} kStates[] = {
    {"as made", [](Frame_Control*) {}},
    {"birthday page, on",
     [](Frame_Control* r) {
         Alarm(r, Frame_Alarm_BirthdayBtnAction);
         Alarm(r, Frame_Alarm_BirthOnBtnAction);
     }},
    {"birthday confirmation",
     [](Frame_Control* r) {
         Alarm(r, Frame_Alarm_BirthdayBtnAction);
         Alarm(r, Frame_Alarm_BirthOnBtnAction);
         Alarm(r, Frame_Alarm_DoneBtnAction);
     }},
    {"wake-up page, on then off",
     [](Frame_Control* r) {
         Alarm(r, Frame_Alarm_WakeupBtnAction);
         Alarm(r, Frame_Alarm_WakeupOnBtnAction);
         Alarm(r, Frame_Alarm_WakeupOffBtnAction);
     }},
    {"wake-up confirmation",
     [](Frame_Control* r) {
         Alarm(r, Frame_Alarm_WakeupBtnAction);
         Alarm(r, Frame_Alarm_WakeupOnBtnAction);
         Alarm(r, Frame_Alarm_DoneBtnAction);
     }},
    {"choose page after both",
     [](Frame_Control* r) {
         Alarm(r, Frame_Alarm_BirthdayBtnAction);
         Alarm(r, Frame_Alarm_BirthOnBtnAction);
         Alarm(r, Frame_Alarm_BackToChooseBtnAction);
         Alarm(r, Frame_Alarm_WakeupBtnAction);
         Alarm(r, Frame_Alarm_WakeupOnBtnAction);
         Alarm(r, Frame_Alarm_BackToChooseBtnAction);
     }},
    {"second sound set page", [](Frame_Control* r) { Frame_Sound_PageNextBtnAcion(r->frmSound, nullptr); }},
    {"last sound set page and a full timeline",
     [](Frame_Control* r) {
         for (int page = 1; page < kSoundSetPageCount; ++page)
             Frame_Sound_PageNextBtnAcion(r->frmSound, nullptr);
         for (int i = 0; i < kSoundContentItemMax; ++i)
             r->frmSound->Timeline.SetSoundContent(i % kSoundSetCount);
     }},
};

// The caption's ink in its view: each line from the caption origin past the text system's
// padding, its baseline one ascent below the line's top, the lines a line spacing apart.
QRectF CaptionInk(const NSImageViewS* view) {
    const QFontMetricsF metrics(view->Text.font);
    QPointF baseline(view->Text.rectFrame.x + NSImageViewS::kLinePadding,
                     view->Text.rectFrame.y + metrics.ascent());
    QRectF ink;
    for (const QString& line : view->captionText().split(QLatin1Char('\n'))) {
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
    void captionsAreDrawnInTheCourierFaceTheAppDependsOn() {
        AppHarness app;
        const auto* caption = app.root()->frmAlarm->txtDoneMessage;
        // Measuring in a stand-in face would prove nothing about what the user sees.
        const QString family = QFontInfo(caption->Text.font).family();
        QVERIFY2(family.startsWith(QLatin1String("Nimbus Mono PS")), qPrintable(family));
    }

    void everyCaptionFitsItsView_data() {
        QTest::addColumn<int>("state");
        for (int i = 0; i < int(std::size(kStates)); ++i) QTest::newRow(kStates[i].name) << i;
    }

    void everyCaptionFitsItsView() {
        QFETCH(int, state);
        AppHarness app;
        kStates[state].step(app.root());
        QStringList cut;
        int captions = 0;
        for (const NSImageViewS* view : app.root()->findChildren<NSImageViewS*>()) {
            if (!view->hasCaption() || view->captionText().isEmpty()) continue;
            ++captions;
            const QRectF box = CaptionInk(view);
            if (!QRectF(QPointF(0, 0), view->size()).contains(box))
                cut << QStringLiteral("\"%1\" inks %2 x %3 from (%4, %5) in %6 x %7")
                           .arg(QString(view->captionText()).replace(QLatin1Char('\n'), QLatin1String("\\n")))
                           .arg(box.width(), 0, 'f', 1)
                           .arg(box.height(), 0, 'f', 1)
                           .arg(box.x())
                           .arg(box.y())
                           .arg(view->width())
                           .arg(view->height());
        }
        QVERIFY(captions > 20);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestCaptionFit)
#include "tst_captionfit.moc"
