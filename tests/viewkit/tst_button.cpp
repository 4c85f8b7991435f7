#include "Button.h"
#include "TrackingRegistry.h"

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
    }
    QWindow* w() { return window.windowHandle(); }
    void move(QPoint p) { QTest::mouseMove(w(), p); }
    void press(QPoint p) { QTest::mousePress(w(), Qt::LeftButton, Qt::NoModifier, p); }
    void release(QPoint p) { QTest::mouseRelease(w(), Qt::LeftButton, Qt::NoModifier, p); }
};

const QPoint inA(100, 70), outside(200, 200);
} // namespace

class TestButton : public QObject {
    Q_OBJECT
private slots:
    void newButtonsHaveDoNothingDefaults() {
        Button b(MakeNSRect(0, 0, 10, 10));
        QCOMPARE(b.bEnable, qint8(1));
        QVERIFY(b.ButtonAction == &BtnAction && b.ButtonEntered == &BtnEntered &&
                b.ButtonExited == &BtnExited);
        b.mouseUp(); // the default does nothing, and that is all
        b.mouseEntered();
        b.mouseExited();
        QCOMPARE(b.look(), Button::Look::Up);
        b.InitButtonAction(nullptr, nullptr); // no callback: back to the default
        QVERIFY(b.ButtonAction == &BtnAction);
    }

    void pressShowsDownReleaseShowsUpAndActsOnce() {
        Host h;
        h.show();
        h.press(inA);
        QCOMPARE(h.a->shownPictureName(), QStringLiteral("down"));
        QVERIFY(calls.isEmpty());
        h.release(inA);
        QCOMPARE(h.a->shownPictureName(), QStringLiteral("up"));
        QCOMPARE(calls, (QList<Call>{{QStringLiteral("action"), &h.ctxA, h.a}}));
    }

    void releaseAfterDraggingOffStillActs() {
        Host h;
        h.show();
        h.press(inA);
        h.move(outside);
        QCOMPARE(h.a->shownPictureName(), QStringLiteral("down")); // no dragging feedback
        h.release(outside);
        QCOMPARE(h.a->look(), Button::Look::Up);
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first().what, QStringLiteral("action"));
        QCOMPARE(h.page->presses, 0);
    }

    void eachCallbackGetsTheContextOfItsOwnRegistration() {
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
        // A later registration of the same kind replaces the callback and its context.
        h.a->InitButtonAction(onAction, &h.ctxC);
        h.move(inA);
        calls.clear();
        h.press(inA);
        h.release(inA);
        QCOMPARE(calls, (QList<Call>{{QStringLiteral("action"), &h.ctxC, h.a}}));
    }

    void aDisabledButtonIgnoresTheMouseEntirely() {
        Host h;
        h.show();
        h.a->RegisterHover();
        h.a->SetEnable(0);
        h.move(inA);
        h.press(inA);
        QCOMPARE(h.a->look(), Button::Look::Up);
        h.release(inA);
        h.move(outside);
        QVERIFY(calls.isEmpty());
        QCOMPARE(h.page->presses, 1); // the press went through to the page behind

        // Enabled again, all four reactions come back without a new registration.
        h.a->SetEnable(1);
        h.move(inA);
        QCOMPARE(h.a->look(), Button::Look::Move);
        h.press(inA);
        QCOMPARE(h.a->look(), Button::Look::Down);
        h.release(inA);
        h.move(outside);
        QCOMPARE(calls.size(), 3);
        QCOMPARE(h.a->look(), Button::Look::Up);
    }

    void disablingKeepsThePictureShown() {
        Host h;
        h.show();
        h.a->RegisterHover();
        h.move(inA);
        h.a->SetEnable(0);
        h.move(outside);
        QCOMPARE(h.a->look(), Button::Look::Move);
    }

    void withoutRegistrationPointingChangesNothing() {
        Host h;
        h.show();
        h.move(inA);
        h.move(outside);
        QCOMPARE(h.a->look(), Button::Look::Up);
        QVERIFY(calls.isEmpty());
    }

    void oneEventPerRegistration() {
        Host h;
        h.show();
        h.a->RegisterHover();
        h.a->RegisterHover();
        QCOMPARE(TrackingRegistry::instance().registrationCount(h.a), 2);
        h.move(inA);
        QCOMPARE(h.a->shownPictureName(), QStringLiteral("move"));
        h.move(inA + QPoint(3, 3)); // moving inside is not a new enter
        h.move(outside);
        QStringList seen;
        for (const Call& c : calls) seen << c.what;
        QCOMPARE(seen, (QStringList{"entered", "entered", "exited", "exited"}));
    }

    void registrationsMadeWhileNotOnViewNeverFire() {
        Host h;
        h.a->RegisterHover(); // before the window is on screen
        h.show();
        h.b->InitButtonEntered(onEntered, &h.ctxA);
        h.b->setHidden(true);
        h.b->RegisterHover(); // while hidden
        h.b->setHidden(false);
        h.page->setHidden(true);
        h.a->RegisterHover(); // while its parent is hidden
        h.page->setHidden(false);
        QCOMPARE(TrackingRegistry::instance().registrationCount(h.a), 0);
        h.move(inA);
        h.move(QPoint(300, 70));
        h.move(outside);
        QVERIFY(calls.isEmpty());
        QCOMPARE(h.a->look(), Button::Look::Up);
        QCOMPARE(h.b->look(), Button::Look::Up);
    }

    void registrationsStayWhereTheyWereMade() {
        Host h;
        h.show();
        h.a->RegisterHover();
        h.a->setFrame(MakeNSRect(50, 150, 100, 40));
        h.move(QPoint(100, 170)); // the button's new place
        QVERIFY(calls.isEmpty());
        h.move(inA); // where it was registered
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first().what, QStringLiteral("entered"));
    }

    void onlyThePartOnViewIsRegistered() {
        Host h;
        h.a->setFrame(MakeNSRect(350, 50, 100, 40)); // half past the page's right edge
        h.show();
        h.a->RegisterHover();
        h.move(QPoint(380, 70));
        QCOMPARE(h.a->look(), Button::Look::Move);
        h.move(outside);
        QCOMPARE(h.a->look(), Button::Look::Up);
    }

    void nullPictureNamesShowNothingInThoseStates() {
        Host h;
        h.a->InitImage(QStringLiteral("up"), QString(), QString(), QStringLiteral("png"), h.page);
        h.show();
        h.a->RegisterHover();
        h.move(inA);
        QVERIFY(h.a->shownPicture().isNull());
        QVERIFY(h.a->shownPictureName().isEmpty());
        h.press(inA);
        QVERIFY(h.a->shownPictureName().isEmpty());
        h.release(inA);
        QCOMPARE(h.a->shownPictureName(), QStringLiteral("up"));
    }

    void settingPicturesAgainBringsTheButtonToTheFront() {
        Host h;
        h.b->setFrame(MakeNSRect(100, 50, 100, 40)); // overlaps a, on top of it
        h.b->InitButtonAction(onAction, &h.ctxB);
        h.show();
        h.press(QPoint(120, 70));
        h.release(QPoint(120, 70));
        QCOMPARE(calls.last().button, h.b);
        h.a->InitImage(QStringLiteral("up2"), QString(), QString(), QStringLiteral("png"), h.page);
        h.press(QPoint(120, 70));
        h.release(QPoint(120, 70));
        QCOMPARE(calls.last().button, h.a);
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
