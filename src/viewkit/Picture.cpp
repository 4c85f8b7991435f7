#include "Picture.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QResource>
#include <QSet>

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

// The decoded files, by resource path: every view showing a file shares one copy of its pixels.
// Qt's own pixmap cache would not do: it evicts beyond 10 MiB and takes nothing larger, so the
// full-window backgrounds (12 MiB each on a sharp screen) would be decoded once per view.
QHash<QString, QPixmap>& decodedFiles() {
    static QHash<QString, QPixmap>* files = [] {
        // Pixels are released with the application, while the windowing system is still there.
        qAddPostRoutine([] { decodedFiles().clear(); });
        return new QHash<QString, QPixmap>;
    }();
    return *files;
}

QPixmap loadShared(const QString& path, const QString& type, qreal devicePixelRatio) {
    QHash<QString, QPixmap>& files = decodedFiles();
    if (const auto found = files.constFind(path); found != files.cend()) return *found;
    QImageReader reader;
    openReader(reader, path, type);
    QImage image = reader.read();
    if (image.isNull()) return {};
    // Set before sharing: setting it on a shared copy would copy the pixels.
    image.setDevicePixelRatio(devicePixelRatio);
    // Converted in place to the screen's format: no second copy of the pixels at any moment.
    const QPixmap pixmap = QPixmap::fromImage(std::move(image));
    // A file that no picture holds any more (a button given other pictures) is let go.
    for (auto it = files.begin(); it != files.end();) it = it->isDetached() ? files.erase(it) : std::next(it);
    files.insert(path, pixmap);
    return pixmap;
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
    if (m_loaded) return m_pixmap.deviceIndependentSize();
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
    if (wanted > 1.0) {
        const QString sharp = resourceFile(m_name, QStringLiteral("@2x"), m_type);
        if (shipped(sharp)) {
            m_pixmap = loadShared(kFolder + sharp, m_type, 2.0);
            if (!m_pixmap.isNull()) return m_pixmap;
        }
    }
    m_pixmap = loadShared(m_path, m_type, 1.0);
    return m_pixmap;
}

void Picture::draw(QPainter& painter, const QRectF& target, qreal devicePixelRatio) const {
    if (isNull() || target.isEmpty()) return;
    const QPixmap& pm = pixmap(devicePixelRatio);
    if (pm.isNull()) return;
    // Smooth unless each of the picture's pixels lands on one device pixel: it is drawn at
    // another size, or its pixels are not the device's (the sharp file on a screen of ratio
    // 1.5), or the whole window is shown scaled. The device transform holds all three.
    if (painter.deviceTransform().mapRect(target).size() != QSizeF(pm.size()))
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.drawPixmap(target, pm, QRectF(QPointF(0, 0), QSizeF(pm.size())));
}
