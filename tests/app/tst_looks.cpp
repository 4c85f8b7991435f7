// What only pixels show, one check each: a menu caption's colour once the pointer has left, a
// picture that is not drawn 1:1, pictures side by side when scaled, the scaled window's bands as it is
// resized, and every caption inside its view.

#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_Sound.h"
#include "NSColor.h"
#include "Picture.h"
#include "ScaledWindow.h"
#include "SoundSetText.h"

#include <QDebug>
#include <QFontInfo>
#include <QPainter>
#include <QTest>

namespace {

// Pixels within a few steps of `colour`: a caption's ink, give or take its edges.
int PixelsOf(const QImage& image, const QColor& colour) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            n += qAbs(c.red() - colour.red()) + qAbs(c.green() - colour.green()) +
                     qAbs(c.blue() - colour.blue()) <
                 40;
        }
    return n;
}

// Every caption the app can show comes from one of these states: the screens as made, every
// alarm page and both confirmations, every sound set page, and a timeline of the most items it
// holds, so every sound name and every item number up to the last has been laid out.
const struct {
    const char* name;
    std::vector<ButtonCallback> alarm;
    int soundPagesOn = 0;
    bool fullTimeline = false;
} kStates[] = {
    {"as made", {}},
    {"birthday page, on", {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_BirthOnBtnAction}},
    {"birthday confirmation",
     {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_BirthOnBtnAction, Frame_Alarm_DoneBtnAction}},
    {"wake-up page, on then off",
     {Frame_Alarm_WakeupBtnAction, Frame_Alarm_WakeupOnBtnAction, Frame_Alarm_WakeupOffBtnAction}},
    {"wake-up confirmation",
     {Frame_Alarm_WakeupBtnAction, Frame_Alarm_WakeupOnBtnAction, Frame_Alarm_DoneBtnAction}},
    {"choose page after both",
     {Frame_Alarm_BirthdayBtnAction, Frame_Alarm_BirthOnBtnAction, Frame_Alarm_BackToChooseBtnAction,
      Frame_Alarm_WakeupBtnAction, Frame_Alarm_WakeupOnBtnAction, Frame_Alarm_BackToChooseBtnAction}},
    {"second sound set page", {}, 1},
    {"last sound set page and a full timeline", {}, kSoundSetPageCount - 1, true},
};

// The caption's ink in its view: each line from the caption origin past the text system's
// padding, its baseline one ascent below the line's top, the lines a line spacing apart.
QRectF CaptionInk(const NSImageViewS* view) {
    const QFontMetricsF metrics(view->Text.font);
    QPointF baseline(view->Text.rectFrame.x + NSImageViewS::kLinePadding,
                     view->Text.rectFrame.y + metrics.ascent());
    QRectF ink;
    for (const QString& line : view->captionText().split(u'\n')) {
        if (!line.trimmed().isEmpty()) ink |= metrics.tightBoundingRect(line).translated(baseline);
        baseline.ry() += metrics.lineSpacing();
    }
    return ink;
}

} // namespace

class TestLooks : public QObject {
    Q_OBJECT
private slots:
    // Pointed at, "Program scenario" whitens its caption; left, it is orange again and the button
    // looks as it did before.
    void menuCaptionAfterThePointerLeaves() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Button* program = app.root()->frmMainMenu()->BtnProgram;
        const QRect place(app.at(program, QPoint(0, 0)), program->size());
        app.moveTo(QPoint(400, 20));
        const QImage before = app.window()->grab(place).toImage();
        app.moveTo(program);
        const QImage pointed = app.window()->grab(place).toImage();
        app.moveTo(QPoint(400, 20));
        const QImage after = app.window()->grab(place).toImage();
        QVERIFY(PixelsOf(pointed, NSColor::whiteColor()) > PixelsOf(before, NSColor::whiteColor()));
        QVERIFY(PixelsOf(after, NSColor::orangeColor()) > 0);
        QCOMPARE(after, before);
    }

    // A picture is drawn centred in its view at the size it was given, whatever its file's (29 x
    // 28 here); drawn at another size, or through a scaled painter as in the scaled window, it is
    // smoothed: the same pixels as drawing the file smoothly by hand. One not found, or asked for
    // without its type or with another, shows nothing.
    void picturesCentredAndSmoothedUnlessOneToOne_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<bool>("shown");
        const QString q = QStringLiteral("but_question"), png = QStringLiteral("png");
        QTest::newRow("drawn larger") << q << png << QSize(58, 56) << 1.0 << true;
        QTest::newRow("window scaled") << q << png << QSize(29, 28) << 2.0 << true;
        QTest::newRow("no such picture") << "no such picture" << png << QSize(29, 28) << 1.0 << false;
        QTest::newRow("without its type") << q << QString() << QSize(29, 28) << 1.0 << false;
        QTest::newRow("another type") << q << "jpg" << QSize(29, 28) << 1.0 << false;
    }
    void picturesCentredAndSmoothedUnlessOneToOne() {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(QSize, size);
        QFETCH(qreal, scale);
        QFETCH(bool, shown);
        NSImageViewS view(MakeNSRect(0, 0, 100, 100));
        view.InitImage(name, type, size.width(), size.height(), nullptr);
        const QPixmap file =
            Picture::Lookup(QStringLiteral("but_question"), QStringLiteral("png")).pixmap(1.0);
        QCOMPARE(file.size(), QSize(29, 28));
        QImage drawn(QSize(100, 100) * scale, QImage::Format_ARGB32_Premultiplied), smooth = drawn;
        for (QImage* image : {&drawn, &smooth}) {
            image->fill(Qt::transparent);
            QPainter painter(image);
            painter.scale(scale, scale);
            painter.setRenderHint(QPainter::SmoothPixmapTransform, image == &smooth);
            if (image == &drawn)
                view.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            else if (shown)
                painter.drawPixmap(
                    QRectF(QPointF(50 - size.width() / 2.0, 50 - size.height() / 2.0), QSizeF(size)), file,
                    QRectF(file.rect()));
        }
        QCOMPARE(drawn, smooth);
    }

    // Drawn scaled, pictures side by side meet: no seam of the colour behind them shows between
    // two, whatever the scale (the scaled window's, a screen of ratio 1.5).
    void scaledPicturesSideBySideMeet_data() {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("1024 x 600 screen") << 600.0 / 768.0;
        QTest::newRow("ratio 1.5") << 1.5;
        QTest::newRow("one third") << 1.0 / 3.0;
    }
    void scaledPicturesSideBySideMeet() {
        QFETCH(qreal, scale);
        QWidget row;
        row.resize(100, 60);
        for (int i = 0; i < 3; ++i) {
            // A background given a small size: opaque in every pixel.
            auto* view = new NSImageViewS(MakeNSRect(10 + 29 * i, 10, 29, 28));
            NSViewS::addSubview(&row, view);
            view->InitImage(QStringLiteral("mainpage_bg"), QStringLiteral("png"), 29, 28, nullptr);
        }
        QImage drawn((QSizeF(row.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        row.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
        painter.end();
        // Every pixel wholly inside the three pictures, one in from their outer edges.
        const QRect inside =
            QRectF(10 * scale, 10 * scale, 87 * scale, 28 * scale).toAlignedRect().adjusted(1, 1, -1, -1);
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            for (int x = inside.left(); x <= inside.right(); ++x)
                if (qAlpha(drawn.pixel(x, y)) != 255)
                    QFAIL(qPrintable(QStringLiteral("a seam at %1,%2").arg(x).arg(y)));
    }

    // The content is scaled to fit and centred; bands of one colour fill the rest, on both sides
    // of whichever way the window is too long, after every resize.
    void scaledWindowBandsFollowResizes_data() {
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QRect>("content");
        QTest::newRow("taller") << QSize(1024, 968) << QRect(0, 100, 1024, 768);
        QTest::newRow("wider") << QSize(1536, 768) << QRect(256, 0, 1024, 768);
        QTest::newRow("exact") << QSize(2048, 1536) << QRect(0, 0, 2048, 1536);
    }
    void scaledWindowBandsFollowResizes() {
        QFETCH(QSize, window);
        QFETCH(QRect, content);
        QWidget page;
        page.setFixedSize(1024, 768);
        page.setAutoFillBackground(true);
        page.setPalette(QPalette(Qt::red));
        ScaledWindow scaled(&page);
        scaled.resize(800, 800); // resized from something else
        scaled.show();
        QVERIFY(QTest::qWaitForWindowExposed(&scaled));
        scaled.resize(window);
        QTRY_COMPARE(scaled.size(), window);
        const QImage shot = scaled.grab().toImage();
        const QColor red(Qt::red);
        // Inside the content, two points in from its edges; outside, two points out of them.
        for (const QPoint p : {content.topLeft() + QPoint(2, 2), content.bottomRight() - QPoint(2, 2)})
            QCOMPARE(shot.pixelColor(p), red);
        QList<QPoint> bands;
        if (content.top() > 0)
            bands << QPoint(content.center().x(), content.top() - 2)
                  << QPoint(content.center().x(), content.bottom() + 2);
        if (content.left() > 0)
            bands << QPoint(content.left() - 2, content.center().y())
                  << QPoint(content.right() + 2, content.center().y());
        for (const QPoint p : bands) {
            QVERIFY(shot.pixelColor(p) != red);
            QCOMPARE(shot.pixelColor(p), shot.pixelColor(bands.first()));
        }
    }

    // A caption is drawn inside its view and cut by its edges: one that is wider or taller than its
    // view loses letters on screen ("I'l" for "I'll").
    void everyCaptionFitsItsView_data() {
        QTest::addColumn<int>("state");
        for (int i = 0; i < int(std::size(kStates)); ++i) QTest::newRow(kStates[i].name) << i;
    }
    void everyCaptionFitsItsView() {
        QFETCH(int, state);
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Frame_Control* r = app.root();
        for (const ButtonCallback action : kStates[state].alarm) action(r->frmAlarm(), nullptr);
        for (int page = 0; page < kStates[state].soundPagesOn; ++page)
            Frame_Sound_PageNextBtnAcion(r->frmSound(), nullptr);
        if (kStates[state].fullTimeline)
            for (int i = 0; i < kSoundContentItemMax; ++i)
                r->frmSound()->Timeline.SetSoundContent(i % kSoundSetCount);
        QString cut;
        int captions = 0;
        for (const NSImageViewS* view : r->findChildren<NSImageViewS*>()) {
            if (!view->hasCaption() || view->captionText().isEmpty()) continue;
            ++captions;
            // Measuring in a stand-in face would prove nothing about what the user sees.
            const QString family = QFontInfo(view->Text.font).family();
            QVERIFY2(family.startsWith(QLatin1String("Nimbus Mono PS")), qPrintable(family));
            if (const QRectF ink = CaptionInk(view); !QRectF(QPointF(0, 0), view->size()).contains(ink))
                QDebug(&cut) << view->captionText() << "inks" << ink << "in" << view->size() << "\n";
        }
        QVERIFY(captions > 20);
        QVERIFY2(cut.isEmpty(), qPrintable(cut));
    }
};

QTEST_MAIN(TestLooks)
#include "tst_looks.moc"
