#include "NSViewS.h"

#include "TrackingRegistry.h"

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
    // Qt hands the focus of a widget being hidden to the next one that takes focus, and where
    // there is none (no control here takes focus but the name field and the pickers) the hidden
    // field keeps it and goes on taking every key typed into the window. The window's own focus
    // widget, not the application's: shown scaled, the window's widgets sit in a graphics view,
    // which is the application's focus widget and hands the keys on to the window's.
    if (!visible) {
        QWidget* focused = window()->focusWidget();
        if (focused && (focused == this || isAncestorOf(focused))) focused->clearFocus();
    }
    QWidget::setVisible(visible);
}
