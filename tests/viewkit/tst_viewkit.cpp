// The views every screen is made of: captions drawn as the text system draws them, the image
// button under the mouse and the keyboard, and what a screen reader sees of the whole application.
// (Pictures are drawn where only pixels tell: tst_looks.)

#include "AppHarness.h"
#include "Button.h"
#include "FocusRing.h"
#include "Frame_Control.h"
#include "NSColor.h"
#include "ViewKit.h"

#include <QAccessible>
#include <QDateTimeEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QImage Render(QWidget* view) {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// A caption drawn the plain way: line by line, the first baseline one ascent below the origin,
// five points of line padding in.
QImage Reference(QSize size, const QString& text, const QColor& colour, const NSRect& loc, int pixelSize) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFont font(u"Courier"_s);
    font.setStyleHint(QFont::TypeWriter);
    font.setPixelSize(pixelSize);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(colour);
    const QFontMetricsF metrics(font);
    QPointF origin(loc.x + 5, loc.y + metrics.ascent());
    for (const QString& line : text.split(u'\n')) {
        painter.drawText(origin, line);
        origin.ry() += metrics.lineSpacing();
    }
    return image;
}

// The callbacks the button called, in order, each told by the context it was given; a call from
// another button or with another context says so.
struct {
    char action, entered, exited;
} contexts;
QStringList calls;
const Button* recorded = nullptr;
void Record(void* c, Button* b) {
    const QHash<void*, QString> names = {
        {&contexts.action, "action"}, {&contexts.entered, "entered"}, {&contexts.exited, "exited"}};
    calls << (b == recorded ? names.value(c, "stray") : "stray");
}
void HideOnRelease(void* c, Button* b) {
    calls << (c == &contexts.action ? "hid" : "stray");
    b->setHidden(true);
}

// A page that counts the presses nobody else took.
class Page : public NSViewS {
public:
    using NSViewS::NSViewS;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent* e) override {
        ++presses;
        e->accept();
    }
};

// A real shown window with one page and two buttons; b covers a's right end.
struct Host {
    QWidget window;
    Page* page = new Page(MakeNSRect(0, 0, 400, 300));
    Button* a = new Button(MakeNSRect(50, 50, 100, 40));
    Button* b = new Button(MakeNSRect(120, 50, 100, 40));

    Host() {
        window.resize(500, 300); // the page leaves a strip on the right
        NSViewS::addSubview(&window, page);
        for (Button* button : {a, b}) button->InitImage(u"up"_s, u"move"_s, u"down"_s, u"png"_s, page);
        a->InitButtonAction(Record, &contexts.action);
        a->InitButtonEntered(Record, &contexts.entered);
        a->InitButtonExited(Record, &contexts.exited);
        recorded = a;
        calls.clear();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        move(QPoint(1, 1)); // the pointer starts away from the buttons
    }
    void move(QPoint p) { QTest::mouseMove(window.windowHandle(), p); }
    void press(QPoint p) { QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, p); }
    void release(QPoint p) { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, p); }
};

const QPoint inA(100, 70), inBoth(130, 70), outside(200, 200);

// What the hand or the program does, by name.
const QHash<QString, std::function<void(Host&)>> kSteps = {
    {"press", [](Host& h) { h.press(inA); }},
    {"release", [](Host& h) { h.release(inA); }},
    {"releaseOutside", [](Host& h) { h.release(outside); }},
    {"in", [](Host& h) { h.move(inA); }},
    {"inAgain", [](Host& h) { h.move(inA + QPoint(10, 5)); }},
    {"out", [](Host& h) { h.move(outside); }},
    {"register", [](Host& h) { RegisterHover({h.a}); }},
    {"longSession", // the other button registered as often as a long session does
     [](Host& h) {
         for (int i = 0; i < 2000; ++i) RegisterHover({h.b});
     }},
    {"disable", [](Host& h) { h.a->SetEnable(0); }},
    {"enable", [](Host& h) { h.a->SetEnable(1); }},
    {"hide", [](Host& h) { h.a->setHidden(true); }},
    {"show", [](Host& h) { h.a->setHidden(false); }},
    {"hidePage", [](Host& h) { h.page->setHidden(true); }},
    {"showPage", [](Host& h) { h.page->setHidden(false); }},
    {"moveDown", [](Host& h) { h.a->setFrame(MakeNSRect(50, 150, 100, 40)); }},
    {"halfOff", [](Host& h) { h.a->setFrame(MakeNSRect(350, 50, 100, 40)); }}, // past the page's edge
    {"inHalfOff", [](Host& h) { h.move(QPoint(380, 70)); }},
    {"pastPage", [](Host& h) { h.move(QPoint(420, 70)); }},
    {"pressBoth", [](Host& h) { h.press(inBoth); }},
    {"releaseBoth", [](Host& h) { h.release(inBoth); }},
    {"hideOnRelease", [](Host& h) { h.a->InitButtonAction(HideOnRelease, &contexts.action); }},
    {"picturesAgain", // brings a to the front, where it was
     [](Host& h) {
         h.a->InitImage(u"up2"_s, QString(), QString(), u"png"_s, h.page);
         QCOMPARE(h.a->geometry(), QRect(50, 50, 100, 40));
     }},
};

// The caption last shown (white, 15 pixels), if any, is laid out and kept; the new one must replace
// it unless it is null.
const struct {
    const char *name, *text;
    int size, x, y;
    const char* kept;
} kCaptions[] = {
    {"menu caption", "Program scenario", 15, 90, 53, nullptr},
    {"lines", "Wake-up\nBirthday", 16, 6, 10, nullptr},
    {"empty middle line", "a\n\nb", 20, 3, 2, nullptr},
    {"not wrapped", "Synchronization Synchronization", 24, 40, 30, nullptr},
    {"hover colour", "Alarm/Clock", 15, 0, 0, "Alarm/Clock"},
    {"another size", "Daily\nOnce", 22, 0, 0, "Daily\nOnce"},
    {"empty text replaces", "", 15, 0, 0, "Program"},
    {"null text keeps the old caption", nullptr, 22, 4, 4, "Back"},
};

// Scripts of steps, the callbacks they fire, the button's final look, and the presses the page took.
const struct {
    const char *name, *script, *seen, *look;
    int pagePresses;
} kScripts[] = {
    {"press shows down", "press", "", "down", 0},
    {"dragged off, still acts", "press out releaseOutside", "action", "up", 0},
    {"pointing without registration", "in out", "", "up", 0},
    {"enter, act, exit", "register in press release out", "entered action exited", "up", 0},
    {"under the pointer", "register in", "entered", "move", 0},
    {"disabled: the page takes the mouse", "register disable in press release out", "", "up", 1},
    {"enabled again, as registered", "register disable enable in press release", "entered action", "up", 0},
    {"disabling keeps the picture shown", "register in disable out", "entered", "move", 0},
    {"registered while hidden: never fires", "hide register show in out", "", "up", 0},
    {"registered while the page was hidden: never fires", "hidePage register showPage in out", "", "up", 0},
    {"registration stays where it was made", "register moveDown in", "entered", "move", 0},
    {"each registration fires", "register register register in out",
     "entered entered entered exited exited exited", "up", 0},
    {"registered with the pointer inside: fires on the next move", "register in register inAgain out in",
     "entered entered exited exited entered entered", "move", 0},
    {"after a long session each registration fires once", "longSession register register in out",
     "entered entered exited exited", "up", 0},
    {"only the part on view is registered", "halfOff register inHalfOff pastPage", "entered exited", "up", 0},
    {"new pictures bring it to the front", "picturesAgain pressBoth releaseBoth", "action", "up", 0},
    {"a callback that hides the button has the last word", "hideOnRelease press release", "hid", "hidden", 0},
};

} // namespace

class TestViewKit : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { ViewKit::Install(); }

    void captionsAreTheSamePixelsAsDrawingEachLine_data() {
        QTest::addColumn<int>("i");
        for (int i = 0; i < int(std::size(kCaptions)); ++i) QTest::newRow(kCaptions[i].name) << i;
    }
    void captionsAreTheSamePixelsAsDrawingEachLine() {
        QFETCH(int, i);
        const QString text = QString::fromLatin1(kCaptions[i].text),
                      kept = QString::fromLatin1(kCaptions[i].kept);
        const int size = kCaptions[i].size;
        NSImageViewS view(MakeNSRect(0, 0, 260, 120));
        const NSRect loc = MakeNSRect(kCaptions[i].x, kCaptions[i].y, 50, 16);
        if (!kept.isNull()) {
            view.InitText(kept, NSColor::whiteColor(), 0, loc, u"Courier"_s, 15);
            Render(&view);
        }
        const bool keeps = text.isNull();
        view.InitText(text, NSColor::orangeColor(), 2 /* centred: ignored */,
                      keeps ? MakeNSRect(50, 50, 1, 1) : loc, u"Courier"_s, size);
        const QImage expected = keeps ? Reference(view.size(), kept, NSColor::whiteColor(), loc, 15)
                                      : Reference(view.size(), text, NSColor::orangeColor(), loc, size);
        QCOMPARE(Render(&view), expected);
        QCOMPARE(Render(&view), expected); // painted again from what was kept
    }

    // The image button: pictures per state, the action on release, and hover registrations that
    // fire once per registration for the rectangle on view when it was made.
    void buttonScripts_data() {
        QTest::addColumn<int>("i");
        for (int i = 0; i < int(std::size(kScripts)); ++i) QTest::newRow(kScripts[i].name) << i;
    }
    void buttonScripts() {
        QFETCH(int, i);
        const auto& [name, script, seen, look, pagePresses] = kScripts[i];
        Host h;
        for (const QString& step : QString::fromLatin1(script).split(u' ')) {
            QVERIFY2(kSteps.contains(step), qPrintable(step));
            kSteps.value(step)(h);
        }
        QCOMPARE(calls.join(u' '), QString::fromLatin1(seen));
        const char* looks[] = {"up", "move", "down"};
        QCOMPARE(h.a->isHidden() ? "hidden" : looks[int(h.a->look())], look);
        QCOMPARE(h.page->presses, pagePresses);
    }

    // Through QAccessible only: every control, on every screen and page, is a push or radio button
    // with a name a person can say and a press action; every picker has a name; every screen is a
    // named grouping.
    void everyControlIsNamed() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady()); // the menu's Settings gets its caption on arrival
        QStringList unnamed;
        for (Button* button : app.root()->findChildren<Button*>()) {
            QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(button);
            QVERIFY(iface);
            QVERIFY(iface->role() == QAccessible::Button || iface->role() == QAccessible::RadioButton);
            const QString name = iface->text(QAccessible::Name);
            if (name.isEmpty() || name == "Button"_L1 || name.contains(u'\n'))
                unnamed << button->BtnImageUp.name();
            QVERIFY(iface->actionInterface() && iface->actionInterface()->actionNames().contains(
                                                    QAccessibleActionInterface::pressAction()));
        }
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u", "_s)));
        for (const QWidget* field : app.root()->findChildren<QDateTimeEdit*>())
            QVERIFY(!field->accessibleName().isEmpty());
        for (NSViewS* screen : app.root()->findChildren<NSViewS*>(Qt::FindDirectChildrenOnly)) {
            QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(screen);
            QVERIFY(iface->role() == QAccessible::Grouping && !iface->text(QAccessible::Name).isEmpty());
        }
    }

    // A click never takes the focus and the ring shows only after a key: the first Tab shows
    // it where the focus is, the next moves it; a press hides it. (A reader hears the focus
    // through the bus, in the accessibility group.)
    void theFocusRingShowsOnlyForTheKeyboard() {
        Host h;
        h.a->setFocus();
        h.press(inBoth);
        h.release(inBoth);
        QVERIFY(h.a->hasFocus() && !h.window.findChild<FocusRing*>());
        QTest::keyClick(h.window.windowHandle(), Qt::Key_Tab);
        auto* ring = h.window.findChild<FocusRing*>();
        QVERIFY(h.a->hasFocus() && ring);
        QTest::keyClick(h.window.windowHandle(), Qt::Key_Tab);
        QVERIFY(h.b->hasFocus() && ring->isVisible() && ring->geometry().contains(h.b->geometry()));
        h.press(outside);
        QVERIFY(!ring->isVisible());
    }
};

QTEST_MAIN(TestViewKit)
#include "tst_viewkit.moc"
