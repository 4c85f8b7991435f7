#include "Frame_Control.h"

#include "Frame_Alarm.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "KeyboardNavigation.h"

#include <algorithm>

namespace {

NSViewS* MakeScreen(ScreenId id, const NSRect& frame) {
    switch (id) {
    case ScreenId::MainMenu:
        return new Frame_MainMenu(frame);
    case ScreenId::Scenario:
        return new Frame_Scenario(frame);
    case ScreenId::Alarm:
        return new Frame_Alarm(frame);
    case ScreenId::Movement:
        return new Frame_MoveMent(frame);
    case ScreenId::Sound:
        return new Frame_Sound(frame);
    case ScreenId::Face:
        return new Frame_Face(frame);
    case ScreenId::Lazer:
        return new Frame_Lazer(frame);
    }
    return nullptr;
}

} // namespace

NSRect Frame_Control::WindowFrame() {
    return MakeNSRect(0, 0, 1024, 768);
}

Frame_Control::Frame_Control(const NSRect& frame) : NSViewS(frame) {
    // The menu buttons appear when the robot arrives: from then on every screen can be reached.
    connect(&frmMainMenu()->robotSlide, &RobotSlide::arrived, this, [this] {
        for (qsizetype i = 0; i < kScreenCount; ++i) ScreenOf(static_cast<ScreenId>(i));
    });
    connect(&m_navigator, &ScreenNavigator::switched, this, &Frame_Control::ShowScreen);
    m_building.setInterval(0);
    connect(&m_building, &QTimer::timeout, this, &Frame_Control::BuildNextScreen);
}

Frame_Control::Frame_Control(QWidget* parent) : Frame_Control(WindowFrame()) {
    if (parent) addSubview(parent, this);
}

NSViewS* Frame_Control::ScreenOf(ScreenId id) const {
    const auto index = static_cast<qsizetype>(id);
    if (index < 0 || index >= kScreenCount) return nullptr;
    if (NSViewS* screen = frmFrameRec[index]) return screen;

    // Each screen builds all its children before it is in the window, so hover registrations made
    // while building never fire; every screen but the first starts hidden.
    NSViewS* screen = MakeScreen(id, MakeNSRect(0, 0, 1024, 768));
    if (id != ScreenId::MainMenu) screen->setHidden(true);
    frmFrameRec[index] = screen;
    auto* self = const_cast<Frame_Control*>(this);
    self->addSubview(screen);
    // The screens stack in the order of the table, whichever was built first.
    for (NSViewS* built : frmFrameRec)
        if (built) built->raise();
    return screen;
}

void Frame_Control::paintEvent(QPaintEvent*) {
    // Painted, the first frame is done: the screens still missing are built from the next pass of
    // the event loop on, one per pass.
    if (!m_building.isActive() &&
        std::find(frmFrameRec.begin(), frmFrameRec.end(), nullptr) != frmFrameRec.end())
        m_building.start();
}

void Frame_Control::BuildNextScreen() {
    for (qsizetype i = 0; i < kScreenCount; ++i) {
        if (frmFrameRec[i]) continue;
        ScreenOf(static_cast<ScreenId>(i));
        return;
    }
    m_building.stop();
}

Frame_MainMenu* Frame_Control::frmMainMenu() const {
    return static_cast<Frame_MainMenu*>(ScreenOf(ScreenId::MainMenu));
}
Frame_Scenario* Frame_Control::frmScenario() const {
    return static_cast<Frame_Scenario*>(ScreenOf(ScreenId::Scenario));
}
Frame_Alarm* Frame_Control::frmAlarm() const {
    return static_cast<Frame_Alarm*>(ScreenOf(ScreenId::Alarm));
}
Frame_MoveMent* Frame_Control::frmMovement() const {
    return static_cast<Frame_MoveMent*>(ScreenOf(ScreenId::Movement));
}
Frame_Sound* Frame_Control::frmSound() const {
    return static_cast<Frame_Sound*>(ScreenOf(ScreenId::Sound));
}
Frame_Face* Frame_Control::frmFace() const {
    return static_cast<Frame_Face*>(ScreenOf(ScreenId::Face));
}
Frame_Lazer* Frame_Control::frmLazer() const {
    return static_cast<Frame_Lazer*>(ScreenOf(ScreenId::Lazer));
}

void Frame_Control::Follow(Route route) {
    m_navigator.follow(route);
}

void Frame_Control::ShowScreen(ScreenId from, ScreenId to, bool trackingOn) {
    ScreenOf(from)->setHidden(true);
    NSViewS* shown = ScreenOf(to);
    shown->setHidden(false);
    // Registrations take the rectangle on view, so the screen is shown first.
    if (trackingOn) shown->ButtonTrackingOn();
    // The keyboard starts over on the new screen; the ring shows only if a key brought it here.
    KeyboardNavigation::FocusFirst(shown);
}
