#include "KeyboardNavigation.h"

#include "Button.h"
#include "FocusRing.h"
#include "NSViewS.h"
#include "ReadingOrder.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QShortcut>

namespace {

// Shown scaled, the window is a graphics view that holds the real window through a proxy and
// hands the keys on to it: the keyboard moves through that window, not the view.
QWidget* KeysGoTo(QWidget* widget) {
    auto* view = qobject_cast<QGraphicsView*>(widget->window());
    if (!view || !view->scene()) return widget;
    for (QGraphicsItem* item : view->scene()->items())
        if (auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(item); proxy && proxy->widget())
            return proxy->widget();
    return widget;
}

} // namespace

KeyboardNavigation& KeyboardNavigation::instance() {
    // Owned by the application, so a new application gets a new one.
    static QPointer<KeyboardNavigation> navigation;
    if (!navigation) {
        navigation = new KeyboardNavigation;
        navigation->setParent(qApp);
        qApp->installEventFilter(navigation);
        connect(qApp, &QApplication::focusChanged, navigation, &KeyboardNavigation::showRing);
    }
    return *navigation;
}

void KeyboardNavigation::Install() {
    instance();
}

bool KeyboardNavigation::TakesFocus(const QWidget* control) {
    if (!control || !(control->focusPolicy() & Qt::TabFocus) || control->focusProxy() ||
        !control->isEnabled())
        return false;
    const QRect visible = NSViewS::VisibleRect(control);
    if (visible.isEmpty()) return false;
    // Not covered: a click at its centre would reach it.
    const QWidget* window = control->window();
    const QWidget* hit = window->childAt(control->mapTo(window, visible.center()));
    return hit == control || control->isAncestorOf(hit);
}

QList<QWidget*> KeyboardNavigation::Controls(const QWidget* scope) {
    QList<QWidget*> found;
    QList<QRect> places;
    if (!scope) return found;
    const QWidget* window = scope->window();
    for (QWidget* w : scope->findChildren<QWidget*>()) {
        if (!TakesFocus(w)) continue;
        const QRect visible = NSViewS::VisibleRect(w);
        found << w;
        places << QRect(w->mapTo(window, visible.topLeft()), visible.size());
    }
    QList<QWidget*> controls;
    for (const qsizetype i : ReadingOrder(places)) controls << found[i];
    return controls;
}

void KeyboardNavigation::FocusFirst(const QWidget* scope) {
    const QList<QWidget*> controls = Controls(scope);
    if (controls.isEmpty()) return;
    controls.first()->setFocus(Qt::OtherFocusReason);
    instance().m_window = scope->window();
    instance().showRing();
}

void KeyboardNavigation::FocusIfKeyboardInUse(QWidget* control) {
    if (instance().m_keyboard && TakesFocus(control)) control->setFocus(Qt::TabFocusReason);
}

void KeyboardNavigation::Press(Button* button) {
    if (!TakesFocus(button)) return;
    instance().m_window = button->window();
    instance().setKeyboardInUse(true);
    button->click();
    // The press may have changed the pictures the ring hugs.
    instance().showRing();
}

void KeyboardNavigation::EscapePresses(Button* back) {
    // A window shortcut of the button itself: live only while the button is shown.
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), back);
    escape->setAutoRepeat(false);
    connect(escape, &QShortcut::activated, back, [back] { Press(back); });
}

void KeyboardNavigation::ReturnPresses(QWidget* editor, Button* button) {
    auto* enter = new QShortcut(editor);
    enter->setKeys({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    enter->setContext(Qt::WidgetWithChildrenShortcut);
    enter->setAutoRepeat(false);
    connect(enter, &QShortcut::activated, button, [button] { Press(button); });
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

bool KeyboardNavigation::moveFocus(QWidget* from, bool forward) {
    QWidget* window = from->window();
    const QList<QWidget*> controls = Controls(window);
    m_window = window;
    setKeyboardInUse(true);
    if (controls.isEmpty()) return true;
    const qsizetype n = controls.size();
    const qsizetype at = controls.indexOf(window->focusWidget());
    const qsizetype next = at < 0 ? (forward ? 0 : n - 1) : (at + (forward ? 1 : n - 1)) % n;
    controls[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    showRing();
    return true;
}

bool KeyboardNavigation::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        setKeyboardInUse(false);
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        auto* widget = qobject_cast<QWidget*>(watched);
        const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        if (!tab || !widget || widget->window()->windowType() == Qt::Popup ||
            (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
            break;
        return moveFocus(KeysGoTo(widget),
                         key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier));
    }
    case QEvent::Move:
        // A control scrolled out of its view lets the keyboard go, as a hidden one does.
        // Compared by address first: a timeline scroll moves some 1500 views a tick.
        if (QWidget* moved = focused(); moved && watched == moved && NSViewS::VisibleRect(moved).isEmpty()) {
            moved->clearFocus();
            FocusFirst(moved->window());
        }
        break;
    default:
        break;
    }
    return false;
}
