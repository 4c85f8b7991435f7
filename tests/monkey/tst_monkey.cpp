#include "AppHarness.h"
#include "Frame_Alarm.h"
#include "Frame_Face.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "Monkey.h"
#include "SoundPictures.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>

// The checker is quiet on a sound application and each family of its rules can fail; the runs are
// bounded here, long enough to reach every screen, fill part of the timeline and pass through the
// confirmation page. scripts/monkey-long.sh runs the long one.
class TestMonkey : public QObject {
    Q_OBJECT
private slots:
    // Faults made one after another, each reported as soon as it is made.
    void eachBrokenRuleIsReported() {
        AppHarness app;
        Frame_Control* r = app.root();
        QCOMPARE(AppInvariants(r), QStringList());
        QVERIFY(app.waitForMainMenuReady());
        QCOMPARE(AppInvariants(r), QStringList());
        QLineEdit* name = r->frmScenario->txtScenarioName;
        const std::pair<std::function<void()>, const char*> faults[] = {
            {[&] { // the field focused while on view, then its screen hidden under it
                 r->frmMainMenu->setHidden(true);
                 r->frmScenario->setHidden(false);
                 name->setFocus();
                 r->frmScenario->QWidget::setVisible(false);
                 r->frmMainMenu->setHidden(false);
                 name->setFocus();
             },
             "the keyboard focus is on QLineEdit \"Scenario name\""},
            {[&] { r->frmScenario->setHidden(false); }, "2 screens shown"},
            {[&] { r->frmMovement->PathInfo.iItemCnt = 1; }, "path views out of step with 1 pieces"},
            {[&] { r->frmAlarm->frmWakeupControlView->setHidden(false); },
             "alarm views out of step with page 0"},
            {[&] { r->frmSound->BtnButton[12]->InitImage(SoundPictures::kMark, "", "", "png", r->frmSound); },
             "sound button 12 out of step"},
            {[&] {
                 r->frmSound->SoundSet(Frame_Sound::kBtnSoundFirst);
                 r->frmSound->SoundContent.Item.BtnButton[0]->setFrame(MakeNSRect(0, 5, 111, 46));
             },
             "timeline item 0 out of place"},
            {[&] { r->frmScenario->SetNameCaption(2, QStringLiteral("x")); }, "row 2 out of step"},
            {[&] { r->frmMainMenu->robotSlide.timer->start(); }, "the robot's timer"}};
        for (const auto& [fault, reported] : faults) {
            fault();
            const QString broken = AppInvariants(r).join('\n');
            QVERIFY2(broken.contains(QLatin1String(reported)), qPrintable(broken));
        }
    }

    void rulesHoldUnderRandomInput_data() {
        QTest::addColumn<quint64>("seed");
        QTest::addColumn<qint64>("inputs");
        QList<quint64> seeds = {1, 2, 3};
        qint64 inputs = 1500;
        Monkey::FromEnvironment(seeds, inputs);
        for (quint64 seed : seeds) QTest::addRow("seed %llu", seed) << seed << inputs;
    }

    void rulesHoldUnderRandomInput() {
        QFETCH(quint64, seed);
        QFETCH(qint64, inputs);
        const Monkey::Result result = Monkey::Run(seed, inputs);
        std::fprintf(stderr, "%s\n", qPrintable(result.summary()));
        QVERIFY2(result.ok(), qPrintable(result.summary()));
        QCOMPARE(result.done, inputs);
        // A run that never leaves the main menu proves nothing about the other screens.
        QVERIFY2(result.inputsOn.size() >= 2, "the monkey stayed on one screen");
    }

    // A rule broken in the middle of a run stops it at once and says how to replay it.
    void aBrokenRuleStopsTheRunAndNamesTheSeed() {
        QTimer::singleShot(500, [] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (Frame_Control* root = RootView(w)) root->frmFace->setHidden(false);
        });
        const Monkey::Result result = Monkey::Run(11, 100000);
        QVERIFY(result.failedAt >= 0 && result.broken.join(' ').contains(QLatin1String("2 screens shown")));
        QVERIFY(result.summary().contains(
            QStringLiteral("ROBOT_MONKEY_SEED=11 ROBOT_MONKEY_INPUTS=%1").arg(result.failedAt + 1)));
    }
};

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
