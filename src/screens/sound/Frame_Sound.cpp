#include "Frame_Sound.h"

#include "Button.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "ScreenHost.h"
#include "SoundSetText.h"

#include <QByteArray>
#include <QTimer>

#include <iterator>

namespace {

const char* const kMarkPicture = "but_disabled_Btn01_1";
const char* const kNormalPicture = "but_normal_Btn01";
const char* const kOverPicture = "but_over_Btn01";
const char* const kLinkBarPictures[2] = {"smallbarH", "smallbarV"};

// A sound button's caption: the name of sound `sound`.
Layout::Caption SoundCaption(qint32 sound) {
    return {SoundSetName(sound), NSColor::whiteColor(), MakeNSRect(8, 13, 82, 16), 14};
}

Layout::Caption TextCaption(const char* text, const QColor& color) {
    return {text, color, MakeNSRect(0, 0, 50, 16), 15};
}

bool IsSoundButton(qint32 index) {
    return index >= Frame_Sound::kBtnSoundFirst && index <= Frame_Sound::kBtnSoundLast;
}

// Moves a view by one scroll step, keeping its frame on whole points.
void ScrollView(NSViewS* view, qint32 dy) {
    if (view) view->setFrame(SoundContentScrolled(view->frame(), dy));
}

void PlaceView(NSViewS* view, const NSRect& frame) {
    if (view) view->setFrame(frame);
}

} // namespace

Frame_Sound::Frame_Sound(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this,
                  {
                      {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                  });
    iCurSoundSet = kBtnSoundFirst;
    iLastSoundSet = kBtnSoundFirst;
    iCurSoundSetPage = 0;
    TextInit();
    ButtonInit();
    InitInterWorking();
    InitSoundContent();
}

void Frame_Sound::TextInit() {
    using NSColor::grayColor, NSColor::greenColor, NSColor::orangeColor;
    Layout::Build(
        this, {
                  {.image = &txtString[0],
                   .frame = MakeNSRect(238, 69, 206, 137),
                   .caption = TextCaption("To erase a sound\nclick on Erase. Once\nyou've finished press\n>.",
                                          orangeColor())},
                  {.image = &txtString[1],
                   .frame = MakeNSRect(488, 90, 89, 25),
                   .caption = TextCaption("Program/", grayColor())},
                  {.image = &txtString[2],
                   .frame = MakeNSRect(645, 218, 67, 25),
                   .caption = TextCaption("Sound", orangeColor())},
                  {.image = &txtString[3],
                   .frame = MakeNSRect(106, 292, 140, 24),
                   .caption = TextCaption("Sound bricks:", orangeColor())},
                  {.image = &txtString[4],
                   .frame = MakeNSRect(524, 295, 52, 19),
                   .caption = TextCaption("sound", grayColor())},
                  {.image = &txtString[5],
                   .frame = MakeNSRect(106, 587, 119, 22),
                   .caption = TextCaption("Sounds of:", orangeColor())},
                  {.image = &txtString[6],
                   .frame = MakeNSRect(511, 587, 61, 18),
                   .caption = TextCaption("Volume", grayColor())},
                  {.image = &txtString[7],
                   .frame = MakeNSRect(609, 621, 15, 20),
                   .caption = TextCaption("1", greenColor())},
                  {.image = &txtString[8],
                   .frame = MakeNSRect(634, 621, 15, 20),
                   .caption = TextCaption("2", greenColor())},
                  {.image = &txtString[9],
                   .frame = MakeNSRect(661, 621, 15, 20),
                   .caption = TextCaption("3", greenColor())},
                  {.image = &txtString[10],
                   .frame = MakeNSRect(688, 621, 15, 20),
                   .caption = TextCaption("4", greenColor())},
                  {.image = &txtString[11],
                   .frame = MakeNSRect(715, 621, 15, 20),
                   .caption = TextCaption("5", greenColor())},
                  {.image = &txtString[12],
                   .frame = MakeNSRect(742, 621, 15, 20),
                   .caption = TextCaption("6", orangeColor())},
                  {.image = &txtString[13],
                   .frame = MakeNSRect(769, 621, 15, 20),
                   .caption = TextCaption("7", orangeColor())},
                  {.image = &txtString[14],
                   .frame = MakeNSRect(796, 621, 15, 20),
                   .caption = TextCaption("8", orangeColor())},
                  {.image = &txtString[15],
                   .frame = MakeNSRect(823, 621, 15, 20),
                   .caption = TextCaption("9", orangeColor())},
              });
}

void Frame_Sound::ButtonInit() {
    const Layout::Caption erase{"Erase", NSColor::grayColor(), MakeNSRect(22, 11, 46, 18), 15};
    const Layout::Caption back{"Back", NSColor::blackColor(), MakeNSRect(17, 11, 50, 16), 15};
    Button** b = BtnButton;
    // The timeline's up and down arrows wait, hidden, for the first item.
    Layout::Build(this, {
                            Layout::HelpButton(&b[0], MakeNSRect(57, 37, 29, 28)),
                            {.button = &b[1],
                             .frame = MakeNSRect(515, 199, 64, 63),
                             .up = "movement",
                             .move = "movement_over",
                             .down = "movement_over"},
                            {.button = &b[2],
                             .frame = MakeNSRect(589, 199, 64, 63),
                             .up = "sound_over",
                             .move = "sound_over",
                             .down = "sound_over"},
                            {.button = &b[3],
                             .frame = MakeNSRect(722, 199, 64, 63),
                             .up = "lazer",
                             .move = "lazer_over",
                             .down = "lazer_over"},
                            {.button = &b[4],
                             .frame = MakeNSRect(792, 199, 64, 63),
                             .up = "face",
                             .move = "face_over",
                             .down = "face_over"},
                            {.button = &b[5],
                             .frame = MakeNSRect(863, 199, 64, 63),
                             .up = "play",
                             .move = "play_over",
                             .down = "play_over"},
                            {.button = &b[6],
                             .frame = MakeNSRect(235, 288, 36, 38),
                             .up = "ButtonSmallCircleLeft_common",
                             .move = "ButtonSmallCircleLeft_focus",
                             .down = "ButtonSmallCircleLeft_focus"},
                            {.button = &b[7],
                             .frame = MakeNSRect(276, 288, 36, 38),
                             .up = "ButtonSmallCircleRight_common",
                             .move = "ButtonSmallCircleRight_focus",
                             .down = "ButtonSmallCircleRight_focus"},
                            {.button = &b[8],
                             .frame = MakeNSRect(817, 273, 36, 38),
                             .up = "ButtonSmallCircleUp_common",
                             .move = "ButtonSmallCircleUp_focus",
                             .down = "ButtonSmallCircleUp_focus",
                             .hidden = true},
                            {.button = &b[9],
                             .frame = MakeNSRect(854, 273, 36, 38),
                             .up = "ButtonSmallCircleDown_common",
                             .move = "ButtonSmallCircleDown_focus",
                             .down = "ButtonSmallCircleDown_focus",
                             .hidden = true},
                            {.button = &b[10],
                             .frame = MakeNSRect(100, 338, 111, 46),
                             .up = kMarkPicture,
                             .move = kMarkPicture,
                             .down = kMarkPicture,
                             .caption = SoundCaption(0)},
                            {.button = &b[11],
                             .frame = MakeNSRect(221, 338, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(1)},
                            {.button = &b[12],
                             .frame = MakeNSRect(340, 338, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(2)},
                            {.button = &b[13],
                             .frame = MakeNSRect(100, 384, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(3)},
                            {.button = &b[14],
                             .frame = MakeNSRect(221, 384, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(4)},
                            {.button = &b[15],
                             .frame = MakeNSRect(340, 384, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(5)},
                            {.button = &b[16],
                             .frame = MakeNSRect(100, 430, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(6)},
                            {.button = &b[17],
                             .frame = MakeNSRect(221, 430, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(7)},
                            {.button = &b[18],
                             .frame = MakeNSRect(340, 430, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(8)},
                            {.button = &b[19],
                             .frame = MakeNSRect(100, 476, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(9)},
                            {.button = &b[20],
                             .frame = MakeNSRect(221, 476, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(10)},
                            {.button = &b[21],
                             .frame = MakeNSRect(340, 476, 111, 46),
                             .up = kNormalPicture,
                             .move = kOverPicture,
                             .down = kOverPicture,
                             .caption = SoundCaption(11)},
                            {.button = &b[22],
                             .frame = MakeNSRect(100, 612, 344, 44),
                             .up = "SelectBarArrow_common",
                             .move = "SelectBarArrow_focus",
                             .down = "SelectBarArrow_focus"},
                            {.button = &b[23],
                             .frame = MakeNSRect(520, 612, 70, 40),
                             .up = "ButtonSoundDe_common",
                             .move = "ButtonSoundDe_common",
                             .down = "ButtonSoundDe_common"},
                            {.button = &b[24],
                             .frame = MakeNSRect(851, 612, 70, 40),
                             .up = "ButtonSoundPlus_common",
                             .move = "ButtonSoundPlus_common",
                             .down = "ButtonSoundPlus_common"},
                            {.button = &b[25],
                             .frame = MakeNSRect(515, 712, 93, 40),
                             .up = "but_common_long_left_BtnSilver",
                             .move = "but_common_long_left_over_BtnSilver",
                             .down = "but_common_long_left_over_BtnSilver",
                             .caption = erase},
                            {.button = &b[26],
                             .frame = MakeNSRect(606, 712, 93, 40),
                             .up = "but_common_long_right_BtnSilver",
                             .move = "but_common_long_right_over_BtnSilver",
                             .down = "but_common_long_right_over_BtnSilver"},
                            Layout::SilverButton(&b[27], MakeNSRect(715, 712, 85, 40), back),
                        });
    // The same small arrows turn the sound set pages and the timeline's pages.
    b[kBtnPagePre]->setAccessibleName(QStringLiteral("Previous sound page"));
    b[kBtnPageNext]->setAccessibleName(QStringLiteral("Next sound page"));
    b[kBtnContentUp]->setAccessibleName(QStringLiteral("Timeline page up"));
    b[kBtnContentDown]->setAccessibleName(QStringLiteral("Timeline page down"));
}

void Frame_Sound::InitInterWorking() {
    static constexpr ButtonCallback kSoundActions[] = {
        Frame_Sound_Sound1_1BtnAcion, Frame_Sound_Sound1_2BtnAcion, Frame_Sound_Sound1_3BtnAcion,
        Frame_Sound_Sound2_1BtnAcion, Frame_Sound_Sound2_2BtnAcion, Frame_Sound_Sound2_3BtnAcion,
        Frame_Sound_Sound3_1BtnAcion, Frame_Sound_Sound3_2BtnAcion, Frame_Sound_Sound3_3BtnAcion,
        Frame_Sound_Sound4_1BtnAcion, Frame_Sound_Sound4_2BtnAcion, Frame_Sound_Sound4_3BtnAcion,
    };
    static_assert(std::size(kSoundActions) == kBtnSoundLast - kBtnSoundFirst + 1);

    BtnButton[kBtnMoveMent]->InitButtonAction(Frame_Sound_MoveMentBtnAcion, this);
    BtnButton[kBtnBack]->InitButtonAction(Frame_Sound_BackBtnAcion, this);
    BtnButton[kBtnLazer]->InitButtonAction(Frame_Sound_LazerBtnAcion, this);
    for (qint32 i = kBtnSoundFirst; i <= kBtnSoundLast; ++i)
        BtnButton[i]->InitButtonAction(kSoundActions[i - kBtnSoundFirst], this);
    BtnButton[kBtnPagePre]->InitButtonAction(Frame_Sound_PagePreBtnAcion, this);
    BtnButton[kBtnPageNext]->InitButtonAction(Frame_Sound_PageNextBtnAcion, this);
    BtnButton[kBtnContentUp]->InitButtonAction(Frame_Sound_SoundContentUpBtnAction, this);
    BtnButton[kBtnContentDown]->InitButtonAction(Frame_Sound_SoundContentDownBtnAction, this);
}

void Frame_Sound::ButtonTrackingOn() {
    for (Button* button : BtnButton)
        if (button) button->RegisterHover();
}

void Frame_Sound::SoundSet(qint32 button) {
    if (SoundContent.timer || !IsSoundButton(button)) return;
    iLastSoundSet = iCurSoundSet;
    iCurSoundSet = button;
    SetSoundContent(button - kBtnSoundFirst + kSoundSetPageSize * iCurSoundSetPage);
    if (iLastSoundSet != iCurSoundSet) SoundSetImg();
    SoundContentMoveToPage((SoundContent.iItemNum - 1) / kSoundContentPageSize);
}

void Frame_Sound::SoundSetImg() {
    if (IsSoundButton(iCurSoundSet) && BtnButton[iCurSoundSet])
        BtnButton[iCurSoundSet]->InitImage(kMarkPicture, kMarkPicture, kMarkPicture, "png", this);
    if (IsSoundButton(iLastSoundSet) && BtnButton[iLastSoundSet])
        BtnButton[iLastSoundSet]->InitImage(kNormalPicture, kOverPicture, kOverPicture, "png", this);
}

void Frame_Sound::InitSoundContent() {
    SoundContent = SOUNDSETCONTENT{};
    SoundContent.iPageNumber = 0;
    SoundContent.frmSoundContent = new NSViewS(MakeNSRect(552, 320, 371, 224));
    addSubview(SoundContent.frmSoundContent);
}

void Frame_Sound::SetSoundContent(qint32 sound) {
    SOUNDSETCONTENT& c = SoundContent;
    const char* name = SoundSetName(sound);
    if (c.iItemNum >= kSoundContentItemMax || c.iItemNum < 0 || !name || !c.frmSoundContent) return;

    const qint32 n = c.iItemNum;
    NSRect SizeLoc, NumberText, LinkBar;
    qint32 LinkBarType = 0;
    GetSoundContentLoc(n, &SizeLoc, &NumberText, &LinkBar, &LinkBarType);

    Button* item = Layout::MakeButton(
        c.frmSoundContent, {.frame = SizeLoc,
                            .up = kMarkPicture,
                            .move = kOverPicture,
                            .down = kOverPicture,
                            .caption = {name, NSColor::grayColor(), MakeNSRect(17, 11, 50, 16), 14}});
    item->InitButtonAction(Frame_Sound_SoundContentBtnAction, this);
    // Made once, where the item stands now: an item laid out of view gets an empty registration.
    item->RegisterHover();
    c.Item.BtnButton[n] = item;

    const QByteArray number = QByteArray::number(n + 1);
    c.Item.strNumber[n] = Layout::MakeView(
        c.frmSoundContent,
        {.frame = NumberText,
         .caption = {number.constData(), NSColor::orangeColor(), MakeNSRect(0, 0, 24, 14), 12}});
    c.Item.imgLinkBar[n] =
        Layout::MakeView(c.frmSoundContent,
                         {.frame = LinkBar, .up = kLinkBarPictures[LinkBarType == kLinkBarVertical ? 1 : 0]});
    c.iItemNum += 1;

    Button* up = BtnButton[kBtnContentUp];
    Button* down = BtnButton[kBtnContentDown];
    if (up && down && up->isHidden()) {
        up->setHidden(false);
        down->setHidden(false);
        RegisterHover({up, down});
    }
}

void Frame_Sound::GetSoundContentLoc(qint32 n, NSRect* SizeLoc, NSRect* NumberText, NSRect* LinkBar,
                                     qint32* LinkBarType) const {
    const SoundContentLoc loc = ::GetSoundContentLoc(n, SoundContent.iPageNumber);
    if (SizeLoc) *SizeLoc = loc.SizeLoc;
    if (NumberText) *NumberText = loc.NumberText;
    if (LinkBar) *LinkBar = loc.LinkBar;
    if (LinkBarType) *LinkBarType = loc.LinkBarType;
}

void Frame_Sound::SoundContentMoveToPage(qint32 page) {
    SOUNDSETCONTENT& c = SoundContent;
    if (c.timer) return;
    qint32 direction = kScrollToLater;
    if (page < c.iPageNumber) {
        if (page < 0) return;
        direction = kScrollToEarlier;
    } else if (page == c.iPageNumber) {
        return;
    } else {
        c.iPageMax = (c.iItemNum - 1) / kSoundContentPageSize;
        if (page > c.iPageMax) return;
    }
    c.iPageNumber = page;
    c.Item.iItemTargetNum = page * kSoundContentPageSize;
    SoundContentTimerOn(direction);
}

void Frame_Sound::SoundContentTimerOn(qint32 direction) {
    SOUNDSETCONTENT& c = SoundContent;
    if (c.timer) { // only one scroll at a time: a new one replaces the old
        c.timer->stop();
        c.timer->deleteLater();
    }
    auto* timer = new QTimer(this);
    timer->setTimerType(Qt::PreciseTimer);
    timer->setInterval(10);
    connect(timer, &QTimer::timeout, this,
            direction == kScrollToEarlier ? &Frame_Sound::SoundContentItemUP
                                          : &Frame_Sound::SoundContentItemDown);
    c.timer = timer;
    timer->start();
}

void Frame_Sound::SoundContentItemUP() {
    SoundContentTick(kSoundContentScrollStep);
}

void Frame_Sound::SoundContentItemDown() {
    SoundContentTick(-kSoundContentScrollStep);
}

void Frame_Sound::SoundContentTick(qint32 step) {
    SOUNDSETCONTENT& c = SoundContent;
    ++m_scrollTicks;
    // Qt folds the moves of one tick into a single repaint of the timeline at the next pass of
    // the event loop. Holding updates off meanwhile (setUpdatesEnabled) costs more than it saves:
    // turning them back on asks every one of up to 1536 children for its own update.
    float mark = 0.0f;
    for (qint32 i = 0; i < kSoundContentItemMax && c.Item.BtnButton[i]; ++i) {
        ScrollView(c.Item.BtnButton[i], step);
        ScrollView(c.Item.strNumber[i], step);
        ScrollView(c.Item.imgLinkBar[i], step);
        if (i == c.Item.iItemTargetNum) mark = c.Item.BtnButton[i]->frame().y;
    }
    const bool arrived = step > 0 ? mark >= 0.0f : mark <= 0.0f;
    if (arrived) {
        SoundContentPlaceItems();
        if (c.timer) {
            c.timer->stop();
            c.timer->deleteLater();
            c.timer = nullptr;
        }
    }

    if (c.frmSoundContent) c.frmSoundContent->update();
}

void Frame_Sound::SoundContentPlaceItems() {
    SOUNDSETCONTENT& c = SoundContent;
    for (qint32 i = 0; i < kSoundContentItemMax && c.Item.BtnButton[i]; ++i) {
        const SoundContentLoc loc = ::GetSoundContentLoc(i, c.iPageNumber);
        PlaceView(c.Item.BtnButton[i], loc.SizeLoc);
        PlaceView(c.Item.strNumber[i], loc.NumberText);
        PlaceView(c.Item.imgLinkBar[i], loc.LinkBar);
    }
}

// Callbacks: the context is always the screen.

namespace {

Frame_Sound* Screen(void* context) {
    return static_cast<Frame_Sound*>(context);
}

// Every sound button shows the names of the current sound set page.
void ShowSoundSetPage(Frame_Sound* sound) {
    for (qint32 k = 0; k <= Frame_Sound::kBtnSoundLast - Frame_Sound::kBtnSoundFirst; ++k)
        Layout::SetCaption(sound->BtnButton[Frame_Sound::kBtnSoundFirst + k],
                           SoundCaption(kSoundSetPageSize * sound->iCurSoundSetPage + k));
}

void SoundSetFrom(void* context, qint32 button) {
    if (Frame_Sound* sound = Screen(context)) sound->SoundSet(button);
}

} // namespace

void Frame_Sound_MoveMentBtnAcion(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) ScreenHost::Follow(sound, Route::SoundMovement);
}

void Frame_Sound_BackBtnAcion(void* context, Button* button) {
    Frame_Sound_MoveMentBtnAcion(context, button);
}

void Frame_Sound_LazerBtnAcion(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) ScreenHost::Follow(sound, Route::SoundLazer);
}

// The sound button of row r, column c is button 10 + 3 (r - 1) + (c - 1).
void Frame_Sound_Sound1_1BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 10);
}

void Frame_Sound_Sound1_2BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 11);
}

void Frame_Sound_Sound1_3BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 12);
}

void Frame_Sound_Sound2_1BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 13);
}

void Frame_Sound_Sound2_2BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 14);
}

void Frame_Sound_Sound2_3BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 15);
}

void Frame_Sound_Sound3_1BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 16);
}

void Frame_Sound_Sound3_2BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 17);
}

void Frame_Sound_Sound3_3BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 18);
}

void Frame_Sound_Sound4_1BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 19);
}

void Frame_Sound_Sound4_2BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 20);
}

void Frame_Sound_Sound4_3BtnAcion(void* context, Button*) {
    SoundSetFrom(context, 21);
}

void Frame_Sound_PagePreBtnAcion(void* context, Button*) {
    Frame_Sound* sound = Screen(context);
    if (!sound || sound->iCurSoundSetPage <= 0) return;
    sound->iCurSoundSetPage -= 1;
    ShowSoundSetPage(sound);
}

void Frame_Sound_PageNextBtnAcion(void* context, Button*) {
    Frame_Sound* sound = Screen(context);
    if (!sound || sound->iCurSoundSetPage > kSoundSetPageCount - 2) return;
    sound->iCurSoundSetPage += 1;
    ShowSoundSetPage(sound);
}

void Frame_Sound_SoundContentUpBtnAction(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context))
        sound->SoundContentMoveToPage(sound->SoundContent.iPageNumber - 1);
}

void Frame_Sound_SoundContentDownBtnAction(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context))
        sound->SoundContentMoveToPage(sound->SoundContent.iPageNumber + 1);
}

void Frame_Sound_SoundContentBtnAction(void*, Button*) {}
