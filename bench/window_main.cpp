// One process, one window: builds it, shows it and returns as soon as its first frame is painted
// (with "ready": once the main menu has come alive, which only the application's window does).
// Built twice: as the application's window (ROBOT_BENCH_APP) and as an empty 1024 x 768 window,
// the floor both are compared with. Prints what it measured as one line of key=value pairs.

#include "BenchClock.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#ifdef ROBOT_BENCH_APP
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "NSApplicationMain.h"
#endif

namespace {

std::unique_ptr<QWidget> MakeWindow() {
#ifdef ROBOT_BENCH_APP
    return LoadMainWindow();
#else
    auto window = std::make_unique<QWidget>();
    window->setFixedSize(1024, 768);
    return window;
#endif
}

} // namespace

// Everything from an empty application to the first painted frame; callgrind counts the
// instructions of this one function (--toggle-collect), so it must stay a function of its own.
__attribute__((noinline)) std::unique_ptr<QWidget> BenchFirstFrame(int* paints, std::int64_t* builtCpuNs) {
    std::unique_ptr<QWidget> window = MakeWindow();
    *builtCpuNs = Bench::CpuNowNs();
    Bench::PaintCounter counter(window.get());
    window->show();
    while (counter.count() == 0) QCoreApplication::processEvents();
    *paints = counter.count();
    return window;
}

int main(int argc, char** argv) {
    const bool ready = argc > 1 && std::strcmp(argv[1], "ready") == 0;
    QApplication app(argc, argv);

    const Bench::Sample start{Bench::CpuNowNs(), Bench::WallNowNs()};
    int paints = 0;
    std::int64_t builtCpuNs = 0;
    std::unique_ptr<QWidget> window = BenchFirstFrame(&paints, &builtCpuNs);
    const Bench::Sample firstFrame{Bench::CpuNowNs(), Bench::WallNowNs()};

    bool menuReady = false;
    // The slide as it runs on its own timer: the CPU between one tick and the next (that tick's
    // repaint and the next step) and the wall time between ticks, whose longest says whether a
    // frame came late.
    std::vector<double> tickCpuUs, tickGapUs;
#ifdef ROBOT_BENCH_APP
    if (ready) {
        Frame_Control* root = RootView(window.get());
        Bench::Sample last{0, 0};
        QObject::connect(root->frmMainMenu()->robotSlide.timer, &QTimer::timeout, [&] {
            const Bench::Sample now{Bench::CpuNowNs(), Bench::WallNowNs()};
            if (last.wallNs) {
                tickCpuUs.push_back((now.cpuNs - last.cpuNs) / 1000.0);
                tickGapUs.push_back((now.wallNs - last.wallNs) / 1000.0);
            }
            last = now;
        });
        const std::int64_t give_up = Bench::WallNowNs() + 10'000'000'000LL;
        while (!root->frmMainMenu()->BtnProgram->isVisible() && Bench::WallNowNs() < give_up)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents(); // paints the menu as it now stands
        menuReady = root->frmMainMenu()->BtnProgram->isVisible();
    }
#else
    menuReady = ready;
#endif

    auto most = [](const std::vector<double>& v) {
        return v.empty() ? 0.0 : *std::max_element(v.begin(), v.end());
    };
    std::printf(
        "first_frame_cpu_us=%.1f first_frame_wall_us=%.1f build_cpu_us=%.1f paints=%d ready=%d "
        "peak_rss_kib=%ld rss_anon_kib=%ld rss_file_kib=%ld slide_ticks=%zu slide_tick_cpu_median_us=%.1f "
        "slide_tick_cpu_max_us=%.1f slide_gap_max_us=%.1f\n",
        (firstFrame.cpuNs - start.cpuNs) / 1000.0, (firstFrame.wallNs - start.wallNs) / 1000.0,
        (builtCpuNs - start.cpuNs) / 1000.0, paints, menuReady ? 1 : 0, Bench::StatusKiB("VmHWM"),
        Bench::StatusKiB("RssAnon"), Bench::StatusKiB("RssFile"), tickCpuUs.size(), Bench::Median(tickCpuUs),
        most(tickCpuUs), most(tickGapUs));
    std::fflush(stdout);
    return ready && !menuReady ? 1 : 0;
}
