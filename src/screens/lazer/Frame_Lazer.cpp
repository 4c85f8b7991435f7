#include "Frame_Lazer.h"

#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "LazerPicture.h"
#include "NSColor.h"
#include "ScreenHost.h"

Frame_Lazer::Frame_Lazer(const NSRect& frame) : NSViewS(frame) {
    InitView();
    ButtonTrackingOn();
    InitInterWorking();
}

void Frame_Lazer::InitView() {
    const QColor grey = NSColor::grayColor();
    const QColor orange = NSColor::orangeColor();

    Layout::Build(this,
                  {
                      {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                      Layout::SilverButton(&BtnBack, MakeNSRect(714, 711, 85, 40),
                                           {"Back", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}),
                      {.image = &txtLazerDescription,
                       .frame = MakeNSRect(242, 92, 213, 155),
                       .caption = {"Choose the robot\nconfiguration you\nhave built.", orange,
                                   MakeNSRect(0, 0, 209, 76), 16}},
                      {.image = &txtSiteTitle,
                       .frame = MakeNSRect(490, 93, 160, 20),
                       .caption = {"Program/Modify", grey, MakeNSRect(0, 0, 160, 18), 16}},
                      {.image = &txtLazerTitle,
                       .frame = MakeNSRect(104, 314, 341, 25),
                       .caption = {"Robot configuration", orange, MakeNSRect(0, 0, 341, 25), 16}},
                      Layout::Family(&BtnLazer1, MakeNSRect(117, 379, 105, 105), "Lazer_", "normal_1",
                                     "enter_1", "selected_1", "Robot configuration 1"),
                      Layout::Family(&BtnLazer2, MakeNSRect(227, 379, 105, 105), "Lazer_", "normal_2",
                                     "enter_2", "selected_2", "Robot configuration 2"),
                      Layout::Family(&BtnLazer3, MakeNSRect(337, 379, 105, 105), "Lazer_", "normal_3",
                                     "enter_3", "selected_3", "Robot configuration 3"),
                  });

    // The "Lazer" tag lies beneath the tabs.
    Layout::Build(this, {
                            {.image = &txtLazerTag,
                             .frame = MakeNSRect(717, 222, 78, 25),
                             .caption = {"Lazer", orange, MakeNSRect(0, 0, 78, 25), 18}},
                        });
    Layout::BuildTabs(this, {.fields = {&BtnMoveMent, &BtnSound, &BtnLazer, &BtnFace, &BtnPlay},
                             .x = {528, 594, 660, 800, 875},
                             .current = Layout::Tab::Lazer});

    Layout::Build(this, {
                            {.image = &txtAnimation,
                             .frame = MakeNSRect(525, 297, 134, 25),
                             .caption = {"Lazer animation", grey, MakeNSRect(0, 0, 78, 25), 14}},
                            {.image = &imgLazerType,
                             .frame = MakeNSRect(540, 326, LazerPicture::kWidth, LazerPicture::kHeight),
                             .up = LazerPicture::Name(LazerType),
                             .type = LazerPicture::kType},
                        });
}

void Frame_Lazer::ShowLazerType() {
    imgLazerType->InitImage(LazerPicture::Name(LazerType), LazerPicture::kType, LazerPicture::kWidth,
                            LazerPicture::kHeight, this);
    Button* const configurations[] = {BtnLazer1, BtnLazer2, BtnLazer3};
    for (qint32 i = 0; i < 3; ++i) configurations[i]->setChoice(Button::Choice::Select, i == LazerType);
}

void Frame_Lazer::ButtonTrackingOn() {
    RegisterHover(
        {BtnMoveMent, BtnSound, BtnLazer, BtnFace, BtnPlay, BtnLazer1, BtnLazer2, BtnLazer3, BtnBack});
}

void Frame_Lazer::InitInterWorking() {
    BtnSound->InitButtonAction(Frame_Lazer_SoundBtnAcion, this);
    BtnBack->InitButtonAction(Frame_Lazer_SoundBtnAcion, this);
    BtnMoveMent->InitButtonAction(Frame_Lazer_MovementBtnAcion, this);
    BtnFace->InitButtonAction(Frame_Lazer_BtnFaceBtnAcion, this);
    BtnPlay->InitButtonAction(Frame_Lazer_BtnPlayBtnAcion, this);
    BtnLazer1->InitButtonAction(Frame_Lazer_BtnLazer1BtnAcion, this);
    BtnLazer2->InitButtonAction(Frame_Lazer_BtnLazer2BtnAcion, this);
    BtnLazer3->InitButtonAction(Frame_Lazer_BtnLazer3BtnAcion, this);
    KeyboardNavigation::EscapePresses(BtnBack);
    ShowLazerType();
    // BtnLazer keeps the do-nothing action: pressing this screen's own tab only flickers it.
}

namespace {

void ChooseLazerType(void* context, qint32 type) {
    auto* screen = static_cast<Frame_Lazer*>(context);
    if (!screen) return;
    screen->LazerType = type;
    screen->ShowLazerType();
}

} // namespace

void Frame_Lazer_SoundBtnAcion(void* context, Button*) {
    if (auto* screen = static_cast<Frame_Lazer*>(context)) ScreenHost::Follow(screen, Route::LazerSound);
}

void Frame_Lazer_MovementBtnAcion(void* context, Button*) {
    if (auto* screen = static_cast<Frame_Lazer*>(context)) ScreenHost::Follow(screen, Route::LazerMovement);
}

// The face tab and play have no pages of their own: both lead to the movement editor.
void Frame_Lazer_BtnFaceBtnAcion(void* context, Button* button) {
    Frame_Lazer_MovementBtnAcion(context, button);
}

void Frame_Lazer_BtnPlayBtnAcion(void* context, Button* button) {
    Frame_Lazer_MovementBtnAcion(context, button);
}

void Frame_Lazer_BtnLazer1BtnAcion(void* context, Button*) {
    ChooseLazerType(context, 0);
}

void Frame_Lazer_BtnLazer2BtnAcion(void* context, Button*) {
    ChooseLazerType(context, 1);
}

void Frame_Lazer_BtnLazer3BtnAcion(void* context, Button*) {
    ChooseLazerType(context, 2);
}
