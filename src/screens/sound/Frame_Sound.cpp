#include "Frame_Sound.h"

#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "SoundPictures.h"

#include <iterator>

namespace {

Layout::Row Text(NSImageViewS** field, NSRect frame, const char* text, const QColor& color) {
    return {.image = field, .frame = frame, .caption = {text, color, MakeNSRect(0, 0, 50, 16), 15}};
}

Layout::Row Hidden(Layout::Row row) {
    row.hidden = true;
    return row;
}

} // namespace

Frame_Sound::Frame_Sound(const NSRect& frame) : NSViewS(frame) {
    setAccessibleName(QStringLiteral("Sound"));
    using Layout::Family, NSColor::grayColor, NSColor::greenColor, NSColor::orangeColor;
    NSImageViewS** t = txtString;
    Button** b = BtnButton;
    // The same small arrows turn the sound set pages and the timeline's pages; the timeline's
    // wait, hidden, for the first item.
    QList<Layout::Row> controls = {
        Family(&b[kBtnPagePre], MakeNSRect(235, 288, 36, 38), "ButtonSmallCircleLeft", "_common", "_focus",
               "_focus", "Previous sound page", {}, Frame_Sound_PagePreBtnAcion),
        Family(&b[kBtnPageNext], MakeNSRect(276, 288, 36, 38), "ButtonSmallCircleRight", "_common", "_focus",
               "_focus", "Next sound page", {}, Frame_Sound_PageNextBtnAcion),
        Hidden(Family(&b[kBtnContentUp], MakeNSRect(817, 273, 36, 38), "ButtonSmallCircleUp", "_common",
                      "_focus", "_focus", "Timeline page up", {}, Frame_Sound_SoundContentUpBtnAction)),
        Hidden(Family(&b[kBtnContentDown], MakeNSRect(854, 273, 36, 38), "ButtonSmallCircleDown", "_common",
                      "_focus", "_focus", "Timeline page down", {}, Frame_Sound_SoundContentDownBtnAction)),
    };
    // Three columns of four rows; the sound set page decides the names, the board the mark.
    static constexpr ButtonCallback kSoundActions[] = {
        Frame_Sound_Sound1_1BtnAcion, Frame_Sound_Sound1_2BtnAcion, Frame_Sound_Sound1_3BtnAcion,
        Frame_Sound_Sound2_1BtnAcion, Frame_Sound_Sound2_2BtnAcion, Frame_Sound_Sound2_3BtnAcion,
        Frame_Sound_Sound3_1BtnAcion, Frame_Sound_Sound3_2BtnAcion, Frame_Sound_Sound3_3BtnAcion,
        Frame_Sound_Sound4_1BtnAcion, Frame_Sound_Sound4_2BtnAcion, Frame_Sound_Sound4_3BtnAcion,
    };
    static_assert(std::size(kSoundActions) == kBtnSoundLast - kBtnSoundFirst + 1);
    static constexpr qint32 kColumnX[] = {100, 221, 340};
    for (qint32 i = kBtnSoundFirst; i <= kBtnSoundLast; ++i) {
        const qint32 k = i - kBtnSoundFirst;
        const SoundPictures pictures = SoundPictures::Of(Board.MarkOn(i));
        controls << Layout::Row{.button = &b[i],
                                .frame = MakeNSRect(kColumnX[k % 3], 338 + 46 * (k / 3), 111, 46),
                                .up = pictures.up,
                                .move = pictures.over,
                                .down = pictures.over,
                                .caption = SoundPictures::Caption(Board.SoundOf(i)),
                                .action = kSoundActions[k]};
    }
    const Layout::Caption erase{"Erase", grayColor(), MakeNSRect(22, 11, 46, 18), 15};
    const Layout::Caption back{"Back", NSColor::blackColor(), MakeNSRect(17, 11, 50, 16), 15};
    controls << QList<Layout::Row>{
        Family(&b[kBtnSelectBar], MakeNSRect(100, 612, 344, 44), "SelectBarArrow", "_common", "_focus",
               "_focus", "Choose sound set"),
        Family(&b[kBtnVolumeMinus], MakeNSRect(520, 612, 70, 40), "ButtonSoundDe", "_common", "_common",
               "_common", "Volume down"),
        Family(&b[kBtnVolumePlus], MakeNSRect(851, 612, 70, 40), "ButtonSoundPlus", "_common", "_common",
               "_common", "Volume up"),
        Family(&b[kBtnErase], MakeNSRect(515, 712, 93, 40), "but_common_long_left", "_BtnSilver",
               "_over_BtnSilver", "_over_BtnSilver", nullptr, erase),
        Family(&b[kBtnLongRight], MakeNSRect(606, 712, 93, 40), "but_common_long_right", "_BtnSilver",
               "_over_BtnSilver", "_over_BtnSilver", "Replay"),
    };

    Layout::BuildEditor(
        this,
        {.background = &imgBackGround,
         .help = &b[kBtnHelp],
         .tabs = {.fields = {&b[kBtnMoveMent], &b[kBtnSoundTab], &b[kBtnLazer], &b[kBtnFace], &b[kBtnPlay]},
                  .x = {515, 589, 722, 792, 863},
                  .current = Layout::Tab::Sound,
                  .actions = {Frame_Sound_MoveMentBtnAcion, nullptr, Frame_Sound_LazerBtnAcion}},
         .back = Layout::SilverButton(&b[kBtnBack], MakeNSRect(715, 712, 85, 40), back, false,
                                      Frame_Sound_BackBtnAcion)},
        {
            Text(&t[0], MakeNSRect(238, 69, 206, 137),
                 "To erase a sound\nclick on Erase. Once\nyou've finished press\n>.", orangeColor()),
            Text(&t[1], MakeNSRect(488, 90, 89, 25), "Program/", grayColor()),
            Text(&t[2], MakeNSRect(645, 218, 67, 25), "Sound", orangeColor()),
            Text(&t[3], MakeNSRect(106, 292, 140, 24), "Sound bricks:", orangeColor()),
            Text(&t[4], MakeNSRect(524, 295, 52, 19), "sound", grayColor()),
            Text(&t[5], MakeNSRect(106, 587, 119, 22), "Sounds of:", orangeColor()),
            Text(&t[6], MakeNSRect(511, 587, 61, 18), "Volume", grayColor()),
            Text(&t[7], MakeNSRect(609, 621, 15, 20), "1", greenColor()),
            Text(&t[8], MakeNSRect(634, 621, 15, 20), "2", greenColor()),
            Text(&t[9], MakeNSRect(661, 621, 15, 20), "3", greenColor()),
            Text(&t[10], MakeNSRect(688, 621, 15, 20), "4", greenColor()),
            Text(&t[11], MakeNSRect(715, 621, 15, 20), "5", greenColor()),
            Text(&t[12], MakeNSRect(742, 621, 15, 20), "6", orangeColor()),
            Text(&t[13], MakeNSRect(769, 621, 15, 20), "7", orangeColor()),
            Text(&t[14], MakeNSRect(796, 621, 15, 20), "8", orangeColor()),
            Text(&t[15], MakeNSRect(823, 621, 15, 20), "9", orangeColor()),
        },
        controls);
    for (qint32 i = kBtnSoundFirst; i <= kBtnSoundLast; ++i)
        b[i]->setChoice(Button::Choice::Select, Board.MarkOn(i));
    // The keyboard starts at the first sound.
    setFocusProxy(b[kBtnSoundFirst]);
    KeyboardNavigation::EscapePresses(b[kBtnBack]);
    connect(&Board, &SoundSetBoard::changed, this, &Frame_Sound::ShowSoundSet);
    InitSoundContent();
}

void Frame_Sound::ButtonTrackingOn() {
    for (Button* button : BtnButton) RegisterHover({button});
}

void Frame_Sound::InitSoundContent() {
    SoundContent = SOUNDSETCONTENT{};
    SoundContent.frmSoundContent = new NSViewS(MakeNSRect(552, 320, 371, 224));
    addSubview(SoundContent.frmSoundContent);
    KeyboardNavigation::ReadsInItemOrder(SoundContent.frmSoundContent);
    connect(&Timeline, &SoundTimeline::ItemAppended, this, &Frame_Sound::SoundContentItemMade);
    // The views of the items on view follow the timeline's ticks and its arrival snap alike.
    connect(&Timeline, &SoundTimeline::ItemsScrolled, this, &Frame_Sound::SoundContentShowItems);
    connect(&Timeline, &SoundTimeline::ScrollArrived, this, &Frame_Sound::SoundContentShowItems);
}
