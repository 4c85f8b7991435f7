#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

// What a part of the window must look like, built from the rendered pictures the app itself
// shows: a screen's background with pictures laid over it where the layout tables put them.
class Scene {
public:
    // The rendered pictures of the build (files named as on disk, spaces as underscores).
    static inline QString folder;
    // A picture by its resource name; null when it was not rendered.
    static QImage Picture(const QString& name, const QString& type = QStringLiteral("png"));

    explicit Scene(const QString& background, const QString& type = QStringLiteral("png"));
    bool isValid() const { return m_valid; }
    const QImage& image() const { return m_image; }

    // A picture at its natural size with its top left corner at `at` (window coordinates).
    Scene& picture(const QString& name, QPoint at, const QString& type = QStringLiteral("png"));
    // A button's picture: natural size, against the frame's left edge, centred vertically.
    Scene& button(const QString& name, const QRect& frame);

    // Mean difference of the two images over a rectangle, 0 (same) to 255, over the three
    // colour channels; 255 when the rectangle is not inside both.
    static double Difference(const QImage& a, const QImage& b, const QRect& region);
    // Pixels of a region the test counts as ink.
    static int Ink(const QImage& shot, const QRect& region, bool (*isInk)(const QColor&));

private:
    QImage m_image{1024, 768, QImage::Format_RGB32};
    bool m_valid = true;
};

// A region of the window must show the expected scene rather than the other one.
struct Look {
    QString what;
    QRect region;
    Scene expected;
    Scene other;
    // Empty when the shot shows the look, else what is wrong.
    QString judge(const QImage& shot) const;
};

// A button at `frame` showing `shown` rather than `instead` (null: its frame bare), compared over
// `part` of the frame.
struct Button {
    QRect frame;
    const char* shown;
    const char* instead;
    QRect part;
};

// The looks of buttons on a background.
QList<Look> Buttons(const char* background, const QList<Button>& buttons);
