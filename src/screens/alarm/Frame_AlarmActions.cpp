#include "Frame_Alarm.h"

#include "DatePickerElements.h"
#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "NSLog.h"
#include "ScreenHost.h"

#include <QDateEdit>
#include <QTimeEdit>

namespace {

using Page = AlarmFlow::Page;
using Editor = AlarmFlow::Editor;

const char* const kChooseDescription = "Choose if you want\n your alarm to be on\n  or off.";
const char* const kBirthdayDescription =
    "If you choose the \nbirthday alarm to be \n\"on\",please complete \nthe "
    "\"date\" and \"time\" \ninformation.";
const char* const kWakeupDescription =
    "If you choose the \nwake up alarm to be \n\"on\",please complete \nthe "
    "\"time\", \"date\" \nand \"Frequency\" \ninformation.";
const char* const kBirthdayMessage =
    "Birthday Alarm is \non!!! It means I'll\ncongraduate\nyou on your\nbirthday!";
const char* const kWakeupMessage =
    "Wake up Alarm is \non!!! It means I'll\nwake you up at\nthe day and time\nyou "
    "have set!";

Frame_Alarm* Screen(void* context) {
    return static_cast<Frame_Alarm*>(context);
}

void Caption(NSImageViewS* view, const char* text, const QColor& color, NSRect loc, int size) {
    Layout::SetCaption(view, {text, color, loc, size});
}

// A value's button: the value as its caption, and as its name with the label it is read by.
void Value(Button* button, const char* label, const QString& text) {
    button->InitText(text, NSColor::whiteColor(), 0, MakeNSRect(8, 8, 180, 46),
                     QString::fromLatin1(Layout::kFontName), 16);
    button->setAccessibleName(text.isEmpty() ? QString::fromUtf8(label)
                                             : label + QStringLiteral(", ") + text);
}

// New pictures only where the look changes: setting them again would also drop a hover look.
void SetUp(Button* button, const char* up, const char* move, const char* down) {
    if (!button || button->BtnImageUp.name() == QLatin1String(up)) return;
    button->InitImage(QString::fromLatin1(up), QString::fromLatin1(move), QString::fromLatin1(down),
                      QStringLiteral("png"), qobject_cast<NSViewS*>(button->parentWidget()));
}

// The pair of On and Off buttons of one alarm: the chosen state looks selected, the other off;
// a pair never pressed keeps On plain.
void SetOnOffLooks(Button* on, Button* off, bool onChosen, bool switched) {
    const char* const selected = "but_selected_Btn01";
    const char* const disabled = "but_disabled_Btn01";
    SetUp(on, onChosen ? selected : switched ? disabled : "but_normal_Btn01", "but_over_Btn01", selected);
    SetUp(off, onChosen ? disabled : selected, "but_over_Btn01", selected);
    on->setChoice(Button::Choice::Check, onChosen);
    off->setChoice(Button::Choice::Check, !onChosen);
}

// Set: the picker's value as it stands, shown with the elements its button writes.
QDateTime Picked(QDateTimeEdit* picker, int elements) {
    SetDatePickerElements(picker, elements);
    return picker ? picker->dateTime() : QDateTime();
}

} // namespace

void Frame_Alarm::Refresh() {
    const Page page = flow.page();
    const bool alarmPage = page == Page::Birthday || page == Page::Wakeup;
    frmChooseView->setHidden(page != Page::Choose);
    frmBirthdayControlView->setHidden(page != Page::Birthday);
    frmBirthTimeDateButtonView->setHidden(page != Page::Birthday || !flow.valuesShown());
    frmWakeupControlView->setHidden(page != Page::Wakeup);
    frmWakeupTimeFreqButtonView->setHidden(page != Page::Wakeup || !flow.valuesShown());
    frmBirthDateEditView->setHidden(flow.editor() != Editor::BirthDate);
    frmBirthTimeEditView->setHidden(flow.editor() != Editor::BirthTime);
    frmWakeupTimeEditView->setHidden(flow.editor() != Editor::WakeupTime);
    frmDoneView->setHidden(page != Page::Confirmation);
    // Done stays under the confirmation page, which covers it.
    BtnDone->setHidden(page == Page::Choose);
    txtBigTitle->setHidden(!alarmPage);
    if (flow.backTarget() == AlarmFlow::Back::MainMenu)
        InitBackBtnToMainMenuInterWorking();
    else
        InitBackBtnToChooseInterWorking();

    const NSRect statusLoc = MakeNSRect(8, 8, 326, 46);
    Caption(BtnBirthdayStatus, flow.enableBirthday() ? "Birthday alarm:On" : "Birthday alarm:Off",
            NSColor::whiteColor(), statusLoc, 16);
    Caption(BtnWakeupStatus, flow.enableWakeup() ? "Wake up alarm:On" : "Wake up alarm:Off",
            NSColor::whiteColor(), statusLoc, 16);
    const qint32 last = flow.flagBirthdayWakeup();
    if (page == Page::Choose)
        Caption(txtAlarmDescription, kChooseDescription, NSColor::orangeColor(), MakeNSRect(0, 27, 209, 76),
                16);
    else
        Caption(txtAlarmDescription, last == 1 ? kBirthdayDescription : kWakeupDescription,
                NSColor::orangeColor(), MakeNSRect(0, 15, 209, 76), 16);
    if (last != 0)
        Caption(txtBigTitle, last == 1 ? "Birthday Alarm" : "Wake up Alarm", NSColor::whiteColor(),
                MakeNSRect(0, 0, 263, 40), 24);
    // Made at 16 points; the On and Off presses write it at 15.
    Caption(txtWakeupTitle,
            flow.enableWakeup() ? "Check information about wake up alarm:" : "Change the status:",
            NSColor::orangeColor(), MakeNSRect(0, 0, 350, 19), flow.wakeupSwitched() ? 15 : 16);
    const bool wakeupConfirmed = flow.confirmation() == AlarmFlow::Alarm::Wakeup;
    Caption(txtDoneBigTitle, wakeupConfirmed ? "Wake up Alarm" : "Birthday Alarm", NSColor::whiteColor(),
            MakeNSRect(0, 0, 263, 40), 24);
    Caption(txtDoneMessage, wakeupConfirmed ? kWakeupMessage : kBirthdayMessage, NSColor::orangeColor(),
            MakeNSRect(0, 0, 155, 110), 14);

    Value(BtnBirthDate, "Birthday date", flow.formattedBirthDateString());
    Value(BtnBirthTime, "Birthday time", flow.formattedBirthTimeString());
    Value(BtnWakeupTime, "Wake up time", flow.formattedWakeupTimeString());

    SetOnOffLooks(BtnBirthdayOn, BtnBirthdayOff, flow.enableBirthday(), flow.birthdaySwitched());
    SetOnOffLooks(BtnWakeupOn, BtnWakeupOff, flow.enableWakeup(), true);
    Button* const frequencies[] = {BtnWakeupFreq1, BtnWakeupFreq2, BtnWakeupFreq3};
    for (qint32 i = 0; i < 3; ++i) {
        const bool chosen = i == flow.typeFrequency();
        SetUp(frequencies[i], chosen ? "but_selected_Btn02" : "but_disabled_Btn02", "but_over_Btn02",
              "but_selected_Btn02");
        frequencies[i]->setChoice(Button::Choice::Check, chosen);
    }
}

// Back's target depends on the page, so Back is registered again on every page change.
void Frame_Alarm::InitBackBtnToMainMenuInterWorking() {
    if (BtnBack) BtnBack->InitButtonAction(Frame_Alarm_BackToMainMenuBtnAction, this);
}

void Frame_Alarm::InitBackBtnToChooseInterWorking() {
    if (BtnBack) BtnBack->InitButtonAction(Frame_Alarm_BackToChooseBtnAction, this);
}

void Frame_Alarm::ButtonTrackingOn() {
    RegisterHover({BtnQuestion, BtnBirthdayStatus, BtnWakeupStatus, BtnBack, BtnDone});
}

// Each callback passes the press into the flow, whose change redraws the screen at once; the
// hover registrations come after, as they take the buttons' rectangles on view.

void Frame_Alarm_BirthdayBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.PressBirthdayStatus();
    RegisterHover({s->BtnBirthdayOn, s->BtnBirthdayOff, s->BtnDone});
}

void Frame_Alarm_WakeupBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.PressWakeupStatus();
    RegisterHover({s->BtnWakeupOn, s->BtnWakeupOff, s->BtnDone});
}

void Frame_Alarm_BirthOnBtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) s->flow.BirthdayOn();
}

void Frame_Alarm_BirthOffBtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) s->flow.BirthdayOff();
}

void Frame_Alarm_WakeupOnBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.WakeupOn();
    RegisterHover({s->BtnWakeupTime, s->BtnWakeupFreq1, s->BtnWakeupFreq2, s->BtnWakeupFreq3});
}

void Frame_Alarm_WakeupOffBtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) s->flow.WakeupOff();
}

void Frame_Alarm_BirthDateBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.OpenEditor(Editor::BirthDate);
    RegisterHover({s->BtnBirthDateSet});
    KeyboardNavigation::FocusIfKeyboardInUse(s->txtBirthDate);
}

void Frame_Alarm_BirthTimeBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.OpenEditor(Editor::BirthTime);
    RegisterHover({s->BtnBirthTimeSet});
    KeyboardNavigation::FocusIfKeyboardInUse(s->txtBirthTime);
}

void Frame_Alarm_WakeupTimeBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.OpenEditor(Editor::WakeupTime);
    RegisterHover({s->BtnWakeupTimeSet});
    KeyboardNavigation::FocusIfKeyboardInUse(s->txtWakeupTime);
}

// Set closes the editor: the keyboard goes back to the button that opened it.
void Frame_Alarm_BirthDateSetBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.SetBirthDate(Picked(s->txtBirthDate, DatePickerElements::YearMonthDay));
    KeyboardNavigation::FocusIfKeyboardInUse(s->BtnBirthDate);
}

void Frame_Alarm_BirthTimeSetBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.SetBirthTime(Picked(s->txtBirthTime, DatePickerElements::HourMinute));
    KeyboardNavigation::FocusIfKeyboardInUse(s->BtnBirthTime);
}

void Frame_Alarm_WakeupTimeSetBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flow.SetWakeupTime(Picked(s->txtWakeupTime, DatePickerElements::HourMinute));
    KeyboardNavigation::FocusIfKeyboardInUse(s->BtnWakeupTime);
}

void Frame_Alarm_WakeupFreqBtnAction(void* context, Button* button) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    const Button* const frequencies[] = {s->BtnWakeupFreq1, s->BtnWakeupFreq2, s->BtnWakeupFreq3};
    for (qint32 type = 0; type < 3; ++type)
        if (frequencies[type] == button) s->flow.ChooseFrequency(type);
}

void Frame_Alarm_BackToChooseBtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) s->flow.BackToChoose();
}

void Frame_Alarm_BackToMainMenuBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    NSLog(QStringLiteral("BackToMainMenu"));
    // The route is taken only while the alarm screen is the one shown; otherwise it stays put.
    ScreenHost::FollowFrom(s, Route::AlarmBack);
}

void Frame_Alarm_DoneBtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) s->flow.Done();
}
