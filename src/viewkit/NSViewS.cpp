#include "NSViewS.h"

#include "TrackingRegistry.h"

NSViewS::NSViewS(const NSRect& frame) : m_frame(frame) {
    setGeometry(frame.toRect());
}

void NSViewS::setFrame(const NSRect& frame) {
    m_frame = frame;
    setGeometry(frame.toRect());
}

void NSViewS::addSubview(QWidget* parent, QWidget* child) {
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

QRect NSViewS::visibleRect(const QWidget* widget) {
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
    if (TrackingRegistry* registry = TrackingRegistry::instance())
        registry->add(this, rect, owner, userData, assumeInside);
}
