#include "AppHarness.h"

#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "NSApplicationMain.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

AppHarness::AppHarness() : m_window(LoadMainWindow()) {
    m_root = RootView(m_window.get());
    m_window->move(0, 0);
    m_window->show();
    if (!QTest::qWaitForWindowExposed(m_window.get())) qWarning("window was not exposed");
}

AppHarness::~AppHarness() = default;

QWindow* AppHarness::handle() const {
    return m_window->windowHandle();
}

void AppHarness::moveTo(QPoint pos) {
    QTest::mouseMove(handle(), pos);
}

void AppHarness::press(QPoint pos) {
    QTest::mousePress(handle(), Qt::LeftButton, Qt::NoModifier, pos);
}

void AppHarness::release(QPoint pos) {
    QTest::mouseRelease(handle(), Qt::LeftButton, Qt::NoModifier, pos);
}

void AppHarness::click(QPoint pos) {
    moveTo(pos);
    press(pos);
    release(pos);
}

void AppHarness::leaveWindow() {
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(handle(), &leave);
}

QPoint AppHarness::at(const QWidget* widget, QPoint local) const {
    if (local == QPoint(-1, -1)) local = widget->rect().center();
    return widget->mapTo(m_window.get(), local);
}

bool AppHarness::waitForMainMenuReady(int timeoutMs) const {
    // The slide's own timing is tested once; everywhere else its ticks are taken at once.
    RobotSlide& slide = m_root->frmMainMenu->robotSlide;
    for (int tick = 0; tick < 1000 && !slide.hasArrived(); ++tick) slide.RobotAction();
    return QTest::qWaitFor([this] { return m_root->frmMainMenu->BtnProgram->isVisible(); }, timeoutMs);
}

std::vector<QWidget*> AppHarness::shownScreens() const {
    std::vector<QWidget*> shown;
    for (QObject* child : m_root->children()) {
        auto* w = qobject_cast<QWidget*>(child);
        if (w && !w->isHidden()) shown.push_back(w);
    }
    return shown;
}

QWidget* AppHarness::shownScreen() const {
    const auto shown = shownScreens();
    return shown.size() == 1 ? shown.front() : nullptr;
}

bool AppHarness::grab(const QString& path) const {
    return m_window->grab().save(path);
}
