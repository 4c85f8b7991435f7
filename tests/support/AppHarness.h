#pragma once

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <memory>
#include <vector>

class Frame_Control;

// The real application window, shown (offscreen in tests), driven only through the window the
// way a person's mouse does it: every press, release and move goes in at window coordinates and
// reaches whatever widget lies there.
class AppHarness {
public:
    AppHarness();
    ~AppHarness();

    QWidget* window() const { return m_window.get(); }
    QWindow* handle() const { return m_window->windowHandle(); }
    Frame_Control* root() const { return m_root; }

    void moveTo(QPoint pos) { QTest::mouseMove(handle(), pos); }
    void press(QPoint pos) { QTest::mousePress(handle(), Qt::LeftButton, Qt::NoModifier, pos); }
    void release(QPoint pos) { QTest::mouseRelease(handle(), Qt::LeftButton, Qt::NoModifier, pos); }
    void click(QPoint pos) {
        moveTo(pos);
        press(pos);
        release(pos);
    }
    void leaveWindow() {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(handle(), &leave);
    }

    // A point of a widget (its centre by default) in window coordinates.
    QPoint at(const QWidget* widget, QPoint local = QPoint(-1, -1)) const {
        return widget->mapTo(window(), local == QPoint(-1, -1) ? widget->rect().center() : local);
    }
    void click(const QWidget* widget) { click(at(widget)); }
    void moveTo(const QWidget* widget) { moveTo(at(widget)); }

    // The main menu's robot arrives after about a second; tests that start elsewhere wait for it.
    bool waitForMainMenuReady(int timeoutMs = 5000) const;

    // The screens (direct children of the root view) not hidden, in stacking order.
    std::vector<QWidget*> shownScreens() const;
    QWidget* shownScreen() const {
        const auto shown = shownScreens();
        return shown.size() == 1 ? shown.front() : nullptr;
    }

private:
    std::unique_ptr<QWidget> m_window;
    Frame_Control* m_root = nullptr;
};
