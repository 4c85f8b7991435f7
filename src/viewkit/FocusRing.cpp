#include "FocusRing.h"

#include "Button.h"
#include "NSColor.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

// From the picture's edge to the outline, and from the outline to the glow's end.
constexpr qreal kGap = 4;
constexpr int kGlow = 6;
constexpr qreal kCornerRadius = 12;

} // namespace

FocusRing::FocusRing(QWidget* window) : QFocusFrame(window) {}

void FocusRing::follow(QWidget* target) {
    if (m_target != target) {
        if (m_target) m_target->removeEventFilter(this);
        m_target = target;
        if (target) target->installEventFilter(this);
    }
    place();
}

void FocusRing::place() {
    const QRect visible = NSViewS::VisibleRect(m_target);
    if (visible.isEmpty()) {
        hide();
        return;
    }
    const auto* button = qobject_cast<const Button*>(m_target.data());
    const QRectF hug = (button ? button->pictureRect() : QRectF(m_target->rect())) & QRectF(visible);
    const QRectF outline(m_target->mapTo(parentWidget(), hug.topLeft()), hug.size());
    const QRectF around = outline.adjusted(-kGap, -kGap, kGap, kGap);
    setGeometry(around.toAlignedRect().adjusted(-kGlow, -kGlow, kGlow, kGlow));
    m_outline = around.translated(-QPointF(pos()));
    m_radius = qMin(kCornerRadius, qMin(hug.width(), hug.height()) / 2) + kGap;
    raise();
    show();
    update();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_target) {
        const QEvent::Type type = event->type();
        if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide)
            place();
    }
    // Not the focus frame's own following, which would move the ring into the control's page.
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const QColor orange = NSColor::orangeColor();
    QPainterPath outline;
    outline.addRoundedRect(m_outline, m_radius, m_radius);
    // The glow only outwards, so the picture inside keeps its own colours: wide faint strokes
    // under narrower ones, brightest at the outline.
    QPainterPath outside;
    outside.addRect(QRectF(rect()));
    painter.setClipPath(outside - outline);
    for (int width = 2 * kGlow; width > 2; width -= 3) {
        QColor glow = orange;
        glow.setAlpha(48);
        painter.setPen(QPen(glow, width));
        painter.drawPath(outline);
    }
    painter.setClipping(false);
    // A dark line just inside keeps the outline apart from an orange picture.
    painter.setPen(QPen(QColor(10, 20, 50, 170), 1.5));
    painter.drawRoundedRect(m_outline.adjusted(2, 2, -2, -2), m_radius - 2, m_radius - 2);
    painter.setPen(QPen(orange, 2.5));
    painter.drawPath(outline);
}
