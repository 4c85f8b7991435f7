#include "TrackingRegistry.h"

#include "HoverOwner.h"

#include <QMouseEvent>
#include <QWidget>

TrackingRegistry& TrackingRegistry::instance() {
    static TrackingRegistry registry;
    return registry;
}

void TrackingRegistry::add(QWidget* view, const QRect& rect, HoverOwner* owner, void* /*userData*/,
                           bool assumeInside) {
    auto* ownerView = dynamic_cast<QWidget*>(owner);
    if (!view || !ownerView || rect.isEmpty() || !view->isVisible()) return;
    QWidget* top = view->window();
    QWindow* window = top ? top->windowHandle() : nullptr;
    if (!window) return;

    const QRect inWindow = rect.translated(view->mapTo(top, QPoint(0, 0)));
    m_registrations.push_back({window, inWindow, owner, ownerView, assumeInside});

    bool watched = false;
    for (const auto& w : m_watched) watched = watched || w == window;
    if (!watched) {
        window->installEventFilter(this);
        m_watched.emplace_back(window);
    }
}

bool TrackingRegistry::eventFilter(QObject* watched, QEvent* event) {
    auto* window = qobject_cast<QWindow*>(watched);
    if (!window) return false;
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: {
        const auto* me = static_cast<QMouseEvent*>(event);
        pointerMoved(window, true, me->position().toPoint());
        break;
    }
    case QEvent::Leave:
        pointerMoved(window, false, {});
        break;
    default:
        break;
    }
    return false;
}

void TrackingRegistry::pointerMoved(QWindow* window, bool present, QPoint pos) {
    // Callbacks may add registrations (and so reallocate the vector): work on indices, and only
    // on the registrations that existed when the pointer moved. Exits go before enters, so a
    // button whose rectangles overlap ends up in the state of the one the pointer is in.
    const size_t count = m_registrations.size();
    for (int pass = 0; pass < 2; ++pass) {
        const bool entering = pass == 1;
        for (size_t i = 0; i < count; ++i) {
            Registration& r = m_registrations[i];
            if (r.window != window) continue;
            const bool inside = present && r.rect.contains(pos);
            if (inside == r.inside || inside != entering) continue;
            r.inside = inside;
            // A button that is not on view keeps its looks until it is shown again.
            if (!r.ownerView || !r.ownerView->isVisible()) continue;
            if (inside)
                r.owner->mouseEntered();
            else
                r.owner->mouseExited();
        }
    }
}
