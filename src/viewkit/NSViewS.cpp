#include "NSViewS.h"

#include "KeyboardNavigation.h"
#include "TrackingRegistry.h"

#include <QTimer>

NSViewS::NSViewS(const NSRect& frame) : m_frame(frame) {
    setGeometry(frame.toRect());
}

void NSViewS::setFrame(const NSRect& frame) {
    m_frame = frame;
    setGeometry(frame.toRect());
}

void NSViewS::addSubview(QWidget* child) {
    AddSubview(this, child);
}

void NSViewS::AddSubview(QWidget* parent, QWidget* child) {
    if (!parent || !child || parent == child) return;
    if (child->parentWidget() != parent) {
        // setParent() hides the widget; remember whether that was the caller's wish.
        const bool hiddenOnPurpose = child->testAttribute(Qt::WA_WState_ExplicitShowHide) &&
                                     child->testAttribute(Qt::WA_WState_Hidden);
        const QRect geometry = child->geometry();
        child->setParent(parent);
        child->setGeometry(geometry);
        child->setHidden(hiddenOnPurpose);
    }
    child->raise();
}

QRect NSViewS::VisibleRect(const QWidget* widget) {
    if (!widget || !widget->isVisible()) return {};
    QRect visible = widget->rect();
    QPoint offset(0, 0); // the widget's origin in the current ancestor's coordinates
    for (const QWidget* w = widget; w && !w->isWindow(); w = w->parentWidget()) {
        offset += w->pos();
        const QWidget* parent = w->parentWidget();
        if (!parent) break;
        visible &= parent->rect().translated(-offset);
    }
    return visible.isEmpty() ? QRect() : visible;
}

void NSViewS::addTrackingRect(const QRect& rect, HoverOwner* owner, void* userData, bool assumeInside) {
    TrackingRegistry::instance().add(this, rect, owner, userData, assumeInside);
}

void NSViewS::setVisible(bool visible) {
    // Qt hands the focus of a widget being hidden to the next one in its own chain, which knows
    // nothing of what is covered, and where there is none the hidden field keeps it and goes on
    // taking every key typed into the window. Once the change that hid it is over (a page is
    // hidden before the next one is shown), the first control on view takes it. The window's own
    // focus widget, not the application's: shown scaled, the window sits in a graphics view,
    // which is the application's focus widget and hands the keys on to the window's.
    QWidget* window = this->window();
    QWidget* focused = window->focusWidget();
    if (!visible && focused && (focused == this || isAncestorOf(focused))) {
        focused->clearFocus();
        QTimer::singleShot(0, window, [window] {
            if (!window->focusWidget()) KeyboardNavigation::FocusFirst(window);
        });
    }
    QWidget::setVisible(visible);
}
