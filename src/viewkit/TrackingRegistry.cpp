#include "TrackingRegistry.h"

#include "HoverOwner.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <optional>

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

// The grid that finds the registrations under the pointer: cells of 32 points.
constexpr int kCell = 32;

int Clamped(int v, int count) {
    return std::clamp(v / kCell, 0, count - 1);
}

void Erase(std::vector<int>& list, int value) {
    list.erase(std::remove(list.begin(), list.end(), value), list.end());
}

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
    addToGroup(rootOf(root), inRoot, assumeInside, {owner, ownerView, 1});
    watch(root);
}

TrackingRegistry::Root& TrackingRegistry::rootOf(QWidget* widget) {
    for (Root& root : m_roots)
        if (root.key == widget && root.widget) return root;
    Root& root = m_roots.emplace_back();
    root.key = widget;
    root.widget = widget;
    root.columns = std::max(1, (widget->width() + kCell - 1) / kCell);
    root.rows = std::max(1, (widget->height() + kCell - 1) / kCell);
    root.cells.resize(static_cast<size_t>(root.columns * root.rows));
    return root;
}

void TrackingRegistry::addToGroup(Root& root, const QRect& rect, bool inside, const Holder& holder) {
    // Another registration of the same rectangle in the same state joins its group.
    const auto cell = static_cast<size_t>(Clamped(rect.top(), root.rows) * root.columns +
                                          Clamped(rect.left(), root.columns));
    for (int g : root.cells[cell]) {
        Group& group = root.groups[static_cast<size_t>(g)];
        if (group.rect != rect || group.inside != inside) continue;
        for (Holder& h : group.holders) {
            if (h.owner != holder.owner || h.ownerView != holder.ownerView) continue;
            h.count += holder.count;
            return;
        }
        group.holders.push_back(holder);
        return;
    }

    int g = static_cast<int>(root.groups.size());
    if (root.freeGroups.empty()) {
        root.groups.emplace_back();
    } else {
        g = root.freeGroups.back();
        root.freeGroups.pop_back();
    }
    root.groups[static_cast<size_t>(g)] = {rect, inside, {holder}};
    for (int y = Clamped(rect.top(), root.rows); y <= Clamped(rect.bottom(), root.rows); ++y)
        for (int x = Clamped(rect.left(), root.columns); x <= Clamped(rect.right(), root.columns); ++x)
            root.cells[static_cast<size_t>(y * root.columns + x)].push_back(g);
    if (inside) root.inside.push_back(g);
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
    // Callbacks may add registrations (and so move the groups in memory): every state is settled
    // and the owners to call copied out first, so a move fires only the registrations that existed
    // when it happened. Exits go before enters, so a button whose rectangles overlap ends up in
    // the state of the one the pointer is in.
    std::vector<std::pair<Holder, bool>> calls; // (holder, entering)
    for (Root& root : m_roots) {
        if (!root.widget) continue;
        const std::optional<QPoint> at = InRoot(root.widget, window, pos);
        if (!at) continue;
        std::vector<int> exits, enters;
        for (int g : root.inside)
            if (!present || !root.groups[static_cast<size_t>(g)].rect.contains(*at)) exits.push_back(g);
        if (present) {
            const auto cell = static_cast<size_t>(Clamped(at->y(), root.rows) * root.columns +
                                                  Clamped(at->x(), root.columns));
            for (int g : root.cells[cell]) {
                const Group& group = root.groups[static_cast<size_t>(g)];
                if (!group.inside && group.rect.contains(*at)) enters.push_back(g);
            }
        }
        std::sort(exits.begin(), exits.end());
        std::sort(enters.begin(), enters.end());
        for (const bool entering : {false, true}) {
            for (int g : entering ? enters : exits) {
                Group& group = root.groups[static_cast<size_t>(g)];
                group.inside = entering;
                if (entering)
                    root.inside.push_back(g);
                else
                    Erase(root.inside, g);
                for (const Holder& holder : group.holders) calls.emplace_back(holder, entering);
            }
        }
        // A group that now shares its state with another of the same rectangle joins it.
        for (const std::vector<int>* moved : {&exits, &enters}) {
            for (int g : *moved) {
                Group group = std::move(root.groups[static_cast<size_t>(g)]);
                root.groups[static_cast<size_t>(g)] = {};
                for (int y = Clamped(group.rect.top(), root.rows);
                     y <= Clamped(group.rect.bottom(), root.rows); ++y)
                    for (int x = Clamped(group.rect.left(), root.columns);
                         x <= Clamped(group.rect.right(), root.columns); ++x)
                        Erase(root.cells[static_cast<size_t>(y * root.columns + x)], g);
                Erase(root.inside, g);
                root.freeGroups.push_back(g);
                for (const Holder& holder : group.holders) addToGroup(root, group.rect, group.inside, holder);
            }
        }
    }
    for (const auto& [holder, entering] : calls) {
        for (int i = 0; i < holder.count; ++i) {
            // A button that is not on view keeps its looks until it is shown again.
            if (!holder.ownerView || !holder.ownerView->isVisible()) break;
            const auto crossing = entering ? &HoverOwner::mouseEntered : &HoverOwner::mouseExited;
            (holder.owner->*crossing)();
        }
    }
}
