#include "BenchClock.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace Bench {

namespace {
std::int64_t Now(clockid_t clock) {
    timespec ts{};
    clock_gettime(clock, &ts);
    return static_cast<std::int64_t>(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}
} // namespace

std::int64_t CpuNowNs() {
    return Now(CLOCK_PROCESS_CPUTIME_ID);
}

std::int64_t WallNowNs() {
    return Now(CLOCK_MONOTONIC);
}

double Median(std::vector<double> values) {
    if (values.empty()) return 0.0;
    std::sort(values.begin(), values.end());
    const size_t mid = values.size() / 2;
    return values.size() % 2 ? values[mid] : (values[mid - 1] + values[mid]) / 2.0;
}

double MedianCpuUs(const std::vector<Sample>& samples) {
    std::vector<double> us;
    for (const Sample& s : samples) us.push_back(s.cpuNs / 1000.0);
    return Median(us);
}

double MedianWallUs(const std::vector<Sample>& samples) {
    std::vector<double> us;
    for (const Sample& s : samples) us.push_back(s.wallNs / 1000.0);
    return Median(us);
}

double MaxCpuUs(const std::vector<Sample>& samples) {
    double most = 0.0;
    for (const Sample& s : samples) most = std::max(most, s.cpuNs / 1000.0);
    return most;
}

PaintCounter::PaintCounter(QWidget* watched) {
    if (watched) watched->installEventFilter(this);
}

bool PaintCounter::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Paint) ++m_count;
    return false;
}

long StatusKiB(const char* field) {
    std::FILE* status = std::fopen("/proc/self/status", "r");
    if (!status) return 0;
    char line[256];
    long kib = 0;
    const size_t length = std::strlen(field);
    while (std::fgets(line, sizeof line, status)) {
        if (std::strncmp(line, field, length) == 0 && line[length] == ':') {
            std::sscanf(line + length + 1, "%ld", &kib);
            break;
        }
    }
    std::fclose(status);
    return kib;
}

Options::Options(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "--only") == 0) only = argv[i + 1];
        if (std::strcmp(argv[i], "--samples") == 0) samples = std::atoi(argv[i + 1]);
    }
}

bool Options::wanted(const char* name) const {
    return !only || std::strcmp(only, name) == 0;
}

} // namespace Bench
