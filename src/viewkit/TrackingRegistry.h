#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWindow>

#include <optional>
#include <vector>

class HoverOwner;
class QWidget;

// Hover registrations. Qt's own enter/leave follow the widget under the pointer; the buttons of
// this application instead get enter and exit only for rectangles registered while they were on
// view, fixed in window coordinates, once per registration, and never removed. The registry
// watches the pointer on the window itself, so it sees every move whatever widget lies under it.
// "Window coordinates" are those of the top-level widget the view belongs to: where that widget
// is shown scaled, inside a graphics view, the pointer is mapped back into it.
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
    struct Registration {
        QPointer<QWidget> root; // the top-level widget the rectangle is fixed in
        QRect rect;             // root coordinates
        HoverOwner* owner;
        QPointer<QWidget> ownerView; // the owner's view: gone with it, and hidden with it
        bool inside = false;
    };

    // Watches the window root is shown in now, and root itself, to follow it into another window.
    void watch(QWidget* root);
    void pointerMoved(QWindow* window, bool present, QPointF pos);

    std::vector<Registration> m_registrations;
    std::vector<QPointer<QObject>> m_watched;
};
