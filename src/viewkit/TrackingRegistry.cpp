#include "TrackingRegistry.h"

#include "HoverOwner.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QWidget>

#include <cmath>

namespace {

// The graphics view a widget embedded in a scene is shown through, if any.
QGraphicsView* ViewShowing(const QWidget* root) {
    const QGraphicsProxyWidget* proxy = root->graphicsProxyWidget();
    const QGraphicsScene* scene = proxy ? proxy->scene() : nullptr;
    return scene && !scene->views().isEmpty() ? scene->views().first() : nullptr;
}

// The native window root's pixels go to.
QWindow* WindowShowing(const QWidget* root) {
    const QWidget* top = root->graphicsProxyWidget() ? ViewShowing(root) : root;
    return top ? top->window()->windowHandle() : nullptr;
}

// A point of `window` in root's coordinates; none when root is not shown in that window.
std::optional<QPoint> InRoot(const QWidget* root, const QWindow* window, QPointF pos) {
    if (!root->graphicsProxyWidget()) {
        if (root->windowHandle() != window) return std::nullopt;
        return pos.toPoint();
    }
    const QGraphicsView* view = ViewShowing(root);
    if (!view || view->window()->windowHandle() != window) return std::nullopt;
    const QPoint inViewport = view->viewport()->mapFrom(view->window(), pos.toPoint());
    const QPointF at = root->graphicsProxyWidget()->mapFromScene(view->mapToScene(inViewport));
    // A scene point covers the unit square right and below it.
    return QPoint(static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y())));
}

QPointer<TrackingRegistry> g_registry;

} // namespace

TrackingRegistry::TrackingRegistry(QObject* owner) : QObject(owner) {
    g_registry = this;
}

TrackingRegistry* TrackingRegistry::instance() {
    return g_registry;
}

void TrackingRegistry::add(QWidget* view, const QRect& rect, HoverOwner* owner, void* /*userData*/,
                           bool assumeInside) {
    auto* ownerView = dynamic_cast<QWidget*>(owner);
    if (!view || !ownerView || rect.isEmpty() || !view->isVisible()) return;
    QWidget* root = view->window();
    if (!root || !WindowShowing(root)) return;

    const QRect inRoot = rect.translated(view->mapTo(root, QPoint(0, 0)));
    m_registrations.push_back({root, inRoot, owner, ownerView, assumeInside});
    watch(root);
}

void TrackingRegistry::watch(QWidget* root) {
    for (QObject* object : {static_cast<QObject*>(root), static_cast<QObject*>(WindowShowing(root))}) {
        bool watched = !object;
        for (const auto& w : m_watched) watched = watched || w == object;
        if (watched) continue;
        object->installEventFilter(this);
        m_watched.emplace_back(object);
    }
}

bool TrackingRegistry::eventFilter(QObject* watched, QEvent* event) {
    auto* window = qobject_cast<QWindow*>(watched);
    if (!window) {
        // A root shown again may be shown in another window (scaled, or back).
        if (event->type() == QEvent::Show && watched->isWidgetType()) watch(static_cast<QWidget*>(watched));
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        pointerMoved(window, true, static_cast<QMouseEvent*>(event)->position());
        break;
    case QEvent::Leave:
        pointerMoved(window, false, {});
        break;
    default:
        break;
    }
    return false;
}

void TrackingRegistry::pointerMoved(QWindow* window, bool present, QPointF pos) {
    // Callbacks may add registrations (and so reallocate the vector): work on indices, and only
    // on the registrations that existed when the pointer moved. Exits go before enters, so a
    // button whose rectangles overlap ends up in the state of the one the pointer is in.
    const size_t count = m_registrations.size();
    // Every registration of one root shares the mapped point; there is one root in practice.
    const QWidget* mappedRoot = nullptr;
    std::optional<QPoint> at;
    for (int pass = 0; pass < 2; ++pass) {
        const bool entering = pass == 1;
        for (size_t i = 0; i < count; ++i) {
            Registration& r = m_registrations[i];
            if (!r.root) continue;
            if (r.root != mappedRoot) {
                mappedRoot = r.root;
                at = InRoot(r.root, window, pos);
            }
            if (!at) continue;
            const bool inside = present && r.rect.contains(*at);
            if (inside == r.inside || inside != entering) continue;
            r.inside = inside;
            // A button that is not on view keeps its looks until it is shown again.
            if (!r.ownerView || !r.ownerView->isVisible()) continue;
            const auto crossing = inside ? &HoverOwner::mouseEntered : &HoverOwner::mouseExited;
            (r.owner->*crossing)();
        }
    }
}
