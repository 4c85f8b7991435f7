#pragma once

#include <QPoint>
#include <QString>

#include <memory>
#include <vector>

class Frame_Control;
class QWidget;
class QWindow;

// The real application window, shown (offscreen in tests), driven only through the window the
// way a person's mouse does it: every press, release and move goes in at window coordinates and
// reaches whatever widget lies there.
class AppHarness {
public:
    AppHarness();
    ~AppHarness();

    QWidget* window() const { return m_window.get(); }
    QWindow* handle() const;
    Frame_Control* root() const { return m_root; }

    // Window coordinates.
    void moveTo(QPoint pos);
    void press(QPoint pos);
    void release(QPoint pos);
    void click(QPoint pos);
    void leaveWindow();

    // A point of a widget (its centre by default) in window coordinates.
    QPoint at(const QWidget* widget, QPoint local = QPoint(-1, -1)) const;
    void click(const QWidget* widget) { click(at(widget)); }
    void moveTo(const QWidget* widget) { moveTo(at(widget)); }

    // The main menu's robot arrives after about a second; tests that start elsewhere wait for it.
    bool waitForMainMenuReady(int timeoutMs = 5000) const;

    // The screens (direct children of the root view) not hidden, in stacking order.
    std::vector<QWidget*> shownScreens() const;
    QWidget* shownScreen() const;

    bool grab(const QString& path) const;

private:
    std::unique_ptr<QWidget> m_window;
    Frame_Control* m_root = nullptr;
};
