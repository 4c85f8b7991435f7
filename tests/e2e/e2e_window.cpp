#include "AppWindow.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <cstdio>
#include <cstdlib>

// The real robot-companion binary in a private X server, worked only with X input at the window
// coordinates of the layout tables, and judged by regions of screenshots against the rendered
// pictures that must show there.
namespace {

// What a part of the window must look like, built from the rendered pictures the app itself
// shows: a screen's background with pictures laid over it where the layout tables put them.
struct Scene {
    static inline QString folder; // the rendered pictures, named as on disk, spaces as underscores
    QImage image{1024, 768, QImage::Format_RGB32};
    bool valid = true;

    // A picture by its resource name; null when it was not rendered.
    static QImage Picture(const QString& name, const QString& type = "png") {
        static QHash<QString, QImage> cache;
        const QString file = folder + '/' + QString(name).replace(' ', '_') + '.' + type;
        if (!cache.contains(file)) cache.insert(file, QImage(file));
        return cache.value(file);
    }
    explicit Scene(const QString& background, const QString& type = "png") {
        image.fill(Qt::black);
        picture(background, {0, 0}, type);
    }
    // A picture at its natural size with its top left corner at `at` (window coordinates).
    Scene& picture(const QString& name, QPoint at, const QString& type = "png") {
        const QImage picture = Picture(name, type);
        valid = valid && !picture.isNull();
        QPainter(&image).drawImage(at, picture);
        return *this;
    }
    // A button's picture: natural size, against the frame's left edge, centred vertically (half a
    // point down in a frame of odd height: Qt rounds as the app does).
    Scene& button(const QString& name, const QRect& frame) {
        return picture(name,
                       {frame.x(), frame.y() + qRound((frame.height() - Picture(name).height()) / 2.0)});
    }

    // Mean difference of two images over a region, 0 (same) to 255, over the three colour
    // channels; 255 when the region is not inside both.
    static double Difference(const QImage& a, const QImage& b, const QRect& region) {
        if (region.isEmpty() || !a.rect().contains(region) || !b.rect().contains(region)) return 255.0;
        const QImage x = a.convertToFormat(QImage::Format_RGB32), y = b.convertToFormat(QImage::Format_RGB32);
        qint64 sum = 0;
        for (int row = region.top(); row <= region.bottom(); ++row) {
            const auto* p = reinterpret_cast<const QRgb*>(x.constScanLine(row));
            const auto* q = reinterpret_cast<const QRgb*>(y.constScanLine(row));
            for (int col = region.left(); col <= region.right(); ++col)
                sum += std::abs(qRed(p[col]) - qRed(q[col])) + std::abs(qGreen(p[col]) - qGreen(q[col])) +
                       std::abs(qBlue(p[col]) - qBlue(q[col]));
        }
        return double(sum) / (3.0 * region.width() * region.height());
    }
};

// A region of the window must show the expected scene rather than the other one.
struct Look {
    QString what;
    QRect region;
    Scene expected, other;

    // Empty when the shot shows the look, else what is wrong. The expected scene may differ from
    // the shot by a little; the two scenes must differ by enough for the region to tell them apart.
    // A shot scaled back from a scaled window, smoothed twice over, may differ by more, and need
    // only be twice as near to the expected scene.
    QString judge(const QImage& shot, bool scaled) const {
        if (!expected.valid || !other.valid)
            return what + ": a picture of the check is missing in " + Scene::folder;
        if (const double apart = Scene::Difference(expected.image, other.image, region); apart < 8.0)
            return what + QStringLiteral(": the region cannot tell the two looks apart (%1)").arg(apart);
        const double d = Scene::Difference(shot, expected.image, region),
                     dOther = Scene::Difference(shot, other.image, region);
        if (scaled ? d <= 8.0 && d * 2 <= dOther : d <= 3.0 && d * 3 < dOther) return {};
        return what + QStringLiteral(": differs by %1 from what it should show, by %2 from the other look")
                          .arg(d, 0, 'f', 1)
                          .arg(dOther, 0, 'f', 1);
    }
};

// A button at `frame` showing `shown` rather than `instead` (null: its frame bare), compared over
// `part` of the frame.
struct Button {
    QRect frame;
    const char *shown, *instead;
    QRect part;
};

// The looks of buttons on a background.
QList<Look> Buttons(const char* background, const QList<Button>& buttons) {
    const auto with = [background](const char* picture, const QRect& frame) {
        Scene scene{background};
        return picture ? scene.button(picture, frame) : scene;
    };
    QList<Look> looks;
    for (const auto& [frame, shown, instead, part] : buttons)
        looks << Look{QStringLiteral("%1 at (%2, %3)").arg(shown).arg(frame.x()).arg(frame.y()),
                      part.translated(frame.topLeft()), with(shown, frame), with(instead, frame)};
    return looks;
}

// Frames of the layout tables in window coordinates, the origins of their sub-views added.
namespace At {
constexpr QPoint Park(400, 60), RobotAtRest(0, 263);
constexpr QRect Program(607, 172, 250, 93), Alarm(607, 297, 250, 93);
constexpr QRect CreateScenario(95, 350, 326, 46), NameField(551, 374, 193, 20),
    CreateNamed(791, 362, 111, 46);
// Back on the scenario, laser and alarm screens; on the movement and sound screens.
constexpr QRect Back(714, 711, 85, 40), BackOnEditor(715, 712, 85, 40), Config2(227, 379, 105, 105);
constexpr QRect MovementTabOnMovement(498, 199, 64, 63), SoundTabOnMovement(663, 199, 64, 63);
constexpr QRect SoundTabOnSound(589, 199, 64, 63), LaserTabOnSound(722, 199, 64, 63),
    LaserTabOnLaser(660, 199, 64, 63);
constexpr QRect LaserPicture(540, 326, 380, 340), Status(96, 329, 326, 46), AlarmDone(839, 711, 85, 40);
constexpr QRect BirthdayOn(124, 340, 111, 46), BirthdayOff(235, 340, 111, 46);
// The first row of sound buttons, and the timeline's first three places.
constexpr QRect SoundButtons[] = {{100, 338, 111, 46}, {221, 338, 111, 46}, {340, 338, 111, 46}};
constexpr QRect TimelineSlots[] = {{564, 329, 111, 46}, {685, 329, 111, 46}, {805, 329, 111, 46}};
} // namespace At

// The band of an item or sound button below its caption, and the part of a menu button clear of it.
constexpr QRect kBelowCaption(14, 32, 97, 14), kMenuPart(0, 0, 250, 48);

// The backgrounds, and the button pictures seen most.
const char *const kMenu = "mainpage_bg", *const kCommon = "common_bg", *const kEditor = "scenario_bg";
const char *const kMark = "but_disabled_Btn01_1", *const kBtn1 = "but_normal_Btn01",
                  *const kBtn1Chosen = "but_selected_Btn01";

const Button kStatus{At::Status, "but_normal_Btn03", nullptr, {210, 0, 116, 46}};
// "Create a new scenario" shown: the scenario screen is on view.
const Button kScenarioShown{At::CreateScenario, "but_normal_Btn03", nullptr, {235, 0, 91, 46}};
const Button kMovementTab{At::MovementTabOnMovement, "movement_over", "movement", {0, 0, 60, 63}};
const Button kCreateUp{At::CreateNamed, kBtn1, "but_over_Btn01", {75, 0, 36, 46}};

} // namespace

#define CHECK(ok) QVERIFY2(ok, qPrintable(m_failure))
#define WAIT_FOR(...) CHECK(waitFor(__VA_ARGS__))

class TestEndToEnd : public QObject {
    Q_OBJECT
    std::unique_ptr<AppWindow> m_app;
    QString m_failure;
    QRect m_scene; // where a scaled window shows the scene; null when it shows it 1:1

    bool startApp() {
        m_app = std::make_unique<AppWindow>();
        m_scene = {};
        // The pointer starts in the middle of the screen, over the menu; park it on the background.
        return m_app->start(QStringLiteral(ROBOT_E2E_APP), &m_failure) && m_app->moveTo(At::Park);
    }

    QImage shot() {
        QImage image;
        for (int attempt = 0; attempt < 6 && (image = m_app->grab()).isNull(); ++attempt) QTest::qWait(200);
        return image;
    }

    // Polls screenshots until every look shows; else keeps the reasons in m_failure and saves the
    // last screenshot.
    bool waitFor(const QString& step, const QList<Look>& looks) {
        const QDeadlineTimer deadline(60000);
        QStringList wrong;
        QImage last;
        do {
            last = shot();
            wrong = last.isNull() ? QStringList{"no screenshot"} : QStringList{};
            const QImage scene =
                m_scene.isNull() || last.isNull()
                    ? last
                    : last.copy(m_scene).scaled(1024, 768, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            for (const Look& look : looks) wrong << look.judge(scene, !m_scene.isNull());
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
        CHECK(menuReady("menu"));

        QVERIFY(app.click(At::Program.center()));
        WAIT_FOR("scenario screen", Buttons(kCommon, {kScenarioShown}));
        QVERIFY(app.click(At::CreateScenario.center()));
        WAIT_FOR("create view", Buttons(kCommon, {kCreateUp}));

        const QImage emptyField = shot();
        QVERIFY(app.click(At::NameField.center()) && app.type("Robo"));
        QTRY_VERIFY_WITH_TIMEOUT(
            Scene::Difference(shot(), emptyField, QRect(At::NameField.topLeft(), QSize(60, 20))) >= 3,
            60000); // the name field shows the text
        QVERIFY(app.click(At::CreateNamed.center()));
        // Each editor screen lights its own tab.
        WAIT_FOR("movement screen", Buttons(kEditor, {kMovementTab}));
        QVERIFY(app.click(At::SoundTabOnMovement.center()));
        WAIT_FOR("sound screen",
                 Buttons(kEditor, {{At::SoundTabOnSound, "sound_over", "sound", {0, 0, 54, 63}}}));

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
        QVERIFY(app.click(At::Back.center()) && app.click(At::BackOnEditor.center()) &&
                app.click(At::BackOnEditor.center()) && app.moveTo(At::Park));
        CHECK(menuReady("back on the menu"));

        // An alarm on, and Done: the confirmation page for a while, then the choose page.
        const QRect half{45, 0, 66, 46};
        QVERIFY(app.click(At::Alarm.center()) && app.click(At::Status.center()) &&
                app.click(At::BirthdayOn.center()));
        WAIT_FOR("birthday on",
                 Buttons(kCommon, {{At::BirthdayOn, kBtn1Chosen, kBtn1, half},
                                   {At::BirthdayOff, "but_disabled_Btn01", kBtn1Chosen, half}}));
        QVERIFY(app.click(At::AlarmDone.center()));
        const Scene confirmation = Scene(kCommon).picture("Pim_confirmation", {0, 0}, "jpg");
        const Scene choosePage = Scene(kCommon).button("but_normal_Btn03", At::Status);
        const QRect lowerHalf(0, 430, 1024, 270);
        WAIT_FOR("confirmation page", {{"confirmation picture", lowerHalf, confirmation, choosePage}});
        WAIT_FOR("choose page again", Buttons(kCommon, {kStatus})
                                          << Look{"no confirmation", lowerHalf, choosePage, confirmation});

        // Back on the choose page returns to the main menu and says so on stderr, once.
        QVERIFY(app.click(At::Back.center()) && app.moveTo(At::Park));
        CHECK(menuReady("back on the menu from the alarm"));
        static const QRegularExpression line("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "
                                             "robot-companion\\[\\d+:\\d+\\] BackToMainMenu$",
                                             QRegularExpression::MultilineOption);
        QTRY_VERIFY2_WITH_TIMEOUT(line.match(app.errorOutput()).hasMatch(), qPrintable(app.errorOutput()),
                                  20000);
        QCOMPARE(app.errorOutput().count("BackToMainMenu"), 1);
    }

    void wholeOnALowScreen_data() {
        QTest::addColumn<bool>("wayland");
        QTest::newRow("X11") << false;
        QTest::newRow("Wayland") << true;
    }

    // On a screen too low for the window it shows whole, scaled down; pointing and clicking land
    // where the buttons are seen, Back brings the menu again, and the keys reach the window the view
    // holds: Tab and Space, and in X Return that creates and sets and Escape that goes back. On
    // Wayland the same pointing, clicking, Tab and Space, in a compositor showing the window
    // fullscreen on a low output.
    void wholeOnALowScreen() {
        QFETCH(bool, wayland);
        // Without Qt's Wayland platform (qt6-wayland) the app says so on stderr, which a failure shows.
        if (wayland && QStandardPaths::findExecutable("weston").isEmpty()) {
            if (qEnvironmentVariableIntValue("ROBOT_E2E_REQUIRED") != 0) QFAIL("weston is not on PATH");
            QSKIP("weston is not on PATH (Debian package weston)");
        }
        m_app = std::make_unique<AppWindow>(QSize(1024, 600), wayland);
        CHECK(m_app->start(QStringLiteral(ROBOT_E2E_APP), &m_failure));
        const QRect window = m_app->geometry();
        QCOMPARE(window.height(), 600); // as large as fits
        QVERIFY(QRect(0, 0, 1024, 600).contains(window));
        // The scene scaled to the window's height, centred in its width (on Wayland the window fills
        // the output, with bands either side).
        const qreal scale = window.height() / 768.0;
        const QTransform toWindow = QTransform::fromScale(scale, scale) *
                                    QTransform::fromTranslate((window.width() - 1024 * scale) / 2, 0);
        const auto at = [toWindow](QPoint p) { return toWindow.map(QPointF(p)).toPoint(); };
        m_scene = toWindow.mapRect(QRectF(0, 0, 1024, 768)).toRect();
        const auto menu = [](const char* shown, const char* instead) {
            return Buttons(kMenu, {{At::Program, shown, instead, kMenuPart}});
        };
        QVERIFY(m_app->moveTo(at(At::Park)));
        WAIT_FOR("menu", menu("command_normal_menus", "command_focused_menus"));
        QVERIFY(m_app->moveTo(at(At::Program.center())));
        WAIT_FOR("program pointed at", menu("command_focused_menus", "command_normal_menus"));
        QVERIFY(m_app->click(at(At::Program.center())));
        WAIT_FOR("scenario screen", Buttons(kCommon, {kScenarioShown}));
        QVERIFY(m_app->click(at(At::Back.center())) && m_app->moveTo(at(At::Park)));
        WAIT_FOR("back on the menu", menu("command_normal_menus", "command_focused_menus"));
        // The keys reach the window the view holds: the first Tab draws the focus ring round
        // "Program scenario", where the menu starts (its top edge a few points above the picture),
        // and Space presses it.
        const QRect ringTop =
            toWindow.mapRect(QRectF(At::Program.x(), At::Program.y() - 6, At::Program.width(), 5)).toRect();
        const QImage before = shot();
        QVERIFY(m_app->key("Tab"));
        QTRY_VERIFY_WITH_TIMEOUT(Scene::Difference(shot(), before, ringTop) > 20 * scale, 10000);
        QVERIFY(m_app->key("space"));
        WAIT_FOR("scenario screen by keys", Buttons(kCommon, {kScenarioShown}));
        if (wayland) return;
        // Return creates and Escape goes back: the focus starts at "Create a new scenario", which
        // opens the name field with the focus in it.
        QVERIFY(m_app->key("space") && m_app->type("Robo") && m_app->key("Return"));
        WAIT_FOR("movement screen by keys", Buttons(kEditor, {kMovementTab}));
        QVERIFY(m_app->key("Escape"));
        WAIT_FOR("menu by escape", menu("command_normal_menus", "command_focused_menus"));
        // Return sets: the alarm (a Tab past "Program scenario"), the birthday page, On, then Tab
        // past Off to the date, whose editor (its Set where the scenario's Create stands) opens with
        // the focus in the picker.
        const Look setShown{"Set", QRect(75, 0, 36, 46).translated(At::CreateNamed.topLeft()),
                            Scene(kCommon).button(kBtn1, At::CreateNamed), Scene(kCommon)};
        for (const char* key : {"Tab", "space", "space", "space", "Tab", "Tab", "space"})
            QVERIFY(m_app->key(key));
        WAIT_FOR("date editor by keys", {setShown});
        QVERIFY(m_app->key("Return"));
        WAIT_FOR("date set by return", {{"no Set", setShown.region, setShown.other, setShown.expected}});
        QVERIFY(m_app->key("Escape"));
        WAIT_FOR("choose page by escape", Buttons(kCommon, {kStatus}));
    }
};

int main(int argc, char** argv) {
    // The checks only read and compose pictures; the app under test gets the real X display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);

    // Without the X tools or the pictures the tests are skipped, unless CI requires them.
    QString missing;
    for (const char* tool : {"Xvfb", "xdotool", "import"})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            missing = tool + QStringLiteral(" is not on PATH (Debian packages xvfb, xdotool, imagemagick)");
    Scene::folder = QStringLiteral(ROBOT_E2E_PICTURES);
    if (missing.isEmpty() && Scene::Picture("mainpage_bg").isNull())
        missing = "the pictures were not rendered into " + Scene::folder;
    if (const bool required = qEnvironmentVariableIntValue("ROBOT_E2E_REQUIRED") != 0; !missing.isEmpty()) {
        std::fprintf(stderr, "%s end-to-end tests: %s\n", required ? "Cannot run the" : "SKIPPED",
                     qPrintable(missing));
        return required ? 1 : 77; // what CTest reads as "skipped"
    }
    TestEndToEnd tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "e2e_window.moc"
