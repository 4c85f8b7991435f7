#include "AppHarness.h"
#include "AppInvariants.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "SoundPictures.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>

using Corruption = void (*)(Frame_Control* root);
Q_DECLARE_METATYPE(Corruption)

// The checker the monkey relies on: quiet on a sound application, and each family of its rules
// able to fail.
class TestAppInvariants : public QObject {
    Q_OBJECT
private slots:
    void eachBrokenRuleIsReported_data() {
        QTest::addColumn<Corruption>("corrupt");
        QTest::addColumn<QString>("reported"); // part of the line the checker must write
        QTest::newRow("screens") << Corruption([](Frame_Control* r) { r->frmScenario->setHidden(false); })
                                 << "2 screens shown";
        QTest::newRow("path") << Corruption([](Frame_Control* r) { r->frmMovement->PathInfo.iItemCnt = 1; })
                              << "path views out of step with 1 pieces";
        QTest::newRow("timeline") << Corruption([](Frame_Control* r) {
            r->frmSound->SoundSet(Frame_Sound::kBtnSoundFirst);
            r->frmSound->SoundContent.Item.BtnButton[0]->setFrame(MakeNSRect(0, 5, 111, 46));
        }) << "timeline item 0 out of place";
        QTest::newRow("alarm") << Corruption([](Frame_Control* r) {
            r->frmAlarm->frmWakeupControlView->setHidden(false);
        }) << "alarm views out of step with page 0";
        QTest::newRow("sound buttons") << Corruption([](Frame_Control* r) {
            r->frmSound->BtnButton[12]->InitImage(SoundPictures::kMark, "", "", "png", r->frmSound);
        }) << "sound button 12 out of step";
        QTest::newRow("list") << Corruption([](Frame_Control* r) {
            r->frmScenario->SetNameCaption(2, QStringLiteral("x"));
        }) << "row 2 out of step";
        QTest::newRow("timers") << Corruption([](Frame_Control* r) {
            r->frmMainMenu->robotSlide.timer->start();
        }) << "the robot's timer";
        QTest::newRow("focus") << Corruption([](Frame_Control* r) {
            r->frmMainMenu->setHidden(true);
            r->frmScenario->setHidden(false);
            r->frmScenario->txtScenarioName->setFocus();
            r->frmScenario->QWidget::setVisible(false);
            r->frmMainMenu->setHidden(false);
            r->frmScenario->txtScenarioName->setFocus();
        }) << "the keyboard focus is on QLineEdit \"Scenario name\"";
    }

    void eachBrokenRuleIsReported() {
        QFETCH(Corruption, corrupt);
        QFETCH(QString, reported);
        AppHarness app;
        const AppInvariants invariants(app.root());
        QCOMPARE(invariants.check(), QStringList());
        QVERIFY(app.waitForMainMenuReady());
        QCOMPARE(invariants.check(), QStringList());
        corrupt(app.root());
        const QStringList broken = invariants.check();
        QVERIFY2(broken.join('\n').contains(reported), qPrintable(broken.join('\n')));
    }
};

QTEST_MAIN(TestAppInvariants)
#include "tst_appinvariants.moc"
