#pragma once

#include "Button.h"
#include "LazerConfiguration.h"

// The page on which the user says which of the three robot configurations was built. The choice
// shows in this page's large picture (and to assistive technology, as the selected button);
// nothing else reads it.
class Frame_Lazer : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_Lazer(const NSRect& frame);

    // Hover registrations of the screen's buttons; every screen that shows this one calls it
    // again after the showing, since a registration made while hidden never fires.
    void ButtonTrackingOn() override;
    // The large picture and the selected button of the configuration chosen.
    void ShowLazerType();

    // The configuration chosen; the three buttons pass the user's choice into it.
    LazerConfiguration configuration;

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* txtSiteTitle = nullptr;
    Button* BtnMoveMent = nullptr;
    Button* BtnSound = nullptr;
    Button* BtnLazer = nullptr;
    Button* BtnFace = nullptr;
    Button* BtnPlay = nullptr;
    NSImageViewS* txtAnimation = nullptr;
    NSImageViewS* imgLazerType = nullptr;
    NSImageViewS* txtLazerDescription = nullptr;
    NSImageViewS* txtLazerTitle = nullptr;
    NSImageViewS* txtLazerTag = nullptr;
    Button* BtnLazer1 = nullptr;
    Button* BtnLazer2 = nullptr;
    Button* BtnLazer3 = nullptr;
    Button* BtnBack = nullptr;

private:
    void InitView();
};

void Frame_Lazer_SoundBtnAcion(void* context, Button* button);
void Frame_Lazer_MovementBtnAcion(void* context, Button* button);
// The face tab and play have no pages of their own: both lead to the movement editor.
inline constexpr ButtonCallback Frame_Lazer_BtnFaceBtnAcion = Frame_Lazer_MovementBtnAcion;
inline constexpr ButtonCallback Frame_Lazer_BtnPlayBtnAcion = Frame_Lazer_MovementBtnAcion;
// The three configuration buttons share one action, which knows the configuration by its button.
void Frame_Lazer_BtnLazerBtnAcion(void* context, Button* button);
inline constexpr ButtonCallback Frame_Lazer_BtnLazer1BtnAcion = Frame_Lazer_BtnLazerBtnAcion;
inline constexpr ButtonCallback Frame_Lazer_BtnLazer2BtnAcion = Frame_Lazer_BtnLazerBtnAcion;
inline constexpr ButtonCallback Frame_Lazer_BtnLazer3BtnAcion = Frame_Lazer_BtnLazerBtnAcion;
