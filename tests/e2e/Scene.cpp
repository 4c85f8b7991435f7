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

int Scene::Ink(const QImage& shot, const QRect& region, bool (*isInk)(const QColor&)) {
    int n = 0;
    for (int y = region.top(); y <= region.bottom(); ++y)
        for (int x = region.left(); x <= region.right(); ++x) n += isInk(shot.pixelColor(x, y)) ? 1 : 0;
    return n;
}

QString Look::judge(const QImage& shot) const {
    // The largest mean difference a region may have from its expected scene, and the least two
    // scenes must differ by for a region to tell them apart.
    constexpr double kTolerance = 3.0, kMinSeparation = 8.0;
    if (!expected.isValid() || !other.isValid())
        return what + ": a picture of the check is missing in " + Scene::folder;
    const double separation = Scene::Difference(expected.image(), other.image(), region);
    if (separation < kMinSeparation)
        return what + QStringLiteral(": the region cannot tell the two looks apart (%1)").arg(separation);
    const double d = Scene::Difference(shot, expected.image(), region);
    const double dOther = Scene::Difference(shot, other.image(), region);
    if (d <= kTolerance && d * 3 < dOther) return {};
    return what + QStringLiteral(": differs by %1 from what it should show, by %2 from the other look")
                      .arg(d, 0, 'f', 1)
                      .arg(dOther, 0, 'f', 1);
}

QList<Look> Buttons(const char* background, const QList<Button>& buttons) {
    const auto with = [background](const char* picture, const QRect& frame) {
        Scene scene{QString::fromLatin1(background)};
        return picture ? scene.button(QString::fromLatin1(picture), frame) : scene;
    };
    QList<Look> looks;
    for (const auto& [frame, shown, instead, part] : buttons)
        looks << Look{
            QStringLiteral("%1 at (%2, %3)").arg(QLatin1String(shown)).arg(frame.x()).arg(frame.y()),
            part.translated(frame.topLeft()), with(shown, frame), with(instead, frame)};
    return looks;
}
