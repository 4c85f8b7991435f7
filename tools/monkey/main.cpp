// robot-monkey: the long monkey run. Random input for the real window (offscreen), with every
// invariant checked after each input; prints what it covered and, on failure, the seed and the
// inputs to replay it.
//
//   robot-monkey [--inputs N] [--seed S] [--runs R]
//
// R runs of N inputs each, seeds S, S+1, ...; without --seed the seed comes from the clock.
// ROBOT_MONKEY_SEED and ROBOT_MONKEY_INPUTS, when set, replay a reported failure.
#include "Monkey.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qint64 values[3] = {100000, 1, QDateTime::currentMSecsSinceEpoch() % 1000000000}; // inputs, runs, seed
    const QStringList args = QApplication::arguments();
    for (qsizetype i = 1; i < args.size(); i += 2) {
        const qsizetype which = QStringList{"--inputs", "--runs", "--seed"}.indexOf(args[i]);
        bool ok = false;
        if (which >= 0 && i + 1 < args.size()) values[which] = args[i + 1].toLongLong(&ok);
        if (!ok || values[which] <= 0) {
            std::fprintf(stderr, "usage: robot-monkey [--inputs N] [--seed S] [--runs R]\n");
            return 2;
        }
    }
    QList<quint64> seeds;
    for (qint64 r = 0; r < values[1]; ++r) seeds << quint64(values[2] + r);
    qint64 inputs = values[0];
    Monkey::FromEnvironment(seeds, inputs);

    int failures = 0;
    qint64 total = 0;
    QElapsedTimer clock;
    clock.start();
    for (quint64 seed : seeds) {
        const Monkey::Result result = Monkey::Run(seed, inputs, [&clock](qint64 done) {
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
                int(seeds.size()), failures, clock.elapsed() / 1000.0);
    return failures == 0 ? 0 : 1;
}
