#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_Scenario.h"
#include "NSColor.h"
#include "TrackingRegistry.h"

#include <QTest>
#include <QTimer>

namespace {

struct Tick {
    float y;
    bool buttonsHidden;
};

Button* MenuButton(Frame_MainMenu* menu, const QString& name) {
    if (name == "Program") return menu->BtnProgram;
    if (name == "Alarm") return menu->BtnAlarm;
    if (name == "Sync") return menu->BtnSync;
    if (name == "Setting") return menu->BtnSetting;
    if (name == "Question") return menu->BtnQuestion;
    return nullptr;
}

const QPoint kEmptySpot(950, 60); // on the background, away from every button

} // namespace

class TestMainMenu : public QObject {
    Q_OBJECT
private slots:
    void robotStopsAtRestOnTheHundredAndFirstTick() {
        AppHarness app;
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        // Ticks may have run while the window came up; they are read off the robot's place.
        const float startY = menu->imgRobot->frame().y;
        const int earlier = qRound((768.0f - startY) / 5.0f);
        QCOMPARE(startY, 768.0f - 5.0f * earlier);

        QList<Tick> ticks;
        // Connected after the screen's own slot, so each entry is the state the tick left.
        connect(menu->timer, &QTimer::timeout, menu, [&] {
            ticks.append({menu->imgRobot->frame().y, menu->BtnProgram->isHidden()});
        });
        QVERIFY(QTest::qWaitFor([&] { return !menu->timer->isActive(); }, 5000));
        QTest::qWait(60);

        QCOMPARE(earlier + ticks.size(), 101);
        for (int i = 0; i < ticks.size(); ++i) {
            const int tick = earlier + i + 1;
            QCOMPARE(ticks[i].y, tick == 101 ? 263.0f : 768.0f - 5.0f * tick);
            // The menu comes alive during the last tick, not before.
            QCOMPARE(ticks[i].buttonsHidden, tick < 101);
        }
        QCOMPARE(menu->imgRobot->frame(), MakeNSRect(0, 263, 596, 584));
        QCOMPARE(menu->imgRobot->geometry(), QRect(0, 263, 596, 584));
    }

    void menuButtonsHiddenUntilArrival() {
        AppHarness app;
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        QVERIFY(menu->imgRobot->frame().y > 263.0f);
        for (Button* b : {menu->BtnProgram, menu->BtnAlarm, menu->BtnSync, menu->BtnSetting}) {
            QVERIFY(b->isHidden());
            QVERIFY(!b->hasCaption());
        }
        QVERIFY(menu->BtnQuestion->isVisible());
        QVERIFY(menu->imgBackGround->isVisible());

        // Where "Program scenario" will be, a click during the slide reaches nothing.
        app.click(QPoint(700, 210));
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(menu));

        QVERIFY(app.waitForMainMenuReady());
        for (Button* b : {menu->BtnProgram, menu->BtnAlarm, menu->BtnSync, menu->BtnSetting})
            QVERIFY(b->isVisible());
        QCOMPARE(menu->BtnProgram->captionText(), QStringLiteral("Program scenario"));
        QCOMPARE(menu->BtnAlarm->captionText(), QStringLiteral("Alarm/Clock"));
        QCOMPARE(menu->BtnSync->captionText(), QStringLiteral("Synchronization"));
        QCOMPARE(menu->BtnSetting->captionText(), QStringLiteral("Settings"));
        QCOMPARE(menu->BtnProgram->captionColor(), NSColor::orangeColor());
        QCOMPARE(menu->BtnSetting->captionColor(), NSColor::blackColor());
        QCOMPARE(menu->BtnProgram->Text.rectFrame, MakeNSRect(90, 53, 144, 93));
        QCOMPARE(menu->BtnSetting->Text.rectFrame, MakeNSRect(6, 10, 85, 40));
        QCOMPARE(menu->BtnProgram->Text.font.pixelSize(), 15);
        QCOMPARE(menu->BtnSetting->Text.font.pixelSize(), 14);
    }

    void slideGoesOnWhileTheMouseIsHeld() {
        AppHarness app;
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        const QPoint question = app.at(menu->BtnQuestion);
        app.moveTo(question);
        // No hover registration yet: pointing changes nothing.
        QCOMPARE(menu->BtnQuestion->look(), Button::Look::Up);
        app.press(question);
        QCOMPARE(menu->BtnQuestion->shownPictureName(), QStringLiteral("but_question_over"));

        QVERIFY(app.waitForMainMenuReady());
        QCOMPARE(menu->imgRobot->frame().y, 263.0f);
        QCOMPARE(menu->BtnQuestion->look(), Button::Look::Down);

        app.release(question);
        QCOMPARE(menu->BtnQuestion->shownPictureName(), QStringLiteral("but_question"));
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(menu));
    }

    void hoverRecolours_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("up");
        QTest::addColumn<QString>("move");
        QTest::addColumn<QColor>("normal");
        QTest::addColumn<QColor>("hover");
        QTest::newRow("Program") << "Program"
                                 << "Program scenario"
                                 << "command_normal_menus"
                                 << "command_focused_menus" << NSColor::orangeColor()
                                 << NSColor::whiteColor();
        QTest::newRow("Alarm") << "Alarm"
                               << "Alarm/Clock"
                               << "clock_normal_menus"
                               << "clock_focused_menus" << NSColor::orangeColor() << NSColor::whiteColor();
        QTest::newRow("Sync") << "Sync"
                              << "Synchronization"
                              << "usb_normal_menus"
                              << "usb_focused_menus" << NSColor::orangeColor() << NSColor::whiteColor();
        QTest::newRow("Settings stays black")
            << "Setting"
            << "Settings"
            << "but_common_BtnSilver"
            << "but_common_over_BtnSilver" << NSColor::blackColor() << NSColor::blackColor();
    }

    void hoverRecolours() {
        QFETCH(QString, button);
        QFETCH(QString, text);
        QFETCH(QString, up);
        QFETCH(QString, move);
        QFETCH(QColor, normal);
        QFETCH(QColor, hover);

        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        Button* b = MenuButton(menu, button);
        app.moveTo(kEmptySpot);

        app.moveTo(b);
        QCOMPARE(b->shownPictureName(), move);
        QCOMPARE(b->captionText(), text);
        QCOMPARE(b->captionColor(), hover);
        // Only the hovered button changes.
        for (Button* other : {menu->BtnProgram, menu->BtnAlarm, menu->BtnSync})
            if (other != b) QCOMPARE(other->captionColor(), NSColor::orangeColor());

        app.moveTo(kEmptySpot);
        QCOMPARE(b->shownPictureName(), up);
        QCOMPARE(b->captionText(), text);
        QCOMPARE(b->captionColor(), normal);
    }

    void questionMarkHoversOnlyAfterArrival() {
        AppHarness app;
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        QCOMPARE(TrackingRegistry::instance().registrationCount(menu->BtnQuestion), 0);
        QVERIFY(app.waitForMainMenuReady());
        app.moveTo(kEmptySpot);
        app.moveTo(menu->BtnQuestion);
        QCOMPARE(menu->BtnQuestion->shownPictureName(), QStringLiteral("but_question_over"));
        app.moveTo(kEmptySpot);
        QCOMPARE(menu->BtnQuestion->shownPictureName(), QStringLiteral("but_question"));
    }

    void buttonsWithoutActionLeaveTheMenu_data() {
        QTest::addColumn<QString>("button");
        QTest::newRow("Synchronization") << "Sync";
        QTest::newRow("Settings") << "Setting";
        QTest::newRow("question mark") << "Question";
    }

    void buttonsWithoutActionLeaveTheMenu() {
        QFETCH(QString, button);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        Button* b = MenuButton(menu, button);
        app.click(b);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(menu));
        QCOMPARE(b->look(), Button::Look::Up);
        QCOMPARE(menu->BtnProgram->captionColor(), NSColor::orangeColor());
        QCOMPARE(menu->BtnAlarm->captionColor(), NSColor::orangeColor());
    }

    void everyTrackingOnRegistersAgainAndResetsCaptions() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_MainMenu* menu = app.root()->frmMainMenu;
        const TrackingRegistry& registry = TrackingRegistry::instance();
        for (Button* b :
             {menu->BtnProgram, menu->BtnAlarm, menu->BtnSync, menu->BtnSetting, menu->BtnQuestion})
            QCOMPARE(registry.registrationCount(b), 1);

        app.moveTo(kEmptySpot);
        app.moveTo(menu->BtnSync);
        QCOMPARE(menu->BtnSync->captionColor(), NSColor::whiteColor());
        menu->ButtonTrackingOn();
        QCOMPARE(menu->BtnSync->captionColor(), NSColor::orangeColor());
        for (Button* b :
             {menu->BtnProgram, menu->BtnAlarm, menu->BtnSync, menu->BtnSetting, menu->BtnQuestion})
            QCOMPARE(registry.registrationCount(b), 2);

        // Registered twice, the button still ends up in the state of the pointer.
        app.moveTo(kEmptySpot);
        QCOMPARE(menu->BtnSync->captionColor(), NSColor::orangeColor());
        app.moveTo(menu->BtnAlarm);
        QCOMPARE(menu->BtnAlarm->captionColor(), NSColor::whiteColor());
        QCOMPARE(menu->BtnAlarm->shownPictureName(), QStringLiteral("clock_focused_menus"));
    }

    void programLeadsToScenarioAndBack() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_Control* root = app.root();
        Frame_MainMenu* menu = root->frmMainMenu;
        app.moveTo(kEmptySpot);
        app.click(menu->BtnProgram);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmScenario));
        QVERIFY(!menu->BtnProgram->isVisible());

        app.click(root->frmScenario->BtnBack);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(menu));
        // Back from the scenario screen does not bring the menu alive again: the caption keeps
        // the colour it had when the pointer left with the menu.
        QCOMPARE(menu->BtnProgram->captionColor(), NSColor::whiteColor());
        QCOMPARE(TrackingRegistry::instance().registrationCount(menu->BtnProgram), 1);

        app.click(menu->BtnProgram);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmScenario));
    }

    void alarmLeadsToTheAlarmScreen() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_Control* root = app.root();
        app.moveTo(kEmptySpot);
        app.moveTo(root->frmMainMenu->BtnAlarm);
        QCOMPARE(root->frmMainMenu->BtnAlarm->captionColor(), NSColor::whiteColor());
        app.click(root->frmMainMenu->BtnAlarm);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmAlarm));
        QCOMPARE(root->frmAlarm->frmPreframe, static_cast<NSViewS*>(root->frmMainMenu));
    }
};

QTEST_MAIN(TestMainMenu)
#include "tst_mainmenu.moc"
