// A caption is drawn exactly as the text system would draw it line by line: each line's baseline
// one ascent below the caption origin (plus the line padding), the next a line spacing lower.
// The view keeps its lines laid out between paints; these tests hold the pixels to the plain
// drawing and make sure a changed caption never shows the old one.

#include "NSColor.h"
#include "NSImageViewS.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

QImage Render(QWidget* view) {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// The caption drawn the plain way, line by line with QPainter::drawText.
QImage Reference(QSize size, const QString& text, const QColor& colour, const NSRect& loc, int pixelSize) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFont font(QStringLiteral("Courier"));
    font.setStyleHint(QFont::TypeWriter);
    font.setPixelSize(pixelSize);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(colour);
    const QFontMetricsF metrics(font);
    QPointF origin(loc.x + NSImageViewS::kLinePadding, loc.y + metrics.ascent());
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        painter.drawText(origin, line);
        origin.ry() += metrics.lineSpacing();
    }
    return image;
}

void SetCaption(NSImageViewS& view, const QString& text, const QColor& colour, const NSRect& loc, int size) {
    view.InitText(text, colour, 0, loc, QStringLiteral("Courier"), size);
}

} // namespace

class TestCaptionDrawing : public QObject {
    Q_OBJECT
private slots:
    void samePixelsAsDrawingEachLine_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        QTest::addColumn<QPoint>("origin");
        QTest::newRow("menu caption") << QStringLiteral("Program scenario") << 15 << QPoint(90, 53);
        QTest::newRow("timeline number") << QStringLiteral("512") << 12 << QPoint(0, 0);
        QTest::newRow("sound name") << QStringLiteral("wow wow") << 14 << QPoint(17, 11);
        QTest::newRow("two lines") << QStringLiteral("Wake-up\nBirthday") << 16 << QPoint(6, 10);
        QTest::newRow("empty middle line") << QStringLiteral("a\n\nb") << 20 << QPoint(3, 2);
        QTest::newRow("runs past the right edge")
            << QStringLiteral("Synchronization Synchronization") << 24 << QPoint(40, 30);
    }
    void samePixelsAsDrawingEachLine() {
        QFETCH(QString, text);
        QFETCH(int, size);
        QFETCH(QPoint, origin);
        NSImageViewS view(MakeNSRect(0, 0, 260, 120));
        const NSRect loc = MakeNSRect(origin.x(), origin.y(), 50, 16);
        SetCaption(view, text, NSColor::orangeColor(), loc, size);
        const QImage expected = Reference(view.size(), text, NSColor::orangeColor(), loc, size);
        QCOMPARE(Render(&view), expected);
        QCOMPARE(Render(&view), expected); // painted again from what was kept
    }

    void aNewCaptionReplacesTheKeptOne() {
        NSImageViewS view(MakeNSRect(0, 0, 200, 60));
        const NSRect loc = MakeNSRect(0, 0, 50, 16);
        SetCaption(view, QStringLiteral("Alarm/Clock"), NSColor::orangeColor(), loc, 15);
        Render(&view);
        // Same text in another colour (hover), then another text, then another size.
        SetCaption(view, QStringLiteral("Alarm/Clock"), NSColor::whiteColor(), loc, 15);
        QCOMPARE(Render(&view),
                 Reference(view.size(), QStringLiteral("Alarm/Clock"), NSColor::whiteColor(), loc, 15));
        SetCaption(view, QStringLiteral("Settings"), NSColor::whiteColor(), loc, 15);
        QCOMPARE(Render(&view),
                 Reference(view.size(), QStringLiteral("Settings"), NSColor::whiteColor(), loc, 15));
        SetCaption(view, QStringLiteral("Settings"), NSColor::whiteColor(), loc, 22);
        QCOMPARE(Render(&view),
                 Reference(view.size(), QStringLiteral("Settings"), NSColor::whiteColor(), loc, 22));
    }

    void theCaptionFieldChangedDirectlyIsDrawnAsItNowStands() {
        NSImageViewS view(MakeNSRect(0, 0, 200, 80));
        const NSRect loc = MakeNSRect(4, 4, 50, 16);
        SetCaption(view, QStringLiteral("Once"), NSColor::grayColor(), loc, 14);
        Render(&view);
        const QString twoLines = QStringLiteral("Daily\nOnce");
        view.Text.textStorage = twoLines;
        QCOMPARE(Render(&view), Reference(view.size(), twoLines, NSColor::grayColor(), loc, 14));
        // A larger font also spaces the lines further apart.
        view.Text.font.setPixelSize(18);
        QCOMPARE(Render(&view), Reference(view.size(), twoLines, NSColor::grayColor(), loc, 18));
        view.Text.rectFrame = MakeNSRect(30, 10, 50, 16);
        QCOMPARE(Render(&view),
                 Reference(view.size(), twoLines, NSColor::grayColor(), view.Text.rectFrame, 18));
    }
};

QTEST_MAIN(TestCaptionDrawing)
#include "tst_captiondrawing.moc"
