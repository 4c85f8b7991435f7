#include "Monkey.h"

#include <QApplication>
#include <QTest>

#include <cstdio>

// Seeded random input through the real window, with the app's invariants checked after every
// event. The runs are bounded here, long enough to reach every screen, fill part of the timeline
// and pass through the confirmation page; scripts/monkey-long.sh runs the long one.
class TestMonkey : public QObject {
    Q_OBJECT
private slots:
    void rulesHoldUnderRandomInput_data() {
        QTest::addColumn<quint64>("seed");
        QTest::addColumn<qint64>("inputs");
        QList<quint64> seeds = {1, 2, 3};
        qint64 inputs = 1500;
        Monkey::FromEnvironment(seeds, inputs);
        for (quint64 seed : seeds) QTest::addRow("seed %llu", seed) << seed << inputs;
    }

    void rulesHoldUnderRandomInput() {
        QFETCH(quint64, seed);
        QFETCH(qint64, inputs);
        const Monkey::Result result = Monkey::Run(seed, inputs);
        std::fprintf(stderr, "%s\n", qPrintable(result.summary()));
        QVERIFY2(result.ok(), qPrintable(result.summary()));
        QCOMPARE(result.done, inputs);
        // A run that never leaves the main menu proves nothing about the other screens.
        QVERIFY2(result.inputsOn.size() >= 2, "the monkey stayed on one screen");
    }
};

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
