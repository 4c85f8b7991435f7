#pragma once

#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "NSApplicationMain.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <memory>

// The real application window, shown (offscreen in tests), driven only through the window the
// way a person's mouse does it: every press, release and move goes in at window coordinates and
// reaches whatever widget lies there.
class AppHarness {
public:
    AppHarness() {
        m_window->move(0, 0);
        m_window->show();
        if (!QTest::qWaitForWindowExposed(m_window.get())) qWarning("window was not exposed");
    }

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

    // The main menu's robot arrives after about a second; tests that start elsewhere take its
    // ticks at once (the slide's own timing is tested on the model).
    bool waitForMainMenuReady(int timeoutMs = 5000) const {
        RobotSlide& slide = m_root->frmMainMenu()->robotSlide;
        for (int tick = 0; tick < 1000 && !slide.hasArrived(); ++tick) slide.RobotAction();
        return QTest::qWaitFor([this] { return m_root->frmMainMenu()->BtnProgram->isVisible(); }, timeoutMs);
    }

    // The one screen (a direct child of the root view) not hidden; null when there are more.
    QWidget* shownScreen() const {
        QList<QWidget*> shown;
        for (QWidget* screen : m_root->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (!screen->isHidden()) shown << screen;
        return shown.size() == 1 ? shown.first() : nullptr;
    }

private:
    std::unique_ptr<QWidget> m_window{LoadMainWindow()};
    Frame_Control* m_root = RootView(m_window.get());
};
