#include "Monkey.h"

#include "AppHarness.h"
#include "Frame_Alarm.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "SoundPictures.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace {

// What only the running application can get wrong, whatever the inputs were: the screen on view
// against the navigator, the timeline's views against its count, the views against their models,
// timers left running, and the keyboard focus away from what is on view. The rules themselves are
// the model's and are tested there. Reads only; empty when every rule holds, otherwise one line
// per broken rule.
QStringList AppInvariants(const Frame_Control* root) {
    QStringList broken;
    const auto expect = [&broken](bool holds, const QString& otherwise) {
        if (!holds) broken << otherwise;
        return holds;
    };
    const auto shown = [](const QWidget* w) { return w && !w->isHidden(); };
    // A timeline view shows at its place while that lies on view, and is hidden otherwise.
    const auto Placed = [](const NSViewS* view, const NSRect& place) {
        const bool onView = place.y < kSoundContentViewHeight && place.y + place.height > 0;
        return onView ? !view->isHidden() && view->frame() == place : view->isHidden();
    };

    // In the order of ScreenId.
    const QWidget* screens[] = {root->frmMainMenu(), root->frmScenario(), root->frmAlarm(),
                                root->frmMovement(), root->frmSound(),    root->frmFace(),
                                root->frmLazer()};
    const int expected = int(root->navigator().shown());
    const auto onView = std::count_if(std::begin(screens), std::end(screens), shown);
    expect(onView == 1 && shown(screens[expected]),
           QStringLiteral("%1 screens shown, the navigator's is %2").arg(onView).arg(expected));

    // At rest every timeline view on view stands where the layout puts it for the page shown, and
    // every one off view is hidden.
    const SOUNDSETCONTENT& c = root->frmSound()->SoundContent;
    const SoundTimeline& t = root->frmSound()->Timeline;
    // Three views an item, direct children of the timeline's view.
    bool inStep =
        t.iItemNum() >= 0 && t.iItemNum() <= kSoundContentItemMax &&
        c.frmSoundContent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size() == 3 * t.iItemNum();
    for (qint32 i = 0; i < kSoundContentItemMax && inStep; ++i) {
        const bool used = i < t.iItemNum();
        inStep = (c.Item.BtnButton[i] != nullptr) == used && (c.Item.strNumber[i] != nullptr) == used &&
                 (c.Item.imgLinkBar[i] != nullptr) == used &&
                 (!used || c.Item.strNumber[i]->captionText() == QString::number(i + 1));
    }
    qint32 wrong = -1;
    if (expect(inStep, QStringLiteral("timeline views out of step with %1 items").arg(t.iItemNum())))
        for (qint32 i = 0; i < t.iItemNum() && !t.Busy() && wrong < 0; ++i)
            if (const SoundContentLoc loc = t.GetSoundContentLoc(i);
                !Placed(c.Item.BtnButton[i], loc.SizeLoc) || !Placed(c.Item.strNumber[i], loc.NumberText) ||
                !Placed(c.Item.imgLinkBar[i], loc.LinkBar))
                wrong = i;
    expect(wrong < 0,
           QStringLiteral("timeline item %1 out of place on page %2").arg(wrong).arg(t.iPageNumber()));

    using Page = AlarmFlow::Page;
    using Editor = AlarmFlow::Editor;
    const Frame_Alarm* a = root->frmAlarm();
    const Page page = a->flow.page();
    const Editor editor = a->flow.editor();
    const std::pair<const QWidget*, bool> views[] = {
        {a->frmChooseView, page == Page::Choose},
        {a->frmBirthdayControlView, page == Page::Birthday},
        {a->frmWakeupControlView, page == Page::Wakeup},
        {a->frmDoneView, page == Page::Confirmation},
        {a->frmBirthDateEditView, editor == Editor::BirthDate},
        {a->frmBirthTimeEditView, editor == Editor::BirthTime},
        {a->frmWakeupTimeEditView, editor == Editor::WakeupTime}};
    expect(std::all_of(std::begin(views), std::end(views),
                       [&](const auto& v) { return shown(v.first) == v.second; }),
           QStringLiteral("alarm views out of step with page %1, editor %2").arg(int(page)).arg(int(editor)));
    for (const auto& [button, text] : {std::pair{a->BtnBirthDate, a->flow.formattedBirthDateString()},
                                       std::pair{a->BtnBirthTime, a->flow.formattedBirthTimeString()},
                                       std::pair{a->BtnWakeupTime, a->flow.formattedWakeupTimeString()}})
        expect(button->captionText() == text,
               QStringLiteral("alarm button shows \"%1\"").arg(button->captionText()));

    const SoundSetBoard& board = root->frmSound()->Board;
    wrong = -1;
    for (qint32 i = Frame_Sound::kBtnSoundFirst; i <= Frame_Sound::kBtnSoundLast && wrong < 0; ++i)
        if (const Button* b = root->frmSound()->BtnButton[i];
            b->captionText() != QLatin1String(SoundSetName(board.SoundOf(i))) ||
            (b->BtnImageUp.name() == QLatin1String(SoundPictures::kMark)) != board.MarkOn(i))
            wrong = i;
    expect(wrong < 0, QStringLiteral("sound button %1 out of step with its board").arg(wrong));

    const Frame_Scenario* s = root->frmScenario();
    const ScenarioList& list = s->list;
    wrong = -1;
    for (qint32 r = 0; r < ScenarioList::kRows && wrong < 0; ++r)
        if (const Button* row = s->BtnScenarioName[r];
            shown(row) != (r < list.shownRows()) ||
            (r < list.shownRows() &&
             (row->captionText() != list.name(list.firstShown() + r) ||
              (row->BtnImageUp.name() == QLatin1String("long bar")) != (r == list.indexShow()))))
            wrong = r;
    expect(wrong < 0, QStringLiteral("row %1 out of step with the list").arg(wrong));
    expect((s->BtnNewCreate->bEnable != 0) != s->txtScenarioName->text().isEmpty(),
           QStringLiteral("\"Create\" enabled or not against the name field"));

    // The robot's slide runs until it arrives and the menu comes alive then; a timeline scroll's
    // timer is kept exactly while it runs.
    const RobotSlide& slide = root->frmMainMenu()->robotSlide;
    expect(!(slide.timer && slide.timer->isActive() == slide.hasArrived()) &&
               shown(root->frmMainMenu()->BtnProgram) == slide.hasArrived(),
           QStringLiteral("the robot's timer or the menu's buttons out of step with the robot"));
    expect(!t.timer() || t.timer()->isActive(), QStringLiteral("a scroll timer is kept but stopped"));

    // Typing goes to the focused widget: one that is not on view would take keys the user cannot
    // see land, and a later Create or Set would write them.
    if (const QWidget* focused = QApplication::focusWidget())
        expect(!NSViewS::visibleRect(focused).isEmpty(),
               QStringLiteral("the keyboard focus is on %1 \"%2\", which is not on view")
                   .arg(QString::fromLatin1(focused->metaObject()->className()), focused->accessibleName()));
    return broken;
}

// clang-format off
enum Kind { ClickControl, ClickAnywhere, DoubleClick, Move, Drag, StrayPress, StrayRelease, Keystroke, TypeText,
            Paste, Wait, LeaveWindow };
constexpr int kWeights[] = {40, 4, 2, 22, 6, 2, 2, 12, 4, 2, 3, 1};
const char* const kNames[] = {"click on a control", "click anywhere", "double click", "move", "drag", "stray press",
                              "stray release", "keystroke", "typed text", "paste", "wait", "leave window"};

// Keys a user presses in and around the name field and the date pickers. The context menu keys
// (Menu, Shift+F10) are left out: the pickers run those menus in a nested loop only a person ends.
const Qt::Key kKeys[] = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z, Qt::Key_0, Qt::Key_5,
    Qt::Key_9, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
    Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Tab, Qt::Key_Backtab,
    Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_F1};
const Qt::KeyboardModifiers kModifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
    Qt::ControlModifier, Qt::ControlModifier | Qt::ShiftModifier};

// The awkward texts every text field meets sooner or later: accents, CJK, emoji off the basic
// plane and joined, Arabic with digits, a right-to-left override, stacked combining marks, a zero
// width space, format directives, a replacement character with a byte order mark.
const char16_t* const kTexts[] = {
    u"a", u"Robot 2", u" ", u"\u00e9t\u00e9 \u00df", u"\u4e2d\u6587\u540d\u5b57", u"\U0001F600",
    u"\U0001F469\u200D\U0001F4BB", u"\u0645\u0631\u062D\u0628\u0627 123", u"\u202Eevil\u202C",
    u"e\u0301\u0301\u0301", u"\u200B", u"%s%n%d\\0", u"\uFFFD\uFEFF"};
// clang-format on

// Past this length a field's text is replaced rather than added to: the line edit lays its whole
// text out again on every key, and a long run would spend its time laying out millions of them.
constexpr qsizetype kLongText = 20000;

// What a person aims at: a button, the name field or a date picker (not the picker's own line edit).
bool IsControl(const QWidget* w) {
    if (qobject_cast<const Button*>(w) || qobject_cast<const QAbstractSpinBox*>(w)) return true;
    return qobject_cast<const QLineEdit*>(w) && !qobject_cast<const QAbstractSpinBox*>(w->parentWidget());
}

// Where the input is made: one hand on the window, drawing every choice from one generator.
struct Hand {
    AppHarness& m_app;
    std::mt19937_64 m_rng;
    bool m_held = false;
    QStringList m_broken;

    // After every event: false once a rule broke, and then nothing more is sent.
    bool holds() {
        if (m_broken.isEmpty()) m_broken = AppInvariants(m_app.root());
        return m_broken.isEmpty();
    }
    bool move(QPoint p) {
        m_app.moveTo(p);
        return holds();
    }
    bool button(QPoint p, bool down) {
        down ? m_app.press(p) : m_app.release(p);
        m_held = down;
        return holds();
    }
    bool wait(int ms) {
        QTest::qWait(ms);
        return holds();
    }
    QPoint aim() {
        // Done with an alarm on holds the screen for seconds under the confirmation page; aimed at
        // as often as the rest it would spend most of a run waiting.
        const QWidget* done = m_app.root()->frmAlarm()->BtnDone;
        std::vector<QWidget*> controls;
        if (QWidget* screen = m_app.shownScreen())
            for (QWidget* w : screen->findChildren<QWidget*>())
                if (IsControl(w) && !NSViewS::visibleRect(w).isEmpty() && (w != done || chance(20)))
                    controls.push_back(w);
        if (controls.empty()) return anywhere();
        QWidget* control = controls[below(int(controls.size()))];
        const QRect r = NSViewS::visibleRect(control);
        return NotCorner(m_app.at(control, {r.x() + below(r.width()), r.y() + below(r.height())}));
    }
    // Now and then the hand rests between press and release, and timers run meanwhile.
    bool click(QPoint p) {
        return move(p) && button(p, true) && (!chance(10) || wait(below(120))) && button(p, false);
    }
    bool drag() {
        QPoint p = chance(70) ? aim() : anywhere();
        if (!move(p) || !button(p, true)) return false;
        for (int i = 1 + below(6); i > 0; --i) {
            // Left of or above the window now and then: a drag leaves it there.
            p = !chance(15)  ? (chance(50) ? aim() : anywhere())
                : chance(50) ? QPoint(-1 - below(40), below(768))
                             : QPoint(below(1024), -1 - below(40));
            if (!move(p)) return false;
        }
        return button(p.x() < 0 || p.y() < 0 ? anywhere() : p, false);
    }
    bool key(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
        text.isEmpty() ? QTest::keyClick(m_app.handle(), key, modifiers)
                       : QTest::sendKeyEvent(QTest::Click, m_app.handle(), key, text, modifiers);
        return holds();
    }
    // Typed text comes as one key event carrying the whole of it, as an input method hands over a
    // composed string; pasted text goes through the clipboard.
    bool text(bool paste) {
        const auto* field = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
        if (field && field->text().size() > kLongText && !key(Qt::Key_A, Qt::ControlModifier)) return false;
        const QString text = QString::fromUtf16(kTexts[below(int(std::size(kTexts)))])
                                 .repeated(paste ? (chance(10) ? 1 + below(3000) : 1 + below(3))
                                                 : (chance(5) ? 1 + below(400) : 1));
        if (!paste) return key(Qt::Key_unknown, Qt::NoModifier, text);
        QGuiApplication::clipboard()->setText(text);
        return key(Qt::Key_V, Qt::ControlModifier);
    }

    int step() { // answers the kind of input sent
        // The confirmation page takes every click for a few seconds: mostly let it run out.
        if (m_app.root()->frmAlarm()->frmDoneView->isVisible() && chance(60)) {
            wait(100 + below(400));
            return Wait;
        }
        const Kind kind =
            Kind(std::discrete_distribution<int>(std::begin(kWeights), std::end(kWeights))(m_rng));
        // A button held since a stray press comes up before the next press, as a hand's would.
        if (m_held && kind != Move && (kind < Keystroke || kind == LeaveWindow))
            if (!button(anywhere(), false) || kind == StrayPress || kind == StrayRelease ||
                kind == LeaveWindow)
                return kind;
        if (kind == ClickControl || kind == ClickAnywhere) click(kind == ClickControl ? aim() : anywhere());
        if (kind == Move) move(chance(45) ? aim() : anywhere());
        if (kind == Drag) drag();
        if (kind == StrayPress) button(aim(), true);
        if (kind == StrayRelease) move(anywhere());
        if (kind == Keystroke)
            key(kKeys[below(int(std::size(kKeys)))], kModifiers[below(int(std::size(kModifiers)))]);
        if (kind == TypeText || kind == Paste) text(kind == Paste);
        if (kind == Wait) wait(below(150));
        if (kind == LeaveWindow) m_app.leaveWindow();
        if (kind == DoubleClick) {
            const QPoint p = aim();
            if (move(p)) QTest::mouseDClick(m_app.handle(), Qt::LeftButton, Qt::NoModifier, p);
        }
        holds();
        return kind;
    }
    int below(int bound) { return bound <= 1 ? 0 : std::uniform_int_distribution<int>(0, bound - 1)(m_rng); }
    bool chance(int percent) { return below(100) < percent; }
    QPoint anywhere() { return NotCorner({below(1024), below(768)}); }
    // (0, 0) is "the middle" to QTest.
    static QPoint NotCorner(QPoint p) { return p.isNull() ? QPoint(0, 1) : p; }
};

} // namespace

QString Monkey::Result::summary() const {
    QString text = QStringLiteral("monkey seed %1: %2 of %3 inputs (").arg(seed).arg(done).arg(planned);
    for (auto [screen, count] : inputsOn.asKeyValueRange())
        text += QStringLiteral("%1 on %2, ").arg(count).arg(screen);
    if (ok()) return text + QStringLiteral("every rule held)");
    const QString replay =
        QStringLiteral("replay: ROBOT_MONKEY_SEED=%1 ROBOT_MONKEY_INPUTS=%2").arg(seed).arg(failedAt + 1);
    return text + QStringLiteral("rules broken after input %1):\n").arg(failedAt) +
           (broken + trace + QStringList{replay}).join('\n');
}

Monkey::Result Monkey::Run(quint64 seed, qint64 inputs, const std::function<bool(qint64 done)>& progress) {
    // Said first, on the unbuffered stream: a sanitizer stops the process at once, and the seed must
    // be on record then.
    std::fprintf(stderr, "monkey: seed %llu, %lld inputs\n", seed, inputs);
    Result result{seed, inputs};
    AppHarness app;
    Hand monkey{app, std::mt19937_64(seed)};
    if (!monkey.holds()) result.failedAt = 0;
    for (qint64 i = 0; result.ok() && i < inputs; ++i) {
        const QString screen = QString::fromLatin1(app.shownScreen()->metaObject()->className());
        ++result.inputsOn[screen];
        result.trace << QStringLiteral("%1 [%2] %3").arg(i).arg(screen, QLatin1String(kNames[monkey.step()]));
        if (result.trace.size() > 40) result.trace.removeFirst();
        result.done = i + 1;
        if (!monkey.holds())
            result.failedAt = i;
        else if (progress && result.done % 1000 == 0 && !progress(result.done))
            break;
    }
    // The rules must hold at rest as well, once the scroll and the confirmation have run out.
    const auto atRest = [root = app.root()] {
        return !root->frmSound()->Timeline.Busy() && !root->frmAlarm()->frmDoneView->isVisible();
    };
    if (result.ok() && !QTest::qWaitFor(atRest, 60000))
        monkey.m_broken << QStringLiteral("the scroll or the confirmation page never ended");
    if (result.ok() && !monkey.holds()) result.failedAt = result.done;
    result.broken = monkey.m_broken;
    return result;
}

void Monkey::FromEnvironment(QList<quint64>& seeds, qint64& inputs) {
    bool ok = false;
    if (const quint64 seed = qEnvironmentVariable("ROBOT_MONKEY_SEED").toULongLong(&ok); ok) seeds = {seed};
    if (const qint64 n = qEnvironmentVariable("ROBOT_MONKEY_INPUTS").toLongLong(&ok); ok && n > 0) inputs = n;
}
