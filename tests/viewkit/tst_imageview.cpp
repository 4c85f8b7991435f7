#include "NSColor.h"
#include "NSImageViewS.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTest>

namespace {
// The view as it is painted, on a transparent canvas.
QImage render(QWidget* view) {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// Bounding box of the pixels that are not transparent.
QRect inkBox(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 64) box |= QRect(x, y, 1, 1);
    return box;
}

bool hasColourNear(const QImage& image, QColor colour) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = QColor::fromRgba(image.pixel(x, y));
            if (c.alpha() > 200 && qAbs(c.red() - colour.red()) < 40 &&
                qAbs(c.green() - colour.green()) < 40 && qAbs(c.blue() - colour.blue()) < 40)
                return true;
        }
    return false;
}

void caption(NSImageViewS& view, const QString& text, QColor colour, NSRect loc, int alignment = 0) {
    view.InitText(text, colour, alignment, loc, QStringLiteral("Courier"), 20);
}
} // namespace

class TestImageView : public QObject {
    Q_OBJECT
private slots:
    void setNSRectKeepsWholeNumbersAsFloats() {
        NSRect r;
        SetNSRect(&r, -88, 96, 33, 0);
        QCOMPARE(r.x, -88.0f);
        QCOMPARE(r.y, 96.0f);
        QCOMPARE(r.width, 33.0f);
        QCOMPARE(r.height, 0.0f);
        SetNSRect(nullptr, 1, 2, 3, 4); // no record, nothing written
    }

    void floatFrameIsKeptWhileTheWidgetSitsOnWholePixels() {
        NSViewS view(MakeNSRect(0, 0, 10, 10));
        NSRect f{-88.0f, 96.5f, 33.0f, 33.0f};
        view.setFrame(f);
        QCOMPARE(view.frame(), f);
        QCOMPARE(view.geometry().topLeft(), QPoint(-88, 97));
        QCOMPARE(view.geometry().size(), QSize(33, 33));
    }

    void captionOnlyViewDrawsItsFirstLineAtTheCaptionOrigin() {
        NSImageViewS view(MakeNSRect(0, 0, 200, 100));
        view.InitImage(QString(), QString(), 200, 100, nullptr);
        QVERIFY(view.imgDefault.isNull());
        caption(view, QStringLiteral("MMM"), NSColor::whiteColor(), MakeNSRect(30, 20, 10, 10));
        const QRect box = inkBox(render(&view));
        QVERIFY2(!box.isEmpty(), "the caption drew nothing");
        // Line fragment padding on the left; the line's top at the rectangle's origin.
        QVERIFY2(box.left() >= 35 && box.left() <= 38, qPrintable(QString::number(box.left())));
        QVERIFY2(box.top() >= 20 && box.top() <= 30, qPrintable(QString::number(box.top())));
        // Not wrapped or cut by the 10-point caption rectangle.
        QVERIFY(box.right() > 30 + 10 + 20);
    }

    void nullTextKeepsTheOldCaptionAndColour() {
        NSImageViewS view(MakeNSRect(0, 0, 120, 40));
        caption(view, QStringLiteral("Back"), NSColor::orangeColor(), MakeNSRect(0, 0, 120, 40));
        caption(view, QString(), NSColor::greenColor(), MakeNSRect(50, 50, 1, 1));
        QCOMPARE(view.captionText(), QStringLiteral("Back"));
        QCOMPARE(view.captionColor(), NSColor::orangeColor());
        QCOMPARE(view.Text.rectFrame, MakeNSRect(0, 0, 120, 40));
        const QImage image = render(&view);
        QVERIFY(hasColourNear(image, NSColor::orangeColor()));
        QVERIFY(!hasColourNear(image, NSColor::greenColor()));
    }

    void aSecondCaptionReplacesTheFirst() {
        NSImageViewS view(MakeNSRect(0, 0, 200, 40));
        caption(view, QStringLiteral("Program"), NSColor::orangeColor(), MakeNSRect(0, 0, 200, 40));
        caption(view, QStringLiteral("Program"), NSColor::whiteColor(), MakeNSRect(0, 0, 200, 40));
        const QImage image = render(&view);
        QVERIFY(hasColourNear(image, NSColor::whiteColor()));
        QVERIFY(!hasColourNear(image, NSColor::orangeColor()));
        // An empty text is a caption too: it replaces the old one and draws nothing.
        caption(view, QStringLiteral(""), NSColor::whiteColor(), MakeNSRect(0, 0, 200, 40));
        QVERIFY(view.hasCaption());
        QVERIFY(inkBox(render(&view)).isEmpty());
    }

    void lineBreaksMakeLinesAndAlignmentIsIgnored() {
        NSImageViewS one(MakeNSRect(0, 0, 200, 120));
        caption(one, QStringLiteral("AB"), NSColor::whiteColor(), MakeNSRect(0, 0, 10, 10));
        NSImageViewS three(MakeNSRect(0, 0, 200, 120));
        caption(three, QStringLiteral("AB\nAB\nAB"), NSColor::whiteColor(), MakeNSRect(0, 0, 10, 10));
        QVERIFY(inkBox(render(&three)).height() > 2 * inkBox(render(&one)).height());

        NSImageViewS centred(MakeNSRect(0, 0, 200, 120));
        caption(centred, QStringLiteral("AB\nAB\nAB"), NSColor::whiteColor(), MakeNSRect(0, 0, 10, 10), 2);
        QCOMPARE(render(&centred), render(&three));
    }

    void captionsAreCutOnlyByTheViewsBounds() {
        NSImageViewS view(MakeNSRect(0, 0, 60, 30));
        caption(view, QStringLiteral("MMMMMMMMMMMM"), NSColor::whiteColor(), MakeNSRect(0, 0, 5, 5));
        const QRect box = inkBox(render(&view));
        QCOMPARE(box.right(), 59);
    }

    void aMissingPictureShowsNothing() {
        NSImageViewS view(MakeNSRect(0, 0, 50, 50));
        view.InitImage(QStringLiteral("no such picture"), QStringLiteral("png"), 50, 50, nullptr);
        QVERIFY(view.imgDefault.isNull());
        QCOMPARE(view.imgDefault.name(), QStringLiteral("no such picture"));
        QVERIFY(inkBox(render(&view)).isEmpty());
        view.InitImage(QStringLiteral("but_question"), QString(), 50, 50, nullptr); // no type
        QVERIFY(view.imgDefault.isNull());
        view.InitImage(QStringLiteral("but_question"), QStringLiteral("jpg"), 50, 50, nullptr); // wrong type
        QVERIFY(view.imgDefault.isNull());
    }

    void zeroSizedViewsAndPicturesDrawNothing() {
        NSImageViewS view(MakeNSRect(0, 0, 0, 0));
        view.InitImage(QStringLiteral("logo_main"), QStringLiteral("png"), 0, 0, nullptr);
        caption(view, QStringLiteral("x"), NSColor::whiteColor(), MakeNSRect(0, 0, 0, 0));
        QVERIFY(render(&view).isNull() || inkBox(render(&view)).isEmpty());
    }

    void aPictureIsDrawnCentredAtTheSizeItWasGiven() {
        if (!QFile::exists(QStringLiteral(":/pictures/but_question.png"))) QSKIP("artwork not built in");
        NSImageViewS view(MakeNSRect(0, 0, 100, 100));
        view.InitImage(QStringLiteral("but_question"), QStringLiteral("png"), 60, 40, nullptr);
        QCOMPARE(view.imgDefault.size(), QSizeF(60, 40));
        const QRect box = inkBox(render(&view));
        QVERIFY(!box.isEmpty());
        QVERIFY2(
            QRect(20, 30, 60, 40).contains(box),
            qPrintable(
                QStringLiteral("%1,%2 %3x%4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height())));
        // Scaled up from its 29 x 28 file: it spans most of the 60 x 40 it was given.
        QVERIFY(box.width() > 45 && box.height() > 30);
    }
};

QTEST_MAIN(TestImageView)
#include "tst_imageview.moc"
