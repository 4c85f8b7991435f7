#pragma once

#include "Button.h"
#include "PATHMAINSTRUCT.h"

#include <optional>

class QLineEdit;

// The movement editor: tabs to the other editors, nine direction bricks, and the path view in
// which a movement is drawn piece by piece from commands.
class Frame_MoveMent : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_MoveMent(const NSRect& frame);

    // Hover registrations of the screen's buttons, made by whoever shows the screen, after
    // showing it.
    void ButtonTrackingOn() override;

    // What the path adds for a command (or an image), shown in the path view.
    void SetPath(qint32 command);
    void SetPathImageFirst();
    void SetPathImageNormal(qint32 image);

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* txtString[5] = {};
    QLineEdit* textText = nullptr; // reserved for a scenario name; never made
    Button* BtnQuestion = nullptr;
    Button* BtnMoveMent = nullptr;
    Button* BtnSound = nullptr;
    Button* BtnLazer = nullptr;
    Button* BtnFace = nullptr;
    Button* BtnPlay = nullptr;
    Button* BtnMoveUp = nullptr;
    Button* BtnMoveLeft = nullptr;
    Button* BtnMoveDown = nullptr;
    Button* BtnMoveRight = nullptr;
    Button* BtnTurnRight = nullptr;
    Button* BtnTrunLeft = nullptr;
    Button* BtnCircleLeft = nullptr;
    Button* BtnCircleRight = nullptr;
    Button* BtnStop = nullptr;
    Button* BtnSelectBar = nullptr;
    Button* BtnArrowUp = nullptr;
    Button* BtnArrowLeft = nullptr;
    Button* BtnArrowDown = nullptr;
    Button* BtnArrowRight = nullptr;
    Button* BtnErase = nullptr;
    Button* BtnRetPlay = nullptr;
    Button* BtnBack = nullptr;
    PATHMAINSTRUCT PathInfo;
    NSViewS* frmPath = nullptr;
    NSImageViewS* PathImg[PathPlacement::kMaxPieces] = {}; // the view of each piece of PathInfo

private:
    // The path view comes last so it lies above everything.
    void InitPathFrame();

    // Makes the view of the piece the path has just added, if it added one.
    void ShowPiece(const std::optional<PATHITEMSTRUCT>& piece);
};

void Frame_Movement_SoundBtnAcion(void* context, Button* button);
void Frame_Movement_BackBtnAcion(void* context, Button* button);
void Frame_Movement_LazerBtnAcion(void* context, Button* button);
void Frame_Movement_MoveUpBtnAcion(void* context, Button* button);
void Frame_Movement_MoveLeftBtnAcion(void* context, Button* button);
void Frame_Movement_MoveDownBtnAcion(void* context, Button* button);
void Frame_Movement_MoveRightBtnAcion(void* context, Button* button);
void Frame_Movement_TrunRightBtnAcion(void* context, Button* button);
void Frame_Movement_TurnLeftBtnAcion(void* context, Button* button);
void Frame_Movement_CircleLeftBtnAcion(void* context, Button* button);
void Frame_Movement_CircleRightBtnAcion(void* context, Button* button);
void Frame_Movement_StopBtnAcion(void* context, Button* button);
