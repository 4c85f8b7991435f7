#include "Frame_Scenario.h"

#include "KeyboardNavigation.h"
#include "LayoutTable.h"
#include "NSColor.h"
#include "ScenarioNotify.h"
#include "ScreenHost.h"

#include <QLineEdit>

#include <algorithm>
#include <limits>

namespace {

const char* const kHighlightBar = "long bar";

Frame_Scenario* Screen(void* context) {
    return static_cast<Frame_Scenario*>(context);
}

// Shows or hides a view only when it changes, so that hiding leaves the keyboard where it is.
void SetShown(QWidget* view, bool shown) {
    if (view->isHidden() == shown) view->setHidden(!shown);
}

Layout::Row Btn03(Button** field, qint32 y, const char* text, ButtonCallback action) {
    return {.button = field,
            .frame = MakeNSRect(95, y, 326, 46),
            .up = "but_normal_Btn03",
            .move = "but_over_Btn03",
            .down = "but_selected_Btn03",
            .caption = {text, NSColor::whiteColor(), MakeNSRect(10, 10, 326, 46), 16},
            .action = action};
}

Layout::Row ListButton(Button** field, qint32 x, const char* base, const char* up, const char* move,
                       const char* name, ButtonCallback action) {
    return Layout::Family(field, MakeNSRect(x, 328, 48, 25), base, up, move, move, name, {}, action);
}

} // namespace

Frame_Scenario::Frame_Scenario(const NSRect& frame) : NSViewS(frame) {
    setAccessibleName(QStringLiteral("Scenario"));
    Layout::Build(
        this,
        {
            {.image = &imgBackGround, .frame = MakeNSRect(0, 0, 1024, 768), .up = "common_bg"},
            Layout::SilverButton(&BtnBack, MakeNSRect(714, 711, 85, 40),
                                 {"Back", NSColor::blackColor(), MakeNSRect(10, 10, 85, 40), 16}, false,
                                 Frame_Scenario_BackBtnAction),
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
            Btn03(&BtnCreate, 350, "Create a new scenario", Frame_Scenario_CreateBtnAction),
            Btn03(&BtnModify, 421, "Modify exist scenario", Frame_Scenario_ModifyBtnAction),
        });
    // The keyboard starts at "Create a new scenario".
    setFocusProxy(BtnCreate);
    KeyboardNavigation::EscapePresses(BtnBack);

    InitView();
    ButtonTrackingOn();
    connect(&list, &ScenarioList::changed, this, &Frame_Scenario::Refresh);
    Refresh();
}

void Frame_Scenario::InitView() {
    InitCreateScenarioView();
    InitLoadScenarioView();
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
                    .caption = {"Create", NSColor::whiteColor(), MakeNSRect(8, 8, 111, 46), 16},
                    .action = Frame_Scenario_GoMoveMentBtnAction}},
                  this);
    KeyboardNavigation::ReturnPresses(frmCreateScenarioView, BtnNewCreate);
    // Escape leaves the field first, back to what opened it.
    KeyboardNavigation::EscapeCalls(txtScenarioName,
                                    [this] { KeyboardNavigation::FocusIfKeyboardInUse(BtnCreate); });
}

void Frame_Scenario::InitLoadScenarioView() {
    frmLoadScenarioView = new NSViewS(MakeNSRect(518, 290, 414, 351));
    addSubview(frmLoadScenarioView);

    static constexpr ButtonCallback kNameActions[kRows] = {
        Frame_Scenario_NameBtnAction0, Frame_Scenario_NameBtnAction1, Frame_Scenario_NameBtnAction2,
        Frame_Scenario_NameBtnAction3, Frame_Scenario_NameBtnAction4, Frame_Scenario_NameBtnAction5,
        Frame_Scenario_NameBtnAction6};
    for (qint32 r = 0; r < kRows; ++r) {
        BtnScenarioName[r] = Layout::MakeButton(
            frmLoadScenarioView, {.frame = MakeNSRect(0, 36 * r, 414, 39), .action = kNameActions[r]}, this);
        RegisterHover({BtnScenarioName[r]});
    }

    Layout::Build(
        frmLoadScenarioView,
        {
            ListButton(&BtnUpList, 212, "ButtonSelectBarUp", "_common", "_focus", "Scenario list up",
                       Frame_Scenario_UpListBtnAction),
            ListButton(&BtnDownList, 262, "ButtonSelectBarDown", "_common", "_focus", "Scenario list down",
                       Frame_Scenario_DownListBtnAction),
            ListButton(&BtnX, 312, "Btn_X", "_up", "_move", "Delete scenario", Frame_Scenario_XBtnAction),
            ListButton(&BtnGo, 362, "Btn_Go", "_up", "_focus", "Go", Frame_Scenario_GoMoveMentBtnAction),
        },
        this);
}

void Frame_Scenario::ButtonTrackingOn() {
    for (Button* row : BtnScenarioName) RegisterHover({row});
    RegisterHover({BtnBack, BtnNewCreate, BtnCreate, BtnModify, BtnUpList, BtnDownList, BtnX, BtnGo});
}

void Frame_Scenario::Refresh() {
    SetShown(frmCreateScenarioView, list.page() == ScenarioList::Page::Create);
    SetShown(frmLoadScenarioView, list.page() == ScenarioList::Page::List);
    SetShown(BtnModify, list.canModify());
    BtnNewCreate->SetEnable(list.bCreateEnabled() ? 1 : 0);
    // The rows below the list's end go with their names; the others show them from firstShown().
    for (qint32 r = 0; r < kRows; ++r) {
        Button* row = BtnScenarioName[r];
        if (r >= list.shownRows()) {
            SetShown(row, false);
            continue;
        }
        const bool chosen = r == list.indexShow();
        const QString bar = chosen ? QString::fromLatin1(kHighlightBar) : QString();
        row->InitImage(bar, bar, bar, chosen ? QStringLiteral("png") : QString(), frmLoadScenarioView);
        row->setChoice(Button::Choice::Select, chosen);
        row->InitText(list.name(list.firstShown() + r), NSColor::whiteColor(), 0, MakeNSRect(12, 8, 111, 39),
                      QString::fromLatin1(Layout::kFontName), 16);
    }
}

void Frame_Scenario_CreateBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->list.CreateAction();
    KeyboardNavigation::FocusIfKeyboardInUse(screen->txtScenarioName);
}

void Frame_Scenario_ModifyBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->list.ModifyAction();
    // The list view is on view now: its buttons' registrations can fire.
    screen->ButtonTrackingOn();
}

void Frame_Scenario_GoMoveMentBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->list.Leave();
    ScreenHost::FollowFrom(screen, Route::ScenarioGo);
}

void Frame_Scenario_BackBtnAction(void* context, Button*) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    screen->list.Leave();
    ScreenHost::FollowFrom(screen, Route::ScenarioBack);
}

void Frame_Scenario_NameBtnAction(void* context, Button* button) {
    Frame_Scenario* screen = Screen(context);
    if (!screen) return;
    const auto rows = std::begin(screen->BtnScenarioName);
    screen->list.ChooseRow(
        static_cast<qint32>(std::find(rows, std::end(screen->BtnScenarioName), button) - rows));
}

void Frame_Scenario_UpListBtnAction(void* context, Button*) {
    if (Frame_Scenario* screen = Screen(context)) screen->list.Up();
}

void Frame_Scenario_DownListBtnAction(void* context, Button*) {
    if (Frame_Scenario* screen = Screen(context)) screen->list.Down();
}

void Frame_Scenario_XBtnAction(void* context, Button*) {
    if (Frame_Scenario* screen = Screen(context)) screen->list.Remove();
}
