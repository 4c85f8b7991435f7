#include "MonkeyRun.h"

#include <QTest>

#include <cstdio>

namespace {

// Bounded for the test run: a few seeds long enough to reach every screen, fill part of the
// timeline and pass through the confirmation page. scripts/monkey-long.sh runs the long one.
const QList<quint64> kSeeds = {1, 2, 3};
constexpr qint64 kInputs = 1500;

} // namespace

class TestMonkey : public QObject {
    Q_OBJECT
private slots:
    void rulesHoldUnderRandomInput_data() {
        QTest::addColumn<quint64>("seed");
        for (quint64 seed : MonkeySeedsFromEnvironment(kSeeds))
            QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
    }

    void rulesHoldUnderRandomInput() {
        QFETCH(quint64, seed);
        const MonkeyResult result = RunMonkey(seed, MonkeyInputsFromEnvironment(kInputs));
        std::fprintf(stderr, "%s\n", qPrintable(result.summary()));
        QVERIFY2(result.ok(), qPrintable(result.summary()));
        QCOMPARE(result.done, result.planned);
        // A run that never leaves the main menu proves nothing about the other screens.
        QVERIFY2(result.inputsOn.size() >= 2, "the monkey stayed on one screen");
    }
};

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
