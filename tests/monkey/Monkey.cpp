#include "Monkey.h"

#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "NSViewS.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include <numeric>
#include <vector>

namespace {

// Weights of the kinds of input, in the order of Monkey::Kind.
constexpr int kWeights[Monkey::KindCount] = {40, 4, 2, 22, 6, 2, 2, 12, 4, 2, 3, 1};

// Keys a user presses in and around the name field and the date pickers, now and then with Shift
// or Ctrl. Keys that open the platform's context menus (Menu, Shift+F10) are left out: the
// pickers run those menus in a nested event loop that only a person can end.
const Qt::Key kKeys[] = {Qt::Key_A,         Qt::Key_C,       Qt::Key_V,        Qt::Key_X,     Qt::Key_Y,
                         Qt::Key_Z,         Qt::Key_0,       Qt::Key_5,        Qt::Key_9,     Qt::Key_Space,
                         Qt::Key_Backspace, Qt::Key_Delete,  Qt::Key_Left,     Qt::Key_Right, Qt::Key_Up,
                         Qt::Key_Down,      Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End,
                         Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter, Qt::Key_Escape,
                         Qt::Key_F1};
const Qt::KeyboardModifiers kModifiers[] = {Qt::NoModifier,      Qt::NoModifier,
                                            Qt::NoModifier,      Qt::ShiftModifier,
                                            Qt::ControlModifier, Qt::ControlModifier | Qt::ShiftModifier};

// The awkward texts every text field meets sooner or later.
const char16_t* const kTexts[] = {
    u"a",
    u"Robot 2",
    u" ",
    u"\u00e9t\u00e9 \u00df",               // accented Latin
    u"\u4e2d\u6587\u540d\u5b57",           // CJK
    u"\U0001F600",                         // emoji outside the basic plane
    u"\U0001F469\u200D\U0001F4BB",         // joined emoji sequence
    u"\u0645\u0631\u062D\u0628\u0627 123", // Arabic with digits
    u"\u202Eevil\u202C",                   // right-to-left override
    u"e\u0301\u0301\u0301",                // stacked combining marks
    u"\u200B",                             // zero width space
    u"%s%n%d\\0",                          // format directives
    u"\uFFFD\uFEFF",                       // replacement character and BOM
};

// Past this length a field's text is replaced rather than added to: the line edit lays its whole
// text out again on every key, and a long run would spend its time laying out millions of
// characters.
constexpr qsizetype kLongText = 20000;

// A control is something a person aims at: a button, the name field or a date picker (the line
// edit inside a picker is the picker's own business).
bool IsControl(const QWidget* w) {
    if (qobject_cast<const Button*>(w) || qobject_cast<const QAbstractSpinBox*>(w)) return true;
    return qobject_cast<const QLineEdit*>(w) && !qobject_cast<const QAbstractSpinBox*>(w->parentWidget());
}

QString Describe(const QWidget* w) {
    return w ? QStringLiteral("%1 \"%2\"")
                   .arg(QLatin1String(w->metaObject()->className()), w->accessibleName())
             : QStringLiteral("nothing");
}

QString PointText(QPoint p) {
    return QStringLiteral("(%1, %2)").arg(p.x()).arg(p.y());
}

} // namespace

void Monkey::afterEvents(int events) {
    m_events += events;
    if (m_check && !m_failed && !m_check()) m_failed = true;
}

const char* Monkey::KindName(Kind kind) {
    static const char* const names[KindCount] = {
        "click on a control", "click anywhere", "double click", "move",  "drag", "stray press",
        "stray release",      "keystroke",      "typed text",   "paste", "wait", "leave window",
    };
    return names[kind];
}

QPoint Monkey::anywhere() {
    // (0, 0) means "the middle" to the test library, so the corner is left out.
    const QPoint p(below(1024), below(768));
    return p.isNull() ? QPoint(0, 1) : p;
}

QWidget* Monkey::chooseControl() {
    QWidget* screen = m_app.shownScreen();
    if (!screen) return nullptr;
    // Done with an alarm on holds the screen for seconds under the confirmation page; aimed at
    // as often as the rest it would spend most of a run waiting.
    const QWidget* done = m_app.root()->frmAlarm->BtnDone;
    std::vector<QWidget*> controls;
    for (QWidget* w : screen->findChildren<QWidget*>())
        if (IsControl(w) && !NSViewS::VisibleRect(w).isEmpty() && (w != done || chance(20)))
            controls.push_back(w);
    return controls.empty() ? nullptr : controls[below(int(controls.size()))];
}

// A point on the control (one of the screen on view when none is given), else anywhere.
QPoint Monkey::aim(QWidget* control) {
    if (!control) control = chooseControl();
    if (!control) return anywhere();
    const QRect visible = NSViewS::VisibleRect(control);
    const QPoint p =
        m_app.at(control, {visible.x() + below(visible.width()), visible.y() + below(visible.height())});
    return p.isNull() ? QPoint(0, 1) : p;
}

QString Monkey::move(QPoint p) {
    m_app.moveTo(p);
    afterEvents(1);
    return QStringLiteral("move %1").arg(PointText(p));
}

QString Monkey::press(QPoint p, bool down) {
    down ? m_app.press(p) : m_app.release(p);
    m_buttonHeld = down;
    afterEvents(1);
    return QStringLiteral("%1 %2").arg(down ? QStringLiteral("press") : QStringLiteral("release"),
                                       PointText(p));
}

QString Monkey::click(QPoint p) {
    QString text = move(p);
    if (!m_failed) text += QStringLiteral(", ") + press(p);
    // Now and then the hand rests between press and release, and timers run meanwhile.
    if (!m_failed && chance(10)) text += QStringLiteral(", ") + wait(below(120));
    if (!m_failed) text += QStringLiteral(", ") + press(p, false);
    return text;
}

QString Monkey::drag() {
    const QPoint from = chance(70) ? aim() : anywhere();
    QString text = QStringLiteral("drag: ") + move(from);
    if (!m_failed) text += QStringLiteral(", ") + press(from);
    QPoint last = from;
    for (int i = 1 + below(6); i > 0 && !m_failed; --i) {
        // Left of or above the window now and then: a drag leaves it there.
        if (chance(15))
            last = chance(50) ? QPoint(-1 - below(40), below(768)) : QPoint(below(1024), -1 - below(40));
        else
            last = chance(50) ? aim() : anywhere();
        text += QStringLiteral(", ") + move(last);
    }
    if (!m_failed)
        text += QStringLiteral(", ") + press(last.x() < 0 || last.y() < 0 ? anywhere() : last, false);
    return text;
}

QString Monkey::key(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    if (text.isEmpty())
        QTest::keyClick(m_app.handle(), Qt::Key(key), modifiers);
    else
        QTest::sendKeyEvent(QTest::Click, m_app.handle(), Qt::Key(key), text, modifiers);
    afterEvents(2);
    return QStringLiteral("key %1/%2 \"%3\" to %4")
        .arg(key, 0, 16)
        .arg(int(modifiers), 0, 16)
        .arg(text.left(8), Describe(QApplication::focusWidget()));
}

// Typed text comes as one key event carrying the whole of it, as an input method hands over a
// composed string; pasted text goes through the clipboard.
QString Monkey::text(bool paste) {
    QString sent;
    const auto* field = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
    if (field && field->text().size() > kLongText)
        sent = key(Qt::Key_A, Qt::ControlModifier) + QStringLiteral(", ");
    if (m_failed) return sent;
    const int index = below(int(std::size(kTexts)));
    const int repeat =
        paste ? (chance(10) ? 1 + below(3000) : 1 + below(3)) : (chance(5) ? 1 + below(400) : 1);
    const QString text = QString::fromUtf16(kTexts[index]).repeated(repeat);
    if (!paste) return sent + key(Qt::Key_unknown, Qt::NoModifier, text);
    QGuiApplication::clipboard()->setText(text);
    return sent + QStringLiteral("paste %1 x%2: ").arg(index).arg(repeat) +
           key(Qt::Key_V, Qt::ControlModifier);
}

QString Monkey::wait(int ms) {
    QTest::qWait(ms);
    afterEvents(0); // the timers ran meanwhile
    return QStringLiteral("wait %1 ms").arg(ms);
}

QString Monkey::step() {
    // The confirmation page takes every click for a few seconds: mostly let it run out.
    if (m_app.root()->frmAlarm->frmDoneView->isVisible() && chance(60)) {
        ++m_sent[Wait];
        return wait(100 + below(400));
    }
    int pick = below(std::accumulate(std::begin(kWeights), std::end(kWeights), 0));
    int k = 0;
    while (pick >= kWeights[k]) pick -= kWeights[k++];
    const Kind kind = Kind(k);
    ++m_sent[kind];
    // A button held since a stray press comes up before the next press: no hand presses a
    // button that is already down.
    if (m_buttonHeld && kind != Move && (kind < Keystroke || kind == LeaveWindow)) {
        const QString released = press(anywhere(), false);
        if (m_failed || kind == StrayPress || kind == StrayRelease || kind == LeaveWindow) return released;
    }
    switch (kind) {
    case ClickControl: {
        QWidget* control = chooseControl();
        return click(aim(control)) + QStringLiteral(" on ") + Describe(control);
    }
    case ClickAnywhere:
        return click(anywhere());
    case DoubleClick: {
        const QPoint p = aim();
        const QString moved = move(p);
        if (m_failed) return moved;
        QTest::mouseDClick(m_app.handle(), Qt::LeftButton, Qt::NoModifier, p);
        afterEvents(4);
        return QStringLiteral("double click %1").arg(PointText(p));
    }
    case Move:
        return move(chance(45) ? aim() : anywhere());
    case Drag:
        return drag();
    case StrayPress:
        return press(aim());
    case StrayRelease:
        return move(anywhere());
    case Keystroke:
        return key(kKeys[below(int(std::size(kKeys)))], kModifiers[below(int(std::size(kModifiers)))]);
    case TypeText:
    case Paste:
        return text(kind == Paste);
    case Wait:
        return wait(below(150));
    case LeaveWindow:
        m_app.leaveWindow();
        afterEvents(1);
        return QStringLiteral("leave window");
    case KindCount:
        break;
    }
    return {};
}
