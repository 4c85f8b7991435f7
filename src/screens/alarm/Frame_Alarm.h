#pragma once

#include "AlarmFlow.h"
#include "Button.h"

class QDateEdit;
class QDateTimeEdit;
class QTimeEdit;

// The alarm clock: a choose page with the two alarm statuses, a birthday page (on/off, date,
// time), a wake-up page (on/off, time, frequency) and a confirmation page shown for a while
// after Done. The pages are sub-views shown and hidden as `flow` says; nothing is made or
// destroyed after construction.
class Frame_Alarm : public NSViewS {
    Q_OBJECT
public:
    explicit Frame_Alarm(const NSRect& frame);

    void InitView();
    void InitChooseView();
    void InitBirthdayControlView();
    void InitBirthDateEditView();
    void InitBirthTimeEditView();
    void InitWakeupTimeEditView();
    void InitBirthTimeDateButtonView();
    void InitWakeupControlView();
    void InitWakeupTimeFreqButtonView();
    void InitDoneView();

    void InitBackBtnToMainMenuInterWorking();
    void InitBackBtnToChooseInterWorking();
    // The choose page's buttons, as the screen is opened.
    void ButtonTrackingOn() override;
    // Makes what is on view, the pictures, the captions and Back's target agree with `flow`.
    void Refresh();

    // The settings and the page on view; the callbacks pass what the user does into it.
    AlarmFlow flow;

    NSImageViewS* txtSiteTitle = nullptr;
    NSImageViewS* txtChooseTitle = nullptr;
    NSImageViewS* txtCheckTimeDateTitle = nullptr;
    NSImageViewS* txtBirthDateTitle = nullptr;
    NSImageViewS* txtBirthTimeTitle = nullptr;
    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* txtFieldGround = nullptr;
    NSImageViewS* txtBirthTimeFieldGround = nullptr;
    NSImageViewS* txtWakeupTimeFieldGround = nullptr;
    NSImageViewS* imgDoneBackGround = nullptr;
    NSImageViewS* txtDoneSiteTitle = nullptr;
    NSImageViewS* txtDoneBigTitle = nullptr;
    NSImageViewS* txtBigTitle = nullptr;
    NSImageViewS* txtAlarmDescription = nullptr;
    NSImageViewS* txtWakeupTimeTitle = nullptr;
    NSImageViewS* txtWakeupFreqTitle = nullptr;
    NSImageViewS* txtWakeupTitle = nullptr;
    NSImageViewS* txtDoneMessage = nullptr;
    Button* BtnQuestion = nullptr;
    Button* BtnBirthdayStatus = nullptr;
    Button* BtnWakeupStatus = nullptr;
    Button* BtnBack = nullptr;
    Button* BtnDone = nullptr;
    Button* BtnBirthdayOn = nullptr;
    Button* BtnBirthdayOff = nullptr;
    Button* BtnBirthTime = nullptr;
    Button* BtnBirthDate = nullptr;
    Button* BtnBirthDateSet = nullptr;
    Button* BtnBirthTimeSet = nullptr;
    Button* BtnWakeupTimeSet = nullptr;
    Button* BtnWakeupOn = nullptr;
    Button* BtnWakeupOff = nullptr;
    Button* BtnWakeupTime = nullptr;
    Button* BtnWakeupFreq1 = nullptr;
    Button* BtnWakeupFreq2 = nullptr;
    Button* BtnWakeupFreq3 = nullptr;
    NSViewS* frmChooseView = nullptr;
    NSViewS* frmBirthTimeDateButtonView = nullptr;
    NSViewS* frmBirthdayControlView = nullptr;
    NSViewS* frmBirthDateEditView = nullptr;
    NSViewS* frmWakeupControlView = nullptr;
    NSViewS* frmWakeupTimeFreqButtonView = nullptr;
    NSViewS* frmBirthTimeEditView = nullptr;
    NSViewS* frmWakeupTimeEditView = nullptr;
    NSViewS* frmDoneView = nullptr;
    QDateEdit* txtBirthDate = nullptr;
    QTimeEdit* txtBirthTime = nullptr;
    QTimeEdit* txtWakeupTime = nullptr;

private:
    // One editor: its sub-view over the shared place, the "textbox" background, the picker
    // showing the given elements at the value the flow holds, and Set.
    void InitEditView(NSViewS*& editor, NSImageViewS*& ground, QDateTimeEdit* picker, int elements,
                      const QDateTime& value, Button*& setButton, ButtonCallback setAction);
};

void Frame_Alarm_BirthdayBtnAction(void* context, Button* button);
void Frame_Alarm_WakeupBtnAction(void* context, Button* button);
void Frame_Alarm_BirthOnBtnAction(void* context, Button* button);
void Frame_Alarm_BirthOffBtnAction(void* context, Button* button);
void Frame_Alarm_BirthDateBtnAction(void* context, Button* button);
void Frame_Alarm_BirthDateSetBtnAction(void* context, Button* button);
void Frame_Alarm_BirthTimeBtnAction(void* context, Button* button);
void Frame_Alarm_BirthTimeSetBtnAction(void* context, Button* button);
void Frame_Alarm_WakeupTimeBtnAction(void* context, Button* button);
void Frame_Alarm_WakeupTimeSetBtnAction(void* context, Button* button);
void Frame_Alarm_WakeupOnBtnAction(void* context, Button* button);
void Frame_Alarm_WakeupOffBtnAction(void* context, Button* button);
// The three frequencies share one action, which knows the frequency by its button.
void Frame_Alarm_WakeupFreqBtnAction(void* context, Button* button);
inline constexpr ButtonCallback Frame_Alarm_WakeupFreq1BtnAction = Frame_Alarm_WakeupFreqBtnAction;
inline constexpr ButtonCallback Frame_Alarm_WakeupFreq2BtnAction = Frame_Alarm_WakeupFreqBtnAction;
inline constexpr ButtonCallback Frame_Alarm_WakeupFreq3BtnAction = Frame_Alarm_WakeupFreqBtnAction;
void Frame_Alarm_BackToChooseBtnAction(void* context, Button* button);
void Frame_Alarm_BackToMainMenuBtnAction(void* context, Button* button);
void Frame_Alarm_DoneBtnAction(void* context, Button* button);
