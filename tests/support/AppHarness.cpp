#include "AppHarness.h"

#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "NSApplicationMain.h"

AppHarness::AppHarness() : m_window(LoadMainWindow()) {
    m_root = RootView(m_window.get());
    m_window->move(0, 0);
    m_window->show();
    if (!QTest::qWaitForWindowExposed(m_window.get())) qWarning("window was not exposed");
}

AppHarness::~AppHarness() = default;

bool AppHarness::waitForMainMenuReady(int timeoutMs) const {
    // The slide's own timing is tested once; everywhere else its ticks are taken at once.
    RobotSlide& slide = m_root->frmMainMenu->robotSlide;
    for (int tick = 0; tick < 1000 && !slide.hasArrived(); ++tick) slide.RobotAction();
    return QTest::qWaitFor([this] { return m_root->frmMainMenu->BtnProgram->isVisible(); }, timeoutMs);
}

std::vector<QWidget*> AppHarness::shownScreens() const {
    std::vector<QWidget*> shown;
    for (QObject* child : m_root->children())
        if (auto* w = qobject_cast<QWidget*>(child); w && !w->isHidden()) shown.push_back(w);
    return shown;
}
