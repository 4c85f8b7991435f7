#include "AppWindow.h"
#include "Scene.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <cstdio>
#include <functional>

// The real robot-companion binary in a private X server, worked only with X input at the window
// coordinates of the layout tables, and judged by regions of screenshots against the rendered
// pictures that must show there.
namespace {

// Frames of the layout tables in window coordinates, the origins of their sub-views added.
namespace At {
constexpr QPoint Park(400, 60), RobotAtRest(0, 263);
// A caption's place: the caption rectangle's origin (90, 53) plus the line padding.
constexpr QRect Program(607, 172, 250, 93), Alarm(607, 297, 250, 93), ProgramCaption(700, 222, 150, 24);
constexpr QRect CreateScenario(95, 350, 326, 46), NameField(551, 374, 193, 20),
    CreateNamed(791, 362, 111, 46);
// Back on the scenario, laser and alarm screens; on the movement and sound screens.
constexpr QRect Back(714, 711, 85, 40), BackOnEditor(715, 712, 85, 40), Config2(227, 379, 105, 105);
constexpr QRect MovementTabOnMovement(498, 199, 64, 63), SoundTabOnMovement(663, 199, 64, 63);
constexpr QRect SoundTabOnSound(589, 199, 64, 63), LaserTabOnSound(722, 199, 64, 63),
    LaserTabOnLaser(660, 199, 64, 63);
constexpr QRect LaserPicture(540, 326, 380, 340), DatePicker(552, 339, 195, 50), Status(96, 329, 326, 46);
constexpr QRect BirthdayOn(124, 340, 111, 46), BirthdayOff(235, 340, 111, 46), EditorSet(791, 362, 111, 46);
constexpr QRect BirthDate(205, 417, 180, 46), AlarmDone(839, 711, 85, 40);
// The first row of sound buttons, and the timeline's first three places.
constexpr QRect SoundButtons[] = {{100, 338, 111, 46}, {221, 338, 111, 46}, {340, 338, 111, 46}};
constexpr QRect TimelineSlots[] = {{564, 329, 111, 46}, {685, 329, 111, 46}, {805, 329, 111, 46}};
} // namespace At

// Part of a frame: x and y from its left and top, w wide and h high (clear of the captions).
QRect Part(const QRect& frame, int x, int y, int w, int h) {
    return {frame.x() + x, frame.y() + y, w, h};
}

// The band of an item or sound button below its caption, and the part of a menu button clear of it.
constexpr QRect kBelowCaption(14, 32, 97, 14), kMenuPart(0, 0, 250, 48);
const QRect kDateCaption = Part(At::BirthDate, 8, 8, 110, 30);

const char* const kMenu = "mainpage_bg";
const char* const kCommon = "common_bg";
const char* const kEditor = "scenario_bg";
const char* const kMark = "but_disabled_Btn01_1";
const char* const kBtn1 = "but_normal_Btn01";
const char* const kBtn1Chosen = "but_selected_Btn01";

const Button kStatus{At::Status, "but_normal_Btn03", nullptr, {210, 0, 116, 46}};
const Button kDateButton{At::BirthDate, "but_normal_Btn02", nullptr, {120, 0, 60, 46}};
const Button kCreateUp{At::CreateNamed, kBtn1, "but_over_Btn01", {75, 0, 36, 46}};

using Check = std::function<QString(const QImage&)>;

// The region must differ from `before` by at least `least`.
Check Changed(const QImage& before, const QRect& region, double least, const char* otherwise) {
    return [=](const QImage& s) {
        return Scene::Difference(s, before, region) < least ? QString::fromLatin1(otherwise) : QString();
    };
}

} // namespace

#define CHECK(ok) QVERIFY2(ok, qPrintable(m_failure))
#define WAIT_FOR(...) CHECK(waitFor(__VA_ARGS__))

class TestEndToEnd : public QObject {
    Q_OBJECT
    std::unique_ptr<AppWindow> m_app;
    QString m_failure;

    bool startApp() {
        m_app = std::make_unique<AppWindow>();
        // The pointer starts in the middle of the screen, over the menu; park it on the background.
        return m_app->start(QStringLiteral(ROBOT_E2E_APP), &m_failure) && m_app->moveTo(At::Park);
    }

    QImage shot() {
        QImage image;
        for (int attempt = 0; attempt < 6 && (image = m_app->grab()).isNull(); ++attempt) QTest::qWait(200);
        return image;
    }

    // Polls screenshots until every look shows and `also` finds nothing wrong; else keeps the
    // reasons in m_failure and saves the last screenshot.
    bool waitFor(const QString& step, const QList<Look>& looks, const Check& also = {}) {
        const QDeadlineTimer deadline(60000);
        QStringList wrong;
        QImage last;
        do {
            last = shot();
            wrong = last.isNull() ? QStringList{"no screenshot"} : QStringList{};
            for (const Look& look : looks) wrong << look.judge(last);
            if (also && !last.isNull()) wrong << also(last);
            wrong.removeAll(QString());
            if (wrong.isEmpty()) return true;
            // A picture missing from the build will not appear by waiting.
            if (wrong.first().contains("missing") || !m_app->isRunning()) break;
            QTest::qWait(150);
        } while (!deadline.hasExpired());
        QString name = QStringLiteral("e2e-%1-%2.png").arg(QTest::currentTestFunction(), step);
        name.replace(QRegularExpression("[^A-Za-z0-9.-]+"), "-");
        const QString saved = QDir::current().absoluteFilePath(name);
        if (!last.isNull()) last.save(saved);
        m_failure = QStringLiteral("%1: %2 (screenshot: %3)").arg(step, wrong.join("; "), saved);
        return false;
    }

    // The menu with its robot at rest and its buttons shown.
    bool menuReady(const QString& step) {
        return waitFor(
            step, Buttons(kMenu, {{At::Program, "command_normal_menus", "command_focused_menus", kMenuPart},
                                  {At::Alarm, "clock_normal_menus", "clock_focused_menus", kMenuPart}})
                      << Look{"robot at rest", QRect(60, 300, 480, 400),
                              Scene(kMenu).picture("logo_main", At::RobotAtRest), Scene(kMenu)});
    }

    // From the scenario screen to its name field.
    bool openCreateView(const QString& step) {
        return waitFor(
                   step,
                   Buttons(kCommon, {{At::CreateScenario, "but_normal_Btn03", nullptr, {235, 0, 91, 46}}})) &&
               m_app->click(At::CreateScenario.center()) &&
               waitFor(step + ", create view", Buttons(kCommon, {kCreateUp}));
    }

    // From the main menu to the birthday page with the alarm on and its date button shown.
    bool openBirthdayOn() {
        const QRect half{45, 0, 66, 46};
        return menuReady("menu") && m_app->click(At::Alarm.center()) &&
               waitFor("choose page", Buttons(kCommon, {kStatus})) && m_app->click(At::Status.center()) &&
               waitFor(
                   "birthday page",
                   Buttons(kCommon, {{At::AlarmDone, "but_common_BtnSilver", nullptr, {58, 0, 27, 40}}})) &&
               m_app->click(At::BirthdayOn.center()) &&
               waitFor("birthday on",
                       Buttons(kCommon, {{At::BirthdayOn, kBtn1Chosen, kBtn1, half},
                                         {At::BirthdayOff, "but_disabled_Btn01", kBtn1Chosen, half},
                                         kDateButton}));
    }

    // The birthday date editor opened, worked by `keys`, and closed with Set.
    bool editDate(const std::function<void()>& keys) {
        if (!m_app->click(At::BirthDate.center()) ||
            !waitFor("date editor", Buttons(kCommon, {{At::EditorSet, kBtn1, nullptr, {75, 0, 36, 46}}})))
            return false;
        const QImage editorOpen = shot();
        // The app takes X input in order: the keys land in the picker before the click on Set.
        keys();
        return m_app->click(At::EditorSet.center()) &&
               waitFor("date set", Buttons(kCommon, {kDateButton}),
                       Changed(editorOpen, At::EditorSet, 3, "the editor is still open"));
    }

private slots:
    void init() { CHECK(startApp()); }

    void cleanup() {
        if (!m_app) return;
        const bool running = m_app->isRunning();
        m_app->stop();
        const QString errors = m_app->errorOutput();
        const QStringList effects = m_app->sideEffects();
        m_app.reset();
        QVERIFY2(running, qPrintable("the app ended on its own; stderr:\n" + errors));
        // Everything lives in memory: no network, nothing written.
        QVERIFY2(effects.isEmpty(), qPrintable(effects.join('\n')));
        QVERIFY2(!errors.contains("Sanitizer") && !errors.contains("runtime error"), qPrintable(errors));
    }

    void typicalRun() {
        AppWindow& app = *m_app;
        // Each editor screen lights its own tab.
        const auto movementScreen =
            Buttons(kEditor, {{At::MovementTabOnMovement, "movement_over", "movement", {0, 0, 60, 63}}});
        const auto soundScreen =
            Buttons(kEditor, {{At::SoundTabOnSound, "sound_over", "sound", {0, 0, 54, 63}}});
        CHECK(menuReady("menu"));

        // Pointed at, "Program scenario" lights up and whitens its caption.
        QVERIFY(app.moveTo(At::Program.center()));
        WAIT_FOR("program pointed at",
                 Buttons(kMenu, {{At::Program, "command_focused_menus", "command_normal_menus", kMenuPart}}),
                 [](const QImage& s) {
                     const auto white = [](const QColor& c) {
                         return qMin(qMin(c.red(), c.green()), c.blue()) > 210;
                     };
                     return Scene::Ink(s, At::ProgramCaption, white) < 20
                                ? QStringLiteral("caption not white")
                                : QString();
                 });
        QVERIFY(app.click(At::Program.center()));
        CHECK(openCreateView("scenario screen"));

        const QImage emptyField = shot();
        QVERIFY(app.click(At::NameField.center()) && app.type("Robo"));
        WAIT_FOR("name typed", Buttons(kCommon, {kCreateUp}),
                 Changed(emptyField, At::NameField, 3, "the name field shows no text"));
        QVERIFY(app.click(At::CreateNamed.center()));
        WAIT_FOR("movement screen", movementScreen);
        QVERIFY(app.click(At::SoundTabOnMovement.center()));
        WAIT_FOR("sound screen", soundScreen);

        // Three sounds take the timeline's first three places; the last button pressed is marked.
        QList<Button> sounds;
        for (int i = 0; i < 3; ++i) {
            QVERIFY(app.click(At::SoundButtons[i].center()));
            sounds << Button{At::TimelineSlots[i], kMark, nullptr, kBelowCaption}
                   << Button{At::SoundButtons[i], i == 2 ? kMark : kBtn1, i == 2 ? kBtn1 : kMark,
                             kBelowCaption};
        }
        WAIT_FOR("three sounds", Buttons(kEditor, sounds));

        // A laser configuration button shows that configuration's picture.
        QVERIFY(app.click(At::LaserTabOnSound.center()));
        WAIT_FOR("laser screen",
                 Buttons(kEditor, {{At::LaserTabOnLaser, "lazer_over", "lazer", {0, 0, 56, 63}}}));
        QVERIFY(app.click(At::Config2.center()));
        const QPoint at = At::LaserPicture.topLeft();
        WAIT_FOR("configuration 2",
                 {{"configuration picture pim-B", At::LaserPicture.adjusted(0, 4, 0, -4),
                   Scene(kEditor).picture("pim-B", at), Scene(kEditor).picture("pim-A", at)}});

        // The Back chain: the sound screen, the movement screen, the menu.
        QVERIFY(app.click(At::Back.center()));
        WAIT_FOR("back on the sound screen", soundScreen);
        QVERIFY(app.click(At::BackOnEditor.center()));
        WAIT_FOR("back on the movement screen", movementScreen);
        QVERIFY(app.click(At::BackOnEditor.center()) && app.moveTo(At::Park));
        CHECK(menuReady("back on the menu"));
    }

    void alarmWithConfirmation() {
        AppWindow& app = *m_app;
        CHECK(openBirthdayOn());
        // Done shows the confirmation page for a while, then the choose page.
        QVERIFY(app.click(At::AlarmDone.center()));
        const Scene confirmation = Scene(kCommon).picture("Pim_confirmation", {0, 0}, "jpg");
        const Scene choosePage = Scene(kCommon).button("but_normal_Btn03", At::Status);
        const QRect lowerHalf(0, 430, 1024, 270);
        WAIT_FOR("confirmation page", {{"confirmation picture", lowerHalf, confirmation, choosePage}},
                 [](const QImage& s) {
                     // The message's second line ends in "I'll", its last letter near the bubble's
                     // edge: thin strokes on navy, where any clearly orange pixel is ink.
                     return Scene::Ink(s, QRect(438, 310, 9, 18),
                                       [](const QColor& c) { return c.red() > 120 && c.blue() < 100; }) < 6
                                ? QStringLiteral("the message's \"I'll\" is cut")
                                : QString();
                 });
        WAIT_FOR("choose page again", Buttons(kCommon, {kStatus})
                                          << Look{"no confirmation", lowerHalf, choosePage, confirmation});

        // Back on the choose page returns to the main menu and says so on stderr, once.
        QVERIFY(app.click(At::Back.center()) && app.moveTo(At::Park));
        CHECK(menuReady("back on the menu"));
        static const QRegularExpression line("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "
                                             "robot-companion\\[\\d+:\\d+\\] BackToMainMenu$",
                                             QRegularExpression::MultilineOption);
        QTRY_VERIFY2_WITH_TIMEOUT(line.match(app.errorOutput()).hasMatch(), qPrintable(app.errorOutput()),
                                  20000);
        QCOMPARE(app.errorOutput().count("BackToMainMenu"), 1);
    }

    // Keys typed while a field is not on view change nothing: the name typed before Back is all the
    // field holds when the screen shows again.
    void typingReachesOnlyWhatIsOnView() {
        AppWindow& app = *m_app;
        CHECK(menuReady("menu"));
        QVERIFY(app.click(At::Program.center()));
        CHECK(openCreateView("scenario screen"));
        const QImage emptyField = shot();
        QVERIFY(app.click(At::NameField.center()) && app.type("Robo"));
        WAIT_FOR("name typed", Buttons(kCommon, {kCreateUp}),
                 Changed(emptyField, Part(At::NameField, 0, 0, 60, 20), 3, "the name field shows no text"));

        QVERIFY(app.click(At::Back.center()) && app.moveTo(At::Park));
        CHECK(menuReady("back on the menu"));
        QVERIFY(app.type("XYZXYZXYZ") && app.click(At::Program.center()));
        CHECK(openCreateView("scenario screen again"));
        // Right of "Robo" and its caret the field stays empty.
        WAIT_FOR("name field again", Buttons(kCommon, {kCreateUp}), [&](const QImage& s) {
            return Scene::Difference(s, emptyField, Part(At::NameField, 60, 0, 130, 20)) > 1
                       ? QStringLiteral("the hidden field took the keys")
                       : QString();
        });
    }

    // A birthday is a calendar date: picked in a zone that skipped that day, the button writes the
    // same date as in UTC.
    void birthdayIsTheDayPickedInEveryZone() {
        QImage inZone[2];
        const char* const zones[] = {"UTC", "Pacific/Apia"};
        for (int i = 0; i < 2; ++i) {
            qputenv("TZ", zones[i]);
            const bool started = startApp();
            qunsetenv("TZ");
            CHECK(started);
            // The year selected, then the digits: a full section hands the typing on to the next.
            CHECK(openBirthdayOn() && editDate([this] {
                      if (m_app->click(At::DatePicker.topLeft() + QPoint(24, 36))) m_app->key("Home");
                      for (int k = 0; k < 4; ++k) m_app->key("shift+Right");
                      m_app->type("20111230");
                  }));
            // A screenshot may catch a repaint half flushed: the one that counts comes after it settled.
            QTest::qWait(500);
            inZone[i] = shot();
        }
        const bool same = Scene::Difference(inZone[0], inZone[1], kDateCaption) < 0.5;
        if (!same) {
            inZone[0].save("e2e-birthday-UTC.png");
            inZone[1].save("e2e-birthday-Apia.png");
        }
        QVERIFY2(same, "the date picked in Apia is written differently from the same date in UTC");
    }

    // The keyboard alone: Tab draws the focus ring, round "Program scenario" after one Tab or two
    // (where the first lands depends on whether the window came up with a focus), and Space on
    // it opens the scenario screen.
    void keyboardReachesTheScenarioScreen() {
        AppWindow& app = *m_app;
        CHECK(menuReady("menu"));
        const QImage before = shot();
        // The ring's top edge, a few points above the button's picture.
        const QRect ringOnProgram(At::Program.x(), At::Program.y() - 6, At::Program.width(), 5);
        bool ring = false;
        for (int tab = 0; tab < 4 && !ring; ++tab) {
            QVERIFY(app.key("Tab"));
            const QDeadlineTimer settled(2000);
            while (!(ring = Scene::Difference(shot(), before, ringOnProgram) > 20) && !settled.hasExpired())
                QTest::qWait(100);
        }
        QVERIFY2(ring, "no focus ring came round \"Program scenario\"");
        QVERIFY(app.key("space"));
        WAIT_FOR("scenario screen",
                 Buttons(kCommon, {{At::CreateScenario, "but_normal_Btn03", nullptr, {235, 0, 91, 46}}}));
    }
};

int main(int argc, char** argv) {
    // The checks only read and compose pictures; the app under test gets the real X display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);

    const bool required = qEnvironmentVariableIntValue("ROBOT_E2E_REQUIRED") != 0;
    const auto skip = [required](const QString& why) {
        std::fprintf(stderr, "%s end-to-end tests: %s\n", required ? "Cannot run the" : "SKIPPED",
                     qPrintable(why));
        return required ? 1 : 77; // what CTest reads as "skipped"
    };
    for (const char* tool : {"Xvfb", "xdotool", "import"})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            return skip(tool +
                        QStringLiteral(" is not on PATH (Debian packages xvfb, xdotool, imagemagick)"));
    Scene::folder = QStringLiteral(ROBOT_E2E_PICTURES);
    if (Scene::Picture("mainpage_bg").isNull())
        return skip("the pictures were not rendered into " + Scene::folder);
    TestEndToEnd tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "e2e_window.moc"
