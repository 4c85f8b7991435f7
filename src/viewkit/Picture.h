#pragma once

#include <QPixmap>
#include <QSizeF>
#include <QString>
#include <QStringList>

class QPainter;

// A picture of the application's resources, found by base name and type. Nothing is read until
// the picture is first drawn; a null name or a name with no resource gives a null picture,
// which draws nothing.
class Picture {
public:
    Picture() = default;
    static Picture Lookup(const QString& name, const QString& type);

    bool isNull() const { return m_path.isEmpty(); }
    // The name asked for (empty for a null name), whether or not the resource exists.
    const QString& name() const { return m_name; }

    // The size the picture is drawn at, in points; without one, its natural size.
    void setSize(const QSizeF& size) { m_size = size; }
    bool hasSize() const { return m_size.isValid(); }
    QSizeF size() const;
    QSizeF naturalSize() const;

    // Draws the picture into target (points); devicePixelRatio picks the sharper file when
    // the screen has one.
    void draw(QPainter& painter, const QRectF& target, qreal devicePixelRatio) const;

    // The decoded pixels drawn at that device pixel ratio (the sharper file above 1), read on
    // first use (again, if the picture has since kept only a scaled copy); every picture of the
    // same file shares one copy. Null for a null picture.
    const QPixmap& pixmap(qreal devicePixelRatio) const;

private:
    QString m_name;
    QString m_type;
    QString m_path;
    QSizeF m_size; // invalid: natural size
    mutable QPixmap m_pixmap;
    mutable bool m_loaded = false;
    mutable qreal m_loadedRatio = 1.0;
    mutable QString m_file;   // the resource decoded last: the sharp file or the plain one
    mutable QSizeF m_natural; // known once decoded, and kept when the pixels are let go
    // The pixels scaled to the device pixels the picture last covered, for a device pixel ratio:
    // a picture drawn scaled keeps these instead of the decoded file.
    mutable QPixmap m_scaled;
    mutable qreal m_scaledRatio = 1.0;
};
