#include "ViewKit.h"

#include "ApplicationAccessible.h"
#include "Button.h"
#include "ButtonAccessible.h"
#include "CaptionAccessible.h"
#include "FieldAccessible.h"
#include "KeyboardNavigation.h"
#include "TrackingRegistry.h"
#include "WindowAccessible.h"

#include <QAccessible>
#include <QCoreApplication>

namespace {

// Screen readers see the views, the windows and the application through our own interfaces.
QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (className == QLatin1String("Button")) {
        if (auto* button = qobject_cast<Button*>(object)) return new ButtonAccessible(button);
    } else if (className == QLatin1String("NSImageViewS")) {
        if (auto* view = qobject_cast<NSImageViewS*>(object)) return new CaptionAccessible(view);
    } else if (className == QLatin1String("NSViewS")) {
        if (auto* view = qobject_cast<NSViewS*>(object)) return new ViewAccessible(view);
    } else if (className == QLatin1String("QLineEdit") || className == QLatin1String("QAbstractSpinBox")) {
        // Entry fields: what Qt gives a reader, where they are drawn. The line a spin box edits in
        // is only a place in it (the spin box reads its text), as Qt has it.
        auto* field = qobject_cast<QWidget*>(object);
        if (field && field->objectName() == QLatin1String("qt_spinbox_lineedit"))
            return new ViewAccessible(field);
        if (field) return new FieldAccessible(field);
    } else if (className == QLatin1String("QWidget") || className == QLatin1String("QGraphicsView")) {
        // The application's window is a plain widget made from the interface file, or the view that
        // shows it scaled: to assistive technology one window (a frame on AT-SPI), named by its title.
        auto* widget = qobject_cast<QWidget*>(object);
        if (widget && widget->isWindow()) return new WindowAccessible(widget);
    } else if (className == QLatin1String("QApplication")) {
        return new ApplicationAccessible(object);
    }
    return nullptr;
}

} // namespace

ViewKit::ViewKit(QObject* application) : QObject(application) {
    new KeyboardNavigation(this);
    new TrackingRegistry(this);
    QAccessible::installFactory(Factory);
}

ViewKit::~ViewKit() {
    QAccessible::removeFactory(Factory);
}

void ViewKit::Install() {
    QCoreApplication* application = QCoreApplication::instance();
    if (application && !application->findChild<ViewKit*>(QString(), Qt::FindDirectChildrenOnly))
        new ViewKit(application);
}
