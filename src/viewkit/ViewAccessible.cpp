#include "ViewAccessible.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QScreen>

namespace {
const char* const kRole = "accessibleRole";
} // namespace

ViewAccessible::ViewAccessible(QWidget* view, QAccessible::Role role) : QAccessibleWidget(view, role) {}

QAccessible::Role ViewAccessible::role() const {
    if (const QVariant set = widget()->property(kRole); set.isValid()) return set.value<QAccessible::Role>();
    if (QAccessibleWidget::role() == QAccessible::Client && !widget()->accessibleName().isEmpty())
        return QAccessible::Grouping;
    return QAccessibleWidget::role();
}

QRect ViewAccessible::rect() const {
    return DrawnRect(widget());
}

QAccessibleInterface* ViewAccessible::childAt(int x, int y) const {
    // Children are listed bottom to top.
    for (int i = childCount() - 1; i >= 0; --i)
        if (QAccessibleInterface* c = child(i); c && c->isValid() && c->rect().contains(x, y)) return c;
    return nullptr;
}

void ViewAccessible::SetRole(QWidget* view, QAccessible::Role role) {
    view->setProperty(kRole, QVariant::fromValue(role));
}

QGraphicsView* ViewAccessible::ShownIn(const QWidget* window) {
    const QGraphicsProxyWidget* proxy = window ? window->graphicsProxyWidget() : nullptr;
    if (!proxy || !proxy->scene() || proxy->scene()->views().isEmpty()) return nullptr;
    return proxy->scene()->views().first();
}

QRect ViewAccessible::DrawnRect(const QWidget* widget) {
    return widget ? DrawnRect(widget, widget->rect()) : QRect();
}

QRect ViewAccessible::DrawnRect(const QWidget* widget, const QRectF& part) {
    if (!widget || !widget->isVisible()) return {};
    const QWidget* window = widget->window();
    QRectF drawn = part.translated(widget->mapTo(window, QPointF(0, 0)));
    QPointF origin = window->mapToGlobal(QPointF(0, 0));
    // A window shown scaled lies in a scene, drawn through the view's transform.
    if (const QGraphicsView* view = ShownIn(window)) {
        drawn = view->viewportTransform().mapRect(window->graphicsProxyWidget()->mapRectToScene(drawn));
        origin = view->viewport()->mapToGlobal(QPointF(0, 0));
    }
    drawn.translate(origin);
    // Qt places each screen at its own origin in device pixels and scales what lies on it.
    if (const QScreen* screen = widget->screen()) {
        const QPointF screenOrigin = screen->geometry().topLeft();
        const qreal ratio = screen->devicePixelRatio();
        drawn = QRectF(screenOrigin + (drawn.topLeft() - screenOrigin) * ratio, drawn.size() * ratio);
    }
    return drawn.toRect();
}

QPointF ViewAccessible::LocalPoint(const QWidget* widget, const QPoint& drawn) {
    if (!widget) return {};
    QPointF point = drawn;
    if (const QScreen* screen = widget->screen()) {
        const QPointF screenOrigin = screen->geometry().topLeft();
        point = screenOrigin + (point - screenOrigin) / screen->devicePixelRatio();
    }
    const QWidget* window = widget->window();
    if (const QGraphicsView* view = ShownIn(window)) {
        const QPointF inView = point - view->viewport()->mapToGlobal(QPointF(0, 0));
        point = window->graphicsProxyWidget()->mapFromScene(view->viewportTransform().inverted().map(inView));
    } else {
        point = window->mapFromGlobal(point);
    }
    return widget->mapFrom(window, point);
}
