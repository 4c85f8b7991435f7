#include "AppHarness.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "NSColor.h"
#include "TrackingRegistry.h"

#include <QDir>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>

#include <memory>
#include <vector>

Q_DECLARE_METATYPE(NSRect)

char* toString(const NSRect& r) {
    return QTest::toString(r.toRectF());
}

namespace {

using ButtonField = Button* Frame_MoveMent::*;

struct ButtonRow {
    const char* field;
    ButtonField member;
};

// The screen's buttons in field order.
const std::vector<ButtonRow>& Buttons() {
    static const std::vector<ButtonRow> rows{
        {"BtnQuestion", &Frame_MoveMent::BtnQuestion},
        {"BtnMoveMent", &Frame_MoveMent::BtnMoveMent},
        {"BtnSound", &Frame_MoveMent::BtnSound},
        {"BtnLazer", &Frame_MoveMent::BtnLazer},
        {"BtnFace", &Frame_MoveMent::BtnFace},
        {"BtnPlay", &Frame_MoveMent::BtnPlay},
        {"BtnMoveUp", &Frame_MoveMent::BtnMoveUp},
        {"BtnMoveLeft", &Frame_MoveMent::BtnMoveLeft},
        {"BtnMoveDown", &Frame_MoveMent::BtnMoveDown},
        {"BtnMoveRight", &Frame_MoveMent::BtnMoveRight},
        {"BtnTurnRight", &Frame_MoveMent::BtnTurnRight},
        {"BtnTrunLeft", &Frame_MoveMent::BtnTrunLeft},
        {"BtnCircleLeft", &Frame_MoveMent::BtnCircleLeft},
        {"BtnCircleRight", &Frame_MoveMent::BtnCircleRight},
        {"BtnStop", &Frame_MoveMent::BtnStop},
        {"BtnSelectBar", &Frame_MoveMent::BtnSelectBar},
        {"BtnArrowUp", &Frame_MoveMent::BtnArrowUp},
        {"BtnArrowLeft", &Frame_MoveMent::BtnArrowLeft},
        {"BtnArrowDown", &Frame_MoveMent::BtnArrowDown},
        {"BtnArrowRight", &Frame_MoveMent::BtnArrowRight},
        {"BtnErase", &Frame_MoveMent::BtnErase},
        {"BtnRetPlay", &Frame_MoveMent::BtnRetPlay},
        {"BtnBack", &Frame_MoveMent::BtnBack},
    };
    return rows;
}

ButtonField Field(const QString& name) {
    for (const ButtonRow& row : Buttons())
        if (name == QLatin1String(row.field)) return row.member;
    return nullptr;
}

QWidget* ScreenNamed(Frame_Control* root, const QString& name) {
    if (name == "main menu") return root->frmMainMenu;
    if (name == "sound") return root->frmSound;
    if (name == "laser") return root->frmLazer;
    return nullptr;
}

// Counts the presses a widget itself is offered.
class PressSpy : public QObject {
public:
    int presses = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) ++presses;
        return false;
    }
};

} // namespace

// The movement screen in the real window, driven by the mouse.
class TestMovementScreen : public QObject {
    Q_OBJECT

    // Opens the movement screen from the main menu, clicking through the way in named.
    static Frame_MoveMent* Open(AppHarness& app, const QString& way) {
        Frame_Control* root = app.root();
        Frame_MoveMent* movement = root->frmMovement;
        if (!app.waitForMainMenuReady()) return nullptr;
        if (app.shownScreen() == root->frmMainMenu) app.click(root->frmMainMenu->BtnProgram);
        if (app.shownScreen() != root->frmScenario) return nullptr;
        if (way == "scenario Create") {
            app.click(root->frmScenario->BtnCreate);
            QTest::keyClicks(root->frmScenario->txtScenarioName, QStringLiteral("Walk"));
            app.click(root->frmScenario->BtnNewCreate);
            return movement;
        }
        app.click(root->frmScenario->BtnModify);
        app.click(root->frmScenario->BtnGo);
        if (way == "scenario Go" || app.shownScreen() != movement) return movement;
        if (way.startsWith("sound")) {
            app.click(movement->BtnSound);
            Frame_Sound* sound = root->frmSound;
            app.click(
                sound->BtnButton[way == "sound Back" ? Frame_Sound::kBtnBack : Frame_Sound::kBtnMoveMent]);
            return movement;
        }
        app.click(movement->BtnLazer);
        Frame_Lazer* lazer = root->frmLazer;
        if (way == "laser movement tab") app.click(lazer->BtnMoveMent);
        if (way == "laser face tab") app.click(lazer->BtnFace);
        if (way == "laser play") app.click(lazer->BtnPlay);
        return movement;
    }

    // One window, opened through the sound screen's Back, for the tests that leave the screen
    // as they found it.
    AppHarness& Shared() {
        if (!m_shared) {
            m_shared = std::make_unique<AppHarness>();
            Open(*m_shared, "sound Back");
        }
        return *m_shared;
    }
    std::unique_ptr<AppHarness> m_shared;

private slots:
    void cleanupTestCase() { m_shared.reset(); }

    void widgetsInCreationOrder() {
        AppHarness app;
        Frame_MoveMent* screen = app.root()->frmMovement;
        QList<QWidget*> expected{screen->imgBackGround};
        for (NSImageViewS* caption : screen->txtString) expected << caption;
        for (const ButtonRow& row : Buttons()) expected << screen->*row.member;
        expected << screen->PathInfo.frmPath;
        QList<QWidget*> children;
        for (QObject* c : screen->children())
            if (auto* w = qobject_cast<QWidget*>(c)) children << w;
        QCOMPARE(children, expected); // stacking order: the path view on top of everything
        QVERIFY(!screen->textText);
        QCOMPARE(screen->imgBackGround->frame(), MakeNSRect(0, 0, 1024, 768));
        QCOMPARE(screen->imgBackGround->imgDefault.name(), QStringLiteral("scenario_bg"));
        QCOMPARE(screen->imgBackGround->imgDefault.size(), QSizeF(1024, 768));
    }

    void actionsWithTheScreenAsContext() {
        AppHarness app;
        Frame_MoveMent* s = app.root()->frmMovement;
        const std::vector<std::pair<Button*, ButtonCallback>> acting{
            {s->BtnSound, &Frame_Movement_SoundBtnAcion},
            {s->BtnBack, &Frame_Movement_BackBtnAcion},
            {s->BtnLazer, &Frame_Movement_LazerBtnAcion},
            {s->BtnMoveUp, &Frame_Movement_MoveUpBtnAcion},
            {s->BtnMoveLeft, &Frame_Movement_MoveLeftBtnAcion},
            {s->BtnMoveDown, &Frame_Movement_MoveDownBtnAcion},
            {s->BtnMoveRight, &Frame_Movement_MoveRightBtnAcion},
            {s->BtnTurnRight, &Frame_Movement_TrunRightBtnAcion},
            {s->BtnTrunLeft, &Frame_Movement_TurnLeftBtnAcion},
            {s->BtnCircleLeft, &Frame_Movement_CircleLeftBtnAcion},
            {s->BtnCircleRight, &Frame_Movement_CircleRightBtnAcion},
            {s->BtnStop, &Frame_Movement_StopBtnAcion},
        };
        for (const auto& [button, callback] : acting) {
            QVERIFY(button->ButtonAction == callback);
            QCOMPARE(button->frmControl[0], static_cast<void*>(s));
        }
        for (Button* idle :
             {s->BtnQuestion, s->BtnMoveMent, s->BtnFace, s->BtnPlay, s->BtnSelectBar, s->BtnArrowUp,
              s->BtnArrowLeft, s->BtnArrowDown, s->BtnArrowRight, s->BtnErase, s->BtnRetPlay}) {
            QVERIFY(idle->ButtonAction == &BtnAction);
            QVERIFY(!idle->frmControl[0]);
        }
    }

    // Every way into the screen, and every way out.
    void navigation_data() {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("to");
        for (const char* way : {"scenario Create", "scenario Go", "sound movement tab", "sound Back",
                                "laser movement tab", "laser face tab", "laser play"}) {
            QTest::addRow("%s, then sound tab", way) << way << "BtnSound"
                                                     << "sound";
            QTest::addRow("%s, then laser tab", way) << way << "BtnLazer"
                                                     << "laser";
            QTest::addRow("%s, then Back", way) << way << "BtnBack"
                                                << "main menu";
        }
    }
    void navigation() {
        QFETCH(QString, way);
        QFETCH(QString, control);
        QFETCH(QString, to);
        AppHarness app;
        Frame_Control* root = app.root();
        Frame_MoveMent* screen = Open(app, way);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        // One button of each screen the movement screen leads to tells when its hover comes on.
        const std::vector<std::pair<QString, Button*>> watched{
            {"main menu", root->frmMainMenu->BtnProgram},
            {"sound", root->frmSound->BtnButton[Frame_Sound::kBtnMoveMent]},
            {"laser", root->frmLazer->BtnMoveMent},
        };
        std::vector<int> before;
        for (const auto& w : watched)
            before.push_back(TrackingRegistry::instance().registrationCount(w.second));

        app.click(screen->*Field(control));

        QCOMPARE(app.shownScreen(), ScreenNamed(root, to));
        QVERIFY(screen->isHidden());
        // The screen shown gets its hover registrations once more; the others none.
        for (size_t i = 0; i < watched.size(); ++i)
            QCOMPARE(TrackingRegistry::instance().registrationCount(watched[i].second),
                     before[i] + (watched[i].first == to ? 1 : 0));
    }

    // The press shows the pressed picture, the release the resting one; nothing else moves.
    void pressChangesOnlyTheButtonsOwnPicture_data() {
        QTest::addColumn<QString>("field");
        for (const char* field :
             {"BtnMoveUp",    "BtnMoveLeft",   "BtnMoveDown",    "BtnMoveRight", "BtnTurnRight",
              "BtnTrunLeft",  "BtnCircleLeft", "BtnCircleRight", "BtnStop",      "BtnQuestion",
              "BtnMoveMent",  "BtnFace",       "BtnPlay",        "BtnSelectBar", "BtnArrowUp",
              "BtnArrowLeft", "BtnArrowDown",  "BtnArrowRight",  "BtnErase",     "BtnRetPlay"})
            QTest::newRow(field) << QString::fromLatin1(field);
    }
    void pressChangesOnlyTheButtonsOwnPicture() {
        QFETCH(QString, field);
        AppHarness& app = Shared();
        Frame_MoveMent* screen = app.root()->frmMovement;
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        Button* pressed = screen->*Field(field);
        // A point of the button that the path view does not cover.
        const QPoint at = app.at(pressed, QPoint(pressed->width() / 2, pressed->height() - 2));

        app.moveTo(at);
        app.press(at);
        QCOMPARE(pressed->look(), Button::Look::Down);
        QCOMPARE(pressed->shownPictureName(), pressed->BtnImageDown.name());
        for (const ButtonRow& row : Buttons())
            if (screen->*row.member != pressed) QCOMPARE((screen->*row.member)->look(), Button::Look::Up);

        app.release(at);
        QCOMPARE(pressed->look(), Button::Look::Up);
        QCOMPARE(pressed->shownPictureName(), pressed->BtnImageUp.name());
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        QCOMPARE(screen->PathInfo.iItemCnt, 0);
        QVERIFY(screen->PathInfo.frmPath->children().isEmpty());
    }

    // The path view lies over the top of the small arrows: presses there are the path view's.
    void pressUnderThePathViewReachesThePathView_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QPoint>("local");
        QTest::addColumn<bool>("covered");
        QTest::newRow("up, top") << "BtnArrowUp" << QPoint(18, 10) << true;
        QTest::newRow("up, last covered row") << "BtnArrowUp" << QPoint(18, 35) << true;
        QTest::newRow("up, bottom rows") << "BtnArrowUp" << QPoint(18, 36) << false;
        QTest::newRow("left, top") << "BtnArrowLeft" << QPoint(18, 5) << true;
        QTest::newRow("left, below the path view") << "BtnArrowLeft" << QPoint(18, 20) << false;
        QTest::newRow("right, top-left corner") << "BtnArrowRight" << QPoint(3, 5) << true;
        QTest::newRow("right, top beside the corner") << "BtnArrowRight" << QPoint(12, 5) << false;
        QTest::newRow("down, not covered") << "BtnArrowDown" << QPoint(18, 2) << false;
    }
    void pressUnderThePathViewReachesThePathView() {
        QFETCH(QString, field);
        QFETCH(QPoint, local);
        QFETCH(bool, covered);
        AppHarness& app = Shared();
        Frame_MoveMent* screen = app.root()->frmMovement;
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        Button* button = screen->*Field(field);
        PressSpy spy;
        screen->PathInfo.frmPath->installEventFilter(&spy);

        const QPoint at = app.at(button, local);
        app.moveTo(at);
        // Hover still reaches the covered part: the registration is the button's whole rectangle.
        const Button::Look pointedAt = button->look();
        app.press(at);
        QCOMPARE(spy.presses, covered ? 1 : 0);
        QCOMPARE(button->look(), covered ? pointedAt : Button::Look::Down);
        app.release(at);
        QCOMPARE(button->look(), covered ? pointedAt : Button::Look::Up);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
    }

    void hoverOnlyAfterTheScreenIsShown() {
        AppHarness app;
        Frame_Control* root = app.root();
        Frame_MoveMent* screen = root->frmMovement;
        QVERIFY(app.waitForMainMenuReady());
        // Shown without its hover registrations, nothing reacts to pointing.
        root->frmMainMenu->setHidden(true);
        screen->setHidden(false);
        app.moveTo(screen->BtnStop);
        QCOMPARE(screen->BtnStop->look(), Button::Look::Up);
        screen->setHidden(true);
        root->frmMainMenu->setHidden(false);

        QCOMPARE(Open(app, "laser face tab"), screen);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        app.moveTo(screen->BtnStop);
        QCOMPARE(screen->BtnStop->look(), Button::Look::Move);
        QCOMPARE(screen->BtnStop->shownPictureName(), QStringLiteral("ButtonArrowStop_focus"));
        app.moveTo(screen->BtnMoveMent);
        QCOMPARE(screen->BtnStop->look(), Button::Look::Up);
        QCOMPARE(screen->BtnMoveMent->shownPictureName(), QStringLiteral("movement_over"));
    }

    void eachShowingAddsOneRegistrationPerButton() {
        AppHarness app;
        Frame_Control* root = app.root();
        Frame_MoveMent* screen = Open(app, "scenario Go");
        auto expectRegistrations = [&](int count) {
            QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
            for (const ButtonRow& row : Buttons())
                QCOMPARE(TrackingRegistry::instance().registrationCount(screen->*row.member), count);
        };
        expectRegistrations(1);
        app.click(screen->BtnSound);
        app.click(root->frmSound->BtnButton[Frame_Sound::kBtnMoveMent]);
        expectRegistrations(2);
        app.click(screen->BtnLazer);
        app.click(root->frmLazer->BtnPlay);
        expectRegistrations(3);
    }

    // The path is drawn into the path view and clipped by it; it stays across showings.
    void aDozenCommandsDrawnIntoThePathView() {
        AppHarness app;
        Frame_Control* root = app.root();
        Frame_MoveMent* screen = Open(app, "scenario Create");
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        app.moveTo(QPoint(2, 2));
        QVERIFY(app.grab(QDir::temp().filePath("movement-screen.png")));

        const QList<int> commands{2, 0, 3, 4, 0, 3, 0, 1, 3, 0, 5, 6};
        const QList<NSRect> frames{{0, 307, 46, 42},     {46, 257, 66, 73},    {63, 212, 45, 45},
                                   {108, 152, 106, 105}, {214, 185, 66, 73},   {231, 140, 45, 45},
                                   {276, 112, 66, 73},   {282, 70, 45, 42},    {237, 32, 45, 45},
                                   {282, 4, 66, 73},     {227, -99, 106, 103}, {194, -102.5f, 33, 33}};
        for (int command : commands) screen->SetPath(command);
        QCOMPARE(screen->PathInfo.iItemCnt, 12);
        for (int i = 0; i < frames.size(); ++i) {
            NSImageViewS* piece = screen->PathInfo.Item[i].PathImg;
            QVERIFY(piece->frame() == frames[i]);
            QCOMPARE(piece->parentWidget(), static_cast<QWidget*>(screen->PathInfo.frmPath));
            QVERIFY(piece->isVisible());
        }
        // The path view cuts off what lies outside it: of the wide turn only the lowest rows show,
        // the circle above it not at all.
        QCOMPARE(NSViewS::VisibleRect(screen->PathInfo.Item[10].PathImg), QRect(0, 99, 106, 4));
        QVERIFY(NSViewS::VisibleRect(screen->PathInfo.Item[11].PathImg).isEmpty());

        app.click(screen->BtnSound);
        app.click(root->frmSound->BtnButton[Frame_Sound::kBtnBack]);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(screen));
        QCOMPARE(screen->PathInfo.iItemCnt, 12);
        QVERIFY(screen->PathInfo.Item[11].PathImg->isVisible());
        QVERIFY(app.grab(QDir::temp().filePath("movement-path.png")));
    }
};

QTEST_MAIN(TestMovementScreen)
#include "tst_movementscreen.moc"
