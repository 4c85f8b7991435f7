#include "Picture.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QResource>
#include <QSet>
#include <QtMath>

namespace {

const QString kFolder = QStringLiteral(":/pictures/");

QString resourceFile(const QString& name, const QString& suffix, const QString& type) {
    return name + suffix + QLatin1Char('.') + type;
}

// The file names under the pictures folder, listed once from the resource tree alone. Asking
// QFile::exists (or a directory iterator) about each file opens it instead, which reads the
// length stored in front of its data and so brings a page of every picture into memory.
const QSet<QString>& shippedFiles() {
    static const QSet<QString> files = [] {
        // children() reads the names from the tree and nothing else; it is protected, hence the
        // small subclass.
        struct Folder : QResource {
            using QResource::children;
            using QResource::QResource;
        };
        const QStringList children = Folder(kFolder).children();
        return QSet<QString>(children.begin(), children.end());
    }();
    return files;
}

bool shipped(const QString& file) {
    // A resource registered after the list was made is still found, at the old price.
    return shippedFiles().contains(file) || QFile::exists(kFolder + file);
}

// The picture's type names its format, so the reader neither sniffs the contents nor loads
// every image plugin to ask them; a file whose contents do not match its type is still read.
void openReader(QImageReader& reader, const QString& path, const QString& type) {
    reader.setFileName(path);
    reader.setFormat(type.toLatin1());
    reader.setAutoDetectImageFormat(false);
    if (!reader.canRead()) {
        reader.setFileName(path); // rewinds; no format: the reader finds it
        reader.setFormat(QByteArray());
        reader.setAutoDetectImageFormat(true);
    }
}

// The decoded files, by resource path, and their scaled copies, by path and size: every view
// showing a file shares one copy of its pixels, and one of each size it is scaled to. Qt's own
// pixmap cache would not do: it evicts beyond 10 MiB and takes nothing larger, so the
// full-window backgrounds (12 MiB each on a sharp screen) would be decoded once per view.
QHash<QString, QPixmap>& sharedPixels() {
    static QHash<QString, QPixmap>* pixels = [] {
        // Pixels are released with the application, while the windowing system is still there.
        qAddPostRoutine([] { sharedPixels().clear(); });
        return new QHash<QString, QPixmap>;
    }();
    return *pixels;
}

template <typename Make> QPixmap share(const QString& key, Make make) {
    QHash<QString, QPixmap>& pixels = sharedPixels();
    if (const auto found = pixels.constFind(key); found != pixels.cend()) return *found;
    const QPixmap pixmap = make();
    if (pixmap.isNull()) return {};
    // Pixels that no picture holds any more (a button given other pictures, a copy for a size
    // the window no longer has) are let go.
    for (auto it = pixels.begin(); it != pixels.end();)
        it = it->isDetached() ? pixels.erase(it) : std::next(it);
    pixels.insert(key, pixmap);
    return pixmap;
}

QPixmap loadShared(const QString& path, const QString& type, qreal devicePixelRatio) {
    return share(path, [&] {
        QImageReader reader;
        openReader(reader, path, type);
        QImage image = reader.read();
        if (image.isNull()) return QPixmap();
        // Set before sharing: setting it on a shared copy would copy the pixels.
        image.setDevicePixelRatio(devicePixelRatio);
        // Converted in place to the screen's format: no second copy of the pixels at any moment.
        return QPixmap::fromImage(std::move(image));
    });
}

// The decoded file at path smoothly scaled to size device pixels, as a painter draws it.
QPixmap scaledShared(const QString& path, const QPixmap& file, const QSize& size) {
    const QString key = path + QStringLiteral(" at %1x%2").arg(size.width()).arg(size.height());
    return share(key, [&] {
        QImage scaled(size,
                      file.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        scaled.fill(Qt::transparent);
        QPainter painter(&scaled);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painter.drawPixmap(QRectF(QPointF(0, 0), QSizeF(size)), file, QRectF(file.rect()));
        painter.end();
        return QPixmap::fromImage(std::move(scaled));
    });
}

// The device pixels a picture scaled ahead covers: from its rounded left and top edges, and
// whole pixels enough to reach the far edges wherever those fall, so that pictures side by side
// meet and a moving picture keeps one size.
QRect devicePixels(const QRectF& onDevice) {
    constexpr qreal kSlack = 1.0 / 64; // what arithmetic may add to a whole number of pixels
    return QRect(qRound(onDevice.left()), qRound(onDevice.top()), qCeil(onDevice.width() - kSlack),
                 qCeil(onDevice.height() - kSlack));
}

// Lets go of the shared pixels at key if no picture holds them any more.
void releaseShared(const QString& key) {
    QHash<QString, QPixmap>& pixels = sharedPixels();
    if (const auto found = pixels.find(key); found != pixels.end() && found->isDetached())
        pixels.erase(found);
}

// Draws pixels at a place given in device pixels, one pixel of the pixmap on each.
void drawOnDevice(QPainter& painter, const QTransform& toDevice, const QPoint& at, const QPixmap& pixels) {
    painter.save();
    painter.setWorldTransform(toDevice.inverted(), true);
    painter.drawPixmap(at, pixels);
    painter.restore();
}

} // namespace

Picture Picture::Lookup(const QString& name, const QString& type) {
    Picture picture;
    if (name.isEmpty() || type.isEmpty()) return picture;
    // The name is kept even when there is no such resource: it says what the view was asked to
    // show, while the picture itself stays null and draws nothing.
    picture.m_name = name;
    picture.m_type = type;
    const QString file = resourceFile(name, {}, type);
    if (shipped(file)) picture.m_path = kFolder + file;
    return picture;
}

QSizeF Picture::naturalSize() const {
    if (isNull()) return {};
    if (m_natural.isValid()) return m_natural;
    QImageReader reader;
    openReader(reader, m_path, m_type);
    return reader.size(); // reads the header only
}

QSizeF Picture::size() const {
    return hasSize() ? m_size : naturalSize();
}

const QPixmap& Picture::pixmap(qreal devicePixelRatio) const {
    if (isNull()) return m_pixmap;
    const qreal wanted = devicePixelRatio > 1.0 ? 2.0 : 1.0;
    if (m_loaded && m_loadedRatio == wanted) return m_pixmap;
    m_loaded = true;
    m_loadedRatio = wanted;
    m_pixmap = QPixmap();
    if (wanted > 1.0) {
        const QString sharp = resourceFile(m_name, QStringLiteral("@2x"), m_type);
        if (shipped(sharp)) {
            m_file = kFolder + sharp;
            m_pixmap = loadShared(m_file, m_type, 2.0);
        }
    }
    if (m_pixmap.isNull()) {
        m_pixmap = loadShared(m_path, m_type, 1.0);
        m_file = m_path;
    }
    if (!m_pixmap.isNull()) m_natural = m_pixmap.deviceIndependentSize();
    return m_pixmap;
}

void Picture::draw(QPainter& painter, const QRectF& target, qreal devicePixelRatio) const {
    if (isNull() || target.isEmpty()) return;
    const QTransform toDevice = painter.deviceTransform();
    const QRectF onDevice = toDevice.mapRect(target);
    // Turned or mirrored, a picture is scaled as it is drawn; otherwise it can be scaled ahead.
    const bool upright = toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0 && toDevice.m22() > 0;
    const QRect pixels = devicePixels(onDevice);
    const qreal ratio = devicePixelRatio > 1.0 ? 2.0 : 1.0;
    if (upright && !m_scaled.isNull() && m_scaledRatio == ratio && m_scaled.size() == pixels.size()) {
        drawOnDevice(painter, toDevice, pixels.topLeft(), m_scaled);
        return;
    }
    const QPixmap& pm = pixmap(devicePixelRatio);
    if (pm.isNull()) return;
    const QRectF source(QPointF(0, 0), QSizeF(pm.size()));
    // Each of the picture's pixels lands on one device pixel: copied as it is. Turned or mirrored,
    // it is smoothed as it is drawn.
    const bool oneToOne = onDevice.size() == source.size();
    if (oneToOne || !upright) {
        m_scaled = QPixmap();
        if (!oneToOne) painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painter.drawPixmap(target, pm, source);
        return;
    }
    // Drawn at another size (the whole window shown scaled, the sharp file on a screen of ratio
    // 1.5, a picture given another size), it is scaled smoothly once to the device pixels it
    // covers, and each paint copies them: a scaled window repaints its pictures as cheaply as
    // the window at 1:1 does.
    if (pixels.isEmpty()) return;
    m_scaled = QPixmap(); // a copy for another size goes, unless another picture holds it
    m_scaled = scaledShared(m_file, pm, pixels.size());
    m_scaledRatio = ratio;
    // The copy is all the picture draws from now on: it lets go of the decoded file, whose pixels
    // go too once no other picture holds them.
    m_pixmap = QPixmap();
    m_loaded = false;
    releaseShared(m_file);
    drawOnDevice(painter, toDevice, pixels.topLeft(), m_scaled);
}
