#pragma once

#include <QObject>

#include <cstdint>
#include <vector>

class QWidget;

// Clocks and statistics shared by the benchmarks. CPU time is the process's own (every thread),
// so a tick's cost does not depend on what else the machine is doing; wall time is kept beside
// it for the start-up figures, where waiting is part of what the user sees.
namespace Bench {

std::int64_t CpuNowNs();
std::int64_t WallNowNs();

struct Sample {
    std::int64_t cpuNs = 0;
    std::int64_t wallNs = 0;
};

// Median of a set of values; 0 for none. The values are copied, not reordered.
double Median(std::vector<double> values);
double MedianCpuUs(const std::vector<Sample>& samples);
double MedianWallUs(const std::vector<Sample>& samples);
double MaxCpuUs(const std::vector<Sample>& samples);

// Counts the paint events a widget receives; a benchmark checks that each tick painted once.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget* watched);
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int m_count = 0;
};

// A memory figure of this process from /proc/self/status, in KiB ("VmHWM": the peak resident
// set so far; "RssAnon", "RssFile": what is resident now); 0 where the system does not say.
long StatusKiB(const char* field);

// The options every tick benchmark takes: "--only NAME" runs one measure, "--samples N" overrides
// each measure's own sample count.
struct Options {
    Options(int argc, char** argv);
    bool wanted(const char* name) const;
    int samplesOr(int fallback) const { return samples > 0 ? samples : fallback; }

    const char* only = nullptr;
    int samples = 0;
};

} // namespace Bench
