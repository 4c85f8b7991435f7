#include "Scene.h"

#include <QPainter>

#include <cstdlib>

namespace {
QString& Folder() {
    static QString folder;
    return folder;
}
} // namespace

void Scene::SetPictureFolder(const QString& folder) {
    Folder() = folder;
}

QString Scene::PictureFolder() {
    return Folder();
}

QImage Scene::Picture(const QString& name, const QString& type) {
    static QHash<QString, QImage> cache;
    const QString file = QString(name).replace(QLatin1Char(' '), QLatin1Char('_')) + QLatin1Char('.') + type;
    auto it = cache.find(file);
    if (it == cache.end()) {
        QImage image(Folder() + QLatin1Char('/') + file);
        it = cache.insert(file, image.isNull() ? image
                                               : image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    return *it;
}

Scene::Scene(const QString& background, const QString& type) {
    const QImage ground = Picture(background, type);
    m_valid = !ground.isNull();
    m_image = QImage(1024, 768, QImage::Format_RGB32);
    m_image.fill(Qt::black);
    QPainter painter(&m_image);
    painter.drawImage(QPoint(0, 0), ground);
}

Scene& Scene::picture(const QString& name, QPoint at, const QString& type) {
    const QImage image = Picture(name, type);
    if (image.isNull()) {
        m_valid = false;
        return *this;
    }
    QPainter painter(&m_image);
    painter.drawImage(at, image);
    return *this;
}

Scene& Scene::button(const QString& name, const QRect& frame) {
    const QImage image = Picture(name);
    if (image.isNull()) {
        m_valid = false;
        return *this;
    }
    // Buttons of odd height put a picture half a point down; Qt rounds as the app does.
    return picture(name, QPoint(frame.x(), frame.y() + qRound((frame.height() - image.height()) / 2.0)));
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
