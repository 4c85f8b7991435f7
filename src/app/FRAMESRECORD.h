#pragma once

class Frame_MainMenu;
class Frame_MoveMent;
class Frame_Face;
class Frame_Lazer;
class Frame_Sound;
class Frame_Alarm;
class Frame_Scenario;

// The seven screens, as every navigating screen reaches them. Not owning; always filled field by
// field by name, since its order is not the root view's.
struct FRAMESRECORD {
    Frame_MainMenu* frmMainMenu = nullptr;
    Frame_MoveMent* frmMovement = nullptr;
    Frame_Face* frmFace = nullptr;
    Frame_Lazer* frmLazer = nullptr;
    Frame_Sound* frmSound = nullptr;
    Frame_Alarm* frmAlarm = nullptr;
    Frame_Scenario* frmScenario = nullptr;
};
