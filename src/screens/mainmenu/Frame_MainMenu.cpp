#include "Frame_MainMenu.h"

#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Scenario.h"
#include "LayoutTable.h"

Frame_MainMenu::Frame_MainMenu(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this, {
                            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "mainpage_bg"},
                            {.button = &BtnProgram,
                             .frame = MakeNSRect(607, 172, 250, 93),
                             .up = "command_normal_menus",
                             .move = "command_focused_menus",
                             .down = "command_selected_menus",
                             .hidden = true},
                            {.button = &BtnAlarm,
                             .frame = MakeNSRect(607, 297, 250, 93),
                             .up = "clock_normal_menus",
                             .move = "clock_focused_menus",
                             .down = "clock_selected_menus",
                             .hidden = true},
                        });
}

void Frame_MainMenu::ButtonTrackingOn() {
    BtnProgram->setHidden(false);
    BtnAlarm->setHidden(false);
    RegisterHover({BtnProgram, BtnAlarm});
}

void Frame_MainMenu_ScenarioBtnAcion(void* context, Button*) {
    auto* root = static_cast<Frame_Control*>(context);
    root->frmMainMenu->setHidden(true);
    root->frmScenario->setHidden(false);
}

void Frame_MainMenu_AlarmBtnAcion(void* context, Button*) {
    auto* root = static_cast<Frame_Control*>(context);
    root->frmAlarm->frmPreframe = root->frmMainMenu;
    root->frmMainMenu->setHidden(true);
    root->frmAlarm->setHidden(false);
    Frame_Alarm* alarm = root->frmAlarm;
    RegisterHover({alarm->BtnQuestion, alarm->BtnBirthdayStatus, alarm->BtnWakeupStatus, alarm->BtnBack,
                   alarm->BtnDone});
}
