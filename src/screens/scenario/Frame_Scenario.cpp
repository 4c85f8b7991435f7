#include "Frame_Scenario.h"

#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "ScenarioNotify.h"
#include "ScreenHost.h"

#include <QLineEdit>

#include <limits>

namespace {

const char* const kHighlightBar = "long bar";

Frame_Scenario* Screen(void* context) {
    return static_cast<Frame_Scenario*>(context);
}

template <qint32 Row> void NameBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (screen) screen->ApplyRowChange(screen->ChooseRow(Row));
}

} // namespace

Frame_Scenario::Frame_Scenario(const NSRect& frame) : NSViewS(frame) {
    Layout::Build(
        this,
        {
            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "common_bg"},
            Layout::SilverButton(&BtnBack, MakeNSRect(714, 711, 85, 40),
                                 {"Back", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}),
            {.image = &txtAlarmDescription,
             .frame = MakeNSRect(238, 57, 213, 155),
             .caption =
                 {"You can creat a new\nscenario with your\nown movements,\nsounds, laser beats\nand faces "
                  "or modify\nan existing scenario.",
                  NSColor::orangeColor(), MakeNSRect(0, 0, 209, 76), 16}},
            {.image = &txtSiteTitle,
             .frame = MakeNSRect(490, 93, 124, 20),
             .caption = {"Program/", NSColor::grayColor(), MakeNSRect(0, 0, 124, 18), 16}},
            {.image = &txtScenarioAct,
             .frame = MakeNSRect(103, 317, 348, 18),
             .caption = {"Choose an action:", NSColor::orangeColor(), MakeNSRect(0, 0, 348, 19), 16}},
            {.button = &BtnCreate,
             .frame = MakeNSRect(95, 350, 326, 46),
             .up = "but_normal_Btn03",
             .move = "but_over_Btn03",
             .down = "but_selected_Btn03",
             .caption = {"Create a new scenario", NSColor::whiteColor(), MakeNSRect(10, 10, 326, 46), 16}},
            {.button = &BtnModify,
             .frame = MakeNSRect(95, 421, 326, 46),
             .up = "but_normal_Btn03",
             .move = "but_over_Btn03",
             .down = "but_selected_Btn03",
             .caption = {"Modify exist scenario", NSColor::whiteColor(), MakeNSRect(10, 10, 326, 46), 16}},
        });

    BtnCreate->InitButtonAction(Frame_Scenario_CreateBtnAction, this);
    BtnModify->InitButtonAction(Frame_Scenario_ModifyBtnAction, this);
    BtnBack->InitButtonAction(Frame_Scenario_BackBtnAction, this);
    KeyboardNavigation::EscapePresses(BtnBack);

    InitView();
    ButtonTrackingOn();
    if (!canModify()) BtnModify->setHidden(true);
}

void Frame_Scenario::InitView() {
    InitCreateScenarioView();
    InitLoadScenarioView();
    ShowPage();
}

void Frame_Scenario::ShowPage() {
    frmCreateScenarioView->setHidden(page != Page::Create);
    frmLoadScenarioView->setHidden(page != Page::List);
}

void Frame_Scenario::InitCreateScenarioView() {
    frmCreateScenarioView = new NSViewS(MakeNSRect(534, 339, 372, 75));
    addSubview(frmCreateScenarioView);
    Layout::Build(frmCreateScenarioView,
                  {{.image = &txtFieldGround, .frame = MakeNSRect(0, 0, 227, 72), .up = "textbox"}});

    txtScenarioName = new QLineEdit;
    txtScenarioName->setAccessibleName(QStringLiteral("Scenario name"));
    txtScenarioName->setGeometry(MakeNSRect(17, 35, 193, 20).toRect());
    txtScenarioName->setFrame(false);
    // A name has no maximum length; Qt's line edit would otherwise cut it at 32767 characters.
    txtScenarioName->setMaxLength(std::numeric_limits<int>::max());
    scenarioNotify = new ScenarioNotify(this);
    scenarioNotify->setTempScenario(this);
    scenarioNotify->setDelegateOf(txtScenarioName);
    frmCreateScenarioView->addSubview(txtScenarioName);

    Layout::Build(frmCreateScenarioView,
                  {{.button = &BtnNewCreate,
                    .frame = MakeNSRect(257, 23, 111, 46),
                    .up = "but_normal_Btn01",
                    .move = "but_over_Btn01",
                    .down = "but_selected_Btn01",
                    .caption = {"Create", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16}}});
    BtnNewCreate->InitButtonAction(Frame_Scenario_GoMoveMentBtnAction, this);
    BtnNewCreate->SetEnable(bCreateEnabled ? 1 : 0);
    KeyboardNavigation::ReturnPresses(frmCreateScenarioView, BtnNewCreate);
}

void Frame_Scenario::InitLoadScenarioView() {
    Fill();
    frmLoadScenarioView = new NSViewS(MakeNSRect(518, 290, 414, 351));
    addSubview(frmLoadScenarioView);

    for (qint32 r = 0; r < kRows; ++r) {
        const char* bar = r == indexShow ? kHighlightBar : nullptr;
        BtnScenarioName[r] = Layout::MakeButton(
            frmLoadScenarioView,
            {.frame = MakeNSRect(0, 36 * r, 414, 39), .up = bar, .move = bar, .down = bar});
        SetNameCaption(r, name(firstShown() + r));
        BtnScenarioName[r]->setChoice(Button::Choice::Select, r == indexShow);
        BtnScenarioName[r]->RegisterHover();
    }

    const auto listButton = [](Button** field, qint32 x, const char* base, const char* up, const char* move,
                               const char* name) {
        return Layout::Family(field, MakeNSRect(x, 328, 48, 25), base, up, move, move, name);
    };
    Layout::Build(
        frmLoadScenarioView,
        {
            listButton(&BtnUpList, 212, "ButtonSelectBarUp", "_common", "_focus", "Scenario list up"),
            listButton(&BtnDownList, 262, "ButtonSelectBarDown", "_common", "_focus", "Scenario list down"),
            listButton(&BtnX, 312, "Btn_X", "_up", "_move", "Delete scenario"),
            listButton(&BtnGo, 362, "Btn_Go", "_up", "_focus", "Go"),
        });

    const ButtonCallback nameActions[kRows] = {Frame_Scenario_NameBtnAction0, Frame_Scenario_NameBtnAction1,
                                               Frame_Scenario_NameBtnAction2, Frame_Scenario_NameBtnAction3,
                                               Frame_Scenario_NameBtnAction4, Frame_Scenario_NameBtnAction5,
                                               Frame_Scenario_NameBtnAction6};
    for (qint32 r = 0; r < kRows; ++r) BtnScenarioName[r]->InitButtonAction(nameActions[r], this);
    BtnUpList->InitButtonAction(Frame_Scenario_UpListBtnAction, this);
    BtnDownList->InitButtonAction(Frame_Scenario_DownListBtnAction, this);
    BtnX->InitButtonAction(Frame_Scenario_XBtnAction, this);
    BtnGo->InitButtonAction(Frame_Scenario_GoMoveMentBtnAction, this);
}

void Frame_Scenario::ButtonTrackingOn() {
    for (Button* row : BtnScenarioName)
        if (row) row->RegisterHover();
    RegisterHover({BtnBack, BtnNewCreate, BtnCreate, BtnModify, BtnUpList, BtnDownList, BtnX, BtnGo});
}

void Frame_Scenario::MarkRow(qint32 row) {
    for (qint32 r = 0; r < shownRows(); ++r) {
        const QString bar = r == row ? QString::fromLatin1(kHighlightBar) : QString();
        BtnScenarioName[r]->InitImage(bar, bar, bar, r == row ? QStringLiteral("png") : QString(),
                                      frmLoadScenarioView);
        BtnScenarioName[r]->setChoice(Button::Choice::Select, r == row);
    }
}

void Frame_Scenario::SetNameCaption(qint32 row, const QString& text) {
    if (row < 0 || row >= kRows) return;
    BtnScenarioName[row]->InitText(text, NSColor::whiteColor(), 0, MakeNSRect(12, 8, 111, 39),
                                   QString::fromLatin1(Layout::kFontName), 16);
}

void Frame_Scenario::ApplyRowChange(const RowChange& change) {
    if (change.listEmptied) {
        // The last row goes with the last name, as every row before it did.
        for (Button* row : BtnScenarioName) row->setHidden(true);
        ShowPage();
        BtnModify->setHidden(!canModify());
        return;
    }
    if (change.hideRow >= 0 && change.hideRow < kRows) BtnScenarioName[change.hideRow]->setHidden(true);
    if (change.markRow >= 0) MarkRow(change.markRow);
    for (qint32 r = qMax(change.captionFrom, 0); r < qMin(change.captionTo, kRows); ++r)
        SetNameCaption(r, name(firstShown() + r));
}

void Frame_Scenario_CreateBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->CreateAction();
    screen->ShowPage();
    KeyboardNavigation::FocusIfKeyboardInUse(screen->txtScenarioName);
}

void Frame_Scenario_ModifyBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->ModifyAction();
    screen->ShowPage();
    screen->ButtonTrackingOn();
}

void Frame_Scenario_GoMoveMentBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->Leave();
    screen->ShowPage();
    ScreenHost::Follow(screen, Route::ScenarioGo);
}

void Frame_Scenario_BackBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->Leave();
    screen->ShowPage();
    ScreenHost::Follow(screen, Route::ScenarioBack);
}

void Frame_Scenario_NameBtnAction0(void* context, Button* button) {
    NameBtnAction<0>(context, button);
}
void Frame_Scenario_NameBtnAction1(void* context, Button* button) {
    NameBtnAction<1>(context, button);
}
void Frame_Scenario_NameBtnAction2(void* context, Button* button) {
    NameBtnAction<2>(context, button);
}
void Frame_Scenario_NameBtnAction3(void* context, Button* button) {
    NameBtnAction<3>(context, button);
}
void Frame_Scenario_NameBtnAction4(void* context, Button* button) {
    NameBtnAction<4>(context, button);
}
void Frame_Scenario_NameBtnAction5(void* context, Button* button) {
    NameBtnAction<5>(context, button);
}
void Frame_Scenario_NameBtnAction6(void* context, Button* button) {
    NameBtnAction<6>(context, button);
}

void Frame_Scenario_UpListBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (screen) screen->ApplyRowChange(screen->Up());
}

void Frame_Scenario_DownListBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (screen) screen->ApplyRowChange(screen->Down());
}

void Frame_Scenario_XBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (screen) screen->ApplyRowChange(screen->Remove());
}
