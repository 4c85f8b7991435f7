// One process, one window: builds it, shows it and returns as soon as its first frame is painted
// (with "ready": once the main menu has come alive, which only the application's window does).
// Built twice: as the application's window (ROBOT_BENCH_APP) and as an empty 1024 x 768 window,
// the floor both are compared with. Prints what it measured as one line of key=value pairs.

#include "BenchClock.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <cstring>
#include <memory>

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
__attribute__((noinline)) std::unique_ptr<QWidget> BenchFirstFrame(int* paints) {
    std::unique_ptr<QWidget> window = MakeWindow();
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
    std::unique_ptr<QWidget> window = BenchFirstFrame(&paints);
    const Bench::Sample firstFrame{Bench::CpuNowNs(), Bench::WallNowNs()};

    bool menuReady = false;
#ifdef ROBOT_BENCH_APP
    if (ready) {
        Frame_Control* root = RootView(window.get());
        const std::int64_t give_up = Bench::WallNowNs() + 10'000'000'000LL;
        while (!root->frmMainMenu->BtnProgram->isVisible() && Bench::WallNowNs() < give_up)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        QCoreApplication::processEvents(); // paints the menu as it now stands
        menuReady = root->frmMainMenu->BtnProgram->isVisible();
    }
#else
    menuReady = ready;
#endif

    std::printf("first_frame_cpu_us=%.1f first_frame_wall_us=%.1f paints=%d ready=%d peak_rss_kib=%ld "
                "rss_anon_kib=%ld rss_file_kib=%ld\n",
                (firstFrame.cpuNs - start.cpuNs) / 1000.0, (firstFrame.wallNs - start.wallNs) / 1000.0,
                paints, menuReady ? 1 : 0, Bench::StatusKiB("VmHWM"), Bench::StatusKiB("RssAnon"),
                Bench::StatusKiB("RssFile"));
    std::fflush(stdout);
    return ready && !menuReady ? 1 : 0;
}
