#pragma once

#include <QObject>

#include <memory>

class ScaledWindow;
class QWidget;

// Shows the loaded window whole on its screen: as it is where it fits with its frame, else scaled
// down uniformly in a ScaledWindow that fits, maximized for a window manager to fit it to the free
// area it keeps (panels and all). The window manager's frame is known only once it
// has framed the window, so the fit is checked again after each window's first expose, and
// whenever the window moves to another screen.
class ScreenFit : public QObject {
    Q_OBJECT
public:
    // window: the loaded window, not shown yet; it stays the caller's and must outlive this.
    explicit ScreenFit(QWidget* window);
    ~ScreenFit() override;

    void show();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* shown() const;
    // Follows the expose and screen of the window on screen now.
    void follow();
    void fit();

    QWidget* m_window;
    std::unique_ptr<ScaledWindow> m_scaled;
    bool m_framed = false; // the window on screen now has had its first expose
};
