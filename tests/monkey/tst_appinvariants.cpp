#include "AppHarness.h"
#include "AppInvariants.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "LayoutTable.h"
#include "NSColor.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace {

using Corruption = void (*)(Frame_Control* root);

struct Case {
    const char* name;
    Corruption corrupt;
    const char* reported;      // part of the line the checker must write
    bool afterArrival = false; // the main menu's robot must have arrived first
};

// One wrong state per row, each of a kind the monkey must catch.
const Case kCases[] = {
    {"two screens shown", [](Frame_Control* r) { r->frmScenario->setHidden(false); }, "2 screens shown"},
    {"no screen shown", [](Frame_Control* r) { r->frmMainMenu->setHidden(true); }, "0 screens shown"},
    {"face screen shown",
     [](Frame_Control* r) {
         r->frmMainMenu->setHidden(true);
         r->frmFace->setHidden(false);
     },
     "the face screen"},
    {"screen moved", [](Frame_Control* r) { r->frmLazer->setFrame(MakeNSRect(1, 0, 1024, 768)); },
     "moved or resized"},
    {"record changed", [](Frame_Control* r) { r->frmSound->frmFrameRec.frmLazer = nullptr; },
     "the sound screen's frmFrameRec changed"},
    {"record emptied", [](Frame_Control* r) { r->frmScenario->frmFrameRec.frmMainMenu = nullptr; },
     "the scenario screen's frmFrameRec changed"},
    {"robot timer after arrival", [](Frame_Control* r) { r->frmMainMenu->robotSlide.timer->start(); },
     "robot timer runs", true},
    {"path past its end", [](Frame_Control* r) { r->frmMovement->PathInfo.iItemCnt = 513; },
     "path holds 513"},
    {"path counter ahead", [](Frame_Control* r) { r->frmMovement->PathInfo.iItemCnt = 1; }, "out of step"},
    {"timeline past its end", [](Frame_Control* r) { r->frmSound->Timeline.iItemNum = 513; },
     "timeline holds 513"},
    {"timeline counter ahead", [](Frame_Control* r) { r->frmSound->Timeline.iItemNum = 2; }, "out of step"},
    {"item out of place",
     [](Frame_Control* r) {
         r->frmSound->SoundSet(Frame_Sound::kBtnSoundFirst);
         r->frmSound->SoundContent.Item.BtnButton[0]->setFrame(MakeNSRect(0, 5, 111, 46));
     },
     "item 0 at (0, 5, 111, 46)"},
    {"sound set page past the last", [](Frame_Control* r) { r->frmSound->Board.iCurSoundSetPage = 3; },
     "sound set page 3"},
    {"mark on a button not chosen",
     [](Frame_Control* r) {
         r->frmSound->BtnButton[12]->InitImage("but_disabled_Btn01_1", "", "", "png", r->frmSound);
     },
     "sound button 12 marked"},
    {"list too long", [](Frame_Control* r) { r->frmScenario->numOfList = 21; }, "list holds 21"},
    {"choice past the list", [](Frame_Control* r) { r->frmScenario->indexChoose = 20; }, "inconsistent"},
    {"row caption wrong", [](Frame_Control* r) { r->frmScenario->SetNameCaption(2, QStringLiteral("x")); },
     "row 2 shows \"x\""},
    {"highlight bar on another row", [](Frame_Control* r) { r->frmScenario->MarkRow(3); }, "highlight bar"},
    {"row hidden inside the list",
     [](Frame_Control* r) { r->frmScenario->BtnScenarioName[4]->setHidden(true); }, "row 4 hidden"},
    {"Create enabled with no name", [](Frame_Control* r) { r->frmScenario->BtnNewCreate->SetEnable(1); },
     "\"Create\" enabled with 0 characters"},
    {"laser configuration out of range", [](Frame_Control* r) { r->frmLazer->LazerType = 5; },
     "robot configuration 5"},
    {"confirmation without its timer", [](Frame_Control* r) { r->frmAlarm->frmDoneView->setHidden(false); },
     "confirmation page shown"},
    {"malformed date text", [](Frame_Control* r) { r->frmAlarm->flow.SetBirthDate(QDateTime()); },
     "malformed"},
    {"time button out of step",
     [](Frame_Control* r) {
         Layout::SetCaption(r->frmAlarm->BtnBirthTime,
                            {"99/99", NSColor::whiteColor(), MakeNSRect(8, 8, 180, 46), 16});
     },
     "alarm button shows \"99/99\""},
    {"two alarm pages", [](Frame_Control* r) { r->frmAlarm->frmWakeupControlView->setHidden(false); },
     "alarm pages shown"},
    {"two editors open",
     [](Frame_Control* r) {
         r->frmAlarm->frmBirthDateEditView->setHidden(false);
         r->frmAlarm->frmBirthTimeEditView->setHidden(false);
     },
     "2 alarm editors open"},
    {"Back to the choose page from the choose page",
     [](Frame_Control* r) {
         r->frmAlarm->BtnBack->InitButtonAction(Frame_Alarm_BackToChooseBtnAction, r->frmAlarm);
     },
     "Back leads to the wrong place"},
    {"focus on a field not on view",
     [](Frame_Control* r) {
         r->frmMainMenu->setHidden(true);
         r->frmScenario->setHidden(false);
         r->frmScenario->txtScenarioName->setFocus();
         r->frmScenario->QWidget::setVisible(false);
         r->frmMainMenu->setHidden(false);
         r->frmScenario->txtScenarioName->setFocus();
     },
     "the keyboard focus is on QLineEdit \"Scenario name\""},
};

} // namespace

// The checker the monkey relies on: quiet on a sound application, and each of its rules able
// to fail.
class TestAppInvariants : public QObject {
    Q_OBJECT
private slots:
    void freshApplicationKeepsEveryRule() {
        AppHarness app;
        const AppInvariants invariants(app.root());
        QCOMPARE(invariants.check(), QStringList());
        QVERIFY(app.waitForMainMenuReady());
        QCOMPARE(invariants.check(), QStringList());
    }

    void eachBrokenRuleIsReported_data() {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(kCases)); ++i) QTest::newRow(kCases[i].name) << i;
    }

    void eachBrokenRuleIsReported() {
        QFETCH(int, index);
        const Case& c = kCases[index];
        AppHarness app;
        if (c.afterArrival) QVERIFY(app.waitForMainMenuReady());
        const AppInvariants invariants(app.root());
        QCOMPARE(invariants.check(), QStringList());
        c.corrupt(app.root());
        const QStringList broken = invariants.check();
        QVERIFY2(broken.join(QLatin1Char('\n')).contains(QLatin1String(c.reported)),
                 qPrintable(QStringLiteral("expected \"%1\" in: %2")
                                .arg(QLatin1String(c.reported), broken.join(QStringLiteral(" | ")))));
    }
};

QTEST_MAIN(TestAppInvariants)
#include "tst_appinvariants.moc"
