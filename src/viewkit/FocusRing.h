#pragma once

#include <QFocusFrame>
#include <QPointer>

// The keyboard focus drawn in the artwork's manner: a rounded orange outline with a soft glow,
// a little outside the focused control's picture so that it shows on orange buttons as well as
// on the dark backgrounds. A focus frame to Qt (so assistive technology passes over it), but one
// that lies over the whole window rather than beside its control in a page that would clip it.
class FocusRing : public QFocusFrame {
    Q_OBJECT
public:
    explicit FocusRing(QWidget* window);

    // Hugs `target` (null: none, the ring hides) and keeps hugging it as it moves or hides.
    void follow(QWidget* target);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QPointer<QWidget> m_target;
    QRectF m_outline; // in this widget's coordinates
    qreal m_radius = 0;
};
