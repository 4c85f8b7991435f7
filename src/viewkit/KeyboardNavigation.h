#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class FocusRing;
class QKeyEvent;
class QWidget;

// The keyboard's way through the window, one per application, watching all its input. Tab and
// Shift+Tab go through the controls on view in reading order; Space or Return press the focused
// control (a Pressable); Escape and Return do what the screen bound to them. The keys reach it
// before any control, whatever window holds the focus and whether or not a window manager made
// it active, so they work the same at 1:1, in the scaled window and without a window manager.
// The focus ring shows only while the user works with the keyboard (the last thing done was a
// key, not a mouse press), so the window looks the same as ever to the mouse; a key that would
// press a control whose focus does not show only shows it. Controls on view are those a click
// at their centre would reach: shown, enabled, not clipped away and not covered.
class KeyboardNavigation : public QObject {
    Q_OBJECT
public:
    explicit KeyboardNavigation(QObject* owner);

    // The focus to where `scope` starts: the first control on view, in reading order, that a
    // screen or page names as its focus proxy, else the first control on view; none: left as is.
    static void FocusFirst(const QWidget* scope);
    // While the keyboard is in use, the focus goes to `control`: into an editor's field as it
    // opens, back to what opened it as it closes. With the mouse the focus stays put, and a field
    // waits for its own click (its caret and selection showing no sooner than they always did).
    static void FocusIfKeyboardInUse(QWidget* control);

    // A press from the keyboard, refused for a control not on view.
    static void Press(QWidget* control);
    // Escape with the focus inside `scope` calls `action`; of nested scopes, the innermost.
    static void EscapeCalls(QWidget* scope, std::function<void()> action);
    // Escape anywhere on the screen that holds `back` presses it.
    static void EscapePresses(QWidget* back);
    // Return (or Enter) with the focus inside `scope` presses `button`.
    static void ReturnPresses(QWidget* scope, QWidget* button);
    // The controls inside `panel` are read in the order it holds them, not by their places.
    static void ReadsInItemOrder(QWidget* panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Binding {
        QPointer<QWidget> scope;
        int key;
        std::function<void()> action;
    };

    static KeyboardNavigation* current();
    // The controls on view inside `scope`, in reading order.
    QList<QWidget*> controls(const QWidget* scope) const;
    // Whether the keyboard can reach the control now.
    static bool TakesFocus(const QWidget* control);
    void bind(QWidget* scope, int key, std::function<void()> action);
    // The innermost binding of `key` round the focus of `window`.
    const Binding* bindingAt(QWidget* window, int key) const;
    bool keyPressed(QWidget* window, const QKeyEvent* key);
    bool moveFocus(QWidget* window, bool forward);
    void focusLeaves(QWidget* hidden);
    void setKeyboardInUse(bool inUse);
    QWidget* focused() const;
    void showRing();
    // After a key's work: a focus the work hid or covered goes to the first control on view.
    void keepFocusOnView();

    bool m_keyboard = false;
    QPointer<FocusRing> m_ring;
    QPointer<QWidget> m_window; // where the focus was last put or moved
    std::vector<Binding> m_bindings;
    QList<QPointer<QWidget>> m_itemOrder;
};
