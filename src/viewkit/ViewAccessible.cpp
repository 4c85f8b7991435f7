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

QRect ViewAccessible::DrawnRect(const QWidget* widget) {
    if (!widget || !widget->isVisible()) return {};
    const QWidget* window = widget->window();
    QRectF drawn(widget->mapTo(window, QPointF(0, 0)), widget->size());
    QPointF origin = window->mapToGlobal(QPointF(0, 0));
    // A window shown scaled lies in a scene, drawn through the view's transform.
    if (const QGraphicsProxyWidget* proxy = window->graphicsProxyWidget(); proxy && proxy->scene()) {
        const QList<QGraphicsView*> views = proxy->scene()->views();
        if (!views.isEmpty()) {
            const QGraphicsView* view = views.first();
            drawn = view->viewportTransform().mapRect(proxy->mapRectToScene(drawn));
            origin = view->viewport()->mapToGlobal(QPointF(0, 0));
        }
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
