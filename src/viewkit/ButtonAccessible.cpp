#include "ButtonAccessible.h"

#include "Button.h"
#include "KeyboardNavigation.h"

#include <QWidget>

ButtonAccessible::ButtonAccessible(Button* button) : ViewAccessible(button, QAccessible::Button) {}

Button* ButtonAccessible::control() const {
    return static_cast<Button*>(widget());
}

QAccessible::Role ButtonAccessible::role() const {
    // One of a set: what readers speak as a choice, with its state. Qt's bridge has no toggle
    // button role, so an on/off pair is two radio buttons, which is what it shows.
    return control()->choice() == Button::Choice::Check ? QAccessible::RadioButton : QAccessible::Button;
}

QAccessible::State ButtonAccessible::state() const {
    QAccessible::State s = QAccessibleWidget::state();
    // A disabled Button keeps Qt's enabled flag: it only ignores the mouse.
    if (!control()->bEnable) s.disabled = true;
    switch (control()->choice()) {
    case Button::Choice::Check:
        s.checkable = true;
        s.checked = control()->chosen();
        break;
    case Button::Choice::Select:
        s.selectable = true;
        s.selected = control()->chosen();
        break;
    case Button::Choice::None:
        break;
    }
    return s;
}

QString ButtonAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Name) return NameOf(control());
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
    KeyboardNavigation::Press(control());
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
