#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"

#include <QTest>

// Start-up of the real window: seven screens, stacked, one shown, every record the same.
class TestStartup : public QObject {
    Q_OBJECT
private slots:
    void sevenScreensStackedInCreationOrder() {
        AppHarness app;
        Frame_Control* root = app.root();
        QVERIFY(root);
        QCOMPARE(root->geometry(), QRect(0, 0, 1024, 768));
        QCOMPARE(app.window()->size(), QSize(1024, 768));

        const QList<QWidget*> expected{root->frmMainMenu, root->frmScenario, root->frmAlarm,
                                       root->frmMovement, root->frmSound,    root->frmFace,
                                       root->frmLazer};
        QList<QWidget*> children;
        for (QObject* c : root->children())
            if (auto* w = qobject_cast<QWidget*>(c)) children << w;
        // children() is in stacking order: the main menu lowest, the laser screen topmost.
        QCOMPARE(children, expected);
        for (QWidget* screen : expected) QCOMPARE(screen->geometry(), QRect(0, 0, 1024, 768));
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmMainMenu));
        QVERIFY(root->frmMainMenu->isVisible());
    }

    void everyRecordNamesTheSameScreens() {
        AppHarness app;
        Frame_Control* root = app.root();
        const FRAMESRECORD* records[] = {&root->frmLazer->frmFrameRec, &root->frmFace->frmFrameRec,
                                         &root->frmMovement->frmFrameRec, &root->frmSound->frmFrameRec,
                                         &root->frmScenario->frmFrameRec};
        for (const FRAMESRECORD* rec : records) {
            QCOMPARE(rec->frmMainMenu, root->frmMainMenu);
            QCOMPARE(rec->frmMovement, root->frmMovement);
            QCOMPARE(rec->frmFace, root->frmFace);
            QCOMPARE(rec->frmLazer, root->frmLazer);
            QCOMPARE(rec->frmSound, root->frmSound);
            QCOMPARE(rec->frmAlarm, root->frmAlarm);
            QCOMPARE(rec->frmScenario, root->frmScenario);
        }
    }

    void nothingBehindTheMainMenuReactsAtStart() {
        AppHarness app;
        // A click anywhere on the fresh window leaves the main menu the one screen shown.
        for (QPoint p : {QPoint(5, 5), QPoint(512, 384), QPoint(750, 730), QPoint(1000, 700)}) {
            app.click(p);
            QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmMainMenu));
        }
    }
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
