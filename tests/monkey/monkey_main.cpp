// robot-monkey: the long monkey run. Random input for the real window (offscreen), with every
// invariant checked after each input; prints what it covered and, on failure, the seed and the
// inputs to replay it.
//
//   robot-monkey [--inputs N] [--seed S] [--runs R]
//
// R runs of N inputs each, seeds S, S+1, ...; without --seed the seed comes from the clock.
// ROBOT_MONKEY_SEED and ROBOT_MONKEY_INPUTS, when set, replay a reported failure.
#include "MonkeyRun.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>

#include <cstdio>
#include <cstring>

namespace {

bool ReadNumber(const char* text, qint64* value) {
    bool ok = false;
    const qint64 v = QByteArray(text).toLongLong(&ok);
    if (!ok || v <= 0) return false;
    *value = v;
    return true;
}

int Usage() {
    std::fprintf(stderr, "usage: robot-monkey [--inputs N] [--seed S] [--runs R]\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qint64 inputs = 100000;
    qint64 runs = 1;
    qint64 seed = 0;
    bool seedGiven = false;
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--inputs") == 0 && hasValue) {
            if (!ReadNumber(argv[++i], &inputs)) return Usage();
        } else if (std::strcmp(argv[i], "--runs") == 0 && hasValue) {
            if (!ReadNumber(argv[++i], &runs)) return Usage();
        } else if (std::strcmp(argv[i], "--seed") == 0 && hasValue) {
            if (!ReadNumber(argv[++i], &seed)) return Usage();
            seedGiven = true;
        } else {
            return Usage();
        }
    }
    if (!seedGiven) seed = QDateTime::currentMSecsSinceEpoch() % 1000000000;

    QList<quint64> seeds;
    for (qint64 r = 0; r < runs; ++r) seeds << static_cast<quint64>(seed + r);
    seeds = MonkeySeedsFromEnvironment(seeds);
    inputs = MonkeyInputsFromEnvironment(inputs);

    int failures = 0;
    qint64 total = 0;
    QElapsedTimer clock;
    clock.start();
    for (quint64 s : seeds) {
        const MonkeyResult result = RunMonkey(s, inputs, [&clock](qint64 done) {
            std::fprintf(stderr, "  %lld inputs, %.0f s\n", static_cast<long long>(done),
                         clock.elapsed() / 1000.0);
            return true;
        });
        std::printf("%s\n", qPrintable(result.summary()));
        std::fflush(stdout);
        total += result.done;
        failures += result.ok() ? 0 : 1;
    }
    std::printf("robot-monkey: %lld inputs in %d run(s), %d failed, %.0f s\n", static_cast<long long>(total),
                static_cast<int>(seeds.size()), failures, clock.elapsed() / 1000.0);
    return failures == 0 ? 0 : 1;
}
