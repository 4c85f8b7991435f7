#include "ApplicationAccessible.h"

#include "WindowAccessible.h"

#include <QApplication>
#include <QWidget>

ApplicationAccessible::ApplicationAccessible(QObject* application) : QAccessibleObject(application) {}

QList<QWidget*> ApplicationAccessible::Windows() {
    QList<QWidget*> windows;
    // As Qt lists them: those that have been made a window, popups apart.
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->windowHandle() && w->windowType() != Qt::Popup && w->windowType() != Qt::Desktop &&
            w->windowType() != Qt::ToolTip && !WindowAccessible::ShownIn(w))
            windows << w;
    return windows;
}

int ApplicationAccessible::childCount() const {
    return int(Windows().size());
}

QAccessibleInterface* ApplicationAccessible::child(int index) const {
    const QList<QWidget*> windows = Windows();
    return index >= 0 && index < windows.size() ? QAccessible::queryAccessibleInterface(windows[index])
                                                : nullptr;
}

int ApplicationAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child ? int(Windows().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
}

QAccessibleInterface* ApplicationAccessible::focusChild() const {
    QWidget* active = QApplication::activeWindow();
    return active ? QAccessible::queryAccessibleInterface(active) : nullptr;
}

QString ApplicationAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Name) return QApplication::applicationName();
    if (t == QAccessible::Description) return QApplication::applicationFilePath();
    return {};
}
