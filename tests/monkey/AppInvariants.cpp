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

namespace {

// Direct child widgets, the only ones a view lays out itself.
int ChildWidgets(const QWidget* view) {
    int count = 0;
    for (const QObject* child : view->children()) count += child->isWidgetType() ? 1 : 0;
    return count;
}

bool Shown(const QWidget* w) {
    return w && !w->isHidden();
}

} // namespace

QStringList AppInvariants::check() const {
    return checkScreens() + checkPath() + checkTimeline() + checkAlarm() + checkSoundButtons() + checkList() +
           checkTimers() + checkFocus();
}

QStringList AppInvariants::checkScreens() const {
    // In the order of ScreenId.
    const QWidget* screens[] = {m_root->frmMainMenu, m_root->frmScenario, m_root->frmAlarm,
                                m_root->frmMovement, m_root->frmSound,    m_root->frmFace,
                                m_root->frmLazer};
    QStringList shown;
    for (const QWidget* screen : screens)
        if (Shown(screen)) shown << QString::fromLatin1(screen->metaObject()->className());
    const QWidget* expected = screens[int(m_root->navigator().shown())];
    if (shown.size() != 1 || !Shown(expected))
        return {
            QStringLiteral("%1 screens shown (%2), the navigator's is %3")
                .arg(shown.size())
                .arg(shown.join(QStringLiteral(", ")), QLatin1String(expected->metaObject()->className()))};
    return {};
}

QStringList AppInvariants::checkPath() const {
    const Frame_MoveMent* m = m_root->frmMovement;
    const qint32 pieces = m->PathInfo.iItemCnt;
    bool inStep = pieces >= 0 && pieces <= PathPlacement::kMaxPieces && ChildWidgets(m->frmPath) == pieces;
    for (qint32 i = 0; i < PathPlacement::kMaxPieces && inStep; ++i)
        inStep = (m->PathImg[i] != nullptr) == (i < pieces);
    if (!inStep) return {QStringLiteral("path views out of step with %1 pieces").arg(pieces)};
    return {};
}

// At rest every item also stands where the layout puts it for the page on view.
QStringList AppInvariants::checkTimeline() const {
    const SOUNDSETCONTENT& c = m_root->frmSound->SoundContent;
    const SoundTimeline& t = m_root->frmSound->Timeline;
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

QStringList AppInvariants::checkAlarm() const {
    using Page = AlarmFlow::Page;
    using Editor = AlarmFlow::Editor;
    QStringList broken;
    const Frame_Alarm* a = m_root->frmAlarm;
    const AlarmFlow& flow = a->flow;
    const struct {
        const QWidget* view;
        bool expected;
    } views[] = {
        {a->frmChooseView, flow.page() == Page::Choose},
        {a->frmBirthdayControlView, flow.page() == Page::Birthday},
        {a->frmWakeupControlView, flow.page() == Page::Wakeup},
        {a->frmDoneView, flow.page() == Page::Confirmation},
        {a->frmBirthDateEditView, flow.editor() == Editor::BirthDate},
        {a->frmBirthTimeEditView, flow.editor() == Editor::BirthTime},
        {a->frmWakeupTimeEditView, flow.editor() == Editor::WakeupTime},
    };
    for (const auto& v : views)
        if (Shown(v.view) != v.expected)
            broken << QStringLiteral("alarm page %1, editor %2, yet view %3 is %4")
                          .arg(int(flow.page()))
                          .arg(int(flow.editor()))
                          .arg(&v - views)
                          .arg(v.expected ? QStringLiteral("hidden") : QStringLiteral("shown"));
    const struct {
        const Button* button;
        const QString& text;
    } texts[] = {{a->BtnBirthDate, flow.formattedBirthDateString()},
                 {a->BtnBirthTime, flow.formattedBirthTimeString()},
                 {a->BtnWakeupTime, flow.formattedWakeupTimeString()}};
    for (const auto& t : texts)
        if (t.button->captionText() != t.text)
            broken << QStringLiteral("alarm button shows \"%1\", the flow \"%2\"")
                          .arg(t.button->captionText(), t.text);
    return broken;
}

QStringList AppInvariants::checkSoundButtons() const {
    QStringList broken;
    const Frame_Sound* sound = m_root->frmSound;
    for (qint32 i = Frame_Sound::kBtnSoundFirst; i <= Frame_Sound::kBtnSoundLast; ++i) {
        const Button* b = sound->BtnButton[i];
        if (b->captionText() != QLatin1String(SoundSetName(sound->Board.SoundOf(i))))
            broken << QStringLiteral("sound button %1 shows \"%2\" on page %3")
                          .arg(i)
                          .arg(b->captionText())
                          .arg(sound->Board.iCurSoundSetPage);
        if ((b->BtnImageUp.name() == QLatin1String(SoundPictures::kMark)) != sound->Board.MarkOn(i))
            broken << QStringLiteral("sound button %1 marked wrongly, %2 is chosen")
                          .arg(i)
                          .arg(sound->Board.iCurSoundSet);
    }
    return broken;
}

QStringList AppInvariants::checkList() const {
    QStringList broken;
    const Frame_Scenario* s = m_root->frmScenario;
    for (qint32 r = 0; r < ScenarioList::kRows; ++r) {
        const Button* row = s->BtnScenarioName[r];
        const bool inList = r < s->shownRows();
        if (Shown(row) != inList) {
            broken << QStringLiteral("row %1 %2 in a list of %3")
                          .arg(r)
                          .arg(Shown(row) ? "shown" : "hidden")
                          .arg(s->numOfList);
            continue;
        }
        if (!inList) continue;
        if (row->captionText() != s->name(s->firstShown() + r))
            broken << QStringLiteral("row %1 shows \"%2\", not \"%3\"")
                          .arg(r)
                          .arg(row->captionText(), s->name(s->firstShown() + r));
        if ((row->BtnImageUp.name() == QLatin1String("long bar")) != (r == s->indexShow))
            broken << QStringLiteral("row %1 wrong about the highlight bar (chosen row %2)")
                          .arg(r)
                          .arg(s->indexShow);
    }
    const bool hasText = !s->txtScenarioName->text().isEmpty();
    if ((s->BtnNewCreate->bEnable != 0) != hasText)
        broken << QStringLiteral("\"Create\" %1 with %2 characters in the name field")
                      .arg(s->BtnNewCreate->bEnable ? QStringLiteral("enabled") : QStringLiteral("disabled"))
                      .arg(s->txtScenarioName->text().size());
    return broken;
}

// The robot's slide runs until it arrives and the menu comes alive then; a timeline scroll's timer
// is kept exactly while it runs.
QStringList AppInvariants::checkTimers() const {
    QStringList broken;
    const Frame_MainMenu* menu = m_root->frmMainMenu;
    const bool arrived = menu->robotSlide.hasArrived();
    if (menu->robotSlide.timer && menu->robotSlide.timer->isActive() == arrived)
        broken << QStringLiteral("robot timer %1 with the robot at y %2")
                      .arg(arrived ? QStringLiteral("runs") : QStringLiteral("stopped"))
                      .arg(menu->robotSlide.y);
    if (Shown(menu->BtnProgram) != arrived)
        broken << QStringLiteral("the menu's buttons out of step with the robot");
    const QTimer* scroll = m_root->frmSound->Timeline.timer;
    if (scroll && !scroll->isActive()) broken << QStringLiteral("a scroll timer is kept but stopped");
    return broken;
}

// Typing goes to the focused widget: one that is not on view would take keys the user cannot
// see land, and a later Create or Set would write them.
QStringList AppInvariants::checkFocus() const {
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || !NSViewS::VisibleRect(focused).isEmpty()) return {};
    return {QStringLiteral("the keyboard focus is on %1 \"%2\", which is not on view")
                .arg(QString::fromLatin1(focused->metaObject()->className()), focused->accessibleName())};
}
