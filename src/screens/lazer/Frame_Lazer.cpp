#include "Frame_Lazer.h"

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
                      {.button = &BtnLazer1,
                       .frame = MakeNSRect(117, 379, 105, 105),
                       .up = "Lazer_normal_1",
                       .move = "Lazer_enter_1",
                       .down = "Lazer_selected_1"},
                      {.button = &BtnLazer2,
                       .frame = MakeNSRect(227, 379, 105, 105),
                       .up = "Lazer_normal_2",
                       .move = "Lazer_enter_2",
                       .down = "Lazer_selected_2"},
                      {.button = &BtnLazer3,
                       .frame = MakeNSRect(337, 379, 105, 105),
                       .up = "Lazer_normal_3",
                       .move = "Lazer_enter_3",
                       .down = "Lazer_selected_3"},
                  });

    // The tab buttons exist from here on but join the screen only with their pictures, all
    // together after the "Lazer" tag, so the tag lies beneath them.
    BtnMoveMent = new Button(MakeNSRect(528, 199, 64, 63));
    BtnSound = new Button(MakeNSRect(594, 199, 64, 63));
    BtnLazer = new Button(MakeNSRect(660, 199, 64, 63));
    Layout::Build(this, {
                            {.image = &txtLazerTag,
                             .frame = MakeNSRect(717, 222, 78, 25),
                             .caption = {"Lazer", orange, MakeNSRect(0, 0, 78, 25), 18}},
                        });
    BtnFace = new Button(MakeNSRect(800, 199, 64, 63));
    BtnPlay = new Button(MakeNSRect(875, 199, 64, 63));

    const QString png = QStringLiteral("png");
    BtnMoveMent->InitImage("movement", "movement_over", "movement_over", png, this);
    BtnSound->InitImage("sound", "sound_over", "sound_over", png, this);
    // This screen's own tab always wears its current-tab look.
    BtnLazer->InitImage("lazer_over", "lazer_over", "lazer_over", png, this);
    BtnFace->InitImage("face", "face_over", "face_over", png, this);
    BtnPlay->InitImage("play", "play_over", "play_over", png, this);

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
    // BtnLazer keeps the do-nothing action: pressing this screen's own tab only flickers it.
}

namespace {

void ChooseLazerType(void* context, qint32 type) {
    auto* screen = static_cast<Frame_Lazer*>(context);
    if (!screen) return;
    screen->LazerType = type;
    screen->imgLazerType->InitImage(LazerPicture::Name(screen->LazerType), LazerPicture::kType,
                                    LazerPicture::kWidth, LazerPicture::kHeight, screen);
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
