// What the user's own work does to the cost of what stays on view, each measured against the same
// thing in a window where that work was not done, in the same run:
//
//   bench_session [--only scroll|hover] [--samples N]
//
// scroll: a whole one-page timeline scroll (every tick, each with its pass of the event loop),
//         in a window holding 512 timeline items, against the same scroll in one holding 24.
// hover:  a pointer move over the main menu after a long session (a thousand screen changes and
//         ten thousand keystrokes in the scenario name field), against the same move in the same
//         window before the session. The move crosses no registered rectangle, so it fires no
//         callback either time.
//
// The two scroll windows live in one process and take their samples in turn. Under callgrind the Bench*
// functions are the units whose instructions are counted.

#include "BenchClock.h"

#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"
#include "NSApplicationMain.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>

namespace {

// The application's window, shown, painted and with the main menu ready.
struct App {
    std::unique_ptr<QWidget> window = LoadMainWindow();
    Frame_Control* root = RootView(window.get());

    App() {
        window->move(0, 0);
        window->show();
        Bench::PaintCounter first(window.get());
        while (first.count() == 0) QCoreApplication::processEvents();
        RobotSlide& slide = root->frmMainMenu()->robotSlide;
        while (!slide.hasArrived()) slide.RobotAction();
        QCoreApplication::processEvents();
    }
};

Bench::Sample Measure(const std::function<void()>& step) {
    const std::int64_t cpu = Bench::CpuNowNs();
    const std::int64_t wall = Bench::WallNowNs();
    step();
    return {Bench::CpuNowNs() - cpu, Bench::WallNowNs() - wall};
}

void Scroll(Frame_Sound* sound, qint32 page) {
    SoundTimeline& timeline = sound->Timeline;
    const bool later = page > timeline.iPageNumber();
    timeline.SoundContentMoveToPage(page);
    if (timeline.timer()) timeline.timer()->stop();
    while (timeline.Busy()) {
        later ? timeline.SoundContentItemDown() : timeline.SoundContentItemUP();
        QCoreApplication::processEvents();
    }
}

void MovePointer(QWindow* window, QPoint to) {
    QMouseEvent move(QEvent::MouseMove, to, window->mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    QCoreApplication::processEvents();
}

void Key(QWidget* to, Qt::Key key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(to, &press);
    QCoreApplication::sendEvent(to, &release);
}

// A long session, ending on the main menu: a thousand screen changes along every route, then ten
// thousand keystrokes in the name field ("ab", then Backspace and "b" again and again, so that
// every keystroke leaves a name and so registers "Create" once more).
void LongSession(Frame_Control* root) {
    static constexpr Route kRound[] = {Route::MainMenuAlarm, Route::AlarmBack,     Route::MainMenuProgram,
                                       Route::ScenarioGo,    Route::MovementLazer, Route::LazerSound,
                                       Route::SoundMovement, Route::MovementBack};
    for (int change = 0; change < 1000; ++change) {
        root->Follow(kRound[change % std::size(kRound)]);
        QCoreApplication::processEvents();
    }
    Frame_Scenario* scenario = root->frmScenario();
    root->Follow(Route::MainMenuProgram);
    Frame_Scenario_CreateBtnAction(scenario, scenario->BtnCreate);
    QCoreApplication::processEvents();
    Key(scenario->txtScenarioName, Qt::Key_A, QStringLiteral("a"));
    for (int key = 1; key < 10000; ++key)
        key % 2 ? Key(scenario->txtScenarioName, Qt::Key_B, QStringLiteral("b"))
                : Key(scenario->txtScenarioName, Qt::Key_Backspace, {});
    QCoreApplication::processEvents();
    Frame_Scenario_BackBtnAction(scenario, scenario->BtnBack);
    QCoreApplication::processEvents();
}

struct Result {
    const char* name;
    std::vector<Bench::Sample> measured, floor;
};

} // namespace

__attribute__((noinline)) void BenchScrollMany(Frame_Sound* sound, qint32 page) {
    Scroll(sound, page);
}

__attribute__((noinline)) void BenchScrollFew(Frame_Sound* sound, qint32 page) {
    Scroll(sound, page);
}

__attribute__((noinline)) void BenchMoveLong(QWindow* window, QPoint to) {
    MovePointer(window, to);
}

__attribute__((noinline)) void BenchMoveFresh(QWindow* window, QPoint to) {
    MovePointer(window, to);
}

namespace {

Result ScrollCost(int samples) {
    Result result{"One-page timeline scroll, 512 items (floor: 24 items)", {}, {}};
    App many, few;
    Frame_Sound* sounds[2] = {many.root->frmSound(), few.root->frmSound()};
    const qint32 items[2] = {kSoundContentItemMax, 24};
    // The last two full pages of each timeline.
    const qint32 pages[2][2] = {{40, 41}, {0, 1}};
    for (int i = 0; i < 2; ++i) {
        App& app = i == 0 ? many : few;
        app.root->Follow(Route::MainMenuProgram);
        app.root->Follow(Route::ScenarioGo);
        app.root->Follow(Route::MovementSound);
        for (qint32 n = 0; n < items[i]; ++n) sounds[i]->Timeline.SetSoundContent(n % 36);
        Scroll(sounds[i], pages[i][0]);
    }
    for (int s = 0; s < 2 * samples + 2; ++s) {
        const int turn = s % 2 ? 0 : 1; // to the later page, then back
        if (s < 2) {                    // warm-up
            Scroll(sounds[0], pages[0][1 - turn]);
            Scroll(sounds[1], pages[1][1 - turn]);
            continue;
        }
        result.measured.push_back(Measure([&] { BenchScrollMany(sounds[0], pages[0][1 - turn]); }));
        result.floor.push_back(Measure([&] { BenchScrollFew(sounds[1], pages[1][1 - turn]); }));
    }
    return result;
}

Result HoverCost(int samples) {
    Result result{
        "Pointer move over the main menu after a long session (floor: the same window fresh)", {}, {}};
    // One window, measured fresh and then again after the session: a second window would share
    // the application's registrations and so not be fresh.
    App app;
    QWindow* window = app.window->windowHandle();
    const QPoint points[2] = {QPoint(300, 100), QPoint(330, 120)};
    for (int s = 0; s < 4; ++s) MovePointer(window, points[s % 2]);
    for (int s = 0; s < samples; ++s)
        result.floor.push_back(Measure([&] { BenchMoveFresh(window, points[s % 2]); }));
    LongSession(app.root);
    for (int s = 0; s < 4; ++s) MovePointer(window, points[s % 2]);
    for (int s = 0; s < samples; ++s)
        result.measured.push_back(Measure([&] { BenchMoveLong(window, points[s % 2]); }));
    return result;
}

void Print(const Result& r) {
    const double m = Bench::MedianCpuUs(r.measured);
    const double f = Bench::MedianCpuUs(r.floor);
    std::printf("| %s | %zu | %.0f µs | %.0f µs | %.2f |\n", r.name, r.measured.size(), f, m,
                f > 0 ? m / f : 0.0);
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    const Bench::Options options(argc, argv);
    auto wanted = [&](const char* name) { return options.wanted(name); };

    std::printf("The user's own work: median CPU time per sample (process CPU, offscreen platform)\n\n");
    std::printf("| Measure | Samples | Floor | Application | Ratio |\n|---|---|---|---|---|\n");
    if (wanted("scroll")) Print(ScrollCost(options.samplesOr(40)));
    if (wanted("hover")) Print(HoverCost(options.samplesOr(400)));
    return 0;
}
