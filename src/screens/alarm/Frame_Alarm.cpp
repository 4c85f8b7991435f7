#include "Frame_Alarm.h"

#include "DatePickerElements.h"
#include "EntryFieldStyle.h"
#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "SectionClick.h"
#include "ViewAccessible.h"

#include <QDateEdit>
#include <QTimeEdit>

namespace {

// The calendar's range the pickers offer: Qt's own bounds for its date edits.
const QDate kFirstPickableDay(1752, 9, 14);
const QDate kLastPickableDay(9999, 12, 31);

// What the clock on the wall says now, as the pickers hold it: in UTC, with no zone to move it.
QDateTime WallClockNow() {
    const QDateTime now = QDateTime::currentDateTime();
    return QDateTime(now.date(), now.time(), Qt::UTC);
}

Layout::Caption Orange(const char* text, int w, int h) {
    return {text, NSColor::orangeColor(), MakeNSRect(0, 0, w, h), 16};
}

// The two button families of the screen, captioned in white at (8, 8): "Btn01" for On, Off and
// Set, "Btn02" for the values and the frequencies; "Btn03" for the statuses, captioned by Refresh.
Layout::Row Btn01(Button** field, int x, int y, const char* up, const char* text, ButtonCallback action,
                  const char* name = nullptr) {
    return Layout::Family(field, MakeNSRect(x, y, 111, 46), "but_", up, "over_Btn01", "selected_Btn01", name,
                          {text, NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}, action);
}
Layout::Row Btn02(Button** field, int x, int y, const char* up, const char* down, ButtonCallback action,
                  const char* text = nullptr) {
    return Layout::Family(field, MakeNSRect(x, y, 180, 46), "but_", up, "over_Btn02", down, nullptr,
                          {text, NSColor::whiteColor(), MakeNSRect(8, 8, 180, 46), 16}, action);
}
Layout::Row Btn03(Button** field, int y, ButtonCallback action) {
    return Layout::Family(field, MakeNSRect(5, y, 326, 46), "but_", "normal_Btn03", "over_Btn03",
                          "selected_Btn03", nullptr, {}, action);
}

// A page is named for assistive technology, which speaks the name as the focus enters it.
NSViewS* AddPage(NSViewS* screen, const NSRect& frame, const char* name = nullptr) {
    auto* page = new NSViewS(frame);
    if (name) page->setAccessibleName(QString::fromUtf8(name));
    screen->addSubview(page);
    return page;
}

} // namespace

Frame_Alarm::Frame_Alarm(const NSRect& frame) : NSViewS(frame), flow(WallClockNow()) {
    setAccessibleName(QStringLiteral("Alarm"));
    Layout::Build(this,
                  {
                      {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "common_bg"},
                      Layout::HelpButton(&BtnQuestion, MakeNSRect(56, 39, 29, 28)),
                      Layout::SilverButton(&BtnBack, MakeNSRect(714, 711, 85, 40),
                                           {"Back", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}),
                      Layout::SilverButton(&BtnDone, MakeNSRect(839, 711, 85, 40),
                                           {"Done", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16},
                                           true, Frame_Alarm_DoneBtnAction),
                      {.image = &txtAlarmDescription, .frame = MakeNSRect(238, 57, 213, 155)},
                      {.image = &txtSiteTitle,
                       .frame = MakeNSRect(490, 93, 124, 18),
                       .caption = {"Alarm Clock/", NSColor::grayColor(), MakeNSRect(0, 0, 124, 18), 16}},
                      {.image = &txtBigTitle,
                       .frame = MakeNSRect(490, 119, 263, 40),
                       .caption = {"Alarm Clock/", NSColor::whiteColor(), MakeNSRect(0, 0, 263, 40), 24}},
                  });
    InitView();
    KeyboardNavigation::EscapePresses(BtnBack);
    // The keyboard starts at each page's first choice; Escape in an open editor closes it only,
    // back to its button; the confirmation holds the focus while it shows.
    frmChooseView->setFocusProxy(BtnBirthdayStatus);
    frmBirthdayControlView->setFocusProxy(BtnBirthdayOn);
    frmWakeupControlView->setFocusProxy(BtnWakeupOn);
    for (const auto& [editor, opener] : {std::pair{frmBirthDateEditView, BtnBirthDate},
                                         {frmBirthTimeEditView, BtnBirthTime},
                                         {frmWakeupTimeEditView, BtnWakeupTime}})
        KeyboardNavigation::EscapeCalls(editor, [this, opener] {
            flow.OpenEditor(AlarmFlow::Editor::None);
            KeyboardNavigation::FocusIfKeyboardInUse(opener);
        });
    txtDoneMessage->setFocusPolicy(Qt::TabFocus);
    connect(&flow, &AlarmFlow::changed, this, &Frame_Alarm::Refresh);
    Refresh();
}

void Frame_Alarm::InitView() {
    // The editors come before the button views, whose buttons show the texts the editors make;
    // the confirmation page comes last so that it covers everything.
    InitChooseView();
    InitBirthdayControlView();
    InitBirthDateEditView();
    InitBirthTimeEditView();
    InitWakeupTimeEditView();
    InitBirthTimeDateButtonView();
    InitWakeupControlView();
    InitWakeupTimeFreqButtonView();
    InitDoneView();
}

void Frame_Alarm::InitChooseView() {
    frmChooseView = AddPage(this, MakeNSRect(91, 295, 340, 154), "Alarm: choose");
    Layout::Build(frmChooseView,
                  {
                      {.image = &txtChooseTitle,
                       .frame = MakeNSRect(12, 0, 71, 18),
                       .caption = Orange("Choose:", 71, 18)},
                      Btn03(&BtnBirthdayStatus, 34, Frame_Alarm_BirthdayBtnAction),
                      Btn03(&BtnWakeupStatus, 93, Frame_Alarm_WakeupBtnAction),
                  },
                  this);
}

void Frame_Alarm::InitBirthdayControlView() {
    frmBirthdayControlView = AddPage(this, MakeNSRect(91, 308, 363, 89), "Alarm: birthday");
    Layout::Build(frmBirthdayControlView,
                  {
                      {.image = &txtCheckTimeDateTitle,
                       .frame = MakeNSRect(33, 6, 250, 19),
                       .caption = Orange("Check the time and date:", 250, 19)},
                      Btn01(&BtnBirthdayOn, 33, 32, "normal_Btn01", "On", Frame_Alarm_BirthOnBtnAction,
                            "Birthday alarm, On"),
                      Btn01(&BtnBirthdayOff, 144, 32, "selected_Btn01", "Off", Frame_Alarm_BirthOffBtnAction,
                            "Birthday alarm, Off"),
                  },
                  this);
}

void Frame_Alarm::InitEditView(NSViewS*& editor, NSImageViewS*& ground, QDateTimeEdit* picker, int elements,
                               const QDateTime& value, Button*& setButton, ButtonCallback setAction) {
    editor = AddPage(this, MakeNSRect(534, 339, 372, 75));
    Layout::Build(editor, {{.image = &ground, .frame = MakeNSRect(0, 0, 227, 72), .up = "textbox"}});

    picker->setGeometry(MakeNSRect(18, 0, 195, 50).toRect());
    ApplyEntryFieldStyle(picker);
    SectionClick::Install(picker);
    SetDatePickerElements(picker, elements);
    // A birthday is a calendar date and an alarm a time on the clock: the pickers hold them as
    // wall-clock fields in a spec without transitions, so no zone can skip, move or refuse one
    // (a day a zone skipped, a first date whose local offset is not a whole minute). The range
    // is set again in that spec; Qt keeps the old bounds as instants.
    picker->setTimeSpec(Qt::UTC);
    picker->setDateTimeRange(QDateTime(kFirstPickableDay, QTime(0, 0), Qt::UTC),
                             QDateTime(kLastPickableDay, QTime(23, 59, 59, 999), Qt::UTC));
    picker->setDateTime(value);
    addSubview(editor, picker);

    Layout::Build(editor, {Btn01(&setButton, 257, 23, "normal_Btn01", "Set", setAction)}, this);
    KeyboardNavigation::ReturnPresses(editor, setButton);
}

void Frame_Alarm::InitBirthDateEditView() {
    txtBirthDate = new QDateEdit;
    txtBirthDate->setAccessibleName(QStringLiteral("Birthday date"));
    InitEditView(frmBirthDateEditView, txtFieldGround, txtBirthDate, DatePickerElements::YearMonthDay,
                 flow.birthDate(), BtnBirthDateSet, Frame_Alarm_BirthDateSetBtnAction);
}

void Frame_Alarm::InitBirthTimeEditView() {
    txtBirthTime = new QTimeEdit;
    txtBirthTime->setAccessibleName(QStringLiteral("Birthday time"));
    InitEditView(frmBirthTimeEditView, txtBirthTimeFieldGround, txtBirthTime, DatePickerElements::HourMinute,
                 flow.birthTime(), BtnBirthTimeSet, Frame_Alarm_BirthTimeSetBtnAction);
}

void Frame_Alarm::InitWakeupTimeEditView() {
    txtWakeupTime = new QTimeEdit;
    txtWakeupTime->setAccessibleName(QStringLiteral("Wake up time"));
    InitEditView(frmWakeupTimeEditView, txtWakeupTimeFieldGround, txtWakeupTime,
                 DatePickerElements::HourMinute, flow.wakeupTime(), BtnWakeupTimeSet,
                 Frame_Alarm_WakeupTimeSetBtnAction);
}

void Frame_Alarm::InitBirthTimeDateButtonView() {
    frmBirthTimeDateButtonView = AddPage(this, MakeNSRect(91, 412, 363, 108));
    Layout::Build(
        frmBirthTimeDateButtonView,
        {
            {.image = &txtBirthDateTitle,
             .frame = MakeNSRect(11, 17, 52, 19),
             .caption = Orange("Date:", 49, 19)},
            {.image = &txtBirthTimeTitle,
             .frame = MakeNSRect(11, 66, 52, 19),
             .caption = Orange("Time:", 49, 19)},
            Btn02(&BtnBirthDate, 114, 5, "normal_Btn02", "over_Btn02", Frame_Alarm_BirthDateBtnAction),
            Btn02(&BtnBirthTime, 114, 58, "normal_Btn02", "over_Btn02", Frame_Alarm_BirthTimeBtnAction),
        },
        this);
    // Made before the screen is on view, so these never fire: the two buttons never show their
    // move picture.
    RegisterHover({BtnBirthTime, BtnBirthDate});
}

void Frame_Alarm::InitWakeupControlView() {
    frmWakeupControlView = AddPage(this, MakeNSRect(102, 313, 350, 72), "Alarm: wake-up");
    Layout::Build(frmWakeupControlView,
                  {
                      {.image = &txtWakeupTitle, .frame = MakeNSRect(0, 0, 350, 19)},
                      Btn01(&BtnWakeupOn, 22, 28, "selected_Btn01", "On", Frame_Alarm_WakeupOnBtnAction,
                            "Wake up alarm, On"),
                      Btn01(&BtnWakeupOff, 133, 28, "disabled_Btn01", "Off", Frame_Alarm_WakeupOffBtnAction,
                            "Wake up alarm, Off"),
                  },
                  this);
}

void Frame_Alarm::InitWakeupTimeFreqButtonView() {
    frmWakeupTimeFreqButtonView = AddPage(this, MakeNSRect(102, 420, 350, 198));
    Layout::Build(
        frmWakeupTimeFreqButtonView,
        {
            {.image = &txtWakeupTimeTitle,
             .frame = MakeNSRect(0, 12, 350, 19),
             .caption = Orange("Time:", 350, 19)},
            {.image = &txtWakeupFreqTitle,
             .frame = MakeNSRect(0, 60, 350, 19),
             .caption = Orange("Frequency:", 350, 19)},
            Btn02(&BtnWakeupTime, 101, 0, "normal_Btn02", "selected_Btn02", Frame_Alarm_WakeupTimeBtnAction),
            Btn02(&BtnWakeupFreq1, 101, 50, "disabled_Btn02", "selected_Btn02",
                  Frame_Alarm_WakeupFreq1BtnAction, "Once"),
            Btn02(&BtnWakeupFreq2, 101, 100, "disabled_Btn02", "selected_Btn02",
                  Frame_Alarm_WakeupFreq2BtnAction, "Daily"),
            Btn02(&BtnWakeupFreq3, 101, 150, "disabled_Btn02", "selected_Btn02",
                  Frame_Alarm_WakeupFreq3BtnAction, "Friday To Monday"),
        },
        this);
}

void Frame_Alarm::InitDoneView() {
    frmDoneView = AddPage(this, MakeNSRect(0, 0, 1024, 768), "Alarm: confirmation");
    // Shown, an alert: readers announce it with the text it holds.
    ViewAccessible::SetRole(frmDoneView, QAccessible::AlertMessage);
    Layout::Build(frmDoneView,
                  {
                      {.image = &imgDoneBackGround,
                       .frame = MakeNSRect(0, 0, 1024, 768),
                       .up = "Pim_confirmation",
                       .type = "jpg"},
                      {.image = &txtDoneSiteTitle,
                       .frame = MakeNSRect(490, 93, 124, 18),
                       .caption = {"Alarm Clock/", NSColor::grayColor(), MakeNSRect(0, 0, 124, 18), 16}},
                      {.image = &txtDoneBigTitle, .frame = MakeNSRect(490, 119, 263, 40)},
                      {.image = &txtDoneMessage, .frame = MakeNSRect(282, 294, 167, 110)},
                  });
}
