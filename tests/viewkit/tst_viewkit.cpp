// The views every screen is made of: captions drawn as the text system draws them, pictures found,
// decoded once and drawn centred, float frames, stacking and the visible rectangle.

#include "NSColor.h"
#include "NSImageViewS.h"

#include <QFile>
#include <QPainter>
#include <QTest>

#include <utility>

namespace {

QImage Render(QWidget* view) {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// Bounding box of the pixels that are not transparent.
QRect InkBox(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 64) box |= QRect(x, y, 1, 1);
    return box;
}

// A caption drawn the plain way: line by line, the first baseline one ascent below the origin,
// five points of line padding in.
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
    QPointF origin(loc.x + 5, loc.y + metrics.ascent());
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        painter.drawText(origin, line);
        origin.ry() += metrics.lineSpacing();
    }
    return image;
}

// The image plugins mapped into this process.
QStringList ImagePluginsLoaded() {
    QFile maps(QStringLiteral("/proc/self/maps"));
    QStringList plugins;
    if (!maps.open(QIODevice::ReadOnly)) return plugins;
    for (const QByteArray& line : maps.readAll().split('\n'))
        if (line.contains("/imageformats/"))
            plugins << QString::fromLocal8Bit(line.mid(line.lastIndexOf(' ') + 1));
    return plugins;
}

} // namespace

class TestViewKit : public QObject {
    Q_OBJECT
private slots:
    // Runs first, before anything else in this process has read a picture.
    void pngPicturesLoadNoImagePlugin() {
        if (!QFile::exists(QStringLiteral("/proc/self/maps"))) QSKIP("no /proc here");
        if (!QFile::exists(QStringLiteral(":/pictures/mainpage_bg.png"))) QSKIP("artwork not built in");
        for (const char* name : {"mainpage_bg", "logo_main", "but_question", "long bar"})
            QVERIFY2(!Picture::Lookup(QString::fromLatin1(name), QStringLiteral("png")).pixmap(1.0).isNull(),
                     name);
        QVERIFY2(ImagePluginsLoaded().isEmpty(), qPrintable(ImagePluginsLoaded().join(QLatin1Char(' '))));
    }

    // The caption last shown (white, 15 pixels) is laid out and kept; the new one must replace it.
    void captionsAreTheSamePixelsAsDrawingEachLine_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        QTest::addColumn<QPoint>("origin");
        QTest::addColumn<QString>("kept");
        const QString none;
        QTest::newRow("menu caption") << "Program scenario" << 15 << QPoint(90, 53) << none;
        QTest::newRow("at the corner") << "512" << 12 << QPoint(0, 0) << none;
        QTest::newRow("lines") << "Wake-up\nBirthday" << 16 << QPoint(6, 10) << none;
        QTest::newRow("empty middle line") << "a\n\nb" << 20 << QPoint(3, 2) << none;
        QTest::newRow("not wrapped") << "Synchronization Synchronization" << 24 << QPoint(40, 30) << none;
        QTest::newRow("hover colour") << "Alarm/Clock" << 15 << QPoint(0, 0) << "Alarm/Clock";
        QTest::newRow("another text") << "Settings" << 15 << QPoint(0, 0) << "Alarm/Clock";
        QTest::newRow("another size") << "Daily\nOnce" << 22 << QPoint(0, 0) << "Daily\nOnce";
        QTest::newRow("empty text replaces") << "" << 15 << QPoint(0, 0) << "Program";
        QTest::newRow("null text keeps the old caption") << none << 22 << QPoint(4, 4) << "Back";
    }
    void captionsAreTheSamePixelsAsDrawingEachLine() {
        QFETCH(QString, text);
        QFETCH(int, size);
        QFETCH(QPoint, origin);
        QFETCH(QString, kept);
        const QString font = QStringLiteral("Courier");
        NSImageViewS view(MakeNSRect(0, 0, 260, 120));
        const NSRect loc = MakeNSRect(origin.x(), origin.y(), 50, 16);
        if (!kept.isNull()) {
            view.InitText(kept, NSColor::whiteColor(), 0, loc, font, 15);
            Render(&view);
        }
        const bool keeps = text.isNull();
        view.InitText(text, NSColor::orangeColor(), 2 /* centred: ignored */,
                      keeps ? MakeNSRect(50, 50, 1, 1) : loc, font, size);
        const QImage expected = keeps ? Reference(view.size(), kept, NSColor::whiteColor(), loc, 15)
                                      : Reference(view.size(), text, NSColor::orangeColor(), loc, size);
        QCOMPARE(Render(&view), expected);
        QCOMPARE(Render(&view), expected); // painted again from what was kept
    }

    void aMissingPictureShowsNothing() {
        NSImageViewS view(MakeNSRect(0, 0, 50, 50));
        const QString q = QStringLiteral("but_question");
        for (const auto& [name, type] : {std::pair{QStringLiteral("no such picture"), QStringLiteral("png")},
                                         std::pair{q, QString()}, std::pair{q, QStringLiteral("jpg")}}) {
            view.InitImage(name, type, 50, 50, nullptr);
            QVERIFY(InkBox(Render(&view)).isEmpty());
        }
    }

    void aPictureIsDrawnCentredAtTheSizeItWasGiven() {
        if (!QFile::exists(QStringLiteral(":/pictures/but_question.png"))) QSKIP("artwork not built in");
        NSImageViewS view(MakeNSRect(0, 0, 100, 100));
        view.InitImage(QStringLiteral("but_question"), QStringLiteral("png"), 60, 40, nullptr);
        const QRect box = InkBox(Render(&view));
        QVERIFY(QRect(20, 30, 60, 40).contains(box));
        // Scaled up from its 29 x 28 file: it spans most of the 60 x 40 it was given.
        QVERIFY(box.width() > 45 && box.height() > 30);
    }

    void viewsShowingOneFileShareItsPixels() {
        if (!QFile::exists(QStringLiteral(":/pictures/scenario_bg.png"))) QSKIP("artwork not built in");
        const Picture a = Picture::Lookup(QStringLiteral("scenario_bg"), QStringLiteral("png"));
        Picture b = Picture::Lookup(QStringLiteral("scenario_bg"), QStringLiteral("png"));
        b.setSize(QSizeF(10, 10)); // a view's size does not make a copy of the pixels either
        const Picture other = Picture::Lookup(QStringLiteral("mainpage_bg"), QStringLiteral("png"));
        for (const qreal ratio : {1.0, 2.0}) {
            QCOMPARE(a.pixmap(ratio).cacheKey(), b.pixmap(ratio).cacheKey());
            QVERIFY(other.pixmap(ratio).cacheKey() != a.pixmap(ratio).cacheKey());
        }
    }

    void floatFrameIsKeptWhileTheWidgetSitsOnWholePixels() {
        NSViewS view(MakeNSRect(0, 0, 10, 10));
        const NSRect f{-88.0f, 96.5f, 33.0f, 33.0f};
        view.setFrame(f);
        QCOMPARE(view.frame(), f);
        QCOMPARE(view.geometry(), QRect(-88, 97, 33, 33));
    }

    void addSubviewRaisesAndKeepsHiddenChildrenHidden() {
        QWidget window;
        window.resize(100, 100);
        auto* page = new NSViewS(MakeNSRect(0, 0, 100, 100));
        NSViewS::AddSubview(&window, page);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // Added after the window is shown: Qt would leave them all hidden.
        auto* a = new NSViewS(MakeNSRect(0, 0, 10, 10));
        auto* b = new NSViewS(MakeNSRect(0, 0, 10, 10));
        auto* hidden = new NSViewS(MakeNSRect(50, 50, 10, 10));
        hidden->setHidden(true);
        for (QWidget* child : {a, b, hidden, a}) page->addSubview(child);
        QCOMPARE(page->childAt(5, 5), static_cast<QWidget*>(a));
        QVERIFY(a->isVisible() && b->isVisible());
        QVERIFY(hidden->isHidden());
    }

    void visibleRectIsClippedByEveryAncestor() {
        QWidget window;
        window.resize(300, 300);
        auto* page = new NSViewS(MakeNSRect(0, 0, 300, 300));
        NSViewS::AddSubview(&window, page);
        auto* panel = new NSViewS(MakeNSRect(100, 100, 50, 50));
        page->addSubview(panel);
        auto* child = new NSViewS(MakeNSRect(-10, 30, 40, 40)); // sticks out left and bottom
        panel->addSubview(child);
        QVERIFY(child->visibleRect().isEmpty()); // the window is not on screen yet
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(child->visibleRect(), QRect(10, 0, 30, 20));
        panel->setHidden(true);
        QVERIFY(child->visibleRect().isEmpty());
        panel->setHidden(false);
        child->setFrame(MakeNSRect(60, 60, 10, 10)); // entirely outside its parent
        QVERIFY(child->visibleRect().isEmpty());
    }
};

QTEST_MAIN(TestViewKit)
#include "tst_viewkit.moc"
