#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWindow>

#include <vector>

class HoverOwner;
class QWidget;

// Hover registrations. Qt's own enter/leave follow the widget under the pointer; the buttons of
// this application instead get enter and exit only for rectangles registered while they were on
// view, fixed in window coordinates, once per registration, and never removed. The registry
// watches the pointer on the window itself, so it sees every move whatever widget lies under it.
// "Window coordinates" are those of the top-level widget the view belongs to: where that widget
// is shown scaled, inside a graphics view, the pointer is mapped back into it.
//
// Registrations pile up over a session (every visit to a screen adds its buttons again), but a
// pointer move must cost what it does in a fresh window. So registrations of one rectangle that
// are in the same state (pointer inside or not) are kept together, counted per owner, and a move
// looks only at the registrations under the pointer, found through a coarse grid, and at those
// the pointer was inside.
class TrackingRegistry : public QObject {
    Q_OBJECT
public:
    // One per application, made at start-up by its owner.
    explicit TrackingRegistry(QObject* owner);
    // The application's registry; none before start-up.
    static TrackingRegistry* instance();

    // rect is in view's coordinates. An empty rectangle (the view hidden, or not yet in a shown
    // window) is accepted and never fires.
    void add(QWidget* view, const QRect& rect, HoverOwner* owner, void* userData, bool assumeInside);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Holder {
        HoverOwner* owner;
        QPointer<QWidget> ownerView; // the owner's view: gone with it, and hidden with it
        int count;                   // registrations of this owner here, each firing once
    };
    // Every registration of one rectangle in one state, its owners in the order they registered.
    struct Group {
        QRect rect; // root coordinates
        bool inside = false;
        std::vector<Holder> holders; // none: a free slot
    };
    // The registrations fixed in one top-level widget.
    struct Root {
        const QWidget* key = nullptr;
        QPointer<QWidget> widget;
        std::vector<Group> groups;
        std::vector<int> freeGroups;
        std::vector<std::vector<int>> cells; // the groups whose rectangle touches each cell
        int columns = 0;
        int rows = 0;
        std::vector<int> inside; // the groups the pointer is inside
    };

    // Watches the window root is shown in now, and root itself, to follow it into another window.
    void watch(QWidget* root);
    void pointerMoved(QWindow* window, bool present, QPointF pos);
    Root& rootOf(QWidget* widget);
    void addToGroup(Root& root, const QRect& rect, bool inside, const Holder& holder);

    std::vector<Root> m_roots;
    std::vector<QPointer<QObject>> m_watched;
};
