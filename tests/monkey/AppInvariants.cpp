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
#include "LazerPicture.h"
#include "SoundContentLoc.h"
#include "SoundSetText.h"

#include <QApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTimer>

namespace {

const char* const kSoundMark = "but_disabled_Btn01_1";
const char* const kHighlightBar = "long bar";

bool SameRecord(const FRAMESRECORD& a, const FRAMESRECORD& b) {
    return a.frmMainMenu == b.frmMainMenu && a.frmMovement == b.frmMovement && a.frmFace == b.frmFace &&
           a.frmLazer == b.frmLazer && a.frmSound == b.frmSound && a.frmAlarm == b.frmAlarm &&
           a.frmScenario == b.frmScenario;
}

FRAMESRECORD RecordOf(const Frame_Control* root) {
    FRAMESRECORD record;
    root->InitFrameRecord(&record);
    return record;
}

// Direct child widgets, the only ones a view lays out itself.
int ChildWidgets(const QWidget* view) {
    int count = 0;
    for (const QObject* child : view->children()) count += child->isWidgetType() ? 1 : 0;
    return count;
}

bool Shown(const QWidget* w) {
    return w && !w->isHidden();
}

QString RectText(const NSRect& r) {
    return QStringLiteral("(%1, %2, %3, %4)").arg(r.x).arg(r.y).arg(r.width).arg(r.height);
}

} // namespace

AppInvariants::AppInvariants(const Frame_Control* root) : m_root(root) {
    if (m_root) m_expected = RecordOf(m_root);
}

QStringList AppInvariants::check() const {
    if (!m_root) return {QStringLiteral("no root view")};
    QStringList broken;
    broken << checkScreens() << checkRecords() << checkMainMenu() << checkList() << checkNameField()
           << checkPath() << checkTimeline() << checkSoundButtons() << checkLazer() << checkAlarm()
           << checkFocus();
    return broken;
}

QStringList AppInvariants::checkScreens() const {
    QStringList broken;
    const QWidget* screens[] = {m_root->frmMainMenu, m_root->frmScenario, m_root->frmAlarm,
                                m_root->frmMovement, m_root->frmSound,    m_root->frmFace,
                                m_root->frmLazer};
    QStringList shown;
    for (const QWidget* screen : screens) {
        if (!screen) {
            broken << QStringLiteral("a screen is missing");
            continue;
        }
        if (screen->parentWidget() != m_root)
            broken << QStringLiteral("%1 left the root view").arg(screen->metaObject()->className());
        if (screen->geometry() != QRect(0, 0, 1024, 768))
            broken << QStringLiteral("%1 moved or resized").arg(screen->metaObject()->className());
        if (Shown(screen)) shown << QString::fromLatin1(screen->metaObject()->className());
    }
    if (shown.size() != 1)
        broken
            << QStringLiteral("%1 screens shown: %2").arg(shown.size()).arg(shown.join(QStringLiteral(", ")));
    if (Shown(m_root->frmFace)) broken << QStringLiteral("the face screen, which no control shows, is shown");
    return broken;
}

QStringList AppInvariants::checkRecords() const {
    QStringList broken;
    if (!SameRecord(RecordOf(m_root), m_expected))
        broken << QStringLiteral("the root view's screens changed");
    const struct {
        const char* name;
        const FRAMESRECORD* record;
    } records[] = {
        {"laser", m_root->frmLazer ? &m_root->frmLazer->frmFrameRec : nullptr},
        {"face", m_root->frmFace ? &m_root->frmFace->frmFrameRec : nullptr},
        {"movement", m_root->frmMovement ? &m_root->frmMovement->frmFrameRec : nullptr},
        {"sound", m_root->frmSound ? &m_root->frmSound->frmFrameRec : nullptr},
        {"scenario", m_root->frmScenario ? &m_root->frmScenario->frmFrameRec : nullptr},
    };
    for (const auto& r : records)
        if (!r.record || !SameRecord(*r.record, m_expected))
            broken << QStringLiteral("the %1 screen's frmFrameRec changed").arg(QLatin1String(r.name));
    return broken;
}

QStringList AppInvariants::checkMainMenu() const {
    QStringList broken;
    const Frame_MainMenu* menu = m_root->frmMainMenu;
    if (!menu || !menu->imgRobot || !menu->robotSlide.timer) return {QStringLiteral("main menu widgets missing")};
    const float y = menu->imgRobot->frame().y;
    if (y < RobotSlide::kRestY || y > 768.0f) broken << QStringLiteral("robot at y %1").arg(y);
    const bool arrived = y == RobotSlide::kRestY;
    if (menu->robotSlide.timer->isActive() == arrived)
        broken << QStringLiteral("robot timer %1 with the robot at y %2")
                      .arg(menu->robotSlide.timer->isActive() ? QStringLiteral("runs") : QStringLiteral("stopped"))
                      .arg(y);
    for (const Button* b : {menu->BtnProgram, menu->BtnAlarm, menu->BtnSync, menu->BtnSetting})
        if (b && Shown(b) != arrived)
            broken << QStringLiteral("a menu button is %1 with the robot at y %2")
                          .arg(Shown(b) ? QStringLiteral("shown") : QStringLiteral("hidden"))
                          .arg(y);
    return broken;
}

QStringList AppInvariants::checkList() const {
    QStringList broken;
    const Frame_Scenario* s = m_root->frmScenario;
    if (!s) return {};
    if (s->numOfList < 0 || s->numOfList > ScenarioList::kSlots)
        return {QStringLiteral("list holds %1 names").arg(s->numOfList)};
    if (s->numOfList == 0) {
        if (Shown(s->frmLoadScenarioView) || Shown(s->BtnModify))
            broken << QStringLiteral("empty list, yet the list view or Modify is shown");
        return broken;
    }
    if (!s->isConsistent())
        return {QStringLiteral("list indices inconsistent: choose %1, show %2, count %3")
                    .arg(s->indexChoose)
                    .arg(s->indexShow)
                    .arg(s->numOfList)};
    const qint32 rows = s->shownRows();
    for (qint32 r = 0; r < ScenarioList::kRows; ++r) {
        const Button* row = s->BtnScenarioName[r];
        if (!row) {
            broken << QStringLiteral("name row %1 missing").arg(r);
            continue;
        }
        if (r >= rows) {
            if (Shown(row))
                broken << QStringLiteral("row %1 shown below a list of %2").arg(r).arg(s->numOfList);
            continue;
        }
        if (!Shown(row)) broken << QStringLiteral("row %1 hidden in a list of %2").arg(r).arg(s->numOfList);
        const QString expected = s->name(s->firstShown() + r);
        if (row->captionText() != expected)
            broken
                << QStringLiteral("row %1 shows \"%2\", not \"%3\"").arg(r).arg(row->captionText(), expected);
        const bool bar = row->BtnImageUp.name() == QLatin1String(kHighlightBar);
        if (bar != (r == s->indexShow))
            broken << QStringLiteral("row %1 %2 the highlight bar (chosen row %3)")
                          .arg(r)
                          .arg(bar ? QStringLiteral("has") : QStringLiteral("lacks"))
                          .arg(s->indexShow);
    }
    return broken;
}

QStringList AppInvariants::checkNameField() const {
    const Frame_Scenario* s = m_root->frmScenario;
    if (!s || !s->txtScenarioName || !s->BtnNewCreate) return {};
    const bool hasText = !s->txtScenarioName->text().isEmpty();
    if ((s->BtnNewCreate->bEnable != 0) != hasText)
        return {QStringLiteral("\"Create\" %1 with %2 characters in the name field")
                    .arg(s->BtnNewCreate->bEnable ? QStringLiteral("enabled") : QStringLiteral("disabled"))
                    .arg(s->txtScenarioName->text().size())};
    return {};
}

QStringList AppInvariants::checkPath() const {
    QStringList broken;
    const Frame_MoveMent* m = m_root->frmMovement;
    if (!m || !m->frmPath) return {QStringLiteral("path view missing")};
    const PATHMAINSTRUCT& path = m->PathInfo;
    if (path.iItemCnt < 0 || path.iItemCnt > PathPlacement::kMaxPieces)
        return {QStringLiteral("path holds %1 pieces").arg(path.iItemCnt)};
    for (qint32 i = 0; i < PathPlacement::kMaxPieces; ++i)
        if ((m->PathImg[i] != nullptr) != (i < path.iItemCnt))
            broken << QStringLiteral("path slot %1 out of step with %2 pieces").arg(i).arg(path.iItemCnt);
    if (ChildWidgets(m->frmPath) != path.iItemCnt)
        broken << QStringLiteral("path view has %1 pieces, the counter %2")
                      .arg(ChildWidgets(m->frmPath))
                      .arg(path.iItemCnt);
    if (path.iDirect < 0 || path.iDirect > 4) broken << QStringLiteral("path direction %1").arg(path.iDirect);
    return broken;
}

QStringList AppInvariants::checkTimeline() const {
    QStringList broken;
    const Frame_Sound* sound = m_root->frmSound;
    if (!sound || !sound->SoundContent.frmSoundContent) return {QStringLiteral("timeline missing")};
    const SOUNDSETCONTENT& c = sound->SoundContent;
    const SoundTimeline& t = sound->Timeline;
    if (t.iItemNum < 0 || t.iItemNum > kSoundContentItemMax)
        return {QStringLiteral("timeline holds %1 items").arg(t.iItemNum)};
    for (qint32 i = 0; i < kSoundContentItemMax; ++i) {
        const bool used = i < t.iItemNum;
        if ((c.Item.BtnButton[i] != nullptr) != used || (c.Item.strNumber[i] != nullptr) != used ||
            (c.Item.imgLinkBar[i] != nullptr) != used) {
            broken << QStringLiteral("timeline slot %1 out of step with %2 items").arg(i).arg(t.iItemNum);
            return broken;
        }
        if (used && c.Item.strNumber[i]->captionText() != QString::number(i + 1))
            broken
                << QStringLiteral("item %1 numbered \"%2\"").arg(i).arg(c.Item.strNumber[i]->captionText());
    }
    if (ChildWidgets(c.frmSoundContent) != 3 * t.iItemNum)
        broken << QStringLiteral("timeline view has %1 children for %2 items")
                      .arg(ChildWidgets(c.frmSoundContent))
                      .arg(t.iItemNum);
    const qint32 lastPage = t.iItemNum > 0 ? (t.iItemNum - 1) / kSoundContentPageSize : 0;
    if (t.iPageNumber < 0 || t.iPageNumber > lastPage)
        broken << QStringLiteral("timeline on page %1 of 0..%2").arg(t.iPageNumber).arg(lastPage);
    if (t.timer && !t.timer->isActive()) broken << QStringLiteral("a scroll timer is kept but stopped");
    if (!t.timer) {
        // At rest every item stands where the layout rule puts it for the page on view.
        for (qint32 i = 0; i < t.iItemNum; ++i) {
            const SoundContentLoc loc = GetSoundContentLoc(i, t.iPageNumber);
            if (c.Item.BtnButton[i]->frame() != loc.SizeLoc ||
                c.Item.strNumber[i]->frame() != loc.NumberText ||
                c.Item.imgLinkBar[i]->frame() != loc.LinkBar) {
                broken << QStringLiteral("item %1 at %2 on page %3 at rest")
                              .arg(i)
                              .arg(RectText(c.Item.BtnButton[i]->frame()))
                              .arg(t.iPageNumber);
                break;
            }
        }
    }
    const Button* up = sound->BtnButton[Frame_Sound::kBtnContentUp];
    const Button* down = sound->BtnButton[Frame_Sound::kBtnContentDown];
    if (up && down && (Shown(up) != (t.iItemNum > 0) || Shown(down) != (t.iItemNum > 0)))
        broken << QStringLiteral("timeline arrows shown out of step with %1 items").arg(t.iItemNum);
    return broken;
}

QStringList AppInvariants::checkSoundButtons() const {
    QStringList broken;
    const Frame_Sound* sound = m_root->frmSound;
    if (!sound) return {};
    if (sound->Board.iCurSoundSetPage < 0 || sound->Board.iCurSoundSetPage >= kSoundSetPageCount)
        return {QStringLiteral("sound set page %1").arg(sound->Board.iCurSoundSetPage)};
    for (qint32 set : {sound->Board.iCurSoundSet, sound->Board.iLastSoundSet})
        if (set < Frame_Sound::kBtnSoundFirst || set > Frame_Sound::kBtnSoundLast)
            broken << QStringLiteral("sound button index %1").arg(set);
    for (qint32 i = Frame_Sound::kBtnSoundFirst; i <= Frame_Sound::kBtnSoundLast; ++i) {
        const Button* b = sound->BtnButton[i];
        if (!b) continue;
        const qint32 k = i - Frame_Sound::kBtnSoundFirst;
        const QString name =
            QString::fromLatin1(SoundSetName(kSoundSetPageSize * sound->Board.iCurSoundSetPage + k));
        if (b->captionText() != name)
            broken << QStringLiteral("sound button %1 shows \"%2\" on page %3")
                          .arg(i)
                          .arg(b->captionText())
                          .arg(sound->Board.iCurSoundSetPage);
        if (b->BtnImageUp.name() == QLatin1String(kSoundMark) && i != sound->Board.iCurSoundSet)
            broken << QStringLiteral("sound button %1 marked while %2 is chosen")
                          .arg(i)
                          .arg(sound->Board.iCurSoundSet);
    }
    return broken;
}

QStringList AppInvariants::checkLazer() const {
    const Frame_Lazer* lazer = m_root->frmLazer;
    if (!lazer || !lazer->imgLazerType) return {};
    if (lazer->LazerType < 0 || lazer->LazerType > 2)
        return {QStringLiteral("robot configuration %1").arg(lazer->LazerType)};
    if (lazer->imgLazerType->imgDefault.name() != QLatin1String(LazerPicture::Name(lazer->LazerType)))
        return {QStringLiteral("configuration %1 shows picture \"%2\"")
                    .arg(lazer->LazerType)
                    .arg(lazer->imgLazerType->imgDefault.name())};
    return {};
}

QStringList AppInvariants::checkAlarm() const {
    QStringList broken;
    const Frame_Alarm* a = m_root->frmAlarm;
    if (!a) return {};
    const AlarmFlow& flow = a->flow;
    if (flow.flagBirthdayWakeup() < 0 || flow.flagBirthdayWakeup() > 2)
        broken << QStringLiteral("alarm page flag %1").arg(flow.flagBirthdayWakeup());
    if ((flow.enableBirthday() != 0 && flow.enableBirthday() != 1) ||
        (flow.enableWakeup() != 0 && flow.enableWakeup() != 1))
        broken << QStringLiteral("alarm switches %1 and %2").arg(flow.enableBirthday()).arg(flow.enableWakeup());
    if (flow.typeFrequency() < 0 || flow.typeFrequency() > 2)
        broken << QStringLiteral("wake-up frequency %1").arg(flow.typeFrequency());

    static const QRegularExpression date(QStringLiteral("^\\d{4}/\\d{2}/\\d{2}$"));
    static const QRegularExpression time(QStringLiteral("^\\d{2}/\\d{2}$"));
    const struct {
        const QString* text;
        const Button* button;
        const QRegularExpression* form;
    } texts[] = {
        {&flow.formattedBirthDateString(), a->BtnBirthDate, &date},
        {&flow.formattedBirthTimeString(), a->BtnBirthTime, &time},
        {&flow.formattedWakeupTimeString(), a->BtnWakeupTime, &time},
    };
    for (const auto& t : texts) {
        if (!t.form->match(*t.text).hasMatch())
            broken << QStringLiteral("alarm text \"%1\" malformed").arg(*t.text);
        if (t.button && t.button->captionText() != *t.text)
            broken << QStringLiteral("alarm button shows \"%1\", the text is \"%2\"")
                          .arg(t.button->captionText(), *t.text);
    }

    const bool confirming = Shown(a->frmDoneView);
    const bool timerRuns = flow.timer()->isActive();
    if (confirming != timerRuns)
        broken << QStringLiteral("confirmation page %1 while its timer %2")
                      .arg(confirming ? QStringLiteral("shown") : QStringLiteral("hidden"))
                      .arg(timerRuns ? QStringLiteral("runs") : QStringLiteral("does not"));

    const bool choose = Shown(a->frmChooseView);
    const bool birthday = Shown(a->frmBirthdayControlView);
    const bool wakeup = Shown(a->frmWakeupControlView);
    const int pages = int(choose) + int(birthday) + int(wakeup);
    if (pages != (confirming ? 0 : 1))
        broken << QStringLiteral("alarm pages shown: choose %1, birthday %2, wake-up %3, confirmation %4")
                      .arg(choose)
                      .arg(birthday)
                      .arg(wakeup)
                      .arg(confirming);
    if (Shown(a->BtnDone) != (birthday || wakeup || confirming))
        broken << QStringLiteral("Done %1 off the alarm pages")
                      .arg(Shown(a->BtnDone) ? QStringLiteral("shown") : QStringLiteral("hidden"));
    if (a->BtnBack && (choose || birthday || wakeup)) {
        const ButtonCallback expected =
            choose ? Frame_Alarm_BackToMainMenuBtnAction : Frame_Alarm_BackToChooseBtnAction;
        if (a->BtnBack->ButtonAction != expected)
            broken << QStringLiteral("Back leads to the wrong place from the %1 page")
                          .arg(choose ? QStringLiteral("choose") : QStringLiteral("alarm"));
    }
    const int editors = int(Shown(a->frmBirthDateEditView)) + int(Shown(a->frmBirthTimeEditView)) +
                        int(Shown(a->frmWakeupTimeEditView));
    if (editors > 1) broken << QStringLiteral("%1 alarm editors open at once").arg(editors);
    if ((Shown(a->frmBirthDateEditView) || Shown(a->frmBirthTimeEditView)) && !birthday)
        broken << QStringLiteral("a birthday editor open off the birthday page");
    if (Shown(a->frmWakeupTimeEditView) && !wakeup)
        broken << QStringLiteral("the wake-up editor open off the wake-up page");
    if (a->frmPreframe && a->frmPreframe != m_root->frmMainMenu)
        broken << QStringLiteral("the alarm screen's Back leads elsewhere than the main menu");
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
