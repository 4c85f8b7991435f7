#include "Frame_MoveMent.h"

#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "PathTables.h"
#include "ScreenHost.h"

namespace {
constexpr int kCaptionSize = 15;
const char* const kPictureType = "png";

// The direction bricks: a cross of four above a row of five.
struct Brick {
    Button* Frame_MoveMent::*field;
    qint32 x, y;
    const char* picture;
    const char* name;
    ButtonCallback action;
};
const Brick kBricks[] = {
    {&Frame_MoveMent::BtnMoveUp, 234, 339, "ButtonArrowUp", "Move up", Frame_Movement_MoveUpBtnAcion},
    {&Frame_MoveMent::BtnMoveLeft, 170, 377, "ButtonArrowLeft", "Move left", Frame_Movement_MoveLeftBtnAcion},
    {&Frame_MoveMent::BtnMoveDown, 234, 413, "ButtonArrowDown", "Move down", Frame_Movement_MoveDownBtnAcion},
    {&Frame_MoveMent::BtnMoveRight, 299, 377, "ButtonArrowRight", "Move right",
     Frame_Movement_MoveRightBtnAcion},
    {&Frame_MoveMent::BtnTurnRight, 111, 497, "ButtonArrowTurnRight", "Turn right",
     Frame_Movement_TrunRightBtnAcion},
    {&Frame_MoveMent::BtnTrunLeft, 175, 497, "ButtonArrowTurnLeft", "Turn left",
     Frame_Movement_TurnLeftBtnAcion},
    {&Frame_MoveMent::BtnCircleLeft, 239, 497, "ButtonArrowArroundLeft", "Circle left",
     Frame_Movement_CircleLeftBtnAcion},
    {&Frame_MoveMent::BtnCircleRight, 304, 497, "ButtonArrowArroundRight", "Circle right",
     Frame_Movement_CircleRightBtnAcion},
    {&Frame_MoveMent::BtnStop, 366, 497, "ButtonArrowStop", "Stop", Frame_Movement_StopBtnAcion},
};

} // namespace

Frame_MoveMent::Frame_MoveMent(const NSRect& frame) : NSViewS(frame) {
    setAccessibleName(QStringLiteral("Movement"));
    const QColor orange = NSColor::orangeColor();
    const auto text = [orange](NSImageViewS** field, qint32 x, qint32 y, qint32 w, qint32 h,
                               const char* text) {
        return Layout::Row{.image = field,
                           .frame = MakeNSRect(x, y, w, h),
                           .caption = {text, orange, MakeNSRect(0, 0, w, h), kCaptionSize}};
    };
    const auto arrow = [](Button** field, qint32 x, qint32 y, const char* picture, const char* name) {
        return Layout::Family(field, MakeNSRect(x, y, 36, 38), picture, "_common", "_focus", "_focus", name);
    };
    const Layout::Caption erase{"Erase", NSColor::grayColor(), MakeNSRect(22, 11, 46, 18), kCaptionSize};
    const Layout::Caption back{"Back", NSColor::blackColor(), MakeNSRect(17, 11, 50, 16), kCaptionSize};

    QList<Layout::Row> controls;
    for (const Brick& brick : kBricks) {
        controls << Layout::Family(&(this->*brick.field), MakeNSRect(brick.x, brick.y, 62, 62), brick.picture,
                                   "_common", "_focus", "_focus", brick.name, {}, brick.action);
    }
    controls << QList<Layout::Row>{
        Layout::Family(&BtnSelectBar, MakeNSRect(100, 612, 344, 44), "SelectBarArrow", "_common", "_focus",
                       "_focus", "Choose scenario"),
        // The small arrows: a second cross, partly under the path view.
        arrow(&BtnArrowUp, 867, 586, "ButtonSmallCircleUp", "Arrow up"),
        arrow(&BtnArrowLeft, 835, 609, "ButtonSmallCircleLeft", "Arrow left"),
        arrow(&BtnArrowDown, 867, 632, "ButtonSmallCircleDown", "Arrow down"),
        arrow(&BtnArrowRight, 898, 609, "ButtonSmallCircleRight", "Arrow right"),
        Layout::Family(&BtnErase, MakeNSRect(515, 712, 93, 40), "but_common_long_left_", "BtnSilver",
                       "over_BtnSilver", "over_BtnSilver", nullptr, erase),
        Layout::Family(&BtnRetPlay, MakeNSRect(606, 712, 93, 40), "but_common_long_right_", "BtnSilver",
                       "over_BtnSilver", "over_BtnSilver", "Replay"),
    };
    Layout::BuildEditor(
        this,
        {.background = &imgBackGround,
         .help = &BtnQuestion,
         .tabs = {.fields = {&BtnMoveMent, &BtnSound, &BtnLazer, &BtnFace, &BtnPlay},
                  .x = {498, 663, 733, 802, 873},
                  .current = Layout::Tab::Movement,
                  .actions = {nullptr, Frame_Movement_SoundBtnAcion, Frame_Movement_LazerBtnAcion}},
         .back = Layout::SilverButton(&BtnBack, MakeNSRect(715, 712, 85, 40), back, false,
                                      Frame_Movement_BackBtnAcion)},
        {
            text(&txtString[0], 238, 69, 206, 137,
                 "Click on bricks to\nbuild my movement. You\ncan also add movement\nof existing scenarios."),
            text(&txtString[1], 488, 90, 89, 25, "Program/"),
            text(&txtString[2], 561, 219, 103, 25, "Movement"),
            text(&txtString[3], 106, 292, 140, 24, "Movement bricks"),
            text(&txtString[4], 106, 587, 119, 22, "Movements of"),
        },
        controls);
    // The keyboard starts at the first brick.
    setFocusProxy(BtnMoveUp);
    KeyboardNavigation::EscapePresses(BtnBack);
    InitPathFrame();
}

void Frame_MoveMent::InitPathFrame() {
    NSRect rect;
    SetNSRect(&rect, 514, 273, 392, 349);
    // Draws nothing of its own: the screen shows through between the pieces.
    frmPath = new NSViewS(rect);
    addSubview(frmPath);
}

void Frame_MoveMent::ButtonTrackingOn() {
    RegisterHover({BtnQuestion,   BtnMoveMent,    BtnSound,    BtnLazer,     BtnFace,      BtnPlay,
                   BtnMoveUp,     BtnMoveLeft,    BtnMoveDown, BtnMoveRight, BtnTurnRight, BtnTrunLeft,
                   BtnCircleLeft, BtnCircleRight, BtnStop,     BtnSelectBar, BtnArrowUp,   BtnArrowLeft,
                   BtnArrowDown,  BtnArrowRight,  BtnErase,    BtnRetPlay,   BtnBack});
}

void Frame_MoveMent::SetPath(qint32 command) {
    ShowPiece(PathInfo.SetPath(command, frmPath->frame().height));
}

void Frame_MoveMent::SetPathImageFirst() {
    ShowPiece(PathInfo.SetPathImageFirst(frmPath->frame().height));
}

void Frame_MoveMent::SetPathImageNormal(qint32 image) {
    ShowPiece(PathInfo.SetPathImageNormal(image));
}

void Frame_MoveMent::ShowPiece(const std::optional<PATHITEMSTRUCT>& piece) {
    if (!piece) return;
    auto* view = new NSImageViewS(piece->frame);
    PathImg[PathInfo.iItemCnt - 1] = view;
    view->InitImage(QString::fromLatin1(strPathImgNameTable[piece->iImgNO]),
                    QString::fromLatin1(kPictureType), static_cast<int>(piece->frame.width),
                    static_cast<int>(piece->frame.height), frmPath);
}

void Frame_Movement_SoundBtnAcion(void* context, Button*) {
    if (auto* self = static_cast<Frame_MoveMent*>(context))
        ScreenHost::FollowFrom(self, Route::MovementSound);
}

void Frame_Movement_LazerBtnAcion(void* context, Button*) {
    if (auto* self = static_cast<Frame_MoveMent*>(context))
        ScreenHost::FollowFrom(self, Route::MovementLazer);
}

void Frame_Movement_BackBtnAcion(void* context, Button*) {
    if (auto* self = static_cast<Frame_MoveMent*>(context)) ScreenHost::FollowFrom(self, Route::MovementBack);
}

// The bricks do not extend the path yet: which brick sends which command is still open.
void Frame_Movement_MoveUpBtnAcion(void*, Button*) {}
void Frame_Movement_MoveLeftBtnAcion(void*, Button*) {}
void Frame_Movement_MoveDownBtnAcion(void*, Button*) {}
void Frame_Movement_MoveRightBtnAcion(void*, Button*) {}
void Frame_Movement_TrunRightBtnAcion(void*, Button*) {}
void Frame_Movement_TurnLeftBtnAcion(void*, Button*) {}
void Frame_Movement_CircleLeftBtnAcion(void*, Button*) {}
void Frame_Movement_CircleRightBtnAcion(void*, Button*) {}
void Frame_Movement_StopBtnAcion(void*, Button*) {}
