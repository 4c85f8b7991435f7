#pragma once

#include "Button.h"
#include "NSRect.h"

#include <QColor>
#include <QList>
#include <QString>

#include <initializer_list>

// Screens are written as their layout tables: one row per widget, built in row order by one
// helper, so each widget joins its parent on top of the ones before it.
namespace Layout {

struct Caption {
    const char* text = nullptr; // none: the widget gets no caption
    QColor color;
    NSRect loc;
    int size = 16;
};

struct Row {
    // Exactly one of the two fields is set: a picture or caption-only view, or a button.
    NSImageViewS** image = nullptr;
    Button** button = nullptr;
    NSRect frame;
    // A view's picture is `up`, drawn at the frame's size (none: a caption-only view);
    // a button shows up / move / down at their natural size.
    const char* up = nullptr;
    const char* move = nullptr;
    const char* down = nullptr;
    Caption caption;
    const char* type = "png";
    bool hidden = false;
    // What assistive technology calls a control that has no caption to read.
    const char* name = nullptr;
    // A button's callbacks, each called with the context the table is built with; none: the
    // button keeps the do-nothing default.
    ButtonCallback action = nullptr;
    ButtonCallback entered = nullptr;
    ButtonCallback exited = nullptr;
};

// The font of every caption in the application.
inline const char* const kFontName = "Courier";

// Buttons several screens share: the silver push button (Back, Done, Settings) and the help button.
Row SilverButton(Button** field, NSRect frame, Caption caption = {}, bool hidden = false,
                 ButtonCallback action = nullptr);
Row HelpButton(Button** field, NSRect frame);

// A button of one picture family, "<base><up>", "<base><move>", "<base><down>": the arrows'
// "ButtonArrowUp" + "_common" / "_focus", the tabs' "sound" + "" / "_over".
Row Family(Button** field, NSRect frame, const char* base, const char* up, const char* move, const char* down,
           const char* name = nullptr, Caption caption = {}, ButtonCallback action = nullptr);

// The editors' row of tabs, in this order; each tab is 64 by 63 points, all on one line.
enum class Tab { Movement, Sound, Lazer, Face, Play };
inline constexpr int kTabCount = 5;
struct TabStrip {
    Button** fields[kTabCount];
    qint32 x[kTabCount];
    Tab current; // wears its chosen look in every state, so the page shows which editor it is
    ButtonCallback actions[kTabCount] = {};
    qint32 y = 199;
};
void BuildTabs(NSViewS* parent, const TabStrip& strip, void* context = nullptr);

// What the three editors (movement, sound, laser) share: the editors' background, Help where the
// editor has one, the tabs and Back. BuildEditor builds, in this order, the background, the
// editor's rows that lie under the tabs, Help, the tabs, the rows that lie over them, and Back.
struct Editor {
    NSImageViewS** background;
    Button** help = nullptr;
    TabStrip tabs;
    Row back;
};
void BuildEditor(NSViewS* screen, const Editor& editor, const QList<Row>& underTabs,
                 const QList<Row>& overTabs);

// Buttons' callbacks get `context`; without one, the parent.
void Build(NSViewS* parent, std::initializer_list<Row> rows, void* context = nullptr);
NSImageViewS* MakeView(NSViewS* parent, const Row& row);
Button* MakeButton(NSViewS* parent, const Row& row, void* context = nullptr);
void SetCaption(NSImageViewS* view, const Caption& caption);

} // namespace Layout
