#include "AppHarness.h"
#include "AppInvariants.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "MonkeyRun.h"
#include "Picture.h"

#include <QImage>
#include <QLineEdit>
#include <QTest>

#include <memory>

namespace {

// Routes through the application, each passing the pictures of its row.
enum Walk { MenuAndBack, ListChoice, Confirmation, SoundChoices, LazerChoice };

// Views that asked for the picture, whether or not it is there.
QList<NSImageViewS*> ViewsAskingFor(const Frame_Control* root, const QString& name) {
    QList<NSImageViewS*> views;
    for (NSImageViewS* v : root->findChildren<NSImageViewS*>()) {
        bool asks = v->imgDefault.name() == name;
        if (const auto* b = qobject_cast<const Button*>(v))
            asks = asks || b->BtnImageUp.name() == name || b->BtnImageMove.name() == name ||
                   b->BtnImageDown.name() == name;
        if (asks) views << v;
    }
    return views;
}

bool HasPictureOf(const NSImageViewS* v, const QString& name) {
    if (v->imgDefault.name() == name && !v->imgDefault.isNull()) return true;
    if (const auto* b = qobject_cast<const Button*>(v))
        for (const Picture* p : {&b->BtnImageUp, &b->BtnImageMove, &b->BtnImageDown})
            if (p->name() == name && !p->isNull()) return true;
    return false;
}

QPoint Centre(AppHarness& app, QWidget* w) {
    return app.at(w);
}

// What the view draws by itself, on a transparent ground.
QImage Drawn(QWidget* view) {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// What a view of the same size and caption draws without any picture.
QImage DrawnWithoutPicture(const NSImageViewS* view) {
    std::unique_ptr<NSImageViewS> twin;
    if (qobject_cast<const Button*>(view))
        twin = std::make_unique<Button>(view->frame());
    else
        twin = std::make_unique<NSImageViewS>(view->frame());
    twin->Text = view->Text;
    return Drawn(twin.get());
}

// Whether the picture the view draws now is the one asked for.
bool ShowsPictureNamed(const NSImageViewS* v, const QString& name) {
    if (const auto* b = qobject_cast<const Button*>(v)) return b->shownPictureName() == name;
    return v->imgDefault.name() == name;
}

void Run(AppHarness& app, Walk route) {
    Frame_Control* root = app.root();
    Frame_MainMenu* menu = root->frmMainMenu;
    switch (route) {
    case MenuAndBack: {
        app.click(menu->BtnProgram);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmScenario));
        app.click(root->frmScenario->BtnBack);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(menu));
        return;
    }
    case ListChoice: {
        Frame_Scenario* s = root->frmScenario;
        app.click(menu->BtnProgram);
        app.click(s->BtnModify);
        app.click(s->BtnDownList);
        app.click(s->BtnDownList);
        app.click(s->BtnScenarioName[5]);
        QCOMPARE(s->indexChoose, 5);
        QCOMPARE(s->indexShow, 5);
        QVERIFY(s->BtnScenarioName[5]->isVisible());
        return;
    }
    case Confirmation: {
        Frame_Alarm* a = root->frmAlarm;
        app.click(menu->BtnAlarm);
        app.click(a->BtnBirthdayStatus);
        app.click(a->BtnBirthdayOn);
        app.click(a->BtnDone);
        QVERIFY(a->frmDoneView->isVisible());
        // The page still covers the screen and takes the clicks, picture or not.
        app.click(Centre(app, a->BtnBack));
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(a));
        QVERIFY(
            QTest::qWaitFor([a] { return a->frmDoneView->isHidden(); }, 2 * AlarmFlow::kConfirmationMs));
        QVERIFY(a->frmChooseView->isVisible());
        QCOMPARE(a->BtnBirthdayStatus->captionText(), QStringLiteral("Birthday alarm:On"));
        return;
    }
    case SoundChoices: {
        Frame_Scenario* s = root->frmScenario;
        app.click(menu->BtnProgram);
        app.click(s->BtnCreate);
        app.click(s->txtScenarioName);
        QTest::keyClick(app.handle(), Qt::Key_A);
        app.click(s->BtnNewCreate);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmMovement));
        app.click(root->frmMovement->BtnSound);
        Frame_Sound* sound = root->frmSound;
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(sound));
        for (int i : {10, 14, 21}) app.click(sound->BtnButton[i]);
        QCOMPARE(sound->SoundContent.iItemNum, 3);
        QCOMPARE(sound->iCurSoundSet, 21);
        return;
    }
    case LazerChoice: {
        app.click(menu->BtnProgram);
        app.click(root->frmScenario->BtnModify);
        app.click(root->frmScenario->BtnGo);
        app.click(root->frmMovement->BtnLazer);
        Frame_Lazer* lazer = root->frmLazer;
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(lazer));
        app.click(lazer->BtnLazer2);
        QCOMPARE(lazer->LazerType, 1);
        app.click(lazer->BtnBack);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmSound));
        return;
    }
    }
}

} // namespace

// A picture missing from the resources: the views that should show it show nothing, and the
// application does everything else as before.
class TestMissingPicture : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { Picture::HideForTests({}); }

    void missingPictureShowsNothing_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("route");
        QTest::newRow("main menu background") << "mainpage_bg" << int(MenuAndBack);
        QTest::newRow("the sliding robot") << "logo_main" << int(MenuAndBack);
        QTest::newRow("Program scenario at rest") << "command_normal_menus" << int(MenuAndBack);
        QTest::newRow("highlight bar") << "long bar" << int(ListChoice);
        QTest::newRow("confirmation page, the one jpg") << "Pim_confirmation" << int(Confirmation);
        QTest::newRow("the common small button") << "but_normal_Btn01" << int(SoundChoices);
        QTest::newRow("timeline link bar") << "smallbarH" << int(SoundChoices);
        QTest::newRow("second robot configuration") << "pim-B" << int(LazerChoice);
    }

    void missingPictureShowsNothing() {
        QFETCH(QString, name);
        QFETCH(int, route);
        Picture::HideForTests({name});
        AppHarness app;
        Frame_Control* root = app.root();
        const AppInvariants invariants(root);
        QVERIFY(app.waitForMainMenuReady());

        Run(app, Walk(route));
        if (QTest::currentTestFailed()) return;
        QCOMPARE(invariants.check(), QStringList());

        const QList<NSImageViewS*> views = ViewsAskingFor(root, name);
        QVERIFY2(!views.isEmpty(), "no view asked for the picture: the route missed it");
        int compared = 0;
        for (NSImageViewS* v : views) {
            QVERIFY(!HasPictureOf(v, name));
            if (!ShowsPictureNamed(v, name)) continue;
            // Drawn alone, the view shows its caption, if it has one, and nothing else.
            QVERIFY2(Drawn(v) == DrawnWithoutPicture(v),
                     qPrintable(QStringLiteral("a view drew something at (%1, %2)").arg(v->x()).arg(v->y())));
            ++compared;
            // In the window, a view on view without a caption leaves it as if the view were hidden.
            if (!v->isVisible() || v->hasCaption()) continue;
            const QRect area(v->mapTo(app.window(), QPoint(0, 0)), v->size());
            const QImage with = app.window()->grab(area).toImage();
            v->setHidden(true);
            const QImage without = app.window()->grab(area).toImage();
            v->setHidden(false);
            QVERIFY(with == without);
        }
        QVERIFY2(compared > 0, "no view was showing the missing picture");
    }

    // Random input with a picture missing finds nothing the full set of pictures would not.
    void monkeyWithAMissingPicture_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("highlight bar") << "long bar";
        QTest::newRow("the common small button") << "but_normal_Btn01";
    }

    void monkeyWithAMissingPicture() {
        QFETCH(QString, name);
        Picture::HideForTests({name});
        const MonkeyResult result = RunMonkey(7, 300);
        QVERIFY2(result.ok(), qPrintable(result.summary()));
    }

    // The hook hides only what it was given, and only until it is cleared.
    void otherPicturesStillShow() {
        Picture::HideForTests({QStringLiteral("mainpage_bg")});
        QVERIFY(Picture::Lookup(QStringLiteral("mainpage_bg"), QStringLiteral("png")).isNull());
        QVERIFY(!Picture::Lookup(QStringLiteral("logo_main"), QStringLiteral("png")).isNull());
        Picture::HideForTests({});
        QVERIFY(!Picture::Lookup(QStringLiteral("mainpage_bg"), QStringLiteral("png")).isNull());
    }
};

QTEST_MAIN(TestMissingPicture)
#include "tst_missingpicture.moc"
