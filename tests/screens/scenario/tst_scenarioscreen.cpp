#include "AppHarness.h"
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "NSColor.h"
#include "ScenarioSequences.h"
#include "TrackingRegistry.h"

#include <QLineEdit>
#include <QTest>

namespace {

const QPoint kEmptySpot(980, 40); // on the background, away from every button

// Opens the scenario screen the way the user does, from the main menu.
Frame_Scenario* OpenScenario(AppHarness& app) {
    if (!app.waitForMainMenuReady()) return nullptr;
    app.click(app.root()->frmMainMenu->BtnProgram);
    return app.root()->frmScenario;
}

bool HasBar(const Button* row) {
    return row->BtnImageUp.name() == QLatin1String("long bar") &&
           row->BtnImageMove.name() == QLatin1String("long bar") &&
           row->BtnImageDown.name() == QLatin1String("long bar");
}

bool HasNoPictures(const Button* row) {
    return row->BtnImageUp.name().isEmpty() && row->BtnImageMove.name().isEmpty() &&
           row->BtnImageDown.name().isEmpty();
}

void Perform(AppHarness& app, Frame_Scenario* s, const ListStep& step) {
    switch (step.kind) {
    case ListStep::Up:
        app.click(s->BtnUpList);
        return;
    case ListStep::Down:
        app.click(s->BtnDownList);
        return;
    case ListStep::Remove:
        app.click(s->BtnX);
        return;
    case ListStep::Row:
        app.click(s->BtnScenarioName[step.row]);
        return;
    }
}

// Keys go in at the window, to whatever has the keyboard focus.
void TypeKey(AppHarness& app, Qt::Key key) {
    QTest::keyClick(app.handle(), key, Qt::NoModifier);
}

} // namespace

class TestScenarioScreen : public QObject {
    Q_OBJECT
private slots:
    void opensInTheChoiceState() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));
        QVERIFY(s->frmCreateScenarioView->isHidden());
        QVERIFY(s->frmLoadScenarioView->isHidden());
        for (QWidget* w :
             std::initializer_list<QWidget*>{s->imgBackGround, s->BtnBack, s->txtAlarmDescription,
                                             s->txtSiteTitle, s->txtScenarioAct, s->BtnCreate, s->BtnModify})
            QVERIFY(w->isVisible());
        QCOMPARE(s->BtnBack->geometry(), QRect(714, 711, 85, 40));
        QCOMPARE(s->BtnCreate->geometry(), QRect(95, 350, 326, 46));
        QCOMPARE(s->BtnModify->geometry(), QRect(95, 421, 326, 46));
        QCOMPARE(s->frmCreateScenarioView->geometry(), QRect(534, 339, 372, 75));
        QCOMPARE(s->frmLoadScenarioView->geometry(), QRect(518, 290, 414, 351));
        QCOMPARE(s->txtScenarioName->geometry(), QRect(17, 35, 193, 20));
        QVERIFY(!s->txtScenarioName->hasFrame());
        QCOMPARE(s->txtSiteTitle->captionText(), QStringLiteral("Program/"));
        QCOMPARE(s->txtSiteTitle->captionColor(), NSColor::grayColor());
        QCOMPARE(s->txtScenarioAct->captionText(), QStringLiteral("Choose an action:"));
        QCOMPARE(s->txtAlarmDescription->captionText(),
                 QStringLiteral(
                     "You can creat a new\nscenario with your\nown movements,\nsounds, laser beats\nand "
                     "faces or modify\nan existing scenario."));
        QCOMPARE(s->BtnModify->captionText(), QStringLiteral("Modify exist scenario"));
        QCOMPARE(s->BtnNewCreate->captionText(), QStringLiteral("Create"));
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(0));
        for (int r = 0; r < 7; ++r) {
            QCOMPARE(s->BtnScenarioName[r]->geometry(), QRect(0, 36 * r, 414, 39));
            QCOMPARE(s->BtnScenarioName[r]->captionColor(), NSColor::whiteColor());
            QCOMPARE(s->BtnScenarioName[r]->Text.rectFrame, MakeNSRect(12, 8, 111, 39));
        }
        for (Button* b : {s->BtnUpList, s->BtnDownList, s->BtnX, s->BtnGo}) QCOMPARE(b->y(), 328);
    }

    void hoverWorksOnlyAfterModify() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        app.moveTo(kEmptySpot);
        app.moveTo(s->BtnCreate);
        QCOMPARE(s->BtnCreate->look(), Button::Look::Up);
        app.moveTo(s->BtnBack);
        QCOMPARE(s->BtnBack->look(), Button::Look::Up);

        app.click(s->BtnModify);
        QVERIFY(s->frmLoadScenarioView->isVisible());
        app.moveTo(kEmptySpot);
        app.moveTo(s->BtnCreate);
        QCOMPARE(s->BtnCreate->shownPictureName(), QStringLiteral("but_over_Btn03"));
        app.moveTo(s->BtnDownList);
        QCOMPARE(s->BtnCreate->shownPictureName(), QStringLiteral("but_normal_Btn03"));
        QCOMPARE(s->BtnDownList->shownPictureName(), QStringLiteral("ButtonSelectBarDown_focus"));
        app.moveTo(s->BtnBack);
        QCOMPARE(s->BtnBack->shownPictureName(), QStringLiteral("but_common_over_BtnSilver"));
    }

    void createAndModifySwapTheViews() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        app.click(s->BtnCreate);
        QVERIFY(s->frmCreateScenarioView->isVisible());
        QVERIFY(s->frmLoadScenarioView->isHidden());
        QVERIFY(!s->txtScenarioName->hasFocus());
        app.click(s->BtnModify);
        QVERIFY(s->frmCreateScenarioView->isHidden());
        QVERIFY(s->frmLoadScenarioView->isVisible());
        QVERIFY(HasBar(s->BtnScenarioName[0]));
        for (int r = 0; r < 7; ++r) QCOMPARE(s->BtnScenarioName[r]->captionText(), QString::number(r));
        app.click(s->BtnCreate);
        QVERIFY(s->frmCreateScenarioView->isVisible());
        QVERIFY(s->frmLoadScenarioView->isHidden());
    }

    void typingEnablesCreate() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        Frame_Control* root = app.root();
        app.click(s->BtnCreate);

        // Disabled, "Create" lets the press through and nothing happens.
        app.click(s->BtnNewCreate);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));
        QCOMPARE(s->BtnNewCreate->look(), Button::Look::Up);

        app.click(s->txtScenarioName);
        QVERIFY(s->txtScenarioName->hasFocus());
        const TrackingRegistry& registry = TrackingRegistry::instance();
        const int registered = registry.registrationCount(s->BtnNewCreate);

        TypeKey(app, Qt::Key_A);
        QCOMPARE(s->txtScenarioName->text(), QStringLiteral("a"));
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
        QCOMPARE(registry.registrationCount(s->BtnNewCreate), registered + 1);

        TypeKey(app, Qt::Key_Backspace);
        QCOMPARE(s->txtScenarioName->text(), QString());
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(0));
        app.click(s->BtnNewCreate);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));

        // A space is a name too; every change that leaves text registers once more.
        app.click(s->txtScenarioName);
        TypeKey(app, Qt::Key_Space);
        TypeKey(app, Qt::Key_B);
        QCOMPARE(s->txtScenarioName->text(), QStringLiteral(" b"));
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
        QCOMPARE(registry.registrationCount(s->BtnNewCreate), registered + 3);
        app.moveTo(kEmptySpot);
        app.moveTo(s->BtnNewCreate);
        QCOMPARE(s->BtnNewCreate->shownPictureName(), QStringLiteral("but_over_Btn01"));

        app.click(s->BtnNewCreate);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmMovement));
        QVERIFY(s->frmCreateScenarioView->isHidden());
        QVERIFY(s->frmLoadScenarioView->isHidden());
        QCOMPARE(s->numOfList, 20);
    }

    void listSequences_data() {
        AddListSequenceColumns();
        AddListSequenceRows();
    }

    void listSequences() {
        QFETCH(QString, steps);
        QFETCH(QStringList, rows);
        QFETCH(int, highlight);
        QFETCH(int, indexChoose);
        QFETCH(int, indexShow);
        QFETCH(int, numOfList);
        QFETCH(bool, listShown);

        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        app.click(s->BtnModify);
        for (const ListStep& step : ParseSteps(steps)) {
            QVERIFY2(s->frmLoadScenarioView->isVisible(), "a step after the list was emptied");
            Perform(app, s, step);
        }

        QCOMPARE(s->indexChoose, indexChoose);
        QCOMPARE(s->indexShow, indexShow);
        QCOMPARE(s->numOfList, numOfList);
        QCOMPARE(s->frmLoadScenarioView->isVisible(), listShown);
        QCOMPARE(s->BtnModify->isVisible(), listShown);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));

        QStringList shown;
        int bar = -1;
        for (int r = 0; r < 7; ++r) {
            Button* row = s->BtnScenarioName[r];
            // Rows beyond a short list are hidden, never rows in between.
            QCOMPARE(row->isHidden(), r >= rows.size());
            if (row->isHidden()) continue;
            shown << row->captionText();
            if (HasBar(row)) {
                QVERIFY2(bar < 0, "two highlighted rows");
                bar = r;
            } else {
                QVERIFY2(HasNoPictures(row), qPrintable(QString("row %1 keeps a picture").arg(r)));
            }
        }
        QCOMPARE(shown, rows);
        QCOMPARE(bar, highlight);
    }

    void clickedRowTakesTheChoice() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        app.click(s->BtnModify);
        app.click(s->BtnScenarioName[4]);
        QVERIFY(HasBar(s->BtnScenarioName[4]));
        QVERIFY(HasNoPictures(s->BtnScenarioName[0]));
        // The lower edge of row 4 lies under row 5, which takes the click there.
        app.click(app.at(s->BtnScenarioName[4], QPoint(200, 37)));
        QVERIFY(HasBar(s->BtnScenarioName[5]));
        QCOMPARE(s->indexChoose, 5);
    }

    void stateIsKeptAcrossVisits() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        Frame_Control* root = app.root();
        app.click(s->BtnCreate);
        app.click(s->txtScenarioName);
        TypeKey(app, Qt::Key_Q);
        app.click(s->BtnModify);
        for (const ListStep& step : ParseSteps("D*9 X 2")) Perform(app, s, step);

        app.click(s->BtnBack);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmMainMenu));
        QVERIFY(s->frmLoadScenarioView->isHidden());

        app.click(root->frmMainMenu->BtnProgram);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));
        QVERIFY(s->frmCreateScenarioView->isHidden());
        QVERIFY(s->frmLoadScenarioView->isHidden());
        QCOMPARE(s->txtScenarioName->text(), QStringLiteral("q"));
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));

        app.click(s->BtnModify);
        QCOMPARE(s->numOfList, 19);
        QCOMPARE(s->indexChoose, 5);
        QCOMPARE(s->indexShow, 2);
        QStringList shown;
        for (Button* row : s->BtnScenarioName) shown << row->captionText();
        QCOMPARE(shown, (QStringList{"3", "4", "5", "6", "7", "8", "10"}));
        QVERIFY(HasBar(s->BtnScenarioName[2]));

        app.click(s->BtnGo);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(root->frmMovement));
        QVERIFY(s->frmLoadScenarioView->isHidden());
    }

    void emptiedListLeavesCreate() {
        AppHarness app;
        Frame_Scenario* s = OpenScenario(app);
        QVERIFY(s);
        app.click(s->BtnModify);
        for (int i = 0; i < 20; ++i) app.click(s->BtnX);
        QVERIFY(s->BtnModify->isHidden());
        QVERIFY(s->frmLoadScenarioView->isHidden());
        // Where "Modify exist scenario" was, a click reaches nothing.
        app.click(QPoint(250, 444));
        QVERIFY(s->frmLoadScenarioView->isHidden());

        app.click(s->BtnCreate);
        app.click(s->txtScenarioName);
        TypeKey(app, Qt::Key_Z);
        app.click(s->BtnNewCreate);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmMovement));
        QCOMPARE(s->numOfList, 0);
    }
};

QTEST_MAIN(TestScenarioScreen)
#include "tst_scenarioscreen.moc"
