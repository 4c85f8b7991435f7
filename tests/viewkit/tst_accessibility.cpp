#include "AppHarness.h"
#include "Button.h"
#include "ButtonAccessible.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "SoundSetText.h"

#include <QAccessible>
#include <QDateEdit>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTimeEdit>

#include <memory>

// What a screen reader sees of the application and what its press action does, through
// QAccessible only, in the real window.
namespace {

// The buttons the tests name, by screen and field.
Button* Find(Frame_Control* root, const QString& key) {
    Frame_MainMenu* menu = root->frmMainMenu;
    Frame_Scenario* scenario = root->frmScenario;
    Frame_MoveMent* movement = root->frmMovement;
    Frame_Sound* sound = root->frmSound;
    Frame_Lazer* lazer = root->frmLazer;
    Frame_Alarm* alarm = root->frmAlarm;
    static const QRegularExpression row(QStringLiteral("^scenario\\.row(\\d)$"));
    if (const auto m = row.match(key); m.hasMatch()) return scenario->BtnScenarioName[m.captured(1).toInt()];
    static const QRegularExpression soundButton(QStringLiteral("^sound\\.sound(\\d+)$"));
    if (const auto m = soundButton.match(key); m.hasMatch())
        return sound->BtnButton[Frame_Sound::kBtnSoundFirst + m.captured(1).toInt()];
    const std::pair<const char*, Button*> buttons[] = {
        {"menu.BtnQuestion", menu->BtnQuestion},
        {"menu.BtnProgram", menu->BtnProgram},
        {"menu.BtnAlarm", menu->BtnAlarm},
        {"menu.BtnSync", menu->BtnSync},
        {"menu.BtnSetting", menu->BtnSetting},
        {"scenario.BtnCreate", scenario->BtnCreate},
        {"scenario.BtnModify", scenario->BtnModify},
        {"scenario.BtnNewCreate", scenario->BtnNewCreate},
        {"scenario.BtnUpList", scenario->BtnUpList},
        {"scenario.BtnDownList", scenario->BtnDownList},
        {"scenario.BtnX", scenario->BtnX},
        {"scenario.BtnGo", scenario->BtnGo},
        {"scenario.BtnBack", scenario->BtnBack},
        {"movement.BtnMoveMent", movement->BtnMoveMent},
        {"movement.BtnSound", movement->BtnSound},
        {"movement.BtnLazer", movement->BtnLazer},
        {"movement.BtnMoveUp", movement->BtnMoveUp},
        {"movement.BtnTrunLeft", movement->BtnTrunLeft},
        {"movement.BtnCircleRight", movement->BtnCircleRight},
        {"movement.BtnSelectBar", movement->BtnSelectBar},
        {"movement.BtnArrowUp", movement->BtnArrowUp},
        {"movement.BtnErase", movement->BtnErase},
        {"movement.BtnRetPlay", movement->BtnRetPlay},
        {"movement.BtnBack", movement->BtnBack},
        {"sound.SoundTab", sound->BtnButton[Frame_Sound::kBtnSoundTab]},
        {"sound.LazerTab", sound->BtnButton[Frame_Sound::kBtnLazer]},
        {"sound.PagePre", sound->BtnButton[Frame_Sound::kBtnPagePre]},
        {"sound.PageNext", sound->BtnButton[Frame_Sound::kBtnPageNext]},
        {"sound.ContentUp", sound->BtnButton[Frame_Sound::kBtnContentUp]},
        {"sound.ContentDown", sound->BtnButton[Frame_Sound::kBtnContentDown]},
        {"sound.VolumeMinus", sound->BtnButton[Frame_Sound::kBtnVolumeMinus]},
        {"sound.Back", sound->BtnButton[Frame_Sound::kBtnBack]},
        {"lazer.BtnLazer", lazer->BtnLazer},
        {"lazer.BtnLazer2", lazer->BtnLazer2},
        {"lazer.BtnLazer3", lazer->BtnLazer3},
        {"lazer.BtnBack", lazer->BtnBack},
        {"alarm.BtnBirthdayStatus", alarm->BtnBirthdayStatus},
        {"alarm.BtnWakeupStatus", alarm->BtnWakeupStatus},
        {"alarm.BtnBirthdayOn", alarm->BtnBirthdayOn},
        {"alarm.BtnWakeupOn", alarm->BtnWakeupOn},
        {"alarm.BtnWakeupFreq2", alarm->BtnWakeupFreq2},
        {"alarm.BtnWakeupFreq3", alarm->BtnWakeupFreq3},
        {"alarm.BtnDone", alarm->BtnDone},
        {"alarm.BtnBack", alarm->BtnBack},
    };
    for (const auto& [name, button] : buttons)
        if (key == QLatin1String(name)) return button;
    return nullptr;
}

QAccessibleInterface* Accessible(QObject* object) {
    return QAccessible::queryAccessibleInterface(object);
}

// What an assistive technology does to press a button.
void Press(Button* button) {
    QAccessibleInterface* iface = Accessible(button);
    QVERIFY(iface);
    QAccessibleActionInterface* actions = iface->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
}

// A timeline scroll ignores new sounds while it runs; both ways of pressing wait for it alike.
void Settle(Frame_Control* root) {
    QTRY_VERIFY_WITH_TIMEOUT(!root->frmSound->SoundContent.timer, 20000);
}

// Everything a press can change that stays put once the press is over: which screen shows,
// and of every button whether it is on view, its up picture and its caption. Hover changes
// only the look and the caption's colour, which real clicks bring and a screen reader does not;
// the pickers' date and time texts come from the moment each window was made.
QStringList Signature(const AppHarness& app) {
    static const QRegularExpression pickedValue(QStringLiteral("^\\d+/\\d+(/\\d+)?$"));
    QStringList lines;
    QWidget* shown = app.shownScreen();
    lines << QStringLiteral("screen %1").arg(shown ? shown->metaObject()->className() : "none");
    const QList<Button*> buttons = app.root()->findChildren<Button*>();
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const Button* b = buttons[i];
        const QString caption = pickedValue.match(b->captionText()).hasMatch() ? "(value)" : b->captionText();
        lines << QStringLiteral("%1 %2 %3 [%4]")
                     .arg(i)
                     .arg(b->isVisible() ? "on" : "off", b->BtnImageUp.name(), caption);
    }
    lines << QStringLiteral("lazer type %1").arg(app.root()->frmLazer->LazerType);
    lines << QStringLiteral("alarm %1 %2 %3 %4")
                 .arg(app.root()->frmAlarm->flow.flagBirthdayWakeup())
                 .arg(app.root()->frmAlarm->flow.enableBirthday())
                 .arg(app.root()->frmAlarm->flow.enableWakeup())
                 .arg(app.root()->frmAlarm->flow.typeFrequency());
    return lines;
}

// Depth-first search of the accessible tree for a button of that name.
QAccessibleInterface* FindByName(QAccessibleInterface* node, const QString& name, int depth = 0) {
    if (!node || depth > 12) return nullptr;
    if (node->role() == QAccessible::Button && node->text(QAccessible::Name) == name) return node;
    for (int i = 0; i < node->childCount(); ++i)
        if (QAccessibleInterface* found = FindByName(node->child(i), name, depth + 1)) return found;
    return nullptr;
}

} // namespace

class TestAccessibility : public QObject {
    Q_OBJECT
private slots:
    void defaultNames_data();
    void defaultNames();
    void captionsReadOnOneLine_data();
    void captionsReadOnOneLine();
    void everyButtonIsANamedPushButton();
    void namesOfButtons_data();
    void namesOfButtons();
    void nameFollowsTheCaption();
    void fieldAndPickersHaveNames();
    void captionViewsReadAsText();
    void buttonsAreFoundInTheTree();
    void disabledButtonSaysSoAndIgnoresPress();
    void pressShowsUpPictureAndRunsActionOnce();
    void pressDoesWhatAClickDoes_data();
    void pressDoesWhatAClickDoes();

private:
    // One window for the tests that only read names; made on first use.
    AppHarness& shared();
    std::unique_ptr<AppHarness> m_shared;
};

AppHarness& TestAccessibility::shared() {
    if (!m_shared) {
        m_shared = std::make_unique<AppHarness>();
        m_shared->waitForMainMenuReady();
    }
    return *m_shared;
}

void TestAccessibility::defaultNames_data() {
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("name");
    QTest::newRow("help") << "but_question"
                          << "Help";
    QTest::newRow("movement tab") << "movement"
                                  << "Movement tab";
    QTest::newRow("current movement tab") << "movement_over"
                                          << "Movement tab";
    QTest::newRow("sound tab") << "sound"
                               << "Sound tab";
    QTest::newRow("current laser tab") << "lazer_over"
                                       << "Laser tab";
    QTest::newRow("face tab") << "face"
                              << "Face tab";
    QTest::newRow("play") << "play"
                          << "Play";
    QTest::newRow("brick up") << "ButtonArrowUp_common"
                              << "Move up";
    QTest::newRow("brick turn right") << "ButtonArrowTurnRight_common"
                                      << "Turn right";
    QTest::newRow("brick circle left") << "ButtonArrowArroundLeft_common"
                                       << "Circle left";
    QTest::newRow("brick stop") << "ButtonArrowStop_common"
                                << "Stop";
    QTest::newRow("small arrow down") << "ButtonSmallCircleDown_common"
                                      << "Arrow down";
    QTest::newRow("volume") << "ButtonSoundPlus_common"
                            << "Volume up";
    QTest::newRow("list up") << "ButtonSelectBarUp_common"
                             << "Scenario list up";
    QTest::newRow("delete") << "Btn_X_up"
                            << "Delete scenario";
    QTest::newRow("go") << "Btn_Go_up"
                        << "Go";
    QTest::newRow("configuration") << "Lazer_normal_3"
                                   << "Robot configuration 3";
    // Pictures that always come with a caption, a look that is not an up picture, no picture.
    QTest::newRow("silver") << "but_common_BtnSilver"
                            << "";
    QTest::newRow("focus look") << "ButtonArrowUp_focus"
                                << "";
    QTest::newRow("no picture") << ""
                                << "";
    QTest::newRow("case matters") << "But_Question"
                                  << "";
}

void TestAccessibility::defaultNames() {
    QFETCH(QString, picture);
    QFETCH(QString, name);
    QCOMPARE(ButtonAccessible::DefaultName(picture), name);
}

void TestAccessibility::captionsReadOnOneLine_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("line");
    QTest::newRow("one line") << "Back"
                              << "Back";
    QTest::newRow("lines") << "Choose if you want\n your alarm to be on\n  or off."
                           << "Choose if you want your alarm to be on or off.";
    QTest::newRow("trailing break") << "Birthday Alarm is \non!!!\n"
                                    << "Birthday Alarm is on!!!";
    QTest::newRow("only breaks") << "\n\n"
                                 << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TestAccessibility::captionsReadOnOneLine() {
    QFETCH(QString, caption);
    QFETCH(QString, line);
    QCOMPARE(ButtonAccessible::OneLine(caption), line);
}

void TestAccessibility::everyButtonIsANamedPushButton() {
    AppHarness app;
    QVERIFY(app.waitForMainMenuReady());
    // One timeline item too, so buttons made while the user works are covered.
    app.root()->frmSound->SoundSet(Frame_Sound::kBtnSoundFirst + 4);
    Settle(app.root());

    const QList<Button*> buttons = app.root()->findChildren<Button*>();
    QVERIFY(buttons.size() > 80);
    QStringList unnamed;
    for (Button* b : buttons) {
        QAccessibleInterface* iface = Accessible(b);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::Button);
        QVERIFY(iface->actionInterface());
        const QString name = iface->text(QAccessible::Name);
        if (name.isEmpty() || name == QLatin1String("Button"))
            unnamed << QStringLiteral("%1 (up picture \"%2\", in %3)")
                           .arg(name, b->BtnImageUp.name(), b->parentWidget()->metaObject()->className());
    }
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral("; "))));
}

void TestAccessibility::namesOfButtons_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("menu help") << "menu.BtnQuestion"
                               << "Help";
    QTest::newRow("menu program") << "menu.BtnProgram"
                                  << "Program scenario";
    QTest::newRow("menu alarm") << "menu.BtnAlarm"
                                << "Alarm/Clock";
    QTest::newRow("menu settings") << "menu.BtnSetting"
                                   << "Settings";
    QTest::newRow("create") << "scenario.BtnCreate"
                            << "Create a new scenario";
    QTest::newRow("create named") << "scenario.BtnNewCreate"
                                  << "Create";
    QTest::newRow("name row") << "scenario.row3"
                              << "3";
    QTest::newRow("list down") << "scenario.BtnDownList"
                               << "Scenario list down";
    QTest::newRow("delete") << "scenario.BtnX"
                            << "Delete scenario";
    QTest::newRow("go") << "scenario.BtnGo"
                        << "Go";
    QTest::newRow("own movement tab") << "movement.BtnMoveMent"
                                      << "Movement tab";
    QTest::newRow("sound tab") << "movement.BtnSound"
                               << "Sound tab";
    QTest::newRow("move up") << "movement.BtnMoveUp"
                             << "Move up";
    QTest::newRow("turn left") << "movement.BtnTrunLeft"
                               << "Turn left";
    QTest::newRow("circle right") << "movement.BtnCircleRight"
                                  << "Circle right";
    QTest::newRow("select bar") << "movement.BtnSelectBar"
                                << "Choose scenario";
    QTest::newRow("path arrow") << "movement.BtnArrowUp"
                                << "Arrow up";
    QTest::newRow("erase") << "movement.BtnErase"
                           << "Erase";
    QTest::newRow("replay") << "movement.BtnRetPlay"
                            << "Replay";
    QTest::newRow("own sound tab") << "sound.SoundTab"
                                   << "Sound tab";
    QTest::newRow("sound page back") << "sound.PagePre"
                                     << "Previous sound page";
    QTest::newRow("sound page on") << "sound.PageNext"
                                   << "Next sound page";
    QTest::newRow("timeline up") << "sound.ContentUp"
                                 << "Timeline page up";
    QTest::newRow("timeline down") << "sound.ContentDown"
                                   << "Timeline page down";
    QTest::newRow("first sound") << "sound.sound0" << SoundSetName(0);
    QTest::newRow("last sound") << "sound.sound11" << SoundSetName(11);
    QTest::newRow("volume down") << "sound.VolumeMinus"
                                 << "Volume down";
    QTest::newRow("own laser tab") << "lazer.BtnLazer"
                                   << "Laser tab";
    QTest::newRow("configuration") << "lazer.BtnLazer2"
                                   << "Robot configuration 2";
    QTest::newRow("birthday status") << "alarm.BtnBirthdayStatus"
                                     << "Birthday alarm:Off";
    QTest::newRow("wake-up on") << "alarm.BtnWakeupOn"
                                << "On";
    QTest::newRow("frequency") << "alarm.BtnWakeupFreq3"
                               << "Friday To Monday";
    QTest::newRow("done") << "alarm.BtnDone"
                          << "Done";
}

void TestAccessibility::namesOfButtons() {
    QFETCH(QString, key);
    QFETCH(QString, name);
    AppHarness& app = shared();
    QVERIFY(app.root()->frmMainMenu->BtnProgram->isVisible());
    Button* button = Find(app.root(), key);
    QVERIFY2(button, qPrintable(key));
    QAccessibleInterface* iface = Accessible(button);
    QVERIFY(iface);
    QCOMPARE(iface->text(QAccessible::Name), name);
    QCOMPARE(iface->role(), QAccessible::Button);
}

void TestAccessibility::nameFollowsTheCaption() {
    AppHarness app;
    QVERIFY(app.waitForMainMenuReady());
    Frame_Alarm* alarm = app.root()->frmAlarm;
    QAccessibleInterface* status = Accessible(alarm->BtnBirthdayStatus);
    QCOMPARE(status->text(QAccessible::Name), QStringLiteral("Birthday alarm:Off"));

    Press(app.root()->frmMainMenu->BtnAlarm);
    Press(alarm->BtnBirthdayStatus);
    Press(alarm->BtnBirthdayOn);
    Press(alarm->BtnBack);
    QCOMPARE(status->text(QAccessible::Name), QStringLiteral("Birthday alarm:On"));

    // A sound set page turned renames the twelve sound buttons.
    Button* first = app.root()->frmSound->BtnButton[Frame_Sound::kBtnSoundFirst];
    Press(app.root()->frmSound->BtnButton[Frame_Sound::kBtnPageNext]);
    QCOMPARE(Accessible(first)->text(QAccessible::Name), QString::fromUtf8(SoundSetName(kSoundSetPageSize)));
}

void TestAccessibility::fieldAndPickersHaveNames() {
    AppHarness& app = shared();
    QAccessibleInterface* field = Accessible(app.root()->frmScenario->txtScenarioName);
    QVERIFY(field);
    QCOMPARE(field->text(QAccessible::Name), QStringLiteral("Scenario name"));
    QCOMPARE(field->role(), QAccessible::EditableText);

    Frame_Alarm* alarm = app.root()->frmAlarm;
    const std::pair<QWidget*, const char*> pickers[] = {
        {alarm->txtBirthDate, "Birthday date"},
        {alarm->txtBirthTime, "Birthday time"},
        {alarm->txtWakeupTime, "Wake up time"},
    };
    for (const auto& [picker, name] : pickers) {
        QAccessibleInterface* iface = Accessible(picker);
        QVERIFY(iface);
        QCOMPARE(iface->text(QAccessible::Name), QString::fromLatin1(name));
    }
}

void TestAccessibility::captionViewsReadAsText() {
    AppHarness& app = shared();
    Frame_Scenario* scenario = app.root()->frmScenario;
    QAccessibleInterface* description = Accessible(scenario->txtAlarmDescription);
    QVERIFY(description);
    QCOMPARE(description->role(), QAccessible::StaticText);
    QVERIFY(
        description->text(QAccessible::Name).startsWith(QStringLiteral("You can creat a new scenario with")));
    QCOMPARE(Accessible(scenario->txtSiteTitle)->text(QAccessible::Name), QStringLiteral("Program/"));
    // A picture without words is a nameless graphic.
    QAccessibleInterface* background = Accessible(scenario->imgBackGround);
    QCOMPARE(background->role(), QAccessible::Graphic);
    QVERIFY(background->text(QAccessible::Name).isEmpty());
}

void TestAccessibility::buttonsAreFoundInTheTree() {
    AppHarness app;
    QVERIFY(app.waitForMainMenuReady());
    QAccessibleInterface* window = Accessible(app.window());
    QVERIFY(window);
    QAccessibleInterface* program = FindByName(window, QStringLiteral("Program scenario"));
    QVERIFY(program);
    QCOMPARE(program->object(), app.root()->frmMainMenu->BtnProgram);
    QVERIFY(!program->state().invisible);
    QVERIFY(!program->state().disabled);
    // Buttons of hidden screens are in the tree too, but not on view.
    QAccessibleInterface* go = FindByName(window, QStringLiteral("Go"));
    QVERIFY(go);
    QVERIFY(go->state().invisible);
}

void TestAccessibility::disabledButtonSaysSoAndIgnoresPress() {
    AppHarness app;
    QVERIFY(app.waitForMainMenuReady());
    Frame_Scenario* scenario = app.root()->frmScenario;
    Press(app.root()->frmMainMenu->BtnProgram);
    Press(scenario->BtnCreate);
    QVERIFY(scenario->frmCreateScenarioView->isVisible());

    QAccessibleInterface* create = Accessible(scenario->BtnNewCreate);
    QVERIFY(create->state().disabled);
    Press(scenario->BtnNewCreate);
    QCOMPARE(app.shownScreen(), scenario);

    // Typing a name enables it, as for the mouse.
    scenario->txtScenarioName->setFocus();
    QTest::keyClicks(scenario->txtScenarioName, QStringLiteral("R"));
    QVERIFY(!create->state().disabled);
    Press(scenario->BtnNewCreate);
    QCOMPARE(app.shownScreen(), app.root()->frmMovement);
}

void TestAccessibility::pressShowsUpPictureAndRunsActionOnce() {
    AppHarness app;
    QVERIFY(app.waitForMainMenuReady());
    Frame_Lazer* lazer = app.root()->frmLazer;
    Button* third = lazer->BtnLazer3;

    struct Seen {
        int calls = 0;
        Button::Look look = Button::Look::Down;
    } seen;
    third->InitButtonAction(
        [](void* context, Button* button) {
            auto* s = static_cast<Seen*>(context);
            ++s->calls;
            s->look = button->look();
        },
        &seen);
    Press(third);
    QCOMPARE(seen.calls, 1);
    // The release's up picture is on view before the action runs, as after a click.
    QCOMPARE(seen.look, Button::Look::Up);
    QCOMPARE(third->look(), Button::Look::Up);
    QCOMPARE(third->shownPictureName(), QStringLiteral("Lazer_normal_3"));
}

void TestAccessibility::pressDoesWhatAClickDoes_data() {
    QTest::addColumn<QStringList>("route");
    QTest::newRow("menu to scenario") << QStringList{"menu.BtnProgram"};
    QTest::newRow("scenario list") << QStringList{"menu.BtnProgram", "scenario.BtnModify",
                                                  "scenario.row2",   "scenario.BtnDownList",
                                                  "scenario.BtnX",   "scenario.BtnUpList"};
    QTest::newRow("sounds and pages") << QStringList{
        "menu.BtnProgram", "scenario.BtnModify", "scenario.BtnGo", "movement.BtnSound", "sound.sound5",
        "sound.PageNext",  "sound.sound0",       "sound.sound11",  "sound.PagePre",     "sound.sound3"};
    QTest::newRow("laser and back chain")
        << QStringList{"menu.BtnProgram", "scenario.BtnModify", "scenario.BtnGo",  "movement.BtnLazer",
                       "lazer.BtnLazer3", "lazer.BtnBack",      "sound.LazerTab",  "lazer.BtnLazer2",
                       "lazer.BtnBack",   "sound.Back",         "movement.BtnBack"};
    QTest::newRow("wake-up alarm done")
        << QStringList{"menu.BtnAlarm", "alarm.BtnWakeupStatus", "alarm.BtnWakeupOn", "alarm.BtnWakeupFreq2",
                       "alarm.BtnDone"};
    QTest::newRow("birthday back to menu") << QStringList{
        "menu.BtnAlarm", "alarm.BtnBirthdayStatus", "alarm.BtnBirthdayOn", "alarm.BtnBack", "alarm.BtnBack"};
}

void TestAccessibility::pressDoesWhatAClickDoes() {
    QFETCH(QStringList, route);
    QStringList clicked, pressed;
    for (const bool byScreenReader : {false, true}) {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        for (const QString& key : route) {
            Button* button = Find(app.root(), key);
            QVERIFY2(button, qPrintable(key));
            QVERIFY2(button->isVisible(), qPrintable(key + QStringLiteral(" is not on view")));
            if (byScreenReader)
                Press(button);
            else
                app.click(button);
            Settle(app.root());
        }
        (byScreenReader ? pressed : clicked) = Signature(app);
    }
    QCOMPARE(pressed.size(), clicked.size());
    for (qsizetype i = 0; i < clicked.size(); ++i) QCOMPARE(pressed[i], clicked[i]);
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
