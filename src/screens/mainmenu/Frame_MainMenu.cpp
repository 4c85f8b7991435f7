#include "Frame_MainMenu.h"

#include "ScreenHost.h"

#include "LayoutTable.h"
#include "NSColor.h"

namespace {

// The three big menu buttons share one caption place; hover swaps only the colour.
Layout::Caption MenuCaption(const char* text, const QColor& color) {
    return {text, color, MakeNSRect(90, 53, 144, 93), 15};
}

const char* const kProgramText = "Program scenario";
const char* const kAlarmText = "Alarm/Clock";
const char* const kSyncText = "Synchronization";

Layout::Row MenuButton(Button** field, qint32 y, const char* family, const char* name, bool hidden) {
    Layout::Row row = Layout::Family(field, MakeNSRect(607, y, 250, 93), family, "_normal_menus",
                                     "_focused_menus", "_selected_menus", name);
    row.hidden = hidden;
    return row;
}

Frame_MainMenu* Menu(void* context) {
    return static_cast<Frame_MainMenu*>(context);
}

} // namespace

Frame_MainMenu::Frame_MainMenu(const NSRect& frame) : NSViewS(frame) {
    // The menu waits for the robot.
    const bool waiting = !robotSlide.hasArrived();
    Layout::Build(this,
                  {
                      {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "mainpage_bg"},
                      {.image = &imgRobot,
                       .frame = MakeNSRect(0, static_cast<qint32>(robotSlide.y), 596, 584),
                       .up = "logo_main"},
                      MenuButton(&BtnProgram, 172, "command", kProgramText, waiting),
                      MenuButton(&BtnAlarm, 297, "clock", kAlarmText, waiting),
                      MenuButton(&BtnSync, 421, "usb", kSyncText, waiting),
                      Layout::SilverButton(&BtnSetting, MakeNSRect(689, 706, 85, 40), {}, waiting),
                      Layout::HelpButton(&BtnQuestion, MakeNSRect(56, 39, 29, 28)),
                  });

    connect(&robotSlide, &RobotSlide::arrived, this, &Frame_MainMenu::ButtonTrackingOn);
    connect(&robotSlide, &RobotSlide::moved, this, [this](float y) {
        NSRect frame = imgRobot->frame();
        frame.y = y;
        imgRobot->setFrame(frame);
        imgRobot->update();
    });

    InitInterWorking();
}

void Frame_MainMenu::InitInterWorking() {
    BtnProgram->InitButtonEntered(Frame_MainMenu_ProgramBtnEntered, this);
    BtnAlarm->InitButtonEntered(Frame_MainMenu_AlarmBtnEntered, this);
    BtnSync->InitButtonEntered(Frame_MainMenu_SyncBtnEntered, this);
    BtnProgram->InitButtonExited(Frame_MainMenu_ProgramBtnExited, this);
    BtnAlarm->InitButtonExited(Frame_MainMenu_AlarmBtnExited, this);
    BtnSync->InitButtonExited(Frame_MainMenu_SyncBtnExited, this);
}

void Frame_MainMenu::ButtonTrackingOn() {
    BtnProgram->setHidden(false);
    BtnAlarm->setHidden(false);
    BtnSync->setHidden(false);
    BtnSetting->setHidden(false);
    RegisterHover({BtnProgram, BtnAlarm, BtnSync, BtnSetting, BtnQuestion});
    Layout::SetCaption(BtnProgram, MenuCaption(kProgramText, NSColor::orangeColor()));
    Layout::SetCaption(BtnAlarm, MenuCaption(kAlarmText, NSColor::orangeColor()));
    Layout::SetCaption(BtnSync, MenuCaption(kSyncText, NSColor::orangeColor()));
    Layout::SetCaption(BtnSetting, {"Settings", NSColor::blackColor(), MakeNSRect(6, 10, 85, 40), 14});
}

void Frame_MainMenu_ProgramBtnEntered(void* context, Button*) {
    if (Frame_MainMenu* menu = Menu(context))
        Layout::SetCaption(menu->BtnProgram, MenuCaption(kProgramText, NSColor::whiteColor()));
}

void Frame_MainMenu_AlarmBtnEntered(void* context, Button*) {
    if (Frame_MainMenu* menu = Menu(context))
        Layout::SetCaption(menu->BtnAlarm, MenuCaption(kAlarmText, NSColor::whiteColor()));
}

void Frame_MainMenu_SyncBtnEntered(void* context, Button*) {
    if (Frame_MainMenu* menu = Menu(context))
        Layout::SetCaption(menu->BtnSync, MenuCaption(kSyncText, NSColor::whiteColor()));
}

void Frame_MainMenu_ProgramBtnExited(void* context, Button*) {
    if (Frame_MainMenu* menu = Menu(context))
        Layout::SetCaption(menu->BtnProgram, MenuCaption(kProgramText, NSColor::orangeColor()));
}

void Frame_MainMenu_AlarmBtnExited(void* context, Button*) {
    if (Frame_MainMenu* menu = Menu(context))
        Layout::SetCaption(menu->BtnAlarm, MenuCaption(kAlarmText, NSColor::orangeColor()));
}

void Frame_MainMenu_SyncBtnExited(void* context, Button*) {
    if (Frame_MainMenu* menu = Menu(context))
        Layout::SetCaption(menu->BtnSync, MenuCaption(kSyncText, NSColor::orangeColor()));
}

void Frame_MainMenu_ScenarioBtnAcion(void* context, Button*) {
    if (auto* host = static_cast<ScreenHost*>(context)) host->Follow(Route::MainMenuProgram);
}

void Frame_MainMenu_AlarmBtnAcion(void* context, Button*) {
    if (auto* host = static_cast<ScreenHost*>(context)) host->Follow(Route::MainMenuAlarm);
}
