#include "FocusRing.h"

#include "NSViewS.h"

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
    const QRect visible = NSViewS::visibleRect(m_target);
    if (visible.isEmpty()) {
        hide();
        return;
    }
    const auto* view = qobject_cast<const NSViewS*>(m_target.data());
    const QRectF hug = (view ? view->focusRect() : QRectF(m_target->rect())) & QRectF(visible);
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
    const QColor cyan(80, 225, 255);
    const QColor edge(8, 16, 40);
    QPainterPath outline;
    outline.addRoundedRect(m_outline, m_radius, m_radius);
    // A dark band under the outline, wider than it, edges it on both sides; a faint glow
    // outside only, so the picture inside keeps its own colours.
    QPainterPath outside;
    outside.addRect(QRectF(rect()));
    painter.setClipPath(outside - outline);
    QColor glow = cyan;
    glow.setAlpha(60);
    painter.setPen(QPen(glow, 2 * kGlow));
    painter.drawPath(outline);
    painter.setClipping(false);
    painter.setPen(QPen(edge, 6));
    painter.drawPath(outline);
    painter.setPen(QPen(cyan, 3));
    painter.drawPath(outline);
}
