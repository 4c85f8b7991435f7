#pragma once

#include "Button.h"
#include "NSImageViewS.h"
#include "SOUNDSETCONTENT.h"
#include "SoundSetBoard.h"
#include "SoundTimeline.h"

// The sound brick editor: twelve sound buttons showing one of three sound set pages, and the
// timeline the chosen sounds are laid on. The screen shows the state of its two models and
// passes the user's presses in.
class Frame_Sound : public NSViewS {
    Q_OBJECT
public:
    // Indices into BtnButton.
    enum : qint32 {
        kBtnHelp = 0,
        kBtnMoveMent = 1,
        kBtnSoundTab = 2,
        kBtnLazer = 3,
        kBtnFace = 4,
        kBtnPlay = 5,
        kBtnPagePre = 6,
        kBtnPageNext = 7,
        kBtnContentUp = 8,
        kBtnContentDown = 9,
        kBtnSoundFirst = SoundSetBoard::kSoundButtonFirst,
        kBtnSoundLast = SoundSetBoard::kSoundButtonLast,
        kBtnSelectBar = 22,
        kBtnVolumeMinus = 23,
        kBtnVolumePlus = 24,
        kBtnErase = 25,
        kBtnLongRight = 26,
        kBtnBack = 27,
        kButtonCount = 28,
    };
    static constexpr qint32 kTextCount = 16;

    explicit Frame_Sound(const NSRect& frame);

    // Hover registrations of the screen's buttons, made after the screen is shown.
    void ButtonTrackingOn() override;
    void InitSoundContent();

    // Makes the sound buttons' captions and mark agree with `Board`.
    void ShowSoundSet();

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* txtString[kTextCount] = {};
    Button* BtnButton[kButtonCount] = {};
    SOUNDSETCONTENT SoundContent;
    SoundTimeline Timeline;
    // The sound set page and the mark; the sound buttons and the page arrows pass presses into it.
    SoundSetBoard Board{&Timeline};

private:
    void SoundContentItemMade(qint32 n, qint32 sound);
    // Puts the views of the items on view where the timeline says they stand, and hides the rest.
    void SoundContentShowItems();

    // The items whose views are shown, [first, end).
    std::pair<qint32, qint32> m_itemsShown{0, 0};
};

void Frame_Sound_MoveMentBtnAcion(void* context, Button* button);
void Frame_Sound_BackBtnAcion(void* context, Button* button);
void Frame_Sound_LazerBtnAcion(void* context, Button* button);
void Frame_Sound_PagePreBtnAcion(void* context, Button* button);
void Frame_Sound_PageNextBtnAcion(void* context, Button* button);
void Frame_Sound_SoundContentUpBtnAction(void* context, Button* button);
void Frame_Sound_SoundContentDownBtnAction(void* context, Button* button);
void Frame_Sound_SoundContentBtnAction(void* context, Button* button);

// The twelve sound buttons share one action, which knows the button by its place in BtnButton.
void Frame_Sound_SoundBtnAcion(void* context, Button* button);
inline constexpr ButtonCallback Frame_Sound_Sound1_1BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound1_2BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound1_3BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound2_1BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound2_2BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound2_3BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound3_1BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound3_2BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound3_3BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound4_1BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound4_2BtnAcion = Frame_Sound_SoundBtnAcion;
inline constexpr ButtonCallback Frame_Sound_Sound4_3BtnAcion = Frame_Sound_SoundBtnAcion;
