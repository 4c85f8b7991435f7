#pragma once

#include "Button.h"
#include "FRAMESRECORD.h"
#include "ScenarioList.h"

#include <QLineEdit>

class ScenarioNotify;

// Between the main menu and the editors: a new scenario is named in the create view, an existing
// one is picked from the list view's seven rows. The list's fields (indexChoose, indexShow,
// numOfList, txtLoadScenarioName) are the screen's own, kept across visits like everything else.
class Frame_Scenario : public NSViewS, public ScenarioList {
    Q_OBJECT
public:
    explicit Frame_Scenario(const NSRect& frame);

    void InitView();
    void InitCreateScenarioView();
    void InitLoadScenarioView();
    // Hover registrations of the screen's buttons, made after the screen is shown.
    void ButtonTrackingOn() override;

    // Opens the view the model has open, and closes the other.
    void ShowPage();
    // Carries out on the name rows what the list asked for.
    void ApplyRowChange(const RowChange& change);
    void MarkRow(qint32 row);
    void SetNameCaption(qint32 row, const QString& text);

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
    FRAMESRECORD frmFrameRec;
};

void Frame_Scenario_CreateBtnAction(void* context, Button* button);
void Frame_Scenario_ModifyBtnAction(void* context, Button* button);
void Frame_Scenario_GoMoveMentBtnAction(void* context, Button* button);
void Frame_Scenario_BackBtnAction(void* context, Button* button);
void Frame_Scenario_NameBtnAction0(void* context, Button* button);
void Frame_Scenario_NameBtnAction1(void* context, Button* button);
void Frame_Scenario_NameBtnAction2(void* context, Button* button);
void Frame_Scenario_NameBtnAction3(void* context, Button* button);
void Frame_Scenario_NameBtnAction4(void* context, Button* button);
void Frame_Scenario_NameBtnAction5(void* context, Button* button);
void Frame_Scenario_NameBtnAction6(void* context, Button* button);
void Frame_Scenario_UpListBtnAction(void* context, Button* button);
void Frame_Scenario_DownListBtnAction(void* context, Button* button);
void Frame_Scenario_XBtnAction(void* context, Button* button);
