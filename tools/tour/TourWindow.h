#pragma once

#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "NSApplicationMain.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <memory>

// The application's own window, shown, with the tour's pointer: every move and click goes in at
// window coordinates and reaches whatever widget lies there, as a person's mouse does.
class TourWindow {
public:
    TourWindow() {
        m_window->move(0, 0);
        m_window->show();
        if (!QTest::qWaitForWindowExposed(m_window.get())) qWarning("window was not exposed");
    }

    QWidget* appWindow() const { return m_window.get(); }
    Frame_Control* root() const { return m_root; }

    void moveTo(QPoint pos) { QTest::mouseMove(handle(), pos); }
    void moveTo(const QWidget* widget) { moveTo(centre(widget)); }
    void click(const QWidget* widget) {
        const QPoint pos = centre(widget);
        moveTo(pos);
        QTest::mousePress(handle(), Qt::LeftButton, Qt::NoModifier, pos);
        QTest::mouseRelease(handle(), Qt::LeftButton, Qt::NoModifier, pos);
    }

    // A key typed into the window, as the keyboard does.
    void typeKey(Qt::Key key) { QTest::keyClick(handle(), key); }

    // The robot's remaining ticks taken at once; true when the menu's buttons are on view.
    bool waitForMainMenuReady(int timeoutMs) const {
        RobotSlide& slide = m_root->frmMainMenu()->robotSlide;
        for (int tick = 0; tick < 1000 && !slide.hasArrived(); ++tick) slide.RobotAction();
        return QTest::qWaitFor([this] { return m_root->frmMainMenu()->BtnProgram->isVisible(); }, timeoutMs);
    }

    // The one screen of the root view not hidden; null when there are more.
    QWidget* shownScreen() const {
        QList<QWidget*> shown;
        for (QWidget* screen : m_root->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (!screen->isHidden()) shown << screen;
        return shown.size() == 1 ? shown.first() : nullptr;
    }

private:
    QWindow* handle() const { return m_window->windowHandle(); }
    QPoint centre(const QWidget* widget) const { return widget->mapTo(appWindow(), widget->rect().center()); }

    std::unique_ptr<QWidget> m_window{LoadMainWindow()};
    Frame_Control* m_root = RootView(m_window.get());
};
