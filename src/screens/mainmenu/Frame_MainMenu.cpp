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

// Pointed at, a menu button's caption turns white; left, orange again.
Layout::Row MenuButton(Button** field, qint32 y, const char* family, const char* name, bool hidden,
                       ButtonCallback action = nullptr) {
    Layout::Row row = Layout::Family(field, MakeNSRect(607, y, 250, 93), family, "_normal_menus",
                                     "_focused_menus", "_selected_menus", name);
    row.hidden = hidden;
    row.entered = Frame_MainMenu_MenuBtnEntered;
    row.exited = Frame_MainMenu_MenuBtnExited;
    row.action = action;
    return row;
}

Frame_MainMenu* Menu(void* context) {
    return static_cast<Frame_MainMenu*>(context);
}

} // namespace

Frame_MainMenu::Frame_MainMenu(const NSRect& frame) : NSViewS(frame) {
    setAccessibleName(QStringLiteral("Main menu"));
    // The menu waits for the robot.
    const bool waiting = !robotSlide.hasArrived();
    Layout::Build(
        this,
        {
            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "mainpage_bg"},
            {.image = &imgRobot,
             .frame = MakeNSRect(0, static_cast<qint32>(robotSlide.y), 596, 584),
             .up = "logo_main"},
            MenuButton(&BtnProgram, 172, "command", kProgramText, waiting, Frame_MainMenu_ScenarioBtnAcion),
            MenuButton(&BtnAlarm, 297, "clock", kAlarmText, waiting, Frame_MainMenu_AlarmBtnAcion),
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
    // The keyboard starts at "Program scenario".
    setFocusProxy(BtnProgram);
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

namespace {

// The caption of a menu button, in `color`; nothing for a button that is not one of the three.
void MenuCaptionIn(void* context, const Button* button, const QColor& color) {
    Frame_MainMenu* menu = Menu(context);
    if (!menu) return;
    const std::pair<Button*, const char*> buttons[] = {
        {menu->BtnProgram, kProgramText}, {menu->BtnAlarm, kAlarmText}, {menu->BtnSync, kSyncText}};
    for (const auto& [field, text] : buttons)
        if (field == button) Layout::SetCaption(field, MenuCaption(text, color));
}

} // namespace

void Frame_MainMenu_MenuBtnEntered(void* context, Button* button) {
    MenuCaptionIn(context, button, NSColor::whiteColor());
}

void Frame_MainMenu_MenuBtnExited(void* context, Button* button) {
    MenuCaptionIn(context, button, NSColor::orangeColor());
}

void Frame_MainMenu_ScenarioBtnAcion(void* context, Button*) {
    ScreenHost::FollowFrom(Menu(context), Route::MainMenuProgram);
}

void Frame_MainMenu_AlarmBtnAcion(void* context, Button*) {
    ScreenHost::FollowFrom(Menu(context), Route::MainMenuAlarm);
}
