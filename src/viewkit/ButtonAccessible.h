#pragma once

#include "ViewAccessible.h"

class Button;

// What assistive technologies see of a Button: a push button named by what it says or shows,
// focusable while it is enabled, a radio button where its pictures show one choice of a set
// (checked or not), selected where they show the item chosen in a list, whose
// press action does exactly what a click does, so the whole application can be worked without
// a mouse.
class ButtonAccessible : public ViewAccessible {
public:
    explicit ButtonAccessible(Button* button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text t) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

    // The name spoken for a button: the name a screen gave it, else its caption on one line,
    // else the name of its up picture, for the few that have one, else "Button".
    static QString NameOf(const Button* button);
    // A caption as read aloud: its lines joined by single spaces.
    static QString OneLine(const QString& caption);

private:
    Button* control() const;
};
