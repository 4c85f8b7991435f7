#pragma once

#include "Button.h"
#include "ScenarioList.h"

#include <QLineEdit>

class ScenarioNotify;

// Between the main menu and the editors: a new scenario is named in the create view, an existing
// one is picked from the list view's seven rows. The screen shows what `list` holds, kept across
// visits like everything else.
class Frame_Scenario : public NSViewS {
    Q_OBJECT
public:
    static constexpr qint32 kRows = ScenarioList::kRows;

    explicit Frame_Scenario(const NSRect& frame);

    void InitView();
    void InitCreateScenarioView();
    void InitLoadScenarioView();
    // Hover registrations of the screen's buttons, made after the screen is shown.
    void ButtonTrackingOn() override;
    // Makes the open view, the name rows, "Modify exist scenario" and "Create" agree with `list`.
    void Refresh();

    // The names, the chosen one and the open view; the callbacks pass what the user does into it.
    ScenarioList list;

    NSImageViewS* imgBackGround = nullptr;
    NSImageViewS* txtFieldGround = nullptr;
    NSImageViewS* txtSiteTitle = nullptr;
    NSImageViewS* txtScenarioAct = nullptr;
    Button* BtnUpList = nullptr;
    Button* BtnDownList = nullptr;
    Button* BtnX = nullptr;
    Button* BtnGo = nullptr;
    Button* BtnModify = nullptr;
    ScenarioNotify* scenarioNotify = nullptr;
    Button* BtnCreate = nullptr;
    Button* BtnScenarioName[kRows] = {};
    Button* BtnNewCreate = nullptr;
    QLineEdit* txtScenarioName = nullptr;
    NSViewS* frmCreateScenarioView = nullptr;
    Button* BtnBack = nullptr;
    NSImageViewS* txtAlarmDescription = nullptr;
    NSViewS* frmLoadScenarioView = nullptr;
};

void Frame_Scenario_CreateBtnAction(void* context, Button* button);
void Frame_Scenario_ModifyBtnAction(void* context, Button* button);
void Frame_Scenario_GoMoveMentBtnAction(void* context, Button* button);
void Frame_Scenario_BackBtnAction(void* context, Button* button);
// The seven name rows share one action, which knows the row by its button.
void Frame_Scenario_NameBtnAction(void* context, Button* button);
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction0 = Frame_Scenario_NameBtnAction;
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction1 = Frame_Scenario_NameBtnAction;
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction2 = Frame_Scenario_NameBtnAction;
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction3 = Frame_Scenario_NameBtnAction;
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction4 = Frame_Scenario_NameBtnAction;
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction5 = Frame_Scenario_NameBtnAction;
inline constexpr ButtonCallback Frame_Scenario_NameBtnAction6 = Frame_Scenario_NameBtnAction;
void Frame_Scenario_UpListBtnAction(void* context, Button* button);
void Frame_Scenario_DownListBtnAction(void* context, Button* button);
void Frame_Scenario_XBtnAction(void* context, Button* button);
