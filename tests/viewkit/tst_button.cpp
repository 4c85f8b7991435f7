#include "Button.h"

#include <QMouseEvent>
#include <QTest>

#include <functional>

namespace {
// What the callbacks saw, in order: which callback, with which context, for which button.
struct Call {
    QString what;
    void* context;
    Button* button;
};
QList<Call> calls;
template <const char* What> void Record(void* c, Button* b) {
    calls << Call{QString::fromLatin1(What), c, b};
}
constexpr char kAction[] = "action", kEntered[] = "entered", kExited[] = "exited", kHid[] = "hid";
void HideOnRelease(void* c, Button* b) {
    Record<kHid>(c, b);
    b->setHidden(true);
}

// A page that records presses nobody else took.
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
    int ctxAction = 0, ctxEntered = 0, ctxExited = 0;

    Host() {
        window.resize(500, 300); // the page leaves a strip on the right
        NSViewS::AddSubview(&window, page);
        for (Button* button : {a, b})
            button->InitImage(QStringLiteral("up"), QStringLiteral("move"), QStringLiteral("down"),
                              QStringLiteral("png"), page);
        a->InitButtonAction(Record<kAction>, &ctxAction);
        a->InitButtonEntered(Record<kEntered>, &ctxEntered);
        a->InitButtonExited(Record<kExited>, &ctxExited);
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
const QHash<QString, std::function<void(Host&)>>& Steps() {
    static const QHash<QString, std::function<void(Host&)>> steps = {
        {"press", [](Host& h) { h.press(inA); }},
        {"release", [](Host& h) { h.release(inA); }},
        {"releaseOutside", [](Host& h) { h.release(outside); }},
        {"in", [](Host& h) { h.move(inA); }},
        {"furtherIn", [](Host& h) { h.move(inA + QPoint(3, 3)); }},
        {"out", [](Host& h) { h.move(outside); }},
        {"register", [](Host& h) { h.a->RegisterHover(); }},
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
        {"hideOnRelease", [](Host& h) { h.a->InitButtonAction(HideOnRelease, &h.ctxAction); }},
        {"picturesAgain", // brings a to the front, where it was
         [](Host& h) {
             h.a->InitImage(QStringLiteral("up2"), QString(), QString(), QStringLiteral("png"), h.page);
             QCOMPARE(h.a->geometry(), QRect(50, 50, 100, 40));
         }},
    };
    return steps;
}
} // namespace

// The image button under the mouse: pictures per state, the action on release, and hover
// registrations that fire once per registration for the rectangle on view when it was made.
class TestButton : public QObject {
    Q_OBJECT
private slots:
    void scripts_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("seen");
        QTest::addColumn<QString>("look");
        QTest::addColumn<int>("pagePresses");
        const QStringList none;
        QTest::newRow("press shows down") << "press" << none << "down" << 0;
        QTest::newRow("release acts once") << "press release" << QStringList{"action"} << "up" << 0;
        QTest::newRow("dragged off, still acts")
            << "press out releaseOutside" << QStringList{"action"} << "up" << 0;
        QTest::newRow("pointing without registration") << "in out" << none << "up" << 0;
        QTest::newRow("enter, act, exit")
            << "register in press release out" << QStringList{"entered", "action", "exited"} << "up" << 0;
        QTest::newRow("one event per registration")
            << "register register in furtherIn out" << QStringList{"entered", "entered", "exited", "exited"}
            << "up" << 0;
        QTest::newRow("under the pointer") << "register in" << QStringList{"entered"} << "move" << 0;
        QTest::newRow("disabled ignores the mouse, the page takes the press")
            << "register disable in press release out" << none << "up" << 1;
        QTest::newRow("enabled again, no new registration needed")
            << "register disable enable in press release" << QStringList{"entered", "action"} << "up" << 0;
        QTest::newRow("disabling keeps the picture shown")
            << "register in disable out" << QStringList{"entered"} << "move" << 0;
        QTest::newRow("registered while hidden: never fires")
            << "hide register show in out" << none << "up" << 0;
        QTest::newRow("registered while the page was hidden: never fires")
            << "hidePage register showPage in out" << none << "up" << 0;
        QTest::newRow("registration stays where it was made")
            << "register moveDown in" << QStringList{"entered"} << "move" << 0;
        QTest::newRow("only the part on view is registered")
            << "halfOff register inHalfOff pastPage" << QStringList{"entered", "exited"} << "up" << 0;
        QTest::newRow("setting pictures again brings it to the front")
            << "picturesAgain pressBoth releaseBoth" << QStringList{"action"} << "up" << 0;
        QTest::newRow("a callback that hides the button has the last word")
            << "hideOnRelease press release" << QStringList{"hid"} << "hidden" << 0;
    }

    void scripts() {
        QFETCH(QString, script);
        QFETCH(QStringList, seen);
        QFETCH(QString, look);
        QFETCH(int, pagePresses);
        Host h;
        for (const QString& step : script.split(QLatin1Char(' '))) {
            QVERIFY2(Steps().contains(step), qPrintable(step));
            Steps().value(step)(h);
        }
        const QHash<QString, void*> contexts = {{"action", &h.ctxAction},
                                                {"hid", &h.ctxAction},
                                                {"entered", &h.ctxEntered},
                                                {"exited", &h.ctxExited}};
        QStringList saw;
        for (const Call& c : calls) {
            saw << c.what;
            QCOMPARE(c.button, h.a);
            QCOMPARE(c.context, contexts.value(c.what)); // each callback gets its own context
        }
        QCOMPARE(saw, seen);
        const char* looks[] = {"up", "move", "down"};
        QCOMPARE(h.a->isHidden() ? QStringLiteral("hidden") : QString::fromLatin1(looks[int(h.a->look())]),
                 look);
        QCOMPARE(h.page->presses, pagePresses);
    }
};

QTEST_MAIN(TestButton)
#include "tst_button.moc"
