#pragma once

#include "ViewAccessible.h"

// What assistive technologies see of a window: a frame named by its title. A window that shows
// another one scaled (a graphics view holding it through a proxy) is the one frame, and the window it
// holds its unnamed content, so a reader finds one window, not two, with everything where it is drawn.
class WindowAccessible : public ViewAccessible {
public:
    explicit WindowAccessible(QWidget* window);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text t) const override;
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    // The windows this view shows scaled; empty for any other window.
    QList<QWidget*> held() const;
};
