#include "Frame_Sound.h"

#include "LayoutTable.h"
#include "NSColor.h"
#include "ScreenHost.h"
#include "SoundPictures.h"

#include <QByteArray>

#include <algorithm>

namespace {

const char* const kLinkBarPictures[2] = {"smallbarH", "smallbarV"};

// Whether a view at `frame` shows in the timeline view, which cuts what lies past its edges.
bool OnView(const NSRect& frame) {
    return frame.y < kSoundContentViewHeight && frame.y + frame.height > 0;
}

// Puts a view at `frame`, shown while it is on view and hidden otherwise.
void PlaceView(NSViewS* view, const NSRect& frame) {
    if (!view) return;
    if (view->frame() != frame) view->setFrame(frame);
    if (view->isHidden() == OnView(frame)) view->setHidden(!OnView(frame));
}

} // namespace

void Frame_Sound::ShowSoundSet() {
    for (qint32 i = kBtnSoundFirst; i <= kBtnSoundLast; ++i) {
        Button* button = BtnButton[i];
        const Layout::Caption caption = SoundPictures::Caption(Board.SoundOf(i));
        if (button->captionText() != QString::fromUtf8(caption.text)) Layout::SetCaption(button, caption);
        // Only the buttons the mark left or reached take their pictures again.
        if (button->chosen() == Board.MarkOn(i)) continue;
        const SoundPictures pictures = SoundPictures::Of(Board.MarkOn(i));
        button->InitImage(pictures.up, pictures.over, pictures.over, "png", this);
        button->setChoice(Button::Choice::Select, Board.MarkOn(i));
    }
}

void Frame_Sound::SoundContentItemMade(qint32 n, qint32 sound) {
    SOUNDSETCONTENT& c = SoundContent;
    if (!c.frmSoundContent) return;
    const SoundContentLoc loc = Timeline.ItemLocNow(n);

    Button* item = Layout::MakeButton(
        c.frmSoundContent,
        {.frame = loc.SizeLoc,
         .up = SoundPictures::kMark,
         .move = "but_over_Btn01",
         .down = "but_over_Btn01",
         .caption = {SoundSetName(sound), NSColor::grayColor(), MakeNSRect(17, 11, 50, 16), 14},
         .hidden = !OnView(loc.SizeLoc)});
    // Read out as the timeline shows it: its number, then its sound.
    item->setAccessibleName(QStringLiteral("%1: %2").arg(n + 1).arg(QLatin1String(SoundSetName(sound))));
    item->InitButtonAction(Frame_Sound_SoundContentBtnAction, this);
    // Made once, where the item stands now: an item laid out of view gets an empty registration.
    RegisterHover({item});
    c.Item.BtnButton[n] = item;

    const QByteArray number = QByteArray::number(n + 1);
    c.Item.strNumber[n] = Layout::MakeView(
        c.frmSoundContent,
        {.frame = loc.NumberText,
         .caption = {number.constData(), NSColor::orangeColor(), MakeNSRect(0, 0, 24, 14), 12},
         .hidden = !OnView(loc.NumberText)});
    c.Item.imgLinkBar[n] = Layout::MakeView(
        c.frmSoundContent, {.frame = loc.LinkBar,
                            .up = kLinkBarPictures[loc.LinkBarType == kLinkBarVertical ? 1 : 0],
                            .hidden = !OnView(loc.LinkBar)});
    m_itemsShown = Timeline.ItemsOnView();

    // The timeline's arrows appear with its first item.
    Button* up = BtnButton[kBtnContentUp];
    Button* down = BtnButton[kBtnContentDown];
    if (up && down && up->isHidden()) {
        up->setHidden(false);
        down->setHidden(false);
        RegisterHover({up, down});
    }
}

void Frame_Sound::SoundContentShowItems() {
    SOUNDSETCONTENTITEM& items = SoundContent.Item;
    // Only the items that can be on view are moved; the others are hidden, so that neither the
    // scroll nor assistive technology pays for them. Qt folds the moves of one tick into a
    // single repaint of the timeline at the next pass of the event loop.
    const std::pair<qint32, qint32> shown = Timeline.ItemsOnView();
    for (qint32 i = m_itemsShown.first; i < m_itemsShown.second; ++i) {
        if (i >= shown.first && i < shown.second) continue;
        for (NSViewS* view :
             {static_cast<NSViewS*>(items.BtnButton[i]), static_cast<NSViewS*>(items.strNumber[i]),
              static_cast<NSViewS*>(items.imgLinkBar[i])})
            if (view) view->setHidden(true);
    }
    for (qint32 i = shown.first; i < shown.second; ++i) {
        const SoundContentLoc loc = Timeline.ItemLocNow(i);
        PlaceView(items.BtnButton[i], loc.SizeLoc);
        PlaceView(items.strNumber[i], loc.NumberText);
        PlaceView(items.imgLinkBar[i], loc.LinkBar);
    }
    m_itemsShown = shown;
    if (SoundContent.frmSoundContent) SoundContent.frmSoundContent->update();
}

// Callbacks: the context is always the screen.

namespace {

Frame_Sound* Screen(void* context) {
    return static_cast<Frame_Sound*>(context);
}

} // namespace

void Frame_Sound_MoveMentBtnAcion(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) ScreenHost::FollowFrom(sound, Route::SoundMovement);
}

void Frame_Sound_BackBtnAcion(void* context, Button* button) {
    Frame_Sound_MoveMentBtnAcion(context, button);
}

void Frame_Sound_LazerBtnAcion(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) ScreenHost::FollowFrom(sound, Route::SoundLazer);
}

void Frame_Sound_PagePreBtnAcion(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) sound->Board.PagePre();
}

void Frame_Sound_PageNextBtnAcion(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) sound->Board.PageNext();
}

void Frame_Sound_SoundBtnAcion(void* context, Button* button) {
    Frame_Sound* sound = Screen(context);
    if (!sound) return;
    const auto buttons = std::begin(sound->BtnButton);
    sound->Board.SoundSet(
        static_cast<qint32>(std::find(buttons, std::end(sound->BtnButton), button) - buttons));
}

void Frame_Sound_SoundContentUpBtnAction(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) sound->Timeline.SoundContentUp();
}

void Frame_Sound_SoundContentDownBtnAction(void* context, Button*) {
    if (Frame_Sound* sound = Screen(context)) sound->Timeline.SoundContentDown();
}

void Frame_Sound_SoundContentBtnAction(void*, Button*) {}
