#include "ScreenFit.h"

#include "ScaledWindow.h"
#include "SceneFit.h"

#include <QEvent>
#include <QScreen>
#include <QWindow>

ScreenFit::ScreenFit(QWidget* window) : m_window(window) {}

ScreenFit::~ScreenFit() = default;

QWidget* ScreenFit::shown() const {
    return m_scaled ? static_cast<QWidget*>(m_scaled.get()) : m_window;
}

void ScreenFit::show() {
    // Before the first show no frame is known: the bare window is fitted, and checked again
    // once framed.
    fit();
    if (!m_scaled) {
        m_window->show();
        follow();
    }
}

void ScreenFit::follow() {
    m_framed = false;
    QWindow* handle = shown()->windowHandle();
    if (!handle) return;
    handle->installEventFilter(this);
    connect(handle, &QWindow::screenChanged, this, &ScreenFit::fit, Qt::UniqueConnection);
}

bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && !m_framed && watched == shown()->windowHandle() &&
        shown()->windowHandle()->isExposed()) {
        m_framed = true;
        // Later: a switch to the scaled window hides the window whose event this is.
        QMetaObject::invokeMethod(this, &ScreenFit::fit, Qt::QueuedConnection);
    }
    return false;
}

void ScreenFit::fit() {
    QWindow* handle = shown()->windowHandle();
    QScreen* screen = handle ? handle->screen() : shown()->screen();
    if (!screen) return;
    const QMargins frame = handle && m_framed ? handle->frameMargins() : QMargins();
    const QRect area = screen->availableGeometry();
    const QSize scene = m_window->size();
    const qreal factor = SceneFit::Factor(area.size(), frame, scene);
    if (!m_scaled && factor >= 1.0) return;

    if (!m_scaled) {
        m_window->hide();
        m_scaled = std::make_unique<ScaledWindow>(m_window);
    }
    // Maximized, it is the window manager's to fit to the screen's free area.
    if (m_scaled->isMaximized()) return;
    const QSize size(qRound(scene.width() * factor), qRound(scene.height() * factor));
    m_scaled->resize(size);
    // A top-level window's position is that of its frame: centred in the area, frame and all.
    const QSize framed = size.grownBy(frame);
    m_scaled->move(area.x() + (area.width() - framed.width()) / 2,
                   area.y() + (area.height() - framed.height()) / 2);
    if (m_scaled->isHidden()) {
        // Maximized where a window manager keeps the free area: on Wayland only the compositor knows
        // where its panels are (Qt reports the whole output as free). Where nothing manages windows,
        // the size and place set here stand.
        m_scaled->showMaximized();
        follow();
    }
}
