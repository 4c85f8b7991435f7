#include "WindowAccessible.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>

WindowAccessible::WindowAccessible(QWidget* window) : ViewAccessible(window, QAccessible::Window) {}

QList<QWidget*> WindowAccessible::held() const {
    QList<QWidget*> windows;
    const auto* view = qobject_cast<const QGraphicsView*>(widget());
    if (!view || !view->scene()) return windows;
    for (QGraphicsItem* item : view->scene()->items())
        if (auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(item); proxy && proxy->widget())
            windows << proxy->widget();
    return windows;
}

QAccessible::Role WindowAccessible::role() const {
    return ShownIn(widget()) ? QAccessible::Client : QAccessible::Window;
}

QString WindowAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Name && ShownIn(widget())) return widget()->accessibleName();
    return ViewAccessible::text(t);
}

QAccessibleInterface* WindowAccessible::parent() const {
    if (QWidget* view = ShownIn(widget())) return QAccessible::queryAccessibleInterface(view);
    return ViewAccessible::parent();
}

int WindowAccessible::childCount() const {
    const QList<QWidget*> windows = held();
    return windows.isEmpty() ? ViewAccessible::childCount() : int(windows.size());
}

QAccessibleInterface* WindowAccessible::child(int index) const {
    const QList<QWidget*> windows = held();
    if (windows.isEmpty()) return ViewAccessible::child(index);
    return index >= 0 && index < windows.size() ? QAccessible::queryAccessibleInterface(windows[index])
                                                : nullptr;
}

int WindowAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const QList<QWidget*> windows = held();
    if (windows.isEmpty()) return ViewAccessible::indexOfChild(child);
    return child ? int(windows.indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
}
