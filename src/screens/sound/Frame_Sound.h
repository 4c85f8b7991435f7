#pragma once

#include "FRAMESRECORD.h"
#include "NSImageViewS.h"
#include "SOUNDSETCONTENT.h"

class Button;

// The sound brick editor: twelve sound buttons showing one of three sound set pages, and the
// timeline the chosen sounds are laid on.
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
        kBtnSoundFirst = 10,
        kBtnSoundLast = 21,
        kBtnSelectBar = 22,
        kBtnVolumeMinus = 23,
        kBtnVolumePlus = 24,
        kBtnErase = 25,
        kBtnLongRight = 26,
        kBtnBack = 27,
        kButtonCount = 28,
    };
    static constexpr qint32 kTextCount = 16;
    // Scroll directions of SoundContentTimerOn.
    static constexpr qint32 kScrollToEarlier = 8;
    static constexpr qint32 kScrollToLater = 9;

    explicit Frame_Sound(const NSRect& frame);

    void TextInit();
    void ButtonInit();
    void InitInterWorking();
    // Hover registrations of the screen's buttons, made after the screen is shown.
    void ButtonTrackingOn() override;

    void SoundSet(qint32 button);
    void SoundSetImg();

    // The timeline.
    void InitSoundContent();
    void SetSoundContent(qint32 sound);
    void GetSoundContentLoc(qint32 n, NSRect* SizeLoc, NSRect* NumberText, NSRect* LinkBar,
                            qint32* LinkBarType) const;
    void SoundContentMoveToPage(qint32 page);
    void SoundContentTimerOn(qint32 direction);
    void SoundContentItemUP();
    void SoundContentItemDown();

    // Scroll ticks run since the screen was made; lets tests count a scroll's steps.
    qint64 scrollTickCount() const { return m_scrollTicks; }

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* txtString[kTextCount] = {};
    qint32 iCurSoundSet = kBtnSoundFirst;
    qint32 iLastSoundSet = kBtnSoundFirst;
    qint32 iCurSoundSetPage = 0;
    Button* BtnButton[kButtonCount] = {};
    FRAMESRECORD frmFrameRec;
    SOUNDSETCONTENT SoundContent;

private:
    void SoundContentTick(qint32 step);
    void SoundContentPlaceItems();

    qint64 m_scrollTicks = 0;
};

void Frame_Sound_MoveMentBtnAcion(void* context, Button* button);
void Frame_Sound_BackBtnAcion(void* context, Button* button);
void Frame_Sound_LazerBtnAcion(void* context, Button* button);
void Frame_Sound_Sound1_1BtnAcion(void* context, Button* button);
void Frame_Sound_Sound1_2BtnAcion(void* context, Button* button);
void Frame_Sound_Sound1_3BtnAcion(void* context, Button* button);
void Frame_Sound_Sound2_1BtnAcion(void* context, Button* button);
void Frame_Sound_Sound2_2BtnAcion(void* context, Button* button);
void Frame_Sound_Sound2_3BtnAcion(void* context, Button* button);
void Frame_Sound_Sound3_1BtnAcion(void* context, Button* button);
void Frame_Sound_Sound3_2BtnAcion(void* context, Button* button);
void Frame_Sound_Sound3_3BtnAcion(void* context, Button* button);
void Frame_Sound_Sound4_1BtnAcion(void* context, Button* button);
void Frame_Sound_Sound4_2BtnAcion(void* context, Button* button);
void Frame_Sound_Sound4_3BtnAcion(void* context, Button* button);
void Frame_Sound_PagePreBtnAcion(void* context, Button* button);
void Frame_Sound_PageNextBtnAcion(void* context, Button* button);
void Frame_Sound_SoundContentUpBtnAction(void* context, Button* button);
void Frame_Sound_SoundContentDownBtnAction(void* context, Button* button);
void Frame_Sound_SoundContentBtnAction(void* context, Button* button);
