#pragma once

#include <QGraphicsView>

class QGraphicsProxyWidget;

// A top-level window showing a fixed-size content widget scaled uniformly to fit it, centred,
// with bands of one colour where the aspect ratios differ. The content is embedded in a scene
// through a proxy, so clicks, keys and pickers keep working; it stays the caller's: it is let go
// of, not deleted, with the window.
class ScaledWindow : public QGraphicsView {
    Q_OBJECT
public:
    explicit ScaledWindow(QWidget* content);
    ~ScaledWindow() override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QGraphicsScene m_scene;
    QGraphicsProxyWidget* m_proxy = nullptr;
};
