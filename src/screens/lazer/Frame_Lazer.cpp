#include "Frame_Lazer.h"

#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "LazerPicture.h"
#include "NSColor.h"
#include "ScreenHost.h"

namespace {

Layout::Row Configuration(Button** field, qint32 x, const char* up, const char* move, const char* down,
                          const char* name, ButtonCallback action) {
    return Layout::Family(field, MakeNSRect(x, 379, 105, 105), "Lazer_", up, move, down, name, {}, action);
}

} // namespace

Frame_Lazer::Frame_Lazer(const NSRect& frame) : NSViewS(frame) {
    setAccessibleName(QStringLiteral("Laser"));
    InitView();
    ButtonTrackingOn();
    // The keyboard starts at the first configuration.
    setFocusProxy(BtnLazer1);
    KeyboardNavigation::EscapePresses(BtnBack);
    connect(&configuration, &LazerConfiguration::changed, this, &Frame_Lazer::ShowLazerType);
    ShowLazerType();
}

void Frame_Lazer::InitView() {
    const QColor grey = NSColor::grayColor();
    const QColor orange = NSColor::orangeColor();
    // The screen's own tab keeps the do-nothing action: pressing it only flickers it.
    Layout::BuildEditor(
        this,
        {.background = &imgBackGround,
         .tabs = {.fields = {&BtnMoveMent, &BtnSound, &BtnLazer, &BtnFace, &BtnPlay},
                  .x = {528, 594, 660, 800, 875},
                  .current = Layout::Tab::Lazer,
                  .actions = {Frame_Lazer_MovementBtnAcion, Frame_Lazer_SoundBtnAcion, nullptr,
                              Frame_Lazer_BtnFaceBtnAcion, Frame_Lazer_BtnPlayBtnAcion}},
         .back = Layout::SilverButton(&BtnBack, MakeNSRect(714, 711, 85, 40),
                                      {"Back", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}, false,
                                      Frame_Lazer_SoundBtnAcion)},
        {
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
            Configuration(&BtnLazer1, 117, "normal_1", "enter_1", "selected_1", "Robot configuration 1",
                          Frame_Lazer_BtnLazer1BtnAcion),
            Configuration(&BtnLazer2, 227, "normal_2", "enter_2", "selected_2", "Robot configuration 2",
                          Frame_Lazer_BtnLazer2BtnAcion),
            Configuration(&BtnLazer3, 337, "normal_3", "enter_3", "selected_3", "Robot configuration 3",
                          Frame_Lazer_BtnLazer3BtnAcion),
            {.image = &txtLazerTag,
             .frame = MakeNSRect(717, 222, 78, 25),
             .caption = {"Lazer", orange, MakeNSRect(0, 0, 78, 25), 18}},
        },
        {
            {.image = &txtAnimation,
             .frame = MakeNSRect(525, 297, 134, 25),
             .caption = {"Lazer animation", grey, MakeNSRect(0, 0, 78, 25), 14}},
            {.image = &imgLazerType,
             .frame = MakeNSRect(540, 326, LazerPicture::kWidth, LazerPicture::kHeight),
             .up = LazerPicture::Name(configuration.LazerType()),
             .type = LazerPicture::kType},
        });
}

void Frame_Lazer::ShowLazerType() {
    const qint32 type = configuration.LazerType();
    imgLazerType->InitImage(LazerPicture::Name(type), LazerPicture::kType, LazerPicture::kWidth,
                            LazerPicture::kHeight, this);
    Button* const configurations[] = {BtnLazer1, BtnLazer2, BtnLazer3};
    for (qint32 i = 0; i < LazerConfiguration::kCount; ++i)
        configurations[i]->setChoice(Button::Choice::Check, i == type);
}

void Frame_Lazer::ButtonTrackingOn() {
    RegisterHover(
        {BtnMoveMent, BtnSound, BtnLazer, BtnFace, BtnPlay, BtnLazer1, BtnLazer2, BtnLazer3, BtnBack});
}

void Frame_Lazer_SoundBtnAcion(void* context, Button*) {
    if (auto* screen = static_cast<Frame_Lazer*>(context)) ScreenHost::FollowFrom(screen, Route::LazerSound);
}

void Frame_Lazer_MovementBtnAcion(void* context, Button*) {
    if (auto* screen = static_cast<Frame_Lazer*>(context))
        ScreenHost::FollowFrom(screen, Route::LazerMovement);
}

void Frame_Lazer_BtnLazerBtnAcion(void* context, Button* button) {
    auto* screen = static_cast<Frame_Lazer*>(context);
    if (!screen) return;
    const Button* const configurations[] = {screen->BtnLazer1, screen->BtnLazer2, screen->BtnLazer3};
    for (qint32 i = 0; i < LazerConfiguration::kCount; ++i)
        if (configurations[i] == button) screen->configuration.Choose(i);
}
