#include "ScaledWindow.h"

#include <QGraphicsProxyWidget>

#include <algorithm>

namespace {
// The band colour: the deep blue of the backgrounds' edges, so the bands read as their margin.
const QColor kBand = QColor(0x0c, 0x17, 0x30);
} // namespace

ScaledWindow::ScaledWindow(QWidget* content) {
    setWindowTitle(content->windowTitle());
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setBackgroundBrush(kBand);
    setAlignment(Qt::AlignCenter);
    // Small enough for any screen, large enough that the scene stays something to look at.
    setMinimumSize(content->size() / 4);
    m_proxy = m_scene.addWidget(content);
    // Where the proxy lies: it takes the content's position, its place on the screen while it
    // was shown there.
    m_scene.setSceneRect(m_proxy->sceneBoundingRect());
    setScene(&m_scene);
}

ScaledWindow::~ScaledWindow() {
    // The proxy would delete the content it holds.
    m_proxy->setWidget(nullptr);
}

void ScaledWindow::showEvent(QShowEvent* event) {
    QGraphicsView::showEvent(event);
    // Shown once the window exists, so whatever follows the content finds the window it is in.
    if (QWidget* content = m_proxy->widget()) content->show();
}

void ScaledWindow::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    const QSizeF scene = m_scene.sceneRect().size();
    const qreal factor = std::min(viewport()->width() / scene.width(), viewport()->height() / scene.height());
    setTransform(QTransform::fromScale(factor, factor));
}
