// Start-up and memory: runs the application's window executable and the empty-window executable
// alternately, each in a fresh process, and reports the medians side by side.
//
//   bench_startup [--runs N]
//
// Per run and executable it records the process's wall time from fork to exit, its CPU time
// (user + system, from wait4), and what the process measured itself: the CPU and wall time from
// an empty application to the first painted frame. Memory runs wait for the main menu to come
// alive and report the peak resident set at that moment.

#include "BenchClock.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

struct Run {
    bool ok = false;
    double processWallUs = 0;
    double processCpuUs = 0;
    std::map<std::string, double> reported; // the child's own key=value line
};

Run Spawn(const char* exe, const char* mode) {
    Run run;
    int out[2];
    if (pipe(out) != 0) return run;
    const std::int64_t start = Bench::WallNowNs();
    const pid_t pid = fork();
    if (pid < 0) return run;
    if (pid == 0) {
        dup2(out[1], STDOUT_FILENO);
        close(out[0]);
        close(out[1]);
        execl(exe, exe, mode, static_cast<char*>(nullptr));
        _exit(127);
    }
    close(out[1]);
    std::string text;
    char buffer[512];
    ssize_t n;
    while ((n = read(out[0], buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<size_t>(n));
    close(out[0]);
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid) return run;
    run.processWallUs = (Bench::WallNowNs() - start) / 1000.0;
    run.processCpuUs = usage.ru_utime.tv_sec * 1e6 + usage.ru_utime.tv_usec + usage.ru_stime.tv_sec * 1e6 +
                       usage.ru_stime.tv_usec;
    run.reported["max_rss_kib"] = static_cast<double>(usage.ru_maxrss);
    // key=value pairs separated by blanks
    size_t pos = 0;
    while (pos < text.size()) {
        const size_t end = text.find_first_of(" \n", pos);
        const std::string pair = text.substr(pos, end == std::string::npos ? std::string::npos : end - pos);
        const size_t eq = pair.find('=');
        if (eq != std::string::npos) run.reported[pair.substr(0, eq)] = std::atof(pair.c_str() + eq + 1);
        if (end == std::string::npos) break;
        pos = end + 1;
    }
    run.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return run;
}

struct Series {
    std::vector<double> values;
    double median() const { return Bench::Median(values); }
};

void Row(const char* what, const char* unit, const Series& floor, const Series& app, double scale) {
    const double f = floor.median() / scale;
    const double a = app.median() / scale;
    std::printf("| %s | %.2f %s | %.2f %s | %.2f |\n", what, f, unit, a, unit, f > 0 ? a / f : 0.0);
}

} // namespace

int main(int argc, char** argv) {
    int runs = 21;
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "--runs") == 0) runs = std::max(1, std::atoi(argv[i + 1]));
    setenv("QT_QPA_PLATFORM", "offscreen", 0);

    const char* exe[2] = {ROBOT_BENCH_EMPTY_EXE, ROBOT_BENCH_APP_EXE};
    Series frameCpu[2], buildCpu[2], frameWall[2], procWall[2], procCpu[2], peak[2], anon[2], file[2];
    Series slideMedian, slideWorst, slideGap;
    int failures = 0;

    // Warm the file cache once, so the first measured run is not the only one reading the disk.
    for (const char* e : exe) Spawn(e, "first-frame");

    for (int r = 0; r < runs; ++r) {
        // Alternate which goes first, so neither profits from the other's warm caches.
        for (int k = 0; k < 2; ++k) {
            const int which = (r + k) % 2;
            const Run run = Spawn(exe[which], "first-frame");
            if (!run.ok || run.reported.count("paints") == 0 || run.reported.at("paints") < 1) {
                ++failures;
                continue;
            }
            frameCpu[which].values.push_back(run.reported.at("first_frame_cpu_us"));
            buildCpu[which].values.push_back(run.reported.at("build_cpu_us"));
            frameWall[which].values.push_back(run.reported.at("first_frame_wall_us"));
            procWall[which].values.push_back(run.processWallUs);
            procCpu[which].values.push_back(run.processCpuUs);
        }
    }
    const int memoryRuns = std::max(1, runs / 2);
    for (int r = 0; r < memoryRuns; ++r) {
        for (int k = 0; k < 2; ++k) {
            const int which = (r + k) % 2;
            const Run run = Spawn(exe[which], "ready");
            if (!run.ok || run.reported.count("ready") == 0 || run.reported.at("ready") != 1) {
                ++failures;
                continue;
            }
            peak[which].values.push_back(run.reported.at("peak_rss_kib"));
            anon[which].values.push_back(run.reported.at("rss_anon_kib"));
            file[which].values.push_back(run.reported.at("rss_file_kib"));
            if (which == 1 && run.reported.at("slide_ticks") > 0) {
                slideMedian.values.push_back(run.reported.at("slide_tick_cpu_median_us"));
                slideWorst.values.push_back(run.reported.at("slide_tick_cpu_max_us"));
                slideGap.values.push_back(run.reported.at("slide_gap_max_us"));
            }
        }
    }

    std::printf("Start-up and memory, median of %d runs (memory: %d runs), each in a fresh process\n\n", runs,
                memoryRuns);
    std::printf("| Measure | Empty window (floor) | Application | Ratio |\n|---|---|---|---|\n");
    Row("First frame in process, CPU", "ms", frameCpu[0], frameCpu[1], 1000.0);
    Row("- of which building the window, CPU", "ms", buildCpu[0], buildCpu[1], 1000.0);
    Row("First frame in process, wall", "ms", frameWall[0], frameWall[1], 1000.0);
    Row("Whole process to first frame and exit, wall", "ms", procWall[0], procWall[1], 1000.0);
    Row("Whole process to first frame and exit, CPU", "ms", procCpu[0], procCpu[1], 1000.0);
    Row("Peak resident memory, main menu ready", "MiB", peak[0], peak[1], 1024.0);
    Row("- resident then: anonymous (heap, pixels)", "MiB", anon[0], anon[1], 1024.0);
    Row("- resident then: mapped files (code, pictures, fonts)", "MiB", file[0], file[1], 1024.0);
    std::printf("\nThe robot's slide in those runs, on its own 10 ms timer (median over runs):\n\n");
    std::printf("| Measure | Application |\n|---|---|\n");
    std::printf("| CPU per tick, median of the slide | %.0f µs |\n", slideMedian.median());
    std::printf("| CPU of the slide's costliest tick | %.0f µs |\n", slideWorst.median());
    std::printf("| Longest time between two ticks | %.1f ms |\n", slideGap.median() / 1000.0);
    if (failures) std::printf("\n%d run(s) failed and were left out\n", failures);
    return failures ? 1 : 0;
}
