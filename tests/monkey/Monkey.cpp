#include "Monkey.h"

#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "NSViewS.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include <vector>

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// Weights of the kinds of input, in the order of Monkey::Kind.
constexpr int kWeights[Monkey::KindCount] = {
    40, // ClickControl
    10, // MoveToControl
    12, // MoveAnywhere
    4,  // ClickAnywhere
    2,  // DoubleClick
    6,  // Drag
    2,  // StrayPress
    2,  // StrayRelease
    12, // Keystroke
    4,  // TypeText
    2,  // Paste
    3,  // Wait
    1,  // LeaveWindow
};

struct KeyChoice {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

// Keys a user presses in and around the name field and the date pickers. Keys that open the
// platform's context menus (Menu, Shift+F10) are left out: the pickers run those menus in a
// nested event loop that only a person can end.
const KeyChoice kKeys[] = {
    {Qt::Key_A, Qt::NoModifier},
    {Qt::Key_Z, Qt::NoModifier},
    {Qt::Key_0, Qt::NoModifier},
    {Qt::Key_1, Qt::NoModifier},
    {Qt::Key_2, Qt::NoModifier},
    {Qt::Key_5, Qt::NoModifier},
    {Qt::Key_9, Qt::NoModifier},
    {Qt::Key_Space, Qt::NoModifier},
    {Qt::Key_Backspace, Qt::NoModifier},
    {Qt::Key_Delete, Qt::NoModifier},
    {Qt::Key_Left, Qt::NoModifier},
    {Qt::Key_Right, Qt::NoModifier},
    {Qt::Key_Up, Qt::NoModifier},
    {Qt::Key_Down, Qt::NoModifier},
    {Qt::Key_PageUp, Qt::NoModifier},
    {Qt::Key_PageDown, Qt::NoModifier},
    {Qt::Key_Home, Qt::NoModifier},
    {Qt::Key_End, Qt::NoModifier},
    {Qt::Key_Tab, Qt::NoModifier},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Return, Qt::NoModifier},
    {Qt::Key_Enter, Qt::NoModifier},
    {Qt::Key_Escape, Qt::NoModifier},
    {Qt::Key_F1, Qt::NoModifier},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Y, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Left, Qt::ShiftModifier},
    {Qt::Key_Home, Qt::ShiftModifier},
};

// A control is something a person would aim at: a button, the name field or a date picker.
bool IsControl(const QWidget* w) {
    if (qobject_cast<const Button*>(w) || qobject_cast<const QAbstractSpinBox*>(w)) return true;
    // The line edit inside a picker is the picker's own business.
    return qobject_cast<const QLineEdit*>(w) && !qobject_cast<const QAbstractSpinBox*>(w->parentWidget());
}

QString Describe(const QWidget* w) {
    if (!w) return QStringLiteral("nothing");
    if (const auto* b = qobject_cast<const Button*>(w)) {
        if (b->hasCaption() && !b->captionText().isEmpty())
            return QStringLiteral("button \"%1\"")
                .arg(b->captionText().left(24).replace(QLatin1Char('\n'), QLatin1Char(' ')));
        return QStringLiteral("button [%1]").arg(b->BtnImageUp.name());
    }
    return QString::fromLatin1(w->metaObject()->className());
}

QString PointText(QPoint p) {
    return QStringLiteral("(%1, %2)").arg(p.x()).arg(p.y());
}

} // namespace

Monkey::Monkey(AppHarness& app, quint64 seed) : m_app(app), m_rng(seed) {}

void Monkey::setCheck(std::function<bool()> check) {
    m_check = std::move(check);
}

void Monkey::afterEvents(int events) {
    m_events += events;
    if (m_check && !m_failed && !m_check()) m_failed = true;
}

const char* Monkey::KindName(Kind kind) {
    static const char* const names[KindCount] = {
        "click on a control", "move to a control", "move anywhere", "click anywhere", "double click", "drag",
        "stray press",        "stray release",     "keystroke",     "typed text",     "paste",        "wait",
        "leave window",
    };
    return kind >= 0 && kind < KindCount ? names[kind] : "?";
}

QString Monkey::SampleText(int index, int repeat) {
    static const char16_t* const texts[kSampleTexts] = {
        u"a",
        u"Robot 2",
        u" ",
        u"\u00e9t\u00e9 \u00df",               // accented Latin
        u"\u4e2d\u6587\u540d\u5b57",           // CJK
        u"\U0001F600",                         // emoji outside the basic plane
        u"\U0001F469\u200D\U0001F4BB",         // joined emoji sequence
        u"\u05E9\u05DC\u05D5\u05DD",           // Hebrew
        u"\u0645\u0631\u062D\u0628\u0627 123", // Arabic with digits
        u"\u202Eevil\u202C",                   // right-to-left override
        u"e\u0301\u0301\u0301",                // stacked combining marks
        u"\u200B",                             // zero width space
        u"%s%n%d\\0",                          // format directives
        u"\uFFFD\uFEFF",                       // replacement character and BOM
    };
    const QString one = QString::fromUtf16(texts[((index % kSampleTexts) + kSampleTexts) % kSampleTexts]);
    return one.repeated(qMax(1, repeat));
}

int Monkey::below(int bound) {
    if (bound <= 1) return 0;
    return std::uniform_int_distribution<int>(0, bound - 1)(m_rng);
}

bool Monkey::chance(int percent) {
    return below(100) < percent;
}

Monkey::Kind Monkey::chooseKind() {
    int total = 0;
    for (int w : kWeights) total += w;
    int pick = below(total);
    for (int k = 0; k < KindCount; ++k) {
        if (pick < kWeights[k]) return static_cast<Kind>(k);
        pick -= kWeights[k];
    }
    return Wait;
}

QPoint Monkey::anywhere() {
    // (0, 0) means "the middle" to the test library, so the corner is left out.
    QPoint p(below(kWidth), below(kHeight));
    if (p.isNull()) p.setY(1);
    return p;
}

QPoint Monkey::slightlyOutside() {
    // Left of or above the window: a drag leaves it there; the far sides would only be refused.
    return chance(50) ? QPoint(-1 - below(40), below(kHeight)) : QPoint(below(kWidth), -1 - below(40));
}

QWidget* Monkey::chooseControl() {
    QWidget* screen = m_app.shownScreen();
    if (!screen) return nullptr;
    // Done with an alarm on holds the screen for seconds under the confirmation page; aimed at
    // as often as the rest it would spend most of a run waiting.
    const QWidget* done = m_app.root() ? m_app.root()->frmAlarm->BtnDone : nullptr;
    std::vector<QWidget*> controls;
    std::vector<int> weights;
    int total = 0;
    for (QWidget* w : screen->findChildren<QWidget*>()) {
        if (!IsControl(w) || NSViewS::VisibleRect(w).isEmpty()) continue;
        controls.push_back(w);
        weights.push_back(w == done ? 1 : 5);
        total += weights.back();
    }
    int pick = below(total);
    for (size_t i = 0; i < controls.size(); ++i) {
        if (pick < weights[i]) return controls[i];
        pick -= weights[i];
    }
    return nullptr;
}

QPoint Monkey::pointOn(const QWidget* control) {
    const QRect visible = NSViewS::VisibleRect(control);
    const QPoint local(visible.x() + below(visible.width()), visible.y() + below(visible.height()));
    QPoint p = m_app.at(control, local);
    if (p.isNull()) p.setY(1);
    return p;
}

QPoint Monkey::aim() {
    if (QWidget* control = chooseControl()) return pointOn(control);
    return anywhere();
}

QString Monkey::move(QPoint p) {
    m_app.moveTo(p);
    afterEvents(1);
    return QStringLiteral("move %1").arg(PointText(p));
}

QString Monkey::press(QPoint p) {
    m_app.press(p);
    m_buttonHeld = true;
    afterEvents(1);
    return QStringLiteral("press %1").arg(PointText(p));
}

QString Monkey::release(QPoint p) {
    m_app.release(p);
    m_buttonHeld = false;
    afterEvents(1);
    return QStringLiteral("release %1").arg(PointText(p));
}

QString Monkey::click(QPoint p) {
    QString text = move(p);
    if (m_failed) return text;
    text += QStringLiteral(", ") + press(p);
    if (m_failed) return text;
    // Now and then the hand rests between press and release, and timers run meanwhile.
    if (chance(10)) text += QStringLiteral(", ") + wait(below(120));
    if (m_failed) return text;
    text += QStringLiteral(", ") + release(p);
    return text;
}

QString Monkey::drag() {
    const QPoint from = chance(70) ? aim() : anywhere();
    QString text = QStringLiteral("drag: ") + move(from) + QStringLiteral(", ") + press(from);
    const int moves = 1 + below(6);
    QPoint last = from;
    for (int i = 0; i < moves && !m_failed; ++i) {
        last = chance(15) ? slightlyOutside() : (chance(50) ? aim() : anywhere());
        text += QStringLiteral(", ") + move(last);
    }
    if (m_failed) return text;
    if (last.x() < 0 || last.y() < 0) last = anywhere();
    text += QStringLiteral(", ") + release(last);
    return text;
}

QString Monkey::keystroke() {
    const KeyChoice& k = kKeys[below(static_cast<int>(std::size(kKeys)))];
    QTest::keyClick(m_app.handle(), k.key, k.modifiers);
    afterEvents(2);
    return QStringLiteral("key %1 (modifiers %2) to %3")
        .arg(int(k.key), 0, 16)
        .arg(int(k.modifiers), 0, 16)
        .arg(Describe(QApplication::focusWidget()));
}

QString Monkey::typeText() {
    const QString first = replaceLongText();
    if (m_failed) return first;
    const int index = below(kSampleTexts);
    const int repeat = chance(5) ? 1 + below(400) : 1;
    const QString text = SampleText(index, repeat);
    // One key event carrying the whole text, as an input method hands over a composed string.
    QTest::sendKeyEvent(QTest::Click, m_app.handle(), Qt::Key_unknown, text, Qt::NoModifier);
    afterEvents(2);
    return first + QStringLiteral("type sample %1 x%2 to %3")
                       .arg(index)
                       .arg(repeat)
                       .arg(Describe(QApplication::focusWidget()));
}

// Past this length a field's text is replaced rather than added to: Qt's line edit lays its whole
// text out again on every key, and a run of 100 000 inputs would otherwise build names of
// millions of characters and spend its time laying them out.
constexpr qsizetype kLongText = 20000;

QString Monkey::replaceLongText() {
    const auto* field = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
    if (!field || field->text().size() <= kLongText) return {};
    QTest::keyClick(m_app.handle(), Qt::Key_A, Qt::ControlModifier);
    afterEvents(2);
    return QStringLiteral("select all, ");
}

QString Monkey::paste() {
    const QString first = replaceLongText();
    if (m_failed) return first;
    const int index = below(kSampleTexts);
    const int repeat = chance(10) ? 1 + below(3000) : 1 + below(3);
    QGuiApplication::clipboard()->setText(SampleText(index, repeat));
    QTest::keyClick(m_app.handle(), Qt::Key_V, Qt::ControlModifier);
    afterEvents(2);
    return first + QStringLiteral("paste sample %1 x%2 to %3")
                       .arg(index)
                       .arg(repeat)
                       .arg(Describe(QApplication::focusWidget()));
}

QString Monkey::wait(int ms) {
    QTest::qWait(ms);
    afterEvents(0); // the timers ran meanwhile
    return QStringLiteral("wait %1 ms").arg(ms);
}

QString Monkey::step() {
    // The confirmation page takes every click for a few seconds: mostly let it run out.
    const Frame_Alarm* alarm = m_app.root() ? m_app.root()->frmAlarm : nullptr;
    if (alarm && alarm->frmDoneView && alarm->frmDoneView->isVisible() && chance(60)) {
        ++m_sent[Wait];
        return wait(100 + below(400));
    }

    const Kind kind = chooseKind();
    ++m_sent[kind];
    // A button held since a stray press comes up before the next press: no hand presses a
    // button that is already down.
    const bool pressesAgain =
        kind == ClickControl || kind == ClickAnywhere || kind == DoubleClick || kind == Drag;
    if (m_buttonHeld && pressesAgain) {
        const QString released = release(anywhere());
        if (m_failed) return released;
    }
    switch (kind) {
    case ClickControl: {
        QWidget* control = chooseControl();
        const QPoint p = control ? pointOn(control) : anywhere();
        return click(p) + QStringLiteral(" on ") + Describe(control);
    }
    case MoveToControl:
        return move(aim());
    case MoveAnywhere:
        return move(anywhere());
    case ClickAnywhere:
        return click(anywhere());
    case DoubleClick: {
        const QPoint p = aim();
        m_app.moveTo(p);
        afterEvents(1);
        if (m_failed) return QStringLiteral("move %1").arg(PointText(p));
        QTest::mouseDClick(m_app.handle(), Qt::LeftButton, Qt::NoModifier, p);
        m_buttonHeld = false;
        afterEvents(4);
        return QStringLiteral("double click %1").arg(PointText(p));
    }
    case Drag:
        return drag();
    case StrayPress:
        // A press while the button is already down would be a second press of a held button.
        return m_buttonHeld ? release(aim()) : press(aim());
    case StrayRelease:
        return m_buttonHeld ? release(anywhere()) : move(anywhere());
    case Keystroke:
        return keystroke();
    case TypeText:
        return typeText();
    case Paste:
        return paste();
    case Wait:
        return wait(below(150));
    case LeaveWindow:
        if (m_buttonHeld) return release(anywhere());
        m_app.leaveWindow();
        afterEvents(1);
        return QStringLiteral("leave window");
    case KindCount:
        break;
    }
    return QStringLiteral("nothing");
}
