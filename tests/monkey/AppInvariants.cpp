#include "AppInvariants.h"

#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "SoundPictures.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>

namespace {

// Direct child widgets, the only ones a view lays out itself.
qsizetype ChildWidgets(const QWidget* view) {
    return view->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size();
}
const auto Shown = [](const QWidget* w) { return w && !w->isHidden(); };

QStringList checkScreens(const Frame_Control* root) {
    // In the order of ScreenId.
    const QWidget* screens[] = {root->frmMainMenu, root->frmScenario, root->frmAlarm, root->frmMovement,
                                root->frmSound,    root->frmFace,     root->frmLazer};
    const int expected = int(root->navigator().shown());
    const auto shown = std::count_if(std::begin(screens), std::end(screens), Shown);
    if (shown == 1 && Shown(screens[expected])) return {};
    return {QStringLiteral("%1 screens shown, the navigator's is %2").arg(shown).arg(expected)};
}

QStringList checkPath(const Frame_Control* root) {
    const Frame_MoveMent* m = root->frmMovement;
    const qint32 pieces = m->PathInfo.iItemCnt;
    bool inStep = pieces >= 0 && pieces <= PathPlacement::kMaxPieces && ChildWidgets(m->frmPath) == pieces;
    for (qint32 i = 0; i < PathPlacement::kMaxPieces && inStep; ++i)
        inStep = (m->PathImg[i] != nullptr) == (i < pieces);
    return inStep ? QStringList()
                  : QStringList{QStringLiteral("path views out of step with %1 pieces").arg(pieces)};
}

// At rest every item also stands where the layout puts it for the page on view.
QStringList checkTimeline(const Frame_Control* root) {
    const SOUNDSETCONTENT& c = root->frmSound->SoundContent;
    const SoundTimeline& t = root->frmSound->Timeline;
    bool inStep = t.iItemNum >= 0 && t.iItemNum <= kSoundContentItemMax &&
                  ChildWidgets(c.frmSoundContent) == 3 * t.iItemNum;
    for (qint32 i = 0; i < kSoundContentItemMax && inStep; ++i) {
        const bool used = i < t.iItemNum;
        inStep = (c.Item.BtnButton[i] != nullptr) == used && (c.Item.strNumber[i] != nullptr) == used &&
                 (c.Item.imgLinkBar[i] != nullptr) == used &&
                 (!used || c.Item.strNumber[i]->captionText() == QString::number(i + 1));
    }
    if (!inStep) return {QStringLiteral("timeline views out of step with %1 items").arg(t.iItemNum)};
    for (qint32 i = 0; i < t.iItemNum && !t.Busy(); ++i) {
        const SoundContentLoc loc = t.GetSoundContentLoc(i);
        if (c.Item.BtnButton[i]->frame() != loc.SizeLoc || c.Item.strNumber[i]->frame() != loc.NumberText ||
            c.Item.imgLinkBar[i]->frame() != loc.LinkBar)
            return {QStringLiteral("timeline item %1 out of place on page %2").arg(i).arg(t.iPageNumber)};
    }
    return {};
}

QStringList checkAlarm(const Frame_Control* root) {
    using Page = AlarmFlow::Page;
    using Editor = AlarmFlow::Editor;
    const Frame_Alarm* a = root->frmAlarm;
    const int page = int(a->flow.page()), editor = int(a->flow.editor());
    const std::pair<const QWidget*, bool> views[] = {
        {a->frmChooseView, page == int(Page::Choose)},
        {a->frmBirthdayControlView, page == int(Page::Birthday)},
        {a->frmWakeupControlView, page == int(Page::Wakeup)},
        {a->frmDoneView, page == int(Page::Confirmation)},
        {a->frmBirthDateEditView, editor == int(Editor::BirthDate)},
        {a->frmBirthTimeEditView, editor == int(Editor::BirthTime)},
        {a->frmWakeupTimeEditView, editor == int(Editor::WakeupTime)}};
    for (const auto& [view, expected] : views)
        if (Shown(view) != expected)
            return {QStringLiteral("alarm views out of step with page %1, editor %2").arg(page).arg(editor)};
    const std::pair<const Button*, QString> texts[] = {
        {a->BtnBirthDate, a->flow.formattedBirthDateString()},
        {a->BtnBirthTime, a->flow.formattedBirthTimeString()},
        {a->BtnWakeupTime, a->flow.formattedWakeupTimeString()}};
    for (const auto& [button, text] : texts)
        if (button->captionText() != text) return {QStringLiteral("alarm button shows \"%1\"").arg(text)};
    return {};
}

QStringList checkSoundButtons(const Frame_Control* root) {
    const SoundSetBoard& board = root->frmSound->Board;
    for (qint32 i = Frame_Sound::kBtnSoundFirst; i <= Frame_Sound::kBtnSoundLast; ++i) {
        const Button* b = root->frmSound->BtnButton[i];
        if (b->captionText() != QLatin1String(SoundSetName(board.SoundOf(i))) ||
            (b->BtnImageUp.name() == QLatin1String(SoundPictures::kMark)) != board.MarkOn(i))
            return {QStringLiteral("sound button %1 out of step with its board").arg(i)};
    }
    return {};
}

QStringList checkList(const Frame_Control* root) {
    const Frame_Scenario* s = root->frmScenario;
    for (qint32 r = 0; r < ScenarioList::kRows; ++r) {
        const Button* row = s->BtnScenarioName[r];
        const bool inList = r < s->shownRows();
        if (Shown(row) != inList ||
            (inList && (row->captionText() != s->name(s->firstShown() + r) ||
                        (row->BtnImageUp.name() == QLatin1String("long bar")) != (r == s->indexShow))))
            return {QStringLiteral("row %1 out of step with the list").arg(r)};
    }
    if ((s->BtnNewCreate->bEnable != 0) == s->txtScenarioName->text().isEmpty())
        return {QStringLiteral("\"Create\" enabled or not against the name field")};
    return {};
}

// The robot's slide runs until it arrives and the menu comes alive then; a timeline scroll's timer
// is kept exactly while it runs.
QStringList checkTimers(const Frame_Control* root) {
    const RobotSlide& slide = root->frmMainMenu->robotSlide;
    if ((slide.timer && slide.timer->isActive() == slide.hasArrived()) ||
        Shown(root->frmMainMenu->BtnProgram) != slide.hasArrived())
        return {QStringLiteral("the robot's timer or the menu's buttons out of step with the robot")};
    const QTimer* scroll = root->frmSound->Timeline.timer;
    return scroll && !scroll->isActive() ? QStringList{QStringLiteral("a scroll timer is kept but stopped")}
                                         : QStringList();
}

// Typing goes to the focused widget: one that is not on view would take keys the user cannot
// see land, and a later Create or Set would write them.
QStringList checkFocus() {
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || !NSViewS::VisibleRect(focused).isEmpty()) return {};
    return {QStringLiteral("the keyboard focus is on %1 \"%2\", which is not on view")
                .arg(QString::fromLatin1(focused->metaObject()->className()), focused->accessibleName())};
}

} // namespace

QStringList AppInvariants(const Frame_Control* root) {
    return checkScreens(root) + checkPath(root) + checkTimeline(root) + checkAlarm(root) +
           checkSoundButtons(root) + checkList(root) + checkTimers(root) + checkFocus();
}
