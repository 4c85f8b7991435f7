#include "Picture.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>

namespace {
QString resourcePath(const QString& name, const QString& suffix, const QString& type) {
    return QStringLiteral(":/pictures/") + name + suffix + QLatin1Char('.') + type;
}
} // namespace

Picture Picture::Lookup(const QString& name, const QString& type) {
    Picture picture;
    if (name.isEmpty() || type.isEmpty()) return picture;
    // The name is kept even when there is no such resource: it says what the view was asked to
    // show, while the picture itself stays null and draws nothing.
    picture.m_name = name;
    picture.m_type = type;
    const QString path = resourcePath(name, {}, type);
    if (QFile::exists(path)) picture.m_path = path;
    return picture;
}

QSizeF Picture::naturalSize() const {
    if (isNull()) return {};
    if (m_loaded) return m_pixmap.deviceIndependentSize();
    return QImageReader(m_path).size(); // reads the header only
}

QSizeF Picture::size() const {
    return hasSize() ? m_size : naturalSize();
}

const QPixmap& Picture::pixmap(qreal devicePixelRatio) const {
    const qreal wanted = devicePixelRatio > 1.0 ? 2.0 : 1.0;
    if (m_loaded && m_loadedRatio == wanted) return m_pixmap;
    m_loaded = true;
    m_loadedRatio = wanted;
    if (wanted > 1.0) {
        const QString sharp = resourcePath(m_name, QStringLiteral("@2x"), m_type);
        // QPixmap::load goes through QPixmapCache, so views showing the same file share it.
        if (QFile::exists(sharp) && m_pixmap.load(sharp)) {
            m_pixmap.setDevicePixelRatio(2.0);
            return m_pixmap;
        }
    }
    if (!m_pixmap.load(m_path)) m_pixmap = QPixmap();
    m_pixmap.setDevicePixelRatio(1.0);
    return m_pixmap;
}

void Picture::draw(QPainter& painter, const QRectF& target, qreal devicePixelRatio) const {
    if (isNull() || target.isEmpty()) return;
    const QPixmap& pm = pixmap(devicePixelRatio);
    if (pm.isNull()) return;
    const QSizeF natural = pm.deviceIndependentSize();
    if (natural != target.size()) painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.drawPixmap(target, pm, QRectF(QPointF(0, 0), QSizeF(pm.size())));
}
