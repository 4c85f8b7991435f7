#pragma once

#include <QAccessibleWidget>

class QGraphicsView;

// What assistive technologies see of a view: a grouping when it is named (a screen or a page, whose
// name a reader speaks as the focus enters it; the role a screen sets, such as an alert for a page
// that announces itself), an unnamed filler otherwise; and, for every view, the place it is drawn.
class ViewAccessible : public QAccessibleWidget {
public:
    explicit ViewAccessible(QWidget* view, QAccessible::Role role = QAccessible::Client);

    QAccessible::Role role() const override;
    QRect rect() const override;
    // What is drawn at a point: the topmost child there (Qt's own answer is the first one listed,
    // the background a screen lays first).
    QAccessibleInterface* childAt(int x, int y) const override;

    // Where the widget is drawn on its screen, in the screen's own pixels: through the view that
    // shows its window scaled, and at the screen's scale (readers and magnifiers use device pixels);
    // empty while it is not shown.
    static QRect DrawnRect(const QWidget* widget);
    // The same for a part of it, given in its own coordinates (a character of a field).
    static QRect DrawnRect(const QWidget* widget, const QRectF& part);
    // The point in the widget's own coordinates that is drawn at `drawn` (as DrawnRect reports it).
    static QPointF LocalPoint(const QWidget* widget, const QPoint& drawn);
    // The view that shows `window` scaled (through a proxy in its scene); null when it is shown as itself.
    static QGraphicsView* ShownIn(const QWidget* window);
    // The role a screen gives a view beyond a grouping; kept on the view, read when asked.
    static void SetRole(QWidget* view, QAccessible::Role role);
};
