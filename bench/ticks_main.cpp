// The animation and drawing costs, in the real window, each against a floor measured in the same
// run: one plain widget that paints the same pictures and texts by hand, with no view objects at
// all, which is the least any implementation can do to put those pixels on the screen.
//
//   bench_ticks [--only robot|timeline|path|scaled-robot|scaled-timeline] [--samples N]
//
// A tick is measured as the application runs it: the step itself, then one pass of the event
// loop, which delivers the coalesced repaint. The timers are stopped and the steps called
// directly, so every sample is one tick and nothing else; the time is the process's CPU time.
// Under callgrind (--toggle-collect=Bench*Tick* and so on) the Bench* functions below are the
// units whose instructions are counted.

#include "BenchClock.h"

#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Sound.h"
#include "NSApplicationMain.h"
#include "PathPlacement.h"
#include "PathTables.h"
#include "ScaledWindow.h"
#include "SoundContentLoc.h"
#include "SoundSetText.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace {

using Bench::Sample;

QPixmap Pix(const char* name) {
    return QPixmap(QStringLiteral(":/pictures/%1.png").arg(QLatin1String(name)));
}

void Flush() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Sample Measure(const std::function<void()>& step) {
    const std::int64_t cpu = Bench::CpuNowNs();
    const std::int64_t wall = Bench::WallNowNs();
    step();
    return {Bench::CpuNowNs() - cpu, Bench::WallNowNs() - wall};
}

// The application's window, shown and painted, with the main menu's slide stopped so that no
// tick but the measured ones runs. With a factor below 1 it is shown as on a screen too small for
// it: scaled down in the scaled window.
struct App {
    std::unique_ptr<QWidget> window = LoadMainWindow();
    Frame_Control* root = RootView(window.get());
    std::unique_ptr<ScaledWindow> scaled;

    explicit App(qreal factor = 1.0) {
        QWidget* top = window.get();
        if (factor < 1.0) {
            scaled = std::make_unique<ScaledWindow>(window.get());
            scaled->resize((QSizeF(window->size()) * factor).toSize());
            top = scaled.get();
        }
        top->move(0, 0);
        top->show();
        Bench::PaintCounter first(window.get());
        while (first.count() == 0) QCoreApplication::processEvents();
        root->frmMainMenu()->robotSlide.timer->stop();
    }

    void showOnly(QWidget* screen) {
        for (QObject* child : root->children())
            if (auto* w = qobject_cast<QWidget*>(child)) w->setHidden(w != screen);
        Flush();
    }
};

// A top-level 1024 x 768 window painted by hand; the floors draw into it.
class FloorWindow : public QWidget {
public:
    explicit FloorWindow(std::function<void(QPainter&, const QRect&)> paint) : m_paint(std::move(paint)) {
        setFixedSize(1024, 768);
        setAttribute(Qt::WA_OpaquePaintEvent);
        move(0, 0);
        show();
        Bench::PaintCounter first(this);
        while (first.count() == 0) QCoreApplication::processEvents();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        m_paint(painter, event->rect());
    }

private:
    std::function<void(QPainter&, const QRect&)> m_paint;
};

struct Result {
    const char* name;
    const char* unit; // what one sample is
    std::vector<Sample> measured;
    std::vector<Sample> floor;
    double paintsPerSample = 0;
    double targetUs = 0; // 0: no target
};

// ---- Robot slide -------------------------------------------------------------------------------

} // namespace

static void RobotTick(Frame_MainMenu* menu) {
    menu->robotSlide.RobotAction();
    QCoreApplication::processEvents();
}

// The measured calls, and only those, go through the Bench* functions (warm-ups call the bodies).
__attribute__((noinline)) void BenchRobotTick(Frame_MainMenu* menu) {
    RobotTick(menu);
}

struct RobotFloorState {
    QWidget* window = nullptr;
    float y = 768.0f;
};

static void RobotFloorTick(RobotFloorState* s) {
    const QRect before(0, static_cast<int>(s->y), 596, 584);
    s->y -= 5.0f;
    s->window->update(before.united(QRect(0, static_cast<int>(s->y), 596, 584)));
    QCoreApplication::processEvents();
}

__attribute__((noinline)) void BenchRobotFloorTick(RobotFloorState* s) {
    RobotFloorTick(s);
}

namespace {

Result RobotSlideFrames(int samples) {
    Result result{"Robot slide frame (one tick + repaint of the main menu)", "tick", {}, {}, 0, 1000};
    App app;
    Frame_MainMenu* menu = app.root->frmMainMenu();
    Bench::PaintCounter paints(menu);
    NSImageViewS* robot = menu->imgRobot;

    const QPixmap background = Pix("mainpage_bg");
    const QPixmap robotPicture = Pix("logo_main");
    RobotFloorState floor;
    FloorWindow floorWindow([&](QPainter& p, const QRect&) {
        p.drawPixmap(0, 0, background);
        p.drawPixmap(QPointF(0, floor.y), robotPicture);
    });
    floor.window = &floorWindow;

    // Keep the robot sliding: put it back at the bottom before it would arrive (the arriving
    // tick brings the menu alive, a different piece of work measured nowhere else).
    auto rewind = [&] {
        auto& slide = menu->robotSlide;
        if (slide.y - RobotSlide::kStep <= RobotSlide::kRestY) {
            slide.y = RobotSlide::kStartY;
            NSRect f = robot->frame();
            f.y = slide.y;
            robot->setFrame(f);
            Flush();
        }
        if (floor.y - 5.0f <= 263.0f) {
            floor.y = 768.0f;
            floorWindow.update();
            Flush();
        }
    };
    for (int i = 0; i < 20; ++i) { // warm-up: pictures decoded, caches filled
        rewind();
        RobotTick(menu);
        RobotFloorTick(&floor);
    }
    int paintCount = 0;
    for (int i = 0; i < samples; ++i) {
        rewind();
        const int before = paints.count();
        result.measured.push_back(Measure([&] { BenchRobotTick(menu); }));
        paintCount += paints.count() - before;
        result.floor.push_back(Measure([&] { BenchRobotFloorTick(&floor); }));
    }
    result.paintsPerSample = samples ? double(paintCount) / samples : 0;
    return result;
}

// ---- Timeline scroll ---------------------------------------------------------------------------

} // namespace

static void TimelineTick(Frame_Sound* sound, bool towardLater) {
    if (towardLater)
        sound->Timeline.SoundContentItemDown();
    else
        sound->Timeline.SoundContentItemUP();
    QCoreApplication::processEvents();
}

__attribute__((noinline)) void BenchTimelineTick(Frame_Sound* sound, bool towardLater) {
    TimelineTick(sound, towardLater);
}

struct TimelineFloorState {
    QWidget* window = nullptr;
    float offset = 0; // how far the items have moved up, in points
    qint32 page = 41;
};

static void TimelineFloorTick(TimelineFloorState* s) {
    s->offset = s->offset + 20.0f > 217.0f ? 0.0f : s->offset + 20.0f;
    s->window->update(QRect(552, 320, 371, 224));
    QCoreApplication::processEvents();
}

__attribute__((noinline)) void BenchTimelineFloorTick(TimelineFloorState* s) {
    TimelineFloorTick(s);
}

namespace {

// Two results: every tick, and the arriving ticks alone, which also put every view in place.
std::vector<Result> TimelineScroll(int samples) {
    Result result{
        "Timeline scroll tick, 512 items (the views on view moved + one repaint)", "tick", {}, {}, 0, 1000};
    Result arriving{"- the arriving ticks alone (the views on view put in place)", "tick", {}, {}, 0, 1000};
    App app;
    Frame_Sound* sound = app.root->frmSound();
    app.showOnly(sound);
    for (qint32 i = 0; i < kSoundContentItemMax; ++i) sound->Timeline.SetSoundContent(i % 36);
    Flush();
    SoundTimeline& timeline = sound->Timeline;
    Bench::PaintCounter paints(sound->SoundContent.frmSoundContent);

    // A page request as the page buttons make it, its timer stopped: the ticks are ours to call.
    auto request = [&](qint32 page) {
        sound->Timeline.SoundContentMoveToPage(page);
        if (timeline.timer()) timeline.timer()->stop();
        return timeline.timer() != nullptr;
    };
    auto scrollTo = [&](qint32 page, const std::function<void(bool)>& tick) {
        const bool later = page > timeline.iPageNumber();
        if (!request(page)) return;
        while (timeline.timer()) tick(later);
        Flush();
    };
    // Start from the end of a long timeline, where the user is after adding 512 items.
    scrollTo(41, [&](bool later) { TimelineTick(sound, later); });

    const QPixmap background = Pix("scenario_bg");
    const QPixmap item = Pix("but_disabled_Btn01_1");
    const QPixmap bars[2] = {Pix("smallbarH"), Pix("smallbarV")};
    QFont nameFont(QStringLiteral("Courier"));
    nameFont.setStyleHint(QFont::TypeWriter);
    nameFont.setPixelSize(14);
    QFont numberFont = nameFont;
    numberFont.setPixelSize(12);
    TimelineFloorState floor;
    const QRect view(552, 320, 371, 224);
    FloorWindow floorWindow([&](QPainter& p, const QRect& dirty) {
        p.drawPixmap(dirty, background, dirty);
        p.setClipRect(view & dirty);
        p.translate(view.topLeft());
        const QFontMetricsF nameMetrics(nameFont), numberMetrics(numberFont);
        for (qint32 i = 0; i < kSoundContentItemMax; ++i) {
            const SoundContentLoc loc = GetSoundContentLoc(i, floor.page);
            const QRectF at = loc.SizeLoc.toRectF().translated(0, -floor.offset);
            if (at.bottom() < -20 || at.top() > 240) continue;
            p.drawPixmap(at.topLeft(), item);
            p.setPen(QColor::fromRgbF(0.5, 0.5, 0.5));
            p.setFont(nameFont);
            p.drawText(at.topLeft() + QPointF(22, 11 + nameMetrics.ascent()),
                       QLatin1String(SoundSetName(i % 36)));
            p.setPen(QColor::fromRgbF(1, 0.5, 0));
            p.setFont(numberFont);
            p.drawText(loc.NumberText.toRectF().topLeft() + QPointF(5, numberMetrics.ascent() - floor.offset),
                       QString::number(i + 1));
            p.drawPixmap(loc.LinkBar.toRectF().translated(0, -floor.offset), bars[loc.LinkBarType & 1],
                         QRectF(bars[0].rect()));
        }
    });
    floor.window = &floorWindow;

    std::vector<Sample>& measured = result.measured;
    int paintCount = 0;
    int ticks = 0;
    auto measuredTick = [&](bool later) {
        const int before = paints.count();
        measured.push_back(Measure([&] { BenchTimelineTick(sound, later); }));
        paintCount += paints.count() - before;
        ++ticks;
        result.floor.push_back(Measure([&] { BenchTimelineFloorTick(&floor); }));
        if (!timeline.timer()) {
            arriving.measured.push_back(measured.back());
            arriving.floor.push_back(result.floor.back());
        }
    };
    // Back and forth between the last two pages, one page per request, as the Up and Down
    // buttons scroll; the arriving ticks (which put every view in place) are samples too.
    for (int warm = 0; warm < 2; ++warm) {
        scrollTo(42, [&](bool later) { TimelineTick(sound, later); });
        scrollTo(41, [&](bool later) { TimelineTick(sound, later); });
        for (int i = 0; i < 12; ++i) TimelineFloorTick(&floor);
    }
    while (ticks < samples) {
        scrollTo(42, measuredTick);
        scrollTo(41, measuredTick);
    }
    result.paintsPerSample = ticks ? double(paintCount) / ticks : 0;
    arriving.paintsPerSample = result.paintsPerSample;
    return {result, arriving};
}

// ---- Path drawing ------------------------------------------------------------------------------

// A fixed, varied sequence of the nine movement commands.
std::vector<qint32> PathCommands() {
    std::vector<qint32> commands;
    quint32 state = 12345;
    for (int i = 0; i < PathPlacement::kMaxPieces; ++i) {
        state = state * 1103515245u + 12345u;
        commands.push_back(static_cast<qint32>((state >> 16) % PathPlacement::kCommandCount));
    }
    return commands;
}

} // namespace

static void PathBatch(Frame_MoveMent* movement, const std::vector<qint32>* commands) {
    for (qint32 c : *commands) movement->SetPath(c);
    QCoreApplication::processEvents();
}

__attribute__((noinline)) void BenchPathBatch(Frame_MoveMent* movement, const std::vector<qint32>* commands) {
    PathBatch(movement, commands);
}

struct PathFloorState {
    QWidget* window = nullptr;
    std::vector<std::pair<qint32, NSRect>> pieces;
};

static void PathFloorBatch(PathFloorState* s, const std::vector<qint32>* commands) {
    s->pieces.clear();
    for (qint32 c : *commands) {
        if (s->pieces.empty()) {
            const qint32 image = PathPlacement::FirstPieceImage(c).value_or(0);
            s->pieces.push_back({image, PathPlacement::FirstFrame(image, 349)});
        } else if (const auto image = PathPlacement::LaterPieceImage(c)) {
            const auto& [prevImage, prevFrame] = s->pieces.back();
            s->pieces.push_back({*image, PathPlacement::NextFrame(prevImage, prevFrame, *image)});
        }
    }
    s->window->update(QRect(514, 273, 392, 349));
    QCoreApplication::processEvents();
}

__attribute__((noinline)) void BenchPathFloorBatch(PathFloorState* s, const std::vector<qint32>* commands) {
    PathFloorBatch(s, commands);
}

namespace {

Result PathDrawing(int samples) {
    Result result{"Path drawing (512 pieces added + one repaint)", "512 pieces", {}, {}, 0, 0};
    App app;
    const std::vector<qint32> commands = PathCommands();

    const QPixmap background = Pix("scenario_bg");
    std::vector<QPixmap> pieces;
    for (const char* name : strPathImgNameTable) pieces.push_back(Pix(name));
    PathFloorState floor;
    const QRect view(514, 273, 392, 349);
    FloorWindow floorWindow([&](QPainter& p, const QRect& dirty) {
        p.drawPixmap(dirty, background, dirty);
        p.setClipRect(view & dirty);
        p.translate(view.topLeft());
        for (const auto& [image, frame] : floor.pieces)
            if (frame.x < view.width() && frame.y < view.height() && frame.x + frame.width > 0 &&
                frame.y + frame.height > 0)
                p.drawPixmap(frame.toRectF(), pieces[image], QRectF(pieces[image].rect()));
    });
    floor.window = &floorWindow;

    int paintCount = 0;
    for (int i = -2; i < samples; ++i) { // two warm-up rounds
        // A fresh movement screen each time: a path only grows, up to 512 pieces.
        auto* movement = new Frame_MoveMent(Frame_Control::WindowFrame());
        app.root->addSubview(movement);
        app.showOnly(movement);
        Bench::PaintCounter paints(movement->frmPath);
        if (i < 0) { // warm-up
            PathBatch(movement, &commands);
            PathFloorBatch(&floor, &commands);
            delete movement;
            Flush();
            continue;
        }
        const Sample s = Measure([&] { BenchPathBatch(movement, &commands); });
        paintCount += paints.count();
        const Sample f = Measure([&] { BenchPathFloorBatch(&floor, &commands); });
        {
            result.measured.push_back(s);
            result.floor.push_back(f);
        }
        delete movement;
        Flush();
    }
    result.paintsPerSample = samples ? double(paintCount) / samples : 0;
    return result;
}

// ---- The scaled window -------------------------------------------------------------------------

// A screen 600 points high shows the 1024 x 768 window at this factor.
constexpr qreal kSmallScreenFactor = 600.0 / 768.0;

} // namespace

// Shown scaled, a repaint takes more than one pass of the event loop: the scene gathers the
// window's updates in a call it posts itself, and only then asks the view for its paint. A tick
// there ends when the window has painted.
static void UntilPainted(const Bench::PaintCounter* paints, int before) {
    for (int pass = 0; pass < 8 && paints->count() == before; ++pass) QCoreApplication::processEvents();
}

__attribute__((noinline)) void BenchScaledRobotTick(Frame_MainMenu* menu, const Bench::PaintCounter* paints) {
    const int before = paints->count();
    RobotTick(menu);
    UntilPainted(paints, before);
}

__attribute__((noinline)) void BenchScaledTimelineTick(Frame_Sound* sound, bool towardLater,
                                                       const Bench::PaintCounter* paints) {
    const int before = paints->count();
    TimelineTick(sound, towardLater);
    UntilPainted(paints, before);
}

namespace {

// The same ticks in the window scaled down as on a 1024 x 600 screen, and, as the floor, in the
// window at 1:1; both windows live side by side and tick in turn.
std::vector<Result> ScaledWindowTicks(int samples, bool wantRobot, bool wantTimeline) {
    Result robot{
        "Robot slide frame, window scaled to 0.78 (floor: the window at 1:1)", "tick", {}, {}, 0, 1000};
    Result timeline{"Timeline scroll tick, 512 items, window scaled to 0.78 (floor: the window at 1:1)",
                    "tick",
                    {},
                    {},
                    0,
                    1000};
    App direct, scaled(kSmallScreenFactor);
    Frame_MainMenu* menus[2] = {scaled.root->frmMainMenu(), direct.root->frmMainMenu()};
    Bench::PaintCounter paints(menus[0]);
    auto rewind = [](Frame_MainMenu* menu) {
        auto& slide = menu->robotSlide;
        if (slide.y - RobotSlide::kStep > RobotSlide::kRestY) return;
        slide.y = RobotSlide::kStartY;
        NSRect f = menu->imgRobot->frame();
        f.y = slide.y;
        menu->imgRobot->setFrame(f);
        Flush();
    };
    std::vector<Result> results;
    for (int i = 0; i < 20 && wantRobot; ++i)
        for (Frame_MainMenu* menu : menus) rewind(menu), RobotTick(menu), Flush();
    int paintCount = 0;
    for (int i = 0; i < samples && wantRobot; ++i) {
        for (Frame_MainMenu* menu : menus) rewind(menu);
        const int before = paints.count();
        robot.measured.push_back(Measure([&] { BenchScaledRobotTick(menus[0], &paints); }));
        paintCount += paints.count() - before;
        robot.floor.push_back(Measure([&] { BenchRobotTick(menus[1]); }));
    }
    robot.paintsPerSample = samples ? double(paintCount) / samples : 0;
    if (wantRobot) results.push_back(robot);
    if (!wantTimeline) return results;

    // Both sound screens at the end of a 512-item timeline, scrolled a page back and forth.
    Frame_Sound* sounds[2] = {scaled.root->frmSound(), direct.root->frmSound()};
    for (App* app : {&scaled, &direct}) app->showOnly(app->root->frmSound());
    for (Frame_Sound* sound : sounds)
        for (qint32 i = 0; i < kSoundContentItemMax; ++i) sound->Timeline.SetSoundContent(i % 36);
    Flush();
    Bench::PaintCounter timelinePaints(sounds[0]->SoundContent.frmSoundContent);
    paintCount = 0;
    int ticks = 0;
    auto scroll = [&](qint32 page, bool measure) {
        for (Frame_Sound* sound : sounds) {
            sound->Timeline.SoundContentMoveToPage(page);
            if (sound->Timeline.timer()) sound->Timeline.timer()->stop();
        }
        const bool later = page > sounds[0]->Timeline.iPageNumber();
        while (sounds[0]->Timeline.timer()) {
            if (!measure) {
                for (Frame_Sound* sound : sounds) TimelineTick(sound, later);
                Flush();
                continue;
            }
            const int before = timelinePaints.count();
            timeline.measured.push_back(
                Measure([&] { BenchScaledTimelineTick(sounds[0], later, &timelinePaints); }));
            paintCount += timelinePaints.count() - before;
            timeline.floor.push_back(Measure([&] { BenchTimelineTick(sounds[1], later); }));
            ++ticks;
        }
        Flush();
    };
    scroll(41, false);
    for (int warm = 0; warm < 2; ++warm) scroll(42, false), scroll(41, false);
    while (ticks < samples) scroll(42, true), scroll(41, true);
    timeline.paintsPerSample = ticks ? double(paintCount) / ticks : 0;
    results.push_back(timeline);
    return results;
}

void Print(const Result& r) {
    const double m = Bench::MedianCpuUs(r.measured);
    const double f = Bench::MedianCpuUs(r.floor);
    char target[64] = "none";
    if (r.targetUs > 0)
        std::snprintf(target, sizeof target, "< %.0f µs: %s", r.targetUs, m < r.targetUs ? "met" : "MISSED");
    std::printf("| %s | %zu | %.0f µs | %.0f µs | %.0f µs | %.1f | %.2f | %s |\n", r.name, r.measured.size(),
                f, m, Bench::MaxCpuUs(r.measured), f > 0 ? m / f : 0.0, r.paintsPerSample, target);
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    const Bench::Options options(argc, argv);
    auto wanted = [&](const char* name) { return options.wanted(name); };

    std::vector<Result> results;
    if (wanted("robot")) results.push_back(RobotSlideFrames(options.samplesOr(400)));
    if (wanted("timeline"))
        for (const Result& r : TimelineScroll(options.samplesOr(230))) results.push_back(r);
    if (wanted("path")) results.push_back(PathDrawing(options.samplesOr(15)));
    if (wanted("scaled-robot") || wanted("scaled-timeline"))
        for (const Result& r :
             ScaledWindowTicks(options.samplesOr(230), wanted("scaled-robot"), wanted("scaled-timeline")))
            results.push_back(r);

    std::printf("Ticks and drawing: median CPU time per sample (process CPU, offscreen platform)\n\n");
    std::printf("| Measure | Samples | Floor: one hand-painted widget | Application | Application, worst | "
                "Ratio | Repaints per sample | Target |\n|---|---|---|---|---|---|---|---|\n");
    for (const Result& r : results) Print(r);
    return 0;
}
