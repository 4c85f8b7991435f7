#include "AppWindow.h"
#include "Scene.h"
#include "XDisplay.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>
#include <functional>

// The real robot-companion binary in a real X server, worked only with X input at the window
// coordinates of the layout tables, and judged by what shows in the window: regions of
// screenshots against the rendered pictures that must show there.
namespace {

XDisplay* g_display = nullptr;

// Window coordinates of what the tests point at and look at: each frame of a layout table
// plus the origins of the sub-views it lies in.
namespace At {
// Main menu.
constexpr QRect Program(607, 172, 250, 93);
constexpr QRect Alarm(607, 297, 250, 93);
constexpr QPoint RobotAtRest(0, 263);
// A caption's place: the caption rectangle's origin (90, 53) plus the line padding.
constexpr QRect ProgramCaption(700, 222, 150, 24);
constexpr QRect AlarmCaption(700, 347, 150, 24);
// Scenario screen; the create view lies at (534, 339).
constexpr QRect CreateScenario(95, 350, 326, 46);
constexpr QRect NameField(551, 374, 193, 20);
constexpr QRect CreateNamed(791, 362, 111, 46);
constexpr QRect BackOnScenario(714, 711, 85, 40);
// Movement screen.
constexpr QRect MovementTabOnMovement(498, 199, 64, 63);
constexpr QRect SoundTabOnMovement(663, 199, 64, 63);
constexpr QRect BackOnMovement(715, 712, 85, 40);
// Sound screen; the timeline view lies at (552, 320).
constexpr QRect MovementTabOnSound(515, 199, 64, 63);
constexpr QRect SoundTabOnSound(589, 199, 64, 63);
constexpr QRect LaserTabOnSound(722, 199, 64, 63);
constexpr QRect SoundPageNext(276, 288, 36, 38);
constexpr QRect TimelineUp(817, 273, 36, 38);
constexpr QRect TimelineDown(854, 273, 36, 38);
constexpr QRect BackOnSound(715, 712, 85, 40);
constexpr QPoint Timeline(552, 320);
// Laser screen.
constexpr QRect LaserTabOnLaser(660, 199, 64, 63);
constexpr QRect Configuration2(227, 379, 105, 105);
constexpr QRect LaserPicture(540, 326, 380, 340);
constexpr QRect BackOnLaser(714, 711, 85, 40);
// Alarm screen; the choose view lies at (91, 295), the birthday control view at (91, 308), the
// date and time buttons' view at (91, 412), the editors at (534, 339).
constexpr QRect BirthdayStatus(96, 329, 326, 46);
constexpr QRect WakeupStatus(96, 388, 326, 46);
constexpr QRect BirthdayOn(124, 340, 111, 46);
constexpr QRect BirthdayOff(235, 340, 111, 46);
constexpr QRect BirthDate(205, 417, 180, 46);
constexpr QRect BirthTime(205, 470, 180, 46);
constexpr QRect DatePicker(552, 339, 195, 50);
constexpr QRect EditorSet(791, 362, 111, 46);
constexpr QRect AlarmBack(714, 711, 85, 40);
constexpr QRect AlarmDone(839, 711, 85, 40);

// The sound buttons: four rows of three.
QRect SoundButton(int i) {
    static constexpr int xs[] = {100, 221, 340};
    return {xs[i % 3], 338 + 46 * (i / 3), 111, 46};
}

// The timeline's twelve places of a page, as a snake of four rows of three.
QRect TimelineSlot(int slot) {
    static constexpr QPoint places[] = {{12, 9},   {133, 9},   {253, 9},   {253, 63},  {133, 63},  {12, 63},
                                        {12, 117}, {133, 117}, {253, 117}, {253, 171}, {133, 171}, {12, 171}};
    return {Timeline + places[slot], QSize(111, 46)};
}
} // namespace At

QPoint Centre(const QRect& r) {
    return r.center();
}

// Part of a frame: x and y from its left and top, w wide and h high (clear of the captions).
QRect Part(const QRect& frame, int x, int y, int w, int h) {
    return {frame.x() + x, frame.y() + y, w, h};
}

// The band of an item or sound button below its caption.
QRect BelowCaption(const QRect& frame) {
    return Part(frame, 14, 32, 97, 14);
}

// A region must show the expected scene rather than the other one.
struct Look {
    QString what;
    QRect region;
    Scene expected;
    Scene other;
};

// Pixels of one caption colour in a region (anti-aliased text: near the colour counts).
int InkCount(const QImage& shot, const QRect& region, const QColor& colour) {
    int n = 0;
    for (int y = region.top(); y <= region.bottom(); ++y)
        for (int x = region.left(); x <= region.right(); ++x) {
            const QColor c = shot.pixelColor(x, y);
            if (qAbs(c.red() - colour.red()) < 45 && qAbs(c.green() - colour.green()) < 45 &&
                qAbs(c.blue() - colour.blue()) < 45)
                ++n;
        }
    return n;
}

// The largest mean difference a region may have from its expected scene, and the least two
// scenes must differ by for a region to tell them apart.
constexpr double kTolerance = 3.0;
constexpr double kMinSeparation = 8.0;

// Empty when the shot shows the look, else what is wrong.
QString Judge(const QImage& shot, const Look& look) {
    if (!look.expected.isValid() || !look.other.isValid())
        return look.what + QStringLiteral(": a picture of the check is missing in ") + Scene::PictureFolder();
    const double separation = Scene::Difference(look.expected.image(), look.other.image(), look.region);
    if (separation < kMinSeparation)
        return look.what +
               QStringLiteral(": the region cannot tell the two looks apart (%1)").arg(separation);
    const double d = Scene::Difference(shot, look.expected.image(), look.region);
    const double dOther = Scene::Difference(shot, look.other.image(), look.region);
    if (d <= kTolerance && d * 3 < dOther) return {};
    return look.what + QStringLiteral(": differs by %1 from what it should show, by %2 from the other look")
                           .arg(d, 0, 'f', 1)
                           .arg(dOther, 0, 'f', 1);
}

Scene On(const char* background) {
    return Scene(QString::fromLatin1(background));
}

// A button at frame showing picture `shown`, or else `instead` (none: nothing but the
// background), compared over `region`.
Look ButtonLook(const QString& what, const char* background, const QRect& frame, const char* shown,
                const char* instead, const QRect& region) {
    Scene expected = On(background);
    expected.button(QString::fromLatin1(shown), frame);
    Scene other = On(background);
    if (instead) other.button(QString::fromLatin1(instead), frame);
    return {what, region, expected, other};
}

const char* const kMenu = "mainpage_bg";
const char* const kCommon = "common_bg";
const char* const kEditor = "scenario_bg";
const char* const kMark = "but_disabled_Btn01_1";

} // namespace

class TestEndToEnd : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void typicalRun();
    void alarmWithConfirmation();
    void typingReachesOnlyWhatIsOnView();
    void birthdayIsTheDayPickedInEveryZone();

private:
    // From the main menu to the birthday page with the alarm on.
    bool openBirthdayOn();
    // The birthday date picked by typing, then Set: the window with the date on its button.
    QImage pickBirthday(const QString& digits);
    // Polls screenshots until every look shows (and `also`, when given, says nothing is
    // wrong), or fails the test with the reasons and the last screenshot saved.
    bool waitFor(const QString& step, const QList<Look>& looks,
                 const std::function<QString(const QImage&)>& also = {}, int timeoutMs = 60000);
    QImage shot();
    // The menu with its robot at rest and its buttons shown; after the robot's arrival and
    // after Back from the movement screen its captions are in their normal orange.
    bool menuReady(const QString& step, bool captionsReset = true);

    std::unique_ptr<AppWindow> m_app;
    QString m_failure;
};

void TestEndToEnd::init() {
    m_app = std::make_unique<AppWindow>(*g_display);
    QString why;
    QVERIFY2(m_app->start(QStringLiteral(ROBOT_E2E_APP), &why), qPrintable(why));
    // The pointer starts in the middle of the screen, over the menu; park it on the background.
    QVERIFY(m_app->moveTo(QPoint(400, 60)));
}

void TestEndToEnd::cleanup() {
    if (m_app) {
        const bool running = m_app->isRunning();
        m_app->stop();
        const QString errors = m_app->errorOutput();
        const QStringList effects = m_app->sideEffects();
        m_app.reset();
        QVERIFY2(running, qPrintable(QStringLiteral("the app ended on its own; stderr:\n") + errors));
        // Everything lives in memory: no network, nothing written.
        QVERIFY2(effects.isEmpty(), qPrintable(effects.join(QLatin1Char('\n'))));
        QVERIFY2(!errors.contains(QLatin1String("Sanitizer")) &&
                     !errors.contains(QLatin1String("runtime error")),
                 qPrintable(errors));
    }
}

QImage TestEndToEnd::shot() {
    QImage image = m_app->grab();
    for (int attempt = 0; image.isNull() && attempt < 5; ++attempt) {
        QTest::qWait(200);
        image = m_app->grab();
    }
    return image;
}

bool TestEndToEnd::waitFor(const QString& step, const QList<Look>& looks,
                           const std::function<QString(const QImage&)>& also, int timeoutMs) {
    QElapsedTimer clock;
    clock.start();
    QStringList wrong;
    QImage last;
    do {
        last = shot();
        wrong.clear();
        if (last.isNull()) {
            wrong << QStringLiteral("no screenshot");
            continue;
        }
        for (const Look& look : looks)
            if (const QString why = Judge(last, look); !why.isEmpty()) wrong << why;
        if (also)
            if (const QString why = also(last); !why.isEmpty()) wrong << why;
        if (wrong.isEmpty()) {
            if (qEnvironmentVariableIsSet("ROBOT_E2E_VERBOSE"))
                for (const Look& look : looks)
                    std::printf("%s / %s: %.2f\n", qPrintable(step), qPrintable(look.what),
                                Scene::Difference(last, look.expected.image(), look.region));
            return true;
        }
        // A picture missing from the build will not appear by waiting.
        if (wrong.first().contains(QLatin1String("missing")) || !m_app->isRunning()) break;
        QTest::qWait(150);
    } while (clock.elapsed() < timeoutMs);

    QString name = QStringLiteral("e2e-%1-%2.png").arg(QTest::currentTestFunction(), step);
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9.-]+")), QStringLiteral("-"));
    const QString saved = QDir::current().absoluteFilePath(name);
    if (!last.isNull()) last.save(saved);
    m_failure = QStringLiteral("%1: %2 (screenshot: %3)").arg(step, wrong.join(QStringLiteral("; ")), saved);
    return false;
}

#define WAIT_FOR(step, ...) QVERIFY2(waitFor(step, __VA_ARGS__), qPrintable(m_failure))

bool TestEndToEnd::menuReady(const QString& step, bool captionsReset) {
    Scene robot = On(kMenu);
    robot.picture(QStringLiteral("logo_main"), At::RobotAtRest);
    return waitFor(step,
                   {{QStringLiteral("robot at rest"), QRect(60, 300, 480, 400), robot, On(kMenu)},
                    ButtonLook(QStringLiteral("Program scenario"), kMenu, At::Program, "command_normal_menus",
                               "command_focused_menus", Part(At::Program, 0, 0, 250, 48)),
                    ButtonLook(QStringLiteral("Alarm/Clock"), kMenu, At::Alarm, "clock_normal_menus",
                               "clock_focused_menus", Part(At::Alarm, 0, 0, 250, 48))},
                   [captionsReset](const QImage& s) -> QString {
                       if (!captionsReset) return {};
                       for (const QRect& caption : {At::ProgramCaption, At::AlarmCaption})
                           if (InkCount(s, caption, QColor(255, 128, 0)) < 20 ||
                               InkCount(s, caption, Qt::white) > 5)
                               return QStringLiteral("menu captions are not orange");
                       return {};
                   });
}

void TestEndToEnd::typicalRun() {
    AppWindow& app = *m_app;
    QVERIFY2(menuReady(QStringLiteral("menu")), qPrintable(m_failure));

    // Pointing at "Program scenario" lights it up and whitens its caption; pressing shows its
    // pressed picture until the release, which opens the scenario screen.
    QVERIFY(app.moveTo(Centre(At::Program)));
    WAIT_FOR(QStringLiteral("program pointed at"),
             {ButtonLook(QStringLiteral("Program scenario"), kMenu, At::Program, "command_focused_menus",
                         "command_normal_menus", Part(At::Program, 0, 0, 250, 48))},
             [](const QImage& s) {
                 return InkCount(s, At::ProgramCaption, Qt::white) < 20 ? QStringLiteral("caption not white")
                                                                        : QString();
             });
    QVERIFY(app.press());
    WAIT_FOR(QStringLiteral("program pressed"),
             {ButtonLook(QStringLiteral("Program scenario"), kMenu, At::Program, "command_selected_menus",
                         "command_focused_menus", Part(At::Program, 0, 0, 250, 48))});
    QVERIFY(app.release());
    WAIT_FOR(QStringLiteral("scenario screen"),
             {ButtonLook(QStringLiteral("Create a new scenario"), kCommon, At::CreateScenario,
                         "but_normal_Btn03", nullptr, Part(At::CreateScenario, 235, 0, 91, 46))});

    // "Create a new scenario" opens the name field; Create ignores the mouse until a name is
    // typed. The press on it lands before the typing, so once the text shows it has been
    // ignored.
    QVERIFY(app.click(Centre(At::CreateScenario)));
    const Look createUp = ButtonLook(QStringLiteral("Create"), kCommon, At::CreateNamed, "but_normal_Btn01",
                                     "but_over_Btn01", Part(At::CreateNamed, 75, 0, 36, 46));
    WAIT_FOR(QStringLiteral("create view"), {createUp});
    const QImage emptyField = shot();
    QVERIFY(app.click(Centre(At::CreateNamed)));
    QVERIFY(app.click(Centre(At::NameField)));
    QVERIFY(app.type(QStringLiteral("Robo")));
    WAIT_FOR(QStringLiteral("name typed"), {createUp}, [&](const QImage& s) {
        return Scene::Difference(s, emptyField, At::NameField) < 3
                   ? QStringLiteral("the name field shows no text")
                   : QString();
    });

    // Typed: Create answers the pointer, and its click opens the movement screen.
    QVERIFY(app.moveTo(Centre(At::CreateNamed)));
    WAIT_FOR(QStringLiteral("create pointed at"),
             {ButtonLook(QStringLiteral("Create"), kCommon, At::CreateNamed, "but_over_Btn01",
                         "but_normal_Btn01", Part(At::CreateNamed, 75, 0, 36, 46))});
    QVERIFY(app.press());
    QVERIFY(app.release());
    WAIT_FOR(QStringLiteral("movement screen"),
             {ButtonLook(QStringLiteral("movement tab"), kEditor, At::MovementTabOnMovement, "movement_over",
                         "movement", Part(At::MovementTabOnMovement, 0, 0, 60, 63)),
              ButtonLook(QStringLiteral("sound tab"), kEditor, At::SoundTabOnMovement, "sound", "sound_over",
                         Part(At::SoundTabOnMovement, 3, 0, 58, 63))});

    // The sound tab opens the sound screen.
    QVERIFY(app.click(Centre(At::SoundTabOnMovement)));
    WAIT_FOR(QStringLiteral("sound screen"),
             {ButtonLook(QStringLiteral("sound tab"), kEditor, At::SoundTabOnSound, "sound_over", "sound",
                         Part(At::SoundTabOnSound, 0, 0, 54, 63)),
              ButtonLook(QStringLiteral("movement tab"), kEditor, At::MovementTabOnSound, "movement",
                         "movement_over", Part(At::MovementTabOnSound, 0, 0, 64, 63))});

    // Twelve sounds fill the timeline's first page, one item each, the chosen button marked.
    for (int i = 0; i < 12; ++i) {
        QVERIFY(app.click(Centre(At::SoundButton(i))));
        QList<Look> looks = {ButtonLook(QStringLiteral("item %1").arg(i + 1), kEditor, At::TimelineSlot(i),
                                        kMark, nullptr, BelowCaption(At::TimelineSlot(i))),
                             ButtonLook(QStringLiteral("chosen sound button %1").arg(i + 1), kEditor,
                                        At::SoundButton(i), kMark, "but_normal_Btn01",
                                        BelowCaption(At::SoundButton(i)))};
        if (i > 0)
            looks << ButtonLook(QStringLiteral("sound button %1 no longer chosen").arg(i), kEditor,
                                At::SoundButton(i - 1), "but_normal_Btn01", kMark,
                                BelowCaption(At::SoundButton(i - 1)));
        else
            looks << ButtonLook(QStringLiteral("timeline page down arrow"), kEditor, At::TimelineDown,
                                "ButtonSmallCircleDown_common", nullptr, At::TimelineDown);
        WAIT_FOR(QStringLiteral("sound %1").arg(i + 1), looks);
    }

    // The next sound set page renames the buttons; a thirteenth sound from it starts the
    // timeline's second page, and the timeline scrolls there.
    const QImage firstPage = shot();
    QVERIFY(app.click(Centre(At::SoundPageNext)));
    const QRect firstCaption = Part(At::SoundButton(0), 8, 8, 100, 24);
    WAIT_FOR(QStringLiteral("sound set page 2"), {}, [&](const QImage& s) {
        return Scene::Difference(s, firstPage, firstCaption) < 2
                   ? QStringLiteral("the sound names did not change")
                   : QString();
    });
    QVERIFY(app.click(Centre(At::SoundButton(4))));
    Scene onlyFirst = On(kEditor);
    onlyFirst.button(QString::fromLatin1(kMark), At::TimelineSlot(0));
    Scene twoItems = On(kEditor);
    twoItems.button(QString::fromLatin1(kMark), At::TimelineSlot(0))
        .button(QString::fromLatin1(kMark), At::TimelineSlot(1));
    const QRect firstTwo = BelowCaption(At::TimelineSlot(0)).united(BelowCaption(At::TimelineSlot(1)));
    const Look pageTwo{QStringLiteral("timeline on its second page"), firstTwo, onlyFirst, twoItems};
    const Look pageOne{QStringLiteral("timeline on its first page"), firstTwo, twoItems, onlyFirst};
    WAIT_FOR(QStringLiteral("scrolled to page 2"),
             {pageTwo,
              ButtonLook(QStringLiteral("sound button 5 chosen"), kEditor, At::SoundButton(4), kMark,
                         "but_normal_Btn01", BelowCaption(At::SoundButton(4))),
              ButtonLook(QStringLiteral("sound button 12 no longer chosen"), kEditor, At::SoundButton(11),
                         "but_normal_Btn01", kMark, BelowCaption(At::SoundButton(11)))});

    // The timeline's arrows scroll back a page and on again.
    QVERIFY(app.click(Centre(At::TimelineUp)));
    WAIT_FOR(QStringLiteral("scrolled back to page 1"), {pageOne});
    QVERIFY(app.click(Centre(At::TimelineDown)));
    WAIT_FOR(QStringLiteral("scrolled on to page 2"), {pageTwo});

    // The laser tab; a configuration button shows that configuration's picture.
    QVERIFY(app.click(Centre(At::LaserTabOnSound)));
    const auto laserPicture = [](const char* shown, const char* instead) {
        Scene expected = On(kEditor);
        expected.picture(QString::fromLatin1(shown), At::LaserPicture.topLeft());
        Scene other = On(kEditor);
        other.picture(QString::fromLatin1(instead), At::LaserPicture.topLeft());
        return Look{QStringLiteral("configuration picture %1").arg(QString::fromLatin1(shown)),
                    At::LaserPicture.adjusted(0, 4, 0, -4), expected, other};
    };
    WAIT_FOR(QStringLiteral("laser screen"),
             {ButtonLook(QStringLiteral("laser tab"), kEditor, At::LaserTabOnLaser, "lazer_over", "lazer",
                         Part(At::LaserTabOnLaser, 0, 0, 56, 63)),
              laserPicture("pim-A", "pim-B")});
    QVERIFY(app.click(Centre(At::Configuration2)));
    WAIT_FOR(QStringLiteral("configuration 2"), {laserPicture("pim-B", "pim-A")});

    // Back leads to the sound screen (its timeline as it was left), its Back to the movement
    // screen, and that Back to the main menu with its captions in their normal colour.
    QVERIFY(app.click(Centre(At::BackOnLaser)));
    WAIT_FOR(QStringLiteral("back on the sound screen"),
             {ButtonLook(QStringLiteral("sound tab"), kEditor, At::SoundTabOnSound, "sound_over", "sound",
                         Part(At::SoundTabOnSound, 0, 0, 54, 63)),
              pageTwo});
    QVERIFY(app.click(Centre(At::BackOnSound)));
    WAIT_FOR(QStringLiteral("back on the movement screen"),
             {ButtonLook(QStringLiteral("movement tab"), kEditor, At::MovementTabOnMovement, "movement_over",
                         "movement", Part(At::MovementTabOnMovement, 0, 0, 60, 63))});
    QVERIFY(app.click(Centre(At::BackOnMovement)));
    QVERIFY(app.moveTo(QPoint(400, 60)));
    QVERIFY2(menuReady(QStringLiteral("back on the menu")), qPrintable(m_failure));

    // Only the alarm screen's way back to the menu writes its line.
    QVERIFY(!app.errorOutput().contains(QLatin1String("BackToMainMenu")));
}

void TestEndToEnd::alarmWithConfirmation() {
    AppWindow& app = *m_app;
    QVERIFY2(menuReady(QStringLiteral("menu")), qPrintable(m_failure));

    QVERIFY(app.click(Centre(At::Alarm)));
    const Look chooseBirthday =
        ButtonLook(QStringLiteral("birthday status"), kCommon, At::BirthdayStatus, "but_normal_Btn03",
                   nullptr, Part(At::BirthdayStatus, 210, 0, 116, 46));
    WAIT_FOR(
        QStringLiteral("choose page"),
        {chooseBirthday, ButtonLook(QStringLiteral("wake-up status"), kCommon, At::WakeupStatus,
                                    "but_normal_Btn03", nullptr, Part(At::WakeupStatus, 210, 0, 116, 46))});
    const QImage statusOff = shot();

    // The birthday page: off at first; On shows the date and time buttons.
    QVERIFY(app.click(Centre(At::BirthdayStatus)));
    const QRect onPart = Part(At::BirthdayOn, 45, 0, 66, 46);
    const QRect offPart = Part(At::BirthdayOff, 45, 0, 66, 46);
    WAIT_FOR(QStringLiteral("birthday page"),
             {ButtonLook(QStringLiteral("On"), kCommon, At::BirthdayOn, "but_normal_Btn01",
                         "but_selected_Btn01", onPart),
              ButtonLook(QStringLiteral("Off chosen"), kCommon, At::BirthdayOff, "but_selected_Btn01",
                         "but_normal_Btn01", offPart),
              ButtonLook(QStringLiteral("Done"), kCommon, At::AlarmDone, "but_common_BtnSilver", nullptr,
                         Part(At::AlarmDone, 58, 0, 27, 40))});
    QVERIFY(app.click(Centre(At::BirthdayOn)));
    const Look dateButton = ButtonLook(QStringLiteral("date button"), kCommon, At::BirthDate,
                                       "but_normal_Btn02", nullptr, Part(At::BirthDate, 120, 0, 60, 46));
    WAIT_FOR(QStringLiteral("birthday on"),
             {ButtonLook(QStringLiteral("On chosen"), kCommon, At::BirthdayOn, "but_selected_Btn01",
                         "but_normal_Btn01", onPart),
              ButtonLook(QStringLiteral("Off"), kCommon, At::BirthdayOff, "but_disabled_Btn01",
                         "but_selected_Btn01", offPart),
              dateButton,
              ButtonLook(QStringLiteral("time button"), kCommon, At::BirthTime, "but_normal_Btn02", nullptr,
                         Part(At::BirthTime, 120, 0, 60, 46))});

    // The date editor: a year up with the keyboard, then Set writes the new date on the button.
    const QImage dateBefore = shot();
    QVERIFY(app.click(Centre(At::BirthDate)));
    const Look setButton = ButtonLook(QStringLiteral("Set"), kCommon, At::EditorSet, "but_normal_Btn01",
                                      nullptr, Part(At::EditorSet, 75, 0, 36, 46));
    WAIT_FOR(QStringLiteral("date editor"), {setButton});
    const QImage editorOpen = shot();
    // The app takes X input in order: the key lands in the picker before the click on Set.
    QVERIFY(app.click(At::DatePicker.topLeft() + QPoint(24, 25)));
    QVERIFY(app.key(QStringLiteral("Up")));
    QVERIFY(app.click(Centre(At::EditorSet)));
    const QRect dateCaption = Part(At::BirthDate, 8, 8, 110, 30);
    WAIT_FOR(QStringLiteral("date set"), {dateButton}, [&](const QImage& s) {
        if (Scene::Difference(s, editorOpen, At::EditorSet) < 3)
            return QStringLiteral("the editor is still open");
        return Scene::Difference(s, dateBefore, dateCaption) < 1
                   ? QStringLiteral("the date on the button is unchanged")
                   : QString();
    });

    // Done shows the confirmation page for a while, then the choose page with the new status.
    QVERIFY(app.click(Centre(At::AlarmDone)));
    QElapsedTimer shown;
    shown.start();
    Scene confirmation = On(kCommon);
    confirmation.picture(QStringLiteral("Pim_confirmation"), QPoint(0, 0), QStringLiteral("jpg"));
    Scene choosePage = On(kCommon);
    choosePage.button(QStringLiteral("but_normal_Btn03"), At::BirthdayStatus);
    const QRect lowerHalf(0, 430, 1024, 270);
    // The message's second line ends in "I'll"; its last letter lies near the bubble's edge.
    const QRect lastLetterOfLineTwo(438, 310, 9, 18);
    WAIT_FOR(QStringLiteral("confirmation page"),
             {{QStringLiteral("confirmation picture"), lowerHalf, confirmation, choosePage}},
             [&](const QImage& s) {
                 // Thin strokes on navy: any clearly orange pixel is ink.
                 int ink = 0;
                 for (int y = lastLetterOfLineTwo.top(); y <= lastLetterOfLineTwo.bottom(); ++y)
                     for (int x = lastLetterOfLineTwo.left(); x <= lastLetterOfLineTwo.right(); ++x) {
                         const QColor c = s.pixelColor(x, y);
                         ink += c.red() > 120 && c.blue() < 100 ? 1 : 0;
                     }
                 return ink < 6 ? QStringLiteral("the message's \"I'll\" is cut") : QString();
             });
    WAIT_FOR(QStringLiteral("choose page again"),
             {chooseBirthday, {QStringLiteral("no confirmation"), lowerHalf, choosePage, confirmation}},
             [&](const QImage& s) {
                 return Scene::Difference(s, statusOff, Part(At::BirthdayStatus, 8, 8, 200, 30)) < 1
                            ? QStringLiteral("the birthday status still reads as before")
                            : QString();
             });
    std::printf("confirmation page went after %.1f s\n", shown.elapsed() / 1000.0);

    // Back on the choose page returns to the main menu and says so on stderr.
    QVERIFY(!app.errorOutput().contains(QLatin1String("BackToMainMenu")));
    QVERIFY(app.click(Centre(At::AlarmBack)));
    QVERIFY(app.moveTo(QPoint(400, 60)));
    // This way back does not renew the menu's captions: "Alarm/Clock" may keep the white it
    // took when it was clicked.
    QVERIFY2(menuReady(QStringLiteral("back on the menu"), false), qPrintable(m_failure));
    static const QRegularExpression line(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "
                                                        "robot-companion\\[\\d+:\\d+\\] BackToMainMenu$"),
                                         QRegularExpression::MultilineOption);
    QTRY_VERIFY2_WITH_TIMEOUT(line.match(app.errorOutput()).hasMatch(), qPrintable(app.errorOutput()), 20000);
    QCOMPARE(app.errorOutput().count(QLatin1String("BackToMainMenu")), 1);
}

// Keys typed while a field is not on view change nothing: the name typed before Back is all the
// field holds when the screen shows again.
void TestEndToEnd::typingReachesOnlyWhatIsOnView() {
    AppWindow& app = *m_app;
    QVERIFY2(menuReady(QStringLiteral("menu")), qPrintable(m_failure));
    QVERIFY(app.click(Centre(At::Program)));
    const Look createUp = ButtonLook(QStringLiteral("Create"), kCommon, At::CreateNamed, "but_normal_Btn01",
                                     "but_over_Btn01", Part(At::CreateNamed, 75, 0, 36, 46));
    const Look createScenario =
        ButtonLook(QStringLiteral("Create a new scenario"), kCommon, At::CreateScenario, "but_normal_Btn03",
                   nullptr, Part(At::CreateScenario, 235, 0, 91, 46));
    WAIT_FOR(QStringLiteral("scenario screen"), {createScenario});
    QVERIFY(app.click(Centre(At::CreateScenario)));
    WAIT_FOR(QStringLiteral("create view"), {createUp});
    const QImage emptyField = shot();
    QVERIFY(app.click(Centre(At::NameField)));
    QVERIFY(app.type(QStringLiteral("Robo")));
    // Right of "Robo" and its caret the field stays empty.
    const QRect afterName = Part(At::NameField, 60, 0, 130, 20);
    WAIT_FOR(QStringLiteral("name typed"), {createUp}, [&](const QImage& s) {
        return Scene::Difference(s, emptyField, Part(At::NameField, 0, 0, 60, 20)) < 3
                   ? QStringLiteral("the name field shows no text")
                   : QString();
    });

    QVERIFY(app.click(Centre(At::BackOnScenario)));
    QVERIFY(app.moveTo(QPoint(400, 60)));
    QVERIFY2(menuReady(QStringLiteral("back on the menu"), false), qPrintable(m_failure));
    QVERIFY(app.type(QStringLiteral("XYZXYZXYZ")));
    QVERIFY(app.click(Centre(At::Program)));
    WAIT_FOR(QStringLiteral("scenario screen again"), {createScenario});
    QVERIFY(app.click(Centre(At::CreateScenario)));
    WAIT_FOR(QStringLiteral("create view again"), {createUp}, [&](const QImage& s) {
        return Scene::Difference(s, emptyField, afterName) > 1
                   ? QStringLiteral("the hidden field took the keys")
                   : QString();
    });
}

bool TestEndToEnd::openBirthdayOn() {
    AppWindow& app = *m_app;
    if (!menuReady(QStringLiteral("menu"))) return false;
    app.click(Centre(At::Alarm));
    if (!waitFor(QStringLiteral("choose page"),
                 {ButtonLook(QStringLiteral("birthday status"), kCommon, At::BirthdayStatus,
                             "but_normal_Btn03", nullptr, Part(At::BirthdayStatus, 210, 0, 116, 46))}))
        return false;
    app.click(Centre(At::BirthdayStatus));
    app.click(Centre(At::BirthdayOn));
    return waitFor(QStringLiteral("birthday on"),
                   {ButtonLook(QStringLiteral("date button"), kCommon, At::BirthDate, "but_normal_Btn02",
                               nullptr, Part(At::BirthDate, 120, 0, 60, 46))});
}

QImage TestEndToEnd::pickBirthday(const QString& digits) {
    AppWindow& app = *m_app;
    if (!openBirthdayOn()) return {};
    app.click(Centre(At::BirthDate));
    const Look setButton = ButtonLook(QStringLiteral("Set"), kCommon, At::EditorSet, "but_normal_Btn01",
                                      nullptr, Part(At::EditorSet, 75, 0, 36, 46));
    if (!waitFor(QStringLiteral("date editor"), {setButton})) return {};
    const QImage editorOpen = shot();
    // The year selected, then the digits: a full section hands the typing on to the next.
    app.click(At::DatePicker.topLeft() + QPoint(24, 36));
    app.key(QStringLiteral("Home"));
    for (int i = 0; i < 4; ++i) app.key(QStringLiteral("shift+Right"));
    app.type(digits);
    app.click(Centre(At::EditorSet));
    if (!waitFor(QStringLiteral("date set"), {}, [&](const QImage& s) {
            return Scene::Difference(s, editorOpen, At::EditorSet) < 3
                       ? QStringLiteral("the editor is still open")
                       : QString();
        }))
        return {};
    // A screenshot may catch a repaint half flushed: the one that counts comes after it settled.
    QTest::qWait(500);
    return shot();
}

// A birthday is a calendar date: picked in a zone that skipped that day, the button writes the
// same date as in UTC.
void TestEndToEnd::birthdayIsTheDayPickedInEveryZone() {
    const QRect dateCaption = Part(At::BirthDate, 8, 8, 110, 30);
    QImage inZone[2];
    const char* const zones[] = {"UTC", "Pacific/Apia"};
    for (int i = 0; i < 2; ++i) {
        m_app.reset();
        qputenv("TZ", zones[i]);
        m_app = std::make_unique<AppWindow>(*g_display);
        QString why;
        const bool started = m_app->start(QStringLiteral(ROBOT_E2E_APP), &why);
        qunsetenv("TZ");
        QVERIFY2(started, qPrintable(why));
        QVERIFY(m_app->moveTo(QPoint(400, 60)));
        inZone[i] = pickBirthday(QStringLiteral("20111230"));
        QVERIFY2(!inZone[i].isNull(), qPrintable(m_failure));
    }
    if (Scene::Difference(inZone[0], inZone[1], dateCaption) >= 0.5) {
        inZone[0].save(QStringLiteral("e2e-birthday-UTC.png"));
        inZone[1].save(QStringLiteral("e2e-birthday-Apia.png"));
    }
    QVERIFY2(Scene::Difference(inZone[0], inZone[1], dateCaption) < 0.5,
             "the date picked in Apia is written differently from the same date in UTC");
}

// Exit code CTest reads as "skipped".
constexpr int kSkipped = 77;

int main(int argc, char** argv) {
    // The checks only read and compose pictures; the app under test gets the real X display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);

    const bool required = qEnvironmentVariableIntValue("ROBOT_E2E_REQUIRED") != 0;
    const auto skip = [required](const QString& why) {
        std::fprintf(stderr, "%s end-to-end tests: %s\n", required ? "Cannot run the" : "SKIPPED",
                     qPrintable(why));
        return required ? 1 : kSkipped;
    };
    if (const QString missing = XDisplay::MissingTools(); !missing.isEmpty()) return skip(missing);
    Scene::SetPictureFolder(QStringLiteral(ROBOT_E2E_PICTURES));
    if (Scene::Picture(QStringLiteral("mainpage_bg")).isNull())
        return skip(QStringLiteral("the pictures were not rendered into ") + Scene::PictureFolder());

    XDisplay display;
    QString why;
    if (!display.start(&why)) return skip(why);
    g_display = &display;

    TestEndToEnd tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "e2e_window.moc"
