#include "AppHarness.h"
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Sound.h"
#include "NSColor.h"
#include "TrackingRegistry.h"

#include <QTest>

// The laser screen and the face screen, driven through the real window.
namespace {

// What the movement and sound screens' laser tabs do: hide the screen on view, show the laser
// screen, then switch on its hover tracking.
Frame_Lazer* showLazer(AppHarness& app) {
    // Park the pointer on bare background first: the window drops a move to where the pointer
    // already is, and a test's first move would then enter nothing.
    app.moveTo(QPoint(2, 2));
    for (QWidget* screen : app.shownScreens()) screen->setHidden(true);
    Frame_Lazer* lazer = app.root()->frmLazer;
    lazer->setHidden(false);
    lazer->ButtonTrackingOn();
    return lazer;
}

NSImageViewS* field(Frame_Lazer* s, const QString& name) {
    const std::pair<const char*, NSImageViewS*> fields[] = {
        {"imgBackGround", s->imgBackGround},
        {"txtSiteTitle", s->txtSiteTitle},
        {"BtnMoveMent", s->BtnMoveMent},
        {"BtnSound", s->BtnSound},
        {"BtnLazer", s->BtnLazer},
        {"BtnFace", s->BtnFace},
        {"BtnPlay", s->BtnPlay},
        {"txtAnimation", s->txtAnimation},
        {"imgLazerType", s->imgLazerType},
        {"txtLazerDescription", s->txtLazerDescription},
        {"txtLazerTitle", s->txtLazerTitle},
        {"txtLazerTag", s->txtLazerTag},
        {"BtnLazer1", s->BtnLazer1},
        {"BtnLazer2", s->BtnLazer2},
        {"BtnLazer3", s->BtnLazer3},
        {"BtnBack", s->BtnBack},
    };
    for (const auto& [n, view] : fields)
        if (name == QLatin1String(n)) return view;
    return nullptr;
}

Button* configurationButton(Frame_Lazer* s, int number) {
    switch (number) {
    case 1:
        return s->BtnLazer1;
    case 2:
        return s->BtnLazer2;
    case 3:
        return s->BtnLazer3;
    }
    return nullptr;
}

QList<Button*> allButtons(Frame_Lazer* s) {
    return {s->BtnMoveMent, s->BtnSound,  s->BtnLazer,  s->BtnFace, s->BtnPlay,
            s->BtnLazer1,   s->BtnLazer2, s->BtnLazer3, s->BtnBack};
}

// Live hover registrations of all the buttons a screen holds.
int registrations(QWidget* screen) {
    int count = 0;
    for (Button* button : screen->findChildren<Button*>())
        count += TrackingRegistry::instance().registrationCount(button);
    return count;
}

QRectF frameOf(const QWidget* w) {
    return static_cast<const NSViewS*>(w)->frame().toRectF();
}

} // namespace

class TestLazerScreen : public QObject {
    Q_OBJECT
private slots:
    void builtInTableOrderWithTheTabsAfterTheTag() {
        AppHarness app;
        Frame_Lazer* s = app.root()->frmLazer;
        const QList<QWidget*> expected{s->imgBackGround, s->BtnBack,       s->txtLazerDescription,
                                       s->txtSiteTitle,  s->txtLazerTitle, s->BtnLazer1,
                                       s->BtnLazer2,     s->BtnLazer3,     s->txtLazerTag,
                                       s->BtnMoveMent,   s->BtnSound,      s->BtnLazer,
                                       s->BtnFace,       s->BtnPlay,       s->txtAnimation,
                                       s->imgLazerType};
        QList<QWidget*> children;
        for (QObject* c : s->children())
            if (auto* w = qobject_cast<QWidget*>(c)) children << w;
        // children() is the stacking order, lowest first.
        QCOMPARE(children, expected);
        for (QWidget* w : children) QVERIFY(!w->isHidden());
        for (Button* b : allButtons(s)) QCOMPARE(b->bEnable, qint8(1));
        QCOMPARE(s->LazerType, 0);
    }

    void firstShowingHasConfigurationOne() {
        AppHarness app;
        Frame_Lazer* s = showLazer(app);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));
        QCOMPARE(s->LazerType, 0);
        QCOMPARE(s->imgLazerType->imgDefault.name(), QStringLiteral("pim-A"));
    }

    void configurationChoice_data() {
        QTest::addColumn<QList<int>>("presses");
        QTest::addColumn<QList<int>>("types");
        QTest::addColumn<QStringList>("pictures");
        QTest::newRow("3 then 1") << QList<int>{3, 1} << QList<int>{2, 0} << QStringList{"pim-C", "pim-A"};
        QTest::newRow("2") << QList<int>{2} << QList<int>{1} << QStringList{"pim-B"};
        QTest::newRow("1 again") << QList<int>{1} << QList<int>{0} << QStringList{"pim-A"};
        QTest::newRow("2 twice") << QList<int>{2, 2} << QList<int>{1, 1} << QStringList{"pim-B", "pim-B"};
        QTest::newRow("1, 3, 2") << QList<int>{1, 3, 2} << QList<int>{0, 2, 1}
                                 << QStringList{"pim-A", "pim-C", "pim-B"};
    }
    void configurationChoice() {
        QFETCH(QList<int>, presses);
        QFETCH(QList<int>, types);
        QFETCH(QStringList, pictures);

        AppHarness app;
        Frame_Lazer* s = showLazer(app);
        for (int i = 0; i < presses.size(); ++i) {
            Button* button = configurationButton(s, presses[i]);
            app.click(button);
            QCOMPARE(s->LazerType, types[i]);
            QCOMPARE(s->imgLazerType->imgDefault.name(), pictures[i]);
            QCOMPARE(s->imgLazerType->imgDefault.size(), QSizeF(380, 340));
            // The new picture goes into the same view, still on top and in its place.
            QCOMPARE(frameOf(s->imgLazerType), QRectF(540, 326, 380, 340));
            QCOMPARE(s->children().constLast(), static_cast<QObject*>(s->imgLazerType));
            QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));
        }
    }

    void configurationButtonMarksTheChoiceOnlyWhilePressed() {
        AppHarness app;
        Frame_Lazer* s = showLazer(app);
        const QPoint p = app.at(s->BtnLazer2);
        app.moveTo(p);
        QCOMPARE(s->BtnLazer2->shownPictureName(), QStringLiteral("Lazer_enter_2"));
        app.press(p);
        QCOMPARE(s->BtnLazer2->shownPictureName(), QStringLiteral("Lazer_selected_2"));
        QCOMPARE(s->LazerType, 0); // the choice is made on release
        app.release(p);
        QCOMPARE(s->LazerType, 1);
        QCOMPARE(s->BtnLazer2->shownPictureName(), QStringLiteral("Lazer_normal_2"));
        app.moveTo(QPoint(5, 5));
        for (Button* b : {s->BtnLazer1, s->BtnLazer2, s->BtnLazer3}) QCOMPARE(b->look(), Button::Look::Up);
        QCOMPARE(s->BtnLazer2->shownPictureName(), QStringLiteral("Lazer_normal_2"));

        if (qEnvironmentVariableIsSet("ROBOT_SCREENSHOT_DIR"))
            QVERIFY(app.grab(qEnvironmentVariable("ROBOT_SCREENSHOT_DIR") + "/lazer-configuration-2.png"));
    }

    void releasedAfterDraggingOffStillChooses() {
        AppHarness app;
        Frame_Lazer* s = showLazer(app);
        app.moveTo(s->BtnLazer3);
        app.press(app.at(s->BtnLazer3));
        app.moveTo(QPoint(700, 600));
        app.release(QPoint(700, 600));
        QCOMPARE(s->LazerType, 2);
        QCOMPARE(s->imgLazerType->imgDefault.name(), QStringLiteral("pim-C"));
    }

    void routes_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("target");
        QTest::newRow("sound tab") << "BtnSound"
                                   << "sound";
        QTest::newRow("Back") << "BtnBack"
                              << "sound";
        QTest::newRow("movement tab") << "BtnMoveMent"
                                      << "movement";
        QTest::newRow("face tab") << "BtnFace"
                                  << "movement";
        QTest::newRow("play") << "BtnPlay"
                              << "movement";
    }
    void routes() {
        QFETCH(QString, button);
        QFETCH(QString, target);

        AppHarness app;
        Frame_Control* root = app.root();
        Frame_Lazer* s = showLazer(app);
        QWidget* expected = target == "sound" ? static_cast<QWidget*>(root->frmSound)
                                              : static_cast<QWidget*>(root->frmMovement);
        const int before = registrations(expected);

        app.click(field(s, button));

        QCOMPARE(app.shownScreen(), expected);
        QVERIFY(s->isHidden());
        QVERIFY(root->frmFace->isHidden());
        // The screen shown has switched on its hover tracking, which only adds registrations
        // once it is on view; a screen without buttons on view gives nothing to observe.
        bool anyButtonOnView = false;
        for (Button* b : expected->findChildren<Button*>())
            anyButtonOnView = anyButtonOnView || b->isVisible();
        if (anyButtonOnView) QVERIFY(registrations(expected) > before);
    }

    void lazerTabOnlyChangesItsOwnPicture() {
        AppHarness app;
        Frame_Lazer* s = showLazer(app);
        app.click(s->BtnLazer3);
        const QPoint p = app.at(s->BtnLazer);
        app.moveTo(p);
        app.press(p);
        QCOMPARE(s->BtnLazer->look(), Button::Look::Down);
        QCOMPARE(s->BtnLazer->shownPictureName(), QStringLiteral("lazer_over"));
        app.release(p);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));
        QCOMPARE(s->LazerType, 2);
        QCOMPARE(s->imgLazerType->imgDefault.name(), QStringLiteral("pim-C"));
        QVERIFY(s->BtnLazer->ButtonAction == &BtnAction);
    }

    void hoverTrackingOnEveryShowing() {
        AppHarness app;
        Frame_Lazer* s = app.root()->frmLazer;
        // The registration made while the screen was built, out of the window, never fires.
        for (Button* b : allButtons(s)) QCOMPARE(TrackingRegistry::instance().registrationCount(b), 0);
        app.moveTo(app.at(s->BtnLazer1));
        QCOMPARE(s->BtnLazer1->look(), Button::Look::Up);

        showLazer(app);
        for (Button* b : allButtons(s)) QCOMPARE(TrackingRegistry::instance().registrationCount(b), 1);

        app.moveTo(s->BtnLazer3);
        QCOMPARE(s->BtnLazer3->shownPictureName(), QStringLiteral("Lazer_enter_3"));
        app.moveTo(s->BtnMoveMent);
        QCOMPARE(s->BtnLazer3->shownPictureName(), QStringLiteral("Lazer_normal_3"));
        QCOMPARE(s->BtnMoveMent->shownPictureName(), QStringLiteral("movement_over"));
        app.moveTo(QPoint(5, 5));
        QCOMPARE(s->BtnMoveMent->shownPictureName(), QStringLiteral("movement"));

        app.click(s->BtnBack); // away to the sound screen, then shown again
        showLazer(app);
        for (Button* b : allButtons(s)) QCOMPARE(TrackingRegistry::instance().registrationCount(b), 2);
    }

    void choiceKeptWhileHidden() {
        AppHarness app;
        Frame_Lazer* s = showLazer(app);
        app.click(s->BtnLazer3);
        app.click(s->BtnSound);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmSound));
        showLazer(app);
        QCOMPARE(s->LazerType, 2);
        QCOMPARE(s->imgLazerType->imgDefault.name(), QStringLiteral("pim-C"));
    }

    void faceScreenHoldsOnlyTheBackground() {
        AppHarness app;
        Frame_Face* face = app.root()->frmFace;
        QList<QWidget*> children;
        for (QObject* c : face->children())
            if (auto* w = qobject_cast<QWidget*>(c)) children << w;
        QCOMPARE(children, QList<QWidget*>{face->imgBackGround});
        QCOMPARE(frameOf(face->imgBackGround), QRectF(0, 0, 1024, 768));
        QCOMPARE(face->imgBackGround->imgDefault.name(), QStringLiteral("scenario_bg"));
        QCOMPARE(face->imgBackGround->imgDefault.size(), QSizeF(1024, 768));
        QVERIFY(!face->imgBackGround->hasCaption());
        QVERIFY(face->isHidden());
    }

    void noLazerControlShowsTheFaceScreen() {
        AppHarness app;
        Frame_Lazer* s = app.root()->frmLazer;
        for (Button* b : allButtons(s)) {
            showLazer(app);
            app.click(b);
            QVERIFY(app.root()->frmFace->isHidden());
            QVERIFY(app.shownScreen());
        }
    }

    void unfilledRecordLeadsNowhere() {
        // A laser screen outside the root view has an empty record: its tabs must neither crash
        // nor hide it, and its configuration buttons still work.
        QWidget holder;
        auto* screen = new Frame_Lazer(MakeNSRect(0, 0, 1024, 768));
        NSViewS::AddSubview(&holder, screen);
        Frame_Lazer& lazer = *screen;
        for (Button* b : {lazer.BtnSound, lazer.BtnBack, lazer.BtnMoveMent, lazer.BtnFace, lazer.BtnPlay}) {
            b->mouseDown();
            b->mouseUp();
            QVERIFY(!lazer.isHidden());
        }
        lazer.BtnLazer3->mouseDown();
        lazer.BtnLazer3->mouseUp();
        QCOMPARE(lazer.LazerType, 2);
        QCOMPARE(lazer.imgLazerType->imgDefault.name(), QStringLiteral("pim-C"));

        for (ButtonCallback callback :
             {Frame_Lazer_SoundBtnAcion, Frame_Lazer_MovementBtnAcion, Frame_Lazer_BtnFaceBtnAcion,
              Frame_Lazer_BtnPlayBtnAcion, Frame_Lazer_BtnLazer1BtnAcion, Frame_Lazer_BtnLazer2BtnAcion,
              Frame_Lazer_BtnLazer3BtnAcion})
            callback(nullptr, nullptr);
        QCOMPARE(lazer.LazerType, 2);
    }
};

QTEST_MAIN(TestLazerScreen)
#include "tst_lazerscreen.moc"
