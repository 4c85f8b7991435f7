#pragma once

#include <QFocusFrame>
#include <QPointer>

// The keyboard focus: a rounded outline a little outside what the focused control shows, in a
// bright cyan that none of the artwork uses (the artwork's "chosen" looks are orange), edged in
// dark blue on both sides so it stands out on orange buttons, silver buttons and the dark
// backgrounds alike. A focus frame to Qt (so assistive technology passes over it), but one
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
