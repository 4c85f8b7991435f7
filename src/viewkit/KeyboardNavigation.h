#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class Button;
class FocusRing;
class QWidget;

// The keyboard's way through the window: Tab and Shift+Tab go through the controls on view in
// reading order, and the focus ring shows only while the user works with the keyboard (the last
// thing done was a key that moved or pressed, not a mouse press), so the window looks the same
// as ever to the mouse. Controls on view are those a click at their centre would reach: shown,
// enabled, not clipped away and not covered.
class KeyboardNavigation : public QObject {
    Q_OBJECT
public:
    // Watches the application's input; called by every new Button, does its work once.
    static void Install();

    // The focus to the first control on view inside `scope`; none there: the focus is left.
    static void FocusFirst(const QWidget* scope);
    // While the keyboard is in use, the focus goes to `control`: into an editor's field as it
    // opens, back to what opened it as it closes. With the mouse the focus stays put, and a field
    // waits for its own click (its caret and selection showing no sooner than they always did).
    static void FocusIfKeyboardInUse(QWidget* control);

    // A press from the keyboard, refused for a button not on view.
    static void Press(Button* button);
    // Escape presses `back` while it is on view.
    static void EscapePresses(Button* back);
    // Return (or Enter) in any field of `editor` presses `button`.
    static void ReturnPresses(QWidget* editor, Button* button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static KeyboardNavigation& instance();
    // The controls on view inside `scope`, in reading order.
    static QList<QWidget*> Controls(const QWidget* scope);
    // Whether the keyboard can reach the control now.
    static bool TakesFocus(const QWidget* control);
    void setKeyboardInUse(bool inUse);
    QWidget* focused() const;
    void showRing();
    bool moveFocus(QWidget* from, bool forward);

    bool m_keyboard = false;
    QPointer<FocusRing> m_ring;
    QPointer<QWidget> m_window; // where the focus was last put or moved
};
