#include "NSViewS.h"

#include <QTest>

// Stacking, hiding and the visible rectangle, in a real shown window.
class TestNSViewS : public QObject {
    Q_OBJECT
private slots:
    void addingAgainBringsAChildToTheFront() {
        NSViewS parent(MakeNSRect(0, 0, 100, 100));
        auto* a = new NSViewS(MakeNSRect(0, 0, 10, 10));
        auto* b = new NSViewS(MakeNSRect(0, 0, 10, 10));
        parent.addSubview(a);
        parent.addSubview(b);
        QCOMPARE(parent.children().last(), static_cast<QObject*>(b));
        parent.addSubview(a);
        QCOMPARE(parent.children().last(), static_cast<QObject*>(a));
        QCOMPARE(parent.childAt(5, 5), static_cast<QWidget*>(a));
        parent.addSubview(nullptr); // nothing happens
        parent.addSubview(&parent);
        QCOMPARE(parent.children().size(), 2);
    }

    void childrenHiddenBeforeJoiningStayHiddenTheOthersShow() {
        QWidget window;
        window.resize(200, 200);
        auto* page = new NSViewS(MakeNSRect(0, 0, 200, 200));
        NSViewS::AddSubview(&window, page);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        // Added after the window is shown: Qt would leave both hidden.
        auto* shown = new NSViewS(MakeNSRect(0, 0, 10, 10));
        auto* hidden = new NSViewS(MakeNSRect(0, 0, 10, 10));
        hidden->setHidden(true);
        page->addSubview(shown);
        page->addSubview(hidden);
        QVERIFY(shown->isVisible());
        QVERIFY(hidden->isHidden());
        QVERIFY(!hidden->isVisible());
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
        QCOMPARE(panel->visibleRect(), QRect(0, 0, 50, 50));

        panel->setHidden(true);
        QVERIFY(child->visibleRect().isEmpty());
        panel->setHidden(false);
        child->setFrame(MakeNSRect(60, 60, 10, 10)); // entirely outside its parent
        QVERIFY(child->visibleRect().isEmpty());
    }
};

QTEST_MAIN(TestNSViewS)
#include "tst_nsviews.moc"
