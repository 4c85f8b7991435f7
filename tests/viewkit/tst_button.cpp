#include "Button.h"

#include <QMouseEvent>
#include <QTest>

namespace {
// What callbacks saw: which callback, with which context, for which button.
struct Call {
    QString what;
    void* context;
    Button* button;
    bool operator==(const Call&) const = default;
};
QList<Call> calls;
void onAction(void* c, Button* b) {
    calls << Call{QStringLiteral("action"), c, b};
}
void onEntered(void* c, Button* b) {
    calls << Call{QStringLiteral("entered"), c, b};
}
void onExited(void* c, Button* b) {
    calls << Call{QStringLiteral("exited"), c, b};
}
void hideOnRelease(void*, Button* b) {
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

// A real shown window with one page and two buttons.
struct Host {
    QWidget window;
    Page* page = new Page(MakeNSRect(0, 0, 400, 300));
    Button* a = new Button(MakeNSRect(50, 50, 100, 40));
    Button* b = new Button(MakeNSRect(250, 50, 100, 40));
    int ctxA = 0, ctxB = 0, ctxC = 0;

    Host() {
        window.resize(400, 300);
        NSViewS::AddSubview(&window, page);
        a->InitImage(QStringLiteral("up"), QStringLiteral("move"), QStringLiteral("down"),
                     QStringLiteral("png"), page);
        b->InitImage(QStringLiteral("up"), QStringLiteral("move"), QStringLiteral("down"),
                     QStringLiteral("png"), page);
        a->InitButtonAction(onAction, &ctxA);
        a->InitButtonEntered(onEntered, &ctxB);
        a->InitButtonExited(onExited, &ctxC);
        calls.clear();
    }
    void show() {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // The pointer starts away from the buttons: a move to where it already is would be none.
        move(QPoint(1, 1));
    }
    QWindow* w() { return window.windowHandle(); }
    void move(QPoint p) { QTest::mouseMove(w(), p); }
    void press(QPoint p) { QTest::mousePress(w(), Qt::LeftButton, Qt::NoModifier, p); }
    void release(QPoint p) { QTest::mouseRelease(w(), Qt::LeftButton, Qt::NoModifier, p); }
};

const QPoint inA(100, 70), outside(200, 200);

// A step of a script: what the hand or the program does.
enum Step {
    PressA,
    ReleaseA,
    ReleaseOutside,
    MoveInA,
    MoveInsideA, // a few pixels further, still in A
    MoveOutside,
    RegisterA,
    Disable,
    Enable,
    HideA,
    ShowA,
    HidePage,
    ShowPage,
    MoveADown, // the button moves 100 points down
};

// What the callbacks of button A saw, as "entered", "action", "exited".
QStringList Seen() {
    QStringList seen;
    for (const Call& c : calls) seen << c.what;
    return seen;
}

} // namespace

// The image button under the mouse: pictures per state, the action on release, and hover
// registrations that fire once per registration for the rectangle on view when it was made.
class TestButton : public QObject {
    Q_OBJECT
private slots:
    void scripts_data() {
        QTest::addColumn<QList<int>>("steps");
        QTest::addColumn<QStringList>("seen");
        QTest::addColumn<int>("look");
        QTest::addColumn<int>("pagePresses");
        const int up = int(Button::Look::Up), move = int(Button::Look::Move), down = int(Button::Look::Down);
        QTest::newRow("press shows down") << QList<int>{PressA} << QStringList{} << down << 0;
        QTest::newRow("release acts once")
            << QList<int>{PressA, ReleaseA} << QStringList{"action"} << up << 0;
        QTest::newRow("dragged off, still acts")
            << QList<int>{PressA, MoveOutside, ReleaseOutside} << QStringList{"action"} << up << 0;
        QTest::newRow("pointing without registration")
            << QList<int>{MoveInA, MoveOutside} << QStringList{} << up << 0;
        QTest::newRow("enter, act, exit") << QList<int>{RegisterA, MoveInA, PressA, ReleaseA, MoveOutside}
                                          << QStringList{"entered", "action", "exited"} << up << 0;
        QTest::newRow("one event per registration")
            << QList<int>{RegisterA, RegisterA, MoveInA, MoveInsideA, MoveOutside}
            << QStringList{"entered", "entered", "exited", "exited"} << up << 0;
        QTest::newRow("under the pointer")
            << QList<int>{RegisterA, MoveInA} << QStringList{"entered"} << move << 0;
        QTest::newRow("disabled ignores the mouse, the page takes the press")
            << QList<int>{RegisterA, Disable, MoveInA, PressA, ReleaseA, MoveOutside} << QStringList{} << up
            << 1;
        QTest::newRow("enabled again, no new registration needed")
            << QList<int>{RegisterA, Disable, Enable, MoveInA, PressA, ReleaseA}
            << QStringList{"entered", "action"} << up << 0;
        QTest::newRow("disabling keeps the picture shown")
            << QList<int>{RegisterA, MoveInA, Disable, MoveOutside} << QStringList{"entered"} << move << 0;
        QTest::newRow("registered while hidden: never fires")
            << QList<int>{HideA, RegisterA, ShowA, MoveInA, MoveOutside} << QStringList{} << up << 0;
        QTest::newRow("registered while the page was hidden: never fires")
            << QList<int>{HidePage, RegisterA, ShowPage, MoveInA, MoveOutside} << QStringList{} << up << 0;
        QTest::newRow("registration stays where it was made")
            << QList<int>{RegisterA, MoveADown, MoveInA} << QStringList{"entered"} << move << 0;
    }

    void scripts() {
        QFETCH(QList<int>, steps);
        QFETCH(QStringList, seen);
        QFETCH(int, look);
        QFETCH(int, pagePresses);
        Host h;
        h.show();
        for (const int step : steps) {
            switch (Step(step)) {
            case PressA:
                h.press(inA);
                break;
            case ReleaseA:
                h.release(inA);
                break;
            case ReleaseOutside:
                h.release(outside);
                break;
            case MoveInA:
                h.move(inA);
                break;
            case MoveInsideA:
                h.move(inA + QPoint(3, 3));
                break;
            case MoveOutside:
                h.move(outside);
                break;
            case RegisterA:
                h.a->RegisterHover();
                break;
            case Disable:
                h.a->SetEnable(0);
                break;
            case Enable:
                h.a->SetEnable(1);
                break;
            case HideA:
                h.a->setHidden(true);
                break;
            case ShowA:
                h.a->setHidden(false);
                break;
            case HidePage:
                h.page->setHidden(true);
                break;
            case ShowPage:
                h.page->setHidden(false);
                break;
            case MoveADown:
                h.a->setFrame(MakeNSRect(50, 150, 100, 40));
                break;
            }
        }
        QCOMPARE(Seen(), seen);
        QCOMPARE(int(h.a->look()), look);
        QCOMPARE(h.page->presses, pagePresses);
        for (const Call& c : calls) QCOMPARE(c.button, h.a);
    }

    // Each callback is called with the context given at its own registration.
    void eachCallbackGetsItsOwnContext() {
        Host h;
        h.show();
        h.a->RegisterHover();
        h.move(inA);
        h.press(inA);
        h.release(inA);
        h.move(outside);
        QCOMPARE(calls, (QList<Call>{{QStringLiteral("entered"), &h.ctxB, h.a},
                                     {QStringLiteral("action"), &h.ctxA, h.a},
                                     {QStringLiteral("exited"), &h.ctxC, h.a}}));
    }

    void onlyThePartOnViewIsRegistered() {
        Host h;
        h.a->setFrame(MakeNSRect(350, 50, 100, 40)); // half past the page's right edge
        h.show();
        h.a->RegisterHover();
        h.move(QPoint(380, 70));
        QCOMPARE(h.a->look(), Button::Look::Move);
    }

    void settingPicturesAgainBringsTheButtonToTheFront() {
        Host h;
        h.b->setFrame(MakeNSRect(100, 50, 100, 40)); // overlaps a, on top of it
        h.show();
        h.a->InitImage(QStringLiteral("up2"), QString(), QString(), QStringLiteral("png"), h.page);
        h.press(QPoint(120, 70));
        h.release(QPoint(120, 70));
        QCOMPARE(Seen(), QStringList{"action"});
        QCOMPARE(h.a->geometry(), QRect(50, 50, 100, 40)); // it kept its frame
    }

    void aCallbackThatHidesTheButtonHasTheLastWord() {
        Host h;
        h.a->InitButtonAction(hideOnRelease, nullptr);
        h.show();
        h.press(inA);
        h.release(inA);
        QVERIFY(h.a->isHidden());
    }
};

QTEST_MAIN(TestButton)
#include "tst_button.moc"
