#include "Frame_Control.h"

#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "KeyboardNavigation.h"

NSRect Frame_Control::WindowFrame() {
    return MakeNSRect(0, 0, 1024, 768);
}

Frame_Control::Frame_Control(const NSRect& frame) : NSViewS(frame) {
    InitFrame();
    InitInterWorking();
}

Frame_Control::Frame_Control(QWidget* parent) : Frame_Control(WindowFrame()) {
    if (parent) addSubview(parent, this);
}

void Frame_Control::InitFrame() {
    NSRect rect;
    SetNSRect(&rect, 0, 0, 1024, 768);
    frmMainMenu = new Frame_MainMenu(rect);
    frmScenario = new Frame_Scenario(rect);
    frmAlarm = new Frame_Alarm(rect);
    frmMovement = new Frame_MoveMent(rect);
    frmSound = new Frame_Sound(rect);
    frmFace = new Frame_Face(rect);
    frmLazer = new Frame_Lazer(rect);

    addSubview(frmMainMenu);
    addSubview(frmScenario);
    addSubview(frmAlarm);
    addSubview(frmMovement);
    addSubview(frmSound);
    addSubview(frmFace);
    addSubview(frmLazer);
}

void Frame_Control::InitFrameRecord(FRAMESRECORD* record) const {
    if (!record) return;
    record->frmFace = frmFace;
    record->frmMainMenu = frmMainMenu;
    record->frmMovement = frmMovement;
    record->frmLazer = frmLazer;
    record->frmSound = frmSound;
    record->frmAlarm = frmAlarm;
    record->frmScenario = frmScenario;
}

void Frame_Control::InitInterWorking() {
    frmScenario->setHidden(true);
    frmAlarm->setHidden(true);
    frmMovement->setHidden(true);
    frmSound->setHidden(true);
    frmFace->setHidden(true);
    frmLazer->setHidden(true);

    InitFrameRecord(&frmLazer->frmFrameRec);
    InitFrameRecord(&frmFace->frmFrameRec);
    InitFrameRecord(&frmMovement->frmFrameRec);
    InitFrameRecord(&frmSound->frmFrameRec);
    InitFrameRecord(&frmScenario->frmFrameRec);

    // The menu's two ways out are the root view's own: their context is this view as the host.
    ScreenHost* host = this;
    frmMainMenu->BtnProgram->InitButtonAction(Frame_MainMenu_ScenarioBtnAcion, host);
    frmMainMenu->BtnAlarm->InitButtonAction(Frame_MainMenu_AlarmBtnAcion, host);
    connect(&m_navigator, &ScreenNavigator::switched, this, &Frame_Control::ShowScreen);
}

void Frame_Control::Follow(Route route) {
    m_navigator.follow(route);
}

NSViewS* Frame_Control::ScreenOf(ScreenId id) const {
    switch (id) {
    case ScreenId::MainMenu:
        return frmMainMenu;
    case ScreenId::Scenario:
        return frmScenario;
    case ScreenId::Alarm:
        return frmAlarm;
    case ScreenId::Movement:
        return frmMovement;
    case ScreenId::Sound:
        return frmSound;
    case ScreenId::Face:
        return frmFace;
    case ScreenId::Lazer:
        return frmLazer;
    }
    return nullptr;
}

void Frame_Control::ShowScreen(ScreenId from, ScreenId to, bool trackingOn) {
    // The alarm screen's Back leads to the screen that opened it.
    if (to == ScreenId::Alarm) frmAlarm->frmPreframe = ScreenOf(from);
    ScreenOf(from)->setHidden(true);
    NSViewS* shown = ScreenOf(to);
    shown->setHidden(false);
    // Registrations take the rectangle on view, so the screen is shown first.
    if (trackingOn) shown->ButtonTrackingOn();
    // The keyboard starts over on the new screen; the ring shows only if a key brought it here.
    KeyboardNavigation::FocusFirst(shown);
}
