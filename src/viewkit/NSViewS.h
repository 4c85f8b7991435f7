#pragma once

#include "NSRect.h"

#include <QWidget>

class HoverOwner;

// The container every screen and sub-view is made of. Qt already has the origin at the top left
// with y growing downwards; what it lacks is a float frame, so the view keeps one.
class NSViewS : public QWidget {
    Q_OBJECT
public:
    explicit NSViewS(const NSRect& frame);

    NSRect frame() const { return m_frame; }
    void setFrame(const NSRect& frame);

    // Adds the child on top of its siblings; adding it again brings it to the front. A child that
    // was hidden on purpose stays hidden, every other child is shown with its parent.
    void addSubview(QWidget* child) { addSubview(this, child); }
    static void addSubview(QWidget* parent, QWidget* child);

    // The part of the view that is on screen, in its own coordinates; empty while it, or an
    // ancestor, is hidden or the window is not shown.
    QRect visibleRect() const { return visibleRect(this); }
    static QRect visibleRect(const QWidget* widget);

    // A hover registration: the rectangle (in this view's coordinates) is fixed in window
    // coordinates now, and the owner gets one enter and one exit per crossing, for as long as
    // the application runs.
    void addTrackingRect(const QRect& rect, HoverOwner* owner, void* userData, bool assumeInside);

    // A screen makes the hover registrations of its buttons when it is shown; other views have none.
    virtual void ButtonTrackingOn() {}

    // What the focus ring goes round, in the view's coordinates: the whole view unless it says
    // otherwise.
    virtual QRectF focusRect() const { return QRectF(rect()); }

private:
    NSRect m_frame;
};
