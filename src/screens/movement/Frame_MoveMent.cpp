#include "Frame_MoveMent.h"

#include "LayoutTable.h"
#include "NSColor.h"
#include "PathTables.h"
#include "ScreenHost.h"

namespace {
constexpr int kCaptionSize = 15;
const char* const kPictureType = "png";
} // namespace

Frame_MoveMent::Frame_MoveMent(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(this,
                  {
                      {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "scenario_bg"},
                  });
    TextInit();
    ButtonInit();
    InitInterWorking();
    InitPathFrame();
}

void Frame_MoveMent::TextInit() {
    const QColor orange = NSColor::orangeColor();
    // clang-format off
    Layout::Build(this, {
        {.image = &txtString[0], .frame = MakeNSRect(238, 69, 206, 137),
         .caption = {"Click on bricks to\nbuild my movement. You\ncan also add movement\nof existing scenarios.",
                     orange, MakeNSRect(0, 0, 206, 137), kCaptionSize}},
        {.image = &txtString[1], .frame = MakeNSRect(488, 90, 89, 25),
         .caption = {"Program/", orange, MakeNSRect(0, 0, 89, 25), kCaptionSize}},
        {.image = &txtString[2], .frame = MakeNSRect(561, 219, 103, 25),
         .caption = {"Movement", orange, MakeNSRect(0, 0, 103, 25), kCaptionSize}},
        {.image = &txtString[3], .frame = MakeNSRect(106, 292, 140, 24),
         .caption = {"Movement bricks", orange, MakeNSRect(0, 0, 140, 24), kCaptionSize}},
        {.image = &txtString[4], .frame = MakeNSRect(106, 587, 119, 22),
         .caption = {"Movements of", orange, MakeNSRect(0, 0, 119, 22), kCaptionSize}},
    });
    // clang-format on
}

void Frame_MoveMent::ButtonInit() {
    // clang-format off
    Layout::Build(this, {
        Layout::HelpButton(&BtnQuestion, MakeNSRect(57, 37, 29, 28)),
        // This screen's own tab looks chosen whatever the pointer does.
        {.button = &BtnMoveMent, .frame = MakeNSRect(498, 199, 64, 63),
         .up = "movement_over", .move = "movement_over", .down = "movement_over"},
        {.button = &BtnSound, .frame = MakeNSRect(663, 199, 64, 63),
         .up = "sound", .move = "sound_over", .down = "sound_over"},
        {.button = &BtnLazer, .frame = MakeNSRect(733, 199, 64, 63),
         .up = "lazer", .move = "lazer_over", .down = "lazer_over"},
        {.button = &BtnFace, .frame = MakeNSRect(802, 199, 64, 63),
         .up = "face", .move = "face_over", .down = "face_over"},
        {.button = &BtnPlay, .frame = MakeNSRect(873, 199, 64, 63),
         .up = "play", .move = "play_over", .down = "play_over"},
        // The bricks: a cross of four above a row of five.
        {.button = &BtnMoveUp, .frame = MakeNSRect(234, 339, 62, 62),
         .up = "ButtonArrowUp_common", .move = "ButtonArrowUp_focus", .down = "ButtonArrowUp_focus"},
        {.button = &BtnMoveLeft, .frame = MakeNSRect(170, 377, 62, 62),
         .up = "ButtonArrowLeft_common", .move = "ButtonArrowLeft_focus", .down = "ButtonArrowLeft_focus"},
        {.button = &BtnMoveDown, .frame = MakeNSRect(234, 413, 62, 62),
         .up = "ButtonArrowDown_common", .move = "ButtonArrowDown_focus", .down = "ButtonArrowDown_focus"},
        {.button = &BtnMoveRight, .frame = MakeNSRect(299, 377, 62, 62),
         .up = "ButtonArrowRight_common", .move = "ButtonArrowRight_focus", .down = "ButtonArrowRight_focus"},
        {.button = &BtnTurnRight, .frame = MakeNSRect(111, 497, 62, 62),
         .up = "ButtonArrowTurnRight_common", .move = "ButtonArrowTurnRight_focus",
         .down = "ButtonArrowTurnRight_focus"},
        {.button = &BtnTrunLeft, .frame = MakeNSRect(175, 497, 62, 62),
         .up = "ButtonArrowTurnLeft_common", .move = "ButtonArrowTurnLeft_focus",
         .down = "ButtonArrowTurnLeft_focus"},
        {.button = &BtnCircleLeft, .frame = MakeNSRect(239, 497, 62, 62),
         .up = "ButtonArrowArroundLeft_common", .move = "ButtonArrowArroundLeft_focus",
         .down = "ButtonArrowArroundLeft_focus"},
        {.button = &BtnCircleRight, .frame = MakeNSRect(304, 497, 62, 62),
         .up = "ButtonArrowArroundRight_common", .move = "ButtonArrowArroundRight_focus",
         .down = "ButtonArrowArroundRight_focus"},
        {.button = &BtnStop, .frame = MakeNSRect(366, 497, 62, 62),
         .up = "ButtonArrowStop_common", .move = "ButtonArrowStop_focus", .down = "ButtonArrowStop_focus"},
        {.button = &BtnSelectBar, .frame = MakeNSRect(100, 612, 344, 44),
         .up = "SelectBarArrow_common", .move = "SelectBarArrow_focus", .down = "SelectBarArrow_focus"},
        // The small arrows: a second cross, partly under the path view.
        {.button = &BtnArrowUp, .frame = MakeNSRect(867, 586, 36, 38),
         .up = "ButtonSmallCircleUp_common", .move = "ButtonSmallCircleUp_focus",
         .down = "ButtonSmallCircleUp_focus"},
        {.button = &BtnArrowLeft, .frame = MakeNSRect(835, 609, 36, 38),
         .up = "ButtonSmallCircleLeft_common", .move = "ButtonSmallCircleLeft_focus",
         .down = "ButtonSmallCircleLeft_focus"},
        {.button = &BtnArrowDown, .frame = MakeNSRect(867, 632, 36, 38),
         .up = "ButtonSmallCircleDown_common", .move = "ButtonSmallCircleDown_focus",
         .down = "ButtonSmallCircleDown_focus"},
        {.button = &BtnArrowRight, .frame = MakeNSRect(898, 609, 36, 38),
         .up = "ButtonSmallCircleRight_common", .move = "ButtonSmallCircleRight_focus",
         .down = "ButtonSmallCircleRight_focus"},
        {.button = &BtnErase, .frame = MakeNSRect(515, 712, 93, 40),
         .up = "but_common_long_left_BtnSilver", .move = "but_common_long_left_over_BtnSilver",
         .down = "but_common_long_left_over_BtnSilver",
         .caption = {"Erase", NSColor::grayColor(), MakeNSRect(22, 11, 46, 18), kCaptionSize}},
        {.button = &BtnRetPlay, .frame = MakeNSRect(606, 712, 93, 40),
         .up = "but_common_long_right_BtnSilver", .move = "but_common_long_right_over_BtnSilver",
         .down = "but_common_long_right_over_BtnSilver"},
        Layout::SilverButton(&BtnBack, MakeNSRect(715, 712, 85, 40), {"Back", NSColor::blackColor(), MakeNSRect(17, 11, 50, 16), kCaptionSize}),
    });
    // clang-format on
}

void Frame_MoveMent::InitInterWorking() {
    BtnSound->InitButtonAction(Frame_Movement_SoundBtnAcion, this);
    BtnBack->InitButtonAction(Frame_Movement_BackBtnAcion, this);
    BtnLazer->InitButtonAction(Frame_Movement_LazerBtnAcion, this);
    BtnMoveUp->InitButtonAction(Frame_Movement_MoveUpBtnAcion, this);
    BtnMoveLeft->InitButtonAction(Frame_Movement_MoveLeftBtnAcion, this);
    BtnMoveDown->InitButtonAction(Frame_Movement_MoveDownBtnAcion, this);
    BtnMoveRight->InitButtonAction(Frame_Movement_MoveRightBtnAcion, this);
    BtnTurnRight->InitButtonAction(Frame_Movement_TrunRightBtnAcion, this);
    BtnTrunLeft->InitButtonAction(Frame_Movement_TurnLeftBtnAcion, this);
    BtnCircleLeft->InitButtonAction(Frame_Movement_CircleLeftBtnAcion, this);
    BtnCircleRight->InitButtonAction(Frame_Movement_CircleRightBtnAcion, this);
    BtnStop->InitButtonAction(Frame_Movement_StopBtnAcion, this);
}

void Frame_MoveMent::InitPathFrame() {
    NSRect rect;
    SetNSRect(&rect, 514, 273, 392, 349);
    // Draws nothing of its own: the screen shows through between the pieces.
    PathInfo.frmPath = new NSViewS(rect);
    addSubview(PathInfo.frmPath);
}

void Frame_MoveMent::ButtonTrackingOn() {
    RegisterHover({BtnQuestion,   BtnMoveMent,    BtnSound,    BtnLazer,     BtnFace,      BtnPlay,
                   BtnMoveUp,     BtnMoveLeft,    BtnMoveDown, BtnMoveRight, BtnTurnRight, BtnTrunLeft,
                   BtnCircleLeft, BtnCircleRight, BtnStop,     BtnSelectBar, BtnArrowUp,   BtnArrowLeft,
                   BtnArrowDown,  BtnArrowRight,  BtnErase,    BtnRetPlay,   BtnBack});
}

void Frame_MoveMent::SetPath(qint32 command) {
    if (PathInfo.iItemCnt == 0) {
        // An unknown command still draws a first piece: the image slot 0 already holds.
        if (const auto image = PathPlacement::FirstPieceImage(command)) PathInfo.Item[0].iImgNO = *image;
        SetPathImageFirst();
        return;
    }
    if (const auto image = PathPlacement::LaterPieceImage(command)) SetPathImageNormal(*image);
}

void Frame_MoveMent::SetPathImageFirst() {
    if (!PathInfo.frmPath || PathInfo.iItemCnt >= PathPlacement::kMaxPieces) return;
    const qint32 image = PathInfo.Item[0].iImgNO;
    if (!PathPlacement::IsImage(image)) return;
    PathInfo.iDirect = PathPlacement::FirstDirect(image);
    AddPiece(image, PathPlacement::FirstFrame(image, PathInfo.frmPath->frame().height));
}

void Frame_MoveMent::SetPathImageNormal(qint32 image) {
    const qint32 count = PathInfo.iItemCnt;
    // Placement needs a newest piece, and a full path takes no more.
    if (!PathInfo.frmPath || count <= 0 || count >= PathPlacement::kMaxPieces) return;
    const PATHITEMSTRUCT& newest = PathInfo.Item[count - 1];
    if (!PathPlacement::IsImage(image) || !PathPlacement::IsImage(newest.iImgNO) || !newest.PathImg) return;
    const NSRect frame = PathPlacement::NextFrame(newest.iImgNO, newest.PathImg->frame(), image);
    PathInfo.Item[count].iImgNO = image;
    PathInfo.iDirect = iPathDirectOutTable[image];
    AddPiece(image, frame);
}

void Frame_MoveMent::AddPiece(qint32 image, const NSRect& frame) {
    auto* piece = new NSImageViewS(frame);
    PathInfo.Item[PathInfo.iItemCnt].PathImg = piece;
    piece->InitImage(QString::fromLatin1(strPathImgNameTable[image]), QString::fromLatin1(kPictureType),
                     static_cast<int>(frame.width), static_cast<int>(frame.height), PathInfo.frmPath);
    ++PathInfo.iItemCnt;
}

void Frame_Movement_SoundBtnAcion(void* context, Button*) {
    if (auto* self = static_cast<Frame_MoveMent*>(context)) ScreenHost::Follow(self, Route::MovementSound);
}

void Frame_Movement_LazerBtnAcion(void* context, Button*) {
    if (auto* self = static_cast<Frame_MoveMent*>(context)) ScreenHost::Follow(self, Route::MovementLazer);
}

void Frame_Movement_BackBtnAcion(void* context, Button*) {
    if (auto* self = static_cast<Frame_MoveMent*>(context)) ScreenHost::Follow(self, Route::MovementBack);
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
