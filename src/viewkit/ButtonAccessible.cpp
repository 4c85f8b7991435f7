#include "ButtonAccessible.h"

#include "ApplicationAccessible.h"
#include "Button.h"
#include "CaptionAccessible.h"
#include "KeyboardNavigation.h"
#include "WindowAccessible.h"

#include <QWidget>

namespace {

QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (className == QLatin1String("Button")) {
        if (auto* button = qobject_cast<Button*>(object)) return new ButtonAccessible(button);
    } else if (className == QLatin1String("NSImageViewS")) {
        if (auto* view = qobject_cast<NSImageViewS*>(object)) return new CaptionAccessible(view);
    } else if (className == QLatin1String("NSViewS")) {
        if (auto* view = qobject_cast<NSViewS*>(object)) return new ViewAccessible(view);
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

ButtonAccessible::ButtonAccessible(Button* button) : ViewAccessible(button, QAccessible::Button) {}

Button* ButtonAccessible::button() const {
    return static_cast<Button*>(widget());
}

QAccessible::Role ButtonAccessible::role() const {
    // One of a set: what readers speak as a choice, with its state. Qt's bridge has no toggle
    // button role, so an on/off pair is two radio buttons, which is what it shows.
    return button()->choice() == Button::Choice::Check ? QAccessible::RadioButton : QAccessible::Button;
}

QAccessible::State ButtonAccessible::state() const {
    QAccessible::State s = QAccessibleWidget::state();
    // A disabled Button keeps Qt's enabled flag: it only ignores the mouse.
    if (!button()->bEnable) s.disabled = true;
    switch (button()->choice()) {
    case Button::Choice::Check:
        s.checkable = true;
        s.checked = button()->chosen();
        break;
    case Button::Choice::Select:
        s.selectable = true;
        s.selected = button()->chosen();
        break;
    case Button::Choice::None:
        break;
    }
    return s;
}

QString ButtonAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Name) return NameOf(button());
    return QAccessibleWidget::text(t);
}

QStringList ButtonAccessible::actionNames() const {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void ButtonAccessible::doAction(const QString& actionName) {
    if (actionName != pressAction()) {
        QAccessibleWidget::doAction(actionName);
        return;
    }
    // A press from assistive technology is one from the keyboard: the focus follows into what it
    // opens, and the ring shows where it is.
    KeyboardNavigation::Press(button());
}

QStringList ButtonAccessible::keyBindingsForAction(const QString&) const {
    return {};
}

QString ButtonAccessible::OneLine(const QString& caption) {
    QString line = caption;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return line.simplified();
}

QString ButtonAccessible::NameOf(const Button* button) {
    if (!button) return {};
    if (!button->accessibleName().isEmpty()) return button->accessibleName();
    // Every control without a caption is named in the row that makes it.
    const QString caption = OneLine(button->captionText());
    return caption.isEmpty() ? QStringLiteral("Button") : caption;
}

void ButtonAccessible::Install() {
    static const bool installed = [] {
        QAccessible::installFactory(Factory);
        return true;
    }();
    Q_UNUSED(installed);
}
