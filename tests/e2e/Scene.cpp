#include "Scene.h"

#include <QHash>
#include <QPainter>

#include <cstdlib>

QImage Scene::Picture(const QString& name, const QString& type) {
    static QHash<QString, QImage> cache;
    const QString file = QString(name).replace(QLatin1Char(' '), QLatin1Char('_')) + QLatin1Char('.') + type;
    auto it = cache.find(file);
    if (it == cache.end()) {
        QImage image(folder + QLatin1Char('/') + file);
        it = cache.insert(file, image.isNull() ? image
                                               : image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    return *it;
}

Scene::Scene(const QString& background, const QString& type) {
    m_image.fill(Qt::black);
    picture(background, QPoint(0, 0), type);
}

Scene& Scene::picture(const QString& name, QPoint at, const QString& type) {
    const QImage image = Picture(name, type);
    m_valid = m_valid && !image.isNull();
    QPainter(&m_image).drawImage(at, image);
    return *this;
}

Scene& Scene::button(const QString& name, const QRect& frame) {
    // Buttons of odd height put a picture half a point down; Qt rounds as the app does.
    const int height = Picture(name).height();
    return picture(name, QPoint(frame.x(), frame.y() + qRound((frame.height() - height) / 2.0)));
}

double Scene::Difference(const QImage& a, const QImage& b, const QRect& region) {
    if (region.isEmpty() || !a.rect().contains(region) || !b.rect().contains(region)) return 255.0;
    const QImage x = a.convertToFormat(QImage::Format_RGB32);
    const QImage y = b.convertToFormat(QImage::Format_RGB32);
    qint64 sum = 0;
    for (int row = region.top(); row <= region.bottom(); ++row) {
        const auto* p = reinterpret_cast<const QRgb*>(x.constScanLine(row));
        const auto* q = reinterpret_cast<const QRgb*>(y.constScanLine(row));
        for (int col = region.left(); col <= region.right(); ++col)
            sum += std::abs(qRed(p[col]) - qRed(q[col])) + std::abs(qGreen(p[col]) - qGreen(q[col])) +
                   std::abs(qBlue(p[col]) - qBlue(q[col]));
    }
    return static_cast<double>(sum) / (3.0 * region.width() * region.height());
}
