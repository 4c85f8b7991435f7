#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Monkey.h"
#include "NSApplicationMain.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <cstdio>

// Bounded for the test run: a few seeds long enough to reach every screen, fill part of the
// timeline and pass through the confirmation page. scripts/monkey-long.sh runs the long one.
class TestMonkey : public QObject {
    Q_OBJECT
private slots:
    void rulesHoldUnderRandomInput_data() {
        QTest::addColumn<quint64>("seed");
        QTest::addColumn<qint64>("inputs");
        QList<quint64> seeds = {1, 2, 3};
        qint64 inputs = 1500;
        Monkey::FromEnvironment(seeds, inputs);
        for (quint64 seed : seeds)
            QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed << inputs;
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

    // A rule broken in the middle of a run stops it at once and says how to replay it.
    void aBrokenRuleStopsTheRunAndNamesTheSeed() {
        QTimer::singleShot(500, [] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (Frame_Control* root = RootView(w)) root->frmFace->setHidden(false);
        });
        const Monkey::Result result = Monkey::Run(11, 100000);
        QVERIFY(result.failedAt >= 0 && result.done < result.planned);
        QVERIFY(result.broken.join(QLatin1Char(' ')).contains(QLatin1String("2 screens shown")));
        QVERIFY(result.summary().contains(
            QStringLiteral("ROBOT_MONKEY_SEED=11 ROBOT_MONKEY_INPUTS=%1").arg(result.failedAt + 1)));
    }
};

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
