#include "KeyboardNavigation.h"

#include "FocusRing.h"
#include "NSViewS.h"
#include "Pressable.h"
#include "ReadingOrder.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QTimer>

namespace {

QPointer<KeyboardNavigation> g_navigation;

// Shown scaled, the window is a graphics view that holds the real window through a proxy and
// hands the keys on to it: the keyboard works in that window, not the view.
QWidget* KeysGoTo(QWidget* widget) {
    auto* view = qobject_cast<QGraphicsView*>(widget->window());
    if (!view || !view->scene()) return widget->window();
    for (QGraphicsItem* item : view->scene()->items())
        if (auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(item); proxy && proxy->widget())
            return proxy->widget()->window();
    return widget->window();
}

bool Inside(const QWidget* scope, const QWidget* widget) {
    return widget && (widget == scope || scope->isAncestorOf(widget));
}

// The control a screen or page inside `scope` names as where it starts.
bool StartsAt(const QWidget* control, const QWidget* scope) {
    for (const QWidget* w = control->parentWidget(); w; w = w->parentWidget()) {
        if (w->focusProxy() == control) return true;
        if (w == scope) break;
    }
    return false;
}

} // namespace

KeyboardNavigation::KeyboardNavigation(QObject* owner) : QObject(owner) {
    g_navigation = this;
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &KeyboardNavigation::showRing);
}

KeyboardNavigation* KeyboardNavigation::current() {
    return g_navigation;
}

bool KeyboardNavigation::TakesFocus(const QWidget* control) {
    if (!control || !(control->focusPolicy() & Qt::TabFocus) || control->focusProxy() ||
        !control->isEnabled())
        return false;
    const QRect visible = NSViewS::visibleRect(control);
    if (visible.isEmpty()) return false;
    // Not covered: a click at its centre would reach it.
    const QWidget* window = control->window();
    const QWidget* hit = window->childAt(control->mapTo(window, visible.center()));
    return hit == control || control->isAncestorOf(hit);
}

QList<QWidget*> KeyboardNavigation::controls(const QWidget* scope) const {
    QList<QWidget*> found;
    if (!scope) return found;
    QList<QRect> places;
    QList<int> runs;
    const QWidget* window = scope->window();
    for (QWidget* w : scope->findChildren<QWidget*>()) {
        if (!TakesFocus(w)) continue;
        const QRect visible = NSViewS::visibleRect(w);
        found << w;
        places << QRect(w->mapTo(window, visible.topLeft()), visible.size());
        int run = -1;
        for (qsizetype p = 0; p < m_itemOrder.size() && run < 0; ++p)
            if (m_itemOrder[p] && m_itemOrder[p]->isAncestorOf(w)) run = static_cast<int>(p);
        runs << run;
    }
    QList<QWidget*> ordered;
    for (const qsizetype i : ReadingOrder(places, runs)) ordered << found[i];
    return ordered;
}

void KeyboardNavigation::FocusFirst(const QWidget* scope) {
    KeyboardNavigation* navigation = current();
    if (!navigation || !scope) return;
    const QList<QWidget*> controls = navigation->controls(scope);
    if (controls.isEmpty()) return;
    QWidget* first = controls.first();
    for (QWidget* control : controls)
        if (StartsAt(control, scope)) {
            first = control;
            break;
        }
    first->setFocus(Qt::OtherFocusReason);
    navigation->m_window = scope->window();
    navigation->showRing();
}

void KeyboardNavigation::FocusIfKeyboardInUse(QWidget* control) {
    KeyboardNavigation* navigation = current();
    if (navigation && navigation->m_keyboard && TakesFocus(control)) control->setFocus(Qt::TabFocusReason);
}

void KeyboardNavigation::Press(QWidget* control) {
    KeyboardNavigation* navigation = current();
    auto* pressable = dynamic_cast<Pressable*>(control);
    if (!navigation || !pressable || !TakesFocus(control)) return;
    navigation->m_window = control->window();
    navigation->setKeyboardInUse(true);
    pressable->press();
    // The press may have changed the pictures the ring hugs, or covered the control.
    navigation->keepFocusOnView();
}

void KeyboardNavigation::bind(QWidget* scope, int key, std::function<void()> action) {
    std::erase_if(m_bindings, [](const Binding& b) { return !b.scope; });
    if (scope) m_bindings.push_back({scope, key, std::move(action)});
}

void KeyboardNavigation::EscapeCalls(QWidget* scope, std::function<void()> action) {
    if (KeyboardNavigation* navigation = current())
        navigation->bind(scope, Qt::Key_Escape, std::move(action));
}

void KeyboardNavigation::EscapePresses(QWidget* back) {
    if (back) EscapeCalls(back->parentWidget(), [back = QPointer<QWidget>(back)] { Press(back); });
}

void KeyboardNavigation::ReturnPresses(QWidget* scope, QWidget* button) {
    KeyboardNavigation* navigation = current();
    if (!navigation) return;
    const auto press = [button = QPointer<QWidget>(button)] { Press(button); };
    navigation->bind(scope, Qt::Key_Return, press);
    navigation->bind(scope, Qt::Key_Enter, press);
}

void KeyboardNavigation::ReadsInItemOrder(QWidget* panel) {
    if (KeyboardNavigation* navigation = current()) {
        navigation->m_itemOrder.removeAll(nullptr);
        navigation->m_itemOrder << panel;
    }
}

const KeyboardNavigation::Binding* KeyboardNavigation::bindingAt(QWidget* window, int key) const {
    const QWidget* focus = window->focusWidget();
    const Binding* found = nullptr;
    for (const Binding& b : m_bindings)
        if (b.key == key && b.scope && b.scope->window() == window && b.scope->isVisible() &&
            Inside(b.scope, focus) && (!found || found->scope->isAncestorOf(b.scope)))
            found = &b;
    return found;
}

bool KeyboardNavigation::keyPressed(QWidget* window, const QKeyEvent* key) {
    const int k = key->key();
    const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
    if (k == Qt::Key_Tab || k == Qt::Key_Backtab) {
        if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
        return moveFocus(window, k == Qt::Key_Tab && !(modifiers & Qt::ShiftModifier));
    }
    const bool enter = k == Qt::Key_Return || k == Qt::Key_Enter;
    if (modifiers != Qt::NoModifier || (k != Qt::Key_Escape && k != Qt::Key_Space && !enter)) return false;

    QWidget* focus = window->focusWidget();
    const bool focusShown = m_keyboard && TakesFocus(focus);
    auto* pressable = dynamic_cast<Pressable*>(focus);
    const Binding* binding = k == Qt::Key_Escape || (enter && !pressable) ? bindingAt(window, k) : nullptr;
    if (k != Qt::Key_Escape && !binding) {
        // Space or Return that would press where no focus shows only shows it; in a field
        // they are the field's.
        if (!pressable && TakesFocus(focus)) return false;
        if (!key->isAutoRepeat()) {
            m_window = window;
            if (!focusShown && !TakesFocus(focus)) FocusFirst(window);
            if (focusShown && pressable) Press(focus);
            setKeyboardInUse(true);
        }
        return true;
    }
    if (!binding) return false;
    // A key held down works once, as a button held down clicks once.
    if (!key->isAutoRepeat()) {
        m_window = window;
        setKeyboardInUse(true);
        // A copy: the action may bind more keys.
        const std::function<void()> action = binding->action;
        action();
        keepFocusOnView();
    }
    return true;
}

void KeyboardNavigation::setKeyboardInUse(bool inUse) {
    if (m_keyboard == inUse) return;
    m_keyboard = inUse;
    showRing();
}

QWidget* KeyboardNavigation::focused() const {
    // The focus of the window it was put in, active or not (with no window manager, none is).
    return m_window ? m_window->focusWidget() : QApplication::focusWidget();
}

void KeyboardNavigation::showRing() {
    QWidget* focused = this->focused();
    // A control a page now covers (Done under the alarm's confirmation) keeps the focus unseen.
    if (!m_keyboard || !focused || !TakesFocus(focused)) {
        if (m_ring) m_ring->follow(nullptr);
        return;
    }
    // Made on first use, so a window worked only with the mouse never has one.
    if (!m_ring || m_ring->parentWidget() != focused->window()) {
        delete m_ring;
        m_ring = new FocusRing(focused->window());
    }
    m_ring->follow(focused);
}

void KeyboardNavigation::keepFocusOnView() {
    // At once, not once the change is over: the next key may already be waiting.
    QWidget* focus = focused();
    if (m_window && (!focus || !TakesFocus(focus))) FocusFirst(m_window);
    showRing();
}

bool KeyboardNavigation::moveFocus(QWidget* window, bool forward) {
    m_window = window;
    // Where the focus does not show, the first Tab shows it.
    if (!m_keyboard && TakesFocus(window->focusWidget())) {
        setKeyboardInUse(true);
        return true;
    }
    setKeyboardInUse(true);
    const QList<QWidget*> controls = this->controls(window);
    if (controls.isEmpty()) return true;
    const qsizetype n = controls.size();
    const qsizetype at = controls.indexOf(window->focusWidget());
    if (at < 0 && forward) {
        FocusFirst(window);
        return true;
    }
    const qsizetype next = at < 0 ? n - 1 : (at + (forward ? 1 : n - 1)) % n;
    controls[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    showRing();
    return true;
}

void KeyboardNavigation::focusLeaves(QWidget* hidden) {
    // Qt hands the focus of a widget being hidden to the next one in its own chain, which knows
    // nothing of what is covered, and where there is none the hidden field keeps it and goes on
    // taking every key typed into the window. Once the change that hid it is over (a page is
    // hidden before the next one is shown), the first control on view takes it. The window's own
    // focus widget, not the application's: shown scaled, the window sits in a graphics view,
    // which is the application's focus widget and hands the keys on to the window's.
    QWidget* window = hidden->window();
    QWidget* focus = window->focusWidget();
    if (!Inside(hidden, focus)) return;
    focus->clearFocus();
    QTimer::singleShot(0, window, [window] {
        if (!window->focusWidget()) FocusFirst(window);
    });
}

bool KeyboardNavigation::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        setKeyboardInUse(false);
        break;
    case QEvent::KeyPress: {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (!widget || widget->window()->windowType() == Qt::Popup) break;
        return keyPressed(KeysGoTo(widget), static_cast<QKeyEvent*>(event));
    }
    case QEvent::Hide:
        if (watched->isWidgetType() && !static_cast<QWidget*>(watched)->isWindow())
            focusLeaves(static_cast<QWidget*>(watched));
        break;
    case QEvent::Move:
        // A control scrolled out of its view lets the keyboard go, as a hidden one does.
        // Compared by address first: a timeline scroll moves some 1500 views a tick.
        if (QWidget* moved = focused(); moved && watched == moved && NSViewS::visibleRect(moved).isEmpty()) {
            moved->clearFocus();
            FocusFirst(moved->window());
        }
        break;
    default:
        break;
    }
    return false;
}
