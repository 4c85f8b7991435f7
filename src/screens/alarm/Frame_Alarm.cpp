#include "Frame_Alarm.h"

#include "DatePickerElements.h"
#include "EntryFieldStyle.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "NSLog.h"
#include "ScreenHost.h"

#include <QDateEdit>
#include <QTimeEdit>
#include <QTimer>

#include <initializer_list>

namespace {

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
const char* const kWakeupOnTitle = "Check information about wake up alarm:";
const char* const kWakeupOffTitle = "Change the status:";

// The calendar's range the pickers offer: Qt's own bounds for its date edits.
const QDate kFirstPickableDay(1752, 9, 14);
const QDate kLastPickableDay(9999, 12, 31);

const char* BirthdayStatusText(qint32 enable) {
    return enable ? "Birthday alarm:On" : "Birthday alarm:Off";
}
const char* WakeupStatusText(qint32 enable) {
    return enable ? "Wake up alarm:On" : "Wake up alarm:Off";
}

Frame_Alarm* Screen(void* context) {
    return static_cast<Frame_Alarm*>(context);
}

void Show(std::initializer_list<QWidget*> widgets) {
    for (QWidget* w : widgets)
        if (w) w->setHidden(false);
}
void Hide(std::initializer_list<QWidget*> widgets) {
    for (QWidget* w : widgets)
        if (w) w->setHidden(true);
}

void SetPictures(Button* button, const char* up, const char* move, const char* down, NSViewS* parent) {
    if (button) button->InitImage(up, move, down, QStringLiteral("png"), parent);
}

// The pair of On and Off buttons of one alarm: the chosen state looks selected, the other off.
void SetOnOffLooks(Button* on, Button* off, bool onChosen, NSViewS* parent) {
    const char* const selected = "but_selected_Btn01";
    const char* const disabled = "but_disabled_Btn01";
    SetPictures(on, onChosen ? selected : disabled, "but_over_Btn01", selected, parent);
    SetPictures(off, onChosen ? disabled : selected, "but_over_Btn01", selected, parent);
}

void SetValueCaption(Button* button, const QString& text) {
    if (button)
        button->InitText(text, NSColor::whiteColor(), 0, MakeNSRect(8, 8, 180, 46),
                         QString::fromLatin1(Layout::kFontName), 16);
}

NSViewS* AddPage(NSViewS* screen, const NSRect& frame) {
    auto* page = new NSViewS(frame);
    screen->addSubview(page);
    return page;
}

Layout::Caption BigTitle(const char* text) {
    return {text, NSColor::whiteColor(), MakeNSRect(0, 0, 263, 40), 24};
}
Layout::Caption Description(const char* text, int y) {
    return {text, NSColor::orangeColor(), MakeNSRect(0, y, 209, 76), 16};
}
Layout::Caption WakeupTitle(const char* text, int size) {
    return {text, NSColor::orangeColor(), MakeNSRect(0, 0, 350, 19), size};
}
Layout::Caption DoneMessage(const char* text) {
    return {text, NSColor::orangeColor(), MakeNSRect(0, 0, 155, 110), 14};
}

// Opening one editor closes the two others: they share one place on the window.
void OpenEditor(NSViewS* shown, NSViewS* hiddenFirst, NSViewS* hiddenSecond, Button* setButton) {
    Show({shown});
    Hide({hiddenFirst, hiddenSecond});
    RegisterHover({setButton});
}

// Set: the picker's value as it stands, through a formatter made for this Set, onto the button.
void TakePickedValue(QDateTimeEdit* picker, int elements, std::unique_ptr<DateFormatter>& formatter,
                     const char* format, QString& text, Button* button, NSViewS* editor) {
    SetDatePickerElements(picker, elements);
    formatter = std::make_unique<DateFormatter>(QString::fromLatin1(format), false);
    text = picker ? formatter->stringFromDate(picker->dateTime()) : QString();
    SetValueCaption(button, text);
    Hide({editor});
}

void ChooseFrequency(Frame_Alarm* s, qint32 type) {
    s->typeFrequency = type;
    Button* const buttons[] = {s->BtnWakeupFreq1, s->BtnWakeupFreq2, s->BtnWakeupFreq3};
    for (qint32 i = 0; i < 3; ++i)
        SetPictures(buttons[i], i == type ? "but_selected_Btn02" : "but_disabled_Btn02", "but_over_Btn02",
                    "but_selected_Btn02", s->frmWakeupTimeFreqButtonView);
}

} // namespace

Frame_Alarm::Frame_Alarm(const NSRect& frame) : NSViewS(frame), m_createdAt(QDateTime::currentDateTime()) {
    Layout::Build(
        this, {
                  {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "common_bg"},
                  Layout::HelpButton(&BtnQuestion, MakeNSRect(56, 39, 29, 28)),
                  Layout::SilverButton(&BtnBack, MakeNSRect(714, 711, 85, 40),
                                       {"Back", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}),
                  Layout::SilverButton(&BtnDone, MakeNSRect(839, 711, 85, 40),
                                       {"Done", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}, true),
                  {.image = &txtAlarmDescription,
                   .frame = MakeNSRect(238, 57, 213, 155),
                   .caption = Description(kChooseDescription, 27)},
                  {.image = &txtSiteTitle,
                   .frame = MakeNSRect(490, 93, 124, 18),
                   .caption = {"Alarm Clock/", NSColor::grayColor(), MakeNSRect(0, 0, 124, 18), 16}},
                  {.image = &txtBigTitle,
                   .frame = MakeNSRect(490, 119, 263, 40),
                   .caption = BigTitle("Alarm Clock/")},
              });
    flagBirthdayWakeup = 0;
    InitView();
    InitAlarmInterWorking();
    txtBigTitle->setHidden(true);
    BtnDone->InitButtonAction(Frame_Alarm_DoneBtnAction, this);
    BtnBack->InitButtonAction(Frame_Alarm_BackToMainMenuBtnAction, this);
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

    Show({frmChooseView});
    Hide({frmBirthdayControlView, frmBirthTimeDateButtonView, frmBirthDateEditView, frmBirthTimeEditView,
          frmWakeupTimeEditView, frmWakeupControlView, frmWakeupTimeFreqButtonView, frmDoneView});
}

void Frame_Alarm::InitChooseView() {
    frmChooseView = AddPage(this, MakeNSRect(91, 295, 340, 154));
    Layout::Build(frmChooseView,
                  {
                      {.image = &txtChooseTitle,
                       .frame = MakeNSRect(12, 0, 71, 18),
                       .caption = {"Choose:", NSColor::orangeColor(), MakeNSRect(0, 0, 71, 18), 16}},
                      {.button = &BtnBirthdayStatus,
                       .frame = MakeNSRect(5, 34, 326, 46),
                       .up = "but_normal_Btn03",
                       .move = "but_over_Btn03",
                       .down = "but_selected_Btn03",
                       .caption = {BirthdayStatusText(enableBirthday), NSColor::whiteColor(),
                                   MakeNSRect(8, 8, 326, 46), 16}},
                      {.button = &BtnWakeupStatus,
                       .frame = MakeNSRect(5, 93, 326, 46),
                       .up = "but_normal_Btn03",
                       .move = "but_over_Btn03",
                       .down = "but_selected_Btn03",
                       .caption = {WakeupStatusText(enableWakeup), NSColor::whiteColor(),
                                   MakeNSRect(8, 8, 326, 46), 16}},
                  });
}

void Frame_Alarm::InitBirthdayControlView() {
    frmBirthdayControlView = AddPage(this, MakeNSRect(91, 308, 363, 89));
    Layout::Build(
        frmBirthdayControlView,
        {
            {.image = &txtCheckTimeDateTitle,
             .frame = MakeNSRect(33, 6, 250, 19),
             .caption = {"Check the time and date:", NSColor::orangeColor(), MakeNSRect(0, 0, 250, 19), 16}},
            {.button = &BtnBirthdayOn,
             .frame = MakeNSRect(33, 32, 111, 46),
             .up = enableBirthday ? "but_selected_Btn01" : "but_normal_Btn01",
             .move = "but_over_Btn01",
             .down = "but_selected_Btn01",
             .caption = {"On", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}},
            {.button = &BtnBirthdayOff,
             .frame = MakeNSRect(144, 32, 111, 46),
             .up = enableBirthday ? "but_disabled_Btn01" : "but_selected_Btn01",
             .move = "but_over_Btn01",
             .down = "but_selected_Btn01",
             .caption = {"Off", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}},
        });
}

void Frame_Alarm::InitEditView(NSViewS*& editor, NSImageViewS*& ground, QDateTimeEdit* picker, int elements,
                               std::unique_ptr<DateFormatter>& formatter, const char* format, QString& text,
                               Button*& setButton) {
    editor = AddPage(this, MakeNSRect(534, 339, 372, 75));
    Layout::Build(editor, {{.image = &ground, .frame = MakeNSRect(0, 0, 227, 72), .up = "textbox"}});

    picker->setGeometry(MakeNSRect(18, 0, 195, 50).toRect());
    ApplyEntryFieldStyle(picker);
    SetDatePickerElements(picker, elements);
    // A birthday is a calendar date and an alarm a time on the clock: the pickers hold them as
    // wall-clock fields in a spec without transitions, so no zone can skip, move or refuse one
    // (a day a zone skipped, a first date whose local offset is not a whole minute). The range
    // is set again in that spec; Qt keeps the old bounds as instants.
    picker->setTimeSpec(Qt::UTC);
    picker->setDateTimeRange(QDateTime(kFirstPickableDay, QTime(0, 0), Qt::UTC),
                             QDateTime(kLastPickableDay, QTime(23, 59, 59, 999), Qt::UTC));
    picker->setDateTime(QDateTime(m_createdAt.date(), m_createdAt.time(), Qt::UTC));
    formatter = std::make_unique<DateFormatter>(QString::fromLatin1(format), false);
    text = formatter->stringFromDate(picker->dateTime());
    AddSubview(editor, picker);

    Layout::Build(editor, {{.button = &setButton,
                            .frame = MakeNSRect(257, 23, 111, 46),
                            .up = "but_normal_Btn01",
                            .move = "but_over_Btn01",
                            .down = "but_selected_Btn01",
                            .caption = {"Set", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}}});
}

void Frame_Alarm::InitBirthDateEditView() {
    txtBirthDate = new QDateEdit;
    txtBirthDate->setAccessibleName(QStringLiteral("Birthday date"));
    InitEditView(frmBirthDateEditView, txtFieldGround, txtBirthDate, DatePickerElements::YearMonthDay,
                 forBirthDateFormatter, kAlarmDateFormat, formattedBirthDateString, BtnBirthDateSet);
}

void Frame_Alarm::InitBirthTimeEditView() {
    txtBirthTime = new QTimeEdit;
    txtBirthTime->setAccessibleName(QStringLiteral("Birthday time"));
    InitEditView(frmBirthTimeEditView, txtBirthTimeFieldGround, txtBirthTime, DatePickerElements::HourMinute,
                 forBirthTimeFormatter, kAlarmTimeFormat, formattedBirthTimeString, BtnBirthTimeSet);
}

void Frame_Alarm::InitWakeupTimeEditView() {
    txtWakeupTime = new QTimeEdit;
    txtWakeupTime->setAccessibleName(QStringLiteral("Wake up time"));
    InitEditView(frmWakeupTimeEditView, txtWakeupTimeFieldGround, txtWakeupTime,
                 DatePickerElements::HourMinute, forWakeupTimeFormatter, kAlarmTimeFormat,
                 formattedWakeupTimeString, BtnWakeupTimeSet);
}

void Frame_Alarm::InitBirthTimeDateButtonView() {
    frmBirthTimeDateButtonView = AddPage(this, MakeNSRect(91, 412, 363, 108));
    const QByteArray date = formattedBirthDateString.toUtf8();
    const QByteArray time = formattedBirthTimeString.toUtf8();
    Layout::Build(frmBirthTimeDateButtonView,
                  {
                      {.image = &txtBirthDateTitle,
                       .frame = MakeNSRect(11, 17, 52, 19),
                       .caption = {"Date:", NSColor::orangeColor(), MakeNSRect(0, 0, 49, 19), 16}},
                      {.image = &txtBirthTimeTitle,
                       .frame = MakeNSRect(11, 66, 52, 19),
                       .caption = {"Time:", NSColor::orangeColor(), MakeNSRect(0, 0, 49, 19), 16}},
                      {.button = &BtnBirthDate,
                       .frame = MakeNSRect(114, 5, 180, 46),
                       .up = "but_normal_Btn02",
                       .move = "but_over_Btn02",
                       .down = "but_over_Btn02",
                       .caption = {date.constData(), NSColor::whiteColor(), MakeNSRect(8, 8, 180, 46), 16}},
                      {.button = &BtnBirthTime,
                       .frame = MakeNSRect(114, 58, 180, 46),
                       .up = "but_normal_Btn02",
                       .move = "but_over_Btn02",
                       .down = "but_over_Btn02",
                       .caption = {time.constData(), NSColor::whiteColor(), MakeNSRect(8, 8, 180, 46), 16}},
                  });
    // Made before the screen is on view, so these never fire: the two buttons never show their
    // move picture.
    RegisterHover({BtnBirthTime, BtnBirthDate});
}

void Frame_Alarm::InitWakeupControlView() {
    frmWakeupControlView = AddPage(this, MakeNSRect(102, 313, 350, 72));
    Layout::Build(frmWakeupControlView,
                  {
                      {.image = &txtWakeupTitle,
                       .frame = MakeNSRect(0, 0, 350, 19),
                       .caption = WakeupTitle(enableWakeup ? kWakeupOnTitle : kWakeupOffTitle, 16)},
                      {.button = &BtnWakeupOn,
                       .frame = MakeNSRect(22, 28, 111, 46),
                       .up = "but_selected_Btn01",
                       .move = "but_over_Btn01",
                       .down = "but_selected_Btn01",
                       .caption = {"On", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}},
                      {.button = &BtnWakeupOff,
                       .frame = MakeNSRect(133, 28, 111, 46),
                       .up = "but_disabled_Btn01",
                       .move = "but_over_Btn01",
                       .down = "but_selected_Btn01",
                       .caption = {"Off", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}},
                  });
}

void Frame_Alarm::InitWakeupTimeFreqButtonView() {
    frmWakeupTimeFreqButtonView = AddPage(this, MakeNSRect(102, 420, 350, 198));
    const QByteArray time = formattedWakeupTimeString.toUtf8();
    const auto frequency = [](Button** field, int y, const char* text) {
        return Layout::Row{.button = field,
                           .frame = MakeNSRect(101, y, 180, 46),
                           .up = "but_disabled_Btn02",
                           .move = "but_over_Btn02",
                           .down = "but_selected_Btn02",
                           .caption = {text, NSColor::whiteColor(), MakeNSRect(8, 8, 180, 46), 16}};
    };
    Layout::Build(frmWakeupTimeFreqButtonView,
                  {
                      {.image = &txtWakeupTimeTitle,
                       .frame = MakeNSRect(0, 12, 350, 19),
                       .caption = WakeupTitle("Time:", 16)},
                      {.image = &txtWakeupFreqTitle,
                       .frame = MakeNSRect(0, 60, 350, 19),
                       .caption = WakeupTitle("Frequency:", 16)},
                      {.button = &BtnWakeupTime,
                       .frame = MakeNSRect(101, 0, 180, 46),
                       .up = "but_normal_Btn02",
                       .move = "but_over_Btn02",
                       .down = "but_selected_Btn02",
                       .caption = {time.constData(), NSColor::whiteColor(), MakeNSRect(8, 8, 180, 46), 16}},
                      frequency(&BtnWakeupFreq1, 50, "Once"),
                      frequency(&BtnWakeupFreq2, 100, "Daily"),
                      frequency(&BtnWakeupFreq3, 150, "Friday To Monday"),
                  });
    Button* chosen = nullptr;
    switch (typeFrequency) {
    case 0:
        chosen = BtnWakeupFreq1;
        break;
    case 1:
        chosen = BtnWakeupFreq2;
        break;
    case 2:
        chosen = BtnWakeupFreq3;
        break;
    default:
        break;
    }
    SetPictures(chosen, "but_selected_Btn02", "but_over_Btn02", "but_selected_Btn02",
                frmWakeupTimeFreqButtonView);
}

void Frame_Alarm::InitDoneView() {
    frmDoneView = AddPage(this, MakeNSRect(0, 0, 1024, 768));
    Layout::Build(frmDoneView,
                  {
                      {.image = &imgDoneBackGround,
                       .frame = MakeNSRect(0, 0, 1024, 768),
                       .up = "Pim_confirmation",
                       .type = "jpg"},
                      {.image = &txtDoneSiteTitle,
                       .frame = MakeNSRect(490, 93, 124, 18),
                       .caption = {"Alarm Clock/", NSColor::grayColor(), MakeNSRect(0, 0, 124, 18), 16}},
                      {.image = &txtDoneBigTitle,
                       .frame = MakeNSRect(490, 119, 263, 40),
                       .caption = BigTitle("Birthday Alarm")},
                      {.image = &txtDoneMessage,
                       .frame = MakeNSRect(282, 294, 167, 110),
                       .caption = DoneMessage(kBirthdayMessage)},
                  });
}

void Frame_Alarm::InitAlarmInterWorking() {
    const struct {
        Button* button;
        ButtonCallback action;
    } table[] = {
        {BtnBirthdayStatus, Frame_Alarm_BirthdayBtnAction},
        {BtnWakeupStatus, Frame_Alarm_WakeupBtnAction},
        {BtnBirthdayOn, Frame_Alarm_BirthOnBtnAction},
        {BtnBirthdayOff, Frame_Alarm_BirthOffBtnAction},
        {BtnBirthDate, Frame_Alarm_BirthDateBtnAction},
        {BtnBirthDateSet, Frame_Alarm_BirthDateSetBtnAction},
        {BtnBirthTime, Frame_Alarm_BirthTimeBtnAction},
        {BtnBirthTimeSet, Frame_Alarm_BirthTimeSetBtnAction},
        {BtnWakeupTime, Frame_Alarm_WakeupTimeBtnAction},
        {BtnWakeupTimeSet, Frame_Alarm_WakeupTimeSetBtnAction},
        {BtnWakeupOn, Frame_Alarm_WakeupOnBtnAction},
        {BtnWakeupOff, Frame_Alarm_WakeupOffBtnAction},
        {BtnWakeupFreq1, Frame_Alarm_WakeupFreq1BtnAction},
        {BtnWakeupFreq2, Frame_Alarm_WakeupFreq2BtnAction},
        {BtnWakeupFreq3, Frame_Alarm_WakeupFreq3BtnAction},
    };
    for (const auto& row : table)
        if (row.button) row.button->InitButtonAction(row.action, this);
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

void Frame_Alarm::ChoosePageRefresh() {
    InitBackBtnToMainMenuInterWorking();
    Layout::SetCaption(BtnBirthdayStatus, {BirthdayStatusText(enableBirthday), NSColor::whiteColor(),
                                           MakeNSRect(8, 8, 326, 46), 16});
    Layout::SetCaption(BtnWakeupStatus, {WakeupStatusText(enableWakeup), NSColor::whiteColor(),
                                         MakeNSRect(8, 8, 326, 46), 16});
    Layout::SetCaption(txtAlarmDescription, Description(kChooseDescription, 27));
}

void Frame_Alarm::DoneView() {
    // The timer that may have called this was one-shot and has ended: nothing to stop.
    Hide({BtnDone, frmDoneView});
    Show({frmChooseView});
    ChoosePageRefresh();
}

void Frame_Alarm_BirthdayBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flagBirthdayWakeup = 1;
    Hide({s->frmChooseView});
    Show({s->frmBirthdayControlView});
    Hide({s->frmWakeupControlView});
    Show({s->BtnDone});
    if (s->enableBirthday)
        Show({s->frmBirthTimeDateButtonView});
    else
        Hide({s->frmBirthTimeDateButtonView});
    Show({s->txtBigTitle});
    s->InitBackBtnToChooseInterWorking();
    Layout::SetCaption(s->txtAlarmDescription, Description(kBirthdayDescription, 15));
    Layout::SetCaption(s->txtBigTitle, BigTitle("Birthday Alarm"));
    // The On and Off pictures stay as the last On or Off press left them.
    RegisterHover({s->BtnBirthdayOn, s->BtnBirthdayOff, s->BtnDone});
}

void Frame_Alarm_WakeupBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->flagBirthdayWakeup = 2;
    Hide({s->frmChooseView, s->frmBirthdayControlView});
    if (s->enableWakeup)
        Show({s->frmWakeupTimeFreqButtonView});
    else
        Hide({s->frmWakeupTimeFreqButtonView});
    SetOnOffLooks(s->BtnWakeupOn, s->BtnWakeupOff, s->enableWakeup != 0, s->frmWakeupControlView);
    Hide({s->frmBirthTimeDateButtonView});
    Show({s->frmWakeupControlView, s->BtnDone, s->txtBigTitle});
    s->InitBackBtnToChooseInterWorking();
    Layout::SetCaption(s->txtAlarmDescription, Description(kWakeupDescription, 15));
    Layout::SetCaption(s->txtBigTitle, BigTitle("Wake up Alarm"));
    RegisterHover({s->BtnWakeupOn, s->BtnWakeupOff, s->BtnDone});
}

void Frame_Alarm_BirthOnBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->enableBirthday = 1;
    Show({s->frmBirthdayControlView, s->frmBirthTimeDateButtonView});
    s->InitBackBtnToChooseInterWorking();
    SetOnOffLooks(s->BtnBirthdayOn, s->BtnBirthdayOff, true, s->frmBirthdayControlView);
}

void Frame_Alarm_BirthOffBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->enableBirthday = 0;
    Show({s->frmBirthdayControlView});
    Hide({s->frmBirthTimeDateButtonView, s->frmBirthDateEditView, s->frmBirthTimeEditView});
    s->InitBackBtnToChooseInterWorking();
    SetOnOffLooks(s->BtnBirthdayOn, s->BtnBirthdayOff, false, s->frmBirthdayControlView);
}

void Frame_Alarm_WakeupOnBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->enableWakeup = 1;
    Show({s->frmWakeupTimeFreqButtonView});
    Layout::SetCaption(s->txtWakeupTitle, WakeupTitle(kWakeupOnTitle, 15));
    SetOnOffLooks(s->BtnWakeupOn, s->BtnWakeupOff, true, s->frmWakeupControlView);
    RegisterHover({s->BtnWakeupTime, s->BtnWakeupFreq1, s->BtnWakeupFreq2, s->BtnWakeupFreq3});
}

void Frame_Alarm_WakeupOffBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    s->enableWakeup = 0;
    Hide({s->frmWakeupTimeFreqButtonView, s->frmWakeupTimeEditView});
    Layout::SetCaption(s->txtWakeupTitle, WakeupTitle(kWakeupOffTitle, 15));
    SetOnOffLooks(s->BtnWakeupOn, s->BtnWakeupOff, false, s->frmWakeupControlView);
}

void Frame_Alarm_BirthDateBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    OpenEditor(s->frmBirthDateEditView, s->frmBirthTimeEditView, s->frmWakeupTimeEditView,
               s->BtnBirthDateSet);
}

void Frame_Alarm_BirthTimeBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    OpenEditor(s->frmBirthTimeEditView, s->frmBirthDateEditView, s->frmWakeupTimeEditView,
               s->BtnBirthTimeSet);
}

void Frame_Alarm_WakeupTimeBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    OpenEditor(s->frmWakeupTimeEditView, s->frmBirthTimeEditView, s->frmBirthDateEditView,
               s->BtnWakeupTimeSet);
}

void Frame_Alarm_BirthDateSetBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    TakePickedValue(s->txtBirthDate, DatePickerElements::YearMonthDay, s->forBirthDateFormatter,
                    kAlarmDateFormat, s->formattedBirthDateString, s->BtnBirthDate, s->frmBirthDateEditView);
}

void Frame_Alarm_BirthTimeSetBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    TakePickedValue(s->txtBirthTime, DatePickerElements::HourMinute, s->forBirthTimeFormatter,
                    kAlarmTimeFormat, s->formattedBirthTimeString, s->BtnBirthTime, s->frmBirthTimeEditView);
}

void Frame_Alarm_WakeupTimeSetBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    TakePickedValue(s->txtWakeupTime, DatePickerElements::HourMinute, s->forWakeupTimeFormatter,
                    kAlarmTimeFormat, s->formattedWakeupTimeString, s->BtnWakeupTime,
                    s->frmWakeupTimeEditView);
}

void Frame_Alarm_WakeupFreq1BtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) ChooseFrequency(s, 0);
}

void Frame_Alarm_WakeupFreq2BtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) ChooseFrequency(s, 1);
}

void Frame_Alarm_WakeupFreq3BtnAction(void* context, Button*) {
    if (Frame_Alarm* s = Screen(context)) ChooseFrequency(s, 2);
}

void Frame_Alarm_BackToChooseBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    Show({s->frmChooseView});
    Hide({s->frmBirthdayControlView, s->frmBirthTimeDateButtonView, s->frmBirthDateEditView,
          s->frmBirthTimeEditView, s->frmWakeupTimeEditView, s->frmWakeupControlView,
          s->frmWakeupTimeFreqButtonView, s->BtnDone, s->txtBigTitle});
    s->ChoosePageRefresh();
}

void Frame_Alarm_BackToMainMenuBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    NSLog(QStringLiteral("BackToMainMenu"));
    // Without a screen to go back to, staying put beats leaving the window empty.
    if (s->frmPreframe) ScreenHost::Follow(s, Route::AlarmBack);
}

void Frame_Alarm_DoneBtnAction(void* context, Button*) {
    Frame_Alarm* s = Screen(context);
    if (!s) return;
    Hide({s->frmBirthdayControlView, s->frmBirthTimeDateButtonView, s->frmBirthDateEditView,
          s->frmBirthTimeEditView, s->frmWakeupTimeEditView, s->frmWakeupControlView,
          s->frmWakeupTimeFreqButtonView, s->txtBigTitle});

    const bool wakeupPage = s->flagBirthdayWakeup == 2;
    const bool birthdayPage = s->flagBirthdayWakeup == 1;
    const bool alarmOn = (wakeupPage && s->enableWakeup) || (birthdayPage && s->enableBirthday);
    // Done is on view only on the two alarm pages; from anywhere else it confirms nothing either.
    if (!alarmOn) {
        s->DoneView();
        return;
    }
    Show({s->frmDoneView});
    Layout::SetCaption(s->txtDoneBigTitle, BigTitle(wakeupPage ? "Wake up Alarm" : "Birthday Alarm"));
    Layout::SetCaption(s->txtDoneMessage, DoneMessage(wakeupPage ? kWakeupMessage : kBirthdayMessage));

    // Only the confirmation page's own timer ever runs; the spent one before it can go.
    if (s->timer && !s->timer->isActive()) delete s->timer;
    s->timer = new QTimer(s);
    s->timer->setSingleShot(true);
    QObject::connect(s->timer, &QTimer::timeout, s, &Frame_Alarm::DoneView);
    s->timer->start(Frame_Alarm::kConfirmationMs);
}
